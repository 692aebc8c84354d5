#include "TestMasterDetailTree.h"

#include <VNContainerListControl.h>
#include <VNControlledStackItem.h>
#include <VNControlledStackWidget.h>
#include <VNDragTreeWidget.h>
#include <VNLabel.h>
#include <VNStackContextHandler.h>
#include <VNStackControllerWidget.h>

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QVBoxLayout>

namespace {
const QColor subItemColor(0, 0, 255, 255);
const QColor topLevelColor(255, 0, 0, 255);

// Names the selection in the controller's context menu.
class TestMasterDetailTreeContextHandler : public VNStackContextHandler
{
public:
    explicit TestMasterDetailTreeContextHandler(TestMasterDetailTree* dialog)
        : m_dialog(dialog)
    {}

    void addContextMenuActions(QMenu* menu, VNControlledStackItem* item) override
    {
        if (!item)
            return;
        QTreeWidget* tree = m_dialog->controller()->getListControl()->treeWidget();
        const int selected = tree->selectionModel()->selectedRows(0).size();
        const QString text =
            selected > 1 ? TestMasterDetailTree::tr("multi selection") : TestMasterDetailTree::tr("single Selection");
        menu->addAction(new QAction(text, menu));
    }

private:
    TestMasterDetailTree* m_dialog;
};

QWidget* createDetailPage(const QString& text)
{
    auto* page = new QWidget;
    page->setWindowTitle(text);
    auto* layout = new QVBoxLayout(page);
    auto* header = new VNLabel(text, page);
    header->setProperty("detailheader", true);
    layout->addWidget(header);
    auto* frame = new QFrame(page);
    frame->setFrameShape(QFrame::Box);
    layout->addWidget(frame, 1);
    return page;
}

void setMarker(VNControlledStackItem* item, int marker)
{
    if (item)
        item->setData(0, VNControlledStackItem::SymmetryMarkerRole, marker);
}
} // namespace

TestMasterDetailTree::TestMasterDetailTree(QWidget* parent)
    : QDialog(parent)
    , m_stackWidget(nullptr)
    , m_controller(nullptr)
    , m_thirdLevel(false)
{
    setupUi(this);
    setUpController();
    m_alignmentCB->setCurrentIndex(m_controller->getDecorationAlignment() == Qt::AlignRight ? 0 : 1);
    m_controller->useCheckStateHeader();
    addInitialContents();
}

void TestMasterDetailTree::setUpController()
{
    auto* layout = new QHBoxLayout(controllerWidget);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    m_controller = new VNStackControllerWidget(controllerWidget, nullptr, 0);
    m_stackWidget = new VNControlledStackWidget(m_controller, controllerWidget);
    m_controller->createCustomContextMenu(16, true, -1);
    m_controller->setCustomContextMenuHandler(new TestMasterDetailTreeContextHandler(this));
    connect(m_stackWidget, &VNControlledStackWidget::currentChanged, this, &TestMasterDetailTree::currentChanged);
    m_controller->getListControl()->setEditable(true);
    layout->addWidget(m_controller);
    m_controller->enableMultiSelection(true);
    m_stackWidget->setHeaderLabel(tr("Controls"), true);
    layout->addWidget(m_stackWidget);
}

VNControlledStackItem* TestMasterDetailTree::addPage(const QString& text, VNControlledStackItem* parent)
{
    QWidget* page = createDetailPage(text);
    VNControlledStackItem* item = parent ? m_stackWidget->addItem(page, parent, -1) : m_stackWidget->addItem(page, -1);
    item->setText(text);
    if (m_iconCB->isChecked())
        item->setIcon(m_chooseIconCB->itemIcon(m_chooseIconCB->currentIndex()));
    if (m_colorBoxCB->isChecked())
        item->setData(0, VNControlledStackItem::ColorBoxRole, subItemColor);
    if (m_stackWidget->isCheckableItems() == VNControlledStackWidget::AllItem)
        item->setChecked(true);
    mirrorPage(m_qtreeWidget, text, parent != nullptr);
    mirrorPage(m_dragTreeWdg, text, parent != nullptr);
    return item;
}

void TestMasterDetailTree::mirrorPage(QTreeWidget* tree, const QString& text, bool hasParent)
{
    auto* item = new QTreeWidgetItem(QStringList(text));
    QTreeWidgetItem* top = tree->topLevelItem(tree->topLevelItemCount() - 1);
    if (!hasParent || !top) {
        tree->addTopLevelItem(item);
        return;
    }
    QTreeWidgetItem* parent = top;
    if (m_thirdLevel && top->childCount() > 0)
        parent = top->child(top->childCount() - 1);
    parent->addChild(item);
    parent->setExpanded(true);
}

