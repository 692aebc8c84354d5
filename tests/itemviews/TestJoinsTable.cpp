#include "TestJoinsTable.h"

#include "ItemViewPayloads.h"

#include <IconToggleDelegate.h>
#include <VNCustomHeaderView.h>
#include <VNDragAndDropManager.h>
#include <VNItemDataRoles.h>
#include <VNItemDelegate.h>

#include <QDragMoveEvent>
#include <QMimeData>
#include <QTreeWidgetItemIterator>

namespace {
const QString dragFormat = QStringLiteral("application/ap-component");
const int useColumn = 0;
const int firstPathColumn = 3;
const int pathCount = 3;
const int rowCount = 10;

int draggedRow(const QMimeData* mimeData)
{
    if (!mimeData || !mimeData->hasFormat(dragFormat))
        return -1;
    return ItemViewPayloads::readFirstComponent(mimeData->data(dragFormat));
}
} // namespace

QColor TestJoinsTable::pathColor(int k)
{
    static const QColor palette[] = {QColor::fromRgbF(0.2, 0.266667, 1.0),      QColor::fromRgbF(0.0, 0.835294, 1.0),
                                     QColor::fromRgbF(0.298039, 1.0, 0.592157), QColor::fromRgbF(0.266667, 0.8, 0.0),
                                     QColor::fromRgbF(0.8, 0.752941, 0.239216), QColor::fromRgbF(1.0, 0.129412, 0.0),
                                     QColor::fromRgbF(1.0, 0.298039, 0.709804), QColor::fromRgbF(0.666667, 0.0, 1.0)};
    if (k >= 0 && k < int(sizeof(palette) / sizeof(palette[0])))
        return palette[k];
    return QColor::fromRgbF(0.419608, 0.494118, 0.6);
}

TestJoinsTable::TestJoinsTable(QWidget* parent)
    : QDialog(parent)
{
    setupUi(this);

    m_header = new VNCustomHeaderView(Qt::Horizontal, QSize(4, 0), nullptr);
    connect(m_header, &QHeaderView::sectionClicked, this, &TestJoinsTable::onHeaderClicked);
    treeWidget->setHeader(m_header);
    m_header->setSectionsClickable(true);

    treeWidget->setDragDropMode(QAbstractItemView::DragDrop);
    treeWidget->setDragEnabled(true);
    VNDragAndDropManager* manager = treeWidget->getDragAndDropManager();
    manager->addAcceptedFormat(dragFormat);
    manager->m_highlightDropTarget = true;

    fillTable();
    treeWidget->m_moveItemsOnDrop = true;

    auto* itemDelegate = new VNItemDelegate(this);
    itemDelegate->m_drawColumnSeparators = true;
    treeWidget->setItemDelegate(itemDelegate);

    auto* useDelegate = new IconToggleDelegate(IconToggleDelegate::Radio, treeWidget);
    connect(useDelegate, &IconToggleDelegate::toggled, this, &TestJoinsTable::onItemActiveChanged);
    treeWidget->setItemDelegateForColumn(useColumn, useDelegate);

    for (int k = 0; k < pathCount; ++k) {
        auto* pathDelegate = new IconToggleDelegate(IconToggleDelegate::Radio, treeWidget);
        pathDelegate->setBaseColorOn(pathColor(k));
        pathDelegate->setBaseColorOff(Qt::transparent);
        pathDelegate->setIconSize(QSize(7, 7));
        connect(pathDelegate, &IconToggleDelegate::toggled, this, &TestJoinsTable::onPathItemToggled);
        treeWidget->setItemDelegateForColumn(firstPathColumn + k, pathDelegate);
    }

    treeWidget->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(treeWidget, &QTreeWidget::itemSelectionChanged, this, &TestJoinsTable::onItemSelectionChanged);
    connect(manager,
            QOverload<QList<QTreeWidgetItem*>&, QMimeData&, QPixmap&>::of(&VNDragAndDropManager::sigPrepareDrag), this,
            &TestJoinsTable::prepareDrag);
    connect(manager, &VNDragAndDropManager::sigDropTargetChanged, this, &TestJoinsTable::onDropTargetChanged);
    connect(manager, &VNDragAndDropManager::sigDropEvent, this, &TestJoinsTable::onDropEvent);
}

