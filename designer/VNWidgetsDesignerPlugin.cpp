#include "VNWidgetsDesignerPlugin.h"

#include "VNDesignerCatalog.h"
#include "VNDesignerWidget.h"

VNWidgetsDesignerPlugin::VNWidgetsDesignerPlugin(QObject* parent)
    : QObject(parent)
{
    for (const VNDesignerWidgetInfo& info : VNDesignerCatalog::widgets())
        m_widgets.append(new VNDesignerWidget(info, this));
}