VNControlledStackItem* TestMasterDetailTree::lastTopLevelItem() const
{
    return m_stackWidget->itemAt(m_stackWidget->itemCount() - 1);
}

void TestMasterDetailTree::on_m_addTopBtn_clicked()
{
    VNControlledStackItem* item = addPage(tr("Page %1").arg(m_stackWidget->itemCount()));
    item->setEditable(false);
}

void TestMasterDetailTree::on_m_addSubBtn_clicked()
{
    if (m_stackWidget->itemCount() == 0)
        on_m_addTopBtn_clicked();
    VNControlledStackItem* top = lastTopLevelItem();
    addPage(tr("Sub Page %1").arg(top->itemCount()), top);
}

void TestMasterDetailTree::on_m_addSubSubBtn_clicked()
{
    m_thirdLevel = true;
    if (m_stackWidget->itemCount() == 0)
        on_m_addSubBtn_clicked();
    VNControlledStackItem* top = lastTopLevelItem();
    // Without a sub page the new page goes under the page itself.
    VNControlledStackItem* sub = top->itemCount() > 0 ? top->itemAt(top->itemCount() - 1) : top;
    addPage(tr("Sub Sub Page %1").arg(sub->itemCount()), sub);
    m_thirdLevel = false;
    sub->setExpanded(true);
}

void TestMasterDetailTree::addInitialContents()
{
    on_m_addTopBtn_clicked();
    on_m_addSubBtn_clicked();
    on_m_addSubBtn_clicked();
    on_m_addSubSubBtn_clicked();
    on_m_addSubSubBtn_clicked();
    on_m_addSubBtn_clicked();
    on_m_addTopBtn_clicked();
    on_m_addTopBtn_clicked();
    on_m_addSubBtn_clicked();
    m_qtreeWidget->expandAll();
    m_dragTreeWdg->expandAll();
}

void TestMasterDetailTree::clearAll()
{
    m_stackWidget->clear();
    m_qtreeWidget->clear();
    m_dragTreeWdg->clear();
}

void TestMasterDetailTree::on_m_deleteAllBtn_clicked()
{
    clearAll();
}

void TestMasterDetailTree::on_m_initialSetup_clicked()
{
    clearAll();
    addInitialContents();
}

void TestMasterDetailTree::on_m_symmetrySetup_clicked()
{
    clearAll();
    for (int i = 0; i < 3; ++i) {
        on_m_addTopBtn_clicked();
        setMarker(m_stackWidget->itemAt(i), i);
    }
    on_m_addTopBtn_clicked();
    for (int i = 0; i < 3; ++i)
        on_m_addSubBtn_clicked();
    for (int i = 0; i < 3; ++i)
        setMarker(m_stackWidget->itemAt(3)->itemAt(i), i);
    on_m_addTopBtn_clicked();
    on_m_addSubBtn_clicked();
    for (int i = 0; i < 3; ++i)
        on_m_addSubSubBtn_clicked();
    for (int i = 0; i < 3; ++i)
        setMarker(m_stackWidget->itemAt(4)->itemAt(0)->itemAt(i), i);
    for (int i = 0; i < 2; ++i) {
        on_m_addTopBtn_clicked();
        on_m_addSubBtn_clicked();
        on_m_addSubSubBtn_clicked();
    }
    setMarker(m_stackWidget->itemAt(5), VNControlledStackItem::FirstItem);
    setMarker(m_stackWidget->itemAt(6), VNControlledStackItem::LastItem);
    on_m_addTopBtn_clicked();
    on_m_addSubBtn_clicked();
    on_m_addSubSubBtn_clicked();
    setMarker(m_stackWidget->itemAt(7)->itemAt(0), VNControlledStackItem::SingleItem);
    on_m_addTopBtn_clicked();
    on_m_addSubBtn_clicked();
    on_m_addSubBtn_clicked();
    setMarker(m_stackWidget->itemAt(8), VNControlledStackItem::SingleItem);
    setMarker(m_stackWidget->itemAt(8)->itemAt(0), VNControlledStackItem::FirstItem);
    setMarker(m_stackWidget->itemAt(8)->itemAt(1), VNControlledStackItem::LastItem);
    on_m_addTopBtn_clicked();
    on_m_addSubBtn_clicked();
    on_m_addSubSubBtn_clicked();
    on_m_addSubSubBtn_clicked();
    VNControlledStackItem* child = m_stackWidget->itemAt(9)->itemAt(0);
    setMarker(child, VNControlledStackItem::SingleItem);
    setMarker(child->itemAt(0), VNControlledStackItem::FirstItem);
    setMarker(child->itemAt(1), VNControlledStackItem::LastItem);
}

void TestMasterDetailTree::on_m_checkableStateCB_stateChanged(int state)
{
    m_stackWidget->setCheckableItems(state == Qt::Checked ? VNControlledStackWidget::AllItem
                                                          : VNControlledStackWidget::NoItem);
}

