#include "TestDragAndDrop.h"

#include "ItemViewPayloads.h"

#include <VNDragAndDropManager.h>

#include <QDropEvent>
#include <QMimeData>

namespace {
const QString dragFormat = QStringLiteral("myMimeData");
} // namespace

TestDragAndDrop::TestDragAndDrop(QWidget* parent)
    : QDialog(parent)
{
    setupUi(this);
    m_targetTree->setDragEnabled(true);
    m_targetTree->getDragAndDropManager()->addAcceptedFormat(dragFormat);
    connect(m_addItemButton, &QPushButton::pressed, this, &TestDragAndDrop::onAddItem);
    connect(m_initiatorTree->getDragAndDropManager(),
            QOverload<QList<QTreeWidgetItem*>&, QMimeData&, QPixmap&>::of(&VNDragAndDropManager::sigPrepareDrag), this,
            &TestDragAndDrop::onPrepareDrag);
    connect(m_targetTree->getDragAndDropManager(), &VNDragAndDropManager::sigDropEvent, this,
            &TestDragAndDrop::onDropEvent);
}

// The item is already the last row when the count is read, hence the first one is item_2.
void TestDragAndDrop::onAddItem()
{
    auto* item = new QTreeWidgetItem(m_initiatorTree);
    item->setText(0, tr("item_%1").arg(m_initiatorTree->topLevelItemCount() + 1));
    m_initiatorTree->addTopLevelItem(item);
}

void TestDragAndDrop::onPrepareDrag(QList<QTreeWidgetItem*>& items, QMimeData& mimeData, QPixmap& pixmap)
{
    Q_UNUSED(pixmap)
    if (items.isEmpty())
        return;
    mimeData.setData(dragFormat, ItemViewPayloads::writeText(items.first()->text(0)));
}

void TestDragAndDrop::onDropEvent(QDropEvent* event)
{
    const QMimeData* mimeData = event->mimeData();
    if (!mimeData || !mimeData->hasFormat(dragFormat))
        return;
    QString text;
    if (!ItemViewPayloads::readText(mimeData->data(dragFormat), text)) {
        event->ignore();
        return;
    }
    auto* item = new QTreeWidgetItem;
    item->setText(0, text);
    const int row = m_targetTree->indexOfTopLevelItem(m_targetTree->itemAt(event->pos()));
    if (row >= 0)
        m_targetTree->insertTopLevelItem(row, item);
    else
        m_targetTree->addTopLevelItem(item);
}
