#include "VNFixedFontSizeToolButton.h"

#include <QEvent>

namespace {
const int pointSizes[] = {7, 8, 9, 10, 11, 12};
}

VNFixedFontSizeToolButton::VNFixedFontSizeToolButton(QWidget* parent, int sizeLevel)
    : QToolButton(parent)
    , m_level(sizeLevel)
{
    applyFontSize();
}

int VNFixedFontSizeToolButton::pointSizeForLevel(int sizeLevel)
{
    const int last = int(sizeof(pointSizes) / sizeof(pointSizes[0])) - 1;
    return pointSizes[qBound(0, sizeLevel, last)];
}

void VNFixedFontSizeToolButton::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::FontChange && !m_applying)
        applyFontSize();
}

void VNFixedFontSizeToolButton::applyFontSize()
{
    QFont fixed = font();
    if (fixed.pointSize() == pointSizeForLevel(m_level))
        return;
    m_applying = true;
    fixed.setPointSize(pointSizeForLevel(m_level));
    setFont(fixed);
    m_applying = false;
}
