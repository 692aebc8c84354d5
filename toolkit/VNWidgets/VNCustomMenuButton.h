#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QToolButton>

class QWidgetAction;

// A tool button whose drop-down holds any widget instead of a list of actions (a small form, a
// filter view): a click opens the widget under the button, and it stays open while the user
// works in it, until a click outside or Escape. The button takes ownership of the widget.
// Status looks are those of the toolkit's tool buttons.
class VNWIDGETS_EXPORT VNCustomMenuButton : public QToolButton, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNCustomMenuButton(QWidget* parent = nullptr);

    // Replaces (and deletes) a previous menu widget; nullptr removes the drop-down.
    void setMenuWidget(QWidget* widget);
    QWidget* menuWidget() const;
};
