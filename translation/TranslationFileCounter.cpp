#include "TranslationFileCounter.h"

#include "TextFileIo.h"

namespace {
QString contentOf(const QString& filePath)
{
    QString text;
    TextFileIo::readText(filePath, &text);
    return text;
}
} // namespace

int TranslationFileCounter::countString(const QString& filePath, const QString& text) const
{
    if (text.isEmpty())
        return 0;
    return contentOf(filePath).count(text, Qt::CaseSensitive);
}

int TranslationFileCounter::countChar(const QString& filePath, QChar character) const
{
    return contentOf(filePath).count(character, Qt::CaseSensitive);
}

int TranslationFileCounter::countUnfinished(const QString& filePath) const
{
    return unfinishedIn(contentOf(filePath));
}

bool TranslationFileCounter::checkBraces(const QString& filePath) const
{
    return bracesBalanceIn(contentOf(filePath));
}

int TranslationFileCounter::unfinishedIn(const QString& content)
{
    return content.count(QLatin1String("<translation type=\"unfinished\">"));
}

int TranslationFileCounter::numerusIn(const QString& content)
{
    return content.count(QLatin1String("numerus=\"yes\""));
}

bool TranslationFileCounter::bracesBalanceIn(const QString& content)
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
