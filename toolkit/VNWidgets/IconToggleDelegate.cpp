#include "IconToggleDelegate.h"

#include "VNItemDataRoles.h"
#include "VNItemDelegate.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPersistentModelIndex>
#include <QPointer>

namespace {
const QColor outlineColor(0x5a, 0x66, 0x73);

bool isOn(const QModelIndex& index)
{
    return index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
}
} // namespace

IconToggleDelegate::IconToggleDelegate(Type type, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_type(type)
    , m_colorOn(0x3d, 0x7c, 0xc9)
    , m_colorOff(0xe4, 0xe4, 0xe4)
{}

void IconToggleDelegate::setBaseColorOn(const QColor& color)
{
    m_colorOn = color;
}

void IconToggleDelegate::setBaseColorOff(const QColor& color)
{
    m_colorOff = color;
}

void IconToggleDelegate::setIconSize(QSize size)
{
    m_iconSize = size;
}

QRect IconToggleDelegate::toggleRect(const QRect& cellRect) const
{
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, m_iconSize, cellRect);
}

void IconToggleDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    opt.text.clear();
    opt.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    opt.icon = QIcon();
    const QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();
    VNItemDelegate::paintCellBackground(painter, option.rect, index);
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
    VNItemDelegate::paintStatusMarks(painter, option.rect, index.data(VNItemDataRoles::StatusRole).toInt());

    const bool on = isOn(index);
    const QVariant mirrored = index.data(Qt::EditRole);
    if (mirrored.userType() != QMetaType::Bool || mirrored.toBool() != on)
        mirrorToEditRole(index, on);
    const QVariant active = index.data(VNItemDataRoles::ActiveRole);
    const bool enabled = (opt.state & QStyle::State_Enabled) && (!active.isValid() || active.toBool());
    paintToggle(painter, toggleRect(option.rect), on, enabled);
}

// Painting must not change the model, so the mirror is written once control is back in the event
// loop. The whole column under the same parent is brought in step at once, so that rows scrolled
// out of sight read right too (cells without a check state are left alone); indexes are kept persistent in case rows
// move meanwhile.
void IconToggleDelegate::mirrorToEditRole(const QModelIndex& index, bool on) const
{
    Q_UNUSED(on)
    const QPersistentModelIndex parent(index.parent());
    const int column = index.column();
    auto* model = const_cast<QAbstractItemModel*>(index.model());
    QPointer<QAbstractItemModel> guard(model);
    QMetaObject::invokeMethod(
        const_cast<IconToggleDelegate*>(this),
        [guard, parent, column]() {
            if (!guard)
                return;
            const int rows = guard->rowCount(parent);
            for (int row = 0; row < rows; ++row) {
                const QModelIndex cell = guard->index(row, column, parent);
                // Cells without a check state are no toggles (rows drawn by other delegates).
                if (!cell.data(Qt::CheckStateRole).isValid())
                    continue;
                const QVariant mirrored = cell.data(Qt::EditRole);
                const bool cellOn = isOn(cell);
                if (mirrored.userType() != QMetaType::Bool || mirrored.toBool() != cellOn)
                    guard->setData(cell, cellOn, Qt::EditRole);
            }
        },
        Qt::QueuedConnection);
}

void IconToggleDelegate::paintToggle(QPainter* painter, const QRect& rect, bool on, bool enabled) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (!enabled)
        painter->setOpacity(0.35);
    const QRectF box = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->setPen(QPen(on ? m_colorOn.darker(130) : outlineColor, 1));
    painter->setBrush(on ? m_colorOn : m_colorOff);
    switch (m_type) {
    case Check: {
        painter->drawRoundedRect(box, 2, 2);
        if (on) {
            QPainterPath tick;
            tick.moveTo(box.left() + box.width() * 0.22, box.center().y());
            tick.lineTo(box.left() + box.width() * 0.42, box.bottom() - box.height() * 0.25);
            tick.lineTo(box.right() - box.width() * 0.2, box.top() + box.height() * 0.25);
            painter->setPen(QPen(Qt::white, 1.5));
            painter->setBrush(Qt::NoBrush);
            painter->drawPath(tick);
        }
        break;
    }
    case Radio:
        painter->drawEllipse(box);
        break;
    case Visibility: {
        QPainterPath eye;
        eye.moveTo(box.left(), box.center().y());
        eye.quadTo(box.center().x(), box.top() - box.height() * 0.3, box.right(), box.center().y());
        eye.quadTo(box.center().x(), box.bottom() + box.height() * 0.3, box.left(), box.center().y());
        painter->drawPath(eye);
        if (!on)
            painter->drawLine(box.topLeft(), box.bottomRight());
        break;
    }
    }
    painter->restore();
}

QSize IconToggleDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    Q_UNUSED(index)
    return QSize(m_iconSize.width() + 8, qMax(m_iconSize.height() + 4, option.fontMetrics.height() + 4));
}

QWidget* IconToggleDelegate::createEditor(QWidget*, const QStyleOptionViewItem&, const QModelIndex&) const
{
    return nullptr;
}

bool IconToggleDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                     const QModelIndex& index)
{
    const QVariant active = index.data(VNItemDataRoles::ActiveRole);
    if ((active.isValid() && !active.toBool()) || VNItemDelegate::isReadOnly(index) ||
        !(model->flags(index) & Qt::ItemIsEnabled))
        return false;
    if (event->type() == QEvent::MouseButtonDblClick)
        return true;
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton || !option.rect.contains(mouse->pos()))
        return false;
    const bool on = !isOn(index);
    model->setData(index, on ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    model->setData(index, on, Qt::EditRole);
    emit toggled(index, on);
    return true;
}
