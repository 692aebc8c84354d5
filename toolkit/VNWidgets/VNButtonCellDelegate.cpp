#include "VNButtonCellDelegate.h"

#include "VNItemDataRoles.h"
#include "VNItemDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

namespace {
const int buttonMargin = 1;
const int buttonSpacing = 2;

QStyle* styleOf(const QStyleOptionViewItem& option)
{
    return option.widget ? option.widget->style() : QApplication::style();
}

void repaint(const QStyleOptionViewItem& option)
{
    if (auto* view = qobject_cast<QAbstractItemView*>(const_cast<QWidget*>(option.widget)))
        view->viewport()->update(option.rect);
}
} // namespace

VNButtonCellDelegate::VNButtonCellDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

bool VNButtonCellDelegate::hasButtons(const QModelIndex&) const
{
    return true;
}

int VNButtonCellDelegate::buttonCount(const QModelIndex&) const
{
    return 1;
}

QRect VNButtonCellDelegate::buttonRect(const QRect& cellRect, const QModelIndex& index, int button) const
{
    const int count = qMax(1, buttonCount(index));
    const QRect inner = cellRect.adjusted(buttonMargin, buttonMargin, -buttonMargin, -buttonMargin);
    const int width = (inner.width() - (count - 1) * buttonSpacing) / count;
    return QRect(inner.left() + button * (width + buttonSpacing), inner.top(), width, inner.height());
}

int VNButtonCellDelegate::buttonAt(const QRect& cellRect, const QModelIndex& index, const QPoint& pos) const
{
    if (!hasButtons(index))
        return -1;
    for (int button = 0; button < buttonCount(index); ++button) {
        if (buttonRect(cellRect, index, button).contains(pos))
            return button;
    }
    return -1;
}

int VNButtonCellDelegate::pressedButton(const QModelIndex& index) const
{
    return m_pressedIndex == index ? m_pressedButton : -1;
}

void VNButtonCellDelegate::initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int) const
{
    button->text = index.data(Qt::DisplayRole).toString();
}

bool VNButtonCellDelegate::isButtonEnabled(const QModelIndex& index, int) const
{
    return VNItemDelegate::isActive(index) && (index.flags() & Qt::ItemIsEnabled);
}

void VNButtonCellDelegate::buttonClicked(QAbstractItemModel*, const QStyleOptionViewItem&, const QModelIndex&, int) {}

void VNButtonCellDelegate::paintCell(QPainter* painter, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    opt.text.clear();
    opt.icon = QIcon();
    opt.features &= ~(QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration |
                      QStyleOptionViewItem::HasCheckIndicator);
    VNItemDelegate::paintCellBackground(painter, option.rect, index);
    styleOf(option)->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
}

void VNButtonCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    paintCell(painter, option, index);
    if (!hasButtons(index))
        return;
    for (int which = 0; which < buttonCount(index); ++which) {
        QStyleOptionButton button;
        button.initFrom(option.widget ? option.widget : nullptr);
        button.palette = option.palette;
        button.rect = buttonRect(option.rect, index, which);
        button.iconSize = QSize(16, 16);
        button.state = QStyle::State_Raised;
        initButtonOption(&button, index, which);
        if (isButtonEnabled(index, which))
            button.state |= QStyle::State_Enabled;
        else
            button.state &= ~QStyle::State_Enabled;
        if (pressedButton(index) == which) {
            button.state |= QStyle::State_Sunken;
            button.state &= ~QStyle::State_Raised;
        }
        styleOf(option)->drawControl(QStyle::CE_PushButton, &button, painter, option.widget);
    }
    VNItemDelegate::paintStatusMarks(painter, option.rect, index.data(VNItemDataRoles::StatusRole).toInt());
}

QSize VNButtonCellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(qMax(size.height(), 24));
    size.setWidth(qMax(size.width(), 60 * buttonCount(index)));
    return size;
}

QWidget* VNButtonCellDelegate::createEditor(QWidget*, const QStyleOptionViewItem&, const QModelIndex&) const
{
    return nullptr;
}

void VNButtonCellDelegate::click(QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                 const QModelIndex& index, int button)
{
    buttonClicked(model, option, index, button);
    emit clicked(index, button);
}

bool VNButtonCellDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                       const QModelIndex& index)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const int button = buttonAt(option.rect, index, mouse->pos());
        if (mouse->button() != Qt::LeftButton || button < 0)
            return false;
        if (isButtonEnabled(index, button)) {
            m_pressedIndex = index;
            m_pressedButton = button;
            repaint(option);
        }
        return true;
    }
    case QEvent::MouseButtonRelease: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const int pressed = pressedButton(index);
        const int button = buttonAt(option.rect, index, mouse->pos());
        const bool hadPress = m_pressedButton >= 0;
        m_pressedIndex = QPersistentModelIndex();
        m_pressedButton = -1;
        repaint(option);
        if (pressed >= 0 && pressed == button)
            click(model, option, index, button);
        return hadPress || button >= 0;
    }
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Select)
            return false;
        for (int button = 0; hasButtons(index) && button < buttonCount(index); ++button) {
            if (isButtonEnabled(index, button)) {
                click(model, option, index, button);
                return true;
            }
        }
        return false;
    }
    default:
        return false;
    }
}
