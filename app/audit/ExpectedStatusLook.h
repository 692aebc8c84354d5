#pragma once

#include <VNWidgetStatus.h>

#include <QColor>

// The colours that a status word should show, as the toolkit's status palette gives them. A colour
// that the word does not use is invalid: a plain word has no frame or fill, a word without sigma
// bits no sigma bar, a word without the compare bit no compare mark.
struct ExpectedStatusLook
{
    QColor frame;   // the strong colour of the main look: frames, bands, bars
    QColor fill;    // the light background of the main look
    QColor text;    // the text on that background (invalid where the palette does not say)
    QColor sigma;   // the sigma bar
    QColor compare; // the compare-differs mark

    // The one place that reads the palette: everything the audit expects comes through here.
    static ExpectedStatusLook of(VNWidgetStatus::StatusFlags flags);
};
