#pragma once

#include "TranslationFileTool.h"

#include <QStringList>

class QTextStream;

// The command line of twc-translate: runs one operation of the translation tool on files, printing
// the texts that the translation dialog shows.
class TranslationCommandLine
{
public:
    enum ExitCode
    {
        Success = 0,
        FileFailed = 1,
        UsageError = 2
    };

    TranslationCommandLine(QTextStream& out, QTextStream& err);

    // arguments[0] is the program name.
    int run(const QStringList& arguments);

    static QString helpText();

private:
    int usageError(const QString& problem);
    int runOnFiles(const QString& mode, const QStringList& files, TranslationFileTool::Forms forms);
    int runOnTree(const QStringList& arguments);
    void print(const QString& message);
    void printProblem(const QString& problem);

    QTextStream& m_out;
    QTextStream& m_err;
};
