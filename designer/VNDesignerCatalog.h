#pragma once

#include "VNDesignerWidgetInfo.h"

#include <QVector>

// Every toolkit widget that can be placed in a form, in widget box order.
class VNDesignerCatalog
{
public:
    static QVector<VNDesignerWidgetInfo> widgets();
    static QString translatedText(const char* text);
};
