#pragma once

#include "VNWidgetStatus.h"

#include <QColor>
#include <QHash>
#include <QPainter>
#include <QPen>
#include <QRect>

// Paints a status look for composite widgets that the style sheet's field rules do not reach
// (bars of buttons, tab panes). Colours are those of the statusLook, sigmaLook and
// compareDiffers rules of vnwidgets.qss; like them, the look never changes the geometry: the
// frame is drawn inside the given rectangle.
namespace VNStatusPainter {

inline QColor frameColor(VNWidgetStatus::StatusFlags flags)
{
    static const QHash<QString, QColor> colors = {
        {QStringLiteral("needInput"), QColor(0xd3, 0x2f, 0x2f)},
        {QStringLiteral("userEdit"), QColor(0x3d, 0x7c, 0xc9)},
        {QStringLiteral("different"), QColor(0xc9, 0xa4, 0x00)},
        {QStringLiteral("standardDefined"), QColor(0x4c, 0x9a, 0x4c)},
        {QStringLiteral("standardChanged"), QColor(0xe0, 0x7b, 0x00)},
        {QStringLiteral("standardLocked"), QColor(0x7a, 0x7a, 0x7a)},
        {QStringLiteral("standardChangedLocked"), QColor(0x9c, 0x6a, 0x3f)},
        {QStringLiteral("standardDefault"), QColor(0x3d, 0x8f, 0xb0)},
        {QStringLiteral("standardDefaultChanged"), QColor(0x9b, 0x4f, 0xb0)},
    };
    return colors.value(VNWidgetStatus::lookName(flags));
}

// The light fill that goes with the frame colour.
inline QColor fillColor(VNWidgetStatus::StatusFlags flags)
{
    static const QHash<QString, QColor> colors = {
        {QStringLiteral("needInput"), QColor(0xff, 0xd6, 0xd6)},
        {QStringLiteral("userEdit"), QColor(0xdc, 0xeb, 0xff)},
        {QStringLiteral("different"), QColor(0xff, 0xf1, 0xb8)},
        {QStringLiteral("standardDefined"), QColor(0xdf, 0xf2, 0xdf)},
        {QStringLiteral("standardChanged"), QColor(0xff, 0xe2, 0xc4)},
        {QStringLiteral("standardLocked"), QColor(0xe4, 0xe4, 0xe4)},
        {QStringLiteral("standardChangedLocked"), QColor(0xee, 0xd9, 0xc8)},
        {QStringLiteral("standardDefault"), QColor(0xe0, 0xf0, 0xf8)},
        {QStringLiteral("standardDefaultChanged"), QColor(0xf1, 0xe0, 0xf5)},
    };
    return colors.value(VNWidgetStatus::lookName(flags));
}

inline QColor sigmaColor(VNWidgetStatus::StatusFlags flags)
{
    static const QHash<QString, QColor> colors = {
        {QStringLiteral("available"), QColor(0x8c, 0x9c, 0xb0)},
        {QStringLiteral("active"), QColor(0x1f, 0x5f, 0xbf)},
        {QStringLiteral("invalid"), QColor(0xc2, 0x18, 0x5b)},
        {QStringLiteral("standardChanged"), QColor(0xe0, 0x7b, 0x00)},
    };
    return colors.value(VNWidgetStatus::sigmaLookName(flags));
}

// Draws the 5 px sigma bar on the left edge and the dashed compare-differs frame on top, for
// widgets that show the main look in their own fill and frame.
inline void paintMarks(QPainter& painter, const QRect& rect, VNWidgetStatus::StatusFlags flags)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    const QColor sigma = sigmaColor(flags);
    if (sigma.isValid())
        painter.fillRect(QRect(rect.left(), rect.top(), 5, rect.height()), sigma);
    if (flags.testFlag(VNWidgetStatus::compareDifferent)) {
        painter.setPen(QPen(QColor(0xe0, 0x12, 0x9a), 2, Qt::DashLine));
        painter.drawRect(rect.adjusted(1, 1, -1, -1));
    }
    painter.restore();
}

// Draws a 2 px frame in the status colour, then the sigma bar and the compare-differs frame; an
// undefined status draws nothing.
inline void paint(QPainter& painter, const QRect& rect, VNWidgetStatus::StatusFlags flags)
{
    const QColor frame = frameColor(flags);
    if (frame.isValid()) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(frame, 2));
        painter.drawRect(rect.adjusted(1, 1, -1, -1));
        painter.restore();
    }
    paintMarks(painter, rect, flags);
}

} // namespace VNStatusPainter
