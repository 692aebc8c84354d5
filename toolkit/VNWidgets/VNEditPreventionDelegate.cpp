#include "VNEditPreventionDelegate.h"

VNEditPreventionDelegate::VNEditPreventionDelegate(QObject* parent)
    : VNItemDelegate(parent)
{}

void VNEditPreventionDelegate::setEditPrevented(bool prevented)
{
    m_prevented = prevented;
}

QWidget* VNEditPreventionDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                                const QModelIndex& index) const
{
    return m_prevented ? nullptr : VNItemDelegate::createEditor(parent, option, index);
}
