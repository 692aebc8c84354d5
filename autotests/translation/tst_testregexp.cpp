#include "ScratchFiles.h"
#include "TestRegExp.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <cstdio>

#include <functional>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {
// The dialog with its file dialog replaced by a script: it answers with queued paths and
// remembers where each dialog would have opened.
class ScriptedTestRegExp : public TestRegExp
{
public:
    ScriptedTestRegExp()
        : TestRegExp(nullptr)
    {}

    QStringList answers;
    QStringList startDirectories;

protected:
    QString chooseFile(const QString& startDirectory) override
    {
        startDirectories << startDirectory;
        return answers.isEmpty() ? QString() : answers.takeFirst();
    }
};

// Records the text of the feedback box every time it is painted.
class PaintRecorder : public QObject
{
public:
    explicit PaintRecorder(QTextBrowser* feedback)
        : m_feedback(feedback)
    {
        feedback->viewport()->installEventFilter(this);
    }

    QStringList painted;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted << m_feedback->toPlainText();
        return false;
    }

private:
    QTextBrowser* m_feedback;
};

using ScratchFiles::readBytes;

#ifdef Q_OS_UNIX
// Everything the process writes to its standard output while run runs.
QString printedWhile(const std::function<void()>& run)
{
    QTemporaryFile file;
    file.open();
    std::fflush(stdout);
    const int saved = ::dup(STDOUT_FILENO);
    ::dup2(file.handle(), STDOUT_FILENO);
    run();
    std::fflush(stdout);
    ::dup2(saved, STDOUT_FILENO);
    ::close(saved);
    file.seek(0);
    return QString::fromLocal8Bit(file.readAll());
}
#endif
} // namespace

class TestRegExpTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void emptyPath_data();
    void emptyPath();
    void skippedFileIsNotedOnStandardOutput_data();
    void skippedFileIsNotedOnStandardOutput();
    void modeMessages_data();
    void modeMessages();
    void processingIsShownDuringWork();
    void fileDialogStartsAtPreviousFile();
    void wholeProjectNeedsEnvironment();
    void wholeProjectSkipsLegacy();
    void failedWriteIsReported();

private:
    QString writeFile(const QString& name, const QByteArray& content);
    static bool start(TestRegExp& dialog, const QString& mode, const QString& path);
    static QString feedback(TestRegExp& dialog);

    QScopedPointer<QTemporaryDir> m_dir;
};

void TestRegExpTest::init()
{
    m_dir.reset(new QTemporaryDir);
    qunsetenv("VN_TRANSLATION_SOURCE_PATH");
}

void TestRegExpTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

QString TestRegExpTest::writeFile(const QString& name, const QByteArray& content)
{
    return ScratchFiles::write(QDir(m_dir->path()), name, content);
}

// Picks the mode by its text, as a user or a robot does; false when no mode has that text.
bool TestRegExpTest::start(TestRegExp& dialog, const QString& mode, const QString& path)
{
    dialog.findChild<QLabel*>(QStringLiteral("m_pathDisplay"))->setText(path);
    auto* modes = dialog.findChild<QComboBox*>(QStringLiteral("m_modeSelection"));
    modes->setCurrentIndex(modes->findText(mode));
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("m_btnStart")), Qt::LeftButton);
    return modes->currentIndex() >= 0;
}

QString TestRegExpTest::feedback(TestRegExp& dialog)
{
    return dialog.findChild<QTextBrowser*>(QStringLiteral("m_feedback"))->toPlainText();
}

void TestRegExpTest::emptyPath_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("message");
    const QString choose = QStringLiteral("Please choose a file path before starting the translation.");
    for (const char* mode : {"Fix tags", "Mock swedish", "Count braces", "Count numerus tags",
                             "Check brace correctness", "Count untranslated strings"})
        QTest::newRow(mode) << mode << choose;
    QTest::newRow("whole project") << "tr to translate in whole project"
                                   << "This feature is disabled.";
}

void TestRegExpTest::emptyPath()
{
    QFETCH(QString, mode);
    QFETCH(QString, message);
    TestRegExp dialog(nullptr);
    QVERIFY(start(dialog, mode, QString()));
    QCOMPARE(feedback(dialog), message);
}

void TestRegExpTest::skippedFileIsNotedOnStandardOutput_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("progress");
    const QString parsing = QStringLiteral("Start parsing ts files at: %1\n");
    const QString failed = QStringLiteral("An error occurred. The file could not be translated.");
    QTest::newRow("fix") << "Fix tags" << failed << parsing;
    QTest::newRow("mock") << "Mock swedish" << failed << parsing;
    QTest::newRow("count braces") << "Count braces"
                                  << "The file contains:\n0 opening braces and \n0 closing braces." << QString();
    QTest::newRow("check braces") << "Check brace correctness"
                                  << "The file's braces are correct." << QString();
}

