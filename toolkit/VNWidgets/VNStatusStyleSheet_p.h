#pragma once

#include <QString>

// Writes the status rules of the toolkit style sheet from VNStatusPalette. The build runs it on
// the hand-written style sheet, whose marker line it replaces, and puts the result into the
// resource that VNStyleSheet applies; so the style sheet cannot drift from the palette.
class VNStatusStyleSheet
{
public:
    static QString marker();
    static QString rules();
    // The hand-written style sheet with its marker replaced by rules(); empty without a marker.
    static QString complete(const QString& handWritten);
};
