#include "VNGroupableComboBox.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScreen>
#include <QStandardItemModel>
#include <QTreeView>

VNGroupableComboBox::VNGroupableComboBox(QWidget* parent)
    : VNComboBox(parent)
    , m_tree(new QTreeView(this))
{
    m_tree->setHeaderHidden(true);
    m_tree->setRootIsDecorated(true);
    m_tree->setItemsExpandable(true);
    m_tree->setExpandsOnDoubleClick(false);
    setPopupView(m_tree);
    // Installed after the popup's own filter, so it sees group clicks first.
    m_tree->viewport()->installEventFilter(this);
    connect(model(), &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex& parentIndex) {
        if (parentIndex.isValid())
            m_tree->expand(parentIndex);
    });
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &VNGroupableComboBox::onCurrentIndexChanged);
}

QStandardItemModel* VNGroupableComboBox::standardModel() const
{
    return qobject_cast<QStandardItemModel*>(model());
}

QModelIndex VNGroupableComboBox::addGroupItem(const QString& text, const QModelIndex& parent, const QVariant& data)
{
    QStandardItemModel* items = standardModel();
    if (!items)
        return QModelIndex();
    auto* item = new QStandardItem(text);
    if (data.isValid())
        item->setData(data, Qt::UserRole);
    QStandardItem* parentItem = parent.isValid() ? items->itemFromIndex(parent) : items->invisibleRootItem();
    if (!parentItem)
        return QModelIndex();
    parentItem->appendRow(item);
    // A group is only a heading once it has children: shown bold, it can be opened but not chosen.
    if (parent.isValid()) {
        parentItem->setFlags(Qt::ItemIsEnabled);
        QFont font = parentItem->font();
        font.setBold(true);
        parentItem->setFont(font);
    }
    return item->index();
}

bool VNGroupableComboBox::isGroup(const QModelIndex& index) const
{
    return index.isValid() && model()->hasChildren(index);
}

void VNGroupableComboBox::setCurrentGroupIndex(int topLevelRow, int childRow)
{
    const QModelIndex top = model()->index(topLevelRow, modelColumn());
    if (!top.isValid())
        return;
    selectModelIndex(childRow < 0 ? top : model()->index(childRow, modelColumn(), top));
}

// QComboBox selects by row under its root index, so the root moves to the entry's group for the
// moment of selection; the combo box keeps the chosen entry when the root moves back.
void VNGroupableComboBox::selectModelIndex(const QModelIndex& index)
{
    if (!index.isValid() || isGroup(index))
        return;
    m_selecting = true;
    const QModelIndex previous = m_current;
    m_current = index;
    setRootModelIndex(index.parent());
    setCurrentIndex(index.row());
    setRootModelIndex(QModelIndex());
    m_tree->setCurrentIndex(index);
    m_selecting = false;
    if (previous != QModelIndex(m_current))
        emit currentGroupIndexChanged(currentTopLevelRow(), currentChildRow());
}

void VNGroupableComboBox::onCurrentIndexChanged(int row)
{
    if (m_selecting)
        return;
    // Chosen in the popup: the tree's current entry is the one clicked.
    QModelIndex index = m_tree->currentIndex();
    if (!index.isValid() || index.row() != row || index.data().toString() != currentText())
        index = model()->index(row, modelColumn());
    const QModelIndex previous = m_current;
    m_current = index;
    if (previous != QModelIndex(m_current))
        emit currentGroupIndexChanged(currentTopLevelRow(), currentChildRow());
}

int VNGroupableComboBox::currentTopLevelRow() const
{
    if (!m_current.isValid())
        return -1;
    return m_current.parent().isValid() ? m_current.parent().row() : m_current.row();
}

int VNGroupableComboBox::currentChildRow() const
{
    return m_current.isValid() && m_current.parent().isValid() ? m_current.row() : -1;
}

bool VNGroupableComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_tree->viewport() &&
        (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease)) {
        const QModelIndex index = m_tree->indexAt(static_cast<QMouseEvent*>(event)->pos());
        if (isGroup(index)) {
            if (event->type() == QEvent::MouseButtonRelease)
                m_tree->setExpanded(index, !m_tree->isExpanded(index));
            return true;
        }
    }
    return VNComboBox::eventFilter(watched, event);
}

// The base sizes the popup for the top-level rows only; open groups need room for their children.
void VNGroupableComboBox::showPopup()
{
    VNComboBox::showPopup();
    QWidget* popup = m_tree->window();
    int rows = 0;
    for (QModelIndex index = model()->index(0, modelColumn()); index.isValid(); index = m_tree->indexBelow(index))
        ++rows;
    const int rowHeight = std::max(1, m_tree->sizeHintForRow(0));
    const int frame = popup->height() - m_tree->viewport()->height();
    int height = rows * rowHeight + frame;
    if (QScreen* screen = popup->screen())
        height = std::min(height, screen->availableGeometry().bottom() - popup->y());
    if (height > popup->height())
        popup->resize(popup->width(), height);
    if (m_current.isValid())
        m_tree->setCurrentIndex(m_current);
}
