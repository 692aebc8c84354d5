#include "TestAdvancedMenu.h"

#include <VNAdvancedListMenu.h>
#include <VNAdvancedMenu.h>
#include <VNButton.h>
#include <VNCheckBoxGroupMenu.h>
#include <VNMenu.h>

#include <QApplication>
#include <QCheckBox>
#include <QCommandLinkButton>
#include <QGridLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace {
QStringList texts(const QList<QAction*>& actions)
{
    QStringList result;
    for (QAction* action : actions)
        result.append(action->text());
    return result;
}

QList<bool> enabledStates(const QList<QAction*>& actions)
{
    QList<bool> result;
    for (QAction* action : actions)
        result.append(action->isEnabled());
    return result;
}

QList<bool> everyNth(int count, int n)
{
    QList<bool> result;
    for (int i = 0; i < count; ++i)
        result.append(i % n == 0);
    return result;
}

// A button whose menu holds the actions A, B, C.
struct MenuButton
{
    MenuButton()
    {
        button.setMenu(&menu);
        for (const char* text : {"A", "B", "C"})
            actions.append(menu.addAction(QLatin1String(text)));
    }
    VNButton button;
    VNMenu menu;
    QList<QAction*> actions;
};
} // namespace

class TestAdvancedMenuDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void buttonShowsAndTriggersMainAction();
    void disabledMainActionStaysUnlessUpdated();
    void buttonActionsReachMenuActions();

    void modifyMenuGroups();
    void variantMenu();
    void checkBoxGroupMenu();
    void joinsMenuRows();
    void groupedControlWrapsOnlyWhenRowIsFull_data();
    void groupedControlWrapsOnlyWhenRowIsFull();
    void selectDefaultCounterIsShared();
    void disableAndEnableMainActions();
    void automatismFollowsCheckBoxes();
    void clickInMenuPanelBecomesMain();
};

void TestAdvancedMenuDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestAdvancedMenuDialog::buttonShowsAndTriggersMainAction()
{
    MenuButton m;
    m.actions.at(1)->setToolTip(QStringLiteral("tip B"));
    m.button.setMainAction(m.actions.at(1));
    QCOMPARE(m.button.text(), QStringLiteral("B"));
    QCOMPARE(m.button.toolTip(), QStringLiteral("tip B"));
    QSignalSpy triggered(m.actions.at(1), &QAction::triggered);
    m.button.click();
    QCOMPARE(triggered.count(), 1);
    m.actions.at(1)->setEnabled(false);
    m.button.click();
    QCOMPARE(triggered.count(), 1);
}

// The first enabled action becomes main; a main action that is disabled stays until asked.
void TestAdvancedMenuDialog::disabledMainActionStaysUnlessUpdated()
{
    MenuButton m;
    QCOMPARE(m.button.mainAction(), nullptr);
    m.actions.at(0)->setEnabled(false);
    m.button.makeFirstEnabledActionMain();
    QCOMPARE(m.button.mainAction(), m.actions.at(1));
    m.actions.at(1)->setEnabled(false);
    QCOMPARE(m.button.mainAction(), m.actions.at(1));
    m.button.enableAutomaticMainActionUpdate(false, true);
    QCOMPARE(m.button.mainAction(), m.actions.at(2));
    m.actions.at(0)->setEnabled(true);
    m.actions.at(2)->setEnabled(false);
    QCOMPARE(m.button.mainAction(), m.actions.at(0));
}

void TestAdvancedMenuDialog::buttonActionsReachMenuActions()
{
    MenuButton m;
    m.menu.addSeparator();
    QCOMPARE(m.button.actions(), m.actions);
}

