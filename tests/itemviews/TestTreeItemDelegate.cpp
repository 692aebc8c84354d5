#include "TestTreeItemDelegate.h"

#include <VNItemDataRoles.h>
#include <VNItemDelegate.h>

namespace {
const int lineColumn = 1;

QTreeWidgetItem* newRow(const QString& text, Qt::ItemFlags flags, int treeLine)
{
    auto* item = new QTreeWidgetItem;
    item->setFlags(flags);
    item->setCheckState(0, Qt::Unchecked);
    item->setText(lineColumn, text);
    if (treeLine)
        item->setData(lineColumn, VNItemDataRoles::TreeLineRole, treeLine);
    return item;
}
} // namespace

TestTreeItemDelegate::TestTreeItemDelegate(QWidget* parent)
    : QDialog(parent)
{
    setupUi(this);
    m_tree->setRootIsDecorated(true);
    m_tree->setItemDelegate(new VNItemDelegate(this));
    m_tree->useCheckStateHeader(0, Qt::AlignRight | Qt::AlignVCenter);
    m_tree->setHeaderLabels({tr("Col 0 "), tr("Column 1")});
    addParent(1);
    addParent(2);
}

// The sub children are siblings of the children in the model; only their tree-line values (6, 7
// against 2, 3) draw them one level deeper.
void TestTreeItemDelegate::addParent(int number)
{
    const Qt::ItemFlags childFlags = Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
    QTreeWidgetItem* parentItem =
        newRow(tr("Parent %1").arg(number), Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsAutoTristate, 0);
    parentItem->addChild(newRow(tr("Child %1").arg(1), childFlags, 2));
    if (number == 1) {
        for (int sub = 1; sub <= 2; ++sub)
            parentItem->addChild(newRow(tr("Sub Child %1").arg(sub), childFlags | Qt::ItemIsEditable, 5 + sub));
    }
    parentItem->addChild(newRow(tr("Child %1").arg(2), childFlags, 3));
    m_tree->addTopLevelItem(parentItem);
    parentItem->setExpanded(true);
}
