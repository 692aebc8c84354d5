#pragma once

#include "ExpectedStatusLook.h"
#include "StatusSwatch.h"

#include <QImage>
#include <QRect>

// Reads a status look from pixels: `plain` shows a widget without status and `marked` the same
// widget with one, both with a margin of the window around the widget's rectangle `area`. The
// colours that the status changed are the look; each part the palette expects must be among them.
class SwatchReader
{
public:
    SwatchReader(const QImage& plain, const QImage& marked, const QRect& area);
    StatusSwatch read(const ExpectedStatusLook& expected, StatusSwatch::Parts shown, bool hasText) const;

    // Colours of one picture channel-wise this close count as the same (antialiasing aside, a
    // painted status colour arrives exactly).
    static const int tolerance = 2;
    static bool same(QRgb first, QRgb second);

private:
    QColor find(const QColor& expected, bool* found) const;
    QColor surround() const;
    QColor strongestText(const QColor& fill, const StatusSwatch& swatch) const;

    QImage m_plain;
    QImage m_marked;
    QRect m_area;
    QHash<QRgb, int> m_changed; // colour -> pixels of the look that show it
};
