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
template<typename T>
T* child(QWidget* dialog, const char* name)
{
    T* found = dialog->findChild<T*>(QLatin1String(name));
    if (!found)
        qFatal("no %s", name);
    return found;
}

QString shownText(VNDoubleSpinBox* field)
{
    return field->findChild<QLineEdit*>()->text();
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

    void formTexts_data();
    void formTexts();
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

void TestValueFieldsDialog::formTexts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("decimals") << "label_5"
                              << "decimals";
    QTest::newRow("precision") << "label_6"
                               << "precesion";
    QTest::newRow("field width") << "label_11"
                                 << "filedWidth";
    QTest::newRow("wrapping") << "label_19"
                              << "Wrapp values";
    QTest::newRow("value edit") << "label_7"
                                << "VnValueEdit";
    QTest::newRow("slider label") << "sliderLabel"
                                  << "V-SliderLabel";
    QTest::newRow("read write") << "label_22"
                                << "Read/Write";
    QTest::newRow("stepping") << "label_12"
                              << "stepping";
    QTest::newRow("global unit") << "useGlobalUnit"
                                 << "Use Global Unit";
    QTest::newRow("need input") << "needInput"
                                << "Need Input (red)";
    QTest::newRow("label text") << "labelText"
                                << "_UNIT_";
    QTest::newRow("radio value") << "radioValueUnit"
                                 << "ValueUnit";
    QTest::newRow("radio display") << "radioDisplayUnit"
                                   << "DisplayUnit";
}

void TestValueFieldsDialog::formTexts()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    TestValueFields dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("TestValueFields"));
    QCOMPARE(dialog.objectName(), QStringLiteral("TestValueFieldsClass"));
    QWidget* widget = dialog.findChild<QWidget*>(name);
    QVERIFY(widget);
    QCOMPARE(widget->property("text").toString(), text);
}

void TestValueFieldsDialog::comboBoxesAreFilled()
{
    TestValueFields dialog(nullptr);
    const QMetaEnum units = QMetaEnum::fromType<UnitConverter::Unit>();
    for (const char* name : {"valueUnitBox", "displayUnitBox"}) {
        auto* box = child<QComboBox>(&dialog, name);
        QCOMPARE(box->count(), units.keyCount());
        for (int i = 0; i < units.keyCount(); ++i)
            QCOMPARE(box->itemText(i), UnitConverter::UnitFromTag(units.value(i)));
    }
    auto* notation = child<QComboBox>(&dialog, "outputNotation");
    QCOMPARE(notation->count(), 4);
    QCOMPARE(notation->itemText(3), QStringLiteral("EngineeringNotation"));
    QCOMPARE(notation->itemData(3).toInt(), int(VNFormatter::EngineeringNotation));
    QCOMPARE(child<QComboBox>(&dialog, "widgetWidth")->currentText(), QStringLiteral("Ignore"));
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "factor")->value(), 1.0);
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