void TestAdvancedMenuDialog::modifyMenuGroups()
{
    TestAdvancedMenu dialog(nullptr);
    for (const char* name : {"m_advancedBtnModify", "m_advancedMenuButton"}) {
        auto* menu = qobject_cast<VNAdvancedMenu*>(dialog.findChild<VNButton*>(name)->menu());
        QVERIFY(menu);
        QCOMPARE(menu->groupCount(), 4);
        QCOMPARE(menu->groupTitle(2), QStringLiteral("Outer Fill"));
        QCOMPARE(texts(menu->groupActions(1)), QStringList({"All", "Single"}));
        QCOMPARE(texts(menu->groupActions(3)), QStringList({"Detail", "Morph", "Radius", "Preform", "Replace"}));
        QCOMPARE(menu->actions().at(0)->toolTip(), QStringLiteral("Add a trim curve for splitting patches"));
        QVERIFY(!menu->actions().at(0)->icon().isNull());
    }
    auto* oneGroup = qobject_cast<VNAdvancedMenu*>(dialog.findChild<VNButton*>("m_advancedBtnOneGroup")->menu());
    QCOMPARE(oneGroup->groupCount(), 1);
    QCOMPARE(oneGroup->actions().last()->toolTip(), QStringLiteral("Add a replace"));
}

void TestAdvancedMenuDialog::variantMenu()
{
    TestAdvancedMenu dialog(nullptr);
    auto* link = dialog.findChild<QCommandLinkButton*>("commandLinkButton");
    QCOMPARE(link->description(), QStringLiteral("6 of 14 Variants are choosen"));
    QCOMPARE(link->property("composition").toString(), QStringLiteral("left"));
    auto* menu = qobject_cast<VNAdvancedMenu*>(dialog.findChild<QCommandLinkButton*>("commandLinkButton_2")->menu());
    QVERIFY(menu);
    QCOMPARE(int(menu->selectActions()), 7);
    QVERIFY(!menu->findChild<QToolButton*>("selectDefault"));
    menu->ensurePanel();
    QVERIFY(menu->findChild<QToolButton*>("selectDefault"));
    QCOMPARE(menu->panel()->layout()->itemAt(0)->widget()->objectName(), QString("selectBar"));
    QCOMPARE(texts(menu->groupActions(1)), QStringList({"One", "Two Up", "One Up One Down", "Two Shapes"}));
    const QList<QAction*> actions = menu->actions();
    QStringList types;
    for (QAction* action : actions)
        types << action->property("optimizationType").toString() + ' ' + action->text();
    QCOMPARE(types, QStringList({"1 Rectangle", "2 Parallelogram", "3 Sym. Trapezoid", "4 Trapezoid", "5 Arc",
                                 "17 Chevron", "18 Chevron Arc", "19 Chevron Flat", "20 Rectangle Arc",
                                 "21 Rectangle Stepped", "6 One", "7 Two Up", "8 One Up One Down", "9 Two Shapes"}));
    QCOMPARE(actions.at(5)->property("VNActionBarButtonStyle").toInt(), 0);
    for (QAction* action : actions)
        QVERIFY(action->isCheckable());
    actions.at(1)->setEnabled(false);
    menu->findChild<QToolButton*>("selectAll")->click();
    QVERIFY(actions.last()->isChecked());
    QVERIFY(!actions.at(1)->isChecked());
    QCOMPARE(link->description(), QStringLiteral("6 of 14 Variants are choosen"));
    actions.at(1)->setEnabled(true);
    actions.at(1)->setChecked(true);
    actions.at(2)->setEnabled(false);
    menu->findChild<QToolButton*>("selectNone")->click();
    QVERIFY(!actions.first()->isChecked());
    QVERIFY(!actions.at(1)->isChecked());
    QVERIFY(actions.at(2)->isChecked());
}

void TestAdvancedMenuDialog::checkBoxGroupMenu()
{
    TestAdvancedMenu dialog(nullptr);
    auto* menu = qobject_cast<VNCheckBoxGroupMenu*>(dialog.findChild<VNButton*>("m_CheckBoxGroupBtn")->menu());
    QVERIFY(menu);
    QCOMPARE(menu->groups(), QStringList({"Design Files", "Simulation State", "Material & Lubrication"}));
    QCOMPARE(menu->checkBoxes("Design Files").size(), 2);
    QCOMPARE(menu->checkBoxes("Simulation State").size(), 2);
    QCOMPARE(menu->checkBoxes("Material & Lubrication").size(), 6);
    QVERIFY(menu->findChild<QToolButton*>("selectAll"));
    QVERIFY(!menu->findChild<QToolButton*>("selectDefault"));
    int checked = 0;
    for (QCheckBox* box : menu->findChildren<QCheckBox*>())
        checked += box->isChecked();
    QCOMPARE(checked, 2);
    menu->checkBoxes("Design Files").last()->setEnabled(false);
    menu->findChild<QToolButton*>("selectAll")->click();
    QVERIFY(menu->checkBoxes("Simulation State").first()->isChecked());
    QVERIFY(!menu->checkBoxes("Design Files").last()->isChecked());
    menu->findChild<QToolButton*>("selectNone")->click();
    QVERIFY(!menu->checkBoxes("Design Files").first()->isChecked());
    QVERIFY(!menu->addCheckBoxToGroup(new QCheckBox(menu), QStringLiteral("No such group")));
}

