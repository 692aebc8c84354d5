#include "TranslationFileTool.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>
#include <initializer_list>
#include <utility>

namespace {

// Files beyond this size are treated as unreadable: the mock translation can
// triple a file, and the result must still fit into one QString.
const qint64 maxFileSize = qint64(128) * 1024 * 1024;

const QLatin1String sourceOpen("<source>");
const QLatin1String sourceClose("</source>");
const QLatin1String translationOpen("<translation");
const QLatin1String translationClose("</translation>");

void printLine(const QByteArray& line)
{
    std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void printCannotWrite()
{
    printLine(QByteArrayLiteral("Can not open/generate the output file."));
}

bool isExcludedFromReading(const QFileInfo& info)
{
    const QString baseName = info.baseName();
    return baseName.startsWith(QLatin1String("Rg")) || baseName.startsWith(QLatin1String("rg"));
}

QByteArray readFileBytes(const QString& filePath)
{
    const QFileInfo info(filePath);
    // Opening a FIFO or a device would block or never reach the end.
    if (isExcludedFromReading(info) || !info.isFile() || info.size() > maxFileSize)
        return QByteArray();
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QByteArray();
    return file.readAll();
}

// The QByteArray overload of QString::fromUtf8() would stop at the first NUL byte.
QString decodeUtf8(const QByteArray& bytes)
{
    const int size = bytes.size();
    return size > 0 ? QString::fromUtf8(bytes.constData(), size) : QString();
}

bool writeAtomically(const QString& filePath, const QByteArray& data)
{
    QSaveFile file(filePath);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(data);
    return file.commit();
}

bool isBlankText(const QChar* begin, const QChar* end)
{
    for (const QChar* it = begin; it != end; ++it) {
        if (!it->isSpace())
            return false;
    }
    return true;
}

void appendRange(QString& target, const QString& text, int begin, int end)
{
    target.append(text.constData() + begin, end - begin);
}

void replaceInOrder(QString& text, std::initializer_list<std::pair<QString, QString>> replacements)
{
    for (const auto& replacement : replacements)
        text.replace(replacement.first, replacement.second);
}

/*
  One match of the minimal QRegExp
      (<source>(.*)</source>.*<translation)([^>]*)>(.*)</translation>
  with the captures QRegExp reports. The match starts at the first "<source>"
  from which a match exists and ends after the first "</translation>" that any
  parse can reach, so it ends as early as possible. Among the parses ending
  there, QRegExp keeps the captures that start earliest and end latest, in
  capture order: capture 1 therefore reaches the last "<translation" whose tag
  is closed by a '>' before that "</translation>", and capture 2 the last
  "</source>" before that tag.
*/
struct TsEntry
{
    int start = 0;
    int sourceEnd = 0;
    int tagEnd = 0;
    int attributesEnd = 0;
    int translationEnd = 0;

    int sourceBegin() const { return start + sourceOpen.size(); }
    int translationBegin() const { return attributesEnd + 1; }
    int end() const { return translationEnd + translationClose.size(); }
};

/*
  Finds the first entry that starts at or after from. A later "<source>" can
  only move each first occurrence below further on, so when no match exists
  from the first "<source>", none exists from a later one either: a malformed
  file is searched once, not once per "<source>".
*/
bool findTsEntry(const QString& text, int from, TsEntry* entry)
{
    const int start = text.indexOf(sourceOpen, from);
    if (start < 0)
        return false;
    const int firstSourceEnd = text.indexOf(sourceClose, start + sourceOpen.size());
    if (firstSourceEnd < 0)
        return false;
    const int firstTag = text.indexOf(translationOpen, firstSourceEnd + sourceClose.size());
    if (firstTag < 0)
        return false;
    const int firstTagClose = text.indexOf(QLatin1Char('>'), firstTag + translationOpen.size());
    if (firstTagClose < 0)
        return false;
    const int translationEnd = text.indexOf(translationClose, firstTagClose + 1);
    if (translationEnd < 0)
        return false;

    // The backward searches stay inside the match and stop at firstTagClose,
    // firstTag and firstSourceEnd at the latest.
    const int lastTagClose = text.lastIndexOf(QLatin1Char('>'), translationEnd - 1);
    const int tag = text.lastIndexOf(translationOpen, lastTagClose - translationOpen.size());
    entry->start = start;
    entry->sourceEnd = text.lastIndexOf(sourceClose, tag - sourceClose.size());
    entry->tagEnd = tag + translationOpen.size();
    entry->attributesEnd = text.indexOf(QLatin1Char('>'), entry->tagEnd);
    entry->translationEnd = translationEnd;
    return true;
}

bool isAsciiLetterOrDigit(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9');
}

/*
  Finds the first match of the minimal QRegExp ([^a-zA-Z0-9])tr(\s*)\( at or
  after from: returns the position of the preceding character and sets
  callEnd behind the parenthesis, or returns -1.
*/
int findTrCall(const QString& text, int from, int* callEnd)
{
    const QChar* data = text.constData();
    const int size = text.size();
    for (int at = from; at + 3 < size; ++at) {
        if (data[at + 1] != QLatin1Char('t') || data[at + 2] != QLatin1Char('r') || isAsciiLetterOrDigit(data[at]))
            continue;
        int next = at + 3;
        while (next < size && data[next].isSpace())
            ++next;
        if (next < size && data[next] == QLatin1Char('(')) {
            *callEnd = next + 1;
            return at;
        }
    }
    return -1;
}

} // namespace

TranslationFileTool::TranslationFileTool() = default;

TranslationFileTool::~TranslationFileTool() = default;

QString TranslationFileTool::readTranslationFile(const QString& filePath) const
{
    return decodeUtf8(readFileBytes(filePath));
}

bool TranslationFileTool::processTsFile(const QString& filePath, int mode) const
{
    printLine(QByteArrayLiteral("Start parsing ts files at: ") + filePath.toLocal8Bit());
    const QString content = readTranslationFile(filePath);
    if (content.isEmpty())
        return false;
    QString suffix;
    if (mode == FixTags)
        suffix = QStringLiteral(".fix");
    else if (mode == MockSwedish)
        suffix = QStringLiteral(".swe");
    else
        return false;

    QSaveFile output(filePath + suffix);
    if (!output.open(QIODevice::WriteOnly)) {
        printCannotWrite();
        return false;
    }
    output.write(processTsContent(content, mode).toUtf8());
    if (!output.commit()) {
        printCannotWrite();
        return false;
    }
    return true;
}

QString TranslationFileTool::processTsContent(const QString& content, int mode) const
{
    if (mode != FixTags && mode != MockSwedish)
        return content;
    QString result;
    result.reserve(content.size() + content.size() / 8);
    int copied = 0;
    TsEntry entry;
    while (findTsEntry(content, copied, &entry)) {
        appendRange(result, content, copied, entry.tagEnd);
        const QChar* data = content.constData();
        if (isBlankText(data + entry.sourceBegin(), data + entry.sourceEnd)) {
            result += QLatin1Char('>');
            appendRange(result, content, entry.sourceBegin(), entry.sourceEnd);
            result += translationClose;
        } else if (mode == MockSwedish) {
            result += QLatin1Char('>');
            result += mockSwedish(content.mid(entry.sourceBegin(), entry.sourceEnd - entry.sourceBegin()));
            result += translationClose;
        } else if (isBlankText(data + entry.translationBegin(), data + entry.translationEnd)) {
            result += QLatin1String(" type=\"unfinished\"></translation>");
        } else {
            result += QLatin1Char('>');
            appendRange(result, content, entry.translationBegin(), entry.translationEnd);
            result += translationClose;
        }
        copied = entry.end();
    }
    appendRange(result, content, copied, content.size());
    return result;
}

QString TranslationFileTool::mockSwedish(const QString& source) const
{
    if (source.isEmpty() || source.contains(QLatin1String("html"), Qt::CaseInsensitive))
        return source;

    QString text = source;
    // "&lt;" stays unshielded on purpose: its letters get transformed.
    replaceInOrder(text, {{QStringLiteral("&quot;"), QStringLiteral("##1##")},
                          {QStringLiteral("&apos;"), QStringLiteral("##2##")},
                          {QStringLiteral("&amp;"), QStringLiteral("##3##")},
                          {QStringLiteral("&gt;"), QStringLiteral("##4##")}});
    replaceInOrder(text, {{QStringLiteral("An"), QStringLiteral("Ån")},
                          {QStringLiteral("an"), QStringLiteral("ån")},
                          {QStringLiteral("Au"), QStringLiteral("Oo")},
                          {QStringLiteral("au"), QStringLiteral("oo")}});

    const QString last = text.right(1);
    text.chop(1);
    text.replace(QLatin1Char('A'), QLatin1Char('E'));
    text.replace(QLatin1Char('a'), QLatin1Char('e'));
    text += last;

    replaceInOrder(text, {{QStringLiteral("En"), QStringLiteral("Ee")}, {QStringLiteral("en"), QStringLiteral("ee")}});

    QString first = text.left(1);
    text.remove(0, 1);
    replaceInOrder(text, {{QStringLiteral("ew"), QStringLiteral("oo")},
                          {QStringLiteral("f"), QStringLiteral("ff")},
                          {QStringLiteral("ir"), QStringLiteral("ur")},
                          {QStringLiteral("tion"), QStringLiteral("shun")},
                          {QStringLiteral("i"), QStringLiteral("ee")},
                          {QStringLiteral("ow"), QStringLiteral("oo")}});
    text.prepend(first);

    if (source.startsWith(QLatin1Char('O')))
        text.replace(0, 1, QStringLiteral("Ø"));
    if (source.startsWith(QLatin1Char('o')))
        text.replace(0, 1, QStringLiteral("ø"));
    if (source.endsWith(QLatin1String("th")))
        text.chop(1);

    first = text.left(1);
    text.remove(0, 1);
    text.replace(QLatin1Char('u'), QStringLiteral("oo"));
    text.prepend(first);

    // In this order a 'W' of the source ends as 'V', not as 'F'.
    text.replace(QLatin1Char('V'), QLatin1Char('F'));
    text.replace(QLatin1Char('v'), QLatin1Char('f'));
    text.replace(QLatin1Char('W'), QLatin1Char('V'));
    text.replace(QLatin1Char('w'), QLatin1Char('v'));

    if (text.endsWith(QLatin1Char('e')))
        text += QStringLiteral("-æ");

    replaceInOrder(text, {{QStringLiteral("##1##"), QStringLiteral("&quot;")},
                          {QStringLiteral("##2##"), QStringLiteral("&apos;")},
                          {QStringLiteral("##3##"), QStringLiteral("&amp;")},
                          {QStringLiteral("##4##"), QStringLiteral("&gt;")}});
    return QStringLiteral("ü") + text;
}

bool TranslationFileTool::isBlank(const QString& text) const
{
    return isBlankText(text.constData(), text.constData() + text.size());
}

int TranslationFileTool::countString(const QString& filePath, const QString& text) const
{
    if (text.isEmpty())
        return 0;
    return readTranslationFile(filePath).count(text, Qt::CaseSensitive);
}

int TranslationFileTool::countChar(const QString& filePath, QChar character) const
{
    return readTranslationFile(filePath).count(character, Qt::CaseSensitive);
}

int TranslationFileTool::countUnfinished(const QString& filePath) const
{
    return countString(filePath, QStringLiteral("<translation type=\"unfinished\">"));
}

bool TranslationFileTool::checkBraces(const QString& filePath) const
{
    return checkBracesInContent(readTranslationFile(filePath));
}

bool TranslationFileTool::checkBracesInContent(const QString& content) const
{
    int depth = 0;
    for (const QChar character : content) {
        if (character == QLatin1Char('<'))
            ++depth;
        else if (character == QLatin1Char('>') && --depth < 0)
            return false;
    }
    return depth == 0;
}

bool TranslationFileTool::replaceTrCalls(const QString& filePath) const
{
    const QByteArray bytes = readFileBytes(filePath);
    if (bytes.isEmpty())
        return false;
    const QString content = decodeUtf8(bytes);
    // Decoding replaced invalid bytes; writing them back would destroy the original text.
    if (content.toUtf8() != bytes)
        return false;
    const QString rewritten = replaceTrCallsInContent(content, QFileInfo(filePath).baseName());
    return writeAtomically(filePath, rewritten.toUtf8());
}

QString TranslationFileTool::replaceTrCallsInContent(const QString& content, const QString& context) const
{
    const QString call = QLatin1String("QApplication::translate(\"") + context + QLatin1String("\", ");
    QString result;
    result.reserve(content.size() + content.size() / 8);
    int copied = 0;
    int callEnd = 0;
    for (int at = findTrCall(content, 0, &callEnd); at >= 0; at = findTrCall(content, copied, &callEnd)) {
        appendRange(result, content, copied, at + 1);
        result += call;
        copied = callEnd;
    }
    appendRange(result, content, copied, content.size());
    return result;
}

int TranslationFileTool::processDirectory(const QString& dirPath, const FileProgress& onFile,
                                          const FileSkipped& onSkipped) const
{
    if (dirPath.contains(QLatin1String("legacy")) || dirPath.contains(QLatin1String("Legacy")))
        return 0;
    int rewritten = 0;
    const QFileInfoList entries = QDir(dirPath).entryInfoList();
    for (const QFileInfo& entry : entries) {
        // A link may lead out of the tree or back up into it.
        if (entry.isSymLink())
            continue;
        if (entry.isDir()) {
            if (entry.fileName() != QLatin1String(".") && entry.fileName() != QLatin1String(".."))
                rewritten += processDirectory(entry.filePath(), onFile, onSkipped);
        } else if (entry.isFile() && (entry.suffix() == QLatin1String("h") || entry.suffix() == QLatin1String("cpp"))) {
            if (onFile)
                onFile(entry.filePath());
            if (replaceTrCalls(entry.filePath()))
                ++rewritten;
            else if (onSkipped)
                onSkipped(entry.filePath());
        }
    }
    return rewritten;
}

QString TranslationFileTool::sourceRootFromEnvironment()
{
    return qEnvironmentVariable("VN_TRANSLATION_SOURCE_PATH");
}
