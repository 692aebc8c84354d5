#pragma once

#include "ui_TestModuleNavigation.h"

#include <QDialog>

// A module navigation with seven sample modules and a group button that switches between the
// normal module set and a compact one in which module 1 is locked.
class TestModuleNavigation : public QDialog
{
    Q_OBJECT

public:
    explicit TestModuleNavigation(QWidget* parent);
    ~TestModuleNavigation() override;

    bool isCompactSetShown() const { return m_compact; }

public slots:
    void onSwitchButtonClicked();

private:
    void addGroupButton();

    Ui::TestModuleNavigationClass ui;
    bool m_compact = false;
};
