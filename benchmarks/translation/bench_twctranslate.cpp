// Processor time and peak memory of twc-translate mock (also keeping the numerus forms) and fix on
// a generated 19 MiB .ts file, next to lconvert reading and writing the same file, all measured in
// one run as separate processes. Prints the figures and their ratios against the goals.

#include "GeneratedTs.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdio>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const int rounds = 5;
const double mockGoal = 0.25; // at most this share of lconvert's processor time
const double fixGoal = 0.20;
const double memoryGoal = 3.0; // peak memory at most this multiple of the file size

struct Usage
{
    double seconds = 0;   // user + system
    double megabytes = 0; // maximum resident set size
    bool succeeded = false;
};

// Runs program with its output discarded and returns what it used.
Usage run(const QString& program, const QStringList& arguments)
{
    std::vector<QByteArray> storage;
    storage.push_back(QFile::encodeName(program));
    for (const QString& argument : arguments)
        storage.push_back(QFile::encodeName(argument));
    std::vector<char*> argv;
    for (QByteArray& argument : storage)
        argv.push_back(argument.data());
    argv.push_back(nullptr);

    // fork(), not vfork(): a child that shares its parent's memory until exec() inherits the
    // parent's peak memory as its own.
    const pid_t child = fork();
    if (child == 0) {
        const int null = open("/dev/null", O_WRONLY);
        dup2(null, STDOUT_FILENO);
        dup2(null, STDERR_FILENO);
        execv(argv[0], argv.data());
        _exit(127);
    }
    Usage usage;
    int status = 0;
    rusage used{};
    if (child > 0 && wait4(child, &status, 0, &used) == child) {
        usage.seconds = double(used.ru_utime.tv_sec + used.ru_stime.tv_sec) +
                        double(used.ru_utime.tv_usec + used.ru_stime.tv_usec) / 1e6;
        usage.megabytes = double(used.ru_maxrss) / 1024.0; // kilobytes on Linux
        usage.succeeded = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    return usage;
}

// The least processor time of all rounds (other programs share the machine) and the most memory.
void keepBest(Usage& best, const Usage& measured, bool first)
{
    if (first || measured.seconds < best.seconds)
        best.seconds = measured.seconds;
    if (first || measured.megabytes > best.megabytes)
        best.megabytes = measured.megabytes;
    best.succeeded = (first || best.succeeded) && measured.succeeded;
}

QString findLconvert()
{
    const QString onPath = QStandardPaths::findExecutable(QStringLiteral("lconvert"));
    if (!onPath.isEmpty())
        return onPath;
    return QStandardPaths::findExecutable(QStringLiteral("lconvert"), {QStringLiteral("/usr/lib/qt5/bin")});
}

// Writes the input and returns its size, or -1. The generated text is gone again before any
// program is measured: a started process counts the memory it took over from this one.
qint64 writeGeneratedTs(const QString& path)
{
    const QByteArray ts = generateTs(20 * 1000 * 1000);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(ts) == ts.size() ? ts.size() : -1;
}

// Changes a file without changing its size.
void changeFirstByte(const QString& path)
{
    QFile file(path);
    char first = 0;
    if (file.open(QIODevice::ReadWrite) && file.getChar(&first) && file.seek(0))
        file.putChar(char(first ^ 1));
}

void printUsage(const char* name, const Usage& usage, double fileMegabytes)
{
    std::printf("%-46s %8.3f %10.1f %10.2f%s\n", name, usage.seconds, usage.megabytes, usage.megabytes / fileMegabytes,
                usage.succeeded ? "" : "  (failed)");
}

void printRatio(const QByteArray& what, double ratio, double goal)
{
    std::printf("%-74s %6.3f  goal at most %.2f: %s\n", what.constData(), ratio, goal,
                ratio <= goal ? "met" : "NOT met");
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QTemporaryDir workDir;
    if (!workDir.isValid()) {
        std::fprintf(stderr, "cannot create a temporary directory\n");
        return 1;
    }
    const QString input = workDir.filePath(QStringLiteral("generated.ts"));
    const qint64 size = writeGeneratedTs(input);
    if (size < 0) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(input));
        return 1;
    }
    const double fileMegabytes = size / (1024.0 * 1024.0);
    std::printf("input: generated .ts file of %lld bytes (%.2f MiB), best of %d rounds\n\n", size, fileMegabytes,
                rounds);

    const QString translate = QStringLiteral(TWC_TRANSLATE_EXECUTABLE);
    const QString lconvert = findLconvert();
    const QString swe = input + QStringLiteral(".swe");
    const QString fix = input + QStringLiteral(".fix");
    // What each run finds where its output goes.
    enum class Output
    {
        Absent,    // written anew, as on a first run
        Same,      // what the run writes: compared, not written
        Different, // another content of the same size: overwritten
    };
    struct Case
    {
        const char* name;
        QString program;
        QStringList arguments;
        QString output;
        Output found;
        double timeGoal;
        Usage usage;
    };
    const QStringList mockArguments = {QStringLiteral("mock"), input};
    const QStringList keepArguments = {QStringLiteral("mock"), QStringLiteral("--keep-numerus"), input};
    const QStringList fixArguments = {QStringLiteral("fix"), input};
    std::vector<Case> cases = {
        {"twc-translate mock FILE", translate, mockArguments, swe, Output::Absent, mockGoal, {}},
        {"twc-translate mock FILE, same output there", translate, mockArguments, swe, Output::Same, mockGoal, {}},
        {"twc-translate mock FILE, other output there", translate, mockArguments, swe, Output::Different, mockGoal, {}},
        {"twc-translate mock --keep-numerus FILE", translate, keepArguments, swe, Output::Absent, mockGoal, {}},
        {"twc-translate fix FILE", translate, fixArguments, fix, Output::Absent, fixGoal, {}},
        {"twc-translate fix FILE, same output there", translate, fixArguments, fix, Output::Same, fixGoal, {}},
        {"twc-translate fix FILE, other output there", translate, fixArguments, fix, Output::Different, fixGoal, {}},
    };
    if (!lconvert.isEmpty())
        cases.insert(cases.begin(),
                     {"lconvert -i FILE -o OUT",
                      lconvert,
                      {QStringLiteral("-i"), input, QStringLiteral("-o"), input + QStringLiteral(".out.ts")},
                      QString(),
                      Output::Same,
                      1.0,
                      {}});
    // Round after round, so that a busy spell of the machine hits every program alike.
    for (int round = 0; round < rounds; ++round) {
        for (Case& measured : cases) {
            if (measured.found == Output::Absent)
                QFile::remove(measured.output);
            else if (measured.found == Output::Different)
                changeFirstByte(measured.output);
            keepBest(measured.usage, run(measured.program, measured.arguments), round == 0);
        }
    }

    std::printf("%-46s %8s %10s %10s\n", "program", "cpu s", "max RSS MB", "RSS/file");
    for (const Case& measured : cases)
        printUsage(measured.name, measured.usage, fileMegabytes);
    std::printf("\n");
    const bool compared = !lconvert.isEmpty() && cases.front().usage.succeeded && cases.front().usage.seconds > 0;
    if (!compared)
        std::printf("lconvert is not available (install qttools5-dev-tools): the time ratios are skipped\n");
    bool succeeded = true;
    for (const Case& measured : cases) {
        if (measured.program != translate)
            continue;
        const QByteArray name(measured.name);
        if (compared)
            printRatio(name + ": processor time / lconvert's", measured.usage.seconds / cases.front().usage.seconds,
                       measured.timeGoal);
        printRatio(name + ": max RSS / file size", measured.usage.megabytes / fileMegabytes, memoryGoal);
        succeeded = succeeded && measured.usage.succeeded;
    }
    return succeeded ? 0 : 1;
}
