#include "VNControlledStackItem.h"

#include "VNDragTreeWidget.h"

VNControlledStackItem::VNControlledStackItem(QWidget* page)
    : QTreeWidgetItem(QTreeWidgetItem::UserType + 1)
    , m_page(page)
{
    setFlags(flags() | Qt::ItemIsEditable);
}

void VNControlledStackItem::setEditable(bool editable)
{
    setFlags(editable ? flags() | Qt::ItemIsEditable : flags() & ~Qt::ItemIsEditable);
}

void VNControlledStackItem::setChecked(bool checked)
{
    setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
}

VNControlledStackItem* VNControlledStackItem::itemAt(int index) const
{
    return static_cast<VNControlledStackItem*>(child(index));
}

int VNControlledStackItem::getDFSIndex() const
{
    auto* tree = qobject_cast<VNDragTreeWidget*>(treeWidget());
    return tree ? tree->getDFSIndex(this) : -1;
}
