// Prints what the slider, combo box and curve input dialogs cost: first opening of each dialog,
// a repaint of a slider with 1,000 markers, and filtering a 50,000-entry filter combo box per
// keystroke. Run it headless: QT_QPA_PLATFORM=offscreen ./bench_controls
#include "../BenchTiming.h"
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
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextStream>

namespace {
template<typename Dialog>
QString firstOpen(QWidget* panel)
{
    Dialog* dialog = nullptr;
    const BenchTiming::Timing open = BenchTiming::once([&] {
        dialog = new Dialog(panel);
        dialog->show();
        QApplication::processEvents();
    });
    const QString name = QLatin1String(dialog->metaObject()->className());
    delete dialog;
    return BenchTiming::line(QStringLiteral("first open ") + name, open, QStringLiteral("goal 50 ms"));
}

void typeKey(QWidget* widget, char key)
{
    const QString text = QString(QLatin1Char(key));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_0 + (key - '0'), Qt::NoModifier, text);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_0 + (key - '0'), Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
    QApplication::sendEvent(widget, &release);
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
    out << BenchTiming::line(QStringLiteral("slider with 1,000 markers, repaint"),
                             BenchTiming::repeat(50, [&] { slider.repaint(); }), QStringLiteral("goal 4 ms"));
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
    const QByteArray typed("4711");
    int shown = 0;
    int typedKeys = 0;
    const BenchTiming::Samples keystrokes = BenchTiming::repeat(typed.size(), [&] {
        typeKey(combo.lineEdit(), typed.at(typedKeys++));
        shown = combo.filterCompleter()->completionCount();
        QApplication::processEvents();
    });
    out << BenchTiming::line(QStringLiteral("filter combo box, 50,000 entries, per keystroke of \"4711\""), keystrokes,
                             QStringLiteral("goal 50 ms"));
    out << QStringLiteral("  %1 entries left after \"4711\"\n").arg(shown);
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
