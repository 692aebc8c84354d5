#include "TestValueFields.h"

#include <UnitConverter.h>
#include <VNDoubleSpinBox.h>
#include <VNFormatter.h>
#include <VNWidgetStatus.h>

#include <QMetaEnum>
#include <QSignalBlocker>

namespace {
// Finished edits of the field under test, counted over every dialog of the process.
int finishedEditCount = 0;
} // namespace

TestValueFields::TestValueFields(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    ui.setupUi(this);
    QtCompat::autoConnectIndexText(ui.valueUnitBox, this, &TestValueFields::on_valueUnitBox_currentIndexChanged);
    QtCompat::autoConnectIndexText(ui.displayUnitBox, this, &TestValueFields::on_displayUnitBox_currentIndexChanged);
    VNDoubleSpinBox* field = ui.vnDoubleSpinBox;
    field->setUseGlobalDisplayUnit(true);
    connect(field->formatter(), SIGNAL(settingsChanged()), this, SLOT(onSpinBoxSettingsChnaged()));
    fillUnitBox(ui.valueUnitBox);
    fillUnitBox(ui.displayUnitBox);
    ui.comboCorrectionMode->setCurrentIndex(field->correctionMode());
    onSpinBoxSettingsChnaged();
    ui.widgetWidth->setCurrentIndex(field->inputFieldWidth() + 2);
    ui.spinIncrement->setValue(field->singleStep());
    ui.wrapping->setChecked(field->wrapping());
    ui.factor->setValue(field->factor());
    fillOutputNotation();
    ui.fitText->setChecked(field->fitText());
    ui.vnUnitLabel->setUnitText(ui.labelText->text());
    ui.stepRounding->setChecked(field->stepRounding());
}

TestValueFields::~TestValueFields() = default;

void TestValueFields::fillUnitBox(QComboBox* box)
{
    const QSignalBlocker blocker(box);
    const QMetaEnum units = QMetaEnum::fromType<UnitConverter::Unit>();
    for (int i = 0; i < units.keyCount(); ++i)
        box->addItem(UnitConverter::UnitFromTag(units.value(i)));
    box->setCurrentIndex(0);
}

void TestValueFields::fillOutputNotation()
{
    VNFormatter* formatter = ui.vnDoubleSpinBox->formatter();
    const QSignalBlocker blocker(ui.outputNotation);
    ui.outputNotation->clear();
    const QMetaEnum notations = QMetaEnum::fromType<VNFormatter::OutputNotation>();
    for (int i = 0; i < notations.keyCount(); ++i)
        ui.outputNotation->addItem(QString::fromLatin1(notations.key(i)), notations.value(i));
    ui.outputNotation->setCurrentIndex(ui.outputNotation->findData(int(formatter->notation())));
}

void TestValueFields::onSpinBoxSettingsChnaged()
{
    VNDoubleSpinBox* field = ui.vnDoubleSpinBox;
    VNFormatter* formatter = field->formatter();
    {
        const QSignalBlocker blocker(ui.useGlobalUnit);
        ui.useGlobalUnit->setChecked(formatter->isGlobalOn());
    }
    {
        const QSignalBlocker minimumBlocker(ui.minimum);
        const QSignalBlocker maximumBlocker(ui.maximum);
        ui.minimum->setValue(field->minimum());
        ui.maximum->setValue(field->maximum());
    }
    {
        const QSignalBlocker decimalsBlocker(ui.decimals);
        const QSignalBlocker precisionBlocker(ui.precission);
        const QSignalBlocker widthBlocker(ui.fieldWidth);
        ui.decimals->setValue(formatter->decimals());
        ui.precission->setValue(formatter->precision());
        ui.fieldWidth->setValue(formatter->fieldWidth());
    }
    {
        const QSignalBlocker emptyBlocker(ui.empty);
        const QSignalBlocker enabledBlocker(ui.sigmaEnabled);
        const QSignalBlocker activeBlocker(ui.sigmaActive);
        ui.empty->setChecked(formatter->isEmpty());
        ui.sigmaEnabled->setChecked(field->isSigmaEnabled());
        ui.sigmaActive->setChecked(field->isSigmaActive());
    }
    {
        const QSignalBlocker boxBlocker(ui.valueUnitBox);
        const QSignalBlocker editBlocker(ui.valueUnit);
        ui.valueUnitBox->setCurrentIndex(ui.valueUnitBox->findText(formatter->valueUnit(), Qt::MatchFixedString));
        ui.valueUnit->setText(formatter->valueUnit());
    }
    {
        const QSignalBlocker boxBlocker(ui.displayUnitBox);
        const QSignalBlocker editBlocker(ui.displayUnit);
        ui.displayUnitBox->setCurrentIndex(ui.displayUnitBox->findText(formatter->displayUnit(), Qt::MatchFixedString));
        ui.displayUnit->setText(formatter->displayUnit());
    }
    ui.vnUnitLabel->setUnitValue(field->value(), formatter->valueUnit());
    ui.suffix->setText(field->suffix());
    ui.prefix->setText(field->prefix());
    {
        const QSignalBlocker blocker(ui.outputNotation);
        ui.outputNotation->setCurrentIndex(ui.outputNotation->findData(int(formatter->notation())));
    }
    updateReadOuts();
}

