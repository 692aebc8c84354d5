#include "SwatchReader.h"

#include "ColorContrast.h"

#include <cmath>
#include <cstdlib>

namespace {
// A part of a look covers at least this many pixels: fewer are antialiasing.
const int minimumPixels = 4;
// Text sits inside the frame: this many pixels along every edge are frame and bars.
const int frameInset = 3;

int distance(QRgb first, QRgb second)
{
    const int red = qRed(first) - qRed(second);
    const int green = qGreen(first) - qGreen(second);
    const int blue = qBlue(first) - qBlue(second);
    return red * red + green * green + blue * blue;
}

QRgb opaque(QRgb pixel)
{
    return pixel | 0xff000000u;
}
} // namespace

SwatchReader::SwatchReader(const QImage& plain, const QImage& marked, const QRect& area)
    : m_plain(plain.convertToFormat(QImage::Format_RGB32))
    , m_marked(marked.convertToFormat(QImage::Format_RGB32))
    , m_area(area & marked.rect())
{
    if (m_plain.size() != m_marked.size())
        return;
    for (int y = m_area.top(); y <= m_area.bottom(); ++y) {
        const auto* plainLine = reinterpret_cast<const QRgb*>(m_plain.constScanLine(y));
        const auto* markedLine = reinterpret_cast<const QRgb*>(m_marked.constScanLine(y));
        for (int x = m_area.left(); x <= m_area.right(); ++x) {
            if (plainLine[x] != markedLine[x])
                ++m_changed[opaque(markedLine[x])];
        }
    }
}

bool SwatchReader::same(QRgb first, QRgb second)
{
    return std::abs(qRed(first) - qRed(second)) <= tolerance && std::abs(qGreen(first) - qGreen(second)) <= tolerance &&
           std::abs(qBlue(first) - qBlue(second)) <= tolerance;
}

StatusSwatch SwatchReader::read(const ExpectedStatusLook& expected, StatusSwatch::Parts shown, bool hasText) const
{
    StatusSwatch swatch;
    swatch.expectedFrame = shown.testFlag(StatusSwatch::Frame) ? expected.frame : QColor();
    swatch.expectedFill = shown.testFlag(StatusSwatch::Fill) ? expected.fill : QColor();
    swatch.expectedSigma = shown.testFlag(StatusSwatch::Sigma) ? expected.sigma : QColor();
    swatch.expectedCompare = shown.testFlag(StatusSwatch::Compare) ? expected.compare : QColor();
    // The compare frame lies over the main frame where a widget has room for one frame only.
    if (swatch.expectedCompare.isValid() && shown.testFlag(StatusSwatch::Fill))
        swatch.expectedFrame = QColor();
    QColor* measured[] = {&swatch.frame, &swatch.fill, &swatch.sigma, &swatch.compare};
    for (int i = 0; i < 4; ++i) {
        const StatusSwatch::Part part = StatusSwatch::parts[i];
        const QColor wanted = swatch.expected(part);
        if (!wanted.isValid())
            continue;
        bool found = false;
        *measured[i] = find(wanted, &found);
        if (!found)
            swatch.disagreeing << StatusSwatch::partName(part);
    }
    swatch.surround = surround();
    if (hasText && swatch.fill.isValid())
        swatch.text = strongestText(swatch.fill, swatch);
    return swatch;
}

// The expected colour when the look shows it; otherwise the look's colour nearest to it, or an
// invalid colour when the status painted nothing at all.
QColor SwatchReader::find(const QColor& expected, bool* found) const
{
    const QRgb wanted = expected.rgb();
    QRgb nearest = 0;
    int nearestDistance = -1;
    for (auto it = m_changed.cbegin(); it != m_changed.cend(); ++it) {
        if (it.value() < minimumPixels)
            continue;
        if (same(it.key(), wanted)) {
            *found = true;
            return QColor(it.key());
        }
        const int d = distance(it.key(), wanted);
        if (nearestDistance < 0 || d < nearestDistance) {
            nearest = it.key();
            nearestDistance = d;
        }
    }
    *found = false;
    return nearestDistance < 0 ? QColor() : QColor(nearest);
}

// The most frequent colour of the margin around the widget, leaving out what the status changed
// there (a neighbour with the same status, as the next tab of a tab bar).
QColor SwatchReader::surround() const
{
    QHash<QRgb, int> counts;
    QHash<QRgb, int> unchanged;
    for (int y = 0; y < m_marked.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(m_marked.constScanLine(y));
        const auto* plainLine = reinterpret_cast<const QRgb*>(m_plain.constScanLine(y));
        for (int x = 0; x < m_marked.width(); ++x) {
            if (m_area.contains(x, y))
                continue;
            ++counts[opaque(line[x])];
            if (m_plain.size() == m_marked.size() && plainLine[x] == line[x])
                ++unchanged[opaque(line[x])];
        }
    }
    if (!unchanged.isEmpty())
        counts = unchanged;
    QRgb best = 0;
    int bestCount = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > bestCount) {
            best = it.key();
            bestCount = it.value();
        }
    }
    return bestCount ? QColor(best) : QColor();
}

// The pixel inside the frame that stands out most from the fill, leaving out the look's own
// colours (bars and marks are not text).
QColor SwatchReader::strongestText(const QColor& fill, const StatusSwatch& swatch) const
{
    const QRect inside = m_area.adjusted(frameInset, frameInset, -frameInset, -frameInset);
    QColor strongest;
    double strongestRatio = 1.0;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(m_marked.constScanLine(y));
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QRgb pixel = opaque(line[x]);
            bool isMark = same(pixel, fill.rgb());
            for (const QColor& mark : {swatch.frame, swatch.sigma, swatch.compare})
                isMark = isMark || (mark.isValid() && same(pixel, mark.rgb()));
            if (isMark)
                continue;
            const double ratio = ColorContrast::ratio(QColor(pixel), fill);
            if (ratio > strongestRatio) {
                strongestRatio = ratio;
                strongest = QColor(pixel);
            }
        }
    }
    return strongest;
}
