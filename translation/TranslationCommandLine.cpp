#include "TranslationCommandLine.h"

#include "TranslationFileTool.h"
#include "TranslationMessages.h"
#include "TranslationRunner.h"

#include <QTextStream>

#include <utility>

namespace {
const QLatin1String programName("twc-translate");
const QLatin1String rewriteMode("rewrite-tr");
const QLatin1String treeOption("--tree");
const QLatin1String mockMode("mock");
const QLatin1String keepNumerusOption("--keep-numerus");

// The modes in the order of the dialog's list; rewrite-tr stands for its whole-project entry.
const std::pair<QLatin1String, TranslationRunner::Operation> fileModes[] = {
    {QLatin1String("fix"), TranslationRunner::FixTags},
    {QLatin1String("mock"), TranslationRunner::MockSwedish},
    {QLatin1String("count-braces"), TranslationRunner::CountBraces},
    {QLatin1String("count-numerus"), TranslationRunner::CountNumerus},
    {QLatin1String("check-braces"), TranslationRunner::CheckBraces},
    {QLatin1String("count-unfinished"), TranslationRunner::CountUnfinished},
};

int operationOf(const QString& mode)
{
    for (const auto& entry : fileModes) {
        if (mode == entry.first)
            return entry.second;
    }
    return -1;
}
} // namespace

TranslationCommandLine::TranslationCommandLine(QTextStream& out, QTextStream& err)
    : m_out(out)
    , m_err(err)
{}

QString TranslationCommandLine::helpText()
{
    return QStringLiteral(
        "Usage: twc-translate MODE FILE...\n"
        "       twc-translate mock --keep-numerus FILE...\n"
        "       twc-translate rewrite-tr --tree [DIR]\n"
        "\n"
        "Runs the mock-translation tool on translation (.ts), header and source files and prints\n"
        "the texts that the translation dialog (\"Reg Exp\") shows, one result per file.\n"
        "\n"
        "Modes:\n"
        "  fix               repair the translation tags of a .ts file; writes FILE.fix\n"
        "  mock              fill the translations of a .ts file with mock Swedish; writes FILE.swe\n"
        "                    (as the dialog does: each translation becomes one text)\n"
        "  mock --keep-numerus\n"
        "                    the same, but a numerus message (numerus=\"yes\") keeps one <numerusform>\n"
        "                    per form it has (at least one), each with the mock Swedish of its\n"
        "                    source, and <lengthvariant> forms are kept alike. Use it when the .swe\n"
        "                    file goes to lrelease, which refuses a numerus message whose\n"
        "                    translation is one text: any lupdate output of code with tr(\"...%n...\")\n"
        "                    has such messages\n"
        "  count-braces      count the opening '<' and closing '>' angle brackets\n"
        "  count-numerus     count the numerus entries (numerus=\"yes\")\n"
        "  check-braces      check that the angle brackets balance\n"
        "  count-unfinished  count the unfinished translations\n"
        "  rewrite-tr        rewrite every tr( call of each FILE into QApplication::translate( with\n"
        "                    the file's base name as context; each FILE is rewritten in place, and\n"
        "                    a file without a call is left byte for byte as it was\n"
        "  rewrite-tr --tree [DIR]\n"
        "                    rewrite every .h and .cpp file below DIR, or below the directory in\n"
        "                    $VN_TRANSLATION_SOURCE_PATH; directories whose path contains \"legacy\"\n"
        "                    or \"Legacy\" are skipped, symbolic links are not followed\n"
        "\n"
        "Files whose names start with \"Rg\" or \"rg\" are never read. A byte-order mark selects\n"
        "UTF-8, UTF-16 or UTF-32, otherwise files are read as UTF-8; text that is not valid in its\n"
        "encoding is reported and never written. When a write fails (a full disk, for example),\n"
        "the earlier content of the file is kept.\n"
        "\n"
        "Options:\n"
        "  -h, --help        show this text\n"
        "  --                end of options: every later argument is a FILE\n"
        "\n"
        "Exit status: 0 when every file was processed, 1 when a file could not be processed or\n"
        "written or standard output could not be written, 2 on a usage error.\n");
}