void TestAdvancedMenuDialog::joinsMenuRows()
{
    TestAdvancedMenu dialog(nullptr);
    auto* menu = qobject_cast<VNAdvancedMenu*>(dialog.findChild<VNButton*>("m_advancedSubMenuButton")->menu());
    QVERIFY(menu);
    QCOMPARE(menu->groupCount(), 7);
    QCOMPARE(menu->groupTitle(6), QStringLiteral("Longer Bottom Row"));
    QAction* six = menu->groupActions(3).first();
    QCOMPARE(six->text(), QStringLiteral("Add"));
    QCOMPARE(six->toolTip(), QStringLiteral("Add point joins to connect parts"));
    QCOMPARE(texts(menu->subActions(six)),
             QStringList({"Copy", "Dependent", "Dependent", "Dependent", "Dependent", "Dependent"}));
    QCOMPARE(menu->subActions(six).first()->property(VNAdvancedMenu::subActionIconProperty).toInt(), 1);
    QCOMPARE(menu->subActions(six).last()->property(VNAdvancedMenu::subActionIconProperty).toInt(), 2);
}

void TestAdvancedMenuDialog::groupedControlWrapsOnlyWhenRowIsFull_data()
{
    QTest::addColumn<int>("plainBefore");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("first") << 0 << 0 << 0;
    QTest::newRow("second cell") << 1 << 0 << 1;
    QTest::newRow("just fits the row") << 2 << 0 << 2;
    QTest::newRow("one cell left") << 3 << 1 << 0;
    QTest::newRow("row full") << 4 << 1 << 0;
    QTest::newRow("just fits the second row") << 6 << 1 << 2;
    QTest::newRow("one cell left in the second row") << 7 << 2 << 0;
}

// Four cells a row; a grouped control takes two.
void TestAdvancedMenuDialog::groupedControlWrapsOnlyWhenRowIsFull()
{
    QFETCH(int, plainBefore);
    QFETCH(int, row);
    QFETCH(int, column);
    VNAdvancedMenu menu;
    const int group = menu.addControlGroup(QStringLiteral("Group"), false, false);
    for (int i = 0; i < plainBefore; ++i)
        menu.addControlToGroup(new QAction(QString::number(i), &menu), group);
    QList<QAction*> subs{new QAction(QStringLiteral("Sub"), &menu)};
    menu.addGroupedControlToGroup(new QAction(QStringLiteral("Main"), &menu), subs, group);
    menu.ensurePanel();
    auto* grouped = menu.findChild<QWidget*>("groupedControl");
    auto* grid = qobject_cast<QGridLayout*>(grouped->parentWidget()->layout());
    int at[4] = {};
    grid->getItemPosition(grid->indexOf(grouped), &at[0], &at[1], &at[2], &at[3]);
    QCOMPARE(QList<int>({at[0], at[1], at[3]}), QList<int>({row, column, 2}));
}

void TestAdvancedMenuDialog::selectDefaultCounterIsShared()
{
    QCOMPARE(TestAdvancedMenu::selectDefaultCount(), 0);
    TestAdvancedMenu first(nullptr);
    auto* menu = qobject_cast<VNAdvancedMenu*>(first.findChild<QCommandLinkButton*>("commandLinkButton_2")->menu());
    menu->ensurePanel();
    QToolButton* selectDefault = menu->findChild<QToolButton*>("selectDefault");
    for (int n = 1; n <= 3; ++n) {
        selectDefault->click();
        QCOMPARE(enabledStates(menu->actions()), everyNth(14, n));
    }
    TestAdvancedMenu second(nullptr);
    auto* otherMenu =
        qobject_cast<VNAdvancedMenu*>(second.findChild<QCommandLinkButton*>("commandLinkButton_2")->menu());
    emit otherMenu->selectDefaultClicked();
    QCOMPARE(TestAdvancedMenu::selectDefaultCount(), 4);
    QCOMPARE(enabledStates(otherMenu->actions()), everyNth(14, 4));
}

