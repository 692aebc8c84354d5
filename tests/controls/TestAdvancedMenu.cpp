#include "TestAdvancedMenu.h"

#include <SvgIcons.h>
#include <VNAdvancedListMenu.h>
#include <VNAdvancedMenu.h>
#include <VNCheckBoxGroupMenu.h>
#include <VNMenu.h>

#include <QCheckBox>
#include <QMap>

namespace {
int s_selectDefaultCount = 0;

struct ProcessAction
{
    const char* iconName;
    const char* toolTip;
    const char* text;
};

const ProcessAction processActions[] = {
    {"add_trim", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add a trim curve for splitting patches"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Trim with Line")},
    {"add_fill_all_holes", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Fill the selected hole"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "All")},
    {"add_fill_single_hole", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Fill the selected hole"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Single")},
    {"add_automatic_fill", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add an automatic boundary fill"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Automatic")},
    {"add_manual_fill", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add a manual boundary fill"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Manual")},
    {"add_end_fill", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add an end fill"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "End")},
    {"add_double_fill", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add a double fill"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Double")},
    {"add_detail", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add a detail"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Detail")},
    {"add_morph", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add morphing"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Morph")},
    {"add_radius", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add a radius"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Radius")},
    {"add_preform", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add a preform"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Preform")},
    {"add_insert", QT_TRANSLATE_NOOP("TestAdvancedMenu", "Add a replace"),
     QT_TRANSLATE_NOOP("TestAdvancedMenu", "Replace")},
};
const int fillSetSize = 7;
const int fullSetSize = 12;

