#include "VNButtonBuddy_p.h"

#include "VNDoubleSpinBox.h"

#include <QAbstractButton>
#include <QEvent>

VNButtonBuddy::VNButtonBuddy(QAbstractButton* button)
    : QObject(button)
    , m_button(button)
{
    connect(button, &QAbstractButton::toggled, this, &VNButtonBuddy::update);
    button->installEventFilter(this);
}

VNDoubleSpinBox* VNButtonBuddy::buddy() const
{
    return m_buddy;
}

bool VNButtonBuddy::setBuddy(VNDoubleSpinBox* buddy)
{
    if (buddy == m_buddy)
        return false;
    m_buddy = buddy;
    update();
    return true;
}

bool VNButtonBuddy::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        update();
    return QObject::eventFilter(watched, event);
}

void VNButtonBuddy::update()
{
    if (m_buddy)
        m_buddy->setEnabled(m_button->isChecked() && m_button->isEnabled());
}
