#include "VNDragTreeWidget.h"

#include "QtCompat.h"

#include "VNCustomHeaderView.h"
#include "VNDragAndDropManager.h"
#include "VNDropTargetPainter_p.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <algorithm>

VNDragTreeWidget::VNDragTreeWidget(QWidget* parent)
    : QTreeWidget(parent)
    , m_dragAndDropManager(new VNDragAndDropManager(this))
{
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    auto* defaultHeader = new VNCustomHeaderView(Qt::Horizontal, QSize(0, 0), this);
    defaultHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    defaultHeader->setStretchLastSection(true);
    setHeader(defaultHeader);
    QAbstractItemModel* treeModel = model();
    connect(treeModel, &QAbstractItemModel::rowsInserted, this, &VNDragTreeWidget::invalidateDFSIndexes);
    connect(treeModel, &QAbstractItemModel::rowsRemoved, this, &VNDragTreeWidget::invalidateDFSIndexes);
    connect(treeModel, &QAbstractItemModel::rowsMoved, this, &VNDragTreeWidget::invalidateDFSIndexes);
    connect(treeModel, &QAbstractItemModel::layoutChanged, this, &VNDragTreeWidget::invalidateDFSIndexes);
    connect(treeModel, &QAbstractItemModel::modelReset, this, &VNDragTreeWidget::invalidateDFSIndexes);
    connect(treeModel, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& topLeft, const QModelIndex& bottomRight) {
                if (m_checkStateColumn >= topLeft.column() && m_checkStateColumn <= bottomRight.column())
                    updateHeaderCheckBox();
            });
}

// The base class empties the model after this part of the object is gone; its signals must no
// longer reach it.
VNDragTreeWidget::~VNDragTreeWidget()
{
    disconnect(model(), nullptr, this, nullptr);
}

void VNDragTreeWidget::invalidateDFSIndexes()
{
    m_dfsValid = false;
    m_dfsIndexes.clear();
    m_dfsItems.clear();
    if (m_checkStateColumn >= 0)
        updateHeaderCheckBox();
}

// One walk numbers every item, so asking for all items costs linear time, not quadratic.
void VNDragTreeWidget::rebuildDFSIndexes() const
{
    m_dfsIndexes.clear();
    m_dfsItems.clear();
    QVector<QTreeWidgetItem*> stack;
    for (int i = topLevelItemCount() - 1; i >= 0; --i)
        stack.append(topLevelItem(i));
    while (!stack.isEmpty()) {
        QTreeWidgetItem* item = stack.takeLast();
        m_dfsIndexes.insert(item, m_dfsItems.size());
        m_dfsItems.append(item);
        for (int i = item->childCount() - 1; i >= 0; --i)
            stack.append(item->child(i));
    }
    m_dfsValid = true;
}

int VNDragTreeWidget::getDFSIndex(const QTreeWidgetItem* item) const
{
    if (!item)
        return -1;
    if (!m_dfsValid)
        rebuildDFSIndexes();
    return m_dfsIndexes.value(item, -1);
}

QTreeWidgetItem* VNDragTreeWidget::itemAtDFSIndex(int index) const
{
    if (!m_dfsValid)
        rebuildDFSIndexes();
    return index >= 0 && index < m_dfsItems.size() ? m_dfsItems.at(index) : nullptr;
}

void VNDragTreeWidget::setHeader(QHeaderView* header)
{
    QTreeWidget::setHeader(header);
    applyHeaderSettings();
}

VNCustomHeaderView* VNDragTreeWidget::customHeader() const
{
    return qobject_cast<VNCustomHeaderView*>(header());
}

void VNDragTreeWidget::applyHeaderSettings()
{
    VNCustomHeaderView* custom = customHeader();
    if (!custom)
        return;
    custom->setCompareDifferent(m_headerDifferent);
    if (m_checkStateColumn >= 0) {
        custom->setCheckBoxSection(m_checkStateColumn, m_checkStateAlignment);
        connect(custom, &VNCustomHeaderView::checkBoxClicked, this, &VNDragTreeWidget::setAllChecked,
                Qt::UniqueConnection);
        updateHeaderCheckBox();
    }
}

void VNDragTreeWidget::useCheckStateHeader(int column, Qt::Alignment alignment)
{
    m_checkStateColumn = column;
    m_checkStateAlignment = alignment;
    if (!customHeader())
        setHeader(new VNCustomHeaderView(Qt::Horizontal, QSize(0, 0), this));
    else
        applyHeaderSettings();
}

