#pragma once

#include "QtCompat.h"
#include "ui_TestValueFields.h"

#include <QDialog>

class QLineEdit;

// A property editor for one toolkit value field: each control on the left sets one property of
// the double spin box or of its number formatter, and the controls are read back whenever the
// formatter reports a change. A value edit, a unit label and a counter of finished edits sit beside it.
class TestValueFields : public QDialog
{
    Q_OBJECT

public:
    explicit TestValueFields(QWidget* parent);
    ~TestValueFields() override;

private slots:
    void on_empty_toggled();
    void onSpinBoxSettingsChnaged();
    void on_valueUnit_editingFinished();
    void on_valueUnit_textChanged(const QString& text);
    void on_displayUnit_editingFinished();
    void on_displayUnit_textChanged(const QString& text);
    void on_widgetWidth_currentIndexChanged(int index);
    void on_sigmaEnabled_toggled();
    void on_sigmaActive_toggled();
    void on_sigmaDefined_toggled();
    void on_needInput_toggled();
    void on_readOnly_toggled();
    void on_wrapping_toggled();
    void on_setValue_editingFinished();
    void on_vnDoubleSpinBox_editingFinished();
    void on_maximum_editingFinished();
    void on_minimum_editingFinished();
    void on_radioValueUnit_toggled(bool checked);
    void on_comboCorrectionMode_currentIndexChanged(int index);
    void on_spinIncrement_editingFinished();
    void on_suffix_editingFinished();
    void on_prefix_editingFinished();
    void on_factor_editingFinished();
    void on_useGlobalUnit_toggled();
    void on_outputNotation_currentIndexChanged(int index);
    void on_fitText_toggled();
    void on_labelText_editingFinished();
    void on_decimals_editingFinished();
    void on_decimals_valueChanged(int value);
    void on_precission_editingFinished();
    void on_precission_valueChanged(int value);
    void on_fieldWidth_editingFinished();
    void on_stepRounding_toggled();

private
    TWC_INDEX_TEXT_SLOTS : void on_valueUnitBox_currentIndexChanged(const QString& text);
    void on_displayUnitBox_currentIndexChanged(const QString& text);

private:
    void fillUnitBox(QComboBox* box);
    void fillOutputNotation();
    void updateReadOuts();
    void flagUnitFields(QLineEdit* edited, QLineEdit* other, const QString& text);
    void takeDecimals();
    void takePrecision();

    Ui::TestValueFieldsClass ui;
};
