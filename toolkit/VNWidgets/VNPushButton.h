#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QPushButton>

// A push button in the toolkit's look that shows a status (need input: a change waits to be applied).
class VNWIDGETS_EXPORT VNPushButton : public QPushButton, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNPushButton(QWidget* parent = nullptr);
    explicit VNPushButton(const QString& text, QWidget* parent = nullptr);
};
