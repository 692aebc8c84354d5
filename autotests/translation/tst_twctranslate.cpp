#include "ScratchFiles.h"
#include "TranslationCommandLine.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <QTranslator>

namespace {
struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run runInProcess(const QStringList& arguments)
{
    Run run;
    QTextStream out(&run.out);
    QTextStream err(&run.err);
    run.exitCode = TranslationCommandLine(out, err).run(QStringList(QStringLiteral("twc-translate")) + arguments);
    return run;
}

using ScratchFiles::readBytes;

const QByteArray trSource = "void f() { x = tr(\"A\"); }\n";

QByteArray rewritten(const char* context)
{
    return QByteArray("void f() { x = QApplication::translate(\"") + context + "\", \"A\"); }\n";
}

QString lrelease()
{
    for (const char* name : {"lrelease", "lrelease-qt5"}) {
        const QString found = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (!found.isEmpty())
            return found;
    }
    return QStandardPaths::findExecutable(QStringLiteral("lrelease"), {QStringLiteral("/usr/lib/qt5/bin")});
}

// Mock Swedish of the file with its forms kept, compiled by lrelease: empty, or what went wrong.
QString compileKeptForms(const QString& tsPath, const QString& qmPath)
{
    const Run mock = runInProcess({QStringLiteral("mock"), QStringLiteral("--keep-numerus"), tsPath});
    const QString swe = tsPath + QStringLiteral(".swe.ts"); // lrelease reads only files named *.ts
    if (mock.exitCode != 0 || !QFile::copy(tsPath + QStringLiteral(".swe"), swe))
        return QStringLiteral("no mock output: ") + mock.err;
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(lrelease(), {swe, QStringLiteral("-qm"), qmPath});
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return QStringLiteral("lrelease failed: ") + QString::fromLocal8Bit(process.readAll());
    return QString();
}

// What lupdate writes for a team translating into Swedish, and forms in other shapes.
const QByteArray plurals = R"(<TS version="2.1" language="sv">
<context>
    <name>Dialog</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes"><source>%n folder(s)</source><translation><numerusform/></translation></message>
    <message numerus="yes"><source>%n item(s)</source><translation type="unfinished"></translation></message>
    <message><source>Cancel</source><translation variants="yes"><lengthvariant>Abbrechen</lengthvariant>
        <lengthvariant>Abbr.</lengthvariant></translation></message>
</context>
</TS>
)";
} // namespace

class TwcTranslateTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void help_data();
    void help();
    void usageErrors_data();
    void usageErrors();
    void resultPerFile_data();
    void resultPerFile();
    void unreadableFileFails();
    void writesOutputFiles();
    void rewritesFilesInPlace();
    void treeFromEnvironmentSkipsLegacy();
    void treeGivenAsArgument();
    void unprintableResultsFail();
    void messagesMatchExitCodes_data();
    void messagesMatchExitCodes();
    void fullDiskAndReadOnlyFolder();
    void lreleaseAcceptsKeptForms_data();
    void lreleaseAcceptsKeptForms();

private:
    QString writeFile(const QString& name, const QByteArray& content);
    QScopedPointer<QTemporaryDir> m_dir;
};

void TwcTranslateTest::init()
{
    m_dir.reset(new QTemporaryDir);
    qunsetenv("VN_TRANSLATION_SOURCE_PATH");
}

QString TwcTranslateTest::writeFile(const QString& name, const QByteArray& content)
{
    return ScratchFiles::write(QDir(m_dir->path()), name, content);
}

void TwcTranslateTest::help_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("alone") << QStringList({"--help"});
    QTest::newRow("as tree root") << QStringList({"rewrite-tr", "--tree", "-h"});
}

void TwcTranslateTest::help()
{
    QFETCH(QStringList, arguments);
    const Run run = runInProcess(arguments);
    QCOMPARE(run.exitCode, 0);
    for (const char* mode : {"fix", "mock", "count-braces", "count-numerus", "check-braces", "count-unfinished",
                             "rewrite-tr", "--tree", "VN_TRANSLATION_SOURCE_PATH", "--keep-numerus", "lrelease"})
        QVERIFY2(run.out.contains(QLatin1String(mode)), mode);
    QVERIFY(run.err.isEmpty());
}

void TwcTranslateTest::usageErrors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("problem");
    QTest::newRow("nothing") << QStringList() << "no mode given";
    QTest::newRow("unknown mode") << QStringList({"translate", "a.ts"}) << "unknown mode \"translate\"";
    QTest::newRow("no file") << QStringList({"count-braces"}) << "no FILE given";
    QTest::newRow("unknown option") << QStringList({"fix", "--force", "a.ts"}) << "unknown option \"--force\"";
    QTest::newRow("tree with another mode") << QStringList({"fix", "--tree"}) << "--tree goes right after rewrite-tr";
    QTest::newRow("forms kept in another mode") << QStringList({"fix", "--keep-numerus", "a.ts"}) << "with mock only";
    QTest::newRow("two tree roots") << QStringList({"rewrite-tr", "--tree", "a", "b"}) << "at most one DIR";
    QTest::newRow("option as tree root") << QStringList({"rewrite-tr", "--tree", "--all"}) << "unknown option";
}

