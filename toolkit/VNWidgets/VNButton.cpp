#include "VNButton.h"

VNButton::VNButton(QWidget* parent)
    : QToolButton(parent)
    , VNWidgetInterface(this)
{
    setAutoRaise(false);
}
