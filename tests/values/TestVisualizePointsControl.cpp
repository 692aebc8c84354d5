#include "TestVisualizePointsControl.h"

#include <VNDisplayNeededInput.h>

#include <QSignalBlocker>

TestVisualizePointsControl::TestVisualizePointsControl(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_reserved(nullptr)
{
    ui.setupUi(this);
    ui.m_points->setValue(2);
    ui.m_infoText->setText(QStringLiteral("Click four points to define a spine as a master profile."));
}

TestVisualizePointsControl::~TestVisualizePointsControl() = default;

void TestVisualizePointsControl::on_m_points_valueChanged(int value)
{
    ui.m_display->setNeeded(value);
    if (ui.m_useOptional->isChecked())
        mirrorOptionalCount(ui.m_display->optional());
}

void TestVisualizePointsControl::on_m_checked_valueChanged(int value)
{
    ui.m_display->setChecked(value);
}

void TestVisualizePointsControl::on_m_infoText_textChanged(const QString& text)
{
    ui.m_display->setInfoText(text);
}

void TestVisualizePointsControl::on_m_useOptional_toggled(bool checked)
{
    ui.m_optionalPoints->setEnabled(!checked);
    ui.m_display->setUseOptional(checked);
    mirrorOptionalCount(checked ? ui.m_display->optional() : 0);
}

void TestVisualizePointsControl::on_m_optionalPoints_valueChanged(int value)
{
    if (!ui.m_useOptional->isChecked())
        ui.m_display->setOptional(value);
}

// The display decides the count itself here; writing it back must not reach the display again.
void TestVisualizePointsControl::mirrorOptionalCount(int count)
{
    const QSignalBlocker blocker(ui.m_optionalPoints);
    ui.m_optionalPoints->setValue(count);
}
