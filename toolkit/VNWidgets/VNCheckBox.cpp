#include "VNCheckBox.h"

#include "VNButtonBuddy_p.h"

VNCheckBox::VNCheckBox(QWidget* parent)
    : QCheckBox(parent)
    , VNWidgetInterface(this)
    , m_buddy(new VNButtonBuddy(this))
{}

VNCheckBox::VNCheckBox(const QString& text, QWidget* parent)
    : VNCheckBox(parent)
{
    setText(text);
}

VNDoubleSpinBox* VNCheckBox::buddy() const
{
    return m_buddy->buddy();
}

void VNCheckBox::setBuddy(VNDoubleSpinBox* buddy)
{
    if (m_buddy->setBuddy(buddy))
        emit buddyChanged(buddy);
}