void VNDragTreeWidget::setHeaderDifferentFromComparison(bool different)
{
    m_headerDifferent = different;
    applyHeaderSettings();
}

void VNDragTreeWidget::updateHeaderCheckBox()
{
    VNCustomHeaderView* custom = customHeader();
    if (!custom || m_checkStateColumn < 0)
        return;
    int checked = 0;
    int partial = 0;
    const int count = topLevelItemCount();
    for (int i = 0; i < count; ++i) {
        const Qt::CheckState state = topLevelItem(i)->checkState(m_checkStateColumn);
        checked += state == Qt::Checked ? 1 : 0;
        partial += state == Qt::PartiallyChecked ? 1 : 0;
    }
    custom->setCheckBoxState(count > 0 && checked == count ? Qt::Checked
                             : checked > 0 || partial > 0  ? Qt::PartiallyChecked
                                                           : Qt::Unchecked);
}

void VNDragTreeWidget::setAllChecked(Qt::CheckState state)
{
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = topLevelItem(i);
        if (item->flags() & Qt::ItemIsUserCheckable)
            item->setCheckState(m_checkStateColumn, state);
    }
    updateHeaderCheckBox();
}

QMimeData* VNDragTreeWidget::prepareDragOfSelection(QPixmap& pixmap)
{
    QList<QTreeWidgetItem*> items;
    const QList<QTreeWidgetItem*> selected = selectedItems();
    for (QTreeWidgetItem* item : selected) {
        if (item->flags() & Qt::ItemIsDragEnabled)
            items.append(item);
    }
    std::sort(items.begin(), items.end(), [this](const QTreeWidgetItem* left, const QTreeWidgetItem* right) {
        return getDFSIndex(left) < getDFSIndex(right);
    });
    QMimeData* mimeData = m_dragAndDropManager->prepareDrag(items, pixmap);
    m_draggedItems = mimeData ? items : QList<QTreeWidgetItem*>();
    return mimeData;
}

void VNDragTreeWidget::finishDrag()
{
    m_draggedItems.clear();
    m_dragAndDropManager->finishDrag();
    viewport()->update();
}

void VNDragTreeWidget::startDrag(Qt::DropActions supportedActions)
{
    QPixmap pixmap;
    QMimeData* mimeData = prepareDragOfSelection(pixmap);
    if (!mimeData)
        return;
    m_dragAndDropManager->execDrag(mimeData, pixmap, supportedActions | Qt::CopyAction | Qt::MoveAction);
    finishDrag();
}

void VNDragTreeWidget::dragEnterEvent(QDragEnterEvent* event)
{
    m_dragAndDropManager->handleDragEnter(event, itemAt(QtCompat::position(event)));
}

void VNDragTreeWidget::dragMoveEvent(QDragMoveEvent* event)
{
    m_dragAndDropManager->handleDragMove(event, itemAt(QtCompat::position(event)));
}

void VNDragTreeWidget::dragLeaveEvent(QDragLeaveEvent* event)
{
    m_dragAndDropManager->handleDragLeave();
    event->accept();
}

void VNDragTreeWidget::dropEvent(QDropEvent* event)
{
    QTreeWidgetItem* target = itemAt(QtCompat::position(event));
    const bool ownDrag = m_dragAndDropManager->isOwnDrag(event);
    if (!m_dragAndDropManager->handleDrop(event))
        return;
    if (m_moveItemsOnDrop && ownDrag && event->dropAction() == Qt::MoveAction && target)
        moveDraggedItemsBefore(target);
}

void VNDragTreeWidget::moveDraggedItemsBefore(QTreeWidgetItem* target)
{
    if (target->parent() || m_draggedItems.contains(target))
        return;
    QList<QTreeWidgetItem*> moving;
    for (QTreeWidgetItem* item : qAsConst(m_draggedItems)) {
        if (!item->parent() && indexOfTopLevelItem(item) >= 0)
            moving.append(item);
    }
    for (QTreeWidgetItem* item : qAsConst(moving))
        takeTopLevelItem(indexOfTopLevelItem(item));
    int row = indexOfTopLevelItem(target);
    for (QTreeWidgetItem* item : qAsConst(moving)) {
        insertTopLevelItem(row++, item);
        item->setSelected(true);
    }
    m_draggedItems.clear();
}

void VNDragTreeWidget::paintEvent(QPaintEvent* event)
{
    QTreeWidget::paintEvent(event);
    vnPaintDropTarget(viewport(), m_dragAndDropManager->dropTargetRect());
}
