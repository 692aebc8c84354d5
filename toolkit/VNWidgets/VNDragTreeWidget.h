#pragma once

#include "vnwidgets_export.h"

#include <QHash>
#include <QTreeWidget>

class VNCustomHeaderView;
class VNDragAndDropManager;

// A tree widget in the toolkit's look with drag and drop through its own VNDragAndDropManager
// (see there), a VNCustomHeaderView as header, depth-first item numbers, an optional check box in
// the header that checks or unchecks every row, and the compare-differs look of the header.
class VNWIDGETS_EXPORT VNDragTreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit VNDragTreeWidget(QWidget* parent = nullptr);
    ~VNDragTreeWidget() override;

    // A drop of this tree's own rows onto another of its rows that ends with Qt::MoveAction moves
    // the dragged top-level rows in front of the target row.
    bool m_moveItemsOnDrop = false;

    VNDragAndDropManager* getDragAndDropManager() const { return m_dragAndDropManager; }

    // The item's position in a depth-first walk of the tree (top-level rows and their children in
    // order, starting at 0); -1 for null or foreign items. Cached until the tree changes.
    int getDFSIndex(const QTreeWidgetItem* item) const;
    QTreeWidgetItem* itemAtDFSIndex(int index) const;

    void setHeader(QHeaderView* header);
    // The header gets a check box in the column, at the alignment; it shows whether all, some or
    // none of the top-level rows are checked in that column, and a click checks or unchecks all.
    void useCheckStateHeader(int column = 0, Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter);
    void setHeaderDifferentFromComparison(bool different);
    bool isHeaderDifferentFromComparison() const { return m_headerDifferent; }

    // Builds the drag contents of the selected rows through the manager (what a mouse drag does
    // before the drag runs); null when nothing is to be dragged. finishDrag() ends it.
    QMimeData* prepareDragOfSelection(QPixmap& pixmap);
    QList<QTreeWidgetItem*> draggedItems() const { return m_draggedItems; }
    void finishDrag();

protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void invalidateDFSIndexes();
    void rebuildDFSIndexes() const;
    void moveDraggedItemsBefore(QTreeWidgetItem* target);
    void updateHeaderCheckBox();
    void setAllChecked(Qt::CheckState state);
    void applyHeaderSettings();
    VNCustomHeaderView* customHeader() const;

    VNDragAndDropManager* m_dragAndDropManager;
    QList<QTreeWidgetItem*> m_draggedItems;
    mutable QHash<const QTreeWidgetItem*, int> m_dfsIndexes;
    mutable QVector<QTreeWidgetItem*> m_dfsItems;
    mutable bool m_dfsValid = false;
    int m_checkStateColumn = -1;
    Qt::Alignment m_checkStateAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool m_headerDifferent = false;
};
