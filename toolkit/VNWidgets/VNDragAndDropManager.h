#pragma once

#include "vnwidgets_export.h"

#include <QModelIndexList>
#include <QObject>
#include <QPixmap>
#include <QStringList>

class QAbstractItemView;
class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QMimeData;
class QTreeWidgetItem;

// Drag and drop for one toolkit view (VNTreeView) or tree widget (VNDragTreeWidget); the view
// owns it and hands it its drag and drop events.
//
// Dragging: when a drag starts, the manager renders a pixmap of the dragged rows and emits
// sigPrepareDrag, whose receiver fills the mime data (and may replace the pixmap). A drag whose
// mime data stays empty does not start. Dropping: only mime data with one of the accepted formats
// is taken; while dragging over a tree widget, sigDropTargetChanged tells the receiver which item
// is under the cursor, and the drop action the receiver sets decides the cursor and whether a drop
// there is allowed. A drop of an accepted format raises sigDropEvent, accepted unless the receiver
// clears the acceptance.
class VNWIDGETS_EXPORT VNDragAndDropManager : public QObject
{
    Q_OBJECT

public:
    explicit VNDragAndDropManager(QAbstractItemView* view);

    // While dragging over the view, the row under the cursor is framed in the drop colour.
    bool m_highlightDropTarget = false;
    // Drops that come from other widgets are taken; false: only drags that started in this view.
    bool m_acceptExternalDrops = true;
    // A pixmap of the dragged rows goes with the drag; false: the system's plain drag cursor.
    bool m_createDragPixmap = true;

    void addAcceptedFormat(const QString& format);
    QStringList acceptedFormats() const { return m_acceptedFormats; }
    bool acceptsMimeData(const QMimeData* mimeData) const;
    // Whether the view takes this drag at all: accepted format, source allowed, view not drag-only.
    bool acceptsDrag(const QDropEvent* event) const;

    QAbstractItemView* view() const { return m_view; }

    // Builds the drag contents through sigPrepareDrag; null when the receiver added nothing.
    QMimeData* prepareDrag(const QModelIndexList& indexes, QPixmap& pixmap);
    QMimeData* prepareDrag(QList<QTreeWidgetItem*>& items, QPixmap& pixmap);
    // Runs a real drag with the prepared contents (blocks until the drop, as QDrag::exec does).
    Qt::DropAction execDrag(QMimeData* mimeData, const QPixmap& pixmap, Qt::DropActions actions);

    // Event handling for the owning view. The tree widget passes the item under the cursor.
    void handleDragEnter(QDragEnterEvent* event, QTreeWidgetItem* target);
    void handleDragMove(QDragMoveEvent* event, QTreeWidgetItem* target);
    void handleDragLeave();
    // Returns whether the drop was taken (the event is accepted afterwards).
    bool handleDrop(QDropEvent* event);

    QRect dropTargetRect() const { return m_dropTargetRect; }
    // Whether a drag prepared by this manager is under way (from prepareDrag to finishDrag).
    bool isOwnDragActive() const { return m_ownDragActive; }
    bool isOwnDrag(const QDropEvent* event) const;
    void finishDrag();

signals:
    void sigPrepareDrag(const QModelIndexList indexes, QMimeData& mimeData, QPixmap& pixmap);
    void sigPrepareDrag(QList<QTreeWidgetItem*>& items, QMimeData& mimeData, QPixmap& pixmap);
    void sigDropTargetChanged(QTreeWidgetItem* newTarget, QTreeWidgetItem* oldTarget, QDragMoveEvent* event);
    void sigDropEvent(QDropEvent* event);

private:
    QPixmap renderRows(const QModelIndexList& indexes) const;
    void decide(QDragMoveEvent* event, QTreeWidgetItem* target);
    void setDropTargetRect(const QRect& rect);

    QAbstractItemView* m_view;
    QStringList m_acceptedFormats;
    QTreeWidgetItem* m_currentTarget = nullptr;
    bool m_targetKnown = false;
    Qt::DropAction m_targetAction = Qt::IgnoreAction;
    QRect m_dropTargetRect;
    bool m_ownDragActive = false;
};
