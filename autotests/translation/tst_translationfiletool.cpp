#include "MockSwedishTranslator.h"
#include "ScratchFiles.h"
#include "TrCallRewriter.h"
#include "TranslationFileTool.h"
#include "TranslationOracle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {
using ScratchFiles::readBytes;

QByteArray encoded(const char* codecName, const QString& text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName(codecName)->fromUnicode(text.constData(), text.size(), &state);
}
} // namespace

class TestTranslationFileTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mockSwedish_data();
    void mockSwedish();
    void processTsFile_data();
    void processTsFile();
    void rgFilesAreNotRead_data();
    void rgFilesAreNotRead();
    void unusableInputGivesNoOutput();
    void failedWriteKeepsFiles();
    void rewriteKeepsBytesAndLineEndings_data();
    void rewriteKeepsBytesAndLineEndings();
    void encodingsFollowByteOrderMark_data();
    void encodingsFollowByteOrderMark();
    void undecodableInputIsRefused_data();
    void undecodableInputIsRefused();
    void writesKeepFileIdentity();
    void failingWritesLoseNothing_data();
    void failingWritesLoseNothing();
    void outputThatIsTheInputItself_data();
    void outputThatIsTheInputItself();
    void sameOutputIsNotWrittenAgain();
    void processDirectorySkipsLegacyAndLinks();
    void matchesOracleOnCorpus_data();
    void matchesOracleOnCorpus();
    void matchesOracleOnRandomInput();

private:
    QString writeFile(const QString& name, const QByteArray& content);

    TranslationFileTool m_tool;
    QTemporaryDir m_dir;
};

QString TestTranslationFileTool::writeFile(const QString& name, const QByteArray& content)
{
    return ScratchFiles::write(QDir(m_dir.path()), name, content);
}

/*
  One worked example per rule of the mock Swedish, each worked out by hand from the rule as it is
  written, step by step, rather than by running either implementation: a misreading shared by the
  tool and its reference transformation shows up here.
*/
void TestTranslationFileTool::mockSwedish_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* rule, const char* source, const char* expected) {
        QTest::newRow(rule) << QString::fromUtf8(source) << QString::fromUtf8(expected);
    };
    row("published: Open file", "Open file", "üØpee ffeele-æ");
    row("published: Information", "Information", "üInfformeshoon");
    row("published: Cancel", "Cancel", "üCåncel");
    // 1: empty text and html in any letter case stay as they are.
    row("1 empty", "", "");
    row("1 html in any case", "<b>HtMl</b> text", "<b>HtMl</b> text");
    // 2 and 12: a shielded &amp; keeps its a, a shielded &quot; its u; &lt; is not shielded.
    row("2 &amp; shielded", "&amp;Save", "ü&amp;Sefe-æ");
    row("2 &quot; shielded", "&quot;Save&quot;", "ü&quot;Sefe&quot;");
    row("2 &lt; not shielded, &gt; shielded", "&lt;Save as&gt;", "ü&lt;Sefe es&gt;");
    // 3: An, an, Au, au, in this order; Å is no longer an A for step 4.
    row("3 An an au", "Answer and pause", "üÅnsver ånd poose-æ");
    row("3 Au", "Auto", "üOoto");
    // 4: every a becomes e except the last character.
    row("4 last a kept", "Data", "üDeta");
    // 5: En and en become Ee and ee.
    row("5 En", "Enter", "üEeter");
    // 6: the first character is left out: a leading f is not doubled; ir and tion come before i.
    row("6 leading f kept", "file", "üfeele-æ");
    row("6 ew i ow", "new window", "ünoo veendoo");
    row("6 ir tion, then 9 u", "Direction", "üDoorecshoon");
    // 7: a leading O or o becomes Ø or ø.
    row("7 O after 6", "Often", "üØfftee-æ");
    // 8: a source ending in th loses its last character.
    // 9: u becomes oo except as the first character.
    row("9 leading u kept", "up", "üup");
    row("9 u", "Mouse", "üMooose-æ");
    // 10: V to F, v to f, then W to V, w to v: a W ends as V.
    row("10 W and v", "Wave view", "üVefe feeoo");
    row("10 W ends as V, 8 th", "Width", "üVeedt");
    // 13: every translation starts with ü.
    // Set aside and put back, a first or last character outside ASCII stays whole.
    row("6 first character outside ASCII", "Äpfel", "üÄpffel");
    row("4 last character outside ASCII", "Café", "üCeffé");
    row("6 and 9 first character beyond the BMP", "😀 fun", "ü😀 ffoon");
    row("4 last character beyond the BMP", "Data 😀", "üDete 😀");
    row("7 and 8 on three letters", "Oth", "üØt");
}

