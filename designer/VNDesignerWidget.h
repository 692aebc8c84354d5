#pragma once

#include "VNDesignerWidgetInfo.h"

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// One toolkit widget as Qt Designer sees it: its widget box entry and the factory of instances,
// which carry the toolkit's style sheet so that forms show the widgets in their real look.
class VNDesignerWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    VNDesignerWidget(VNDesignerWidgetInfo info, QObject* parent);

    QString name() const override { return m_info.className; }
    QString group() const override { return m_info.group; }
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override { return m_info.includeFile; }
    QIcon icon() const override;
    bool isContainer() const override { return m_info.container; }
    QString domXml() const override { return m_info.domXml; }

    QWidget* createWidget(QWidget* parent) override;

    bool isInitialized() const override { return m_initialized; }
    void initialize(QDesignerFormEditorInterface* core) override;

    static QString iconPath(const QString& family);

private:
    VNDesignerWidgetInfo m_info;
    bool m_initialized = false;
};
