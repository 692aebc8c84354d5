#include "VNDragAndDropManager.h"

#include "QtCompat.h"

#include <QAbstractItemView>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QTreeWidget>

namespace {
const int maxPixmapRows = 5;
} // namespace

VNDragAndDropManager::VNDragAndDropManager(QAbstractItemView* view)
    : QObject(view)
    , m_view(view)
{}

void VNDragAndDropManager::addAcceptedFormat(const QString& format)
{
    if (!m_acceptedFormats.contains(format))
        m_acceptedFormats.append(format);
}

bool VNDragAndDropManager::acceptsMimeData(const QMimeData* mimeData) const
{
    if (!mimeData)
        return false;
    for (const QString& format : m_acceptedFormats) {
        if (mimeData->hasFormat(format))
            return true;
    }
    return false;
}

bool VNDragAndDropManager::isOwnDrag(const QDropEvent* event) const
{
    QObject* source = event->source();
    if (source)
        return source == m_view || source == m_view->viewport();
    return m_ownDragActive;
}

bool VNDragAndDropManager::acceptsDrag(const QDropEvent* event) const
{
    if (!m_view->isEnabled() || m_view->dragDropMode() == QAbstractItemView::DragOnly ||
        m_view->dragDropMode() == QAbstractItemView::NoDragDrop)
        return false;
    if (!m_acceptExternalDrops && !isOwnDrag(event))
        return false;
    return acceptsMimeData(event->mimeData());
}

QMimeData* VNDragAndDropManager::prepareDrag(const QModelIndexList& indexes, QPixmap& pixmap)
{
    if (indexes.isEmpty())
        return nullptr;
    pixmap = m_createDragPixmap ? renderRows(indexes) : QPixmap();
    auto* mimeData = new QMimeData;
    emit sigPrepareDrag(indexes, *mimeData, pixmap);
    if (mimeData->formats().isEmpty()) {
        delete mimeData;
        return nullptr;
    }
    m_ownDragActive = true;
    return mimeData;
}

QMimeData* VNDragAndDropManager::prepareDrag(QList<QTreeWidgetItem*>& items, QPixmap& pixmap)
{
    auto* tree = qobject_cast<QTreeWidget*>(m_view);
    if (items.isEmpty() || !tree)
        return nullptr;
    QModelIndexList indexes;
    for (QTreeWidgetItem* item : items) {
        const QRect rect = tree->visualItemRect(item);
        if (rect.isValid())
            indexes.append(tree->indexAt(rect.center()));
    }
    pixmap = m_createDragPixmap ? renderRows(indexes) : QPixmap();
    auto* mimeData = new QMimeData;
    emit sigPrepareDrag(items, *mimeData, pixmap);
    if (mimeData->formats().isEmpty()) {
        delete mimeData;
        return nullptr;
    }
    m_ownDragActive = true;
    return mimeData;
}

// A translucent picture of the first dragged rows, as they are drawn in the view.
QPixmap VNDragAndDropManager::renderRows(const QModelIndexList& indexes) const
{
    QList<QRect> rows;
    for (const QModelIndex& index : indexes) {
        QRect rect = m_view->visualRect(index.sibling(index.row(), 0));
        if (!rect.isValid())
            continue;
        rect.setLeft(0);
        rect.setRight(m_view->viewport()->width() - 1);
        if (!rows.contains(rect))
            rows.append(rect);
        if (rows.size() == maxPixmapRows)
            break;
    }
    if (rows.isEmpty())
        return {};
    const int width = qMin(rows.first().width(), 300);
    int height = 0;
    for (const QRect& rect : rows)
        height += rect.height();
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(0.7);
    int y = 0;
    for (const QRect& rect : rows) {
        painter.drawPixmap(0, y, m_view->viewport()->grab(QRect(rect.topLeft(), QSize(width, rect.height()))));
        y += rect.height();
    }
    return pixmap;
}

Qt::DropAction VNDragAndDropManager::execDrag(QMimeData* mimeData, const QPixmap& pixmap, Qt::DropActions actions)
{
    auto* drag = new QDrag(m_view);
    drag->setMimeData(mimeData);
    if (!pixmap.isNull()) {
        drag->setPixmap(pixmap);
        drag->setHotSpot(QPoint(10, qMin(pixmap.height() / 2, 10)));
    }
    const Qt::DropAction result = drag->exec(actions, Qt::CopyAction);
    finishDrag();
    return result;
}

void VNDragAndDropManager::finishDrag()
{
    m_ownDragActive = false;
    handleDragLeave();
}

void VNDragAndDropManager::handleDragEnter(QDragEnterEvent* event, QTreeWidgetItem* target)
{
    m_targetKnown = false;
    m_currentTarget = nullptr;
    if (!acceptsDrag(event)) {
        event->ignore();
        return;
    }
    decide(event, target);
    // Qt sends the moves of a drag only to a widget that took its enter event; whether a drop is
    // allowed where the drag entered is told by the drop action, so the moves keep coming.
    event->accept();
}

void VNDragAndDropManager::handleDragMove(QDragMoveEvent* event, QTreeWidgetItem* target)
{
    if (!acceptsDrag(event)) {
        event->ignore();
        setDropTargetRect({});
        return;
    }
    decide(event, target);
}

// Tree widgets ask the receiver of sigDropTargetChanged each time the item under the cursor
// changes; its drop action holds until the next change. Views take every accepted drag.
void VNDragAndDropManager::decide(QDragMoveEvent* event, QTreeWidgetItem* target)
{
    auto* tree = qobject_cast<QTreeWidget*>(m_view);
    if (!tree) {
        event->acceptProposedAction();
        const QModelIndex index = m_view->indexAt(QtCompat::position(event));
        setDropTargetRect(index.isValid() ? m_view->visualRect(index) : QRect());
        return;
    }
    if (!m_targetKnown || target != m_currentTarget) {
        QTreeWidgetItem* oldTarget = m_targetKnown ? m_currentTarget : nullptr;
        m_currentTarget = target;
        m_targetKnown = true;
        event->setDropAction(event->proposedAction());
        emit sigDropTargetChanged(target, oldTarget, event);
        m_targetAction = event->dropAction();
    }
    event->setDropAction(m_targetAction);
    if (m_targetAction == Qt::IgnoreAction) {
        event->ignore();
        setDropTargetRect({});
        return;
    }
    event->accept();
    QRect rect = target ? tree->visualItemRect(target) : QRect();
    if (rect.isValid()) {
        rect.setLeft(0);
        rect.setRight(m_view->viewport()->width() - 1);
    }
    setDropTargetRect(rect);
}

void VNDragAndDropManager::handleDragLeave()
{
    m_targetKnown = false;
    m_currentTarget = nullptr;
    setDropTargetRect({});
}

bool VNDragAndDropManager::handleDrop(QDropEvent* event)
{
    const bool decided = m_targetKnown;
    const Qt::DropAction action = m_targetAction;
    handleDragLeave();
    if (!acceptsDrag(event)) {
        event->ignore();
        return false;
    }
    if (decided && qobject_cast<QTreeWidget*>(m_view)) {
        if (action == Qt::IgnoreAction) {
            event->ignore();
            return false;
        }
        event->setDropAction(action);
    } else {
        event->setDropAction(event->proposedAction());
    }
    event->accept();
    emit sigDropEvent(event);
    return event->isAccepted();
}

void VNDragAndDropManager::setDropTargetRect(const QRect& rect)
{
    if (!m_highlightDropTarget || rect == m_dropTargetRect)
        return;
    m_dropTargetRect = rect;
    m_view->viewport()->update();
}
