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
#include <QCompleter>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {
double ms(qint64 nanoseconds)
{
    return nanoseconds / 1.0e6;
}

template<typename Dialog>
double firstOpen(QWidget* panel)
{
    QElapsedTimer timer;
    timer.start();
    auto* dialog = new Dialog(panel);
    dialog->show();
    QApplication::processEvents();
    const double elapsed = ms(timer.nsecsElapsed());
    delete dialog;
    return elapsed;
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
    std::vector<double> times;
    for (int round = 0; round < 50; ++round) {
        QElapsedTimer timer;
        timer.start();
        slider.repaint();
        times.push_back(ms(timer.nsecsElapsed()));
    }
    out << QString("slider with 1,000 markers, repaint: median %1 ms, worst %2 ms (goal 4 ms)\n")
               .arg(median(times), 0, 'f', 2)
               .arg(*std::max_element(times.begin(), times.end()), 0, 'f', 2);
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
    out << QString("first open TestVNSliderView: %1 ms (goal 50 ms)\n")
               .arg(firstOpen<TestVNSliderView>(&panel), 0, 'f', 2);
    out << QString("first open TestComboBox: %1 ms (goal 50 ms)\n").arg(firstOpen<TestComboBox>(&panel), 0, 'f', 2);
    out << QString("first open TestCurveInputControl: %1 ms (goal 50 ms)\n")
               .arg(firstOpen<TestCurveInputControl>(&panel), 0, 'f', 2);
    out.flush();
    benchSliderRepaint(out);
    out.flush();
    benchFilter(out);
    return 0;
}
