#include "ColorContrast.h"

#include <algorithm>
#include <cmath>

namespace {
double linearChannel(int value)
{
    const double channel = value / 255.0;
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}
} // namespace

double ColorContrast::relativeLuminance(const QColor& color)
{
    const QColor rgb = color.toRgb();
    return 0.2126 * linearChannel(rgb.red()) + 0.7152 * linearChannel(rgb.green()) + 0.0722 * linearChannel(rgb.blue());
}

double ColorContrast::ratio(const QColor& first, const QColor& second)
{
    const double a = relativeLuminance(first);
    const double b = relativeLuminance(second);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}