// A file whose name starts with "Rg" or "rg" is never read: the result is the quoted message of the
// mode alone, and the note why goes to standard output with the progress lines.
void TestRegExpTest::skippedFileIsNotedOnStandardOutput()
{
#ifdef Q_OS_UNIX
    QFETCH(QString, mode);
    QFETCH(QString, message);
    QFETCH(QString, progress);
    const QString path = writeFile(QStringLiteral("rgDialog.ts"), "<<source>a</source><translation>b</translation>");
    TestRegExp dialog(nullptr);
    const QString printed = printedWhile([&] { QVERIFY(start(dialog, mode, path)); });
    QCOMPARE(feedback(dialog), message);
    QCOMPARE(printed, progress.replace(QStringLiteral("%1"), path) +
                          QStringLiteral("\"%1\" was skipped: files whose names start with \"Rg\" or \"rg\" are never "
                                         "read.\n")
                              .arg(path));
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList({"rgDialog.ts"}));
#else
    QSKIP("needs to redirect standard output");
#endif
}

void TestRegExpTest::modeMessages_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("outputSuffix");
    const QByteArray ts = "<TS><context><message><source>Open file</source>"
                          "<translation type=\"unfinished\"></translation></message>"
                          "<message numerus=\"yes\"><source>Cancel</source>"
                          "<translation type=\"unfinished\"></translation></message></context></TS>";
    QTest::newRow("fix") << "Fix tags" << ts << "The file was translated successfully."
                         << ".fix";
    QTest::newRow("mock") << "Mock swedish" << ts << "The file was translated successfully."
                          << ".swe";
    QTest::newRow("braces equal") << "Count braces" << QByteArray("<a><b>")
                                  << "The file contains:\n2 opening braces and \n2 closing braces." << QString();
    QTest::newRow("braces differ") << "Count braces" << QByteArray("<a>>")
                                   << "The file contains:\n1 opening braces and \n2 closing braces.\n"
                                      "Something went terribly wrong..."
                                   << QString();
    QTest::newRow("numerus") << "Count numerus tags" << ts << "The file contains:\n1 numerus cases." << QString();
    QTest::newRow("braces correct") << "Check brace correctness" << QByteArray("<a><b></b></a>")
                                    << "The file's braces are correct." << QString();
    QTest::newRow("braces incorrect") << "Check brace correctness" << QByteArray("><")
                                      << "The file's braces are incorrect." << QString();
    QTest::newRow("disabled with a path")
        << "tr to translate in whole project" << ts << "This feature is disabled." << QString();
    QTest::newRow("unfinished") << "Count untranslated strings" << ts << "2 strings are not translated yet."
                                << QString();
    QTest::newRow("fix on empty file") << "Fix tags" << QByteArray()
                                       << "An error occurred. The file could not be translated.\n\"%1\" is empty."
                                       << QString();
    QTest::newRow("mock on invalid UTF-8")
        << "Mock swedish" << QByteArray("<source>K\xe4se</source><translation></translation>")
        << "An error occurred. The file could not be translated.\n"
           "\"%1\" is not valid UTF-8 text; it was not processed and was left unchanged."
        << QString();
    QTest::newRow("count on invalid UTF-8")
        << "Count braces" << QByteArray("<\xff>")
        << "The file contains:\n0 opening braces and \n0 closing braces.\n"
           "\"%1\" is not valid UTF-8 text; it was not processed and was left unchanged."
        << QString();
}

void TestRegExpTest::modeMessages()
{
    QFETCH(QString, mode);
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    QFETCH(QString, outputSuffix);
    const QString path = writeFile(QStringLiteral("sample.ts"), content);
    TestRegExp dialog(nullptr);
    QVERIFY(start(dialog, mode, path));
    QCOMPARE(feedback(dialog), message.contains("%1") ? message.arg(path) : message);
    QCOMPARE(readBytes(path), content);
    const QStringList written = QDir(m_dir->path()).entryList(QDir::Files);
    if (outputSuffix.isEmpty()) {
        QCOMPARE(written, QStringList({"sample.ts"}));
    } else {
        QCOMPARE(written.size(), 2);
        QVERIFY(QFileInfo::exists(path + outputSuffix));
    }
    if (outputSuffix == QLatin1String(".swe"))
        QVERIFY(QString::fromUtf8(readBytes(path + outputSuffix))
                    .contains(QStringLiteral(">üØpee ffeele-æ</translation>")));
}

