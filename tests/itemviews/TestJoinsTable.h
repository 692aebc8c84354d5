#pragma once

#include "ui_TestJoinsTable.h"

#include <QColor>
#include <QDialog>

class QDragMoveEvent;
class QDropEvent;
class QMimeData;
class QTreeWidgetItem;
class VNCustomHeaderView;

// A table of ten joins on the toolkit's drag tree widget: each row is switched active with an icon
// toggle, has an order number and a name, and uses exactly one of three paths (coloured toggles
// that behave like radio buttons). Rows are reordered by dropping them onto other rows; clicking a
// path header selects the rows using that path, and selected rows mark the headers of their paths.
class TestJoinsTable : public QDialog, private Ui::TestJoinsTable
{
    Q_OBJECT

public:
    explicit TestJoinsTable(QWidget* parent);

    // The "on" colour of path column 3 + k.
    static QColor pathColor(int k);

    VNDragTreeWidget* table() const { return treeWidget; }
    VNCustomHeaderView* customHeader() const { return m_header; }

private slots:
    void on_m_enabled_toggled(bool checked);
    void onPathItemToggled(const QModelIndex& modelIndex, const bool enable);
    void onItemActiveChanged(const QModelIndex& modelIndex, const bool enable);
    void onHeaderClicked(int logicalindex);
    void onItemSelectionChanged();
    void prepareDrag(QList<QTreeWidgetItem*>& itemsToDrag, QMimeData& mimeData, QPixmap& dragIcon);
    void onDropEvent(QDropEvent* event);
    void onDropTargetChanged(QTreeWidgetItem* newTarget, QTreeWidgetItem* oldTarget, QDragMoveEvent* event);

private:
    void fillTable();

    VNCustomHeaderView* m_header = nullptr;
};
