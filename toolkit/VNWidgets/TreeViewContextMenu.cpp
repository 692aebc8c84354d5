#include "TreeViewContextMenu.h"

#include <QTreeView>

TreeViewContextMenu::TreeViewContextMenu(QTreeView* tree, const QPoint& position)
    : QMenu(tree)
    , m_tree(tree)
    , m_position(position)
{
    setObjectName(QStringLiteral("TreeViewContextMenu"));
    setAttribute(Qt::WA_DeleteOnClose);
    const QModelIndex index = tree->indexAt(position);
    m_clickedIndex = index.sibling(index.row(), 0);
}

void TreeViewContextMenu::appendAction(QAction* action, bool needsItem)
{
    if (needsItem && !m_clickedIndex.isValid())
        action->setEnabled(false);
    addAction(action);
}

void TreeViewContextMenu::show()
{
    if (m_tree)
        popup(m_tree->viewport()->mapToGlobal(m_position));
}
