#pragma once

#include "vnwidgets_export.h"

#include <QMetaType>
#include <QString>

// A number with its unit and display precision, stored as one value in item data so that
// VNItemDelegate shows and edits it with a VNDoubleSpinBox.
struct VNWIDGETS_EXPORT VNDoubleSpinBoxData
{
    double value = 0.0;
    QString unit;
    int decimals = 2;
    double minimum = -1e9;
    double maximum = 1e9;

    QString text() const;
    bool operator==(const VNDoubleSpinBoxData& other) const;
    bool operator!=(const VNDoubleSpinBoxData& other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(VNDoubleSpinBoxData)
