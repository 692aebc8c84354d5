#include "VNStackItemDelegate_p.h"

#include "VNControlledStackItem.h"
#include "VNStackControllerWidget.h"

#include <QApplication>
#include <QPainter>
#include <QTreeView>

namespace {
const QColor highlightFill(0xff, 0xe8, 0x9c);
const QColor groupHeaderFill(0xe1, 0xe6, 0xec);
const QColor colorBoxFrame(0x50, 0x50, 0x50);
const QColor markerColor(0x2f, 0x6f, 0xb3);
} // namespace

VNStackItemDelegate::VNStackItemDelegate(VNStackControllerWidget* controller)
    : QStyledItemDelegate(controller)
    , m_controller(controller)
{}

void VNStackItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const bool topLevel = !index.parent().isValid();
    if (topLevel && m_controller->showsTopLevelItemsAsGroupHeader()) {
        painter->fillRect(opt.rect, groupHeaderFill);
        opt.font.setBold(true);
        opt.font.setCapitalization(QFont::AllUppercase);
    }
    if (index.data(VNControlledStackItem::HighlightRole).toBool())
        painter->fillRect(opt.rect, highlightFill);

    const QVariant marker = index.data(VNControlledStackItem::SymmetryMarkerRole);
    if (marker.isValid()) {
        paintSymmetryMarker(painter, opt.rect, marker.toInt());
        opt.rect.setRight(opt.rect.right() - markerWidth - 2);
    }

    const QColor box = index.data(VNControlledStackItem::ColorBoxRole).value<QColor>();
    if (box.isValid()) {
        const QRect boxRect(opt.rect.left() + 2, opt.rect.center().y() - colorBoxSize / 2 + 1, colorBoxSize,
                            colorBoxSize);
        painter->save();
        painter->setPen(colorBoxFrame);
        painter->setBrush(box);
        painter->drawRect(boxRect.adjusted(0, 0, -1, -1));
        painter->restore();
        opt.rect.setLeft(boxRect.right() + 4);
    }

    const bool hasIcon = opt.features & QStyleOptionViewItem::HasDecoration;
    if (hasIcon && !topLevel && m_controller->paintsLeftIconInIndentation()) {
        const QSize size = opt.icon.actualSize(opt.decorationSize);
        // A row with children keeps its branch arrow; its icon moves one level further out.
        const auto* view = qobject_cast<const QTreeView*>(opt.widget);
        const int shift = view && index.model()->hasChildren(index) ? view->indentation() : 0;
        const QRect iconRect(option.rect.left() - shift - size.width() - 2,
                             opt.rect.center().y() - size.height() / 2 + 1, size.width(), size.height());
        opt.icon.paint(painter, iconRect);
        opt.features &= ~QStyleOptionViewItem::HasDecoration;
        opt.icon = QIcon();
    } else if (hasIcon) {
        opt.decorationPosition = m_controller->getDecorationAlignment() == Qt::AlignRight ? QStyleOptionViewItem::Right
                                                                                          : QStyleOptionViewItem::Left;
    }
    const QWidget* widget = opt.widget;
    QStyle* style = widget ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);
}

// A bracket beside the rows of a symmetric run: its top end on the first row, its bottom end on
// the last, a straight line through inner rows; a single item gets a short closed bracket.
void VNStackItemDelegate::paintSymmetryMarker(QPainter* painter, const QRect& rect, int marker) const
{
    const int x = rect.right() - 2;
    const int tip = x - markerWidth + 3;
    const int middle = rect.center().y();
    painter->save();
    painter->setPen(QPen(markerColor, 2));
    switch (marker) {
    case VNControlledStackItem::SingleItem:
        painter->drawLine(x, middle - 5, x, middle + 5);
        painter->drawLine(tip, middle - 5, x, middle - 5);
        painter->drawLine(tip, middle + 5, x, middle + 5);
        break;
    case VNControlledStackItem::FirstItem:
        painter->drawLine(tip, middle, x, middle);
        painter->drawLine(x, middle, x, rect.bottom() + 1);
        break;
    case VNControlledStackItem::LastItem:
        painter->drawLine(x, rect.top(), x, middle);
        painter->drawLine(tip, middle, x, middle);
        break;
    default:
        painter->drawLine(x, rect.top(), x, rect.bottom() + 1);
        break;
    }
    painter->restore();
}

QSize VNStackItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.rwidth() += colorBoxSize + markerWidth + 8;
    size.setHeight(qMax(size.height(), 22));
    return size;
}