void TwcTranslateTest::usageErrors()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, problem);
    const Run run = runInProcess(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains(problem), qPrintable(run.err));
    QVERIFY(run.err.contains(QStringLiteral("--help")));
}

void TwcTranslateTest::resultPerFile_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("count-braces") << "count-braces"
                                  << "The file contains:\n2 opening braces and \n2 closing braces."
                                  << "The file contains:\n2 opening braces and \n3 closing braces.\n"
                                     "Something went terribly wrong...";
    QTest::newRow("check-braces") << "check-braces"
                                  << "The file's braces are correct."
                                  << "The file's braces are incorrect.";
    QTest::newRow("count-numerus") << "count-numerus"
                                   << "The file contains:\n0 numerus cases."
                                   << "The file contains:\n1 numerus cases.";
    QTest::newRow("count-unfinished") << "count-unfinished"
                                      << "0 strings are not translated yet."
                                      << "1 strings are not translated yet.";
}

void TwcTranslateTest::resultPerFile()
{
    QFETCH(QString, mode);
    QFETCH(QString, first);
    QFETCH(QString, second);
    const QString a = writeFile(QStringLiteral("a.ts"), "<a><b>");
    const QString b = writeFile(QStringLiteral("b.ts"), "<m numerus=\"yes\"><translation type=\"unfinished\">>");
    const Run run = runInProcess({mode, a, b});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out, a + ":\n" + first + '\n' + b + ":\n" + second + '\n');
    const Run single = runInProcess({mode, a});
    QCOMPARE(single.out, first + '\n');
}

void TwcTranslateTest::unreadableFileFails()
{
    const QString good = writeFile(QStringLiteral("good.ts"), "<a>");
    const QString missing = m_dir->filePath(QStringLiteral("missing.ts"));
    const Run run = runInProcess({QStringLiteral("count-braces"), missing, good});
    QCOMPARE(run.exitCode, 1);
    // Only the readable file has a result; the others have only their problem.
    QCOMPARE(run.out, good + ":\nThe file contains:\n1 opening braces and \n1 closing braces.\n");
    QVERIFY(run.err.contains(QStringLiteral("\"%1\" does not exist.").arg(missing)));
    QVERIFY(!run.err.contains(good));
}

void TwcTranslateTest::writesOutputFiles()
{
    const QString ts = writeFile(QStringLiteral("app.ts"), "<source>Cancel</source><translation>x</translation>");
    const Run fix = runInProcess({QStringLiteral("fix"), ts});
    QCOMPARE(fix.exitCode, 0);
    QCOMPARE(fix.out, QStringLiteral("Processing...\nThe file was translated successfully.\n"));
    QCOMPARE(readBytes(ts + ".fix"), QByteArray("<source>Cancel</source><translation>x</translation>"));
    const Run mock = runInProcess({QStringLiteral("mock"), ts});
    QCOMPARE(mock.exitCode, 0);
    QCOMPARE(readBytes(ts + ".swe"), QString("<source>Cancel</source><translation>üCåncel</translation>").toUtf8());
}

void TwcTranslateTest::rewritesFilesInPlace()
{
    const QString first = writeFile(QStringLiteral("First.cpp"), trSource);
    const QString second = writeFile(QStringLiteral("Second.h"), trSource);
    const Run run = runInProcess({QStringLiteral("rewrite-tr"), first, second});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out, "Processing:\n" + first + "\nProcessing:\n" + second + "\nReplacing finished.\n");
    QCOMPARE(readBytes(first), rewritten("First"));
    QCOMPARE(readBytes(second), rewritten("Second"));
}

void TwcTranslateTest::treeFromEnvironmentSkipsLegacy()
{
    const QString kept = writeFile(QStringLiteral("src/Main.cpp"), trSource);
    const QString legacy = writeFile(QStringLiteral("src/legacy/Old.cpp"), trSource);
    writeFile(QStringLiteral("src/Empty.h"), QByteArray());
    const QString excluded = writeFile(QStringLiteral("src/RgDialog.cpp"), trSource);
    qputenv("VN_TRANSLATION_SOURCE_PATH", QFile::encodeName(m_dir->filePath(QStringLiteral("src"))));
    const Run run = runInProcess({QStringLiteral("rewrite-tr"), QStringLiteral("--tree")});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.out.contains("Processing:\n" + kept + '\n'));
    QVERIFY(!run.out.contains(legacy));
    QVERIFY(run.out.endsWith(QStringLiteral("Replacing finished.\n")));
    QCOMPARE(readBytes(kept), rewritten("Main"));
    QCOMPARE(readBytes(legacy), trSource);
    QCOMPARE(readBytes(excluded), trSource); // left out on purpose, which is no failure
}

