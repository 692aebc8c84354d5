#include "TranslationRunner.h"

#include "TranslationFileTool.h"
#include "TranslationMessages.h"

#include <QFileInfo>

namespace {
void addProblem(TranslationRunner::Result& result, const QString& problem)
{
    result.succeeded = false;
    if (!result.problem.isEmpty())
        result.problem += QLatin1Char('\n');
    result.problem += problem;
}
} // namespace

TranslationRunner::TranslationRunner(const TranslationFileTool& tool, Progress progress)
    : m_tool(tool)
    , m_progress(std::move(progress))
{}

TranslationRunner::Result TranslationRunner::runOnFile(int operation, const QString& filePath) const
{
    switch (operation) {
    case CountBraces:
    case CountNumerus:
    case CheckBraces:
    case CountUnfinished:
        return count(operation, filePath);
    case MockSwedish:
        return translate(TranslationFileTool::MockSwedish, filePath);
    default:
        return translate(TranslationFileTool::FixTags, filePath);
    }
}

TranslationRunner::Result TranslationRunner::count(int operation, const QString& filePath) const
{
    Result result;
    switch (operation) {
    case CountBraces:
        result.message = TranslationMessages::braceCounts(m_tool.countChar(filePath, QLatin1Char('<')),
                                                          m_tool.countChar(filePath, QLatin1Char('>')));
        break;
    case CountNumerus:
        result.message =
            TranslationMessages::numerusCount(m_tool.countString(filePath, QStringLiteral("numerus=\"yes\"")));
        break;
    case CheckBraces:
        result.message = TranslationMessages::braceCheck(m_tool.checkBraces(filePath));
        break;
    default:
        result.message = TranslationMessages::unfinishedCount(m_tool.countUnfinished(filePath));
        break;
    }
    // An unreadable file counts as empty; the counts above say so, the problem says why.
    const QString problem = readProblem(filePath);
    if (!problem.isEmpty())
        addProblem(result, problem);
    return result;
}

TranslationRunner::Result TranslationRunner::translate(int mode, const QString& filePath) const
{
    report(TranslationMessages::processing());
    Result result;
    const bool succeeded = m_tool.processTsFile(filePath, mode);
    result.message = TranslationMessages::translated(succeeded);
    if (succeeded)
        return result;
    QString problem = readProblem(filePath);
    if (problem.isEmpty() && m_tool.readTranslationFile(filePath).isEmpty())
        problem = QStringLiteral("\"%1\" is empty.").arg(filePath);
    if (problem.isEmpty()) {
        const QString suffix =
            mode == TranslationFileTool::MockSwedish ? QStringLiteral(".swe") : QStringLiteral(".fix");
        problem = QStringLiteral("\"%1\" could not be written.").arg(filePath + suffix);
    }
    addProblem(result, problem);
    return result;
}

TranslationRunner::Result TranslationRunner::rewriteFile(const QString& filePath) const
{
    report(TranslationMessages::processingFile(filePath));
    Result result;
    if (m_tool.replaceTrCalls(filePath))
        return result;
    QString problem = readProblem(filePath);
    if (problem.isEmpty() && QFileInfo(filePath).size() == 0)
        return result; // nothing to rewrite
    if (problem.isEmpty())
        problem =
            QStringLiteral("\"%1\" was left unchanged: it is not valid UTF-8 or could not be written.").arg(filePath);
    addProblem(result, problem);
    return result;
}

TranslationRunner::Result TranslationRunner::rewriteTree(const QString& root) const
{
    Result result;
    if (!QFileInfo(root).isDir())
        addProblem(result, QStringLiteral("\"%1\" is not a directory.").arg(root));
    m_tool.processDirectory(
        root, [this](const QString& filePath) { report(TranslationMessages::processingFile(filePath)); },
        [&result](const QString& filePath) {
            // Empty files need no rewrite, and "Rg" files are left out of every walk on purpose.
            if (QFileInfo(filePath).size() == 0 || isExcludedByName(filePath))
                return;
            QString problem = readProblem(filePath);
            if (problem.isEmpty())
                problem = QStringLiteral("\"%1\" was left unchanged: it is not valid UTF-8 or could not be written.")
                              .arg(filePath);
            addProblem(result, problem);
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

bool TranslationRunner::isExcludedByName(const QString& filePath)
{
    const QString baseName = QFileInfo(filePath).baseName();
    return baseName.startsWith(QLatin1String("Rg")) || baseName.startsWith(QLatin1String("rg"));
}

QString TranslationRunner::readProblem(const QString& filePath)
{
    const QFileInfo info(filePath);
    if (!info.exists())
        return QStringLiteral("\"%1\" does not exist.").arg(filePath);
    if (!info.isFile())
        return QStringLiteral("\"%1\" is not a regular file.").arg(filePath);
    if (!info.isReadable())
        return QStringLiteral("\"%1\" is not readable.").arg(filePath);
    if (info.size() > qint64(128) * 1024 * 1024)
        return QStringLiteral("\"%1\" is larger than 128 MiB.").arg(filePath);
    if (isExcludedByName(filePath))
        return QStringLiteral("\"%1\" was skipped: files whose names start with \"Rg\" or \"rg\" are never read.")
            .arg(filePath);
    return QString();
}

void TranslationRunner::report(const QString& message) const
{
    if (m_progress)
        m_progress(message);
}
