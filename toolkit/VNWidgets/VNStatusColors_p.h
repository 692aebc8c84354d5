#pragma once

#include "VNWidgetStatus.h"

#include <QColor>
#include <QPair>

// Fill and frame of a status look for widgets that paint their items themselves; the colours
// are the ones the toolkit style sheet gives the same look.
inline QPair<QColor, QColor> vnStatusColors(VNWidgetStatus::StatusFlags status)
{
    const QString look = VNWidgetStatus::lookName(status);
    static const struct
    {
        const char* look;
        QRgb fill;
        QRgb frame;
    } table[] = {{"needInput", 0xffd6d6, 0xd32f2f},
                 {"userEdit", 0xdcebff, 0x3d7cc9},
                 {"different", 0xfff1b8, 0xc9a400},
                 {"standardDefined", 0xdff2df, 0x4c9a4c},
                 {"standardChanged", 0xffe2c4, 0xe07b00},
                 {"standardLocked", 0xe4e4e4, 0x7a7a7a},
                 {"standardChangedLocked", 0xeed9c8, 0x9c6a3f},
                 {"standardDefault", 0xe0f0f8, 0x3d8fb0},
                 {"standardDefaultChanged", 0xf1e0f5, 0x9b4fb0}};
    for (const auto& entry : table) {
        if (look == QLatin1String(entry.look))
            return {QColor(entry.fill), QColor(entry.frame)};
    }
    return {QColor(), QColor()};
}
