#pragma once

#include "VNComboBox.h"

#include <QPersistentModelIndex>

class QTreeView;
class QStandardItemModel;

// A combo box whose popup is a tree: group entries hold child entries and open or close with a
// click, while entries without a group sit beside them. Groups themselves cannot be chosen.
// A position is a pair (top-level row, child row); an entry without a group has child row -1.
class VNWIDGETS_EXPORT VNGroupableComboBox : public VNComboBox
{
    Q_OBJECT

public:
    explicit VNGroupableComboBox(QWidget* parent = nullptr);

    // Adds an entry under parent (a top-level entry for an invalid parent) with data in Qt::UserRole.
    QModelIndex addGroupItem(const QString& text, const QModelIndex& parent = QModelIndex(),
                             const QVariant& data = QVariant());

    void setCurrentGroupIndex(int topLevelRow, int childRow);
    int currentTopLevelRow() const;
    int currentChildRow() const;
    QModelIndex currentModelIndex() const { return m_current; }

    bool isGroup(const QModelIndex& index) const;
    QTreeView* treeView() const { return m_tree; }

    void showPopup() override;

signals:
    void currentGroupIndexChanged(int topLevelRow, int childRow);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void selectModelIndex(const QModelIndex& index);
    void onCurrentIndexChanged(int row);
    QStandardItemModel* standardModel() const;

    QTreeView* m_tree;
    QPersistentModelIndex m_current;
    bool m_selecting = false;
};
