#pragma once

#include "ui_TestDendrogramWidget.h"

#include <VNDendrogramWidget.h>

#include <QDialog>
#include <QPoint>
#include <QStringList>

#include <memory>
#include <vector>

class QDragMoveEvent;
class QDropEvent;
class QMimeData;
class QTreeWidgetItem;

// The toolkit's dendrogram: components as rows, assembly operations as columns. The dialog keeps
// the links itself and hands the widget a fresh model after every change; links are added with
// the buttons or by dragging along a row (from the name into a column, or from one column on to
// a later one).
class TestDendrogramWidget : public QDialog, private Ui::TestDendrogramWidget
{
    Q_OBJECT

public:
    using Links = std::vector<Varnis::VNDendrogramWidget::DendrogramModel::Link>;

    explicit TestDendrogramWidget(QWidget* parent);
    ~TestDendrogramWidget() override;

    Varnis::VNDendrogramWidget* dendrogram() const { return m_dendrogram; }
    const Links& itemToColumnLinks() const { return m_itemToColumn; }
    const Links& columnToColumnLinks() const { return m_columnToColumn; }
    QStringList headerLabels() const { return m_headerLabels; }

private slots:
    void onItemToColumnAddClicked();
    void onColumnToColumnAddClicked();
    void onAddItemClicked();
    void onDeleteLastItemClicked();
    void onAddColumnClicked();
    void onBackToDefaultClicked();
    void onTreeDropEvent(QDropEvent* event);
    void onPrepareDrag(QList<QTreeWidgetItem*>& itemsToDrag, QMimeData& mimeData, QPixmap& dragicon);
    void onTreeDropTargetChanged(QTreeWidgetItem* newTarget, QTreeWidgetItem* oldTarget, QDragMoveEvent* event);

private:
    void rebuildModel();
    void fillDefaultContents();
    bool isSentByDendrogram() const;
    bool appendColumnLink(int row, int dragColumn, int dropColumn);

    Varnis::VNDendrogramWidget* m_dendrogram;
    Links m_itemToColumn;
    Links m_columnToColumn;
    QStringList m_headerLabels;
    QPoint m_dragStartPoint;
    // Rows taken out with "Delete last item" are not deleted then; the dialog keeps them until it goes.
    std::vector<std::unique_ptr<QTreeWidgetItem>> m_takenItems;
};
