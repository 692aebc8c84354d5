#include "PathShortener.h"

#include <QVarLengthArray>
#include <QVector>

#include <algorithm>
#include <cstdlib>

const QChar PathShortener::ellipsis = QChar(0x2026);

namespace {
bool isSeparator(QChar character)
{
    return character == QLatin1Char('/') || character == QLatin1Char('\\');
}

int skipSeparators(const QString& path, int index)
{
    while (index < path.size() && isSeparator(path.at(index)))
        ++index;
    return index;
}

int skipName(const QString& path, int index)
{
    while (index < path.size() && !isSeparator(path.at(index)))
        ++index;
    return index;
}

// The part that is never left out: "\\server\share\", "C:\", "C:", "/" or nothing.
int rootLength(const QString& path)
{
    if (path.size() >= 2 && isSeparator(path.at(0)) && isSeparator(path.at(1))) {
        const int share = skipSeparators(path, skipName(path, 2));
        return skipSeparators(path, skipName(path, share));
    }
    if (path.size() >= 2 && path.at(1) == QLatin1Char(':') && path.at(0).isLetter())
        return skipSeparators(path, 2);
    return skipSeparators(path, 0);
}

QChar lastSeparator(const QString& directory)
{
    return directory.isEmpty() ? QLatin1Char('/') : directory.back();
}
} // namespace

// A path cut into its root, its directories (each with the separators behind it) and its name.
struct PathShortener::Parts
{
    QString root;
    QVector<QString> directories;
    QString name;
};

// Measuring a string shapes it as a whole, which costs far more than adding up the advances of
// its characters. Candidates are therefore estimated from character advances (kerning left out)
// and only promising ones are measured exactly. Each exact measurement tells how far the estimates
// are off for this font and path, and later estimates are corrected by that ratio; a short piece
// of the path gives the first ratio cheaply.
class PathShortener::Measure
{
public:
    Measure(const QFontMetrics& metrics, const QFontMetricsF& exactMetrics, int width)
        : m_metrics(metrics)
        , m_exactMetrics(exactMetrics)
        , m_width(width)
    {
        std::fill(std::begin(m_latin1), std::end(m_latin1), -1.0);
    }

    qreal estimate(const QString& text)
    {
        qreal sum = 0;
        for (QChar character : text)
            sum += advance(character);
        return sum;
    }

    void calibrate(const QString& sample)
    {
        const qreal sampleEstimate = estimate(sample);
        if (sampleEstimate > 0)
            m_ratio = m_metrics.horizontalAdvance(sample) / sampleEstimate;
    }

    // Kerning differs a little between the pieces of a path, and whole pixels are rounded.
    bool mayFit(qreal estimate) const { return estimate * m_ratio * 0.99 - 1 <= m_width; }

    bool fits(const QString& text, qreal estimate)
    {
        const int exact = m_metrics.horizontalAdvance(text);
        if (estimate > 0)
            m_ratio = exact / estimate;
        return exact <= m_width;
    }

private:
    qreal advance(QChar character)
    {
        if (character.unicode() >= 256)
            return m_exactMetrics.horizontalAdvance(character);
        qreal& known = m_latin1[character.unicode()];
        if (known < 0)
            known = m_exactMetrics.horizontalAdvance(character);
        return known;
    }

    const QFontMetrics& m_metrics;
    const QFontMetricsF& m_exactMetrics;
    const int m_width;
    qreal m_ratio = 1;
    qreal m_latin1[256];
};

PathShortener::PathShortener(int width, const QFontMetrics& metrics)
    : m_width(width)
    , m_metrics(metrics)
    , m_exactMetrics(metrics)
{}

PathShortener::~PathShortener() = default;

void PathShortener::setWidth(int width)
{
    m_width = width;
}

void PathShortener::setMetrics(const QFontMetrics& metrics)
{
    m_metrics = metrics;
    m_exactMetrics = QFontMetricsF(metrics);
}

QString PathShortener::adjust(const QString& path) const
{
    const Parts parts = split(path);
    Measure measure(m_metrics, m_exactMetrics, m_width);
    measure.calibrate(longestPiece(parts));
    const qreal estimate = measure.estimate(path);
    // Shaped scripts can be much narrower than the sum of their characters, so a path that is
    // anywhere near the width is measured as a whole before anything is left out.
    if (measure.mayFit(estimate / 1.5) && measure.fits(path, estimate))
        return path;
    if (!parts.directories.isEmpty()) {
        const QString shortened = withoutMiddleDirectories(parts, measure);
        if (!shortened.isEmpty())
            return shortened;
    }
    return withElidedName(parts);
}

