#pragma once

#include "TextFileIo.h"

#include <QString>

#include <functional>

/*
  Rewrites every tr( call of a header or source file into QApplication::translate( with the file's
  base name as context, in place, one file or a whole tree. Each call is what one match of the
  minimal QRegExp ([^a-zA-Z0-9])tr(\s*)\( replaced in place would give, in time proportional to the
  file size.
*/
class TrCallRewriter
{
public:
    // Receives the path of each header or source file just before it is rewritten.
    using FileProgress = std::function<void(const QString& filePath)>;
    // Receives the outcome for each header or source file once it was handled.
    using FileDone = std::function<void(const TextFileIo::Result& result)>;

    // Rewrites the file in place; changed tells whether it was written. A file without a call
    // keeps every byte; a rewritten one keeps its encoding and line endings. A file that cannot be
    // read or decoded is left alone, and a failed write leaves the original as it was.
    TextFileIo::Result rewrite(const QString& filePath) const;
    // The text rewrite() writes for the given content and context name.
    QString rewriteContent(const QString& content, const QString& context) const;

    // Rewrites every *.h and *.cpp file below dirPath, skipping directories whose path contains
    // "legacy" or "Legacy" and never following a symbolic link. Returns the number of files
    // rewritten.
    int rewriteTree(const QString& dirPath, const FileProgress& onFile = FileProgress(),
                    const FileDone& onDone = FileDone()) const;

    // The root for rewriteTree() from $VN_TRANSLATION_SOURCE_PATH; empty when the variable is
    // unset or empty.
    static QString sourceRootFromEnvironment();
};
