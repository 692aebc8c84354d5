#include "ColorDisplay.h"
#include "VNCheckBox.h"
#include "VNDoubleSpinBox.h"
#include "VNFormatter.h"
#include "VNLabel.h"
#include "VNRadioButton.h"
#include "VNValueEdit.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

// The small value widgets around the double spin box: buddy buttons, value edit, unit label and
// colour swatch.
class TestValueWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void radioButtonEnablesBuddyWhileChecked();
    void checkBoxEnablesBuddyWhileChecked();
    void buddyMayBeDeleted();
    void valueEditReadsNumbersAndUnits_data();
    void valueEditReadsNumbersAndUnits();
    void valueEditKeepsUnreadableText();
    void valueEditRefusesAmbiguousSeparators();
    void labelShowsUnitValueThroughFormatter();
    void labelUsesOwnTextAsPattern();
    void labelSlidesItsBuddy();
    void valueEditStepsWithArrowKeys();
    void colorDisplayPaintsOneOrTwoSides();
    void colorDisplayDisabledLook();
};

void TestValueWidgets::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void TestValueWidgets::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestValueWidgets::radioButtonEnablesBuddyWhileChecked()
{
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* first = new VNRadioButton("first", &window);
    auto* second = new VNRadioButton("second", &window);
    auto* firstField = new VNDoubleSpinBox(&window);
    auto* secondField = new VNDoubleSpinBox(&window);
    for (QWidget* widget : {static_cast<QWidget*>(first), static_cast<QWidget*>(firstField),
                            static_cast<QWidget*>(second), static_cast<QWidget*>(secondField)})
        layout->addWidget(widget);
    QSignalSpy buddyChanged(first, &VNRadioButton::buddyChanged);
    first->setBuddy(firstField);
    second->setBuddy(secondField);
    QCOMPARE(buddyChanged.count(), 1);
    QCOMPARE(first->buddy(), firstField);
    QVERIFY(!firstField->isEnabled());
    QVERIFY(!secondField->isEnabled());

    window.show();
    QTest::mouseClick(first, Qt::LeftButton, Qt::NoModifier, QPoint(5, first->height() / 2));
    QVERIFY(first->isChecked());
    QVERIFY(firstField->isEnabled());
    QVERIFY(!secondField->isEnabled());
    QTest::mouseClick(second, Qt::LeftButton, Qt::NoModifier, QPoint(5, second->height() / 2));
    QVERIFY(!firstField->isEnabled());
    QVERIFY(secondField->isEnabled());
}

// The buddy is enabled while the box is checked and itself enabled.
void TestValueWidgets::checkBoxEnablesBuddyWhileChecked()
{
    VNCheckBox box("use limit");
    VNDoubleSpinBox field;
    box.setBuddy(&field);
    QVERIFY(!field.isEnabled());
    box.setChecked(true);
    QVERIFY(field.isEnabled());
    box.setEnabled(false);
    QVERIFY(!field.isEnabled());
    box.setEnabled(true);
    QVERIFY(field.isEnabled());
    box.setChecked(false);
    QVERIFY(!field.isEnabled());
}

void TestValueWidgets::buddyMayBeDeleted()
{
    VNRadioButton button;
    auto* field = new VNDoubleSpinBox;
    button.setBuddy(field);
    delete field;
    QCOMPARE(button.buddy(), nullptr);
    button.setChecked(true); // must not touch the deleted field
}

void TestValueWidgets::valueEditReadsNumbersAndUnits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain number") << "12.5" << 12.5 << "12.50 mm";
    QTest::newRow("other unit") << "2 cm" << 20.0 << "20.00 mm";
}

void TestValueWidgets::valueEditReadsNumbersAndUnits()
{
    QFETCH(QString, typed);
    QFETCH(double, value);
    QFETCH(QString, shown);
    VNValueEdit edit;
    edit.formatter()->setValueUnit("mm");
    QCOMPARE(edit.text(), QStringLiteral("0.00 mm"));
    QSignalSpy changed(&edit, &VNValueEdit::valueChanged);
    edit.selectAll();
    QTest::keyClicks(&edit, typed);
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(edit.value(), value);
    QCOMPARE(edit.text(), shown);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toDouble(), value);
}

void TestValueWidgets::valueEditRefusesAmbiguousSeparators()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    VNValueEdit edit;
    edit.setValue(3.0);
    edit.selectAll();
    QTest::keyClicks(&edit, "2.000");
    QTest::keyClick(&edit, Qt::Key_Return);
    const bool refused = edit.hasInputError() && edit.value() == 3.0;
    const QString toolTip = edit.toolTip();
    edit.selectAll();
    QTest::keyClicks(&edit, "0.125");
    QTest::keyClick(&edit, Qt::Key_Return);
    const double typed = edit.value();
    QLocale::setDefault(before);
    QVERIFY(refused);
    QVERIFY2(toolTip.contains("more than one way"), qPrintable(toolTip));
    QCOMPARE(typed, 0.125);
}

