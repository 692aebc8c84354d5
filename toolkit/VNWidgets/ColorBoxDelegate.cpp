#include "ColorBoxDelegate.h"

#include "VNItemDataRoles.h"
#include "VNItemDelegate.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>

namespace {
const int boxExtent = 12;
const char* const colorNames[] = {"#d32f2f", "#f06292", "#ff9800", "#fdd835", "#4caf50", "#00897b", "#1e88e5",
                                  "#3949ab", "#8e24aa", "#795548", "#9e9e9e", "#000000", "#ffffff"};

QIcon swatch(const QColor& color)
{
    QPixmap pixmap(boxExtent, boxExtent);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(Qt::darkGray);
    painter.drawRect(0, 0, boxExtent - 1, boxExtent - 1);
    return QIcon(pixmap);
}
} // namespace

ColorBoxDelegate::ColorBoxDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

QRect ColorBoxDelegate::colorBoxRect(const QRect& cellRect)
{
    return QRect(cellRect.left() + 4, cellRect.center().y() - boxExtent / 2, boxExtent, boxExtent);
}

void ColorBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const QColor color = index.data(Qt::EditRole).value<QColor>();
    const bool active = VNItemDelegate::isActive(index);
    opt.text = color.isValid() ? color.name() : QString();
    opt.rect.setLeft(colorBoxRect(option.rect).right() + 5);
    if (!active)
        opt.state &= ~QStyle::State_Enabled;
    VNItemDelegate::paintCellBackground(painter, option.rect, index);
    QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
    if (!color.isValid())
        return;
    painter->save();
    painter->setPen(QColor(0x60, 0x60, 0x60));
    QColor fill = color;
    if (!active)
        fill.setAlpha(90);
    painter->setBrush(fill);
    painter->drawRect(colorBoxRect(option.rect).adjusted(0, 0, -1, -1));
    painter->restore();
    VNItemDelegate::paintStatusMarks(painter, option.rect, index.data(VNItemDataRoles::StatusRole).toInt());
}

QWidget* ColorBoxDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    if (!VNItemDelegate::isActive(index) || VNItemDelegate::isReadOnly(index))
        return nullptr;
    auto* combo = new QComboBox(parent);
    for (const char* name : colorNames)
        combo->addItem(swatch(QColor(name)), QLatin1String(name), QColor(name));
    connect(combo, QOverload<int>::of(&QComboBox::activated), this,
            [this, combo] { emit const_cast<ColorBoxDelegate*>(this)->commitData(combo); });
    return combo;
}

void ColorBoxDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* combo = static_cast<QComboBox*>(editor);
    const QColor color = index.data(Qt::EditRole).value<QColor>();
    int row = combo->findData(color);
    if (row < 0 && color.isValid()) {
        combo->addItem(swatch(color), color.name(), color);
        row = combo->count() - 1;
    }
    combo->setCurrentIndex(row);
}

void ColorBoxDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    model->setData(index, static_cast<QComboBox*>(editor)->currentData(), Qt::EditRole);
}
