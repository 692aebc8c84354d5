#pragma once

#include "VNStatusPalette.h"

#include <QPainter>
#include <QPen>
#include <QRect>

// Paints a status look for composite widgets that the style sheet's field rules do not reach
// (bars of buttons, tab panes, sliders, charts), in the colours of VNStatusPalette. Like the style
// sheet's rules, the look never changes the geometry: everything is drawn inside the rectangle.
namespace VNStatusPainter {

// The 5 px sigma bar on the left edge and the dashed compare-differs frame on top, for widgets
// that show the main look in their own fill and frame.
inline void paintMarks(QPainter& painter, const QRect& rect, VNWidgetStatus::StatusFlags flags)
{
    const VNStatusPalette::StatusLook look = VNStatusPalette::statusLook(flags);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    if (look.sigma != VNStatusPalette::SigmaLook::none)
        painter.fillRect(QRect(rect.left(), rect.top(), 5, rect.height()), VNStatusPalette::sigmaColor(look.sigma));
    if (look.compare) {
        painter.setPen(QPen(VNStatusPalette::compareColor(), 2, Qt::DashLine));
        painter.drawRect(rect.adjusted(1, 1, -1, -1));
    }
    painter.restore();
}

// A 2 px frame in the main look's colour, then the marks; an undefined status draws nothing.
inline void paint(QPainter& painter, const QRect& rect, VNWidgetStatus::StatusFlags flags)
{
    const VNStatusPalette::Colors colors = VNStatusPalette::colors(flags);
    if (colors.isValid()) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colors.frame, 2));
        painter.drawRect(rect.adjusted(1, 1, -1, -1));
        painter.restore();
    }
    paintMarks(painter, rect, flags);
}

} // namespace VNStatusPainter
