#include "VNRadioButton.h"

#include "VNDoubleSpinBox.h"

#include <QEvent>

VNRadioButton::VNRadioButton(QWidget* parent)
    : QRadioButton(parent)
    , VNWidgetInterface(this)
{
    connect(this, &QAbstractButton::toggled, this, &VNRadioButton::updateBuddy);
}

VNRadioButton::VNRadioButton(const QString& text, QWidget* parent)
    : VNRadioButton(parent)
{
    setText(text);
}

VNDoubleSpinBox* VNRadioButton::buddy() const
{
    return m_buddy;
}

void VNRadioButton::setBuddy(VNDoubleSpinBox* buddy)
{
    if (buddy == m_buddy)
        return;
    m_buddy = buddy;
    updateBuddy();
    emit buddyChanged(buddy);
}

void VNRadioButton::changeEvent(QEvent* event)
{
    QRadioButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        updateBuddy();
}

void VNRadioButton::updateBuddy()
{
    if (m_buddy)
        m_buddy->setEnabled(isChecked() && isEnabled());
}
