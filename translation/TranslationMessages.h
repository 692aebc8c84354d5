#pragma once

#include "TextFileIo.h"

#include <QCoreApplication>
#include <QString>

// The result and progress texts of the translation tool. The dialog and the command line both take
// their texts from here, so that the two always say the same.
class TranslationMessages
{
    Q_DECLARE_TR_FUNCTIONS(TranslationMessages)

public:
    static QString choosePathFirst();
    static QString braceCounts(int opening, int closing);
    static QString numerusCount(int count);
    static QString braceCheck(bool correct);
    static QString featureDisabled();
    static QString unfinishedCount(int count);
    static QString processing();
    static QString translated(bool succeeded);
    static QString processingFile(const QString& filePath);
    static QString replacingFinished();
    static QString sourcePathNotSet();
    // Why a file could not be processed, naming the file.
    static QString fileProblem(const TextFileIo::Result& result);
    static QString notADirectory(const QString& path);
};
