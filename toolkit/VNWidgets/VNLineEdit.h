#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QLineEdit>

// A line edit in the toolkit's look that shows a status (need input, user edit, standards, ...).
class VNWIDGETS_EXPORT VNLineEdit : public QLineEdit, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNLineEdit(QWidget* parent = nullptr);
    explicit VNLineEdit(const QString& text, QWidget* parent = nullptr);
};
