#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTest>

// Every resource path that the sources name must exist, and every SVG among them must render.
class ResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void namedResourcesExist_data();
    void namedResourcesExist();
};

void ResourcesTest::namedResourcesExist_data()
{
    QTest::addColumn<QString>("path");
    const QRegularExpression quoted(QStringLiteral("\"(:/[^\"]*)\""));
    const QRegularExpression inForm(QStringLiteral(">(:/[^<]*)<"));
    QSet<QString> seen;
    for (const char* folder : {"launcher", "translation", "tests", "toolkit", "app", "resources"}) {
        QDirIterator files(QStringLiteral(TWC_SOURCE_DIR "/") + QLatin1String(folder),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            for (const QRegularExpression& pattern : {quoted, inForm}) {
                auto matches = pattern.globalMatch(text);
                while (matches.hasNext()) {
                    const QString path = matches.next().captured(1);
                    // Folder prefixes and the bare ":/" test name no file.
                    if (path.endsWith(QLatin1Char('/')) || seen.contains(path))
                        continue;
                    seen.insert(path);
                    QTest::newRow(qPrintable(path)) << path;
                }
            }
        }
    }
    QVERIFY(!seen.isEmpty());
}

void ResourcesTest::namedResourcesExist()
{
    QFETCH(QString, path);
    // A base path without suffix names a pair of drawings ("_16.svg" and "_24.svg").
    const QStringList candidates = {path, path + QStringLiteral("_16.svg"), path + QStringLiteral(".svg")};
    QString existing;
    for (const QString& candidate : candidates) {
        if (QFile::exists(candidate)) {
            existing = candidate;
            break;
        }
    }
    QVERIFY2(!existing.isEmpty(), qPrintable(path + QStringLiteral(" is missing")));
    if (existing.endsWith(QLatin1String(".svg")))
        QVERIFY2(QSvgRenderer(existing).isValid(), qPrintable(existing + QStringLiteral(" does not render")));
}

QTEST_MAIN(ResourcesTest)
#include "tst_resources.moc"
