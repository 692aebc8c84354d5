#pragma once

#include "ui_TestCurveInputControl.h"

#include <QDialog>

class QAbstractButton;
class QButtonGroup;

// Drives the curve input control. The option check boxes and radio buttons are built at run time
// from the control's "Option" enum, so the dialog follows whatever options the control defines.
class TestCurveInputControl : public QDialog
{
    Q_OBJECT

public:
    explicit TestCurveInputControl(QWidget* parent);
    ~TestCurveInputControl() override;

private slots:
    void onAToggled(bool checked);
    void onEToggled(bool checked);
    void onDefaultClicked(QAbstractButton* button);
    void onEnabledToggled(bool enabled);
    void onInputTypeChanged(int index);

private:
    void buildOptionButtons();
    int optionValue(const QAbstractButton* button) const;

    Ui_TestCurveInputControlClass ui;
    QButtonGroup* m_defaultGroup;
};
