#include "../TestSupport.h"
#include "TestValueFields.h"

#include <UnitConverter.h>
#include <VNDoubleSpinBox.h>
#include <VNFormatter.h>
#include <VNLabel.h>
#include <VNWidgetStatus.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMetaEnum>
#include <QRadioButton>
#include <QTest>

namespace {
QString shownText(QAbstractSpinBox* spinBox)
{
    return spinBox->findChild<QLineEdit*>()->text();
}

// Types into a line edit or spin box the way a user does, ending with Enter.
void typeInto(QWidget* widget, const QString& text)
{
    QWidget* target = widget;
    if (auto* edit = widget->findChild<QLineEdit*>())
        target = edit;
    if (auto* edit = qobject_cast<QLineEdit*>(target))
        edit->selectAll();
    QTest::keyClicks(target, text);
    QTest::keyClick(target, Qt::Key_Return);
}

void chooseText(QComboBox* box, const QString& text)
{
    box->setCurrentIndex(box->findText(text));
}
} // namespace

class TestValueFieldsDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void comboBoxesAreFilled();
    void unitBoxesSetUnits();
    void displayUnitBoxWithGlobalUnitOnlyChangesText();
    void unitFieldsAreFlagged_data();
    void unitFieldsAreFlagged();
    void setValueReachesFieldAndReadOuts();
    void editCounterIsSharedByDialogs();
    void inertControlsDoNothing();
    void limitsFollowRadioButtons();
    void radioButtonsIdleWithEqualUnits();
    void controlsReachField();
};

void TestValueFieldsDialog::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void TestValueFieldsDialog::cleanup()
{
    VNFormatter::setGlobalDisplayUnit(UnitConverter::Length, QString());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The unit boxes list every unit the converter knows; the notation box carries the formatter's values.
void TestValueFieldsDialog::comboBoxesAreFilled()
{
    TestValueFields dialog(nullptr);
    for (const char* name : {"valueUnitBox", "displayUnitBox"})
        QCOMPARE(child<QComboBox>(&dialog, name)->count(), QMetaEnum::fromType<UnitConverter::Unit>().keyCount());
    QCOMPARE(child<QComboBox>(&dialog, "outputNotation")->itemData(3).toInt(), int(VNFormatter::EngineeringNotation));
    QCOMPARE(child<QComboBox>(&dialog, "widgetWidth")->currentText(), QStringLiteral("Ignore"));
    QVERIFY(child<VNDoubleSpinBox>(&dialog, "vnDoubleSpinBox")->useGlobalDisplayUnit());
}

void TestValueFieldsDialog::unitBoxesSetUnits()
{
    TestValueFields dialog(nullptr);
    auto* field = child<VNDoubleSpinBox>(&dialog, "vnDoubleSpinBox");
    chooseText(child<QComboBox>(&dialog, "valueUnitBox"), "mm");
    QCOMPARE(child<QLineEdit>(&dialog, "valueUnit")->text(), QStringLiteral("mm"));
    QCOMPARE(field->valueUnit(), QStringLiteral("mm"));
    chooseText(child<QComboBox>(&dialog, "displayUnitBox"), "cm");
    QCOMPARE(field->displayUnit(), QStringLiteral("cm"));
    QCOMPARE(child<QLineEdit>(&dialog, "displayUnit")->text(), QStringLiteral("cm"));

    typeInto(child<QDoubleSpinBox>(&dialog, "setValue"), "25");
    QCOMPARE(shownText(field), QStringLiteral("2.50 cm"));
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "getValueV")->value(), 25.0);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "getValueD")->value(), 2.5);
}

