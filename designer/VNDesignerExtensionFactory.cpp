#include "VNDesignerExtensionFactory.h"

#include "VNDisclosureContainerExtension.h"

#include <VNProgressiveDisclosure.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

#include <QVariant>

namespace {
const char registeredProperty[] = "vnDesignerExtensionsRegistered";
}

VNDesignerExtensionFactory::VNDesignerExtensionFactory(QExtensionManager* parent)
    : QExtensionFactory(parent)
{}

void VNDesignerExtensionFactory::registerWith(QDesignerFormEditorInterface* core)
{
    auto* manager = core ? qobject_cast<QExtensionManager*>(core->extensionManager()) : nullptr;
    if (!manager || manager->property(registeredProperty).toBool())
        return;
    manager->setProperty(registeredProperty, true);
    manager->registerExtensions(new VNDesignerExtensionFactory(manager), Q_TYPEID(QDesignerContainerExtension));
}

QObject* VNDesignerExtensionFactory::createExtension(QObject* object, const QString& iid, QObject* parent) const
{
    if (iid != QLatin1String(Q_TYPEID(QDesignerContainerExtension)))
        return nullptr;
    if (auto* disclosure = qobject_cast<VNProgressiveDisclosure*>(object))
        return new VNDisclosureContainerExtension(disclosure, parent);
    return nullptr;
}
