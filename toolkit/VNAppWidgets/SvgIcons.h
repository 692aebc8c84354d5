#pragma once

#include "vnappwidgets_export.h"

#include <QIcon>
#include <QString>

// An icon drawn from an SVG resource, crisp at every size.
VNAPPWIDGETS_EXPORT QIcon createSvgIcon(const QString& resourcePath);

// An icon from the 16 and 24 pixel drawings of a base path ("<base>_16.svg", "<base>_24.svg");
// a base that names an SVG file itself is used for both sizes.
VNAPPWIDGETS_EXPORT QIcon createTwoSizeSvgIcon(const QString& basePath);
