#include "TsFileRewriter.h"

#include "MockSwedishTranslator.h"
#include "StandardOutput.h"

#include <QStringView>

#include <algorithm>
#include <string_view>

namespace {

using TextFileIo::Status;
using Forms = TsFileRewriter::Forms;

const QLatin1String sourceOpen("<source>");
const QLatin1String sourceClose("</source>");
const QLatin1String translationOpen("<translation");
const QLatin1String translationClose("</translation>");
const QLatin1String messageOpen("<message");
const QLatin1String numerusYes("numerus=\"yes\"");

// A form element of a translation, and the form element that it may hold in turn.
struct FormElement
{
    QLatin1String open;
    QLatin1String close;
    const FormElement* inner;
};
const FormElement lengthVariant{QLatin1String("<lengthvariant"), QLatin1String("</lengthvariant>"), nullptr};
const FormElement numerusForm{QLatin1String("<numerusform"), QLatin1String("</numerusform>"), &lengthVariant};

TextFileIo::Result withStatus(TextFileIo::Result result, Status status, const QString& path)
{
    result.status = status;
    result.path = path;
    return result;
}

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

// The same within [begin, end) only, so that a search never runs through the rest of the file.
int findWithin(const QString& text, QLatin1String pattern, int begin, int end)
{
    const qsizetype found = QStringView(text).mid(begin, end - begin).indexOf(pattern);
    return found < 0 ? -1 : begin + int(found);
}

int findWithin(const QByteArray& text, QLatin1String pattern, int begin, int end)
{
    const std::string_view range(text.constData() + begin, size_t(end - begin));
    const size_t found = range.find(std::string_view(pattern.data(), size_t(pattern.size())));
    return found == std::string_view::npos ? -1 : begin + int(found);
}

int findLastWithin(const QString& text, QLatin1String pattern, int begin, int end)
{
    const qsizetype found = QStringView(text).mid(begin, end - begin).lastIndexOf(pattern);
    return found < 0 ? -1 : begin + int(found);
}

int findLastWithin(const QByteArray& text, QLatin1String pattern, int begin, int end)
{
    const std::string_view range(text.constData() + begin, size_t(end - begin));
    const size_t found = range.rfind(std::string_view(pattern.data(), size_t(pattern.size())));
    return found == std::string_view::npos ? -1 : begin + int(found);
}

ushort unitAt(const QString& text, int at)
{
    return text.at(at).unicode();
}

ushort unitAt(const QByteArray& text, int at)
{
    return uchar(text.at(at));
}

bool isBlank(const QString& text, int begin, int end)
{
    return std::all_of(text.constData() + begin, text.constData() + end,
                       [](QChar character) { return character.isSpace(); });
}

// Whether UTF-8 text is blank as QChar::isSpace() sees it.
bool isBlank(const QByteArray& text, int begin, int end)
{
    for (int at = begin; at < end; ++at) {
        const uchar byte = uchar(text.at(at));
        if (byte >= 0x80) { // only a few characters outside ASCII are blanks: decode the rest to look
            const QString rest = QString::fromUtf8(text.constData() + at, end - at);
            return isBlank(rest, 0, rest.size());
        }
        if (!QChar::isSpace(byte))
            return false;
    }
    return true;
}

/*
  One match of the minimal QRegExp
      (<source>(.*)</source>.*<translation)([^>]*)>(.*)</translation>
  with the captures QRegExp reports. The match starts at the first "<source>" from which a match
  exists and ends after the first "</translation>" that any parse can reach, so it ends as early as
  possible. Among the parses ending there, QRegExp keeps the captures that start earliest and end
  latest, in capture order: capture 1 therefore reaches the last "<translation" whose tag is closed
  by a '>' before that "</translation>", and capture 2 the last "</source>" before that tag.
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
  Finds the first entry that starts at or after from. A later "<source>" can only move each first
  occurrence below further on, so when no match exists from the first "<source>", none exists from
  a later one either: a malformed file is searched once, not once per "<source>".
*/
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

    // The backward searches stay inside the match and stop at firstTagClose, firstTag and
    // firstSourceEnd at the latest.
    const int lastTagClose = findLast(text, '>', translationEnd - 1);
    const int tag = findLast(text, translationOpen, lastTagClose - translationOpen.size());
    entry->start = start;
    entry->sourceEnd = findLast(text, sourceClose, tag - sourceClose.size());
    entry->tagEnd = tag + translationOpen.size();
    entry->attributesEnd = find(text, '>', entry->tagEnd);
    entry->translationEnd = translationEnd;
    return true;
}

/*
  Whether the entry belongs to a numerus message: the last "<message" between the previous entry
  and this one opens a tag that holds numerus="yes" before its '>'. (The '>' of "<source>" ends the
  search at the latest.)
*/
template<typename Text>
bool isNumerusMessage(const Text& text, int previousEnd, int entryStart)
{
    const int message = findLastWithin(text, messageOpen, previousEnd, entryStart);
    if (message < 0)
        return false;
    const int tagEnd = find(text, '>', message);
    return findWithin(text, numerusYes, message, tagEnd) >= 0;
}

