#pragma once

#include "VNWidgetStatus.h"

#include <QColor>

// The status colours of the style sheet, for widgets that paint a status themselves (header
// sections, item cells). Keep them in step with the statusLook rules of vnwidgets.qss.
struct VNStatusColors
{
    QColor frame; // the strong colour: bands, markers, frames
    QColor fill;  // the light colour: cell and field backgrounds
    bool isValid() const { return frame.isValid(); }
};

inline VNStatusColors vnStatusColors(VNWidgetStatus::StatusFlags flags)
{
    switch (VNWidgetStatus::getDominantStatusFromFlag(flags)) {
    case VNWidgetStatus::needInput:
        return {QColor(0xd3, 0x2f, 0x2f), QColor(0xff, 0xd6, 0xd6)};
    case VNWidgetStatus::compareDifferent:
        return {QColor(0xc0, 0x1c, 0xa8), QColor(0xfa, 0xe0, 0xf6)};
    case VNWidgetStatus::different:
        return {QColor(0xc9, 0xa4, 0x00), QColor(0xff, 0xf1, 0xb8)};
    case VNWidgetStatus::standardLocked:
        return {QColor(0x7a, 0x7a, 0x7a), QColor(0xe4, 0xe4, 0xe4)};
    case VNWidgetStatus::standardDeviate:
    case VNWidgetStatus::standardDefaultChanged:
        return {QColor(0xe0, 0x7b, 0x00), QColor(0xff, 0xe2, 0xc4)};
    case VNWidgetStatus::standardDefault:
    case VNWidgetStatus::standardDefined:
    case VNWidgetStatus::standardEnabled:
        return {QColor(0x4c, 0x9a, 0x4c), QColor(0xdf, 0xf2, 0xdf)};
    case VNWidgetStatus::sigmaError:
    case VNWidgetStatus::sigmaOn:
    case VNWidgetStatus::sigmaStandardChanged:
    case VNWidgetStatus::sigmaAvailable:
        return {QColor(0x6a, 0x3d, 0xb8), QColor(0xea, 0xe2, 0xf8)};
    case VNWidgetStatus::userEdit:
        return {QColor(0x3d, 0x7c, 0xc9), QColor(0xdc, 0xeb, 0xff)};
    default:
        return {};
    }
}
