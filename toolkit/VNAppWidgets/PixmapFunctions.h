#pragma once

#include "vnappwidgets_export.h"

#include <QPixmap>
#include <QString>

// Pixmap helpers for icons.
//
// composePixmap: the canvas has the size of the base image, or, without a usable base, the largest
// overlay's size. Each layer is scaled down (never up) to fit the canvas with its aspect ratio
// kept, centred, and drawn over the layers before it (base, then overlay, then second overlay).
// An empty path, or one that names no readable image, leaves that layer out; when no layer is
// left the result is a null pixmap.
VNAPPWIDGETS_EXPORT QPixmap composePixmap(const QString& basePath, const QString& overlayPath,
                                          const QString& secondOverlayPath);

// The disabled look: each pixel becomes its grey value (qGray) moved half way to white,
// (grey + 255) / 2 rounded down, in all three channels; the alpha channel is kept.
VNAPPWIDGETS_EXPORT QPixmap disabledPixmap(const QPixmap& pixmap);

// The disabled look by transparency: the colours are kept and every pixel's alpha is scaled to
// 40 % (rounded to the nearest integer).
VNAPPWIDGETS_EXPORT QPixmap disabledPixmapByTransparency(const QPixmap& pixmap);

// Brightness changed by a percentage, clamped to -100 ... 100. A positive factor moves each colour
// channel that part of the way to 255 (c + (255 - c) * f / 100), a negative one scales it towards
// 0 (c * (100 + f) / 100), both rounded to the nearest integer; 0 returns the colours unchanged,
// 100 gives white and -100 black. The alpha channel is kept.
VNAPPWIDGETS_EXPORT QPixmap adjustPixmapBrightness(const QPixmap& pixmap, int factor);
