#include "AuditReport.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QUrl>

namespace {
const char pageStart[] = R"(<!DOCTYPE html>
<html>
<head>
<meta charset="utf-8">
<title>TestWidgetCollection look audit</title>
<style>
body { font-family: sans-serif; margin: 16px; }
figure { display: inline-block; vertical-align: top; margin: 6px; padding: 6px; border: 1px solid #ccc; }
figure img { max-width: 320px; height: auto; }
table { border-collapse: collapse; }
td, th { border: 1px solid #ccc; padding: 4px 6px; text-align: left; vertical-align: top; }
td img { max-width: 420px; height: auto; }
code { font-weight: bold; }
.allowed { color: #555; }
</style>
</head>
<body>
<h1>TestWidgetCollection look audit</h1>
)";
const char pageEnd[] = "</body>\n</html>\n";

// The order in which the report lists the checks, with what each one asks.
const struct
{
    const QString& check;
    const char* title;
} checkTitles[] = {
    {AuditFinding::statusCheck, "Status consistency: the gallery's looks against the status palette"},
    {AuditFinding::contrastCheck, "Contrast: text 4.5:1 on its fill, frames and marks 3:1 against the window"},
    {AuditFinding::keyboardCheck, "Keyboard: Tab reaches every widget, leaves every widget, and the focus shows"},
    {AuditFinding::namesCheck, "Names: what a screen reader announces for every widget that takes the focus"},
    {AuditFinding::densityCheck, "High-density screens: icons and pictures drawn for two device pixels per pixel"},
};

QString escaped(const QString& text)
{
    return text.toHtmlEscaped();
}

QString link(const QString& file)
{
    return escaped(QString::fromLatin1(QUrl::toPercentEncoding(file, "/")));
}

QString compact(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString writeFile(const QString& path, const QByteArray& contents)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) < 0 || !file.commit())
        return QStringLiteral("cannot write \"%1\": %2").arg(path, file.errorString());
    return QString();
}

QString saveImage(const QImage& image, const QString& directory, const QString& file)
{
    const QString path = QDir(directory).filePath(file);
    if (!image.save(path, "PNG"))
        return QStringLiteral("cannot write \"%1\"").arg(path);
    return QString();
}
} // namespace

void AuditReport::addPicture(const QString& window, const QString& caption, const QImage& picture)
{
    m_pictures << Picture{window, caption, picture, QStringLiteral("windows/%1.png").arg(window)};
}

void AuditReport::addFinding(const AuditFinding& finding)
{
    m_findings << finding;
    m_cropFiles << QString();
}

void AuditReport::addFindings(const QList<AuditFinding>& findings)
{
    for (const AuditFinding& finding : findings)
        addFinding(finding);
}

int AuditReport::openFindingCount() const
{
    int count = 0;
    for (const AuditFinding& finding : m_findings)
        count += finding.allowedBecause.isEmpty() ? 1 : 0;
    return count;
}

QList<QPair<QString, int>> AuditReport::openCountsByCheck() const
{
    QList<QPair<QString, int>> counts;
    for (const auto& entry : checkTitles) {
        int count = 0;
        for (const AuditFinding& finding : m_findings)
            count += finding.check == entry.check && finding.allowedBecause.isEmpty() ? 1 : 0;
        counts << qMakePair(entry.check, count);
    }
    return counts;
}

QString AuditReport::save(const QString& directory)
{
    const QDir dir(directory);
    for (const char* folder : {"windows", "crops"}) {
        if (!dir.mkpath(QLatin1String(folder)))
            return QStringLiteral("cannot create \"%1\"").arg(dir.filePath(QLatin1String(folder)));
    }
    QString error;
    for (const Picture& picture : qAsConst(m_pictures)) {
        if (error.isEmpty())
            error = saveImage(picture.image, directory, picture.file);
    }
    for (int i = 0; i < m_findings.size() && error.isEmpty(); ++i) {
        if (m_findings.at(i).crop.isNull())
            continue;
        m_cropFiles[i] = QStringLiteral("crops/%1.png").arg(i + 1, 4, 10, QLatin1Char('0'));
        error = saveImage(m_findings.at(i).crop, directory, m_cropFiles.at(i));
    }
    if (error.isEmpty() && !m_matrix.isEmpty())
        error = saveImage(m_matrix.render(), directory, QStringLiteral("matrix.png"));
    if (error.isEmpty())
        error = writeFile(dir.filePath(QStringLiteral("audit.json")), QJsonDocument(toJson()).toJson());
    if (error.isEmpty())
        error = writeFile(dir.filePath(QStringLiteral("audit.html")), html().toUtf8());
    return error;
}

