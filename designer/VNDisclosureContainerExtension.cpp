#include "VNDisclosureContainerExtension.h"

#include <VNProgressiveDisclosure.h>

VNDisclosureContainerExtension::VNDisclosureContainerExtension(VNProgressiveDisclosure* disclosure, QObject* parent)
    : QObject(parent)
    , m_disclosure(disclosure)
{}

int VNDisclosureContainerExtension::count() const
{
    return m_disclosure->contentWidget() ? 1 : 0;
}

QWidget* VNDisclosureContainerExtension::widget(int index) const
{
    return index == 0 ? m_disclosure->contentWidget() : nullptr;
}

int VNDisclosureContainerExtension::currentIndex() const
{
    return count() - 1;
}

bool VNDisclosureContainerExtension::canAddWidget() const
{
    return count() == 0;
}

void VNDisclosureContainerExtension::addWidget(QWidget* widget)
{
    if (canAddWidget() || widget == m_disclosure->contentWidget())
        m_disclosure->setContentWidget(widget);
}

void VNDisclosureContainerExtension::insertWidget(int, QWidget* widget)
{
    addWidget(widget);
}
