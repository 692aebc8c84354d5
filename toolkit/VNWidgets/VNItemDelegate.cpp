#include "VNItemDelegate.h"

#include "VNItemDataRoles.h"
#include "VNStatusColors_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace {
const int treeLineStep = 12;
const int statusBarWidth = 3;
const QColor readOnlyFill(0xf3, 0xf3, 0xf3);
const QColor treeLineColor(0x9a, 0xa4, 0xb0);
const QColor separatorColor(0xdc, 0xe0, 0xe5);

const QStyle* styleOf(const QStyleOptionViewItem& option)
{
    return option.widget ? option.widget->style() : QApplication::style();
}
} // namespace

VNItemDelegate::VNItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

void VNItemDelegate::setCheckIndicator(bool visible)
{
    m_checkIndicator = visible;
}

void VNItemDelegate::updateLeftIconIndentationUpdateHandler()
{
    m_indentForLeftIcon = true;
}

void VNItemDelegate::setCheckIndicatorMargins(int left, int top, int right, int bottom)
{
    m_checkMargins = QMargins(left, top, right, bottom);
}

void VNItemDelegate::setCheckIndicatorAlignment(Qt::Alignment alignment)
{
    m_checkAlignment = alignment;
}

bool VNItemDelegate::isActive(const QModelIndex& index)
{
    const QVariant active = index.data(VNItemDataRoles::ActiveRole);
    return !active.isValid() || active.toBool();
}

bool VNItemDelegate::isReadOnly(const QModelIndex& index)
{
    return index.data(VNItemDataRoles::ReadOnlyRole).toBool();
}

QRect VNItemDelegate::checkIndicatorRect(const QStyleOptionViewItem& option) const
{
    const QStyle* style = styleOf(option);
    const QSize size(style->pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
                     style->pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
    return QStyle::alignedRect(option.direction, m_checkAlignment, size, option.rect.marginsRemoved(m_checkMargins));
}

void VNItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    if (!index.data(Qt::TextAlignmentRole).isValid())
        opt.displayAlignment = m_alignment;
    if (!isActive(index)) {
        opt.state &= ~QStyle::State_Enabled;
        opt.palette.setCurrentColorGroup(QPalette::Disabled);
        opt.palette.setColor(QPalette::Text, opt.palette.color(QPalette::Disabled, QPalette::Text));
    }
    paintStatus(painter, opt, index);
    if (m_indentForLeftIcon && !(opt.features & QStyleOptionViewItem::HasDecoration))
        opt.rect.setLeft(opt.rect.left() + opt.decorationSize.width() + 4);

    const int treeLine = index.data(VNItemDataRoles::TreeLineRole).toInt();
    if (treeLine & Connected)
        opt.rect.setLeft(opt.rect.left() + paintTreeLines(painter, opt, treeLine));

    const bool hasCheck = m_checkIndicator && (opt.features & QStyleOptionViewItem::HasCheckIndicator);
    opt.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    if (hasCheck) {
        const QRect check = checkIndicatorRect(opt);
        paintCheckIndicator(painter, opt, opt.checkState);
        if (m_checkAlignment & Qt::AlignRight)
            opt.rect.setRight(check.left() - m_checkMargins.left());
        else if (m_checkAlignment & Qt::AlignLeft)
            opt.rect.setLeft(check.right() + m_checkMargins.right());
    }
    styleOf(opt)->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);

    if (m_drawColumnSeparators) {
        painter->save();
        painter->setPen(separatorColor);
        painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
        painter->restore();
    }
}

void VNItemDelegate::paintStatus(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const VNStatusColors colors =
        vnStatusColors(VNWidgetStatus::StatusFlags(index.data(VNItemDataRoles::StatusRole).toInt()));
    if (colors.isValid()) {
        painter->fillRect(option.rect, colors.fill);
        painter->fillRect(QRect(option.rect.left(), option.rect.top(), statusBarWidth, option.rect.height()),
                          colors.frame);
    } else if (isReadOnly(index)) {
        painter->fillRect(option.rect, readOnlyFill);
    }
}

// Returns the width taken by the lines, by which the cell's contents move right.
int VNItemDelegate::paintTreeLines(QPainter* painter, const QStyleOptionViewItem& option, int kind) const
{
    const QRect rect = option.rect;
    const int outerX = rect.left() + treeLineStep / 2;
    const int x = (kind & Nested) ? outerX + treeLineStep : outerX;
    const int middle = rect.center().y();
    painter->save();
    painter->setPen(QPen(treeLineColor, 1));
    if (kind & Nested)
        painter->drawLine(outerX, rect.top(), outerX, rect.bottom());
    painter->drawLine(x, rect.top(), x, (kind & LastSibling) ? middle : rect.bottom());
    painter->drawLine(x, middle, x + treeLineStep - 3, middle);
    painter->restore();
    return x - rect.left() + treeLineStep;
}

void VNItemDelegate::paintCheckIndicator(QPainter* painter, const QStyleOptionViewItem& option,
                                         Qt::CheckState state) const
{
    QStyleOptionViewItem check = option;
    check.rect = checkIndicatorRect(option);
    check.state &= ~(QStyle::State_On | QStyle::State_Off | QStyle::State_NoChange);
    check.state |= state == Qt::Checked            ? QStyle::State_On
                   : state == Qt::PartiallyChecked ? QStyle::State_NoChange
                                                   : QStyle::State_Off;
    styleOf(option)->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &check, painter, option.widget);
}

QSize VNItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const int treeLine = index.data(VNItemDataRoles::TreeLineRole).toInt();
    if (treeLine & Connected)
        size.rwidth() += (treeLine & Nested) ? 3 * treeLineStep : 2 * treeLineStep;
    size.rwidth() += m_checkMargins.left() + m_checkMargins.right();
    return size;
}

QWidget* VNItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    if (!isActive(index) || isReadOnly(index))
        return nullptr;
    return QStyledItemDelegate::createEditor(parent, option, index);
}

bool VNItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                 const QModelIndex& index)
{
    const Qt::ItemFlags flags = model->flags(index);
    if (!isActive(index) || !(flags & Qt::ItemIsUserCheckable) || !(flags & Qt::ItemIsEnabled) || !m_checkIndicator)
        return false;
    const QVariant value = index.data(Qt::CheckStateRole);
    if (!value.isValid())
        return false;
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const int treeLine = index.data(VNItemDataRoles::TreeLineRole).toInt();
    if (treeLine & Connected)
        opt.rect.setLeft(opt.rect.left() + ((treeLine & Nested) ? 2 : 1) * treeLineStep + treeLineStep / 2);
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton || !checkIndicatorRect(opt).contains(mouse->pos()))
            return false;
        if (event->type() == QEvent::MouseButtonDblClick)
            return true;
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Space && key != Qt::Key_Select)
            return false;
    } else {
        return false;
    }
    const auto state = static_cast<Qt::CheckState>(value.toInt());
    Qt::CheckState next = state == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    if ((flags & Qt::ItemIsUserTristate) && state == Qt::Unchecked)
        next = Qt::PartiallyChecked;
    else if ((flags & Qt::ItemIsUserTristate) && state == Qt::PartiallyChecked)
        next = Qt::Checked;
    return model->setData(index, next, Qt::CheckStateRole);
}
