#include "VNToolTipButtonDelegate.h"

#include "VNItemDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QStyleOptionButton>
#include <QToolTip>

namespace {
const int buttonExtent = 16;
}

VNToolTipButtonDelegate::VNToolTipButtonDelegate(QObject* parent)
    : VNButtonCellDelegate(parent)
{}

QRect VNToolTipButtonDelegate::buttonRect(const QRect& cellRect, const QModelIndex&, int) const
{
    return QRect(cellRect.right() - buttonExtent - 1, cellRect.center().y() - buttonExtent / 2, buttonExtent,
                 buttonExtent);
}

void VNToolTipButtonDelegate::initButtonOption(QStyleOptionButton* button, const QModelIndex&, int) const
{
    button->text = QStringLiteral("i");
}

bool VNToolTipButtonDelegate::isButtonEnabled(const QModelIndex& index, int button) const
{
    return VNButtonCellDelegate::isButtonEnabled(index, button) && !index.data(Qt::ToolTipRole).toString().isEmpty();
}

void VNToolTipButtonDelegate::paintCell(QPainter* painter, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    opt.rect.setRight(buttonRect(option.rect, index, 0).left() - 2);
    VNItemDelegate::paintCellBackground(painter, option.rect, index);
    QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
}

void VNToolTipButtonDelegate::buttonClicked(QAbstractItemModel*, const QStyleOptionViewItem& option,
                                            const QModelIndex& index, int)
{
    const QString text = index.data(Qt::ToolTipRole).toString();
    auto* view = qobject_cast<QAbstractItemView*>(const_cast<QWidget*>(option.widget));
    if (view)
        QToolTip::showText(view->viewport()->mapToGlobal(buttonRect(option.rect, index, 0).bottomLeft()), text, view);
    emit toolTipShown(index, text);
}
