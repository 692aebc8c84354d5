#include "VNTwinPushButtonDelegate.h"

#include <QStyleOptionButton>

VNTwinPushButtonDelegate::VNTwinPushButtonDelegate(const QString& leftText, const QString& rightText, QObject* parent)
    : VNButtonCellDelegate(parent)
    , m_texts{leftText, rightText}
{}

int VNTwinPushButtonDelegate::buttonCount(const QModelIndex&) const
{
    return 2;
}

void VNTwinPushButtonDelegate::initButtonOption(QStyleOptionButton* button, const QModelIndex&, int which) const
{
    button->text = m_texts.value(which);
}