QString AuditReport::merge(const QString& directory, const QString& subdirectory)
{
    QFile file(QDir(directory).filePath(QStringLiteral("audit.json")));
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot read \"%1\": %2").arg(file.fileName(), file.errorString());
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (!document.isObject())
        return QStringLiteral("\"%1\" is no audit report: %2").arg(file.fileName(), parseError.errorString());
    const QJsonArray findings = document.object().value(QStringLiteral("findings")).toArray();
    for (const QJsonValue& value : findings) {
        const QJsonObject object = value.toObject();
        AuditFinding finding;
        finding.window = object.value(QStringLiteral("window")).toString();
        finding.objectName = object.value(QStringLiteral("objectName")).toString();
        finding.check = object.value(QStringLiteral("check")).toString();
        finding.rule = object.value(QStringLiteral("rule")).toString();
        finding.message = object.value(QStringLiteral("message")).toString();
        finding.measured = object.value(QStringLiteral("measured")).toObject();
        finding.expected = object.value(QStringLiteral("expected")).toObject();
        m_findings << finding;
        const QString picture = object.value(QStringLiteral("picture")).toString();
        m_cropFiles << (picture.isEmpty() ? QString() : subdirectory + QLatin1Char('/') + picture);
    }
    return QString();
}

QJsonObject AuditReport::toJson() const
{
    QJsonObject byCheck;
    for (const auto& count : openCountsByCheck())
        byCheck.insert(count.first, count.second);
    QJsonArray findings;
    for (int i = 0; i < m_findings.size(); ++i) {
        QJsonObject object = m_findings.at(i).toJson();
        if (!m_cropFiles.at(i).isEmpty())
            object.insert(QStringLiteral("picture"), m_cropFiles.at(i));
        findings << object;
    }
    QJsonArray windows;
    for (const Picture& picture : m_pictures)
        windows << QJsonObject{{QStringLiteral("window"), picture.window},
                               {QStringLiteral("caption"), picture.caption},
                               {QStringLiteral("picture"), picture.file}};
    QJsonObject summary{{QStringLiteral("findings"), openFindingCount()},
                        {QStringLiteral("allowed"), m_findings.size() - openFindingCount()},
                        {QStringLiteral("byCheck"), byCheck},
                        {QStringLiteral("tabStops"), m_tabStops}};
    QJsonObject report{{QStringLiteral("summary"), summary},
                       {QStringLiteral("findings"), findings},
                       {QStringLiteral("windows"), windows}};
    if (!m_matrix.isEmpty())
        report.insert(QStringLiteral("matrix"), m_matrix.toJson());
    return report;
}

QString AuditReport::html() const
{
    QString page = QString::fromLatin1(pageStart);
    page += QStringLiteral("<p>%1 findings, %2 allowed by design; %3 widgets take the focus with Tab.</p>\n<ul>\n")
                .arg(openFindingCount())
                .arg(m_findings.size() - openFindingCount())
                .arg(m_tabStops);
    for (const auto& count : openCountsByCheck())
        page += QStringLiteral("<li><a href=\"#%1\">%1</a>: %2</li>\n").arg(count.first).arg(count.second);
    page += QStringLiteral("</ul>\n<h2>Windows</h2>\n");
    for (const Picture& picture : m_pictures)
        page += QStringLiteral("<figure><figcaption><code>%1</code> %2</figcaption>"
                               "<a href=\"%3\"><img src=\"%3\" alt=\"%1\"></a></figure>\n")
                    .arg(escaped(picture.window), escaped(picture.caption), link(picture.file));
    if (!m_matrix.isEmpty())
        page += QStringLiteral("<h2>Status matrix</h2>\n<p>One swatch per widget family and status word, read from "
                               "the gallery's pixels: the fill inside, the frame around, the sigma bar on the left, "
                               "the compare mark in the top right corner. %1 of %2 cells disagree with the palette "
                               "(crossed out in red).</p>\n<img src=\"matrix.png\" alt=\"status matrix\">\n")
                    .arg(m_matrix.disagreeingCount())
                    .arg(m_matrix.cellCount());
    for (const auto& entry : checkTitles) {
        page += QStringLiteral("<h2 id=\"%1\">%2</h2>\n<table>\n<tr><th>Window</th><th>Widget</th><th>Rule</th>"
                               "<th>Finding</th><th>Picture</th></tr>\n")
                    .arg(entry.check, escaped(QString::fromLatin1(entry.title)));
        for (int i = 0; i < m_findings.size(); ++i) {
            if (m_findings.at(i).check == entry.check)
                page +=
                    findingHtml(m_findings.at(i)) +
                    (m_cropFiles.at(i).isEmpty()
                         ? QStringLiteral("<td></td></tr>\n")
                         : QStringLiteral("<td><img src=\"%1\" alt=\"\"></td></tr>\n").arg(link(m_cropFiles.at(i))));
        }
        page += QStringLiteral("</table>\n");
    }
    return page + QLatin1String(pageEnd);
}

QString AuditReport::findingHtml(const AuditFinding& finding) const
{
    QString text = escaped(finding.message);
    text += QStringLiteral("<br><small>measured %1, expected %2</small>")
                .arg(escaped(compact(finding.measured)), escaped(compact(finding.expected)));
    if (!finding.allowedBecause.isEmpty())
        text += QStringLiteral("<br><em>Allowed: %1</em>").arg(escaped(finding.allowedBecause));
    return QStringLiteral("<tr%1><td><code>%2</code></td><td><code>%3</code></td><td>%4</td><td>%5</td>")
        .arg(finding.allowedBecause.isEmpty() ? QString() : QStringLiteral(" class=\"allowed\""),
             escaped(finding.window), escaped(finding.objectName), escaped(finding.rule), text);
}