void TestTranslationFileTool::mockSwedish()
{
    QFETCH(QString, source);
    QFETCH(QString, expected);
    QCOMPARE(m_tool.mockSwedish(source), expected);
    MockSwedishTranslator translator;
    const QByteArray utf8 = source.toUtf8();
    const std::string_view bytes = translator.translateUtf8(std::string_view(utf8.constData(), size_t(utf8.size())));
    QCOMPARE(QByteArray(bytes.data(), int(bytes.size())), expected.toUtf8());
    QCOMPARE(TranslationOracle::mockSwedish(source), expected);
}

/*
  Mode 2 is mock Swedish with the forms kept. Worked out by hand: "Cancel" becomes "üCåncel",
  "%n file(s)" becomes "ü%n ffeele(s)", "A" becomes "üA".
*/
void TestTranslationFileTool::processTsFile_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, int mode, const QByteArray& input, const QByteArray& expected) {
        QTest::newRow(name) << input << mode << expected;
    };
    const QByteArray unfinished = "<source>Cancel</source>\n<translation type=\"unfinished\"> </translation>";
    row("fix marks blank unfinished", 0, unfinished,
        "<source>Cancel</source>\n<translation type=\"unfinished\"></translation>");
    row("mock", 1, unfinished, "<source>Cancel</source>\n<translation>üCåncel</translation>");
    row("fix strips attributes", 0, "<source>Open</source><translation type=\"obsolete\">Auf</translation>",
        "<source>Open</source><translation>Auf</translation>");
    row("blank source, fix", 0, "<source> </source><translation>x</translation>",
        "<source> </source><translation> </translation>");
    row("blank source, mock", 1, "<source>\n</source><translation>x</translation>",
        "<source>\n</source><translation>\n</translation>");
    row("html source kept", 1, "<source>&lt;html&gt;Hi</source><translation></translation>",
        "<source>&lt;html&gt;Hi</source><translation>&lt;html&gt;Hi</translation>");
    row("numerus forms kept", 0, "<source>%n</source><translation><numerusform>%n</numerusform></translation>",
        "<source>%n</source><translation><numerusform>%n</numerusform></translation>");
    row("CRLF read as LF", 0, "<source>a</source>\r\n<translation>b</translation>\r\n",
        "<source>a</source>\n<translation>b</translation>\n");
    const QByteArray nul("\0<source>a</source><translation>\0</translation>", 47);
    row("NUL bytes", 0, nul, nul);
    row("no closing tag", 0, "<source>a</source><translation>b", "<source>a</source><translation>b");

    const QByteArray numerus = "<message numerus=\"yes\"><source>Cancel</source><translation type=\"unfinished\">";
    const QByteArray plain = "<message><source>Cancel</source><translation type=\"unfinished\">";
    row("every form filled, blanks between kept", 2,
        "<message numerus=\"yes\"><source>%n file(s)</source><translation type=\"unfinished\">\n"
        "<numerusform></numerusform> <numerusform>x</numerusform>\n</translation>",
        "<message numerus=\"yes\"><source>%n file(s)</source><translation>\n"
        "<numerusform>ü%n ffeele(s)</numerusform> <numerusform>ü%n ffeele(s)</numerusform>\n</translation>");
    const QByteArray oneForm =
        "<message numerus=\"yes\"><source>Cancel</source><translation><numerusform>üCåncel</numerusform></translation>";
    row("no form: one is written", 2, numerus + "</translation>", oneForm);
    row("self-closing form", 2, numerus + "<numerusform/></translation>", oneForm);
    row("a look-alike is no form", 2, numerus + "<numerusforms>x</numerusforms></translation>", oneForm);
    row("length variants of a form", 2,
        numerus + "<numerusform variants=\"yes\"><lengthvariant>a</lengthvariant> <lengthvariant/></numerusform>"
                  "</translation>",
        "<message numerus=\"yes\"><source>Cancel</source><translation><numerusform variants=\"yes\">"
        "<lengthvariant>üCåncel</lengthvariant> <lengthvariant>üCåncel</lengthvariant></numerusform></translation>");
    row("length variants of a translation", 2, plain + "<lengthvariant>Abbrechen</lengthvariant></translation>",
        "<message><source>Cancel</source><translation variants=\"yes\"><lengthvariant>üCåncel</lengthvariant>"
        "</translation>");
    row("forms without numerus: literal", 2, plain + "<numerusform>x</numerusform></translation>",
        "<message><source>Cancel</source><translation>üCåncel</translation>");
    row("numerus ends with its message", 2,
        "<message numerus=\"yes\"><source>A</source><translation></translation></message>" + plain + "</translation>",
        "<message numerus=\"yes\"><source>A</source><translation><numerusform>üA</numerusform></translation></message>"
        "<message><source>Cancel</source><translation>üCåncel</translation>");
}

