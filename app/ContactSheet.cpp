#include "ContactSheet.h"

#include <QSaveFile>
#include <QUrl>

namespace {
const char pageStart[] = R"(<!DOCTYPE html>
<html>
<head>
<meta charset="utf-8">
<title>TestWidgetCollection screenshots</title>
<style>
body { font-family: sans-serif; margin: 16px; }
figure { display: inline-block; vertical-align: top; margin: 8px; padding: 8px; border: 1px solid #ccc; }
figcaption { margin-bottom: 6px; }
code { font-weight: bold; }
img { max-width: 480px; height: auto; }
</style>
</head>
<body>
<h1>TestWidgetCollection screenshots</h1>
)";
const char pageEnd[] = "</body>\n</html>\n";
} // namespace

void ContactSheet::addShot(const QString& buttonName, const QString& buttonText, const QString& fileName)
{
    m_shots << Shot{buttonName, buttonText, fileName};
}

QString ContactSheet::html() const
{
    QString page = QString::fromLatin1(pageStart);
    for (const Shot& shot : m_shots) {
        // Button texts carry mnemonics and markup characters of their own ("Layout && SizeHint").
        const QString link = QString::fromLatin1(QUrl::toPercentEncoding(shot.fileName)).toHtmlEscaped();
        page += QStringLiteral("<figure id=\"%1\">\n<figcaption><code>%2</code> %3</figcaption>\n"
                               "<a href=\"%4\"><img src=\"%4\" alt=\"%2\"></a>\n</figure>\n")
                    .arg(shot.fileName.toHtmlEscaped(), shot.buttonName.toHtmlEscaped(),
                         shot.buttonText.toHtmlEscaped(), link);
    }
    return page + QLatin1String(pageEnd);
}

QString ContactSheet::save(const QString& path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(html().toUtf8()) < 0 || !file.commit())
        return file.errorString();
    return QString();
}