void TestValueFields::updateReadOuts()
{
    const double value = ui.vnDoubleSpinBox->value();
    ui.getValueV->setValue(value);
    ui.getValueD->setValue(ui.vnDoubleSpinBox->formatter()->valueToDisplayValue(value));
}

void TestValueFields::on_empty_toggled()
{
    ui.vnDoubleSpinBox->setEmpty(ui.empty->isChecked());
}

void TestValueFields::on_valueUnit_editingFinished()
{
    ui.vnDoubleSpinBox->setValueUnit(ui.valueUnit->text());
}

void TestValueFields::on_valueUnit_textChanged(const QString& text)
{
    flagUnitFields(ui.valueUnit, ui.displayUnit, text);
}

void TestValueFields::on_displayUnit_editingFinished()
{
    ui.vnDoubleSpinBox->setDisplayUnit(ui.displayUnit->text(), true);
}

void TestValueFields::on_displayUnit_textChanged(const QString& text)
{
    flagUnitFields(ui.displayUnit, ui.valueUnit, text);
}

void TestValueFields::flagUnitFields(QLineEdit* edited, QLineEdit* other, const QString& text)
{
    const bool isUnit = VNFormatter::isUnit(text);
    VNWidgetStatus::setStatusProperty(edited, VNWidgetStatus::needInput, !isUnit);
    if (!isUnit)
        return;
    const bool clash = !other->text().isEmpty() && !VNFormatter::isConvertable(text, other->text());
    VNWidgetStatus::setStatusProperty(ui.valueUnit, VNWidgetStatus::different, clash);
    VNWidgetStatus::setStatusProperty(ui.displayUnit, VNWidgetStatus::different, clash);
}

void TestValueFields::on_valueUnitBox_currentIndexChanged(const QString& text)
{
    ui.valueUnit->setText(text);
    ui.vnDoubleSpinBox->setValueUnit(text);
}

void TestValueFields::on_displayUnitBox_currentIndexChanged(const QString& text)
{
    if (!ui.vnDoubleSpinBox->formatter()->isGlobalOn())
        ui.vnDoubleSpinBox->setDisplayUnit(text, true);
    ui.displayUnit->setText(text);
}

void TestValueFields::on_widgetWidth_currentIndexChanged(int index)
{
    ui.vnDoubleSpinBox->setInputFieldWidth(index - 2);
    updateGeometry();
}

void TestValueFields::on_sigmaEnabled_toggled()
{
    ui.vnDoubleSpinBox->setSigmaEnabled(ui.sigmaEnabled->isChecked());
}

void TestValueFields::on_sigmaActive_toggled()
{
    ui.vnDoubleSpinBox->setSigmaActive(ui.sigmaActive->isChecked());
}

void TestValueFields::on_sigmaDefined_toggled()
{
    // Kept empty: the field has no "sigma defined" state to show.
}

void TestValueFields::on_needInput_toggled()
{
    ui.vnDoubleSpinBox->setNeedInputStatus(ui.needInput->isChecked());
}

void TestValueFields::on_readOnly_toggled()
{
    ui.vnDoubleSpinBox->setReadOnly(ui.readOnly->isChecked());
}

void TestValueFields::on_wrapping_toggled()
{
    ui.vnDoubleSpinBox->setWrapping(ui.wrapping->isChecked());
}

void TestValueFields::on_setValue_editingFinished()
{
    VNDoubleSpinBox* field = ui.vnDoubleSpinBox;
    field->setValue(ui.setValue->value());
    ui.vnUnitLabel->setUnitValue(field->value(), field->valueUnit());
    updateReadOuts();
}

