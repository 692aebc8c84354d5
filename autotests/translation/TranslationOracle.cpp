#include "TranslationOracle.h"

#include <QRegExp>

namespace {
// The last "<message" between the previous entry and this one opens a tag with numerus="yes".
bool isNumerusMessage(const QString& text, int from, int to)
{
    const int message = text.mid(from, to - from).lastIndexOf("<message");
    QRegExp tag(QStringLiteral("<message[^>]*>"));
    return message >= 0 && tag.indexIn(text, from + message) == from + message &&
           tag.cap(0).contains("numerus=\"yes\"");
}

/*
  Every element of that name gets the mock as its content, or a numerus form its length variants
  filled: "<name" before '>', '/' or a blank opens an element, the next '>' ends its tag, and a tag
  that does not end in "/>" runs to the next "</name>".
*/
QString fillElements(const QString& text, const QString& name, const QString& mock, bool* found)
{
    QRegExp open("<" + name + "([/ \\t\\n\\r][^>]*)?>");
    const QString close = "</" + name + ">";
    QString result = text;
    *found = false;
    for (int pos = open.indexIn(result, 0); pos != -1;) {
        const QString tag = open.cap(0);
        const bool selfClosing = tag.endsWith("/>");
        const int contentBegin = pos + tag.length();
        const int closeAt = selfClosing ? contentBegin : result.indexOf(close, contentBegin);
        if (closeAt < 0)
            break;
        bool variants = false;
        const QString inner =
            name == "numerusform" && !selfClosing
                ? fillElements(result.mid(contentBegin, closeAt - contentBegin), "lengthvariant", mock, &variants)
                : QString();
        const QString element = (selfClosing ? tag.chopped(2) + ">" : tag) + (variants ? inner : mock) + close;
        result.replace(pos, closeAt + (selfClosing ? 0 : close.length()) - pos, element);
        *found = true;
        pos = open.indexIn(result, pos + element.length());
    }
    return result;
}

QString translationKeepingForms(const QString& translation, const QString& mock, bool numerus)
{
    bool found = false;
    if (numerus) {
        const QString forms = fillElements(translation, "numerusform", mock, &found);
        return ">" + (found ? forms : "<numerusform>" + mock + "</numerusform>");
    }
    const QString variants = fillElements(translation, "lengthvariant", mock, &found);
    return found ? " variants=\"yes\">" + variants : ">" + mock;
}
} // namespace

QString TranslationOracle::processTsContent(const QString& content, int mode, bool keepForms)
{
    QRegExp entry(QStringLiteral("(<source>(.*)</source>.*<translation)([^>]*)>(.*)</translation>"), Qt::CaseSensitive,
                  QRegExp::RegExp);
    entry.setMinimal(true);
    QString text = content;
    int previousEnd = 0;
    int pos = entry.indexIn(text, 0);
    while (pos != -1) {
        QString replacement;
        if (keepForms && mode == 1) {
            const QString translation = isBlank(entry.cap(2)) ? entry.cap(2) : mockSwedish(entry.cap(2));
            const bool numerus = isNumerusMessage(text, previousEnd, pos);
            replacement = entry.cap(1) + translationKeepingForms(entry.cap(4), translation, numerus) + "</translation>";
        } else if (isBlank(entry.cap(2)))
            replacement = entry.cap(1) + ">" + entry.cap(2) + "</translation>";
        else if (mode == 1)
            replacement = entry.cap(1) + ">" + mockSwedish(entry.cap(2)) + "</translation>";
        else if (isBlank(entry.cap(4)))
            replacement = entry.cap(1) + " type=\"unfinished\"" + "></translation>";
        else
            replacement = entry.cap(1) + ">" + entry.cap(4) + "</translation>";
        text.replace(pos, entry.matchedLength(), replacement);
        previousEnd = pos + replacement.length();
        pos = entry.indexIn(text, previousEnd);
    }
    return text;
}

QString TranslationOracle::replaceTrCalls(const QString& content, const QString& context)
{
    QRegExp call(QStringLiteral("([^a-zA-Z0-9])tr(\\s*)\\("), Qt::CaseSensitive, QRegExp::RegExp);
    call.setMinimal(true);
    QString text = content;
    int pos = call.indexIn(text, 0);
    while (pos != -1) {
        const QString replacement = call.cap(1) + "QApplication::translate(\"" + context + "\", ";
        text.replace(pos, call.matchedLength(), replacement);
        pos = call.indexIn(text, pos + replacement.length());
    }
    return text;
}

QString TranslationOracle::mockSwedish(const QString& source)
{
    if (source.isEmpty() || source.contains("html", Qt::CaseInsensitive))
        return source;
    QString w = source;
    w.replace("&quot;", "##1##").replace("&apos;", "##2##").replace("&amp;", "##3##").replace("&gt;", "##4##");
    w.replace("An", QString::fromUtf8("Ån"))
        .replace("an", QString::fromUtf8("ån"))
        .replace("Au", "Oo")
        .replace("au", "oo");
    QChar kept = w.at(w.length() - 1);
    w.chop(1);
    w.replace('A', 'E').replace('a', 'e');
    w.append(kept);
    w.replace("En", "Ee").replace("en", "ee");
    kept = w.at(0);
    w.remove(0, 1);
    w.replace("ew", "oo")
        .replace("f", "ff")
        .replace("ir", "ur")
        .replace("tion", "shun")
        .replace("i", "ee")
        .replace("ow", "oo");
    w.prepend(kept);
    if (source.startsWith("O"))
        w.replace(0, 1, QString::fromUtf8("Ø"));
    if (source.startsWith("o"))
        w.replace(0, 1, QString::fromUtf8("ø"));
    if (source.endsWith("th"))
        w.chop(1);
    kept = w.at(0);
    w.remove(0, 1);
    w.replace('u', "oo");
    w.prepend(kept);
    w.replace('V', 'F').replace('v', 'f').replace('W', 'V').replace('w', 'v');
    if (w.endsWith("e"))
        w.append(QString::fromUtf8("-æ"));
    w.replace("##1##", "&quot;").replace("##2##", "&apos;").replace("##3##", "&amp;").replace("##4##", "&gt;");
    return QString::fromUtf8("ü") + w;
}

bool TranslationOracle::isBlank(const QString& text)
{
    if (text.isEmpty())
        return true;
    QRegExp whitespace(QStringLiteral("\\s+"));
    return whitespace.indexIn(text) != -1 && whitespace.matchedLength() == text.length();
}