void TestValueWidgets::valueEditKeepsUnreadableText()
{
    VNValueEdit edit;
    edit.setValue(3.0);
    QSignalSpy changed(&edit, &VNValueEdit::valueChanged);
    edit.selectAll();
    QTest::keyClicks(&edit, "3,x");
    QTest::keyClick(&edit, Qt::Key_Return);
    QVERIFY(edit.hasInputError());
    QCOMPARE(edit.text(), QStringLiteral("3,x"));
    QVERIFY(edit.toolTip().contains("is not a number"));
    QCOMPARE(edit.value(), 3.0);
    QVERIFY(changed.isEmpty());
    edit.setValue(4.0);
    QVERIFY(!edit.hasInputError());
    QCOMPARE(edit.text(), QStringLiteral("4.00"));
    QVERIFY(edit.toolTip().isEmpty());
}

void TestValueWidgets::labelShowsUnitValueThroughFormatter()
{
    VNLabel label;
    label.setUnitText("Length: _UNIT_");
    label.setUnitValue(25.4, "mm");
    QCOMPARE(label.text(), QStringLiteral("Length: 25.40 mm"));
    label.formatter()->setDisplayUnit("inch");
    QCOMPARE(label.text(), QStringLiteral("Length: 1.00 inch"));
    label.formatter()->setDecimals(0);
    QCOMPARE(label.text(), QStringLiteral("Length: 1 inch"));
    label.setUnitText(QString());
    QCOMPARE(label.text(), QStringLiteral("1 inch"));
}

void TestValueWidgets::labelUsesOwnTextAsPattern()
{
    VNLabel label("_UNIT_ wide");
    label.setUnitValue(3.0, "m");
    QCOMPARE(label.text(), QStringLiteral("3.00 m wide"));
    VNLabel plain("plain");
    plain.setUnitValue(3.0, "m");
    QCOMPARE(plain.text(), QStringLiteral("3.00 m"));
}

void TestValueWidgets::labelSlidesItsBuddy()
{
    auto drag = [](QWidget* label, int distance) {
        auto send = [label](QEvent::Type type, QPoint position, Qt::MouseButton button, Qt::MouseButtons buttons) {
            QMouseEvent event(type, position, label->mapToGlobal(position), button, buttons, Qt::NoModifier);
            QApplication::sendEvent(label, &event);
        };
        send(QEvent::MouseButtonPress, QPoint(10, 5), Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, QPoint(10 + distance, 6), Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, QPoint(10 + distance, 6), Qt::LeftButton, Qt::NoButton);
    };
    VNLabel label("V-SliderLabel");
    VNValueEdit edit;
    label.setBuddy(&edit);
    QSignalSpy changed(&edit, &VNValueEdit::valueChanged);
    drag(&label, 20);
    QCOMPARE(edit.value(), 5.0);
    QVERIFY(!changed.isEmpty());

    VNDoubleSpinBox field;
    field.setSingleStep(0.5);
    label.setBuddy(&field);
    QSignalSpy finished(&field, &QAbstractSpinBox::editingFinished);
    drag(&label, 40);
    QCOMPARE(field.value(), 5.0);
    QCOMPARE(finished.count(), 1);
    drag(&label, -8);
    QCOMPARE(field.value(), 4.0);

    // A disabled buddy is not moved.
    field.setEnabled(false);
    drag(&label, 40);
    QCOMPARE(field.value(), 4.0);
}

void TestValueWidgets::valueEditStepsWithArrowKeys()
{
    VNValueEdit edit;
    edit.setSingleStep(0.25);
    QTest::keyClick(&edit, Qt::Key_Up);
    QTest::keyClick(&edit, Qt::Key_Up);
    QTest::keyClick(&edit, Qt::Key_Down);
    QCOMPARE(edit.value(), 0.25);
}

void TestValueWidgets::colorDisplayPaintsOneOrTwoSides()
{
    ColorDisplay display;
    display.resize(60, 21);
    QSignalSpy twoSidesChanged(&display, &ColorDisplay::twoSidesChanged);
    display.setColor(Qt::red);
    display.setColorLeft(Qt::green);
    display.setColorRight(Qt::blue);
    QImage image = display.grab().toImage();
    QCOMPARE(image.pixelColor(10, 10), QColor(Qt::red));
    QCOMPARE(image.pixelColor(50, 10), QColor(Qt::red));
    QVERIFY(image.pixelColor(0, 10) != QColor(Qt::red)); // the frame

    display.setTwoSides(true);
    QCOMPARE(twoSidesChanged.count(), 1);
    image = display.grab().toImage();
    QCOMPARE(image.pixelColor(10, 10), QColor(Qt::green));
    QCOMPARE(image.pixelColor(50, 10), QColor(Qt::blue));
    QCOMPARE(display.color(), QColor(Qt::red)); // kept for the single side
}

void TestValueWidgets::colorDisplayDisabledLook()
{
    ColorDisplay display;
    display.resize(60, 21);
    display.setColor(Qt::black);
    display.setEnabled(false);
    const QColor shown = display.grab().toImage().pixelColor(30, 10);
    QVERIFY(shown != QColor(Qt::black));
    QVERIFY(shown.lightness() > 60);
}

QTEST_MAIN(TestValueWidgets)
#include "tst_valuewidgets.moc"