void TestValueFieldsDialog::displayUnitBoxWithGlobalUnitOnlyChangesText()
{
    VNFormatter::setGlobalDisplayUnit(UnitConverter::Length, "cm");
    TestValueFields dialog(nullptr);
    auto* field = child<VNDoubleSpinBox>(&dialog, "vnDoubleSpinBox");
    chooseText(child<QComboBox>(&dialog, "valueUnitBox"), "mm");
    QVERIFY(child<QCheckBox>(&dialog, "useGlobalUnit")->isChecked());
    QCOMPARE(field->displayUnit(), QStringLiteral("cm"));

    chooseText(child<QComboBox>(&dialog, "displayUnitBox"), "inch");
    QCOMPARE(child<QLineEdit>(&dialog, "displayUnit")->text(), QStringLiteral("inch"));
    QCOMPARE(field->displayUnit(), QStringLiteral("cm"));

    // Switching the global unit off takes the unit in the text field.
    child<QCheckBox>(&dialog, "useGlobalUnit")->click();
    QCOMPARE(field->displayUnit(), QStringLiteral("inch"));
    QVERIFY(!child<QCheckBox>(&dialog, "useGlobalUnit")->isChecked());
}

void TestValueFieldsDialog::unitFieldsAreFlagged_data()
{
    QTest::addColumn<QString>("valueUnit");
    QTest::addColumn<QString>("displayUnit");
    QTest::addColumn<int>("valueStatus");
    QTest::addColumn<int>("displayStatus");
    QTest::newRow("both fine") << "mm"
                               << "cm" << 0 << 0;
    QTest::newRow("not a unit") << "mm"
                                << "furlong" << 0 << 32;
    QTest::newRow("not convertible") << "mm"
                                     << "N" << 1024 << 1024;
}

void TestValueFieldsDialog::unitFieldsAreFlagged()
{
    QFETCH(QString, valueUnit);
    QFETCH(QString, displayUnit);
    QFETCH(int, valueStatus);
    QFETCH(int, displayStatus);
    TestValueFields dialog(nullptr);
    auto* valueEdit = child<QLineEdit>(&dialog, "valueUnit");
    auto* displayEdit = child<QLineEdit>(&dialog, "displayUnit");
    valueEdit->clear();
    QTest::keyClicks(valueEdit, valueUnit);
    displayEdit->clear();
    QTest::keyClicks(displayEdit, displayUnit);
    QCOMPARE(int(VNWidgetStatus::statusFromProperty(valueEdit)), valueStatus);
    QCOMPARE(int(VNWidgetStatus::statusFromProperty(displayEdit)), displayStatus);
}

void TestValueFieldsDialog::setValueReachesFieldAndReadOuts()
{
    TestValueFields dialog(nullptr);
    auto* field = child<VNDoubleSpinBox>(&dialog, "vnDoubleSpinBox");
    chooseText(child<QComboBox>(&dialog, "valueUnitBox"), "deg");
    typeInto(child<QDoubleSpinBox>(&dialog, "setValue"), "45");
    QCOMPARE(field->value(), 45.0);
    QCOMPARE(child<VNLabel>(&dialog, "vnUnitLabel")->text(), QStringLiteral("45.00 deg"));
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "getValueV")->value(), 45.0);

    // An edit in the field comes back into "Set value".
    typeInto(field, "30");
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "setValue")->value(), 30.0);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "getValueV")->value(), 30.0);
}

void TestValueFieldsDialog::editCounterIsSharedByDialogs()
{
    TestValueFields first(nullptr);
    TestValueFields second(nullptr);
    auto* firstCount = child<QLabel>(&first, "labelSigCalls");
    auto* secondCount = child<QLabel>(&second, "labelSigCalls");
    typeInto(child<VNDoubleSpinBox>(&first, "vnDoubleSpinBox"), "5");
    const int afterFirst = firstCount->text().toInt();
    QVERIFY(afterFirst >= 1);
    typeInto(child<VNDoubleSpinBox>(&second, "vnDoubleSpinBox"), "6");
    QCOMPARE(secondCount->text().toInt(), afterFirst + 1);
    typeInto(child<VNDoubleSpinBox>(&first, "vnDoubleSpinBox"), "7");
    QCOMPARE(firstCount->text().toInt(), afterFirst + 2);
}

void TestValueFieldsDialog::inertControlsDoNothing()
{
    TestValueFields dialog(nullptr);
    dialog.resize(600, 1100);
    auto* field = child<VNDoubleSpinBox>(&dialog, "vnDoubleSpinBox");
    const QImage before = field->grab().toImage();
    const auto status = field->getWidgetStatus();
    const double step = field->singleStep();
    child<QCheckBox>(&dialog, "sigmaDefined")->click();
    child<QCheckBox>(&dialog, "logStepping")->click();
    typeInto(child<QSpinBox>(&dialog, "noOfSteps"), "50");
    QCOMPARE(field->getWidgetStatus(), status);
    QCOMPARE(field->singleStep(), step);
    QCOMPARE(field->grab().toImage(), before);
}

