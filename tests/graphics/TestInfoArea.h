#pragma once

#include "ui_TestInfoArea.h"

#include <QDialog>

// The info area with its icon types, its vertical arrangement and its info button, each switched
// from the controls on the right.
class TestInfoArea : public QDialog
{
    Q_OBJECT

public:
    explicit TestInfoArea(QWidget* parent);
    ~TestInfoArea() override;

private slots:
    void on_showInfoBtn_clicked(bool checked);
    void on_verticalArranged_clicked(bool checked);
    void on_typeCombo_currentIndexChanged(int index);

private:
    Ui::TestInfoArea ui;
};
