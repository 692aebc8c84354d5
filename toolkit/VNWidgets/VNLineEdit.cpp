#include "VNLineEdit.h"

VNLineEdit::VNLineEdit(QWidget* parent)
    : QLineEdit(parent)
    , VNWidgetInterface(this)
{}

VNLineEdit::VNLineEdit(const QString& text, QWidget* parent)
    : QLineEdit(text, parent)
    , VNWidgetInterface(this)
{}