void TestMasterDetailTree::on_m_symBtn_clicked()
{
    const QList<QTreeWidgetItem*> selected = m_controller->getListControl()->treeWidget()->selectedItems();
    if (selected.isEmpty())
        return;
    auto marker = [](QTreeWidgetItem* item, int value) { setMarker(static_cast<VNControlledStackItem*>(item), value); };
    if (selected.size() == 1) {
        marker(selected.first(), VNControlledStackItem::SingleItem);
        return;
    }
    for (QTreeWidgetItem* item : selected)
        marker(item, VNControlledStackItem::InnerItem);
    marker(selected.first(), VNControlledStackItem::FirstItem);
    marker(selected.last(), VNControlledStackItem::LastItem);
}

void TestMasterDetailTree::on_m_selectBtn_clicked()
{
    QList<int> indices;
    for (QTreeWidgetItem* item : m_dragTreeWdg->selectedItems())
        indices << m_dragTreeWdg->getDFSIndex(item);
    m_stackWidget->setSelectedElementsByDfsIndex(indices);
}

void TestMasterDetailTree::updateIcons()
{
    const QIcon icon = m_iconCB->isChecked() ? m_chooseIconCB->itemIcon(m_chooseIconCB->currentIndex()) : QIcon();
    const bool topLevelToo = m_includeTopLevelItemsCB->isChecked();
    for (int i = 0; i < m_stackWidget->itemCount(); ++i) {
        VNControlledStackItem* top = m_stackWidget->itemAt(i);
        if (topLevelToo)
            top->setIcon(icon);
        for (int j = 0; j < top->itemCount(); ++j) {
            VNControlledStackItem* sub = top->itemAt(j);
            sub->setIcon(icon);
            for (int k = 0; k < sub->itemCount(); ++k)
                sub->itemAt(k)->setIcon(icon);
        }
    }
}

void TestMasterDetailTree::on_m_iconCB_stateChanged(int)
{
    m_leftIconInIndentationCB->setEnabled(m_iconCB->isChecked());
    updateIcons();
}

void TestMasterDetailTree::on_m_includeTopLevelItemsCB_stateChanged(int)
{
    updateIcons();
}

void TestMasterDetailTree::on_m_colorBoxCB_stateChanged(int)
{
    const bool on = m_colorBoxCB->isChecked();
    const QVariant top = on ? QVariant(topLevelColor) : QVariant();
    const QVariant deeper = on ? QVariant(subItemColor) : QVariant();
    for (int i = 0; i < m_stackWidget->itemCount(); ++i) {
        VNControlledStackItem* topItem = m_stackWidget->itemAt(i);
        topItem->setData(0, VNControlledStackItem::ColorBoxRole, top);
        for (int j = 0; j < topItem->itemCount(); ++j) {
            VNControlledStackItem* sub = topItem->itemAt(j);
            sub->setData(0, VNControlledStackItem::ColorBoxRole, deeper);
            for (int k = 0; k < sub->itemCount(); ++k)
                sub->itemAt(k)->setData(0, VNControlledStackItem::ColorBoxRole, deeper);
        }
    }
}

void TestMasterDetailTree::on_m_multiselectionEnabled_stateChanged(int)
{
    const bool multi = m_multiselectionEnabled->isChecked();
    m_controller->enableMultiSelection(multi);
    const auto mode = multi ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection;
    m_dragTreeWdg->setSelectionMode(mode);
    m_qtreeWidget->setSelectionMode(mode);
}

void TestMasterDetailTree::on_m_showGroupHeader_stateChanged(int)
{
    m_stackWidget->setShowTopLevelItemsAsGroupHeader(m_showGroupHeader->isChecked());
}

void TestMasterDetailTree::on_m_alignmentCB_currentIndexChanged(int index)
{
    m_controller->setDecorationAlignment(index == 0 ? Qt::AlignRight : Qt::AlignLeft);
}

void TestMasterDetailTree::on_m_leftIconInIndentationCB_stateChanged(int)
{
    m_controller->setPaintLeftIconInIndentation(m_leftIconInIndentationCB->isChecked());
}

void TestMasterDetailTree::currentChanged(VNControlledStackItem* current, VNControlledStackItem* previous)
{
    if (previous) {
        if (VNControlledStackItem* next = m_stackWidget->itemAtDFSIndex(previous->getDFSIndex() + 1))
            next->setData(0, VNControlledStackItem::HighlightRole, false);
    }
    if (current) {
        if (VNControlledStackItem* next = m_stackWidget->itemAtDFSIndex(current->getDFSIndex() + 1))
            next->setData(0, VNControlledStackItem::HighlightRole, m_useHighlighting->isChecked());
    }
}
