#include "VNSeparator.h"

VNSeparator::VNSeparator(QWidget* parent)
    : VNSeparator(Qt::Horizontal, parent)
{}

VNSeparator::VNSeparator(Qt::Orientation orientation, QWidget* parent)
    : QFrame(parent)
{
    setFrameShadow(QFrame::Plain);
    setLineWidth(1);
    m_orientation = orientation == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
    setOrientation(orientation);
}

void VNSeparator::setOrientation(Qt::Orientation orientation)
{
    if (orientation == m_orientation)
        return;
    m_orientation = orientation;
    const bool horizontal = orientation == Qt::Horizontal;
    setFrameShape(horizontal ? QFrame::HLine : QFrame::VLine);
    setSizePolicy(horizontal ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                  horizontal ? QSizePolicy::Fixed : QSizePolicy::Expanding);
}