void TestTranslationFileTool::processTsFile()
{
    QFETCH(QByteArray, input);
    QFETCH(int, mode);
    QFETCH(QByteArray, expected);
    const QString path = writeFile(QStringLiteral("sample.ts"), input);
    const auto forms = mode == 2 ? TranslationFileTool::Forms::Keep : TranslationFileTool::Forms::Flatten;
    QVERIFY(m_tool.processTs(path, TranslationFileTool::Mode(std::min(mode, 1)), forms).ok());
    QCOMPARE(readBytes(path + (mode == 0 ? ".fix" : ".swe")), expected);
    QCOMPARE(readBytes(path), input);
}

void TestTranslationFileTool::rgFilesAreNotRead_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("excluded");
    QTest::newRow("Rg") << "Rg_de.ts" << true;
    QTest::newRow("rg") << "rgwidgets.ts" << true;
    QTest::newRow("RG") << "RG_de.ts" << false;
    QTest::newRow("rG") << "rG_de.ts" << false;
}

void TestTranslationFileTool::rgFilesAreNotRead()
{
    QFETCH(QString, fileName);
    QFETCH(bool, excluded);
    const QString path =
        writeFile(fileName, "<<source>a</source><translation type=\"unfinished\">b</translation> numerus=\"yes\"");
    QCOMPARE(m_tool.readTranslationFile(path).isEmpty(), excluded);
    QCOMPARE(m_tool.processTsFile(path, TranslationFileTool::FixTags), !excluded);
    QCOMPARE(QFileInfo::exists(path + ".fix"), !excluded);
    QCOMPARE(m_tool.countChar(path, '<'), excluded ? 0 : 5);
    QCOMPARE(m_tool.countString(path, "numerus=\"yes\""), excluded ? 0 : 1);
    QCOMPARE(m_tool.countUnfinished(path), excluded ? 0 : 1);
    QCOMPARE(m_tool.checkBraces(path), excluded);
}

