#include "TranslationFileTool.h"

#include "MockSwedishTranslator.h"
#include "TranslationFileCounter.h"

TranslationFileTool::TranslationFileTool() = default;

TranslationFileTool::~TranslationFileTool() = default;

QString TranslationFileTool::readTranslationFile(const QString& filePath) const
{
    QString text;
    readText(filePath, &text);
    return text;
}

TranslationFileTool::FileResult TranslationFileTool::readText(const QString& filePath, QString* text) const
{
    return TextFileIo::readText(filePath, text);
}

bool TranslationFileTool::processTsFile(const QString& filePath, Mode mode) const
{
    return processTs(filePath, mode).ok();
}

TranslationFileTool::FileResult TranslationFileTool::processTs(const QString& filePath, Mode mode, Forms forms) const
{
    return TsFileRewriter().process(filePath, mode, forms);
}

QString TranslationFileTool::mockSwedish(const QString& source) const
{
    return MockSwedishTranslator().translate(source);
}

bool TranslationFileTool::isBlank(const QString& text) const
{
    return TsFileRewriter::isBlank(text);
}

int TranslationFileTool::countString(const QString& filePath, const QString& text) const
{
    return TranslationFileCounter().countString(filePath, text);
}

int TranslationFileTool::countChar(const QString& filePath, QChar character) const
{
    return TranslationFileCounter().countChar(filePath, character);
}

int TranslationFileTool::countUnfinished(const QString& filePath) const
{
    return TranslationFileCounter().countUnfinished(filePath);
}

bool TranslationFileTool::checkBraces(const QString& filePath) const
{
    return TranslationFileCounter().checkBraces(filePath);
}

bool TranslationFileTool::replaceTrCalls(const QString& filePath) const
{
    return rewriteTrCalls(filePath).ok();
}

TranslationFileTool::FileResult TranslationFileTool::rewriteTrCalls(const QString& filePath) const
{
    return TrCallRewriter().rewrite(filePath);
}

int TranslationFileTool::processDirectory(const QString& dirPath, const FileProgress& onFile,
                                          const FileDone& onDone) const
{
    return TrCallRewriter().rewriteTree(dirPath, onFile, onDone);
}

QString TranslationFileTool::sourceRootFromEnvironment()
{
    return TrCallRewriter::sourceRootFromEnvironment();
}
