#include "VNIncludeExcludeButtonDelegate.h"

#include <QPainter>
#include <QPixmap>
#include <QStyleOptionButton>

namespace {
QIcon signIcon(bool plus)
{
    QPixmap pixmap(12, 12);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QColor color = plus ? QColor(0x2e, 0x7d, 0x32) : QColor(0xc6, 0x28, 0x28);
    painter.fillRect(1, 5, 10, 2, color);
    if (plus)
        painter.fillRect(5, 1, 2, 10, color);
    return QIcon(pixmap);
}
} // namespace

VNIncludeExcludeButtonDelegate::VNIncludeExcludeButtonDelegate(QObject* parent)
    : VNButtonCellDelegate(parent)
{}

bool VNIncludeExcludeButtonDelegate::isIncluded(const QModelIndex& index)
{
    const QVariant value = index.data(Qt::EditRole);
    return !value.isValid() || value.toBool();
}

void VNIncludeExcludeButtonDelegate::initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int) const
{
    const bool included = isIncluded(index);
    button->text = included ? tr("Include") : tr("Exclude");
    button->icon = signIcon(included);
    button->iconSize = QSize(12, 12);
}

void VNIncludeExcludeButtonDelegate::buttonClicked(QAbstractItemModel* model, const QStyleOptionViewItem&,
                                                   const QModelIndex& index, int)
{
    const bool included = !isIncluded(index);
    model->setData(index, included, Qt::EditRole);
    emit includeChanged(index, included);
}
