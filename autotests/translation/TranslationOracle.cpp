#include "TranslationOracle.h"

#include <QRegExp>

QString TranslationOracle::processTsContent(const QString& content, int mode)
{
    QRegExp entry(QStringLiteral("(<source>(.*)</source>.*<translation)([^>]*)>(.*)</translation>"), Qt::CaseSensitive,
                  QRegExp::RegExp);
    entry.setMinimal(true);
    QString text = content;
    int pos = entry.indexIn(text, 0);
    while (pos != -1) {
        QString replacement;
        if (isBlank(entry.cap(2)))
            replacement = entry.cap(1) + ">" + entry.cap(2) + "</translation>";
        else if (mode == 1)
            replacement = entry.cap(1) + ">" + mockSwedish(entry.cap(2)) + "</translation>";
        else if (isBlank(entry.cap(4)))
            replacement = entry.cap(1) + " type=\"unfinished\"" + "></translation>";
        else
            replacement = entry.cap(1) + ">" + entry.cap(4) + "</translation>";
        text.replace(pos, entry.matchedLength(), replacement);
        pos = entry.indexIn(text, pos + replacement.length());
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