PathShortener::Parts PathShortener::split(const QString& path)
{
    Parts parts;
    const int rootEnd = rootLength(path);
    parts.root = path.left(rootEnd);
    int start = rootEnd;
    while (start < path.size()) {
        const int end = skipSeparators(path, skipName(path, start));
        const QString component = path.mid(start, end - start);
        if (end < path.size())
            parts.directories.append(component);
        else
            parts.name = component;
        start = end;
    }
    return parts;
}

QString PathShortener::longestPiece(const Parts& parts)
{
    QString longest = parts.name;
    for (const QString& directory : parts.directories) {
        if (directory.size() > longest.size())
            longest = directory;
    }
    return longest;
}

// Tries ever longer runs of left-out directories, for each length the runs nearest to the middle
// first; ties keep the directories next to the name.
QString PathShortener::withoutMiddleDirectories(const Parts& parts, Measure& measure) const
{
    const int count = parts.directories.size();
    QVarLengthArray<qreal, 32> before(count + 1); // before[i]: width of the directories in front of i
    before[0] = 0;
    for (int i = 0; i < count; ++i)
        before[i + 1] = before[i] + measure.estimate(parts.directories.at(i));
    const qreal fixedWidth = measure.estimate(parts.root) + measure.estimate(parts.name);
    const qreal markerWidth = measure.estimate(QString(ellipsis)) + measure.estimate(QStringLiteral("/"));

    QVarLengthArray<int, 32> starts;
    for (int length = 1; length <= count; ++length) {
        starts.clear();
        for (int first = 0; first + length <= count; ++first)
            starts.append(first);
        // distance of the run's centre from the middle, in half directories
        std::stable_sort(starts.begin(), starts.end(), [length, count](int left, int right) {
            return std::abs(2 * left + length - count) < std::abs(2 * right + length - count);
        });
        for (int first : starts) {
            const int last = first + length; // one behind the run
            const qreal estimate = fixedWidth + before[first] + before[count] - before[last] + markerWidth;
            if (!measure.mayFit(estimate))
                continue;
            QString candidate = parts.root;
            for (int i = 0; i < first; ++i)
                candidate += parts.directories.at(i);
            candidate += ellipsis;
            candidate += lastSeparator(parts.directories.at(last - 1));
            for (int i = last; i < count; ++i)
                candidate += parts.directories.at(i);
            candidate += parts.name;
            if (measure.fits(candidate, estimate))
                return candidate;
        }
    }
    return QString();
}

// Every directory is gone and the name still does not fit: elide the name in its middle, behind
// the root while that leaves a piece of the name, otherwise on its own, and as a last resort keep
// only its beginning.
QString PathShortener::withElidedName(const Parts& parts) const
{
    const QString onlyEllipsis(ellipsis);
    QString shortened;
    if (parts.name.isEmpty()) {
        shortened = elidedToFit(QString(), parts.root, Qt::ElideRight);
    } else {
        QString prefix = parts.root;
        if (!parts.directories.isEmpty())
            prefix += onlyEllipsis + lastSeparator(parts.directories.constLast());
        shortened = elidedToFit(prefix, parts.name, Qt::ElideMiddle);
        if (shortened.isEmpty())
            shortened = elidedToFit(QString(), parts.name, Qt::ElideMiddle);
        if (shortened.isEmpty())
            shortened = elidedToFit(QString(), parts.name, Qt::ElideRight);
    }
    if (!shortened.isEmpty())
        return shortened;
    return fits(onlyEllipsis) ? onlyEllipsis : QString();
}

// prefix + text elided so that the whole fits. A text elided for a width can be wider than that
// width once shaped as a whole (kerning, ligatures, fallback fonts), so narrower widths are
// tried, each narrower by the overshoot, until it fits or nothing but the ellipsis is left.
QString PathShortener::elidedToFit(const QString& prefix, const QString& text, Qt::TextElideMode mode) const
{
    int available = m_width - m_metrics.horizontalAdvance(prefix);
    while (available > 0) {
        const QString elided = m_metrics.elidedText(text, mode, available);
        if (elided.isEmpty() || elided == QString(ellipsis))
            return QString();
        const int overshoot = m_metrics.horizontalAdvance(prefix + elided) - m_width;
        if (overshoot <= 0)
            return prefix + elided;
        available -= overshoot;
    }
    return QString();
}

bool PathShortener::fits(const QString& text) const
{
    return m_metrics.horizontalAdvance(text) <= m_width;
}
