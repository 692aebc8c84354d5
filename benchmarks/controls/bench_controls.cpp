// Prints what the slider, combo box and curve input dialogs cost: first opening of each dialog,
// a repaint of a slider with 1,000 markers, and filtering a 50,000-entry filter combo box per
// keystroke. Run it headless: QT_QPA_PLATFORM=offscreen ./bench_controls
#include "TestComboBox.h"
#include "TestCurveInputControl.h"
#include "TestVNSliderView.h"

#include <VNFilterComboBox.h>
#include <VNSlider.h>
#include <VNStyleSheet.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QDialog>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextStream>

#include <algorithm>
#include <ctime>
#include <vector>

namespace {
double ms(qint64 nanoseconds)
{
    return nanoseconds / 1.0e6;
}

// CPU time of this thread: on a busy machine the wall clock also counts other programs.
double threadCpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return now.tv_sec * 1.0e3 + now.tv_nsec / 1.0e6;
}

template<typename Dialog>
QString firstOpen(QWidget* panel)
{
    QElapsedTimer timer;
    timer.start();
    const double cpuStart = threadCpuMs();
    auto* dialog = new Dialog(panel);
    dialog->show();
    QApplication::processEvents();
    const double wall = ms(timer.nsecsElapsed());
    const double cpu = threadCpuMs() - cpuStart;
    const QString line = QString("first open %1: %2 ms CPU, %3 ms wall (goal 50 ms)\n")
                             .arg(QLatin1String(dialog->metaObject()->className()))
                             .arg(cpu, 0, 'f', 2)
                             .arg(wall, 0, 'f', 2);
    delete dialog;
    return line;
}

void typeKey(QWidget* widget, char key)
{
    const QString text = QString(QLatin1Char(key));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_0 + (key - '0'), Qt::NoModifier, text);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_0 + (key - '0'), Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
    QApplication::sendEvent(widget, &release);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void benchSliderRepaint(QTextStream& out)
{
    VNSlider slider(Qt::Horizontal);
    slider.setRange(0, 10000);
    slider.resize(800, 40);
    for (int i = 0; i < 1000; ++i)
        slider.mark(i * 10, i * 10 + 5, i % 2 ? VNSlider::redBrush() : VNSlider::greenBrush());
    slider.setAdmissibleRange(100, 9900, true);
    slider.markBest(5000);
    slider.setShowGaussianCurve(true);
    slider.show();
    QApplication::processEvents();
    slider.repaint();
    std::vector<double> wall;
    std::vector<double> cpu;
    for (int round = 0; round < 50; ++round) {
        QElapsedTimer timer;
        timer.start();
        const double cpuStart = threadCpuMs();
        slider.repaint();
        cpu.push_back(threadCpuMs() - cpuStart);
        wall.push_back(ms(timer.nsecsElapsed()));
    }
    out << QString("slider with 1,000 markers, repaint: median %1 ms CPU (worst %2), median %3 ms wall (worst %4) "
                   "(goal 4 ms)\n")
               .arg(median(cpu), 0, 'f', 2)
               .arg(*std::max_element(cpu.begin(), cpu.end()), 0, 'f', 2)
               .arg(median(wall), 0, 'f', 2)
               .arg(*std::max_element(wall.begin(), wall.end()), 0, 'f', 2);
}

void benchFilter(QTextStream& out)
{
    VNFilterComboBox combo;
    QStringList texts;
    texts.reserve(50000);
    for (int i = 0; i < 50000; ++i)
        texts << QString("Entry %1 of the long list").arg(i);
    combo.addItems(texts);
    combo.show();
    QApplication::setActiveWindow(&combo);
    combo.setFocus();
    combo.lineEdit()->clear();
    QApplication::processEvents();
    std::vector<double> times;
    int shown = 0;
    for (const char key : QByteArray("4711")) {
        QElapsedTimer timer;
        timer.start();
        typeKey(combo.lineEdit(), key);
        shown = combo.filterCompleter()->completionCount();
        QApplication::processEvents();
        times.push_back(ms(timer.nsecsElapsed()));
    }
    out << QString("filter combo box, 50,000 entries: per keystroke median %1 ms, worst %2 ms, %3 left after "
                   "\"4711\" (goal 50 ms)\n")
               .arg(median(times), 0, 'f', 2)
               .arg(*std::max_element(times.begin(), times.end()), 0, 'f', 2)
               .arg(shown);
}
} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    VNStyleSheet::applyTo(&app);
    QTextStream out(stdout);
    QWidget panel;
    panel.show();
    // One-time costs (fonts, style sheet parsing) belong to the application's start, not to a dialog.
    {
        QDialog warmUp(&panel);
        new QComboBox(&warmUp);
        warmUp.show();
        QApplication::processEvents();
    }
    out << firstOpen<TestVNSliderView>(&panel);
    out << firstOpen<TestComboBox>(&panel);
    out << firstOpen<TestCurveInputControl>(&panel);
    out.flush();
    benchSliderRepaint(out);
    out.flush();
    benchFilter(out);
    return 0;
}