void TestTranslationFileTool::unusableInputGivesNoOutput()
{
    const QString empty = writeFile(QStringLiteral("empty.ts"), QByteArray());
    const QString valid = writeFile(QStringLiteral("valid.ts"), "<source>a</source><translation>b</translation>");
    QVERIFY(!m_tool.processTsFile(empty, TranslationFileTool::FixTags));
    QVERIFY(!m_tool.processTsFile(m_dir.filePath(QStringLiteral("missing.ts")), TranslationFileTool::MockSwedish));
    QVERIFY(!m_tool.processTsFile(m_dir.path(), TranslationFileTool::FixTags));
    QVERIFY(!m_tool.processTsFile(valid, TranslationFileTool::Mode(2)));
    QVERIFY(!QFileInfo::exists(empty + ".fix"));
    QVERIFY(!QFileInfo::exists(valid + ".fix") && !QFileInfo::exists(valid + ".swe"));
    QCOMPARE(m_tool.countUnfinished(empty), 0);
    QVERIFY(m_tool.checkBraces(m_dir.filePath(QStringLiteral("missing.ts"))));
    QVERIFY(m_tool.replaceTrCalls(empty)); // nothing to rewrite
    QCOMPARE(readBytes(empty), QByteArray());

    const QString huge = writeFile(QStringLiteral("huge.ts"), "<source>a</source><translation>b</translation>");
    QVERIFY(QFile::resize(huge, qint64(129) * 1024 * 1024));
    QVERIFY(!m_tool.processTsFile(huge, TranslationFileTool::FixTags));
#ifdef Q_OS_UNIX
    QVERIFY(m_tool.readTranslationFile(QStringLiteral("/dev/zero")).isEmpty());
#endif
}

void TestTranslationFileTool::failedWriteKeepsFiles()
{
    const QByteArray input = "<source>a</source><translation>b</translation>";
    const QString blocked = writeFile(QStringLiteral("blocked.ts"), input);
    QVERIFY(QDir().mkpath(blocked + ".fix"));
    QVERIFY(!m_tool.processTsFile(blocked, TranslationFileTool::FixTags));
    QVERIFY(QFileInfo(blocked + ".fix").isDir());

    const QString tsPath = writeFile(QStringLiteral("locked/x.ts"), input);
    const QString earlier = writeFile(QStringLiteral("locked/x.ts.swe"), "earlier");
    const QString cppPath = writeFile(QStringLiteral("locked/x.cpp"), " tr(1)");
    const QString dir = QFileInfo(tsPath).path();
    QFile::setPermissions(dir, QFile::ReadOwner | QFile::ExeOwner);
    const bool enforced = !QFile(dir + "/probe").open(QIODevice::WriteOnly);
    const bool tsWritten = m_tool.processTsFile(tsPath, TranslationFileTool::MockSwedish);
    const bool cppWritten = m_tool.replaceTrCalls(cppPath);
    QFile::setPermissions(dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!enforced)
        QSKIP("directory permissions are not enforced for this user");
    QVERIFY(!tsWritten && !cppWritten);
    QCOMPARE(readBytes(earlier), QByteArray("earlier"));
    QCOMPARE(readBytes(tsPath), input);
    QCOMPARE(readBytes(cppPath), QByteArray(" tr(1)"));
}

void TestTranslationFileTool::rewriteKeepsBytesAndLineEndings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, const QByteArray& content, const QByteArray& expected) {
        QTest::newRow(name) << content << expected;
    };
    row("call", "x = tr(\"Open\");", "x = QApplication::translate(\"Lines\", \"Open\");");
    row("space and newline", "\ntr \n(a)", "\nQApplication::translate(\"Lines\", a)");
    row("after letter or digit", "attr(1); x1tr(2);", "attr(1); x1tr(2);");
    row("at file start", "tr(1);", "tr(1);");
    row("nested call stays", "(tr(tr(1)))", "(QApplication::translate(\"Lines\", tr(1)))");
    row("CRLF without a call", "a\r\nb\r\n", "a\r\nb\r\n");
    row("lone CR without a call", "a\rb\r", "a\rb\r");
    row("CRLF with a call", "a\r\nx = tr(1);\r\nb\r\n", "a\r\nx = QApplication::translate(\"Lines\", 1);\r\nb\r\n");
    row("call after a lone CR", "a\rtr(1)\rb", "a\rQApplication::translate(\"Lines\", 1)\rb");
    row("Latin-1 without a call",
        "// Gr\xf6\xdf"
        "e\r\n",
        "// Gr\xf6\xdf"
        "e\r\n");
    row("UTF-8 mark kept", "\xef\xbb\xbf tr(1)", "\xef\xbb\xbf QApplication::translate(\"Lines\", 1)");
}

