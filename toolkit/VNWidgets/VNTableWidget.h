#pragma once

#include "vnwidgets_export.h"

#include <QTableWidget>

// The toolkit's item-based table widget: toolkit headers (VNCustomHeaderView) that show the
// header roles, and cells drawn by VNItemDelegate so that every cell status shows.
class VNWIDGETS_EXPORT VNTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit VNTableWidget(QWidget* parent = nullptr);
};
