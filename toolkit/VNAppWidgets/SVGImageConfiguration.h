#pragma once

#include "vnappwidgets_export.h"

#include <QPixmap>
#include <QString>

// Helpers for showing SVG renderings in rich text.
class VNAPPWIDGETS_EXPORT SVGImageConfiguration
{
public:
    // An <img> element with the pixmap embedded as a PNG data URI, for rich-text tool tips; a null
    // pixmap gives an empty string.
    static QString pixmapToEmbeddedHtmlImageString(const QPixmap& pixmap);
};
