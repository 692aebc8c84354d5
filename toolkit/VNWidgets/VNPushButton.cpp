#include "VNPushButton.h"

VNPushButton::VNPushButton(QWidget* parent)
    : QPushButton(parent)
    , VNWidgetInterface(this)
{}

VNPushButton::VNPushButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
    , VNWidgetInterface(this)
{}
