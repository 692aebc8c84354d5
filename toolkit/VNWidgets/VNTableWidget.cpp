#include "VNTableWidget.h"

#include "VNCustomHeaderView.h"
#include "VNItemDelegate.h"

VNTableWidget::VNTableWidget(QWidget* parent)
    : QTableWidget(parent)
{
    setHorizontalHeader(new VNCustomHeaderView(Qt::Horizontal, QSize(0, 0), this));
    setVerticalHeader(new VNCustomHeaderView(Qt::Vertical, QSize(0, 0), this));
    setItemDelegate(new VNItemDelegate(this));
    setAlternatingRowColors(true);
}
