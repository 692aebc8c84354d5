#pragma once

#include "TextFileIo.h"
#include "TrCallRewriter.h"
#include "TsFileRewriter.h"

#include <QChar>
#include <QString>

/*
  Works on Qt Linguist translation files (.ts) and on the product's header and source files: fills
  translations with a mock Swedish, repairs translation tags, counts things and rewrites tr( calls
  into QApplication::translate(. The translation dialog owns one and calls its operations; each
  forwards to the class that does that job: TsFileRewriter (.ts files), TranslationFileCounter
  (counts and checks) and TrCallRewriter (tr( calls, one file or a tree).

  Files are decoded as a text stream decodes them: a byte-order mark picks UTF-8, UTF-16 or UTF-32,
  UTF-8 otherwise; output keeps the encoding of its input. Text that is not valid in its encoding
  is refused, never mangled. A file whose base name starts with "Rg" or "rg" is never read.
*/
class TranslationFileTool
{
public:
    using Mode = TsFileRewriter::Mode;
    static constexpr Mode FixTags = TsFileRewriter::FixTags;
    static constexpr Mode MockSwedish = TsFileRewriter::MockSwedish;
    using Forms = TsFileRewriter::Forms;
    using FileResult = TextFileIo::Result;
    using FileProgress = TrCallRewriter::FileProgress;
    using FileDone = TrCallRewriter::FileDone;

    TranslationFileTool();
    ~TranslationFileTool();

    // The whole file as text, read as a text-mode stream reads it (carriage returns dropped);
    // empty when the file cannot be read or decoded, is not a regular file, is larger than
    // 128 MiB, or its base name starts with "Rg" or "rg".
    QString readTranslationFile(const QString& filePath) const;
    // The same, saying why a file could not be read.
    FileResult readText(const QString& filePath, QString* text) const;

    // Writes filePath + ".fix" (FixTags) or ".swe" (MockSwedish); false when the input is empty,
    // unreadable or undecodable, the mode is unknown or the output cannot be written completely
    // (an earlier output is then kept as it was).
    bool processTsFile(const QString& filePath, Mode mode) const;
    // The same, saying what went wrong; mock Swedish may keep the numerus forms.
    FileResult processTs(const QString& filePath, Mode mode, Forms forms = Forms::Flatten) const;

    QString mockSwedish(const QString& source) const;
    bool isBlank(const QString& text) const;

    int countString(const QString& filePath, const QString& text) const;
    int countChar(const QString& filePath, QChar character) const;
    int countUnfinished(const QString& filePath) const;
    bool checkBraces(const QString& filePath) const;

    // Rewrites the file in place; true when it holds no tr( call afterwards.
    bool replaceTrCalls(const QString& filePath) const;
    // The same, saying what went wrong; changed tells whether the file was written.
    FileResult rewriteTrCalls(const QString& filePath) const;
    // Runs replaceTrCalls() on every header and source file below dirPath (see TrCallRewriter).
    int processDirectory(const QString& dirPath, const FileProgress& onFile = FileProgress(),
                         const FileDone& onDone = FileDone()) const;
    static QString sourceRootFromEnvironment();
};
