#pragma once

#include "vnwidgets_export.h"

#include <QTableView>

// The toolkit's model-based table view: toolkit headers (VNCustomHeaderView) that show the
// header roles, and cells drawn by VNItemDelegate so that every cell status shows.
class VNWIDGETS_EXPORT VNTableView : public QTableView
{
    Q_OBJECT

public:
    explicit VNTableView(QWidget* parent = nullptr);
};
