#include "ExpectedStatusLook.h"

#include <VNStatusPalette.h>

ExpectedStatusLook ExpectedStatusLook::of(VNWidgetStatus::StatusFlags flags)
{
    const VNStatusPalette::StatusLook word = VNStatusPalette::statusLook(flags);
    const VNStatusPalette::Colors colors = VNStatusPalette::colors(word.look);
    ExpectedStatusLook look;
    look.frame = colors.frame;
    look.fill = colors.fill;
    look.text = colors.text;
    look.sigma = VNStatusPalette::sigmaColor(word.sigma);
    if (word.compare)
        look.compare = VNStatusPalette::compareColor();
    return look;
}
