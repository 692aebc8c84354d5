#include "VNCheckBox.h"

#include "VNDoubleSpinBox.h"

#include <QEvent>

VNCheckBox::VNCheckBox(QWidget* parent)
    : QCheckBox(parent)
    , VNWidgetInterface(this)
{
    connect(this, &QAbstractButton::toggled, this, &VNCheckBox::updateBuddy);
}

VNCheckBox::VNCheckBox(const QString& text, QWidget* parent)
    : VNCheckBox(parent)
{
    setText(text);
}

VNDoubleSpinBox* VNCheckBox::buddy() const
{
    return m_buddy;
}

void VNCheckBox::setBuddy(VNDoubleSpinBox* buddy)
{
    if (buddy == m_buddy)
        return;
    m_buddy = buddy;
    updateBuddy();
    emit buddyChanged(buddy);
}

void VNCheckBox::changeEvent(QEvent* event)
{
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        updateBuddy();
}

void VNCheckBox::updateBuddy()
{
    if (m_buddy)
        m_buddy->setEnabled(isChecked() && isEnabled());
}