void TwcTranslateTest::treeGivenAsArgument()
{
    const QString root = writeFile(QStringLiteral("tree/One.cpp"), trSource);
    const Run run = runInProcess({QStringLiteral("rewrite-tr"), QStringLiteral("--tree"), QFileInfo(root).path()});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(readBytes(root), rewritten("One"));
}

// Results that cannot reach standard output are no success.
void TwcTranslateTest::unprintableResultsFail()
{
#ifdef Q_OS_UNIX
    QProcess full;
    full.setStandardOutputFile(QStringLiteral("/dev/full"));
    full.start(QStringLiteral(TWC_TRANSLATE_EXECUTABLE), {QStringLiteral("check-braces"), writeFile("app.ts", "<a>")});
    QVERIFY(full.waitForFinished(60000));
    QCOMPARE(full.exitCode(), 1);
    QVERIFY(full.readAllStandardError().contains("standard output"));
#else
    QSKIP("needs /dev/full");
#endif
}

void TwcTranslateTest::messagesMatchExitCodes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("problem");
    QTest::addColumn<int>("exitCode");
    const QString missing = QStringLiteral("MISSING");
    QTest::newRow("result") << QStringList({"check-braces", "GOOD"}) << "The file's braces are correct.\n"
                            << QString() << 0;
    QTest::newRow("unknown mode") << QStringList({"bogus"}) << QString() << "unknown mode" << 2;
    QTest::newRow("skipped file noted with the progress")
        << QStringList({"count-braces", "RGFILE"})
        << "\"RGFILE\" was skipped: files whose names start with \"Rg\" or \"rg\" are never read.\n"
        << "was skipped" << 1;
    QTest::newRow("count missing") << QStringList({"count-braces", missing}) << QString() << "does not exist" << 1;
    QTest::newRow("count unfinished missing")
        << QStringList({"count-unfinished", missing}) << QString() << "does not exist" << 1;
    QTest::newRow("tree missing") << QStringList({"rewrite-tr", "--tree", missing}) << QString() << "is not a directory"
                                  << 1;
    QTest::newRow("tree without root")
        << QStringList({"rewrite-tr", "--tree"})
        << "The environment variable $VN_TRANSLATION_SOURCE_PATH$ is not set. Set the variable first.\n"
        << "give DIR or set VN_TRANSLATION_SOURCE_PATH" << 2;
    QTest::newRow("tree with an invalid file")
        << QStringList({"rewrite-tr", "--tree", "TREE"}) << "Processing:\nLATIN1\n"
        << "is not valid UTF-8 text" << 1;
    QTest::newRow("proc file") << QStringList({"rewrite-tr", "/proc/self/comm"}) << "Processing:\n/proc/self/comm\n"
                               << "could not be read completely" << 1;
    QTest::newRow("invalid UTF-8") << QStringList({"rewrite-tr", "LATIN1"}) << "Processing:\nLATIN1\n"
                                   << "is not valid UTF-8 text" << 1;
    QTest::newRow("mock invalid UTF-8")
        << QStringList({"mock", "LATIN1"})
        << "Processing...\nStart parsing ts files at: LATIN1\nAn error occurred. The file could not be translated.\n"
        << "is not valid UTF-8 text" << 1;
}

void TwcTranslateTest::messagesMatchExitCodes()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, out);
    QFETCH(QString, problem);
    QFETCH(int, exitCode);
    const QString latin1 = writeFile(QStringLiteral("Latin1.cpp"), "x = tr(\"K\xe4se\");\n");
    const QString skipped = writeFile(QStringLiteral("rgDialog.ts"), "<a>");
    arguments.replaceInStrings(QStringLiteral("MISSING"), m_dir->filePath(QStringLiteral("missing")));
    arguments.replaceInStrings(QStringLiteral("LATIN1"), latin1);
    arguments.replaceInStrings(QStringLiteral("GOOD"), writeFile(QStringLiteral("good.ts"), "<a>"));
    arguments.replaceInStrings(QStringLiteral("RGFILE"), skipped);
    arguments.replaceInStrings(QStringLiteral("TREE"), m_dir->path());
    QProcess process;
    process.start(QStringLiteral(TWC_TRANSLATE_EXECUTABLE), arguments);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), exitCode);
    QCOMPARE(QString::fromLocal8Bit(process.readAllStandardOutput()),
             QString(out).replace("LATIN1", latin1).replace("RGFILE", skipped));
    QVERIFY(QString::fromLocal8Bit(process.readAllStandardError()).contains(problem));
    QCOMPARE(readBytes(latin1), QByteArray("x = tr(\"K\xe4se\");\n"));
}

