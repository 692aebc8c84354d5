#pragma once

#include "vnwidgets_export.h"

#include <QString>

class QApplication;

// The toolkit's look: one style sheet for every toolkit widget and for plain Qt widgets that
// carry a status property.
class VNWIDGETS_EXPORT VNStyleSheet
{
public:
    static QString resourcePath();
    static QString styleSheet();
    static void applyTo(QApplication* application);
};
