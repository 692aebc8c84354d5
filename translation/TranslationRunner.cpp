#include "TranslationRunner.h"

#include "StandardOutput.h"
#include "TranslationFileCounter.h"
#include "TranslationFileTool.h"
#include "TranslationMessages.h"

#include <QFileInfo>

#include <utility>

namespace {
void addProblem(TranslationRunner::Result& result, const QString& problem)
{
    result.succeeded = false;
    if (!result.problem.isEmpty())
        result.problem += QLatin1Char('\n');
    result.problem += problem;
}

void noteSkipped(const TextFileIo::Result& outcome)
{
    StandardOutput::printLine(TranslationMessages::fileProblem(outcome).toLocal8Bit());
}

void addFailure(TranslationRunner::Result& result, const TextFileIo::Result& outcome)
{
    if (outcome.status != TextFileIo::Status::Excluded) {
        addProblem(result, TranslationMessages::fileProblem(outcome));
        return;
    }
    result.succeeded = false;
    result.skipped = TranslationMessages::fileProblem(outcome);
    noteSkipped(outcome);
}
} // namespace

TranslationRunner::TranslationRunner(const TranslationFileTool& tool, Progress progress)
    : m_tool(tool)
    , m_progress(std::move(progress))
{}

TranslationRunner::Result TranslationRunner::runOnFile(Operation operation, const QString& filePath,
                                                       TranslationFileTool::Forms forms) const
{
    switch (operation) {
    case CountBraces:
    case CountNumerus:
    case CheckBraces:
    case CountUnfinished:
        return count(operation, filePath);
    case MockSwedish:
        return translate(TranslationFileTool::MockSwedish, forms, filePath);
    default:
        return translate(TranslationFileTool::FixTags, forms, filePath);
    }
}

TranslationRunner::Result TranslationRunner::count(Operation operation, const QString& filePath) const
{
    QString content;
    const TextFileIo::Result read = m_tool.readText(filePath, &content);
    Result result;
    switch (operation) {
    case CountBraces:
        result.message =
            TranslationMessages::braceCounts(content.count(QLatin1Char('<')), content.count(QLatin1Char('>')));
        break;
    case CountNumerus:
        result.message = TranslationMessages::numerusCount(TranslationFileCounter::numerusIn(content));
        break;
    case CheckBraces:
        result.message = TranslationMessages::braceCheck(TranslationFileCounter::bracesBalanceIn(content));
        break;
    default:
        result.message = TranslationMessages::unfinishedCount(TranslationFileCounter::unfinishedIn(content));
        break;
    }
    // An unreadable file counts as empty; the problem says why.
    if (!read.ok())
        addFailure(result, read);
    return result;
}

TranslationRunner::Result TranslationRunner::translate(TranslationFileTool::Mode mode, TranslationFileTool::Forms forms,
                                                       const QString& filePath) const
{
    report(TranslationMessages::processing());
    Result result;
    const TextFileIo::Result processed = m_tool.processTs(filePath, mode, forms);
    result.message = TranslationMessages::translated(processed.ok());
    if (!processed.ok())
        addFailure(result, processed);
    return result;
}

TranslationRunner::Result TranslationRunner::rewriteFile(const QString& filePath) const
{
    report(TranslationMessages::processingFile(filePath));
    Result result;
    const TextFileIo::Result rewritten = m_tool.rewriteTrCalls(filePath);
    if (!rewritten.ok())
        addFailure(result, rewritten);
    return result;
}

TranslationRunner::Result TranslationRunner::rewriteTree(const QString& root) const
{
    Result result;
    if (!QFileInfo(root).isDir()) {
        addProblem(result, TranslationMessages::notADirectory(root));
        return result;
    }
    m_tool.processDirectory(
        root, [this](const QString& filePath) { report(TranslationMessages::processingFile(filePath)); },
        [&result](const TextFileIo::Result& done) {
            // "Rg" files are left out of every walk on purpose: no failure.
            if (done.status == TextFileIo::Status::Excluded)
                noteSkipped(done);
            else if (!done.ok())
                addProblem(result, TranslationMessages::fileProblem(done));
        });
    result.message = TranslationMessages::replacingFinished();
    return result;
}

TranslationRunner::Result TranslationRunner::rewriteWholeProject() const
{
    const QString root = TranslationFileTool::sourceRootFromEnvironment();
    if (!root.isEmpty())
        return rewriteTree(root);
    Result result;
    result.message = TranslationMessages::sourcePathNotSet();
    result.succeeded = false;
    return result;
}

QString TranslationRunner::Result::shownText() const
{
    if (succeeded || problem.isEmpty())
        return message;
    return message.isEmpty() ? problem : message + QLatin1Char('\n') + problem;
}

void TranslationRunner::report(const QString& message) const
{
    if (m_progress)
        m_progress(message);
}