/*
  An element of a form within a translation: "<name" followed by '>', '/' or a blank opens it, the
  next '>' ends its tag, and unless the tag ends with "/>" the next "</name>" closes it.
*/
struct Element
{
    int tagClose = 0; // the '>' of the opening tag
    bool selfClosing = false;
    int contentEnd = 0;
    int end = 0;
};

bool endsElementName(ushort unit)
{
    return unit == '>' || unit == '/' || unit == ' ' || unit == '\t' || unit == '\n' || unit == '\r';
}

template<typename Text>
bool findElement(const Text& text, int from, int to, const FormElement& form, Element* element)
{
    for (int at = findWithin(text, form.open, from, to); at >= 0; at = findWithin(text, form.open, at + 1, to)) {
        const int nameEnd = at + form.open.size();
        if (nameEnd >= to || !endsElementName(unitAt(text, nameEnd)))
            continue;
        element->tagClose = findWithin(text, QLatin1String(">"), nameEnd, to);
        if (element->tagClose < 0)
            return false;
        element->selfClosing = unitAt(text, element->tagClose - 1) == '/';
        element->contentEnd =
            element->selfClosing ? element->tagClose : findWithin(text, form.close, element->tagClose + 1, to);
        if (element->contentEnd < 0)
            return false;
        element->end = element->selfClosing ? element->tagClose + 1 : element->contentEnd + form.close.size();
        return true;
    }
    return false;
}

// Builds the output as text.
class TextOutput
{
public:
    TextOutput(const QString& content, QString& result)
        : m_content(content)
        , m_result(result)
    {}

    void keep(int begin, int end) { m_result.append(m_content.constData() + begin, end - begin); }
    void add(QLatin1String text) { m_result += text; }
    void setTranslation(int sourceBegin, int sourceEnd, bool mock)
    {
        const QString source = m_content.mid(sourceBegin, sourceEnd - sourceBegin);
        m_translation = mock ? m_mock.translate(source) : source;
    }
    void addTranslation() { m_result += m_translation; }

private:
    const QString& m_content;
    QString& m_result;
    MockSwedishTranslator m_mock;
    QString m_translation;
};

// Gathers the output for valid UTF-8 content, referring to the unchanged runs of the content.
class Utf8Output
{
public:
    Utf8Output(const QByteArray& content, GatheredBytes& output)
        : m_content(content)
        , m_output(output)
    {}

    void keep(int begin, int end) { m_output.appendReferenced(m_content.constData() + begin, end - begin); }
    // Copies that follow each other in memory join into one piece.
    void add(QLatin1String text) { m_output.appendCopy(text.data(), text.size()); }
    void setTranslation(int sourceBegin, int sourceEnd, bool mock)
    {
        const std::string_view source(m_content.constData() + sourceBegin, size_t(sourceEnd - sourceBegin));
        m_translation = mock ? m_mock.translateUtf8(source) : source;
    }
    void addTranslation() { m_output.appendCopy(m_translation.data(), qint64(m_translation.size())); }

private:
    const QByteArray& m_content;
    GatheredBytes& m_output;
    MockSwedishTranslator m_mock;
    std::string_view m_translation;
};

template<typename Text, typename Output>
bool fillElements(const Text& content, int from, int to, const FormElement& form, Output& output);

// An element's content becomes the translation, unless it holds forms of its own to fill.
template<typename Text, typename Output>
void fillElement(const Text& content, const Element& element, const FormElement& form, Output& output)
{
    const bool filledInner = form.inner && !element.selfClosing &&
                             fillElements(content, element.tagClose + 1, element.contentEnd, *form.inner, output);
    if (!filledInner)
        output.addTranslation();
}

// Writes [from, to) with every form element in it filled; false, writing nothing, when it has none.
template<typename Text, typename Output>
bool fillElements(const Text& content, int from, int to, const FormElement& form, Output& output)
{
    Element element;
    if (!findElement(content, from, to, form, &element))
        return false;
    int copied = from;
    do {
        if (element.selfClosing) {
            output.keep(copied, element.tagClose - 1);
            output.add(QLatin1String(">"));
        } else {
            output.keep(copied, element.tagClose + 1);
        }
        fillElement(content, element, form, output);
        output.add(form.close);
        copied = element.end;
    } while (findElement(content, copied, to, form, &element));
    output.keep(copied, to);
    return true;
}

// The rest of a mock entry from the end of "<translation", its forms kept.
template<typename Text, typename Output>
void writeTranslationWithForms(const Text& content, const TsEntry& entry, bool numerus, Output& output)
{
    const int begin = entry.translationBegin();
    const int end = entry.translationEnd;
    Element variant;
    if (numerus) {
        output.add(QLatin1String(">"));
        if (!fillElements(content, begin, end, numerusForm, output)) {
            output.add(QLatin1String("<numerusform>"));
            output.addTranslation();
            output.add(numerusForm.close);
        }
    } else if (findElement(content, begin, end, lengthVariant, &variant)) {
        output.add(QLatin1String(" variants=\"yes\">"));
        fillElements(content, begin, end, lengthVariant, output);
    } else {
        output.add(QLatin1String(">"));
        output.addTranslation();
    }
    output.add(translationClose);
}

