#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>
#include <QWidget>

// The frame around the row under the cursor while something is dragged over a toolkit view.
inline void vnPaintDropTarget(QWidget* viewport, const QRect& rect)
{
    if (!rect.isValid())
        return;
    QPainter painter(viewport);
    painter.setPen(QPen(QColor(0x3d, 0x7c, 0xc9), 2));
    painter.setBrush(QColor(0x3d, 0x7c, 0xc9, 40));
    painter.drawRect(rect.adjusted(1, 1, -1, -1));
}