void TestTranslationFileTool::rewriteKeepsBytesAndLineEndings()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, expected);
    const QString path = writeFile(QStringLiteral("Lines.cpp"), content);
    const QDateTime written = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch() - 3600);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(written, QFileDevice::FileModificationTime));
    file.close();
    const TextFileIo::Result result = m_tool.rewriteTrCalls(path);
    QVERIFY(result.ok());
    QCOMPARE(readBytes(path), expected);
    QCOMPARE(result.changed, content != expected);
    // A file without a call is not even written.
    QCOMPARE(QFileInfo(path).lastModified() == written, content == expected);
}

void TestTranslationFileTool::encodingsFollowByteOrderMark_data()
{
    QTest::addColumn<QByteArray>("mark");
    QTest::addColumn<QByteArray>("codec");
    QTest::newRow("UTF-16LE") << QByteArray("\xff\xfe") << QByteArray("UTF-16LE");
    QTest::newRow("UTF-16BE") << QByteArray("\xfe\xff") << QByteArray("UTF-16BE");
    QTest::newRow("UTF-32LE") << QByteArray("\xff\xfe\0\0", 4) << QByteArray("UTF-32LE");
    QTest::newRow("UTF-8 with mark") << QByteArray("\xef\xbb\xbf") << QByteArray("UTF-8");
}

void TestTranslationFileTool::encodingsFollowByteOrderMark()
{
    QFETCH(QByteArray, mark);
    QFETCH(QByteArray, codec);
    const QString ts = QString::fromUtf8("<TS>\r\n<source>Open file</source><translation>\xc3\xa4</translation>\r\n");
    const QString path = writeFile(QStringLiteral("wide.ts"), mark + encoded(codec, ts));
    QCOMPARE(m_tool.readTranslationFile(path), QString(ts).remove('\r'));
    QVERIFY(m_tool.processTsFile(path, TranslationFileTool::MockSwedish));
    const QString mock = QString::fromUtf8(
        "<TS>\n<source>Open file</source><translation>\xc3\xbc\xc3\x98pee ffeele-\xc3\xa6</translation>\n");
    QCOMPARE(readBytes(path + ".swe"), mark + encoded(codec, mock));
    QCOMPARE(m_tool.countChar(path, '<'), 5);

    const QString source = writeFile(QStringLiteral("Wide.cpp"), mark + encoded(codec, "a\r\n tr(1)\r\n"));
    QVERIFY(m_tool.replaceTrCalls(source));
    QCOMPARE(readBytes(source), mark + encoded(codec, "a\r\n QApplication::translate(\"Wide\", 1)\r\n"));
}

void TestTranslationFileTool::undecodableInputIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("encoding");
    QTest::newRow("Latin-1") << QByteArray("<source>K\xe4se</source><translation></translation> tr(1)") << "UTF-8";
    QTest::newRow("cut-off sequence") << QByteArray("<source>a</source><translation></translation> tr(\xc3") << "UTF-8";
    QTest::newRow("encoded surrogate") << QByteArray("<source>\xed\xa0\x80</source><translation></translation> tr(1)")
                                       << "UTF-8";
    QTest::newRow("odd UTF-16") << QByteArray("\xff\xfe<\0s\0>\0 \0t\0r\0(\0!", 17) << "UTF-16LE";
}

