#pragma once

#include "VNPanelMenu.h"

#include <QList>

class QActionGroup;
class QGridLayout;
class QToolButton;

// A menu that shows its actions as large buttons in titled groups. A grouped control is a large
// main button with one or two rows of small sub-action buttons beside it. Optional select entries
// at the top check all or no actions or ask the owner for the default selection.
class VNWIDGETS_EXPORT VNAdvancedMenu : public VNPanelMenu
{
    Q_OBJECT

public:
    enum SelectAction
    {
        SelectAll = 0x1,
        SelectNone = 0x2,
        SelectDefault = 0x4
    };
    Q_DECLARE_FLAGS(SelectActions, SelectAction)
    Q_FLAG(SelectActions)

    // How a sub-action button shows its action: icon and text, or a compact icon alone.
    enum SubActionIcons
    {
        SubActionIconAndText = 1,
        SubActionIconOnly = 2
    };
    Q_ENUM(SubActionIcons)

    static const char* const subActionIconProperty;

    explicit VNAdvancedMenu(QWidget* parent = nullptr);

    // exclusive: checkable controls of the group exclude each other; compact: the controls show
    // their icons only.
    int addControlGroup(const QString& title, bool exclusive = false, bool compact = false);
    bool addControlToGroup(QAction* action, int group);
    bool addGroupedControlToGroup(QAction* main, QList<QAction*>& firstRow, QList<QAction*>& secondRow, int group);
    bool addGroupedControlToGroup(QAction* main, QList<QAction*>& row, int group);

    static QAction* createSubAction(const QString& text, const QString& icon, SubActionIcons kind, QObject* parent);

    void setupSelectMenu(SelectActions actions);
    SelectActions selectActions() const { return m_selectActions; }

    void setCheckable(bool checkable);
    bool isCheckable() const { return m_checkable; }

    int groupCount() const { return m_groups.size(); }
    QString groupTitle(int group) const;
    QList<QAction*> groupActions(int group) const;
    QList<QAction*> subActions(QAction* main) const;

public slots:
    void selectAll();
    void selectNone();

signals:
    void selectDefaultClicked();

protected:
    void buildPanel() override;

private:
    struct Control
    {
        QAction* main = nullptr;
        QList<QAction*> firstRow;
        QList<QAction*> secondRow;
        bool grouped = false;
    };
    struct Group
    {
        QString title;
        QGridLayout* grid = nullptr;
        QActionGroup* exclusive = nullptr;
        bool compact = false;
        QList<QAction*> actions;
        QList<Control> controls;
        int cells = 0;
    };

    QToolButton* createControlButton(QAction* action, const Group& group);
    QToolButton* createSubButton(QAction* action);
    void takeControl(QAction* action, Group& group);
    void placeGroup(Group& group);
    void placeControl(Group& group, const Control& control);
    void placeSelectBar();
    void setAllChecked(bool checked);

    QList<Group> m_groups;
    QHash<QAction*, QList<QAction*>> m_subActions;
    QWidget* m_selectBar = nullptr;
    SelectActions m_selectActions;
    bool m_checkable = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VNAdvancedMenu::SelectActions)
