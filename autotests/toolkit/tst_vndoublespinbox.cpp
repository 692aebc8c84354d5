#include "QtCompat.h"
#include "VNDoubleSpinBox.h"
#include "VNFormatter.h"
#include "VNStatusPalette.h"

#include <QApplication>
#include <QLineEdit>
#include <QLocale>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

namespace {
// The text part of the field, where users type and drag.
QLineEdit* editOf(VNDoubleSpinBox* field)
{
    return field->findChild<QLineEdit*>();
}

// Presses, moves and releases the left button over the field's text, as a user's mouse would.
class MouseOnEdit
{
public:
    explicit MouseOnEdit(VNDoubleSpinBox* field)
        : m_edit(editOf(field))
    {}

    void press(QPoint position, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        send(QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton, modifiers);
    }
    void move(QPoint position, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        send(QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton, modifiers);
    }
    void release(QPoint position)
    {
        send(QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    }

private:
    void send(QEvent::Type type, QPoint position, Qt::MouseButton button, Qt::MouseButtons buttons,
              Qt::KeyboardModifiers modifiers)
    {
        QMouseEvent event(type, position, m_edit->mapToGlobal(position), button, buttons, modifiers);
        QApplication::sendEvent(m_edit, &event);
    }

    QLineEdit* m_edit;
};

// A shown field holding 10 of 0 to 100, for dragging over.
void showAtTen(VNDoubleSpinBox& field)
{
    field.setRange(0, 100);
    field.setValue(10);
    field.resize(160, 28);
    field.show();
}

void typeAndConfirm(VNDoubleSpinBox* field, const QString& text)
{
    editOf(field)->selectAll();
    QTest::keyClicks(editOf(field), text);
    QTest::keyClick(field, Qt::Key_Return);
}
} // namespace

class TestVNDoubleSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void showsValueInDisplayUnit();
    void typedTextIsReadInDisplayUnit_data();
    void typedTextIsReadInDisplayUnit();
    void unreadableTextKeepsTheValue();
    void separatorsNeverChangeMagnitude();
    void negativeFactorLimitsInDisplayUnit();
    void limitsInEitherUnit_data();
    void limitsInEitherUnit();
    void emptyStateShowsNothingAndKeepsValue();
    void typingEndsEmptyState();
    void stepRounding_data();
    void stepRounding();
    void wrappingStepsToOtherLimit();
    void followsGlobalDisplayUnit();
    void factorScalesShownNumber();
    void virtualSliderDragChangesValue();
    void virtualSliderModifiersAndLimits();
    void clickWithoutDragLeavesValue();
    void readOnlyFieldDoesNotSlide();
    void inputFieldSizeFromProperty();
    void prefixAndSuffixSurroundTheUnit();
    void sigmaMarkerIsPainted();
    void paintFrameDrawsHighlight();
};

void TestVNDoubleSpinBox::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void TestVNDoubleSpinBox::cleanup()
{
    const QMetaEnum quantities = QMetaEnum::fromType<UnitConverter::Quantity>();
    for (int i = 0; i < quantities.keyCount(); ++i)
        VNFormatter::setGlobalDisplayUnit(UnitConverter::Quantity(quantities.value(i)), QString());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestVNDoubleSpinBox::showsValueInDisplayUnit()
{
    VNDoubleSpinBox field;
    field.setRange(0, 1000);
    field.setValueUnit("mm");
    field.setDisplayUnit("inch", true);
    field.setValue(25.4);
    QCOMPARE(editOf(&field)->text(), QStringLiteral("1.00 inch"));
    QCOMPARE(field.value(), 25.4);
    QCOMPARE(field.valueInDisplayUnit(), 1.0);

    // Changing the display unit re-renders the same value.
    field.setDisplayUnit("cm", true);
    QCOMPARE(editOf(&field)->text(), QStringLiteral("2.54 cm"));
    QCOMPARE(field.value(), 25.4);
}

void TestVNDoubleSpinBox::typedTextIsReadInDisplayUnit_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("number in display unit") << "2" << 50.8 << "2.00 inch";
    QTest::newRow("number with value unit") << "127 mm" << 127.0 << "5.00 inch";
    QTest::newRow("number with other length unit") << "1 cm" << 10.0 << "0.39 inch";
}

