#pragma once

#include "ui_TestVNMessageBox.h"

#include <QDialog>

// Shows the toolkit's message box once through its static function and once as an object whose
// title bar close button is switched off.
class TestVNMessageBox : public QDialog
{
    Q_OBJECT

public:
    explicit TestVNMessageBox(QWidget* parent);
    ~TestVNMessageBox() override;

public slots:
    void showDefaultMsg();
    void showMsgWithoutClosePossibility();

private:
    Ui_TestVNMessageBoxClass ui;
};
