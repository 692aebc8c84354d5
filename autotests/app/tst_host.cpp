#include "TranslationFileTool.h"

#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {
struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run runHost(const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(HOST_EXECUTABLE), arguments);
    Run run;
    if (!process.waitForFinished(120000))
        return run;
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}
} // namespace

class HostTest : public QObject
{
    Q_OBJECT

private slots:
    void help();
    void listsEveryButton();
    void unknownOpenNamesTheValidOnes();
    void screenshots();
    void unwritableScreenshotDirectory();
    void mockLocale();
};

void HostTest::help()
{
    const Run run = runHost({QStringLiteral("--help")});
    QCOMPARE(run.exitCode, 0);
    for (const char* option : {"--list", "--open", "--screenshot", "--object-map"})
        QVERIFY2(run.out.contains(QLatin1String(option)), option);
}

void HostTest::listsEveryButton()
{
    const Run run = runHost({QStringLiteral("--list")});
    QCOMPARE(run.exitCode, 0);
    const QStringList lines = run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 40);
    QCOMPARE(lines.first(), QStringLiteral("showStyleSheet\tShow StyleSheet\t-\t-"));
    QVERIFY(lines.contains(QStringLiteral("m_testLayouts\tLayout && SizeHint\t3\t2")));
    QCOMPARE(lines.last(), QStringLiteral("m_testVNMessageBox\tVNMessageBox\t15\t0"));
}

void HostTest::unknownOpenNamesTheValidOnes()
{
    const Run run = runHost({QStringLiteral("--open"), QStringLiteral("m_testQML")});
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.err.contains(QStringLiteral("m_testQML")));
    QVERIFY(run.err.contains(QStringLiteral("m_testVNMessageBox")));
}

void HostTest::screenshots()
{
    QTemporaryDir dir;
    const Run run = runHost({QStringLiteral("--screenshot"), dir.path()});
    QCOMPARE(run.exitCode, 0);
    // The headless platform's notes on what it cannot do with windows are dropped; every other
    // message, such as a connection to a missing slot, still shows.
    QVERIFY2(!run.err.contains(QStringLiteral("This plugin does not support")), qPrintable(run.err));
    QVERIFY(run.err.contains(QStringLiteral("No such slot TestComposePixmap::")));
    const QImage panel(dir.filePath(QStringLiteral("TestWidgetCollection.png")));
    // With its own font and one device pixel per pixel, the panel has its designed size.
    QCOMPARE(panel.size(), QSize(706, 636));
    QCOMPARE(QImage(dir.filePath(QStringLiteral("m_QtTraining.png"))).size(), QSize(290, 624));
    QCOMPARE(QImage(dir.filePath(QStringLiteral("m_testVNMessageBox.png"))).size(), QSize(765, 573));
    // Each window is saved as it appeared; the loupe comes last and shows only in its own shot.
    QVERIFY(QImage(dir.filePath(QStringLiteral("m_testVNMessageBox.png"))) !=
            QImage(dir.filePath(QStringLiteral("loupe.png"))));
    for (const char* name : {"showStyleSheet", "stateDebug", "loupe"})
        QVERIFY2(!QImage(dir.filePath(QLatin1String(name) + QStringLiteral(".png"))).isNull(), name);
    QFile sheet(dir.filePath(QStringLiteral("index.html")));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(sheet.readAll());
    QVERIFY(html.contains(QStringLiteral("<code>m_QtTraining</code> Qt Training")));
    QVERIFY(html.contains(QStringLiteral("<img src=\"loupe.png\"")));
    // The status gallery is saved once more per tab, each shot with its own entry.
    const QImage gallery(dir.filePath(QStringLiteral("m_testSquish.png")));
    QSet<QByteArray> tabShots;
    for (const char* tab : {"tabInOut", "tabDoubleSpinbox", "tabNavigation", "tabDisclosures", "tabMisc", "tabTables",
                            "tabMasterDetail"}) {
        const QString file = QStringLiteral("m_testSquish-%1.png").arg(QLatin1String(tab));
        const QImage shot(dir.filePath(file));
        QCOMPARE(shot.size(), gallery.size());
        tabShots.insert(QByteArray(reinterpret_cast<const char*>(shot.constBits()), int(shot.sizeInBytes())));
        QVERIFY2(html.contains(QStringLiteral("<img src=\"%1\"").arg(file)), tab);
    }
    QCOMPARE(tabShots.size(), 7);
    QVERIFY(html.contains(QStringLiteral("<code>m_testSquish</code> Squish: Master / Detail")));
}

void HostTest::unwritableScreenshotDirectory()
{
    QTemporaryDir dir;
    QFile blocker(dir.filePath(QStringLiteral("file")));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    const Run run = runHost({QStringLiteral("--screenshot"), dir.filePath(QStringLiteral("file/shots"))});
    QCOMPARE(run.exitCode, 1);
    QVERIFY(run.err.contains(QStringLiteral("cannot write")));
    // A shot that cannot be written halfway through (a folder is in its place) fails the run.
    QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("shots/m_testSVG.png")));
    const Run halfway = runHost({QStringLiteral("--screenshot"), dir.filePath(QStringLiteral("shots"))});
    QCOMPARE(halfway.exitCode, 1);
    QVERIFY(halfway.err.contains(QStringLiteral("m_testSVG.png")));
}

void HostTest::mockLocale()
{
    if (!TWC_HAS_MOCK_TRANSLATION)
        QSKIP("built without lupdate and lrelease");
    const Run run = runHost({QStringLiteral("--mock-locale"), QStringLiteral("--list")});
    QCOMPARE(run.exitCode, 0);
    const QString loupe = TranslationFileTool().mockSwedish(QStringLiteral("Show Loupe"));
    QVERIFY2(run.out.contains(QStringLiteral("loupe\t") + loupe + QStringLiteral("\t-\t-\n")), qPrintable(run.out));
    QVERIFY(!run.out.contains(QStringLiteral("\tShow Loupe\t")));
}

QTEST_GUILESS_MAIN(HostTest)
#include "tst_host.moc"
