#pragma once

#include "vnwidgets_export.h"

#include <QList>
#include <QObject>
#include <QPointer>

class VNProgressiveDisclosure;

// Groups disclosures. In single mode at most one of them is open: opening one closes the others.
class VNWIDGETS_EXPORT VNProgressiveDisclosureGroup : public QObject
{
    Q_OBJECT

public:
    explicit VNProgressiveDisclosureGroup(QObject* parent = nullptr);

    void add(VNProgressiveDisclosure* disclosure);
    void remove(VNProgressiveDisclosure* disclosure);
    QList<VNProgressiveDisclosure*> disclosures() const;

    bool isGlobalSingleMode() const { return m_singleMode; }
    // Switching single mode on keeps the first open disclosure (in the order added) open.
    void setGlobalSingleMode(bool single);

private:
    void onOpenChanged(VNProgressiveDisclosure* disclosure, bool open);
    void closeAllBut(VNProgressiveDisclosure* keep);

    QList<QPointer<VNProgressiveDisclosure>> m_disclosures;
    bool m_singleMode = false;
};
