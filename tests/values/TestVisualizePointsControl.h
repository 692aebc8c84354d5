#pragma once

#include "ui_TestVisualizePointsControl.h"

#include <QDialog>

// Drives the toolkit's needed-input display: needed, optional and given points and the
// instruction text come from the fields above it.
class TestVisualizePointsControl : public QDialog
{
    Q_OBJECT

public:
    explicit TestVisualizePointsControl(QWidget* parent);
    ~TestVisualizePointsControl() override;

private slots:
    void on_m_points_valueChanged(int value);
    void on_m_checked_valueChanged(int value);
    void on_m_infoText_textChanged(const QString& text);
    void on_m_useOptional_toggled(bool checked);
    void on_m_optionalPoints_valueChanged(int value);

private:
    void mirrorOptionalCount(int count);

    Ui::TestVisualizePointsControlClass ui;
    // Kept so that the object layout stays as in earlier releases; nothing uses it.
    void* m_reserved;
};
