#include "VNControlledStackWidget.h"

#include "VNContainerListControl.h"
#include "VNControlledStackItem.h"
#include "VNDragTreeWidget.h"
#include "VNStackControllerWidget.h"

VNControlledStackWidget::VNControlledStackWidget(VNStackControllerWidget* controller, QWidget* parent)
    : QStackedWidget(parent)
    , m_controller(controller)
{
    setObjectName(QStringLiteral("vnControlledStackWidget"));
    controller->setStackWidget(this);
    connect(controller->getListControl()->treeWidget(), &QTreeWidget::currentItemChanged, this,
            &VNControlledStackWidget::onCurrentItemChanged);
}

VNControlledStackItem* VNControlledStackWidget::createItem(QWidget* page, int depth)
{
    auto* item = new VNControlledStackItem(page);
    const bool checkable = m_checkable == AllItem || (m_checkable == TopLevelItems && depth == 0) ||
                           (m_checkable == SubItems && depth > 0);
    if (checkable)
        item->setCheckState(0, Qt::Unchecked);
    if (page)
        addWidget(page);
    return item;
}

VNControlledStackItem* VNControlledStackWidget::addItem(QWidget* page, int index)
{
    VNControlledStackItem* item = createItem(page, 0);
    QTreeWidget* tree = m_controller->getListControl()->treeWidget();
    tree->insertTopLevelItem(index < 0 ? tree->topLevelItemCount() : index, item);
    return item;
}

VNControlledStackItem* VNControlledStackWidget::addItem(QWidget* page, VNControlledStackItem* parent, int index)
{
    if (!parent)
        return addItem(page, index);
    int depth = 1;
    for (QTreeWidgetItem* up = parent->parent(); up; up = up->parent())
        ++depth;
    VNControlledStackItem* item = createItem(page, depth);
    parent->insertChild(index < 0 ? parent->childCount() : index, item);
    return item;
}

int VNControlledStackWidget::itemCount() const
{
    return m_controller->getListControl()->treeWidget()->topLevelItemCount();
}

VNControlledStackItem* VNControlledStackWidget::itemAt(int index) const
{
    return static_cast<VNControlledStackItem*>(m_controller->getListControl()->treeWidget()->topLevelItem(index));
}

VNControlledStackItem* VNControlledStackWidget::itemAtDFSIndex(int index) const
{
    return static_cast<VNControlledStackItem*>(m_controller->getListControl()->treeWidget()->itemAtDFSIndex(index));
}

VNControlledStackItem* VNControlledStackWidget::currentItem() const
{
    return static_cast<VNControlledStackItem*>(m_controller->getListControl()->treeWidget()->currentItem());
}

void VNControlledStackWidget::clear()
{
    m_controller->getListControl()->treeWidget()->clear();
    while (count() > 0) {
        QWidget* page = widget(0);
        removeWidget(page);
        delete page;
    }
}

void VNControlledStackWidget::setHeaderLabel(const QString& label, bool visible)
{
    QTreeWidget* tree = m_controller->getListControl()->treeWidget();
    tree->setHeaderLabel(label);
    tree->setHeaderHidden(!visible);
}

void VNControlledStackWidget::setCheckableItems(CheckableItems checkable)
{
    m_checkable = checkable;
}

void VNControlledStackWidget::setSelectedElementsByDfsIndex(QList<int> indices)
{
    QTreeWidget* tree = m_controller->getListControl()->treeWidget();
    tree->clearSelection();
    bool first = true;
    for (int index : indices) {
        VNControlledStackItem* item = itemAtDFSIndex(index);
        if (!item)
            continue;
        if (first)
            tree->setCurrentItem(item);
        item->setSelected(true);
        first = false;
    }
}

void VNControlledStackWidget::setShowTopLevelItemsAsGroupHeader(bool show)
{
    m_controller->setShowTopLevelItemsAsGroupHeader(show);
}

void VNControlledStackWidget::onCurrentItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous)
{
    auto* currentItem = static_cast<VNControlledStackItem*>(current);
    if (currentItem && currentItem->page())
        setCurrentWidget(currentItem->page());
    emit currentChanged(currentItem, static_cast<VNControlledStackItem*>(previous));
}
