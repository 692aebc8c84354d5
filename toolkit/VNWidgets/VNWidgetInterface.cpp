#include "VNWidgetInterface.h"

#include <QWidget>

VNWidgetInterface::VNWidgetInterface(QWidget* widget)
    : m_widget(widget)
{}

VNWidgetInterface::~VNWidgetInterface() = default;

VNWidgetStatus::StatusFlags VNWidgetInterface::getWidgetStatus() const
{
    return m_status;
}

void VNWidgetInterface::setWidgetStatus(VNWidgetStatus::StatusFlags status)
{
    if (status == m_status)
        return;
    m_status = status;
    VNWidgetStatus::setStatusProperty(m_widget, status);
    statusChanged();
}

void VNWidgetInterface::setStatusFlag(VNWidgetStatus::Status flag, bool on)
{
    setWidgetStatus(VNWidgetStatus::setFlag(m_status, VNWidgetStatus::StatusFlags(flag), on));
}

bool VNWidgetInterface::hasStatusFlag(VNWidgetStatus::Status flag) const
{
    return m_status.testFlag(flag);
}

void VNWidgetInterface::setNeedInputStatus(bool on)
{
    setStatusFlag(VNWidgetStatus::needInput, on);
}

bool VNWidgetInterface::isNeedInputStatus() const
{
    return hasStatusFlag(VNWidgetStatus::needInput);
}

void VNWidgetInterface::setUserEditStatus(bool on)
{
    setStatusFlag(VNWidgetStatus::userEdit, on);
}

bool VNWidgetInterface::isUserEditStatus() const
{
    return hasStatusFlag(VNWidgetStatus::userEdit);
}

void VNWidgetInterface::setSigmaEnabled(bool on)
{
    setStatusFlag(VNWidgetStatus::sigmaAvailable, on);
}

bool VNWidgetInterface::isSigmaEnabled() const
{
    return hasStatusFlag(VNWidgetStatus::sigmaAvailable);
}

void VNWidgetInterface::setSigmaActive(bool on)
{
    setStatusFlag(VNWidgetStatus::sigmaOn, on);
}

bool VNWidgetInterface::isSigmaActive() const
{
    return hasStatusFlag(VNWidgetStatus::sigmaOn);
}
