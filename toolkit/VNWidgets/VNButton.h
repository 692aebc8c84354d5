#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QToolButton>

// The toolkit's tool button. It shows a status and, when it has a menu, pops it up from its arrow.
class VNWIDGETS_EXPORT VNButton : public QToolButton, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNButton(QWidget* parent = nullptr);
};
