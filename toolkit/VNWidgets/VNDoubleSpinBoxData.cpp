#include "VNDoubleSpinBoxData.h"

#include <QLocale>

namespace {
const int metaTypeId = qRegisterMetaType<VNDoubleSpinBoxData>("VNDoubleSpinBoxData");
}

QString VNDoubleSpinBoxData::text() const
{
    Q_UNUSED(metaTypeId)
    // Without digit grouping, as the value fields show numbers: what a cell shows can be typed back.
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    const QString number = locale.toString(value, 'f', decimals);
    return unit.isEmpty() ? number : number + QLatin1Char(' ') + unit;
}

bool VNDoubleSpinBoxData::operator==(const VNDoubleSpinBoxData& other) const
{
    return qFuzzyCompare(value + 1.0, other.value + 1.0) && unit == other.unit && decimals == other.decimals &&
           minimum == other.minimum && maximum == other.maximum;
}
