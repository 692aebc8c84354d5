#pragma once

#include <QChar>
#include <QString>

/*
  Counts things in a translation, header or source file and checks its angle brackets. A file that
  cannot be read counts as empty: every count is 0 and its brackets balance.
*/
class TranslationFileCounter
{
public:
    // Case-sensitive occurrences of the text; 0 for an empty text.
    int countString(const QString& filePath, const QString& text) const;
    int countChar(const QString& filePath, QChar character) const;
    // Occurrences of <translation type="unfinished">.
    int countUnfinished(const QString& filePath) const;
    // True when every '>' closes an earlier '<' and none stays open.
    bool checkBraces(const QString& filePath) const;

    // The same on a file's content.
    static int unfinishedIn(const QString& content);
    static int numerusIn(const QString& content);
    static bool bracesBalanceIn(const QString& content);
};
