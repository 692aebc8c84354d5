#pragma once

#include "ui_QtTraining.h"

#include <QDialog>

// An empty dialog kept for training sessions on Qt's form designer.
class QtTraining : public QDialog
{
    Q_OBJECT

public:
    explicit QtTraining(QWidget* parent);
    ~QtTraining() override;

private:
    Ui::QtTraining ui;
};
