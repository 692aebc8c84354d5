#pragma once

#include "vnwidgets_export.h"

#include <QMenu>
#include <QModelIndex>
#include <QPoint>
#include <QPointer>

class QTreeView;

// The context menu of a tree at a position in its viewport. Actions that need a row are greyed
// when there is no row under the position. The menu is a child of the tree and deletes itself
// when it closes, so the caller creates one per request and forgets it.
class VNWIDGETS_EXPORT TreeViewContextMenu : public QMenu
{
    Q_OBJECT

public:
    TreeViewContextMenu(QTreeView* tree, const QPoint& position);

    // The row under the position (view index, column 0); invalid over empty space.
    QModelIndex clickedIndex() const { return m_clickedIndex; }

    void appendAction(QAction* action, bool needsItem);
    // Pops the menu up at the position, below the mouse.
    void show();

private:
    QPointer<QTreeView> m_tree;
    QPoint m_position;
    QModelIndex m_clickedIndex;
};
