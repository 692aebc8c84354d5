#include "TranslationFileTool.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace {

using TextFileIo::Status;

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

// A text-mode read drops every carriage return.
void removeCarriageReturns(QString& text)
{
    if (text.contains(QLatin1Char('\r')))
        text.remove(QLatin1Char('\r'));
}

TextFileIo::Result withStatus(TextFileIo::Result result, Status status, const QString& path)
{
    result.status = status;
    result.path = path;
    return result;
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

// The index of the first occurrence of needle at or after from, or -1.
int find(const QString& text, const QString& needle, int from)
{
    const QChar* data = text.constData();
    const QChar* needleData = needle.constData();
    const int last = text.size() - needle.size();
    for (int at = from; at <= last; ++at) {
        if (data[at] == needleData[0] && std::equal(needleData + 1, needleData + needle.size(), data + at + 1))
            return at;
    }
    return -1;
}

/*
  Replaces every occurrence of before, left to right, as QString::replace()
  does, but in one pass: QString::replace() moves the rest of the text once per
  1024 occurrences that change its length, which is quadratic on a long text.
  The result is built in scratch, whose memory is used again from step to step.
*/
void replaceAll(QString& text, const QString& before, const QString& after, QString& scratch)
{
    int at = find(text, before, 0);
    if (at < 0)
        return;
    QString& result = scratch;
    result.truncate(0); // keeps the reserved memory
    result.reserve(text.size() + (after.size() > before.size() ? text.size() / 2 : 0));
    int copied = 0;
    while (at >= 0) {
        result.append(text.constData() + copied, at - copied);
        result.append(after);
        copied = at + before.size();
        at = find(text, before, copied);
    }
    result.append(text.constData() + copied, text.size() - copied);
    text.swap(result);
}

void replaceInOrder(QString& text, std::initializer_list<std::pair<QString, QString>> replacements, QString& scratch)
{
    for (const auto& replacement : replacements)
        replaceAll(text, replacement.first, replacement.second, scratch);
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
// Searches in QString and UTF-8 text alike: every pattern is ASCII.
int find(const QString& text, QLatin1String pattern, int from)
{
    return text.indexOf(pattern, from);
}

int find(const QByteArray& text, QLatin1String pattern, int from)
{
    if (from < 0 || from > text.size())
        return -1;
    const std::string_view haystack(text.constData(), size_t(text.size()));
    const size_t found = haystack.find(std::string_view(pattern.data(), size_t(pattern.size())), size_t(from));
    return found == std::string_view::npos ? -1 : int(found);
}

int find(const QString& text, char character, int from)
{
    return text.indexOf(QLatin1Char(character), from);
}

int find(const QByteArray& text, char character, int from)
{
    return text.indexOf(character, from);
}

int findLast(const QString& text, QLatin1String pattern, int from)
{
    return text.lastIndexOf(pattern, from);
}

int findLast(const QByteArray& text, QLatin1String pattern, int from)
{
    return text.lastIndexOf(pattern.data(), from);
}

int findLast(const QString& text, char character, int from)
{
    return text.lastIndexOf(QLatin1Char(character), from);
}

int findLast(const QByteArray& text, char character, int from)
{
    return text.lastIndexOf(character, from);
}

template<typename Text>
bool findTsEntry(const Text& text, int from, TsEntry* entry)
{
    const int start = find(text, sourceOpen, from);
    if (start < 0)
        return false;
    const int firstSourceEnd = find(text, sourceClose, start + sourceOpen.size());
    if (firstSourceEnd < 0)
        return false;
    const int firstTag = find(text, translationOpen, firstSourceEnd + sourceClose.size());
    if (firstTag < 0)
        return false;
    const int firstTagClose = find(text, '>', firstTag + translationOpen.size());
    if (firstTagClose < 0)
        return false;
    const int translationEnd = find(text, translationClose, firstTagClose + 1);
    if (translationEnd < 0)
        return false;

    // The backward searches stay inside the match and stop at firstTagClose,
    // firstTag and firstSourceEnd at the latest.
    const int lastTagClose = findLast(text, '>', translationEnd - 1);
    const int tag = findLast(text, translationOpen, lastTagClose - translationOpen.size());
    entry->start = start;
    entry->sourceEnd = findLast(text, sourceClose, tag - sourceClose.size());
    entry->tagEnd = tag + translationOpen.size();
    entry->attributesEnd = find(text, '>', entry->tagEnd);
    entry->translationEnd = translationEnd;
    return true;
}

// Whether UTF-8 text is blank as QChar::isSpace() sees it.
bool isBlankUtf8(const char* begin, const char* end)
{
    for (const char* it = begin; it != end; ++it) {
        const uchar byte = uchar(*it);
        if (byte < 0x80) {
            if (!QChar::isSpace(byte))
                return false;
        } else {
            // Only a few non-ASCII characters are blanks; decode the rest of the text to look.
            const QString rest = QString::fromUtf8(it, int(end - it));
            return std::all_of(rest.begin(), rest.end(), [](QChar character) { return character.isSpace(); });
        }
    }
    return true;
}

/*
  Whether bytes are valid UTF-8 as the decoder reads them: no stray continuation bytes, cut-off or
  overlong sequences, encoded surrogates or code points beyond U+10FFFF.
*/
bool isValidUtf8(const char* data, int size)
{
    const uchar* it = reinterpret_cast<const uchar*>(data);
    const uchar* end = it + size;
    while (it != end) {
        quint64 eightBytes = 0;
        if (end - it >= 8 && (std::memcpy(&eightBytes, it, 8), (eightBytes & 0x8080808080808080ull) == 0)) {
            it += 8; // all ASCII
            continue;
        }
        if (*it < 0x80) {
            ++it;
            continue;
        }
        int length = 0;
        uint minimum = 0;
        uint codePoint = 0;
        if ((*it & 0xE0) == 0xC0) {
            length = 2, minimum = 0x80, codePoint = *it & 0x1F;
        } else if ((*it & 0xF0) == 0xE0) {
            length = 3, minimum = 0x800, codePoint = *it & 0x0F;
        } else if ((*it & 0xF8) == 0xF0) {
            length = 4, minimum = 0x10000, codePoint = *it & 0x07;
        } else {
            return false;
        }
        if (end - it < length)
            return false;
        for (int index = 1; index < length; ++index) {
            if ((it[index] & 0xC0) != 0x80)
                return false;
            codePoint = (codePoint << 6) | (it[index] & 0x3F);
        }
        if (codePoint < minimum || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
            return false;
        it += length;
    }
    return true;
}

/*
  Mock Swedish on UTF-8 bytes, step for step as on text: every pattern is ASCII, and an ASCII byte
  in UTF-8 is always a whole character, so replacing bytes replaces the same characters. Set aside
  and put back, the first or last character is a whole UTF-8 sequence.
*/
class Utf8MockSwedish
{
public:
    // The mock translation of source, valid until the next call.
    std::string_view translate(std::string_view source)
    {
        std::string& text = m_text;
        text.assign("\xc3\xbc"); // ü
        text.append(source.data(), source.size());
        shieldAndTransform(source);
        return text;
    }

private:
    static constexpr size_t prefix = 2; // the ü in front of the working text

    static bool containsHtml(std::string_view text)
    {
        for (size_t at = 0; at + 4 <= text.size(); ++at) {
            if ((text[at] | 0x20) == 'h' && (text[at + 1] | 0x20) == 't' && (text[at + 2] | 0x20) == 'm' &&
                (text[at + 3] | 0x20) == 'l')
                return true;
        }
        return false;
    }

    static size_t sequenceLength(char lead)
    {
        const uchar byte = uchar(lead);
        return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
    }

    // Where the working text's last character starts.
    size_t lastCharacter() const
    {
        size_t at = m_text.size() - 1;
        while (at > prefix && (uchar(m_text[at]) & 0xC0) == 0x80)
            --at;
        return at;
    }

    size_t afterFirstCharacter() const { return prefix + sequenceLength(m_text[prefix]); }

    // Replaces every before from the index from on, left to right.
    void replaceAll(std::string_view before, std::string_view after, size_t from)
    {
        const std::string_view text(m_text);
        size_t at = text.find(before, from);
        if (at == std::string_view::npos)
            return;
        if (before.size() == after.size()) {
            // In place: what follows a replacement is not looked at before it is reached.
            for (; at != std::string_view::npos; at = text.find(before, at + before.size()))
                std::memcpy(&m_text[at], after.data(), after.size());
            return;
        }
        std::string& result = m_scratch;
        result.assign(text.data(), at);
        size_t copied = at;
        while (at != std::string_view::npos) {
            result.append(text.data() + copied, at - copied);
            result.append(after.data(), after.size());
            copied = at + before.size();
            at = text.find(before, copied);
        }
        result.append(text.data() + copied, text.size() - copied);
        m_text.swap(result);
    }

    void replaceAll(std::initializer_list<std::pair<std::string_view, std::string_view>> replacements,
                    size_t from = prefix)
    {
        for (const auto& replacement : replacements)
            replaceAll(replacement.first, replacement.second, from);
    }

    void replaceFirstCharacter(std::string_view replacement)
    {
        m_text.replace(prefix, sequenceLength(m_text[prefix]), replacement.data(), replacement.size());
    }

    void shieldAndTransform(std::string_view source)
    {
        if (source.empty() || containsHtml(source)) {
            m_text.erase(0, prefix);
            return;
        }
        // "&lt;" stays unshielded on purpose: its letters get transformed.
        replaceAll({{"&quot;", "##1##"}, {"&apos;", "##2##"}, {"&amp;", "##3##"}, {"&gt;", "##4##"}});
        replaceAll({{"An", "\xc3\x85n"}, {"an", "\xc3\xa5n"}, {"Au", "Oo"}, {"au", "oo"}});
        // Every A and a becomes E and e, but for the last character.
        for (size_t at = prefix, last = lastCharacter(); at < last; ++at) {
            if ((m_text[at] | 0x20) == 'a')
                m_text[at] += 'e' - 'a';
        }
        replaceAll({{"En", "Ee"}, {"en", "ee"}});
        replaceAll({{"ew", "oo"}, {"f", "ff"}, {"ir", "ur"}, {"tion", "shun"}, {"i", "ee"}, {"ow", "oo"}},
                   afterFirstCharacter());
        if (source.front() == 'O')
            replaceFirstCharacter("\xc3\x98"); // Ø
        if (source.front() == 'o')
            replaceFirstCharacter("\xc3\xb8"); // ø
        if (source.size() >= 2 && source.substr(source.size() - 2) == "th")
            m_text.erase(lastCharacter());
        replaceAll("u", "oo", afterFirstCharacter());
        // In this order a 'W' of the source ends as 'V', not as 'F'.
        for (size_t at = prefix; at < m_text.size(); ++at) {
            char& character = m_text[at];
            if (character == 'V' || character == 'v')
                character += 'F' - 'V';
            else if (character == 'W' || character == 'w')
                character -= 'W' - 'V';
        }
        if (m_text.back() == 'e')
            m_text.append("-\xc3\xa6"); // -æ
        replaceAll({{"##1##", "&quot;"}, {"##2##", "&apos;"}, {"##3##", "&amp;"}, {"##4##", "&gt;"}});
    }

    std::string m_text;
    std::string m_scratch;
};

// Gathers the output for valid UTF-8 content, referring to the unchanged runs of the content.
void gatherTsUtf8(const QByteArray& content, int mode, GatheredBytes& output)
{
    static const char tagEnd[] = ">";
    static const char closingTag[] = "</translation>";
    static const char unfinished[] = " type=\"unfinished\"></translation>";
    const auto appendLiteral = [&output](const char* literal, size_t size) {
        output.appendReferenced(literal, qint64(size) - 1);
    };
    Utf8MockSwedish mock;
    int copied = 0;
    TsEntry entry;
    const char* data = content.constData();
    while (findTsEntry(content, copied, &entry)) {
        output.appendReferenced(data + copied, entry.tagEnd - copied);
        const char* source = data + entry.sourceBegin();
        const int sourceSize = entry.sourceEnd - entry.sourceBegin();
        if (isBlankUtf8(source, source + sourceSize)) {
            appendLiteral(tagEnd, sizeof tagEnd);
            output.appendReferenced(source, sourceSize);
            appendLiteral(closingTag, sizeof closingTag);
        } else if (mode == TranslationFileTool::MockSwedish) {
            // Copies that follow each other in memory join into one piece.
            output.appendCopy(tagEnd, 1);
            const std::string_view translation = mock.translate(std::string_view(source, size_t(sourceSize)));
            output.appendCopy(translation.data(), qint64(translation.size()));
            output.appendCopy(closingTag, qint64(sizeof closingTag) - 1);
        } else if (isBlankUtf8(data + entry.translationBegin(), data + entry.translationEnd)) {
            appendLiteral(unfinished, sizeof unfinished);
        } else {
            output.appendReferenced(data + entry.attributesEnd, entry.end() - entry.attributesEnd);
        }
        copied = entry.end();
    }
    output.appendReferenced(data + copied, content.size() - copied);
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

QString rewriteCalls(const QString& content, const QString& context, int* calls)
{
    const QString call = QLatin1String("QApplication::translate(\"") + context + QLatin1String("\", ");
    int callEnd = 0;
    int at = findTrCall(content, 0, &callEnd);
    if (at < 0)
        return content;
    QString result;
    result.reserve(content.size() + content.size() / 8);
    int copied = 0;
    for (; at >= 0; at = findTrCall(content, copied, &callEnd)) {
        appendRange(result, content, copied, at + 1);
        result += call;
        copied = callEnd;
        ++*calls;
    }
    appendRange(result, content, copied, content.size());
    return result;
}

} // namespace

TranslationFileTool::TranslationFileTool() = default;

TranslationFileTool::~TranslationFileTool() = default;

QString TranslationFileTool::readTranslationFile(const QString& filePath) const
{
    QString text;
    return readText(filePath, &text).ok() ? text : QString();
}

TranslationFileTool::FileResult TranslationFileTool::readText(const QString& filePath, QString* text) const
{
    text->clear();
    TextFileIo::Encoding encoding;
    QByteArray bytes;
    FileResult result = TextFileIo::readBytes(filePath, &bytes);
    if (!result.ok())
        return result;
    result = TextFileIo::decode(bytes, text, &encoding);
    result.path = filePath;
    if (!result.ok())
        text->clear();
    removeCarriageReturns(*text);
    return result;
}

bool TranslationFileTool::processTsFile(const QString& filePath, int mode) const
{
    return processTs(filePath, mode).ok();
}

TranslationFileTool::FileResult TranslationFileTool::processTs(const QString& filePath, int mode) const
{
    printLine(QByteArrayLiteral("Start parsing ts files at: ") + filePath.toLocal8Bit());
    TextFileIo::FileContent input;
    const FileResult read = TextFileIo::readContent(filePath, &input);
    if (!read.ok())
        return read;
    GatheredBytes output;
    const FileResult converted = convertTs(input.bytes(), mode, &output);
    if (!converted.ok())
        return withStatus(converted, converted.status, filePath);
    const QString outputPath = filePath + outputSuffix(mode);
    // The output refers to the input's bytes, which writing into the input itself would change.
    if (input.isSameFile(outputPath))
        output = GatheredBytes(output.toByteArray());
    const FileResult written = TextFileIo::writeInPlace(outputPath, output);
    if (!written.ok())
        printCannotWrite();
    return written;
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

QByteArray TranslationFileTool::processTsUtf8(const QByteArray& content, int mode) const
{
    if (mode != FixTags && mode != MockSwedish)
        return content;
    GatheredBytes output;
    gatherTsUtf8(content, mode, output);
    return output.toByteArray();
}

QString TranslationFileTool::mockSwedish(const QString& source) const
{
    if (source.isEmpty() || source.contains(QLatin1String("html"), Qt::CaseInsensitive))
        return source;

    QString text = source;
    QString scratch;
    // "&lt;" stays unshielded on purpose: its letters get transformed.
    replaceInOrder(text,
                   {{QStringLiteral("&quot;"), QStringLiteral("##1##")},
                    {QStringLiteral("&apos;"), QStringLiteral("##2##")},
                    {QStringLiteral("&amp;"), QStringLiteral("##3##")},
                    {QStringLiteral("&gt;"), QStringLiteral("##4##")}},
                   scratch);
    replaceInOrder(text,
                   {{QStringLiteral("An"), QStringLiteral("Ån")},
                    {QStringLiteral("an"), QStringLiteral("ån")},
                    {QStringLiteral("Au"), QStringLiteral("Oo")},
                    {QStringLiteral("au"), QStringLiteral("oo")}},
                   scratch);

    const QString last = text.right(1);
    text.chop(1);
    text.replace(QLatin1Char('A'), QLatin1Char('E'));
    text.replace(QLatin1Char('a'), QLatin1Char('e'));
    text += last;

    replaceInOrder(text, {{QStringLiteral("En"), QStringLiteral("Ee")}, {QStringLiteral("en"), QStringLiteral("ee")}},
                   scratch);

    QString first = text.left(1);
    text.remove(0, 1);
    replaceInOrder(text,
                   {{QStringLiteral("ew"), QStringLiteral("oo")},
                    {QStringLiteral("f"), QStringLiteral("ff")},
                    {QStringLiteral("ir"), QStringLiteral("ur")},
                    {QStringLiteral("tion"), QStringLiteral("shun")},
                    {QStringLiteral("i"), QStringLiteral("ee")},
                    {QStringLiteral("ow"), QStringLiteral("oo")}},
                   scratch);
    text.prepend(first);

    if (source.startsWith(QLatin1Char('O')))
        text.replace(0, 1, QStringLiteral("Ø"));
    if (source.startsWith(QLatin1Char('o')))
        text.replace(0, 1, QStringLiteral("ø"));
    if (source.endsWith(QLatin1String("th")))
        text.chop(1);

    first = text.left(1);
    text.remove(0, 1);
    replaceAll(text, QStringLiteral("u"), QStringLiteral("oo"), scratch);
    text.prepend(first);

    // In this order a 'W' of the source ends as 'V', not as 'F'.
    text.replace(QLatin1Char('V'), QLatin1Char('F'));
    text.replace(QLatin1Char('v'), QLatin1Char('f'));
    text.replace(QLatin1Char('W'), QLatin1Char('V'));
    text.replace(QLatin1Char('w'), QLatin1Char('v'));

    if (text.endsWith(QLatin1Char('e')))
        text += QStringLiteral("-æ");

    replaceInOrder(text,
                   {{QStringLiteral("##1##"), QStringLiteral("&quot;")},
                    {QStringLiteral("##2##"), QStringLiteral("&apos;")},
                    {QStringLiteral("##3##"), QStringLiteral("&amp;")},
                    {QStringLiteral("##4##"), QStringLiteral("&gt;")}},
                   scratch);
    return QStringLiteral("ü") + text;
}

QByteArray TranslationFileTool::mockSwedishUtf8(const QByteArray& source) const
{
    Utf8MockSwedish mock;
    const std::string_view translation = mock.translate(std::string_view(source.constData(), size_t(source.size())));
    return QByteArray(translation.data(), int(translation.size()));
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

QString TranslationFileTool::outputSuffix(int mode)
{
    return mode == FixTags ? QStringLiteral(".fix") : QStringLiteral(".swe");
}

/*
  UTF-8 without a byte-order mark, the usual case, is processed as bytes, which needs neither a
  decoded copy of the file nor the time to make one; other encodings are decoded first.
*/
TranslationFileTool::FileResult TranslationFileTool::convertTs(QByteArray& bytes, int mode, GatheredBytes* output) const
{
    FileResult result;
    if (mode != FixTags && mode != MockSwedish)
        return withStatus(result, Status::UnknownMode, QString());
    if (isValidUtf8(bytes.constData(), bytes.size()) && !bytes.startsWith("\xEF\xBB\xBF")) {
        if (bytes.contains('\r'))
            bytes.replace("\r", "");
        if (bytes.isEmpty())
            return withStatus(result, Status::Empty, QString());
        gatherTsUtf8(bytes, mode, *output);
        return result;
    }
    QString content;
    TextFileIo::Encoding encoding;
    result = TextFileIo::decode(bytes, &content, &encoding);
    if (!result.ok())
        return result;
    removeCarriageReturns(content);
    if (content.isEmpty())
        return withStatus(result, Status::Empty, QString());
    output->appendShared(TextFileIo::encode(processTsContent(content, mode), encoding));
    return result;
}

bool TranslationFileTool::replaceTrCalls(const QString& filePath) const
{
    return rewriteTrCalls(filePath).ok();
}

TranslationFileTool::FileResult TranslationFileTool::rewriteTrCalls(const QString& filePath) const
{
    QByteArray bytes;
    const FileResult read = TextFileIo::readBytes(filePath, &bytes);
    if (!read.ok())
        return read;
    QString content;
    TextFileIo::Encoding encoding;
    const FileResult decoded = TextFileIo::decode(bytes, &content, &encoding);
    int calls = 0;
    const QString rewritten = rewriteCalls(content, QFileInfo(filePath).baseName(), &calls);
    if (calls == 0)
        return read; // nothing to rewrite: every byte stays
    // Writing undecodable text back would change more than the calls.
    if (!decoded.ok() || TextFileIo::encode(content, encoding) != bytes)
        return withStatus(decoded, Status::Undecodable, filePath);
    return TextFileIo::writeInPlace(filePath, TextFileIo::encode(rewritten, encoding));
}

QString TranslationFileTool::replaceTrCallsInContent(const QString& content, const QString& context) const
{
    int calls = 0;
    return rewriteCalls(content, context, &calls);
}

int TranslationFileTool::processDirectory(const QString& dirPath, const FileProgress& onFile,
                                          const FileDone& onDone) const
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
                rewritten += processDirectory(entry.filePath(), onFile, onDone);
        } else if (entry.isFile() && (entry.suffix() == QLatin1String("h") || entry.suffix() == QLatin1String("cpp"))) {
            if (onFile)
                onFile(entry.filePath());
            const FileResult result = rewriteTrCalls(entry.filePath());
            if (result.changed)
                ++rewritten;
            if (onDone)
                onDone(result);
        }
    }
    return rewritten;
}

QString TranslationFileTool::sourceRootFromEnvironment()
{
    return qEnvironmentVariable("VN_TRANSLATION_SOURCE_PATH");
}
