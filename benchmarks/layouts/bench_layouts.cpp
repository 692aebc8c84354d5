// Prints what the layout and composition dialogs cost: the first open of each dialog, the frame
// times of a disclosure opening and of a flip, and one alignment by the layout helper over many
// grids. Run it headless: QT_QPA_PLATFORM=offscreen ./bench_layouts
#include "TestDisclosure.h"
#include "TestFlipWidget.h"
#include "TestInfoArea.h"
#include "TestLayoutExample.h"
#include "TestLayoutHelper.h"

#include <FlipWidget.h>
#include <VNLayoutHelper.h>
#include <VNProgressiveDisclosure.h>
#include <VNStyleSheet.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextStream>
#include <QVariantAnimation>

#include <algorithm>
#include <ctime>
#include <memory>

namespace {
constexpr int frameStep = 16;

double ms(qint64 nanoseconds)
{
    return nanoseconds / 1.0e6;
}

double cpuMs(std::clock_t since)
{
    return (std::clock() - since) * 1000.0 / CLOCKS_PER_SEC;
}

// Wall time and the process's CPU time: on a busy machine the wall time also counts other
// processes, the CPU time only this one.
template<typename Dialog>
QString firstOpen()
{
    QElapsedTimer timer;
    timer.start();
    const std::clock_t cpu = std::clock();
    auto dialog = std::make_unique<Dialog>(nullptr);
    dialog->show();
    QApplication::processEvents();
    return QStringLiteral("%1 ms wall, %2 ms CPU").arg(ms(timer.nsecsElapsed()), 0, 'f', 2).arg(cpuMs(cpu), 0, 'f', 2);
}

struct Frames
{
    double worst = 0.0;
    double worstCpu = 0.0;
    double mean = 0.0;
    int count = 0;
};

// Steps the animation as a 60 Hz display would and times each frame until the window is painted.
Frames stepFrames(QAbstractAnimation* animation, QWidget* window)
{
    Frames frames;
    double total = 0.0;
    QElapsedTimer timer;
    for (int time = frameStep; animation->state() == QAbstractAnimation::Running; time += frameStep) {
        timer.start();
        const std::clock_t cpu = std::clock();
        animation->setCurrentTime(qMin(time, animation->duration()));
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        window->repaint();
        const double frame = ms(timer.nsecsElapsed());
        frames.worst = std::max(frames.worst, frame);
        frames.worstCpu = std::max(frames.worstCpu, cpuMs(cpu));
        total += frame;
        ++frames.count;
    }
    frames.mean = frames.count ? total / frames.count : 0.0;
    return frames;
}

void printFrames(QTextStream& out, const char* what, const Frames& frames)
{
    out << what << ": " << frames.count << " frames, worst " << QString::number(frames.worst, 'f', 2) << " ms wall ("
        << QString::number(frames.worstCpu, 'f', 2) << " ms CPU), mean " << QString::number(frames.mean, 'f', 2)
        << " ms (budget 16 ms)\n";
}

Frames disclosureFrames()
{
    TestDisclosure dialog(nullptr);
    dialog.show();
    QApplication::processEvents();
    auto* disclosure = dialog.findChild<VNProgressiveDisclosure*>(QStringLiteral("progressiveDisclosure0"));
    disclosure->setOpen(false);
    stepFrames(disclosure->animation(), &dialog);
    disclosure->setOpen(true);
    return stepFrames(disclosure->animation(), &dialog);
}

Frames flipFrames()
{
    TestFlipWidget dialog(nullptr);
    dialog.resize(400, 300);
    dialog.show();
    QApplication::processEvents();
    dialog.flipWidget()->flip();
    return stepFrames(dialog.flipWidget()->animation(), &dialog);
}

// Returns the median of repeated alignments; the first, which widens the columns, in first.
double helperAlignment(int grids, int rows, double& first, double& firstCpu)
{
    QWidget form;
    auto* outer = new QVBoxLayout(&form);
    QList<QGridLayout*> layouts;
    for (int grid = 0; grid < grids; ++grid) {
        auto* layout = new QGridLayout;
        for (int row = 0; row < rows; ++row) {
            layout->addWidget(
                new QLabel(QStringLiteral("Label %1.%2").arg(grid).arg(QString(row % 7, QLatin1Char('x')))), row, 0);
            layout->addWidget(new QLineEdit, row, 1);
        }
        outer->addLayout(layout);
        layouts.append(layout);
    }
    form.show();
    QApplication::processEvents();
    VNLayoutHelper helper(&form);
    for (QGridLayout* layout : layouts)
        helper.addLayout(layout, nullptr);
    QVector<double> runs;
    QElapsedTimer timer;
    timer.start();
    const std::clock_t cpu = std::clock();
    helper.help();
    first = ms(timer.nsecsElapsed());
    firstCpu = cpuMs(cpu);
    for (int run = 0; run < 7; ++run) {
        timer.start();
        helper.help();
        runs.append(ms(timer.nsecsElapsed()));
    }
    std::sort(runs.begin(), runs.end());
    return runs.at(runs.size() / 2);
}
// Opens and closes a small dialog first, so that the figures leave out what the first window of
// a process pays once (fonts, style sheet parsing, platform set-up).
void warmUp()
{
    QDialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(QStringLiteral("warm-up")));
    layout->addWidget(new QLineEdit);
    dialog.show();
    QApplication::processEvents();
}

QtMessageHandler standardHandler = nullptr;

void quietOffscreenNotes(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.contains(QLatin1String("propagateSizeHints")))
        standardHandler(type, context, message);
}
} // namespace

int main(int argc, char** argv)
{
    standardHandler = qInstallMessageHandler(quietOffscreenNotes);
    QApplication app(argc, argv);
    VNStyleSheet::applyTo(&app);
    QTextStream out(stdout);
    warmUp();

    out << "First open (budget 50 ms):\n";
    out << "  TestDisclosure    " << firstOpen<TestDisclosure>() << "\n";
    out << "  TestFlipWidget    " << firstOpen<TestFlipWidget>() << "\n";
    out << "  TestInfoArea      " << firstOpen<TestInfoArea>() << "\n";
    out << "  TestLayoutExample " << firstOpen<TestLayoutExample>() << "\n";
    out << "  TestLayoutHelper  " << firstOpen<TestLayoutHelper>() << "\n";

    printFrames(out, "Disclosure opening", disclosureFrames());
    printFrames(out, "Flip", flipFrames());
    double first = 0.0;
    double firstCpu = 0.0;
    const double median = helperAlignment(50, 20, first, firstCpu);
    out << "VNLayoutHelper::help() over 50 grids of 20 rows: first " << QString::number(first, 'f', 2) << " ms wall ("
        << QString::number(firstCpu, 'f', 2) << " ms CPU), then median " << QString::number(median, 'f', 2)
        << " ms (budget 5 ms)\n";
    return 0;
}
