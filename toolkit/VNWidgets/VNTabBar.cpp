#include "VNTabBar.h"

VNTabBar::VNTabBar(QWidget* parent)
    : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setElideMode(Qt::ElideRight);
}