void TestVNDoubleSpinBox::typedTextIsReadInDisplayUnit()
{
    QFETCH(QString, typed);
    QFETCH(double, value);
    QFETCH(QString, shown);
    VNDoubleSpinBox field;
    field.setRange(0, 1000);
    field.setValueUnit("mm");
    field.setDisplayUnit("inch", true);
    QSignalSpy finished(&field, &QAbstractSpinBox::editingFinished);
    typeAndConfirm(&field, typed);
    QCOMPARE(field.value(), value);
    QCOMPARE(editOf(&field)->text(), shown);
    QCOMPARE(finished.count(), 1);
}

void TestVNDoubleSpinBox::unreadableTextKeepsTheValue()
{
    VNDoubleSpinBox field;
    field.setValueUnit("mm");
    field.setValue(12.0);
    typeAndConfirm(&field, "abc");
    QCOMPARE(field.value(), 12.0);
    QCOMPARE(editOf(&field)->text(), QStringLiteral("12.00 mm"));
    // A force is no length: the value stays.
    typeAndConfirm(&field, "3 N");
    QCOMPARE(field.value(), 12.0);
}

void TestVNDoubleSpinBox::separatorsNeverChangeMagnitude()
{
    struct GermanSession
    {
        const QLocale before;
        GermanSession() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
        ~GermanSession() { QLocale::setDefault(before); }
    } german;
    VNDoubleSpinBox field;
    field.setDecimals(3);
    field.setRange(0, 10000);
    field.setValue(7.0);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    typeAndConfirm(&field, "0.125");
    QCOMPARE(field.value(), 0.125);
    typeAndConfirm(&field, "1,5");
    QCOMPARE(field.value(), 1.5);
    // "1.500" is fifteen hundred to some readers and one and a half to others: refused, with a
    // tool tip, keeping the value.
    typeAndConfirm(&field, "1.500");
    QCOMPARE(field.value(), 1.5);
    QVERIFY2(QToolTip::text().contains(QStringLiteral("1.500")), qPrintable(QToolTip::text()));
    QCOMPARE(editOf(&field)->text(), QStringLiteral("1,500"));
}

void TestVNDoubleSpinBox::negativeFactorLimitsInDisplayUnit()
{
    VNDoubleSpinBox field;
    field.setValueUnit("mm");
    field.setDisplayUnit("inch", true);
    field.setFactor(-2.0);
    field.setMinimumInDisplayUnit(-4.0);
    field.setMaximumInDisplayUnit(-1.0);
    QCOMPARE(field.minimum(), 12.7);
    QCOMPARE(field.maximum(), 50.8);
    QCOMPARE(field.minimumInDisplayUnit(), -4.0);
    QCOMPARE(field.maximumInDisplayUnit(), -1.0);
}

void TestVNDoubleSpinBox::limitsInEitherUnit_data()
{
    QTest::addColumn<bool>("inDisplayUnit");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("expectedMinimumMm");
    QTest::addColumn<double>("expectedMaximumMm");
    QTest::newRow("value unit") << false << 12.7 << 50.8 << 12.7 << 50.8;
    QTest::newRow("display unit") << true << 0.5 << 2.0 << 12.7 << 50.8;
}

