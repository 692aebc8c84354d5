#pragma once

#include "ui_TestVNTreeView.h"

#include <QDialog>
#include <QModelIndexList>

class QDropEvent;
class QMimeData;
class QStandardItemModel;
class VNTreeView;

// Two toolkit tree views side by side: rows dragged from the left one are copied into the right
// one in the private format "myMimeData", through the views' drag and drop managers.
class TestVNTreeView : public QDialog, private Ui::TestVNTreeView
{
    Q_OBJECT

public:
    explicit TestVNTreeView(QWidget* parent);
    ~TestVNTreeView() override;

    VNTreeView* sourceView() const { return m_sourceView; }
    VNTreeView* targetView() const { return m_targetView; }
    QStandardItemModel* sourceModel() const { return m_sourceModel; }
    QStandardItemModel* targetModel() const { return m_targetModel; }

private slots:
    void onAddItem();
    void onPrepareDrag(const QModelIndexList indexes, QMimeData& mimeData, QPixmap& pixmap);
    void onDropEvent(QDropEvent* event);

private:
    VNTreeView* m_sourceView;
    QStandardItemModel* m_sourceModel;
    VNTreeView* m_targetView;
    QStandardItemModel* m_targetModel;
};
