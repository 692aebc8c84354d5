#pragma once

#include "TranslationFileTool.h"

#include <QString>

#include <functional>

// Runs one operation of the translation tool and words its outcome, for the dialog and for the
// command line alike.
class TranslationRunner
{
public:
    // In the order of the dialog's mode list.
    enum Operation : int
    {
        FixTags = 0,
        MockSwedish = 1,
        CountBraces = 2,
        CountNumerus = 3,
        CheckBraces = 4,
        RewriteWholeProject = 5,
        CountUnfinished = 6
    };

    // Receives the progress texts ("Processing...", "Processing:\n<path>") before the work starts.
    using Progress = std::function<void(const QString& message)>;

    struct Result
    {
        QString message; // what the dialog shows
        bool succeeded = true;
        QString problem; // why a file could not be processed, one line per file
        // The note that a file was left out for its name ("Rg" or "rg"): it goes to standard output
        // with the progress lines as it happens, never into the shown text.
        QString skipped;

        // What the dialog shows: the message, followed by the problems when there are any.
        QString shownText() const;
    };

    explicit TranslationRunner(const TranslationFileTool& tool, Progress progress = Progress());

    // Runs an operation on one file; any operation but the counts, the brace check and mock
    // Swedish fixes the tags, as the dialog does. Never rewrites a tree. Mock Swedish keeps the
    // numerus forms when asked to; the dialog never asks.
    Result runOnFile(Operation operation, const QString& filePath,
                     TranslationFileTool::Forms forms = TranslationFileTool::Forms::Flatten) const;
    // Rewrites the tr( calls of one header or source file in place; the message stays empty.
    Result rewriteFile(const QString& filePath) const;
    // Rewrites every header and source file below root, skipping legacy directories; a root that
    // is no directory gives no message, only the problem.
    Result rewriteTree(const QString& root) const;
    // rewriteTree() from $VN_TRANSLATION_SOURCE_PATH.
    Result rewriteWholeProject() const;

private:
    void report(const QString& message) const;
    Result count(Operation operation, const QString& filePath) const;
    Result translate(TranslationFileTool::Mode mode, TranslationFileTool::Forms forms, const QString& filePath) const;

    const TranslationFileTool& m_tool;
    Progress m_progress;
};