void TestTranslationFileTool::undecodableInputIsRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, encoding);
    const QString ts = writeFile(QStringLiteral("broken.ts"), content);
    const TextFileIo::Result processed = m_tool.processTs(ts, TranslationFileTool::MockSwedish);
    QCOMPARE(int(processed.status), int(TextFileIo::Status::Undecodable));
    QCOMPARE(processed.detail, encoding);
    QVERIFY(!QFileInfo::exists(ts + ".swe"));
    const QString source = writeFile(QStringLiteral("Broken.cpp"), content);
    QCOMPARE(int(m_tool.rewriteTrCalls(source).status), int(TextFileIo::Status::Undecodable));
    QCOMPARE(readBytes(source), content);
}

void TestTranslationFileTool::writesKeepFileIdentity()
{
#ifdef Q_OS_UNIX
    const QString path = writeFile(QStringLiteral("folder/Linked.cpp"), " tr(1)");
    const QString link = m_dir.filePath(QStringLiteral("Other.cpp"));
    QVERIFY(QFile::link(path, link + ".sym") && ::link(qPrintable(path), qPrintable(link)) == 0);
    const bool root = geteuid() == 0;
    if (root)
        QCOMPARE(::chown(qPrintable(path), 65534, 65534), 0);
    ::chmod(qPrintable(path), 0640);
    struct stat before;
    ::stat(qPrintable(path), &before);
    QFile::setPermissions(QFileInfo(path).path(), QFile::ReadOwner | QFile::ExeOwner);
    const bool rewritten = m_tool.replaceTrCalls(path);
    QFile::setPermissions(QFileInfo(path).path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(rewritten); // also in a folder that cannot be written to
    const QByteArray expected = " QApplication::translate(\"Linked\", 1)";
    QCOMPARE(readBytes(link), expected); // the hard link still shares the file
    struct stat after;
    ::stat(qPrintable(path), &after);
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(after.st_uid, before.st_uid);
    QCOMPARE(after.st_mode, before.st_mode);
    QVERIFY(m_tool.processTsFile(writeFile(QStringLiteral("out.ts"), "<source>a</source><translation/>"),
                                 TranslationFileTool::FixTags));
#else
    QSKIP("needs hard links and owners");
#endif
}

void TestTranslationFileTool::failingWritesLoseNothing_data()
{
    QTest::addColumn<int>("limit");
    QTest::newRow("nothing fits") << 0;
    QTest::newRow("cut off halfway") << 6000;
}

void TestTranslationFileTool::failingWritesLoseNothing()
{
#ifdef Q_OS_UNIX
    QFETCH(int, limit);
    QByteArray source;
    for (int line = 0; line < 200; ++line)
        source += "x = tr(\"" + QByteArray::number(line) + "\");\r\n"; // 4 KB, about 10 KB rewritten
    QByteArray ts;
    for (int entry = 0; entry < 100; ++entry)
        ts += "<source>Open file</source><translation></translation>\n"; // 5 KB, about 6 KB as mock
    const QString cpp = writeFile(QStringLiteral("Full.cpp"), source);
    const QString tsPath = writeFile(QStringLiteral("full.ts"), ts);
    const QString earlier = writeFile(QStringLiteral("full.ts.fix"), "earlier");
    TextFileIo::Result rewrite, mock, fix;
    {
        const ScratchFiles::FileSizeLimit full(rlim_t(limit > 0 ? limit : source.size()));
        rewrite = m_tool.rewriteTrCalls(cpp);
        mock = m_tool.processTs(tsPath, TranslationFileTool::MockSwedish);
        fix = m_tool.processTs(tsPath, TranslationFileTool::FixTags);
    }
    QCOMPARE(int(rewrite.status), int(TextFileIo::Status::WriteFailed));
    QVERIFY2(!rewrite.detail.isEmpty(), "the system's reason is given");
    QCOMPARE(readBytes(cpp), source);
    if (limit > 0) {
        QCOMPARE(int(mock.status), int(TextFileIo::Status::WriteFailed));
        QVERIFY(!QFileInfo::exists(tsPath + ".swe")); // no cut-off output is left behind
    }
    QCOMPARE(readBytes(earlier), QByteArray("earlier"));
    QVERIFY(!fix.ok() || limit == 0);
#else
    QSKIP("needs a file size limit");
#endif
}

void TestTranslationFileTool::outputThatIsTheInputItself_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("hardLink");
    QTest::newRow("fix, hard link") << 0 << true;
    QTest::newRow("mock, hard link") << 1 << true;
    QTest::newRow("mock, symbolic link") << 1 << false;
}

