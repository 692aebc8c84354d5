#include "VNListToolBar.h"

VNListToolBar::VNListToolBar(QWidget* parent)
    : QFrame(parent)
{
    setAttribute(Qt::WA_StyledBackground, true);
    setMinimumHeight(24);
}
