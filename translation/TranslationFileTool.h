#pragma once

#include "TextFileIo.h"

#include <QChar>
#include <QString>

#include <functional>

/*
  Works on Qt Linguist translation files (.ts) and on the product's header and
  source files: fills translations with a mock Swedish, repairs translation
  tags, counts things and rewrites tr( calls into QApplication::translate(.

  The results are those of the in-place QRegExp search-and-replace loops that
  define the tool, but every operation takes time proportional to the file
  size, also on malformed files (for example many <source> entries without a
  closing </translation>) and on one huge text.

  Files are decoded as a text stream decodes them: a byte-order mark picks
  UTF-8, UTF-16 or UTF-32, UTF-8 otherwise; output keeps the encoding of its
  input. Text that is not valid in its encoding is refused, never mangled.

  A .ts file in UTF-8 without a byte-order mark, the usual case, is never
  decoded: it is mapped into memory and processed as bytes, and its output
  refers to the unchanged runs of the input instead of copying them.
*/
class TranslationFileTool
{
public:
    enum Mode
    {
        FixTags = 0,    // output suffix ".fix"
        MockSwedish = 1 // output suffix ".swe"
    };

    // Receives the path of each header or source file just before it is rewritten.
    using FileProgress = std::function<void(const QString& filePath)>;
    using FileResult = TextFileIo::Result;
    // Receives the outcome for each header or source file once it was handled.
    using FileDone = std::function<void(const FileResult& result)>;

    TranslationFileTool();
    ~TranslationFileTool();

    // The whole file as text, read as a text-mode stream reads it (carriage returns
    // dropped); empty when the file cannot be read or decoded, is not a regular
    // file, is larger than 128 MiB, or its base name starts with "Rg" or "rg".
    QString readTranslationFile(const QString& filePath) const;
    // The same, saying why a file could not be read.
    FileResult readText(const QString& filePath, QString* text) const;

    // Writes filePath + ".fix" (mode 0) or ".swe" (mode 1); false when the input
    // is empty, unreadable or undecodable, the mode is unknown or the output
    // cannot be written completely (an earlier output is then kept as it was).
    bool processTsFile(const QString& filePath, int mode) const;
    // The same, saying what went wrong.
    FileResult processTs(const QString& filePath, int mode) const;

    // The text processTsFile() writes for the given content; an unknown mode
    // returns the content unchanged.
    QString processTsContent(const QString& content, int mode) const;
    // The same for valid UTF-8 content, without decoding it.
    QByteArray processTsUtf8(const QByteArray& content, int mode) const;

    QString mockSwedish(const QString& source) const;
    // The same for valid UTF-8 text, without decoding it.
    QByteArray mockSwedishUtf8(const QByteArray& source) const;
    bool isBlank(const QString& text) const;

    int countString(const QString& filePath, const QString& text) const;
    int countChar(const QString& filePath, QChar character) const;
    int countUnfinished(const QString& filePath) const;
    bool checkBraces(const QString& filePath) const;
    // True when every '>' closes an earlier '<' and none stays open.
    bool checkBracesInContent(const QString& content) const;

    // Rewrites the file in place; true when it holds no tr( call afterwards. A
    // file without a call keeps every byte; a rewritten one keeps its encoding
    // and line endings. A file that cannot be read or decoded is left alone, and
    // a failed write leaves the original as it was.
    bool replaceTrCalls(const QString& filePath) const;
    // The same, saying what went wrong; changed tells whether the file was written.
    FileResult rewriteTrCalls(const QString& filePath) const;

    // The text replaceTrCalls() writes for the given content and context name.
    QString replaceTrCallsInContent(const QString& content, const QString& context) const;

    // Runs replaceTrCalls() on every *.h and *.cpp file below dirPath, skipping
    // directories whose path contains "legacy" or "Legacy" and never following a
    // symbolic link. Returns the number of files rewritten.
    int processDirectory(const QString& dirPath, const FileProgress& onFile = FileProgress(),
                         const FileDone& onDone = FileDone()) const;

    // The root for processDirectory() from $VN_TRANSLATION_SOURCE_PATH; empty when
    // the variable is unset or empty.
    static QString sourceRootFromEnvironment();

private:
    static QString outputSuffix(int mode);
    // The output for the bytes of a .ts file (which may be changed), referring to them; the input's
    // encoding is kept.
    FileResult convertTs(QByteArray& bytes, int mode, GatheredBytes* output) const;
};
