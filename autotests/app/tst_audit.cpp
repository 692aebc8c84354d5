#include "ReproducibleRun.h"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// The look audit over every window, run as a designer runs it, in the screenshot comparison's fixed
// environment. writesReport runs it and checks the report; findsNothing holds the findings of that
// report, apart from the allow-list's, to zero.
namespace {
const QString reportDirectory = QStringLiteral(TWC_BINARY_DIR "/audit");
// The status matrix as designers see it, accepted like a screenshot (scripts/accept-screenshots.sh).
const QString matrixReference = QStringLiteral(TWC_AUDIT_MATRIX_REFERENCE);
const QString resultsDirectory = QStringLiteral(TWC_BINARY_DIR "/screenshot-results");
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

private:
    void compareMatrix();
};

void AuditTest::writesReport()
{
    QVERIFY(QDir(reportDirectory).removeRecursively());
    QTemporaryDir home;
    QProcess host;
    host.setProcessEnvironment(ReproducibleRun::environment(QDir(home.path())));
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
        for (const char* key : {"window", "objectName", "check", "rule", "message"})
            QVERIFY2(!finding.value(QLatin1String(key)).toString().isEmpty(), key);
        const QString picture = finding.value(QStringLiteral("picture")).toString();
        QVERIFY2(picture.isEmpty() || QFile::exists(QDir(reportDirectory).filePath(picture)), qPrintable(picture));
    }
    QVERIFY(QFile::exists(QDir(reportDirectory).filePath(QStringLiteral("audit.html"))));
    // The run at --scale 2 found what it found for this report.
    QFile highDensity(QDir(reportDirectory).filePath(QStringLiteral("2x/audit.json")));
    QVERIFY(highDensity.open(QIODevice::ReadOnly));
    const QJsonObject highDensitySummary =
        QJsonDocument::fromJson(highDensity.readAll()).object().value(QStringLiteral("summary")).toObject();
    QCOMPARE(summary.value(QStringLiteral("byCheck")).toObject().value(QStringLiteral("density")).toInt(),
             highDensitySummary.value(QStringLiteral("findings")).toInt());
    compareMatrix();
}

void AuditTest::compareMatrix()
{
    const QImage matrix(QDir(reportDirectory).filePath(QStringLiteral("matrix.png")));
    QVERIFY2(!matrix.isNull(), "the audit wrote no status matrix");
    if (qEnvironmentVariableIntValue("TWC_ACCEPT_SCREENSHOTS") == 1) {
        QFile::remove(matrixReference);
        QVERIFY(matrix.save(matrixReference, "PNG", 0));
        qInfo("Accepted the status matrix into %s", qPrintable(matrixReference));
        return;
    }
    const QImage reference(matrixReference);
    if (reference.convertToFormat(QImage::Format_ARGB32) == matrix.convertToFormat(QImage::Format_ARGB32))
        return;
    const QString result = QDir(resultsDirectory).filePath(QStringLiteral("audit-matrix.png"));
    QVERIFY(QDir().mkpath(resultsDirectory) && matrix.save(result));
    QFAIL(qPrintable(QStringLiteral("the status matrix looks different from %1: see %2; accept it with %3")
                         .arg(matrixReference, result, QStringLiteral(TWC_ACCEPT_SCREENSHOTS_COMMAND))));
}

void AuditTest::findsNothing()
{
    const QJsonObject report = readReport();
    QVERIFY2(!report.value(QStringLiteral("summary")).toObject().isEmpty(), "no audit report: run writesReport first");
    QStringList lines;
    for (const QJsonValue& value : report.value(QStringLiteral("findings")).toArray()) {
        const QJsonObject finding = value.toObject();
        if (finding.contains(QStringLiteral("allowedBecause")))
            continue;
        if (lines.size() < findingsShown)
            lines << QStringLiteral("  %1 %2 (%3:%4): %5")
                         .arg(finding.value(QStringLiteral("window")).toString(),
                              finding.value(QStringLiteral("objectName")).toString(),
                              finding.value(QStringLiteral("check")).toString(),
                              finding.value(QStringLiteral("rule")).toString(),
                              finding.value(QStringLiteral("message")).toString());
        else
            lines.last() = QStringLiteral("  ...");
    }
    if (!lines.isEmpty())
        QFAIL(qPrintable(QStringLiteral("the look audit found (see %1/audit.html):\n%2")
                             .arg(reportDirectory, lines.join(QLatin1Char('\n')))));
}

QTEST_GUILESS_MAIN(AuditTest)
#include "tst_audit.moc"