// The output is computed from the whole input before the input itself is overwritten.
void TestTranslationFileTool::outputThatIsTheInputItself()
{
#ifdef Q_OS_UNIX
    QFETCH(int, mode);
    QFETCH(bool, hardLink);
    QByteArray ts;
    for (int entry = 0; entry < 400; ++entry)
        ts += "<source>Open file " + QByteArray::number(entry) + "</source><translation type=\"x\"></translation>\n";
    const QString path = writeFile(QStringLiteral("linked%1%2.ts").arg(mode).arg(hardLink), ts);
    const QString output = path + (mode == 0 ? ".fix" : ".swe");
    QVERIFY(hardLink ? ::link(qPrintable(path), qPrintable(output)) == 0 : QFile::link(path, output));
    QVERIFY(m_tool.processTsFile(path, TranslationFileTool::Mode(mode)));
    const QByteArray expected = TranslationOracle::processTsContent(QString::fromUtf8(ts), mode).toUtf8();
    QCOMPARE(readBytes(output), expected);
    QCOMPARE(readBytes(path), expected);
#else
    QSKIP("needs hard links");
#endif
}

// An earlier output of the same size is compared all through, also beyond its first few megabytes.
void TestTranslationFileTool::sameOutputIsNotWrittenAgain()
{
    QByteArray ts;
    for (int entry = 0; ts.size() < 5 * 1024 * 1024; ++entry)
        ts += "<source>Open file " + QByteArray::number(entry) + "</source><translation>x</translation>\n";
    const QString path = writeFile(QStringLiteral("again.ts"), ts);
    QVERIFY(m_tool.processTs(path, TranslationFileTool::FixTags).changed);
    const QByteArray expected = readBytes(path + ".fix");
    QVERIFY(!m_tool.processTs(path, TranslationFileTool::FixTags).changed);
    QByteArray changedNearEnd = expected;
    changedNearEnd[changedNearEnd.size() - 3] = 'y';
    writeFile(QStringLiteral("again.ts.fix"), changedNearEnd);
    QVERIFY(m_tool.processTs(path, TranslationFileTool::FixTags).changed);
    QCOMPARE(readBytes(path + ".fix"), expected);
}

void TestTranslationFileTool::processDirectorySkipsLegacyAndLinks()
{
    const QByteArray call = " tr(\"a\")";
    QStringList rewritten = {writeFile("tree/a.cpp", call), writeFile("tree/b.h", call),
                             writeFile("tree/LEGACY/c.cpp", call), writeFile("tree/sub/d.cpp", call)};
    const QStringList untouched = {writeFile("tree/e.txt", call), writeFile("tree/Legacy/f.cpp", call),
                                   writeFile("tree/sub/mylegacy/g.h", call), writeFile("outside/h.cpp", call)};
    QVERIFY(QFile::link(m_dir.filePath("outside"), m_dir.filePath("tree/linkdir")));
    QVERIFY(QFile::link(m_dir.filePath("outside/h.cpp"), m_dir.filePath("tree/link.cpp")));
    QVERIFY(QFile::link(m_dir.filePath("tree"), m_dir.filePath("tree/sub/loop")));

    QStringList reported;
    const int count = m_tool.processDirectory(m_dir.filePath("tree"), [&](const QString& path) { reported << path; });
    QCOMPARE(count, rewritten.size());
    reported.sort();
    rewritten.sort();
    QCOMPARE(reported, rewritten);
    for (const QString& path : rewritten)
        QCOMPARE(readBytes(path),
                 QByteArray(" QApplication::translate(\"") + QFileInfo(path).baseName().toUtf8() + "\", \"a\")");
    for (const QString& path : untouched)
        QCOMPARE(readBytes(path), call);
}