/*
  A real full disk and a real read-only file system: a small tmpfs, mounted only where this test
  may mount one (as root).
*/
void TwcTranslateTest::fullDiskAndReadOnlyFolder()
{
    const QString mountPoint = m_dir->filePath(QStringLiteral("small"));
    QDir().mkpath(mountPoint);
    const auto sh = [](const QString& command) { return QProcess::execute("sh", {"-c", command}); };
    if (sh(QStringLiteral("mount -t tmpfs -o size=64k tmpfs '%1' 2>/dev/null").arg(mountPoint)) != 0)
        QSKIP("cannot mount a small tmpfs here");
    const QScopeGuard unmount([&] { sh(QStringLiteral("umount '%1'").arg(mountPoint)); });
    QByteArray source;
    for (int line = 0; line < 1500; ++line)
        source += "x = tr(\"" + QByteArray::number(line) + "\");\r\n"; // 30 KB that grow to 70 KB
    const QString big = ScratchFiles::write(QDir(mountPoint), QStringLiteral("Big.cpp"), source);
    const QString ts = ScratchFiles::write(QDir(mountPoint), QStringLiteral("app.ts"),
                                           QByteArray("<source>Open file</source><translation></translation>\n")
                                               .repeated(370)); // 20 KB that grow to 26 KB
    const Run rewrite = runInProcess({QStringLiteral("rewrite-tr"), big});
    const Run mock = runInProcess({QStringLiteral("mock"), ts});
    const QByteArray bigAfter = readBytes(big);
    const bool sweLeft = QFileInfo::exists(ts + ".swe");
    sh(QStringLiteral("mount -o remount,ro '%1'").arg(mountPoint));
    const Run readOnly = runInProcess({QStringLiteral("rewrite-tr"), big});

    QCOMPARE(rewrite.exitCode, 1);
    QVERIFY(!rewrite.out.contains(QStringLiteral("Replacing finished.")));
    QVERIFY2(rewrite.err.contains(QStringLiteral("No space left on device); the file was left as it was.")),
             qPrintable(rewrite.err));
    QCOMPARE(bigAfter, source);
    QCOMPARE(mock.exitCode, 1);
    QVERIFY(mock.out.endsWith(QStringLiteral("An error occurred. The file could not be translated.\n")));
    QVERIFY(!sweLeft);
    QCOMPARE(readOnly.exitCode, 1);
    QVERIFY2(readOnly.err.contains(QStringLiteral("was left unchanged: the file is read-only.")),
             qPrintable(readOnly.err));
}

void TwcTranslateTest::lreleaseAcceptsKeptForms_data()
{
    QTest::addColumn<QString>("input");
    const QFileInfoList corpus = ScratchFiles::corpusFiles();
    for (const QFileInfo& file : corpus)
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    if (corpus.isEmpty())
        QTest::newRow("no corpus") << QStringLiteral("no corpus");
    QTest::newRow("generated plurals and variants") << QString();
}

/*
  lrelease compiles what the forms kept, and in the generated file every plural form and length
  variant holds the mock Swedish of its source. (A message with fewer forms than its language has
  compiles too, but lrelease pads it with null forms, with which Qt finds no translation at all.)
*/
void TwcTranslateTest::lreleaseAcceptsKeptForms()
{
    QFETCH(QString, input);
    if (lrelease().isEmpty())
        QSKIP("lrelease (Debian package qttools5-dev-tools) is not installed");
    if (!input.isEmpty() && !QFileInfo::exists(input))
        QSKIP("the .ts corpus is not available (TWC_TS_CORPUS names its folder)");
    const QString ts = input.isEmpty() ? writeFile(QStringLiteral("plurals.ts"), plurals)
                                       : writeFile(QFileInfo(input).fileName(), readBytes(input));
    const QString qm = m_dir->filePath(QStringLiteral("out.qm"));
    QCOMPARE(compileKeptForms(ts, qm), QString());
    if (!input.isEmpty())
        return;
    QTranslator translator;
    QVERIFY(translator.load(qm) && QCoreApplication::installTranslator(&translator));
    const auto translate = [](const char* source, int n) {
        return QCoreApplication::translate("Dialog", source, nullptr, n);
    };
    QCOMPARE(translate("%n file(s)", 1), QString::fromUtf8("ü1 ffeele(s)"));
    QCOMPARE(translate("%n file(s)", 5), QString::fromUtf8("ü5 ffeele(s)"));
    QCOMPARE(translate("Cancel", -1).split(QChar(0x9c)), QString::fromUtf8("üCåncel üCåncel").split(QLatin1Char(' ')));
    QCoreApplication::removeTranslator(&translator);
}

QTEST_MAIN(TwcTranslateTest)
#include "tst_twctranslate.moc"
