#include "VNDesignerWidget.h"

#include "VNDesignerCatalog.h"
#include "VNDesignerExtensionFactory.h"

#include <VNStyleSheet.h>

#include <QIcon>
#include <QWidget>

#include <utility>

VNDesignerWidget::VNDesignerWidget(VNDesignerWidgetInfo info, QObject* parent)
    : QObject(parent)
    , m_info(std::move(info))
{}

QString VNDesignerWidget::toolTip() const
{
    return VNDesignerCatalog::translatedText(m_info.toolTip) + QStringLiteral(" (%1)").arg(m_info.className);
}

QString VNDesignerWidget::whatsThis() const
{
    return QStringLiteral("%1: %2").arg(m_info.className, VNDesignerCatalog::translatedText(m_info.whatsThis));
}

QString VNDesignerWidget::iconPath(const QString& family)
{
    return QStringLiteral(":/VNDesigner/icons/%1.svg").arg(family);
}

QIcon VNDesignerWidget::icon() const
{
    // Designer's widget box only takes icons that list their sizes, which a scalable one does not.
    const QIcon scalable(iconPath(m_info.family));
    QIcon icon;
    for (int extent : {16, 22, 24, 32})
        icon.addPixmap(scalable.pixmap(extent));
    return icon;
}

QWidget* VNDesignerWidget::createWidget(QWidget* parent)
{
    // Designer's own windows keep their look: the sheet goes to each toolkit widget, not to the
    // application as the collection does it.
    static const QString toolkitSheet = VNStyleSheet::styleSheet();
    QWidget* widget = m_info.create(parent);
    widget->setStyleSheet(toolkitSheet);
    return widget;
}

void VNDesignerWidget::initialize(QDesignerFormEditorInterface* core)
{
    if (m_initialized)
        return;
    VNDesignerExtensionFactory::registerWith(core);
    m_initialized = true;
}
