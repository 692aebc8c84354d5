#include "TestDendrogramWidget.h"

#include "ItemViewPayloads.h"

#include <VNDragAndDropManager.h>
#include <VNItemDataRoles.h>

#include <QCursor>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QTreeWidgetItem>

namespace {
const QString dragFormat = QStringLiteral("application/dragContent");
const int columnWidth = 40;
} // namespace

TestDendrogramWidget::TestDendrogramWidget(QWidget* parent)
    : QDialog(parent)
    , m_dendrogram(nullptr)
{
    setupUi(this);
    m_dendrogram = new Varnis::VNDendrogramWidget(this);
    m_dendrogram->setObjectName(QStringLiteral("m_dendrogram"));
    m_dendrogram->setAccessibleName(tr("Dendrogram"));
    rebuildModel();
    m_dendrogram->setDragEnabled(true);
    VNDragAndDropManager* manager = m_dendrogram->getDragAndDropManager();
    manager->addAcceptedFormat(dragFormat);
    m_dendrogram->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_horizontalLayout->addWidget(m_dendrogram);
    fillDefaultContents();

    connect(manager, &VNDragAndDropManager::sigDropTargetChanged, this, &TestDendrogramWidget::onTreeDropTargetChanged);
    connect(manager,
            QOverload<QList<QTreeWidgetItem*>&, QMimeData&, QPixmap&>::of(&VNDragAndDropManager::sigPrepareDrag), this,
            &TestDendrogramWidget::onPrepareDrag);
    connect(manager, &VNDragAndDropManager::sigDropEvent, this, &TestDendrogramWidget::onTreeDropEvent);
    // The buttons' names are crossed over; what counts is the row each button sits in.
    connect(m_addColumnColumnToModel, &QPushButton::clicked, this, &TestDendrogramWidget::onItemToColumnAddClicked);
    connect(m_addItemColumnToModel, &QPushButton::clicked, this, &TestDendrogramWidget::onColumnToColumnAddClicked);
    connect(m_addItem, &QPushButton::clicked, this, &TestDendrogramWidget::onAddItemClicked);
    connect(m_deleteLastItem, &QPushButton::clicked, this, &TestDendrogramWidget::onDeleteLastItemClicked);
    connect(m_addColumn, &QPushButton::clicked, this, &TestDendrogramWidget::onAddColumnClicked);
    connect(m_backToDefault, &QPushButton::clicked, this, &TestDendrogramWidget::onBackToDefaultClicked);
}

TestDendrogramWidget::~TestDendrogramWidget() = default;

void TestDendrogramWidget::rebuildModel()
{
    auto model = std::make_shared<Varnis::VNDendrogramWidget::DendrogramModel>();
    model->itemToColumn = m_itemToColumn;
    model->columnToColumn = m_columnToColumn;
    m_dendrogram->setDendrogramModel(model);
    m_dendrogram->update();
}

void TestDendrogramWidget::fillDefaultContents()
{
    m_dendrogram->clear();
    m_headerLabels = QStringList{tr("Parts"), tr("AO-10"), QString()};
    m_dendrogram->setHeaderLabels(m_headerLabels);
    m_dendrogram->header()->resizeSection(1, columnWidth);
    m_dendrogram->header()->resizeSection(2, columnWidth);
    auto* item = new QTreeWidgetItem(m_dendrogram);
    item->setFlags(item->flags() | Qt::ItemIsDragEnabled);
    item->setText(0, tr("Component %1").arg(1));
}

void TestDendrogramWidget::onItemToColumnAddClicked()
{
    const double row = m_itemDoubleSpinBox->value();
    const double column = m_columnDoubleSpinBox->value();
    if (m_dendrogram->topLevelItemCount() >= row && m_dendrogram->columnCount() >= column) {
        m_itemToColumn.emplace_back(std::int32_t(column), std::int32_t(row));
        rebuildModel();
    }
}

void TestDendrogramWidget::onColumnToColumnAddClicked()
{
    const double start = m_startColumnDoubleSpinBox->value();
    const double end = m_endColumnDoubleSpinBox->value();
    if (m_dendrogram->columnCount() >= start && m_dendrogram->columnCount() >= end) {
        m_columnToColumn.emplace_back(std::int32_t(start), std::int32_t(end));
        rebuildModel();
    }
}

void TestDendrogramWidget::onAddItemClicked()
{
    auto* item = new QTreeWidgetItem(m_dendrogram);
    item->setFlags(item->flags() | Qt::ItemIsDragEnabled);
    item->setText(0, tr("Component %1").arg(m_dendrogram->topLevelItemCount()));
}

// The row is only taken out of the tree: the links to it stay in the model.
void TestDendrogramWidget::onDeleteLastItemClicked()
{
    if (QTreeWidgetItem* taken = m_dendrogram->takeTopLevelItem(m_dendrogram->topLevelItemCount() - 1))
        m_takenItems.emplace_back(taken);
}

