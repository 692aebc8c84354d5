#include "VNAdvancedMenu.h"

#include <QActionGroup>
#include <QFile>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

namespace {
const int controlsPerRow = 4;
const QSize largeIconSize(32, 32);
const QSize smallIconSize(16, 16);

// A grouped control spans two cells: the main button and the rows of sub-buttons.
const int groupedControlCells = 2;

// A sub-action icon names a base path with a small and a large drawing, or one file.
QIcon iconFromPath(const QString& path)
{
    QIcon icon;
    if (path.isEmpty())
        return icon;
    for (const QString& candidate : {path + QStringLiteral("_16.svg"), path + QStringLiteral("_24.svg")}) {
        if (QFile::exists(candidate))
            icon.addFile(candidate);
    }
    if (icon.isNull() && QFile::exists(path))
        icon.addFile(path);
    return icon;
}
} // namespace

const char* const VNAdvancedMenu::subActionIconProperty = "VNSubActionIcon";

VNAdvancedMenu::VNAdvancedMenu(QWidget* parent)
    : VNPanelMenu(parent)
{
    setObjectName(QStringLiteral("VNAdvancedMenu"));
}

int VNAdvancedMenu::addControlGroup(const QString& title, bool exclusive, bool compact)
{
    Group group;
    group.title = title;
    group.compact = compact;
    if (exclusive)
        group.exclusive = new QActionGroup(this);
    m_groups.append(group);
    if (isPanelBuilt())
        placeGroup(m_groups.last());
    return m_groups.size() - 1;
}

void VNAdvancedMenu::placeGroup(Group& group)
{
    auto* titleLabel = new QLabel(group.title, panel());
    titleLabel->setObjectName(QStringLiteral("groupTitle"));
    titleLabel->setProperty("isHeader", true);
    panelLayout()->addWidget(titleLabel);
    auto* body = new QWidget(panel());
    group.grid = new QGridLayout(body);
    group.grid->setContentsMargins(0, 0, 0, 0);
    group.grid->setSpacing(2);
    group.grid->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    group.cells = 0;
    panelLayout()->addWidget(body);
}

// The widgets are made when the menu is first shown: a dialog full of menu buttons opens fast.
void VNAdvancedMenu::buildPanel()
{
    placeSelectBar();
    for (Group& group : m_groups) {
        placeGroup(group);
        for (const Control& control : qAsConst(group.controls))
            placeControl(group, control);
    }
}

QString VNAdvancedMenu::groupTitle(int group) const
{
    return group >= 0 && group < m_groups.size() ? m_groups.at(group).title : QString();
}

QList<QAction*> VNAdvancedMenu::groupActions(int group) const
{
    return group >= 0 && group < m_groups.size() ? m_groups.at(group).actions : QList<QAction*>();
}

QList<QAction*> VNAdvancedMenu::subActions(QAction* main) const
{
    return m_subActions.value(main);
}

void VNAdvancedMenu::takeControl(QAction* action, Group& group)
{
    if (m_checkable)
        action->setCheckable(true);
    if (group.exclusive)
        group.exclusive->addAction(action);
    group.actions.append(action);
    addAction(action);
}

bool VNAdvancedMenu::addControlToGroup(QAction* action, int group)
{
    if (!action || group < 0 || group >= m_groups.size())
        return false;
    Group& target = m_groups[group];
    takeControl(action, target);
    Control control;
    control.main = action;
    target.controls.append(control);
    if (isPanelBuilt())
        placeControl(target, control);
    return true;
}

bool VNAdvancedMenu::addGroupedControlToGroup(QAction* main, QList<QAction*>& firstRow, QList<QAction*>& secondRow,
                                              int group)
{
    if (!main || group < 0 || group >= m_groups.size())
        return false;
    Group& target = m_groups[group];
    takeControl(main, target);
    m_subActions.insert(main, firstRow + secondRow);
    Control control;
    control.main = main;
    control.firstRow = firstRow;
    control.secondRow = secondRow;
    control.grouped = true;
    target.controls.append(control);
    if (isPanelBuilt())
        placeControl(target, control);
    return true;
}

bool VNAdvancedMenu::addGroupedControlToGroup(QAction* main, QList<QAction*>& row, int group)
{
    QList<QAction*> none;
    return addGroupedControlToGroup(main, row, none, group);
}

