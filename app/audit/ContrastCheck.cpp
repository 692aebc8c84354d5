#include "ContrastCheck.h"

#include "ColorContrast.h"
#include "ExpectedStatusLook.h"
#include "StatusMatrix.h"

#include <QHash>
#include <QJsonArray>

#include <cmath>

namespace {
struct Pair
{
    QString part; // "frame", "sigma", "compare" or "text"
    QColor color;
    QColor against;
    double minimum;
};

// Two decimals, rounded down: a ratio just below a limit never reads as reaching it.
double rounded(double ratio)
{
    return std::floor(ratio * 100) / 100.0;
}

// Collects one finding per part, colour and background, with every family and word that shows it.
class Collector
{
public:
    Collector(const QString& windowName)
        : m_windowName(windowName)
    {}

    void add(const Pair& pair, const QString& source, const QString& objectName, const QString& word,
             const QImage& picture)
    {
        if (!pair.color.isValid() || !pair.against.isValid())
            return;
        const double ratio = ColorContrast::ratio(pair.color, pair.against);
        if (ratio >= pair.minimum)
            return;
        const QString key = pair.part + pair.color.name() + pair.against.name();
        if (!m_index.contains(key)) {
            m_index.insert(key, m_findings.size());
            m_findings << create(pair, ratio, objectName, picture);
        }
        AuditFinding& finding = m_findings[m_index.value(key)];
        appendUnique(finding, QStringLiteral("families"), source);
        appendUnique(finding, QStringLiteral("words"), word);
    }

    QList<AuditFinding> findings() const { return m_findings; }

private:
    AuditFinding create(const Pair& pair, double ratio, const QString& objectName, const QImage& picture) const
    {
        AuditFinding finding;
        finding.window = m_windowName;
        finding.objectName = objectName;
        finding.check = AuditFinding::contrastCheck;
        finding.rule = pair.part;
        finding.message = QStringLiteral("The %1 %2 stands at %3:1 against %4; it needs %5:1.")
                              .arg(pair.part, pair.color.name())
                              .arg(rounded(ratio))
                              .arg(pair.against.name())
                              .arg(pair.minimum);
        finding.measured = QJsonObject{{QStringLiteral("ratio"), rounded(ratio)},
                                       {QStringLiteral("color"), pair.color.name()},
                                       {QStringLiteral("against"), pair.against.name()}};
        finding.expected = QJsonObject{{QStringLiteral("minimumRatio"), pair.minimum}};
        finding.crop = picture;
        return finding;
    }

    static void appendUnique(AuditFinding& finding, const QString& key, const QString& value)
    {
        QJsonArray values = finding.measured.value(key).toArray();
        if (!values.contains(value))
            values << value;
        finding.measured.insert(key, values);
    }

    QString m_windowName;
    QHash<QString, int> m_index;
    QList<AuditFinding> m_findings;
};
} // namespace

QList<AuditFinding> ContrastCheck::run(const QString& windowName, const StatusMatrix& matrix, const QColor& window)
{
    Collector collector(windowName);
    const QList<StatusMatrix::Word>& words = matrix.words();
    for (int family = 0; family < matrix.families().size(); ++family) {
        const StatusMatrix::Family& named = matrix.families().at(family);
        for (int word = 0; word < words.size(); ++word) {
            for (bool compare : {false, true}) {
                if (!matrix.hasCell(family, word, compare))
                    continue;
                const StatusSwatch swatch = matrix.cell(family, word, compare);
                const QImage picture = matrix.picture(family, word, compare);
                const QString label =
                    words.at(word).label + (compare ? QStringLiteral(" + Compare Differs") : QString());
                const Pair pairs[] = {
                    {QStringLiteral("frame"), swatch.frame, swatch.surround, ColorContrast::markMinimum},
                    {QStringLiteral("sigma"), swatch.sigma, swatch.surround, ColorContrast::markMinimum},
                    {QStringLiteral("compare"), swatch.compare, swatch.surround, ColorContrast::markMinimum},
                    {QStringLiteral("text"), swatch.text, swatch.fill, ColorContrast::textMinimum}};
                for (const Pair& pair : pairs)
                    collector.add(pair, named.name, named.objectName, label, picture);
            }
        }
    }
    // The palette itself, against the window colour.
    for (const StatusMatrix::Word& word : words) {
        for (bool compare : {false, true}) {
            VNWidgetStatus::StatusFlags flags = word.flags;
            VNWidgetStatus::setFlag(flags, VNWidgetStatus::compareDifferent, compare);
            const ExpectedStatusLook look = ExpectedStatusLook::of(flags);
            const QString label = word.label + (compare ? QStringLiteral(" + Compare Differs") : QString());
            const Pair pairs[] = {{QStringLiteral("frame"), look.frame, window, ColorContrast::markMinimum},
                                  {QStringLiteral("sigma"), look.sigma, window, ColorContrast::markMinimum},
                                  {QStringLiteral("compare"), look.compare, window, ColorContrast::markMinimum},
                                  {QStringLiteral("text"), look.text, look.fill, ColorContrast::textMinimum}};
            for (const Pair& pair : pairs)
                collector.add(pair, QStringLiteral("palette"), QStringLiteral("palette"), label, QImage());
        }
    }
    return collector.findings();
}