void TestDendrogramWidget::onAddColumnClicked()
{
    m_headerLabels.removeLast();
    m_headerLabels.append(tr("AO-%1").arg(10 * m_headerLabels.size()));
    m_headerLabels.append(QString());
    m_dendrogram->setHeaderLabels(m_headerLabels);
    QAbstractItemModel* headerModel = m_dendrogram->header()->model();
    for (int column = 1; column < m_headerLabels.size(); ++column) {
        headerModel->setHeaderData(column, Qt::Horizontal, int(Qt::AlignLeft | Qt::AlignVCenter),
                                   Qt::TextAlignmentRole);
        headerModel->setHeaderData(column, Qt::Horizontal, true, VNItemDataRoles::ReadOnlyRole);
        m_dendrogram->header()->resizeSection(column, columnWidth);
    }
    m_dendrogram->update();
}

void TestDendrogramWidget::onBackToDefaultClicked()
{
    m_itemToColumn.clear();
    m_columnToColumn.clear();
    rebuildModel();
    fillDefaultContents();
    m_dendrogram->update();
}

// The manager of the dendrogram, or the dendrogram itself, sends the drag signals.
bool TestDendrogramWidget::isSentByDendrogram() const
{
    QObject* source = sender();
    if (auto* manager = qobject_cast<VNDragAndDropManager*>(source))
        source = manager->view();
    return source && qobject_cast<VNDragTreeWidget*>(source) == m_dendrogram;
}

void TestDendrogramWidget::onPrepareDrag(QList<QTreeWidgetItem*>& itemsToDrag, QMimeData& mimeData, QPixmap& dragicon)
{
    Q_UNUSED(dragicon)
    if (!isSentByDendrogram() || itemsToDrag.isEmpty())
        return;
    m_dragStartPoint = m_dendrogram->viewport()->mapFromGlobal(QCursor::pos());
    QList<QTreeWidgetItem*> items = itemsToDrag;
    std::sort(items.begin(), items.end(), [this](const QTreeWidgetItem* left, const QTreeWidgetItem* right) {
        return m_dendrogram->getDFSIndex(left) < m_dendrogram->getDFSIndex(right);
    });
    QStringList texts;
    for (const QTreeWidgetItem* item : qAsConst(items))
        texts.append(item->text(0));
    mimeData.setData(dragFormat,
                     ItemViewPayloads::writeDragContent(m_dendrogram->getDFSIndex(itemsToDrag.first()), texts));
}

void TestDendrogramWidget::onTreeDropEvent(QDropEvent* event)
{
    if (!isSentByDendrogram())
        return;
    QTreeWidgetItem* dropItem = m_dendrogram->itemAt(event->pos());
    if (!dropItem)
        return;
    const ItemViewPayloads::DragContent content =
        ItemViewPayloads::readDragContent(event->mimeData()->data(dragFormat));
    if (content.texts.isEmpty())
        return;
    const int row = content.index;
    if (m_dendrogram->topLevelItem(row) != dropItem)
        return;
    const int dropColumn = m_dendrogram->header()->logicalIndexAt(event->pos().x());
    const int dragColumn = m_dendrogram->header()->logicalIndexAt(m_dragStartPoint.x());
    const int trailingColumn = m_dendrogram->columnCount() - 1;
    if (dragColumn == 0 && dropColumn != 0) {
        if (dropColumn != trailingColumn) {
            m_itemToColumn.emplace_back(dropColumn, row);
            rebuildModel();
            event->accept();
            return;
        }
    } else if (dragColumn > 0 && dragColumn < dropColumn && dropColumn != trailingColumn) {
        if (appendColumnLink(row, dragColumn, dropColumn)) {
            rebuildModel();
            event->accept();
            return;
        }
    }
    event->setAccepted(false);
}

// A connector starts where the row has a mark, or where an earlier connector ends, so that
// chains grow from their end.
bool TestDendrogramWidget::appendColumnLink(int row, int dragColumn, int dropColumn)
{
    for (const auto& link : m_itemToColumn) {
        if (link.second == row && link.first == dragColumn) {
            m_columnToColumn.emplace_back(dragColumn, dropColumn);
            return true;
        }
    }
    for (const auto& link : m_columnToColumn) {
        if (link.second == dragColumn) {
            m_columnToColumn.emplace_back(dragColumn, dropColumn);
            return true;
        }
    }
    return false;
}

void TestDendrogramWidget::onTreeDropTargetChanged(QTreeWidgetItem* newTarget, QTreeWidgetItem* oldTarget,
                                                   QDragMoveEvent* event)
{
    Q_UNUSED(oldTarget)
    if (event)
        event->setDropAction(newTarget ? Qt::MoveAction : Qt::IgnoreAction);
}
