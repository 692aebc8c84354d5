#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRect>

// The keyboard focus of a widget that paints itself: the dotted line in the fields' focus blue
// that the style sheet draws around buttons and check boxes, so that every widget shows the focus
// alike and a status frame keeps its colour.
namespace VNFocusMark {
inline void paint(QPainter& painter, const QRect& around)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setOpacity(1.0);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x3d, 0x7c, 0xc9), 1, Qt::DotLine));
    painter.drawRect(around.adjusted(0, 0, -1, -1));
    painter.restore();
}
} // namespace VNFocusMark
