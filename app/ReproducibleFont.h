#pragma once

#include <QByteArray>
#include <QString>

// The font of every reproducible run (screenshots, object map, audit): DejaVu Sans at 9 points.
//
// Qt 6 reads a font's line metrics (ascent, descent, line gap) from its tables and keeps their
// fractions; Qt 5 took FreeType's, with ascent and descent rounded up to whole pixels. At 9 points
// a line is then 14 pixels high under Qt 6 and 15 under Qt 5, and so are the controls and windows
// sized from their texts, and the sizes a dialog measures and shows. So that both versions give the
// same windows, Qt 6 gets the font with table values that round, at every size from 8 to 19
// pixels, to what FreeType gives Qt 5. A changed font must not carry its original name (and would
// not win against the installed one of that name), so it is registered under a family of its own.
class ReproducibleFont
{
public:
    static const QString file;
    static const QString changedFamily;

    // Registers the font with the application and makes it the application's font; false when the
    // file is missing or unreadable (texts then use the system font).
    static bool install();

    // The data of a TrueType font with whole-pixel line metrics as FreeType computes them and the
    // family renamed; empty when the data is no TrueType font it can change.
    static QByteArray withWholePixelLineMetrics(const QByteArray& font, const QString& family);
};
