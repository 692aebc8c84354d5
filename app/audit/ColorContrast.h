#pragma once

#include <QColor>

// Contrast as accessibility guidelines (WCAG 2) define it: from 1:1 (the same colour) to 21:1
// (black on white). Text needs 4.5:1 against its background, a mark that carries meaning 3:1.
namespace ColorContrast {

constexpr double textMinimum = 4.5;
constexpr double markMinimum = 3.0;

// The relative luminance of an opaque colour: 0 for black, 1 for white.
double relativeLuminance(const QColor& color);
// The contrast ratio of two opaque colours, the lighter one first; always >= 1.
double ratio(const QColor& first, const QColor& second);

} // namespace ColorContrast