void TestJoinsTable::fillTable()
{
    treeWidget->setHeaderLabels({tr("Use"), tr("Order"), tr("Name"), tr("Path 1"), tr("Path 2"), tr("Path 3")});
    QAbstractItemModel* headerModel = m_header->model();
    const int fixedWidths[] = {35, 40, 80};
    for (int column = 0; column < firstPathColumn; ++column) {
        headerModel->setHeaderData(column, Qt::Horizontal, int(Qt::AlignLeft | Qt::AlignVCenter),
                                   Qt::TextAlignmentRole);
        headerModel->setHeaderData(column, Qt::Horizontal, true, VNItemDataRoles::ReadOnlyRole);
        m_header->setSectionResizeMode(column, column == 2 ? QHeaderView::ResizeToContents : QHeaderView::Fixed);
        m_header->resizeSection(column, fixedWidths[column]);
    }
    for (int column = firstPathColumn; column < firstPathColumn + pathCount; ++column) {
        headerModel->setHeaderData(column, Qt::Horizontal, int(Qt::AlignHCenter | Qt::AlignVCenter),
                                   Qt::TextAlignmentRole);
        m_header->setSectionResizeMode(column, QHeaderView::Fixed);
        m_header->resizeSection(column, 40);
        m_header->setSelectable(true, column);
    }
    for (int i = 1; i <= rowCount; ++i) {
        auto* item = new QTreeWidgetItem(treeWidget);
        item->setCheckState(useColumn, Qt::Checked);
        item->setText(1, tr("%1.").arg(i));
        item->setText(2, tr("Join %1").arg(i));
        item->setCheckState(3, (i - 1) % 3 == 0 ? Qt::Checked : Qt::Unchecked);
        item->setCheckState(4, (i + 1) % 3 == 0 ? Qt::Checked : Qt::Unchecked);
        item->setCheckState(5, i % 3 == 0 ? Qt::Checked : Qt::Unchecked);
    }
}

void TestJoinsTable::on_m_enabled_toggled(bool checked)
{
    treeWidget->setEnabled(checked);
}

// Like a radio button: the toggled path becomes the row's only path, whichever way it was flipped.
void TestJoinsTable::onPathItemToggled(const QModelIndex& modelIndex, const bool enable)
{
    Q_UNUSED(enable)
    QAbstractItemModel* model = treeWidget->model();
    for (int column = firstPathColumn; column < firstPathColumn + pathCount; ++column) {
        const QModelIndex cell = modelIndex.sibling(modelIndex.row(), column);
        model->setData(cell, column == modelIndex.column() ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    }
}

void TestJoinsTable::onItemActiveChanged(const QModelIndex& modelIndex, const bool enable)
{
    QAbstractItemModel* model = treeWidget->model();
    for (int column = 1; column < firstPathColumn + pathCount; ++column)
        model->setData(modelIndex.sibling(modelIndex.row(), column), enable, VNItemDataRoles::ActiveRole);
}

void TestJoinsTable::onHeaderClicked(int logicalindex)
{
    for (QTreeWidgetItemIterator it(treeWidget); *it; ++it)
        (*it)->setSelected((*it)->data(logicalindex, Qt::EditRole).toBool());
}

void TestJoinsTable::onItemSelectionChanged()
{
    QList<int> columns;
    const QList<QTreeWidgetItem*> selected = treeWidget->selectedItems();
    for (const QTreeWidgetItem* item : selected) {
        for (int column = firstPathColumn; column < firstPathColumn + pathCount; ++column) {
            if (item->data(column, Qt::EditRole).toBool() && !columns.contains(column))
                columns.append(column);
        }
    }
    m_header->setSelectedIndexes(columns);
}

void TestJoinsTable::prepareDrag(QList<QTreeWidgetItem*>& itemsToDrag, QMimeData& mimeData, QPixmap& dragIcon)
{
    Q_UNUSED(dragIcon)
    if (itemsToDrag.isEmpty())
        return;
    mimeData.setData(dragFormat, ItemViewPayloads::writeComponents({treeWidget->getDFSIndex(itemsToDrag.first())}));
}

// The tree widget moves the row itself when the drop ends with the move action chosen below.
void TestJoinsTable::onDropEvent(QDropEvent* event)
{
    Q_UNUSED(event)
}

void TestJoinsTable::onDropTargetChanged(QTreeWidgetItem* newTarget, QTreeWidgetItem* oldTarget, QDragMoveEvent* event)
{
    Q_UNUSED(oldTarget)
    if (!event)
        return;
    const int dragged = draggedRow(event->mimeData());
    const int target = treeWidget->indexOfTopLevelItem(newTarget);
    event->setDropAction(dragged >= 0 && target != -1 && target != dragged ? Qt::MoveAction : Qt::IgnoreAction);
}
