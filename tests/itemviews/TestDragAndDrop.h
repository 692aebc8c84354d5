#pragma once

#include "ui_TestDragAndDrop.h"

#include <QDialog>

class QDropEvent;
class QMimeData;
class QTreeWidgetItem;

// Two toolkit drag tree widgets: rows dragged from the initiator (drag only) are copied into the
// target (drops only) in the private format "myMimeData", in front of the row they land on.
class TestDragAndDrop : public QDialog, private Ui::TestDragAndDrop
{
    Q_OBJECT

public:
    explicit TestDragAndDrop(QWidget* parent);

private slots:
    void onAddItem();
    void onPrepareDrag(QList<QTreeWidgetItem*>& items, QMimeData& mimeData, QPixmap& pixmap);
    void onDropEvent(QDropEvent* event);
};
