#include "ReproducibleEnvironment.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// The look audit over every window, run as a designer runs it, in the screenshot comparison's fixed
// environment. writesReport runs it and checks the report; findsNothing holds the findings of that
// report to zero (ctest runs it after writesReport and expects it to fail until the fixes land).
namespace {
const QString reportDirectory = QStringLiteral(TWC_BINARY_DIR "/audit");
const int auditTimeoutMs = 300000;
// Findings named in a failure message; the report has them all.
const int findingsShown = 20;

QJsonObject readReport()
{
    QFile file(QDir(reportDirectory).filePath(QStringLiteral("audit.json")));
    if (!file.open(QIODevice::ReadOnly))
        return QJsonObject();
    return QJsonDocument::fromJson(file.readAll()).object();
}
} // namespace

class AuditTest : public QObject
{
    Q_OBJECT

private slots:
    void writesReport();
    void findsNothing();
};

void AuditTest::writesReport()
{
    QVERIFY(QDir(reportDirectory).removeRecursively());
    QTemporaryDir home;
    QProcess host;
    host.setProcessEnvironment(ReproducibleEnvironment::forHome(QDir(home.path())));
    host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    host.start(QStringLiteral(HOST_EXECUTABLE), {QStringLiteral("--audit"), reportDirectory});
    QVERIFY(host.waitForFinished(auditTimeoutMs));
    QCOMPARE(host.exitStatus(), QProcess::NormalExit);
    qInfo("%s", host.readAllStandardOutput().constData());

    const QJsonObject report = readReport();
    const QJsonObject summary = report.value(QStringLiteral("summary")).toObject();
    QVERIFY2(!summary.isEmpty(), "no readable audit.json");
    QCOMPARE(host.exitCode(), summary.value(QStringLiteral("findings")).toInt() > 0 ? 1 : 0);
    QVERIFY(summary.value(QStringLiteral("tabStops")).toInt() > 0);
    QVERIFY(report.value(QStringLiteral("matrix")).toObject().value(QStringLiteral("cells")).toInt() > 0);
    for (const QJsonValue& value : report.value(QStringLiteral("findings")).toArray()) {
        const QJsonObject finding = value.toObject();
        for (const char* key : {"window", "check", "rule", "message"})
            QVERIFY2(!finding.value(QLatin1String(key)).toString().isEmpty(), key);
        const QString picture = finding.value(QStringLiteral("picture")).toString();
        QVERIFY2(picture.isEmpty() || QFile::exists(QDir(reportDirectory).filePath(picture)), qPrintable(picture));
    }
    QVERIFY(QFile::exists(QDir(reportDirectory).filePath(QStringLiteral("audit.html"))));
}

void AuditTest::findsNothing()
{
    const QJsonObject report = readReport();
    const QJsonObject summary = report.value(QStringLiteral("summary")).toObject();
    QVERIFY2(!summary.isEmpty(), "no audit report: run writesReport first");
    if (summary.value(QStringLiteral("findings")).toInt() == 0)
        return;
    QStringList lines{QStringLiteral("the look audit found (see %1/audit.html):").arg(reportDirectory)};
    const QJsonObject byCheck = summary.value(QStringLiteral("byCheck")).toObject();
    for (auto it = byCheck.begin(); it != byCheck.end(); ++it)
        lines << QStringLiteral("  %1: %2").arg(it.key()).arg(it.value().toInt());
    for (const QJsonValue& value : report.value(QStringLiteral("findings")).toArray()) {
        const QJsonObject finding = value.toObject();
        if (finding.contains(QStringLiteral("allowedBecause")))
            continue;
        if (lines.size() > findingsShown)
            break;
        lines << QStringLiteral("  %1 %2: %3")
                     .arg(finding.value(QStringLiteral("window")).toString(),
                          finding.value(QStringLiteral("objectName")).toString(),
                          finding.value(QStringLiteral("message")).toString());
    }
    QFAIL(qPrintable(lines.join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(AuditTest)
#include "tst_audit.moc"