void TestTranslationFileTool::matchesOracleOnCorpus_data()
{
    QTest::addColumn<QString>("corpusFile");
    const QFileInfoList files = ScratchFiles::corpusFiles();
    for (const QFileInfo& info : files)
        QTest::newRow(qPrintable(info.fileName())) << info.filePath();
    if (files.isEmpty())
        QTest::newRow("no corpus") << QString();
}

void TestTranslationFileTool::matchesOracleOnCorpus()
{
    QFETCH(QString, corpusFile);
    if (corpusFile.isEmpty())
        QSKIP("the .ts corpus is not available");
    // Work on a copy: processTsFile writes beside its input.
    const QString copy = m_dir.filePath(QFileInfo(corpusFile).fileName());
    QFile::remove(copy);
    QVERIFY(QFile::copy(corpusFile, copy));
    const QString content = m_tool.readTranslationFile(copy);
    QVERIFY(!content.isEmpty());
    for (int mode : {0, 1}) {
        QVERIFY(m_tool.processTsFile(copy, TranslationFileTool::Mode(mode)));
        QCOMPARE(readBytes(copy + (mode == 0 ? ".fix" : ".swe")),
                 TranslationOracle::processTsContent(content, mode).toUtf8());
    }
    QVERIFY(m_tool.processTs(copy, TranslationFileTool::MockSwedish, TranslationFileTool::Forms::Keep).ok());
    QCOMPARE(readBytes(copy + ".swe"), TranslationOracle::processTsContent(content, 1, true).toUtf8());
    QCOMPARE(TrCallRewriter().rewriteContent(content, "Ctx"), TranslationOracle::replaceTrCalls(content, "Ctx"));
}

void TestTranslationFileTool::matchesOracleOnRandomInput()
{
    // Tags, their broken forms, entities, whitespace and tr( calls, including a NUL.
    const QStringList fragments =
        QString::fromUtf8("<source>|</source>|<translation|>|</translation>|<translation>|<| |\n|"
                          "\t|\r|Open file|a|<source|</translation|type=\"unfinished\"|&lt;|"
                          "&amp;|html|<numerusform>|</numerusform>|<message numerus=\"yes\">|"
                          "tr(|attr(|tr (|\xc3\xa4|<numerusform/>|<lengthvariant>|</lengthvariant>|<message>")
            .split('|')
        << QString(QChar(0));
    const QString message = "<message>\n    <source>Open &amp;file</source>\n"
                            "    <translation type=\"unfinished\"></translation>\n</message>\n";
    QRandomGenerator random(20240611);
    for (int round = 0; round < 4000; ++round) {
        QString input;
        const int alphabet = 5 + random.bounded(fragments.size() - 5);
        for (int piece = random.bounded(30); piece > 0; --piece)
            input += random.bounded(4) == 0 ? message : fragments.at(random.bounded(alphabet));
        input.truncate(random.bounded(input.size() + 1));
        for (int variant : {0, 1, 2}) { // fix, mock, mock with the forms kept
            const auto mode = TsFileRewriter::Mode(std::min(variant, 1));
            const auto forms = variant == 2 ? TsFileRewriter::Forms::Keep : TsFileRewriter::Forms::Flatten;
            const QString expected = TranslationOracle::processTsContent(input, mode, variant == 2);
            QCOMPARE(TsFileRewriter().processContent(input, mode, forms), expected);
            QCOMPARE(TsFileRewriter().processUtf8(input.toUtf8(), mode, forms), expected.toUtf8());
        }
        QCOMPARE(TrCallRewriter().rewriteContent(input, "C"), TranslationOracle::replaceTrCalls(input, "C"));
        QCOMPARE(m_tool.isBlank(input), TranslationOracle::isBlank(input));
    }
}

QTEST_GUILESS_MAIN(TestTranslationFileTool)

#include "tst_translationfiletool.moc"