void TestRegExpTest::processingIsShownDuringWork()
{
    const QString path = writeFile(QStringLiteral("sample.ts"), "<source>Cancel</source><translation></translation>");
    TestRegExp dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    PaintRecorder recorder(dialog.findChild<QTextBrowser*>(QStringLiteral("m_feedback")));
    QVERIFY(start(dialog, QStringLiteral("Mock swedish"), path));
    QVERIFY(recorder.painted.contains(QStringLiteral("Processing...")));
    QCOMPARE(feedback(dialog), QStringLiteral("The file was translated successfully."));
}

void TestRegExpTest::fileDialogStartsAtPreviousFile()
{
    ScriptedTestRegExp dialog;
    auto* choose = dialog.findChild<QPushButton*>(QStringLiteral("m_btnFileDialog"));
    auto* path = dialog.findChild<QLabel*>(QStringLiteral("m_pathDisplay"));
    dialog.answers = QStringList({"/data/ts/app_de.ts", QString(), "/other/file.cpp"});
    QTest::mouseClick(choose, Qt::LeftButton);
    QCOMPARE(path->text(), QStringLiteral("/data/ts/app_de.ts"));
    QTest::mouseClick(choose, Qt::LeftButton); // cancelled
    QCOMPARE(path->text(), QStringLiteral("/data/ts/app_de.ts"));
    QTest::mouseClick(choose, Qt::LeftButton);
    QCOMPARE(path->text(), QStringLiteral("/other/file.cpp"));
    QCOMPARE(dialog.startDirectories, QStringList({"/home", "/data/ts", "/data/ts"}));
}

void TestRegExpTest::wholeProjectNeedsEnvironment()
{
    TestRegExp dialog(nullptr);
    dialog.translateWholeProject();
    QCOMPARE(feedback(dialog), QStringLiteral("The environment variable $VN_TRANSLATION_SOURCE_PATH$ is not set. "
                                              "Set the variable first."));
}

void TestRegExpTest::wholeProjectSkipsLegacy()
{
    const QByteArray source = "void f() { x = tr(\"A\"); }\n";
    const QString kept = writeFile(QStringLiteral("src/Main.cpp"), source);
    const QString header = writeFile(QStringLiteral("src/sub/Widget.h"), source);
    const QString legacy = writeFile(QStringLiteral("src/Legacy/Old.cpp"), source);
    const QString other = writeFile(QStringLiteral("src/notes.txt"), source);
    qputenv("VN_TRANSLATION_SOURCE_PATH", QFile::encodeName(m_dir->filePath(QStringLiteral("src"))));

    TestRegExp dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    PaintRecorder recorder(dialog.findChild<QTextBrowser*>(QStringLiteral("m_feedback")));
    dialog.translateWholeProject();
    QCOMPARE(feedback(dialog), QStringLiteral("Replacing finished."));
    QCOMPARE(readBytes(kept), QByteArray("void f() { x = QApplication::translate(\"Main\", \"A\"); }\n"));
    QCOMPARE(readBytes(header), QByteArray("void f() { x = QApplication::translate(\"Widget\", \"A\"); }\n"));
    for (const QString& untouched : {legacy, other})
        QCOMPARE(readBytes(untouched), source);
    for (const QString& file : {kept, header})
        QVERIFY2(recorder.painted.contains(QStringLiteral("Processing:\n") + file), qPrintable(file));
}

void TestRegExpTest::failedWriteIsReported()
{
#ifdef Q_OS_UNIX
    const QByteArray ts = QByteArray("<source>Open file</source><translation></translation>\n").repeated(100);
    const QString path = writeFile(QStringLiteral("sample.ts"), ts);
    const QString earlier = writeFile(QStringLiteral("sample.ts.swe"), "earlier");
    TestRegExp dialog(nullptr);
    {
        const ScratchFiles::FileSizeLimit full(rlim_t(ts.size())); // beyond the input's size, as on a full disk
        QVERIFY(start(dialog, QStringLiteral("Mock swedish"), path));
    }
    QCOMPARE(feedback(dialog), QStringLiteral("An error occurred. The file could not be translated.\n"
                                              "Writing \"%1\" failed (File too large); the file was left as it was.")
                                   .arg(earlier));
    QCOMPARE(readBytes(earlier), QByteArray("earlier"));
    QCOMPARE(readBytes(path), ts);
#else
    QSKIP("needs a file size limit");
#endif
}

QTEST_MAIN(TestRegExpTest)
#include "tst_testregexp.moc"
