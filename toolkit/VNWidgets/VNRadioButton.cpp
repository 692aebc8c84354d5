#include "VNRadioButton.h"

#include "VNButtonBuddy_p.h"

VNRadioButton::VNRadioButton(QWidget* parent)
    : QRadioButton(parent)
    , VNWidgetInterface(this)
    , m_buddy(new VNButtonBuddy(this))
{}

VNRadioButton::VNRadioButton(const QString& text, QWidget* parent)
    : VNRadioButton(parent)
{
    setText(text);
}

VNDoubleSpinBox* VNRadioButton::buddy() const
{
    return m_buddy->buddy();
}

void VNRadioButton::setBuddy(VNDoubleSpinBox* buddy)
{
    if (m_buddy->setBuddy(buddy))
        emit buddyChanged(buddy);
}
