#pragma once

#include "ui_TestSquish.h"

#include <VNWidgetStatus.h>

#include <QDialog>

class TestMasterDetailTree;
class TestTreeDelegates;
class VNAnimatedTabBar;

// The widget status gallery: nearly every toolkit widget at once, each in a fixed demonstration
// state (normal, hovered, held down, checked, disabled, read-only, elided, with menu, with icons),
// so that GUI test robots find each one by its object name and reviewers see all states side by
// side. The buttons on the left apply one toolkit status word to every widget of the current tab;
// "Disable" and "ReadOnly" act on the current tab as well. Two tabs embed the tree delegates test
// and the master-detail tree test.
class TestSquish : public QDialog
{
    Q_OBJECT

public:
    explicit TestSquish(QWidget* parent);
    ~TestSquish() override;

private slots:
    void on_disabledCheckBox_toggled(bool checked);
    void on_readOnlyCheckbox_toggled(bool checked);
    void on_noStateButton_clicked();
    void on_needInputStateButton_clicked();
    void on_userEditStateButton_clicked();
    void on_compareDifferentStateButton_clicked();
    void on_differentStateButton_clicked();
    void on_sigmaEnabledStateButton_clicked();
    void on_sigmaActiveStateButton_clicked();
    void on_sigmaInvalidStateButton_clicked();
    void on_sigmaStandardChangedStateButton_clicked();
    void on_sigmaAndStandardStateButton_clicked();
    void on_sigmaAndStandardChangedStateButton_clicked();
    void on_standardDefinedStateButton_clicked();
    void on_standardChangedStateButton_clicked();
    void on_standardLockedStateButton_clicked();
    void on_standardChangedLockedStateButton_clicked();
    void on_standardDefaultStateButton_clicked();
    void on_standardDefaultChangedStateButton_clicked();
    void onSelectDefault();

private:
    void applyStatus(int word);
    QList<QWidget*> currentPageWidgets() const;
    static void setTabStatuses(VNAnimatedTabBar* tabBar, VNWidgetStatus::StatusFlags status);

    void setUpButtonStates();
    void setUpMenus();
    void setUpButtonMenus();
    void setUpCheckBoxGroupMenu();
    void setUpAdvancedMenus();
    void setUpComboBoxes();
    void setUpSpinBoxes();
    void setUpTaskBar();
    void setUpAnimatedTabBars();
    void setUpNavigationBars();
    void setUpDisclosures();
    void setUpCalendars();
    void setUpInfoAreas();
    void setUpBarChart();
    void setUpSliders();
    void setUpToolTipButtons();
    void setUpCustomMenuButtons();
    void setUpResultSwitchers();
    void setUpToolBars();
    void embedTests();

    Ui::TestSquishClass ui;
    TestTreeDelegates* m_treeDelegates;
    TestMasterDetailTree* m_masterDetailTree;
    bool m_compareDifferent;
};