void TestValueFields::on_vnDoubleSpinBox_editingFinished()
{
    updateReadOuts();
    {
        const QSignalBlocker blocker(ui.setValue);
        ui.setValue->setValue(ui.vnDoubleSpinBox->value());
    }
    ++finishedEditCount;
    ui.labelSigCalls->setText(QString::number(finishedEditCount));
}

void TestValueFields::on_maximum_editingFinished()
{
    if (ui.radioValueUnit->isChecked())
        ui.vnDoubleSpinBox->setMaximum(ui.maximum->value());
    else
        ui.vnDoubleSpinBox->setMaximumInDisplayUnit(ui.maximum->value());
}

void TestValueFields::on_minimum_editingFinished()
{
    if (ui.radioValueUnit->isChecked())
        ui.vnDoubleSpinBox->setMinimum(ui.minimum->value());
    else
        ui.vnDoubleSpinBox->setMinimumInDisplayUnit(ui.minimum->value());
}

void TestValueFields::on_radioValueUnit_toggled(bool checked)
{
    VNDoubleSpinBox* field = ui.vnDoubleSpinBox;
    if (field->formatter()->displayUnit() == field->formatter()->valueUnit())
        return;
    const QSignalBlocker minimumBlocker(ui.minimum);
    const QSignalBlocker maximumBlocker(ui.maximum);
    ui.minimum->setValue(checked ? field->minimum() : field->minimumInDisplayUnit());
    ui.maximum->setValue(checked ? field->maximum() : field->maximumInDisplayUnit());
}

void TestValueFields::on_comboCorrectionMode_currentIndexChanged(int index)
{
    ui.vnDoubleSpinBox->setCorrectionMode(static_cast<QAbstractSpinBox::CorrectionMode>(index));
}

void TestValueFields::on_spinIncrement_editingFinished()
{
    ui.vnDoubleSpinBox->setSingleStep(ui.spinIncrement->value());
}

void TestValueFields::on_suffix_editingFinished()
{
    ui.vnDoubleSpinBox->setSuffix(ui.suffix->text());
}

void TestValueFields::on_prefix_editingFinished()
{
    ui.vnDoubleSpinBox->setPrefix(ui.prefix->text());
}

void TestValueFields::on_factor_editingFinished()
{
    ui.vnDoubleSpinBox->setFactor(ui.factor->value());
}

void TestValueFields::on_useGlobalUnit_toggled()
{
    ui.vnDoubleSpinBox->setDisplayUnit(ui.displayUnit->text(), true);
    ui.vnDoubleSpinBox->setUseGlobalDisplayUnit(ui.useGlobalUnit->isChecked());
}

void TestValueFields::on_outputNotation_currentIndexChanged(int index)
{
    ui.vnDoubleSpinBox->formatter()->setNotation(index);
}

void TestValueFields::on_fitText_toggled()
{
    ui.vnDoubleSpinBox->setFitText(ui.fitText->isChecked());
}

void TestValueFields::on_labelText_editingFinished()
{
    ui.vnUnitLabel->setUnitText(ui.labelText->text());
}

void TestValueFields::on_decimals_editingFinished()
{
    takeDecimals();
}

void TestValueFields::on_decimals_valueChanged(int value)
{
    Q_UNUSED(value)
    takeDecimals();
}

void TestValueFields::takeDecimals()
{
    VNFormatter* formatter = ui.vnDoubleSpinBox->formatter();
    if (ui.decimals->value() != formatter->decimals())
        formatter->setDecimals(ui.decimals->value());
}

void TestValueFields::on_precission_editingFinished()
{
    takePrecision();
}

void TestValueFields::on_precission_valueChanged(int value)
{
    Q_UNUSED(value)
    takePrecision();
}

void TestValueFields::takePrecision()
{
    VNFormatter* formatter = ui.vnDoubleSpinBox->formatter();
    if (ui.precission->value() != formatter->precision())
        formatter->setPrecision(ui.precission->value());
}

void TestValueFields::on_fieldWidth_editingFinished()
{
    ui.vnDoubleSpinBox->formatter()->setFieldWidth(ui.fieldWidth->value());
}

void TestValueFields::on_stepRounding_toggled()
{
    ui.vnDoubleSpinBox->setStepRounding(ui.stepRounding->isChecked());
}
