#pragma once

#include "ui_TestVNResultSwitcher.h"

#include <QDialog>

class VNResultSwitcher;

// Appends the button "Zebra" with the zebra lines icon to a result switcher.
void addZebraButton(VNResultSwitcher* switcher);

// Three result switchers (one button, four buttons with menus, ten buttons in two parts), their
// button counts and a check box that enables or disables all of their buttons.
class TestVNResultSwitcher : public QDialog, private Ui::TestVNResultSwitcher
{
    Q_OBJECT

public:
    explicit TestVNResultSwitcher(QWidget* parent);
    ~TestVNResultSwitcher() override;

public slots:
    void enableButtons(bool checked);
};
