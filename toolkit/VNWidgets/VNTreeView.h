#pragma once

#include "vnwidgets_export.h"

#include <QTreeView>

class VNDragAndDropManager;

// A tree view in the toolkit's look that owns a drag and drop manager: a drag asks the manager's
// sigPrepareDrag receiver for the mime data, and only drops of the manager's accepted formats are
// taken and reported through sigDropEvent. Drops are welcome unless the drag-drop mode is DragOnly.
class VNWIDGETS_EXPORT VNTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit VNTreeView(QWidget* parent = nullptr);

    VNDragAndDropManager* getDragAndDropManager() const { return m_dragAndDropManager; }

protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    VNDragAndDropManager* m_dragAndDropManager;
};
