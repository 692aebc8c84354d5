#include "VNTreeView.h"

#include "VNDragAndDropManager.h"
#include "VNDropTargetPainter_p.h"

#include <QDragEnterEvent>
#include <QMimeData>

VNTreeView::VNTreeView(QWidget* parent)
    : QTreeView(parent)
    , m_dragAndDropManager(new VNDragAndDropManager(this))
{
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setAlternatingRowColors(true);
}

void VNTreeView::startDrag(Qt::DropActions supportedActions)
{
    QModelIndexList indexes;
    const QModelIndexList selected = selectedIndexes();
    for (const QModelIndex& index : selected) {
        if (index.flags() & Qt::ItemIsDragEnabled)
            indexes.append(index);
    }
    QPixmap pixmap;
    QMimeData* mimeData = m_dragAndDropManager->prepareDrag(indexes, pixmap);
    if (mimeData)
        m_dragAndDropManager->execDrag(mimeData, pixmap, supportedActions | Qt::CopyAction);
}

void VNTreeView::dragEnterEvent(QDragEnterEvent* event)
{
    m_dragAndDropManager->handleDragEnter(event, nullptr);
}

void VNTreeView::dragMoveEvent(QDragMoveEvent* event)
{
    m_dragAndDropManager->handleDragMove(event, nullptr);
}

void VNTreeView::dragLeaveEvent(QDragLeaveEvent* event)
{
    m_dragAndDropManager->handleDragLeave();
    event->accept();
}

void VNTreeView::dropEvent(QDropEvent* event)
{
    m_dragAndDropManager->handleDrop(event);
}

void VNTreeView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    vnPaintDropTarget(viewport(), m_dragAndDropManager->dropTargetRect());
}