const QMap<int, const char*>& variantNames()
{
    static const QMap<int, const char*> names = {
        {0, QT_TRANSLATE_NOOP("TestAdvancedMenu", "No Optimization")},
        {1, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Rectangle")},
        {2, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Parallelogram")},
        {3, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Sym. Trapezoid")},
        {4, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Trapezoid")},
        {5, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Arc")},
        {6, QT_TRANSLATE_NOOP("TestAdvancedMenu", "One")},
        {7, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Two Up")},
        {8, QT_TRANSLATE_NOOP("TestAdvancedMenu", "One Up One Down")},
        {9, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Two Shapes")},
        {17, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Chevron")},
        {18, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Chevron Arc")},
        {19, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Chevron Flat")},
        {20, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Rectangle Arc")},
        {21, QT_TRANSLATE_NOOP("TestAdvancedMenu", "Rectangle Stepped")},
    };
    return names;
}

const QMap<int, QString>& variantIcons()
{
    static const QMap<int, QString> icons = {
        {1, QStringLiteral(":/Icons/Blank/embed_rect.svg")},
        {2, QStringLiteral(":/Icons/Blank/embed_skewed.svg")},
        {3, QStringLiteral(":/Icons/Blank/embed_trapez.svg")},
        {4, QStringLiteral(":/Icons/Blank/embed_trapez_unequal.svg")},
        {5, QStringLiteral(":/Icons/Blank/embed_curved.svg")},
        {6, QStringLiteral(":/Icons/Blank/nest_single.svg")},
        {7, QStringLiteral(":/Icons/Blank/nest_double.svg")},
        {8, QStringLiteral(":/Icons/Blank/nest_mirror.svg")},
        {9, QStringLiteral(":/Icons/Blank/nest_unequal.svg")},
        {17, QStringLiteral(":/Icons/Blank/embed_chevron.svg")},
        {18, QStringLiteral(":/Icons/Blank/embed_chevronArc.svg")},
        {19, QStringLiteral(":/Icons/Blank/embed_chevronFlat.svg")},
        {20, QStringLiteral(":/Icons/Blank/embed_rectangleArc.svg")},
        {21, QStringLiteral(":/Icons/Blank/embed_rectangleStepped.svg")},
    };
    return icons;
}

const int embeddingTypes[] = {1, 2, 3, 4, 5, 17, 18, 19, 20, 21};
const int nestingTypes[] = {6, 7, 8, 9};
} // namespace

TestAdvancedMenu::TestAdvancedMenu(QWidget* parent)
    : QDialog(parent)
{
    ui.setupUi(this);

    ui.m_advancedBtnModify->setMenu(createGroupedModifyMenu(ui.m_advancedBtnModify));
    ui.m_advancedMenuButton->setMenu(createGroupedModifyMenu(ui.m_advancedMenuButton));
    ui.m_advancedBtnOneGroup->setMenu(createOneGroupMenu(ui.m_advancedBtnOneGroup));
    ui.m_advanceListBtn->setMenu(createListMenu(ui.m_advanceListBtn));
    ui.m_advancedListMenuButton->setMenu(createListMenu(ui.m_advancedListMenuButton));
    ui.commandLinkButton_2->setMenu(createVariantMenu(ui.commandLinkButton_2));
    ui.m_CheckBoxGroupBtn->setMenu(createCheckBoxGroupMenu(ui.m_CheckBoxGroupBtn));
    ui.m_advancedSubMenuButton->setMenu(createJoinsMenu(ui.m_advancedSubMenuButton));
    ui.m_vnMenuButton->setMenu(createPlainMenu(ui.m_vnMenuButton));

    ui.m_advancedMenuButton->makeFirstEnabledActionMain();
    ui.m_advancedSubMenuButton->makeFirstEnabledActionMain();
    ui.m_advancedListMenuButton->makeFirstEnabledActionMain();
    ui.m_vnMenuButton->makeFirstEnabledActionMain();

    connect(ui.m_disableMainActionBtn, &QPushButton::clicked, this, &TestAdvancedMenu::onDisableDefaultAction);
    connect(ui.m_enableAllActionsBtn, &QPushButton::clicked, this, &TestAdvancedMenu::onEnableAllActions);
    connect(ui.m_triggeredActionCB, &QCheckBox::toggled, this, &TestAdvancedMenu::onMainActionAutomatismChanged);
    connect(ui.m_disabledActionCB, &QCheckBox::toggled, this, &TestAdvancedMenu::onMainActionAutomatismChanged);
}

TestAdvancedMenu::~TestAdvancedMenu() = default;

int TestAdvancedMenu::selectDefaultCount()
{
    return s_selectDefaultCount;
}

// An empty icon name gives the placeholder icon, a resource path is used as it is, and any other
// name is one of the modify icons.
QAction* TestAdvancedMenu::createAction(const QString& text, const QString& toolTip, const QString& iconName)
{
    auto* action = new QAction(text, this);
    action->setToolTip(toolTip);
    if (iconName.isEmpty())
        action->setIcon(QIcon(QStringLiteral(":/Icons/Shared/no_icon.svg")));
    else if (iconName.contains(QLatin1String(":/")))
        action->setIcon(createTwoSizeSvgIcon(iconName));
    else
        action->setIcon(createTwoSizeSvgIcon(QStringLiteral(":/Icons/Modify/") + iconName));
    return action;
}

QList<QAction*> TestAdvancedMenu::createProcessActions(int count)
{
    QList<QAction*> actions;
    for (int i = 0; i < count; ++i) {
        const ProcessAction& entry = processActions[i];
        actions.append(createAction(tr(entry.text), tr(entry.toolTip), QLatin1String(entry.iconName)));
    }
    return actions;
}

QAction* TestAdvancedMenu::createVariantAction(int optimizationType)
{
    const char* name = variantNames().value(optimizationType, QT_TR_NOOP("Unknown"));
    auto* action = new QAction(tr(name), this);
    action->setToolTip(tr(name));
    action->setCheckable(true);
    const QString icon = variantIcons().value(optimizationType);
    if (!icon.isEmpty())
        action->setIcon(QIcon(icon));
    action->setProperty("optimizationType", optimizationType);
    action->setProperty("VNActionBarButtonStyle", 0);
    action->setProperty("VNActionBarButtonElideMode", 0);
    return action;
}

VNAdvancedMenu* TestAdvancedMenu::createGroupedModifyMenu(QWidget* button)
{
    auto* menu = new VNAdvancedMenu(button);
    const QList<QAction*> actions = createProcessActions(fullSetSize);
    const struct
    {
        const char* title;
        int first;
        int count;
    } groups[] = {{QT_TR_NOOP("Trim"), 0, 1},
                  {QT_TR_NOOP("Fill Holes"), 1, 2},
                  {QT_TR_NOOP("Outer Fill"), 3, 4},
                  {QT_TR_NOOP("Modify"), 7, 5}};
    for (const auto& group : groups) {
        const int id = menu->addControlGroup(tr(group.title), false, false);
        for (int i = group.first; i < group.first + group.count; ++i)
            menu->addControlToGroup(actions.at(i), id);
    }
    return menu;
}

VNAdvancedMenu* TestAdvancedMenu::createOneGroupMenu(QWidget* button)
{
    auto* menu = new VNAdvancedMenu(button);
    const int id = menu->addControlGroup(tr("Modify"), false, false);
    const QList<QAction*> actions = createProcessActions(fullSetSize);
    for (QAction* action : actions)
        menu->addControlToGroup(action, id);
    return menu;
}

QMenu* TestAdvancedMenu::createListMenu(QWidget* button)
{
    auto* menu = new VNAdvancedListMenu(button);
    menu->setDefaultIconSize(QSize(48, 48));
    const QList<QAction*> actions = createProcessActions(fillSetSize);
    for (QAction* action : actions)
        menu->addControl(action, 430);
    return menu;
}

QMenu* TestAdvancedMenu::createVariantMenu(QWidget* button)
{
    auto* menu = new VNAdvancedMenu(button);
    connect(menu, &VNAdvancedMenu::selectDefaultClicked, this, &TestAdvancedMenu::onSelectDefault);
    menu->setupSelectMenu(VNAdvancedMenu::SelectActions(7));
    menu->setCheckable(true);
    ui.commandLinkButton_2->setMenu(menu);
    const int embedding = menu->addControlGroup(tr("Embedding"), false, false);
    for (int type : embeddingTypes)
        menu->addControlToGroup(createVariantAction(type), embedding);
    const int nesting = menu->addControlGroup(tr("Nesting"), false, false);
    for (int type : nestingTypes)
        menu->addControlToGroup(createVariantAction(type), nesting);
    return menu;
}

QMenu* TestAdvancedMenu::createCheckBoxGroupMenu(QWidget* button)
{
    auto* menu = new VNCheckBoxGroupMenu(button);
    menu->setupSelectMenu(VNCheckBoxGroupMenu::SelectActions(3));
    const QString groups[] = {tr("Design Files"), tr("Simulation State"), tr("Material & Lubrication")};
    for (const QString& group : groups)
        menu->addControlGroup(group);
    const struct
    {
        const char* code;
        int group;
        bool checked;
    } boxes[] = {{"DSA", 0, true},  {"DSB", 0, false},  {"STA", 1, false},  {"STB", 1, false},  {"MLA", 2, true},
                 {"MLB", 2, false}, {"MLA2", 2, false}, {"MLB2", 2, false}, {"MLA3", 2, false}, {"MLB3", 2, false}};
    for (const auto& box : boxes) {
        auto* checkBox = new QCheckBox(QLatin1String(box.code), menu);
        checkBox->setObjectName(QLatin1String(box.code));
        menu->addCheckBoxToGroup(checkBox, groups[box.group]);
        checkBox->setChecked(box.checked);
    }
    return menu;
}

QMenu* TestAdvancedMenu::createJoinsMenu(QWidget* button)
{
    auto* menu = new VNAdvancedMenu(button);
    const QString copyIcon = QStringLiteral(":/Icons/Process/Joins/copy_point_joins");
    const QString dependentIcon = QStringLiteral(":/Icons/Process/Joins/dependent_point_joins");
    auto mainAction = [this] {
        return createAction(tr("Add"), tr("Add point joins to connect parts"),
                            QStringLiteral(":/Icons/Process/Joins/add_point_joins"));
    };
    auto subActions = [&](VNAdvancedMenu::SubActionIcons copyKind, const QList<VNAdvancedMenu::SubActionIcons>& kinds) {
        QList<QAction*> actions{VNAdvancedMenu::createSubAction(tr("Copy"), copyIcon, copyKind, this)};
        for (VNAdvancedMenu::SubActionIcons kind : kinds)
            actions.append(VNAdvancedMenu::createSubAction(tr("Dependent"), dependentIcon, kind, this));
        return actions;
    };
    // The icon kind decides the row: kind 1 goes to the first row, kind 2 to the second.
    auto addControl = [&](int group, const QList<QAction*>& subs) {
        QList<QAction*> firstRow;
        QList<QAction*> secondRow;
        for (QAction* sub : subs) {
            const int kind = sub->property(VNAdvancedMenu::subActionIconProperty).toInt();
            (kind == VNAdvancedMenu::SubActionIconAndText ? firstRow : secondRow).append(sub);
        }
        if (secondRow.isEmpty())
            menu->addGroupedControlToGroup(mainAction(), firstRow, group);
        else
            menu->addGroupedControlToGroup(mainAction(), firstRow, secondRow, group);
    };
    const auto one = VNAdvancedMenu::SubActionIconAndText;
    const auto two = VNAdvancedMenu::SubActionIconOnly;

    int group = menu->addControlGroup(tr("1 and 2 Sub-Buttons"), false, false);
    addControl(group, subActions(one, {}));
    addControl(group, subActions(one, {two}));
    group = menu->addControlGroup(tr("3 and 4 Sub-Buttons"), false, false);
    addControl(group, subActions(one, {two, two}));
    addControl(group, subActions(one, {two, two, two}));
    group = menu->addControlGroup(tr("5 Sub-Buttons"), false, false);
    addControl(group, subActions(one, {two, two, two, two}));
    group = menu->addControlGroup(tr("6 Sub-Buttons"), false, false);
    addControl(group, subActions(one, {two, two, two, two, two}));
    group = menu->addControlGroup(tr("Single Row Sub-Buttons"), false, false);
    addControl(group, subActions(one, {one}));
    group = menu->addControlGroup(tr("Longer Top Row"), false, false);
    addControl(group, subActions(one, {one, one, one, two}));
    group = menu->addControlGroup(tr("Longer Bottom Row"), false, false);
    addControl(group, subActions(one, {two, two, two, two}));
    return menu;
}

QMenu* TestAdvancedMenu::createPlainMenu(QWidget* button)
{
    auto* menu = new VNMenu(button);
    const QList<QAction*> actions = createProcessActions(fillSetSize);
    menu->addActions(actions);
    actions.first()->setEnabled(false);
    return menu;
}

QList<VNButton*> TestAdvancedMenu::mainActionButtons() const
{
    return {ui.m_advancedMenuButton, ui.m_advancedListMenuButton, ui.m_vnMenuButton};
}

void TestAdvancedMenu::onSelectDefault()
{
    ++s_selectDefaultCount;
    auto* menu = qobject_cast<VNAdvancedMenu*>(sender());
    if (!menu)
        return;
    const QList<QAction*> actions = menu->actions();
    for (int i = 0; i < actions.size(); ++i)
        actions.at(i)->setEnabled(i % s_selectDefaultCount == 0);
}

void TestAdvancedMenu::onDisableDefaultAction()
{
    for (VNButton* button : mainActionButtons()) {
        if (QAction* action = button->mainAction())
            action->setEnabled(false);
    }
}

void TestAdvancedMenu::onEnableAllActions()
{
    for (VNButton* button : mainActionButtons()) {
        const QList<QAction*> actions = button->actions();
        for (QAction* action : actions)
            action->setEnabled(true);
    }
}

void TestAdvancedMenu::onMainActionAutomatismChanged()
{
    const bool triggeredBecomesMain = ui.m_triggeredActionCB->isChecked();
    const bool alsoForDisabled = ui.m_disabledActionCB->isChecked();
    for (VNButton* button : mainActionButtons())
        button->enableAutomaticMainActionUpdate(triggeredBecomesMain, alsoForDisabled);
}
