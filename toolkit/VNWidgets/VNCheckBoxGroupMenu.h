#pragma once

#include "VNPanelMenu.h"

#include <QMap>

class QCheckBox;
class QVBoxLayout;

// A menu of check boxes in titled groups, with optional entries that check all or none of them.
class VNWIDGETS_EXPORT VNCheckBoxGroupMenu : public VNPanelMenu
{
    Q_OBJECT

public:
    enum SelectAction
    {
        SelectAll = 0x1,
        SelectNone = 0x2
    };
    Q_DECLARE_FLAGS(SelectActions, SelectAction)
    Q_FLAG(SelectActions)

    explicit VNCheckBoxGroupMenu(QWidget* parent = nullptr);

    void setupSelectMenu(SelectActions actions);
    void addControlGroup(const QString& title);
    // Moves the check box into the group; false (and the check box untouched) for an unknown group.
    bool addCheckBoxToGroup(QCheckBox* checkBox, const QString& group);

    QStringList groups() const { return m_order; }
    QList<QCheckBox*> checkBoxes(const QString& group) const;

public slots:
    void selectAll();
    void selectNone();

private:
    void setAllChecked(bool checked);

    QStringList m_order;
    QMap<QString, QVBoxLayout*> m_groupLayouts;
    QMap<QString, QList<QCheckBox*>> m_checkBoxes;
    QWidget* m_selectBar = nullptr;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VNCheckBoxGroupMenu::SelectActions)
