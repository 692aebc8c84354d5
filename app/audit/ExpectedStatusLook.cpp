#include "ExpectedStatusLook.h"

#include <VNStatusPainter_p.h>

namespace {
// The colour of the compare-differs frame that the toolkit's painters draw over every look.
const QColor compareDiffersColor(0xe0, 0x12, 0x9a);
} // namespace

ExpectedStatusLook ExpectedStatusLook::of(VNWidgetStatus::StatusFlags flags)
{
    ExpectedStatusLook look;
    look.frame = VNStatusPainter::frameColor(flags);
    look.fill = VNStatusPainter::fillColor(flags);
    look.sigma = VNStatusPainter::sigmaColor(flags);
    if (flags.testFlag(VNWidgetStatus::compareDifferent))
        look.compare = compareDiffersColor;
    return look;
}
