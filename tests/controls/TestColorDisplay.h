#pragma once

#include "ui_TestColorDisplay.h"

#include <QColor>
#include <QDialog>

// Drives the toolkit's colour swatch: three fields edit the red, green and blue of the single
// colour, or of the left or right colour while the swatch shows two sides.
class TestColorDisplay : public QDialog
{
    Q_OBJECT

public:
    explicit TestColorDisplay(QWidget* parent);
    ~TestColorDisplay() override;

private slots:
    void on_m_twoSides_clicked(bool checked);
    void on_m_leftSide_clicked();
    void on_m_rightSide_clicked();
    void on_m_red_valueChanged(double value);
    void on_m_green_valueChanged(double value);
    void on_m_blue_valueChanged(double value);

private:
    enum EditTarget
    {
        SingleColor = 0,
        LeftColor = 1,
        RightColor = 2
    };

    int editTarget() const;
    QColor targetColor(int target) const;
    void setTargetColor(int target, const QColor& color);
    void synchronizeFields();

    Ui_TestColorDisplay ui;
};
