#pragma once

#include "vnwidgets_export.h"

#include <QFrame>

// The strip of tool buttons under a list or tree. The style sheet joins it to the frame above it
// and lets the button with the dynamic property "isLast" close the strip on the right.
class VNWIDGETS_EXPORT VNListToolBar : public QFrame
{
    Q_OBJECT

public:
    explicit VNListToolBar(QWidget* parent = nullptr);
};
