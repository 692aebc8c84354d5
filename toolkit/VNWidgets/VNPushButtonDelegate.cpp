#include "VNPushButtonDelegate.h"

#include <QIcon>
#include <QStyleOptionButton>

VNPushButtonDelegate::VNPushButtonDelegate(QObject* parent)
    : VNButtonCellDelegate(parent)
{}

void VNPushButtonDelegate::initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int) const
{
    button->text = index.data(Qt::DisplayRole).toString();
    button->icon = index.data(Qt::DecorationRole).value<QIcon>();
    if (index.data(Qt::CheckStateRole).toInt() == Qt::Checked)
        button->state |= QStyle::State_On | QStyle::State_Sunken;
}

void VNPushButtonDelegate::buttonClicked(QAbstractItemModel* model, const QStyleOptionViewItem&,
                                         const QModelIndex& index, int)
{
    const QVariant check = index.data(Qt::CheckStateRole);
    if (check.isValid())
        model->setData(index, check.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool VNPushButtonDelegate::hasButtons(const QModelIndex& index) const
{
    return !index.data(Qt::DisplayRole).toString().isEmpty() || index.data(Qt::DecorationRole).isValid();
}