void TestVNDoubleSpinBox::limitsInEitherUnit()
{
    QFETCH(bool, inDisplayUnit);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, expectedMinimumMm);
    QFETCH(double, expectedMaximumMm);
    VNDoubleSpinBox field;
    field.setValueUnit("mm");
    field.setDisplayUnit("inch", true);
    if (inDisplayUnit) {
        field.setMinimumInDisplayUnit(minimum);
        field.setMaximumInDisplayUnit(maximum);
    } else {
        field.setMinimum(minimum);
        field.setMaximum(maximum);
    }
    QCOMPARE(field.minimum(), expectedMinimumMm);
    QCOMPARE(field.maximum(), expectedMaximumMm);
    QCOMPARE(field.minimumInDisplayUnit(), 0.5);
    QCOMPARE(field.maximumInDisplayUnit(), 2.0);

    // A typed value beyond the maximum does not get through.
    field.setValue(25.4);
    typeAndConfirm(&field, "3");
    QCOMPARE(field.value(), 25.4);
    field.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    typeAndConfirm(&field, "3");
    QCOMPARE(field.value(), 50.8);
}

void TestVNDoubleSpinBox::emptyStateShowsNothingAndKeepsValue()
{
    VNDoubleSpinBox field;
    field.setValueUnit("mm");
    field.setPrefix("d = ");
    field.setValue(12.5);
    field.setEmpty(true);
    QVERIFY(field.isEmpty());
    QVERIFY(field.formatter()->isEmpty());
    QCOMPARE(editOf(&field)->text(), QString());
    QCOMPARE(field.value(), 12.5);
    // Focus leaving an untouched empty field leaves it empty.
    QTest::keyClick(&field, Qt::Key_Return);
    QVERIFY(field.isEmpty());
    QCOMPARE(field.value(), 12.5);
    field.setEmpty(false);
    QCOMPARE(editOf(&field)->text(), QStringLiteral("d = 12.50 mm"));
}

void TestVNDoubleSpinBox::typingEndsEmptyState()
{
    VNDoubleSpinBox field;
    field.setValueUnit("mm");
    field.setEmpty(true);
    QSignalSpy changed(&field, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    typeAndConfirm(&field, "7.5");
    QVERIFY(!field.isEmpty());
    QCOMPARE(field.value(), 7.5);
    QCOMPARE(editOf(&field)->text(), QStringLiteral("7.50 mm"));
    QVERIFY(!changed.isEmpty());
}

void TestVNDoubleSpinBox::stepRounding_data()
{
    QTest::addColumn<bool>("rounding");
    QTest::addColumn<double>("start");
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("expected");
    QTest::newRow("plain up") << false << 1.23 << 1 << 1.73;
    QTest::newRow("plain down") << false << 1.23 << -1 << 0.73;
    QTest::newRow("rounded up") << true << 1.23 << 1 << 1.5;
    QTest::newRow("rounded down") << true << 1.23 << -1 << 1.0;
    QTest::newRow("rounded from grid") << true << 1.5 << 1 << 2.0;
    QTest::newRow("rounded two steps") << true << 1.23 << 2 << 2.0;
}

void TestVNDoubleSpinBox::stepRounding()
{
    QFETCH(bool, rounding);
    QFETCH(double, start);
    QFETCH(int, steps);
    QFETCH(double, expected);
    VNDoubleSpinBox field;
    field.setSingleStep(0.5);
    field.setStepRounding(rounding);
    field.setValue(start);
    field.stepBy(steps);
    QVERIFY2(qAbs(field.value() - expected) < 1e-9, qPrintable(QString::number(field.value())));
}

void TestVNDoubleSpinBox::wrappingStepsToOtherLimit()
{
    VNDoubleSpinBox field;
    field.setRange(0, 10);
    field.setValue(9.5);
    field.stepBy(1);
    QCOMPARE(field.value(), 10.0);
    field.setWrapping(true);
    field.stepBy(1);
    QCOMPARE(field.value(), 0.0);
}

void TestVNDoubleSpinBox::followsGlobalDisplayUnit()
{
    VNDoubleSpinBox field;
    field.setRange(0, 1000);
    field.setValueUnit("mm");
    field.setUseGlobalDisplayUnit(true);
    field.setValue(25.4);
    QCOMPARE(editOf(&field)->text(), QStringLiteral("25.40 mm"));

    QVERIFY(VNFormatter::setGlobalDisplayUnit(UnitConverter::Length, "cm"));
    QVERIFY(field.formatter()->isGlobalOn());
    QCOMPARE(editOf(&field)->text(), QStringLiteral("2.54 cm"));
    QCOMPARE(field.value(), 25.4);

    // A unit set for this field alone wins over the global one.
    field.setDisplayUnit("inch", true);
    QVERIFY(!field.formatter()->isGlobalOn());
    QCOMPARE(editOf(&field)->text(), QStringLiteral("1.00 inch"));
}

void TestVNDoubleSpinBox::factorScalesShownNumber()
{
    VNDoubleSpinBox field;
    field.setValue(0.5);
    QSignalSpy factorChanged(&field, &VNDoubleSpinBox::factorChanged);
    field.setFactor(100.0);
    QCOMPARE(editOf(&field)->text(), QStringLiteral("50.00"));
    QCOMPARE(factorChanged.count(), 1);
    typeAndConfirm(&field, "25");
    QCOMPARE(field.value(), 0.25);

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("other than 0"));
    field.setFactor(0.0);
    QCOMPARE(field.factor(), 100.0);

    // A negative factor turns the shown range around, and the arrows follow the shown number.
    field.setRange(0.0, 1.0);
    field.setFactor(-10.0);
    QCOMPARE(editOf(&field)->text(), QStringLiteral("-2.50"));
    QCOMPARE(field.minimumInDisplayUnit(), -10.0);
    QCOMPARE(field.maximumInDisplayUnit(), 0.0);
    field.stepUp();
    QCOMPARE(editOf(&field)->text(), QStringLiteral("-1.50"));
}

