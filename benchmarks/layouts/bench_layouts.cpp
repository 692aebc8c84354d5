// Prints what the layout and composition dialogs cost: the first open of each dialog, the frame
// times of a disclosure opening and of a flip, and one alignment by the layout helper over many
// grids. Run it headless: QT_QPA_PLATFORM=offscreen ./bench_layouts
#include "../BenchTiming.h"
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
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextStream>
#include <QVariantAnimation>

#include <memory>

namespace {
constexpr int frameStep = 16;

template<typename Dialog>
QString firstOpen(const char* name)
{
    std::unique_ptr<Dialog> dialog;
    const BenchTiming::Timing open = BenchTiming::once([&] {
        dialog = std::make_unique<Dialog>(nullptr);
        dialog->show();
        QApplication::processEvents();
    });
    return BenchTiming::line(QStringLiteral("  ") + QLatin1String(name), open);
}

// Steps the animation as a 60 Hz display would and times each frame until the window is painted.
BenchTiming::Samples stepFrames(QAbstractAnimation* animation, QWidget* window)
{
    BenchTiming::Samples frames;
    for (int time = frameStep; animation->state() == QAbstractAnimation::Running; time += frameStep) {
        frames.add(BenchTiming::once([&] {
            animation->setCurrentTime(qMin(time, animation->duration()));
            QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            window->repaint();
        }));
    }
    return frames;
}

BenchTiming::Samples disclosureFrames()
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

BenchTiming::Samples flipFrames()
{
    TestFlipWidget dialog(nullptr);
    dialog.resize(400, 300);
    dialog.show();
    QApplication::processEvents();
    dialog.flipWidget()->flip();
    return stepFrames(dialog.flipWidget()->animation(), &dialog);
}

// Prints the first alignment, which widens the columns, and then the repeated ones.
void helperAlignment(QTextStream& out, int grids, int rows)
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
    const QString what = QStringLiteral("VNLayoutHelper::help() over %1 grids of %2 rows").arg(grids).arg(rows);
    out << BenchTiming::line(what + QStringLiteral(", first"), BenchTiming::once([&] { helper.help(); }));
    out << BenchTiming::line(what + QStringLiteral(", then"), BenchTiming::repeat(7, [&] { helper.help(); }),
                             QStringLiteral("budget 5 ms"));
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
    out << firstOpen<TestDisclosure>("TestDisclosure");
    out << firstOpen<TestFlipWidget>("TestFlipWidget");
    out << firstOpen<TestInfoArea>("TestInfoArea");
    out << firstOpen<TestLayoutExample>("TestLayoutExample");
    out << firstOpen<TestLayoutHelper>("TestLayoutHelper");

    const QString frameBudget = QStringLiteral("budget 16 ms");
    out << BenchTiming::line(QStringLiteral("Disclosure opening, per frame"), disclosureFrames(), frameBudget);
    out << BenchTiming::line(QStringLiteral("Flip, per frame"), flipFrames(), frameBudget);
    helperAlignment(out, 50, 20);
    return 0;
}
