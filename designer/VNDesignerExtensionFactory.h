#pragma once

#include <QtDesigner/QExtensionFactory>

class QDesignerFormEditorInterface;

// Makes the content of a progressive disclosure the one page Designer edits, so that widgets
// dropped on a disclosure land in its content and forms load their content into it.
class VNDesignerExtensionFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    explicit VNDesignerExtensionFactory(QExtensionManager* parent);

    // Once per Designer core.
    static void registerWith(QDesignerFormEditorInterface* core);

protected:
    QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;
};
