#include "TestColorDisplay.h"

#include <ColorDisplay.h>
#include <VNDoubleSpinBox.h>
#include <VNFormatter.h>

#include <QSignalBlocker>

TestColorDisplay::TestColorDisplay(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    ui.setupUi(this);
    for (VNDoubleSpinBox* field : {ui.m_red, ui.m_green, ui.m_blue})
        field->formatter()->setDecimals(0);
    {
        const QSignalBlocker leftBlocker(ui.m_leftSide);
        const QSignalBlocker rightBlocker(ui.m_rightSide);
        const QSignalBlocker twoSidesBlocker(ui.m_twoSides);
        ui.m_leftSide->setChecked(true);
        ui.m_rightSide->setChecked(false);
        ui.m_twoSides->setChecked(false);
    }
    synchronizeFields();
}

TestColorDisplay::~TestColorDisplay() = default;

int TestColorDisplay::editTarget() const
{
    if (!ui.m_colorDisplay->twoSides())
        return SingleColor;
    return ui.m_leftSide->isChecked() ? LeftColor : RightColor;
}

QColor TestColorDisplay::targetColor(int target) const
{
    switch (target) {
    case SingleColor:
        return ui.m_colorDisplay->color();
    case LeftColor:
        return ui.m_colorDisplay->colorLeft();
    case RightColor:
        return ui.m_colorDisplay->colorRight();
    default:
        return QColor();
    }
}

void TestColorDisplay::setTargetColor(int target, const QColor& color)
{
    switch (target) {
    case SingleColor:
        ui.m_colorDisplay->setColor(color);
        break;
    case LeftColor:
        ui.m_colorDisplay->setColorLeft(color);
        break;
    case RightColor:
        ui.m_colorDisplay->setColorRight(color);
        break;
    default:
        break;
    }
}

void TestColorDisplay::synchronizeFields()
{
    {
        const QSignalBlocker blocker(ui.m_twoSides);
        ui.m_twoSides->setCheckState(ui.m_colorDisplay->twoSides() ? Qt::Checked : Qt::Unchecked);
    }
    const QColor color = targetColor(editTarget());
    const QSignalBlocker redBlocker(ui.m_red);
    ui.m_red->setValue(color.red());
    const QSignalBlocker greenBlocker(ui.m_green);
    ui.m_green->setValue(color.green());
    const QSignalBlocker blueBlocker(ui.m_blue);
    ui.m_blue->setValue(color.blue());
}

void TestColorDisplay::on_m_twoSides_clicked(bool checked)
{
    ui.m_colorDisplay->setTwoSides(checked);
    ui.m_leftSide->setEnabled(checked);
    ui.m_rightSide->setEnabled(checked);
    synchronizeFields();
}

void TestColorDisplay::on_m_leftSide_clicked()
{
    synchronizeFields();
}

void TestColorDisplay::on_m_rightSide_clicked()
{
    synchronizeFields();
}

void TestColorDisplay::on_m_red_valueChanged(double value)
{
    const int target = editTarget();
    QColor color = targetColor(target);
    color.setRed(static_cast<int>(value));
    setTargetColor(target, color);
}

void TestColorDisplay::on_m_green_valueChanged(double value)
{
    const int target = editTarget();
    QColor color = targetColor(target);
    color.setGreen(static_cast<int>(value));
    setTargetColor(target, color);
}

void TestColorDisplay::on_m_blue_valueChanged(double value)
{
    const int target = editTarget();
    QColor color = targetColor(target);
    color.setBlue(static_cast<int>(value));
    setTargetColor(target, color);
}