void TestVNDoubleSpinBox::virtualSliderDragChangesValue()
{
    VNDoubleSpinBox field;
    showAtTen(field);
    QSignalSpy finished(&field, &QAbstractSpinBox::editingFinished);
    QSignalSpy changed(&field, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    MouseOnEdit mouse(&field);
    mouse.press(QPoint(40, 10));
    mouse.move(QPoint(44, 10));
    QVERIFY(field.isSliding());
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
    mouse.move(QPoint(80, 11)); // 40 pixels to the right: ten steps
    QCOMPARE(field.value(), 20.0);
    mouse.move(QPoint(20, 11)); // back past the start: five steps down
    QCOMPARE(field.value(), 5.0);
    QVERIFY(finished.isEmpty());
    mouse.release(QPoint(20, 11));
    QVERIFY(!field.isSliding());
    QVERIFY(!QGuiApplication::overrideCursor());
    QCOMPARE(finished.count(), 1);
    QCOMPARE(changed.last().at(0).toDouble(), 5.0);
}

void TestVNDoubleSpinBox::virtualSliderModifiersAndLimits()
{
    VNDoubleSpinBox field;
    showAtTen(field);
    MouseOnEdit mouse(&field);
    mouse.press(QPoint(40, 10));
    mouse.move(QPoint(80, 10), Qt::ShiftModifier);
    QCOMPARE(field.value(), 11.0); // ten tenth steps
    mouse.move(QPoint(80, 10), Qt::ControlModifier);
    QCOMPARE(field.value(), 100.0); // ten steps of ten, held at the maximum
    mouse.release(QPoint(80, 10));
}

void TestVNDoubleSpinBox::clickWithoutDragLeavesValue()
{
    VNDoubleSpinBox field;
    showAtTen(field);
    QSignalSpy finished(&field, &QAbstractSpinBox::editingFinished);
    MouseOnEdit mouse(&field);
    mouse.press(QPoint(40, 10));
    mouse.move(QPoint(42, 10)); // a trembling hand
    mouse.move(QPoint(40, 20)); // or a vertical movement
    mouse.release(QPoint(40, 20));
    QVERIFY(!field.isSliding());
    QCOMPARE(field.value(), 10.0);
    QVERIFY(finished.isEmpty());
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestVNDoubleSpinBox::readOnlyFieldDoesNotSlide()
{
    VNDoubleSpinBox field;
    showAtTen(field);
    QSignalSpy readOnlyChanged(&field, &VNDoubleSpinBox::readOnlyChanged);
    field.setReadOnly(true);
    QCOMPARE(readOnlyChanged.count(), 1);
    QVERIFY(editOf(&field)->isReadOnly());
    MouseOnEdit mouse(&field);
    mouse.press(QPoint(40, 10));
    mouse.move(QPoint(90, 10));
    mouse.release(QPoint(90, 10));
    QCOMPARE(field.value(), 10.0);
}

void TestVNDoubleSpinBox::inputFieldSizeFromProperty()
{
    QVERIFY(QtCompat::metaTypeId("VNDoubleSpinBox::InputFieldSize") != QMetaType::UnknownType);
    VNDoubleSpinBox field;
    QCOMPARE(field.inputFieldSize(), VNDoubleSpinBox::Ignore);
    QVERIFY(field.setProperty("inputFieldSize", QVariant::fromValue(VNDoubleSpinBox::Small)));
    QCOMPARE(field.inputFieldWidth(), 0);
    QCOMPARE(field.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    const int small = field.sizeHint().width();
    field.setInputFieldWidth(VNDoubleSpinBox::Large);
    const int large = field.sizeHint().width();
    field.setInputFieldWidth(VNDoubleSpinBox::Medium);
    const int medium = field.sizeHint().width();
    QVERIFY(small < medium && medium < large);

    // Content follows the shown text.
    field.setInputFieldWidth(VNDoubleSpinBox::Content);
    field.setMaximum(1e9);
    const int shortText = field.sizeHint().width();
    field.setValue(123456789);
    QVERIFY(field.sizeHint().width() > shortText);

    field.setInputFieldWidth(VNDoubleSpinBox::Ignore);
    QCOMPARE(field.sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("is no input field size"));
    field.setInputFieldWidth(7);
    QCOMPARE(field.inputFieldSize(), VNDoubleSpinBox::Ignore);
}

void TestVNDoubleSpinBox::prefixAndSuffixSurroundTheUnit()
{
    VNDoubleSpinBox field;
    field.setRange(-100, 100);
    field.setValueUnit("deg");
    field.setPrefix("a = ");
    field.setSuffix(" (max)");
    field.setValue(45);
    QCOMPARE(editOf(&field)->text(), QStringLiteral("a = 45.00 deg (max)"));
    typeAndConfirm(&field, "a = -30 deg (max)");
    QCOMPARE(field.value(), -30.0);
}

void TestVNDoubleSpinBox::sigmaMarkerIsPainted()
{
    VNDoubleSpinBox field;
    field.resize(160, 28);
    const QImage plain = field.grab().toImage();
    field.setSigmaEnabled(true);
    QVERIFY(editOf(&field)->textMargins().left() > 0);
    const QImage available = field.grab().toImage();
    field.setSigmaActive(true);
    const QImage active = field.grab().toImage();
    QVERIFY(plain != available);
    QVERIFY(available != active);
    // The active marker fills its box with the colour of the sigma bar on the field's edge.
    const QPoint inMarker = editOf(&field)->geometry().topLeft() + QPoint(3, 4);
    QCOMPARE(active.pixelColor(inMarker), VNStatusPalette::sigmaColor(VNStatusPalette::SigmaLook::active));
    field.setSigmaEnabled(false);
    field.setSigmaActive(false);
    QCOMPARE(editOf(&field)->textMargins().left(), 0);
}

void TestVNDoubleSpinBox::paintFrameDrawsHighlight()
{
    VNDoubleSpinBox field;
    field.resize(160, 28);
    field.setPaintFrame(true);
    const QImage image = field.grab().toImage();
    QCOMPARE(image.pixelColor(0, 14), field.palette().color(QPalette::Highlight));
    QCOMPARE(image.pixelColor(80, 0), field.palette().color(QPalette::Highlight));
}

QTEST_MAIN(TestVNDoubleSpinBox)
#include "tst_vndoublespinbox.moc"