void TestValueFieldsDialog::limitsFollowRadioButtons()
{
    TestValueFields dialog(nullptr);
    auto* field = child<VNDoubleSpinBox>(&dialog, "vnDoubleSpinBox");
    auto* minimum = child<QDoubleSpinBox>(&dialog, "minimum");
    auto* maximum = child<QDoubleSpinBox>(&dialog, "maximum");
    chooseText(child<QComboBox>(&dialog, "valueUnitBox"), "mm");
    chooseText(child<QComboBox>(&dialog, "displayUnitBox"), "inch");
    typeInto(maximum, "254");
    QCOMPARE(field->maximum(), 254.0);

    child<QRadioButton>(&dialog, "radioDisplayUnit")->click();
    QCOMPARE(maximum->value(), 10.0);
    typeInto(minimum, "1");
    QCOMPARE(field->minimum(), 25.4);
    typeInto(maximum, "5");
    QCOMPARE(field->maximum(), 127.0);

    child<QRadioButton>(&dialog, "radioValueUnit")->click();
    QCOMPARE(minimum->value(), 25.4);
    QCOMPARE(maximum->value(), 127.0);
}

void TestValueFieldsDialog::radioButtonsIdleWithEqualUnits()
{
    TestValueFields dialog(nullptr);
    auto* maximum = child<QDoubleSpinBox>(&dialog, "maximum");
    chooseText(child<QComboBox>(&dialog, "valueUnitBox"), "mm");
    chooseText(child<QComboBox>(&dialog, "displayUnitBox"), "mm");
    maximum->setValue(123.0); // shown, not taken: no edit finished
    child<QRadioButton>(&dialog, "radioDisplayUnit")->click();
    QCOMPARE(maximum->value(), 123.0);
    child<QRadioButton>(&dialog, "radioValueUnit")->click();
    QCOMPARE(maximum->value(), 123.0);
}

void TestValueFieldsDialog::controlsReachField()
{
    TestValueFields dialog(nullptr);
    auto* field = child<VNDoubleSpinBox>(&dialog, "vnDoubleSpinBox");
    chooseText(child<QComboBox>(&dialog, "widgetWidth"), "Small");
    QCOMPARE(field->inputFieldSize(), VNDoubleSpinBox::Small);
    child<QCheckBox>(&dialog, "empty")->click();
    QCOMPARE(shownText(field), QString());
    child<QCheckBox>(&dialog, "empty")->click();
    child<QCheckBox>(&dialog, "sigmaActive")->click();
    QVERIFY(field->isSigmaActive());
    child<QCheckBox>(&dialog, "needInput")->click();
    QCOMPARE(field->property("statusLook").toString(), QStringLiteral("needInput"));
    child<QCheckBox>(&dialog, "readOnly")->click();
    QVERIFY(field->isReadOnly());
    child<QCheckBox>(&dialog, "stepRounding")->click();
    QVERIFY(field->stepRounding());
    typeInto(child<QSpinBox>(&dialog, "decimals"), "4");
    QCOMPARE(field->formatter()->decimals(), 4);
    QCOMPARE(shownText(field), QStringLiteral("0.0000"));
    typeInto(child<QLineEdit>(&dialog, "prefix"), "x=");
    QCOMPARE(field->prefix(), QStringLiteral("x="));
    chooseText(child<QComboBox>(&dialog, "outputNotation"), "ScientificNotation");
    QCOMPARE(field->formatter()->notation(), VNFormatter::ScientificNotation);
    typeInto(child<QLineEdit>(&dialog, "labelText"), "L = _UNIT_");
    QCOMPARE(child<VNLabel>(&dialog, "vnUnitLabel")->text(), QStringLiteral("L = 0.00"));
}

QTEST_MAIN(TestValueFieldsDialog)
#include "tst_valuefields.moc"