void VNAdvancedMenu::placeControl(Group& group, const Control& control)
{
    if (!control.grouped) {
        QToolButton* button = createControlButton(control.main, group);
        group.grid->addWidget(button, group.cells / controlsPerRow, group.cells % controlsPerRow);
        ++group.cells;
        return;
    }
    auto* widget = new QFrame(panel());
    widget->setObjectName(QStringLiteral("groupedControl"));
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    layout->addWidget(createControlButton(control.main, group));
    auto* rows = new QVBoxLayout;
    rows->setSpacing(1);
    for (const QList<QAction*>* row : {&control.firstRow, &control.secondRow}) {
        if (row->isEmpty())
            continue;
        auto* rowLayout = new QHBoxLayout;
        rowLayout->setSpacing(1);
        for (QAction* sub : *row)
            rowLayout->addWidget(createSubButton(sub));
        rowLayout->addStretch(1);
        rows->addLayout(rowLayout);
    }
    layout->addLayout(rows);

    // Start a grouped control on a new pair of cells so that its sub-buttons have room.
    if (group.cells % controlsPerRow > controlsPerRow - groupedControlCells)
        group.cells += controlsPerRow - group.cells % controlsPerRow;
    group.grid->addWidget(widget, group.cells / controlsPerRow, group.cells % controlsPerRow, 1, groupedControlCells);
    group.cells += groupedControlCells;
}

QAction* VNAdvancedMenu::createSubAction(const QString& text, const QString& icon, SubActionIcons kind, QObject* parent)
{
    auto* action = new QAction(text, parent);
    action->setToolTip(text);
    action->setIcon(iconFromPath(icon));
    action->setProperty(subActionIconProperty, int(kind));
    return action;
}

QToolButton* VNAdvancedMenu::createControlButton(QAction* action, const Group& group)
{
    auto* button = new QToolButton(panel());
    button->setObjectName(QStringLiteral("controlButton"));
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setIconSize(group.compact ? smallIconSize : largeIconSize);
    button->setToolButtonStyle(group.compact ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon);
    button->setMinimumWidth(group.compact ? 24 : 72);
    connect(button, &QToolButton::triggered, this, &VNAdvancedMenu::activate);
    return button;
}

QToolButton* VNAdvancedMenu::createSubButton(QAction* action)
{
    auto* button = new QToolButton(panel());
    button->setObjectName(QStringLiteral("subActionButton"));
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setIconSize(smallIconSize);
    const bool withText = action->property(subActionIconProperty).toInt() == SubActionIconAndText;
    button->setToolButtonStyle(withText ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    connect(button, &QToolButton::triggered, this, &VNAdvancedMenu::activate);
    return button;
}

void VNAdvancedMenu::setupSelectMenu(SelectActions actions)
{
    m_selectActions = actions;
    if (isPanelBuilt())
        placeSelectBar();
}

void VNAdvancedMenu::placeSelectBar()
{
    delete m_selectBar;
    m_selectBar = nullptr;
    const SelectActions actions = m_selectActions;
    if (!actions)
        return;
    m_selectBar = new QWidget(panel());
    m_selectBar->setObjectName(QStringLiteral("selectBar"));
    auto* layout = new QHBoxLayout(m_selectBar);
    layout->setContentsMargins(0, 0, 0, 0);
    const struct
    {
        SelectAction flag;
        const char* text;
        const char* name;
    } entries[] = {{SelectAll, QT_TR_NOOP("Select All"), "selectAll"},
                   {SelectNone, QT_TR_NOOP("Select None"), "selectNone"},
                   {SelectDefault, QT_TR_NOOP("Select Default"), "selectDefault"}};
    for (const auto& entry : entries) {
        if (!actions.testFlag(entry.flag))
            continue;
        auto* button = new QToolButton(m_selectBar);
        button->setObjectName(QLatin1String(entry.name));
        button->setText(tr(entry.text));
        button->setAutoRaise(true);
        layout->addWidget(button);
        if (entry.flag == SelectAll)
            connect(button, &QToolButton::clicked, this, &VNAdvancedMenu::selectAll);
        else if (entry.flag == SelectNone)
            connect(button, &QToolButton::clicked, this, &VNAdvancedMenu::selectNone);
        else
            connect(button, &QToolButton::clicked, this, &VNAdvancedMenu::selectDefaultClicked);
    }
    layout->addStretch(1);
    panelLayout()->insertWidget(0, m_selectBar);
}

void VNAdvancedMenu::setCheckable(bool checkable)
{
    m_checkable = checkable;
    if (!checkable)
        return;
    const QList<QAction*> all = actions();
    for (QAction* action : all)
        action->setCheckable(true);
}

void VNAdvancedMenu::selectAll()
{
    setAllChecked(true);
}

void VNAdvancedMenu::selectNone()
{
    setAllChecked(false);
}

void VNAdvancedMenu::setAllChecked(bool checked)
{
    const QList<QAction*> all = actions();
    for (QAction* action : all) {
        if (action->isCheckable() && action->isEnabled())
            action->setChecked(checked);
    }
}
