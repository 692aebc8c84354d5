#include "AllowList.h"

#include <QStringList>

namespace {
const QString anything = QStringLiteral("*");

bool matches(const QString& pattern, const QString& value)
{
    return pattern == anything || pattern == value;
}
} // namespace

QString AllowList::parse(const QString& text)
{
    m_entries.clear();
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int number = 0; number < lines.size(); ++number) {
        const QString line = lines.at(number).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList fields = line.split(QLatin1Char('\t'), Qt::SkipEmptyParts);
        if (fields.size() < 4 || fields.at(3).trimmed().isEmpty())
            return QStringLiteral("line %1: an entry needs a window, an object name, a check and a reason, "
                                  "separated by tabs")
                .arg(number + 1);
        m_entries << Entry{fields.at(0).trimmed(), fields.at(1).trimmed(), fields.at(2).trimmed(),
                           fields.mid(3).join(QLatin1Char(' ')).trimmed()};
    }
    return QString();
}

bool AllowList::allow(AuditFinding& finding) const
{
    for (const Entry& entry : m_entries) {
        if (matches(entry.window, finding.window) && matches(entry.objectName, finding.objectName) &&
            (entry.check == finding.check || entry.check == finding.check + QLatin1Char(':') + finding.rule)) {
            finding.allowedBecause = entry.reason;
            return true;
        }
    }
    return false;
}