int TranslationCommandLine::run(const QStringList& arguments)
{
    const QStringList rest = arguments.mid(1);
    if (rest.isEmpty())
        return usageError(QStringLiteral("no mode given."));
    // Asking for help wins wherever it stands before "--".
    const QStringList options = rest.mid(0, rest.indexOf(QStringLiteral("--")));
    if (options.contains(QStringLiteral("--help")) || options.contains(QStringLiteral("-h"))) {
        m_out << helpText();
        m_out.flush();
        return Success;
    }
    const QString& mode = rest.first();
    if (mode == rewriteMode && rest.value(1) == treeOption)
        return runOnTree(rest.mid(2));
    if (mode != rewriteMode && operationOf(mode) < 0)
        return usageError(QStringLiteral("unknown mode \"%1\".").arg(mode));

    QStringList files;
    bool optionsEnded = false;
    auto forms = TranslationFileTool::Forms::Flatten;
    for (const QString& argument : rest.mid(1)) {
        if (!optionsEnded && argument == QLatin1String("--")) {
            optionsEnded = true;
        } else if (!optionsEnded && argument == keepNumerusOption) {
            if (mode != mockMode)
                return usageError(QStringLiteral("--keep-numerus goes with mock only."));
            forms = TranslationFileTool::Forms::Keep;
        } else if (!optionsEnded && argument.startsWith(QLatin1Char('-')) && argument.size() > 1) {
            return usageError(argument == treeOption ? QStringLiteral("--tree goes right after rewrite-tr.")
                                                     : QStringLiteral("unknown option \"%1\".").arg(argument));
        } else {
            files << argument;
        }
    }
    if (files.isEmpty())
        return usageError(QStringLiteral("no FILE given."));
    return runOnFiles(mode, files, forms);
}

int TranslationCommandLine::runOnFiles(const QString& mode, const QStringList& files, TranslationFileTool::Forms forms)
{
    const TranslationFileTool tool;
    const TranslationRunner runner(tool, [this](const QString& message) { print(message); });
    const int operation = operationOf(mode);
    // The translating modes word their failure themselves; a count is no result when the file
    // could not be read.
    const bool messageOnFailure =
        operation == TranslationRunner::FixTags || operation == TranslationRunner::MockSwedish;
    int exitCode = Success;
    for (const QString& file : files) {
        const bool withHeader = files.size() > 1 && mode != rewriteMode;
        if (withHeader && messageOnFailure)
            print(file + QLatin1Char(':'));
        const TranslationRunner::Result result =
            mode == rewriteMode ? runner.rewriteFile(file)
                                : runner.runOnFile(TranslationRunner::Operation(operation), file, forms);
        if (result.succeeded || messageOnFailure) {
            if (withHeader && !messageOnFailure)
                print(file + QLatin1Char(':'));
            if (!result.message.isEmpty())
                print(result.message);
        }
        if (!result.succeeded) {
            printProblem(result.skipped.isEmpty() ? result.problem : result.skipped);
            exitCode = FileFailed;
        }
    }
    if (mode == rewriteMode && exitCode == Success)
        print(TranslationMessages::replacingFinished());
    return exitCode;
}

int TranslationCommandLine::runOnTree(const QStringList& arguments)
{
    if (arguments.size() > 1)
        return usageError(QStringLiteral("rewrite-tr --tree takes at most one DIR."));
    if (arguments.value(0).startsWith(QLatin1Char('-')))
        return usageError(QStringLiteral("unknown option \"%1\".").arg(arguments.value(0)));
    const TranslationFileTool tool;
    const TranslationRunner runner(tool, [this](const QString& message) { print(message); });
    const QString root = arguments.value(0);
    if (root.isEmpty() && TranslationFileTool::sourceRootFromEnvironment().isEmpty()) {
        print(TranslationMessages::sourcePathNotSet());
        return usageError(QStringLiteral("give DIR or set VN_TRANSLATION_SOURCE_PATH."));
    }
    const TranslationRunner::Result result = root.isEmpty() ? runner.rewriteWholeProject() : runner.rewriteTree(root);
    if (result.succeeded) {
        print(result.message);
        return Success;
    }
    printProblem(result.problem);
    return FileFailed;
}

void TranslationCommandLine::printProblem(const QString& problem)
{
    for (const QString& line : problem.split(QLatin1Char('\n')))
        m_err << programName << ": " << line << '\n';
    m_err.flush();
}

int TranslationCommandLine::usageError(const QString& problem)
{
    m_err << programName << ": " << problem << '\n'
          << "Usage: twc-translate MODE FILE... | twc-translate mock --keep-numerus FILE...\n"
          << "       | twc-translate rewrite-tr --tree [DIR]\n"
          << "Modes: fix, mock, count-braces, count-numerus, check-braces, count-unfinished, rewrite-tr.\n"
          << "Try \"twc-translate --help\" for more.\n";
    m_err.flush();
    return UsageError;
}

void TranslationCommandLine::print(const QString& message)
{
    m_out << message << '\n';
    m_out.flush();
}
