#include "VNProgressiveDisclosureGroup.h"

#include "VNProgressiveDisclosure.h"

VNProgressiveDisclosureGroup::VNProgressiveDisclosureGroup(QObject* parent)
    : QObject(parent)
{}

void VNProgressiveDisclosureGroup::add(VNProgressiveDisclosure* disclosure)
{
    if (!disclosure || disclosures().contains(disclosure))
        return;
    m_disclosures.append(disclosure);
    connect(disclosure, &VNProgressiveDisclosure::openChanged, this,
            [this, disclosure](bool open) { onOpenChanged(disclosure, open); });
    if (m_singleMode && disclosure->isOpen()) {
        // The newcomer yields to a disclosure that is open already.
        for (VNProgressiveDisclosure* other : disclosures()) {
            if (other != disclosure && other->isOpen()) {
                disclosure->setOpen(false);
                break;
            }
        }
    }
}

void VNProgressiveDisclosureGroup::remove(VNProgressiveDisclosure* disclosure)
{
    m_disclosures.removeAll(disclosure);
    if (disclosure)
        disconnect(disclosure, nullptr, this, nullptr);
}

QList<VNProgressiveDisclosure*> VNProgressiveDisclosureGroup::disclosures() const
{
    QList<VNProgressiveDisclosure*> result;
    for (const QPointer<VNProgressiveDisclosure>& disclosure : m_disclosures) {
        if (disclosure)
            result.append(disclosure);
    }
    return result;
}

void VNProgressiveDisclosureGroup::setGlobalSingleMode(bool single)
{
    m_singleMode = single;
    if (!single)
        return;
    for (VNProgressiveDisclosure* disclosure : disclosures()) {
        if (disclosure->isOpen()) {
            closeAllBut(disclosure);
            return;
        }
    }
}

void VNProgressiveDisclosureGroup::onOpenChanged(VNProgressiveDisclosure* disclosure, bool open)
{
    if (m_singleMode && open)
        closeAllBut(disclosure);
}

void VNProgressiveDisclosureGroup::closeAllBut(VNProgressiveDisclosure* keep)
{
    for (VNProgressiveDisclosure* disclosure : disclosures()) {
        if (disclosure != keep)
            disclosure->setOpen(false);
    }
}