void TestAdvancedMenuDialog::disableAndEnableMainActions()
{
    TestAdvancedMenu dialog(nullptr);
    auto* vnMenuButton = dialog.findChild<VNButton*>("m_vnMenuButton");
    auto* listButton = dialog.findChild<VNButton*>("m_advancedListMenuButton");
    auto* subButton = dialog.findChild<VNButton*>("m_advancedSubMenuButton");
    dialog.findChild<QPushButton*>("m_disableMainActionBtn")->click();
    QVERIFY(!vnMenuButton->mainAction()->isEnabled());
    QVERIFY(!listButton->mainAction()->isEnabled());
    QVERIFY(subButton->mainAction()->isEnabled());
    dialog.findChild<QPushButton*>("m_enableAllActionsBtn")->click();
    for (QAction* action : vnMenuButton->actions())
        QVERIFY(action->isEnabled());
    QVERIFY(listButton->mainAction()->isEnabled());
}

void TestAdvancedMenuDialog::automatismFollowsCheckBoxes()
{
    TestAdvancedMenu dialog(nullptr);
    auto* vnMenuButton = dialog.findChild<VNButton*>("m_vnMenuButton");
    dialog.findChild<QCheckBox*>("m_disabledActionCB")->setChecked(true);
    QVERIFY(vnMenuButton->updatesForDisabledActions());
    QVERIFY(!vnMenuButton->triggeredActionBecomesMain());
    dialog.findChild<QPushButton*>("m_disableMainActionBtn")->click();
    QCOMPARE(vnMenuButton->mainAction()->text(), QStringLiteral("Single"));
    dialog.findChild<QCheckBox*>("m_triggeredActionCB")->setChecked(true);
    QAction* manual = vnMenuButton->actions().at(4);
    manual->trigger();
    QCOMPARE(vnMenuButton->mainAction(), manual);
    QVERIFY(!dialog.findChild<VNButton*>("m_advancedBtnModify")->triggeredActionBecomesMain());
}

void TestAdvancedMenuDialog::clickInMenuPanelBecomesMain()
{
    TestAdvancedMenu dialog(nullptr);
    auto* button = dialog.findChild<VNButton*>("m_advancedMenuButton");
    auto* menu = qobject_cast<VNAdvancedMenu*>(button->menu());
    menu->ensurePanel();
    QToolButton* manual = nullptr;
    for (QToolButton* control : menu->findChildren<QToolButton*>("controlButton")) {
        if (control->defaultAction()->text() == QLatin1String("Manual"))
            manual = control;
    }
    QVERIFY(manual);
    QCOMPARE(manual->minimumWidth(), 72);
    manual->click();
    QCOMPARE(button->mainAction()->text(), QStringLiteral("Trim with Line"));
    dialog.findChild<QCheckBox*>("m_triggeredActionCB")->setChecked(true);
    manual->click();
    QCOMPARE(button->mainAction()->text(), QStringLiteral("Manual"));
    QCOMPARE(button->toolTip(), QStringLiteral("Add a manual boundary fill"));

    auto* listButton = dialog.findChild<VNButton*>("m_advancedListMenuButton");
    auto* listMenu = qobject_cast<VNAdvancedListMenu*>(listButton->menu());
    QCOMPARE(listMenu->defaultIconSize(), QSize(48, 48));
    const QList<QAbstractButton*> entries = listMenu->findChildren<QAbstractButton*>("listMenuEntry");
    QCOMPARE(entries.size(), 7);
    entries.at(2)->click();
    QCOMPARE(listButton->mainAction()->text(), QStringLiteral("Single"));
}

QTEST_MAIN(TestAdvancedMenuDialog)
#include "tst_advancedmenu.moc"
