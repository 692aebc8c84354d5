#pragma once

#include "AuditFinding.h"

#include <QList>

class StatusMatrix;

// Whether every status look can be told apart: measured on the gallery's pixels, text stands at
// least 4.5:1 against its fill, and frames, sigma bars and compare marks at least 3:1 against the
// window around them. The palette's own colours are held to the same limits against the window
// colour. Disabled widgets are exempt (the gallery's swatches are all enabled).
class ContrastCheck
{
public:
    static QList<AuditFinding> run(const QString& windowName, const StatusMatrix& matrix, const QColor& window);
};
