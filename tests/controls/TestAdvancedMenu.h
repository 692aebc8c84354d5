#pragma once

#include "ui_TestAdvancedMenu.h"

#include <QDialog>

class VNAdvancedMenu;
class VNButton;

// Shows the toolkit's menu buttons with advanced, list, plain and check box group menus, a
// command link pair with checkable shape variants, and the main action logic of menu buttons.
class TestAdvancedMenu : public QDialog
{
    Q_OBJECT

public:
    explicit TestAdvancedMenu(QWidget* parent);
    ~TestAdvancedMenu() override;

    // How often any dialog of this kind received a "Select Default" request.
    static int selectDefaultCount();

public slots:
    void onSelectDefault();
    void onDisableDefaultAction();
    void onEnableAllActions();
    void onMainActionAutomatismChanged();

private:
    QAction* createAction(const QString& text, const QString& toolTip, const QString& iconName);
    QAction* createVariantAction(int optimizationType);
    QList<QAction*> createProcessActions(int count);

    VNAdvancedMenu* createGroupedModifyMenu(QWidget* button);
    VNAdvancedMenu* createOneGroupMenu(QWidget* button);
    QMenu* createListMenu(QWidget* button);
    QMenu* createVariantMenu(QWidget* button);
    QMenu* createCheckBoxGroupMenu(QWidget* button);
    QMenu* createJoinsMenu(QWidget* button);
    QMenu* createPlainMenu(QWidget* button);
    QList<VNButton*> mainActionButtons() const;

    Ui_TestAdvancedMenuClass ui;
};
