#include "VNTableView.h"

#include "VNCustomHeaderView.h"
#include "VNItemDelegate.h"

VNTableView::VNTableView(QWidget* parent)
    : QTableView(parent)
{
    setHorizontalHeader(new VNCustomHeaderView(Qt::Horizontal, QSize(0, 0), this));
    setVerticalHeader(new VNCustomHeaderView(Qt::Vertical, QSize(0, 0), this));
    setItemDelegate(new VNItemDelegate(this));
    setAlternatingRowColors(true);
}