// The rest of an entry from the end of "<translation".
template<typename Text, typename Output>
void rewriteEntry(const Text& content, const TsEntry& entry, TsFileRewriter::Mode mode, bool keepForms, bool numerus,
                  Output& output)
{
    const bool blankSource = isBlank(content, entry.sourceBegin(), entry.sourceEnd);
    if (mode == TsFileRewriter::FixTags && !blankSource) {
        if (isBlank(content, entry.translationBegin(), entry.translationEnd))
            output.add(QLatin1String(" type=\"unfinished\"></translation>"));
        else
            output.keep(entry.attributesEnd, entry.end()); // the attributes go
        return;
    }
    output.setTranslation(entry.sourceBegin(), entry.sourceEnd, !blankSource);
    if (keepForms) {
        writeTranslationWithForms(content, entry, numerus, output);
        return;
    }
    output.add(QLatin1String(">"));
    output.addTranslation();
    output.add(translationClose);
}

template<typename Text, typename Output>
void rewriteEntries(const Text& content, TsFileRewriter::Mode mode, Forms forms, Output& output)
{
    const bool keepForms = mode == TsFileRewriter::MockSwedish && forms == Forms::Keep;
    int copied = 0;
    TsEntry entry;
    while (findTsEntry(content, copied, &entry)) {
        const bool numerus = keepForms && isNumerusMessage(content, copied, entry.start);
        output.keep(copied, entry.tagEnd);
        rewriteEntry(content, entry, mode, keepForms, numerus, output);
        copied = entry.end();
    }
    output.keep(copied, content.size());
}

} // namespace

TextFileIo::Result TsFileRewriter::process(const QString& filePath, Mode mode, Forms forms) const
{
    StandardOutput::printLine(QByteArrayLiteral("Start parsing ts files at: ") + filePath.toLocal8Bit());
    TextFileIo::FileContent input;
    const TextFileIo::Result read = TextFileIo::readContent(filePath, &input);
    if (!read.ok())
        return read;
    GatheredBytes output;
    const TextFileIo::Result converted = convert(input.bytes(), mode, forms, &output);
    if (!converted.ok())
        return withStatus(converted, converted.status, filePath);
    const QString outputPath = filePath + outputSuffix(mode);
    // The output refers to the input's bytes, which writing into the input itself would change.
    if (input.isSameFile(outputPath))
        output = GatheredBytes(output.toByteArray());
    const TextFileIo::Result written = TextFileIo::writeInPlace(outputPath, output);
    if (!written.ok())
        StandardOutput::printLine(QByteArrayLiteral("Can not open/generate the output file."));
    return written;
}

QString TsFileRewriter::processContent(const QString& content, Mode mode, Forms forms) const
{
    if (!isKnown(mode))
        return content;
    QString result;
    result.reserve(content.size() + content.size() / 8);
    TextOutput output(content, result);
    rewriteEntries(content, mode, forms, output);
    return result;
}

QByteArray TsFileRewriter::processUtf8(const QByteArray& content, Mode mode, Forms forms) const
{
    if (!isKnown(mode))
        return content;
    GatheredBytes gathered;
    Utf8Output output(content, gathered);
    rewriteEntries(content, mode, forms, output);
    return gathered.toByteArray();
}

bool TsFileRewriter::isBlank(const QString& text)
{
    return ::isBlank(text, 0, text.size());
}

bool TsFileRewriter::isKnown(Mode mode)
{
    return mode == FixTags || mode == MockSwedish;
}

QString TsFileRewriter::outputSuffix(Mode mode)
{
    return mode == FixTags ? QStringLiteral(".fix") : QStringLiteral(".swe");
}

/*
  UTF-8 without a byte-order mark, the usual case, is processed as bytes, which needs neither a
  decoded copy of the file nor the time to make one; other encodings are decoded first.
*/
TextFileIo::Result TsFileRewriter::convert(QByteArray& bytes, Mode mode, Forms forms, GatheredBytes* output) const
{
    TextFileIo::Result result;
    if (!isKnown(mode))
        return withStatus(result, Status::UnknownMode, QString());
    if (TextFileIo::isValidUtf8(bytes.constData(), bytes.size()) && !bytes.startsWith("\xEF\xBB\xBF")) {
        if (bytes.contains('\r'))
            bytes.replace("\r", "");
        if (bytes.isEmpty())
            return withStatus(result, Status::Empty, QString());
        Utf8Output utf8(bytes, *output);
        rewriteEntries(bytes, mode, forms, utf8);
        return result;
    }
    QString content;
    TextFileIo::Encoding encoding;
    result = TextFileIo::decode(bytes, &content, &encoding);
    if (!result.ok())
        return result;
    TextFileIo::removeCarriageReturns(content);
    if (content.isEmpty())
        return withStatus(result, Status::Empty, QString());
    output->appendShared(TextFileIo::encode(processContent(content, mode, forms), encoding));
    return result;
}
