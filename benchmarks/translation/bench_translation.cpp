// Times every TranslationFileTool operation on generated .ts and .cpp files of
// 1 MB to 20 MB and on a malformed file, next to lconvert on the same input.

#include "GeneratedTs.h"
#include "TranslationFileTool.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <vector>

namespace {

const int runsPerMeasurement = 3;
const qint64 megabyte = 1000 * 1000;

struct Measurement
{
    QString input;
    double megabytes;
    QString operation;
    double milliseconds;
};

// Every <source> is followed by an opened but never closed translation.
QByteArray generateMalformedTs(qint64 size)
{
    QByteArray ts = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<TS version=\"2.1\">\n<context>\n";
    for (int index = 0; ts.size() < size; ++index)
        ts += "    <message>\n        <source>Open file " + QByteArray::number(index) +
              "</source>\n        <translation>Datei \xc3\xb6"
              "ffnen\n    </message>\n";
    return ts;
}

// One message whose source text is the whole file: the shape in which a replace loop that moves
// the rest of the text for every change turns quadratic.
QByteArray generateOneSourceTs(qint64 size)
{
    Generator generator;
    QByteArray source;
    while (source.size() < size)
        source += generator.sentence(8) + '\n';
    return "<TS>\n<message>\n<source>" + source +
           "</source>\n<translation type=\"unfinished\"></translation>\n"
           "</message>\n</TS>\n";
}

QByteArray generateCpp(qint64 size)
{
    Generator generator;
    QByteArray cpp = "#include \"Dialog.h\"\n\nvoid Dialog::retranslate()\n{\n";
    while (cpp.size() < size) {
        cpp += "    m_label->setText(tr(\"" + generator.sentence(6) + "\"));\n";
        cpp += "    m_button->setToolTip(tr (\"" + generator.sentence(4) + "\").arg(m_attr(1)));\n";
        cpp += "    const int width = attr(m_value) + str(2);\n";
    }
    return cpp + "}\n";
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

double bestMilliseconds(const std::function<void()>& prepare, const std::function<void()>& run)
{
    double best = 0;
    for (int attempt = 0; attempt < runsPerMeasurement; ++attempt) {
        prepare();
        QElapsedTimer timer;
        timer.start();
        run();
        const double elapsed = timer.nsecsElapsed() / 1e6;
        if (attempt == 0 || elapsed < best)
            best = elapsed;
    }
    return best;
}

QString findLconvert()
{
    const QString onPath = QStandardPaths::findExecutable(QStringLiteral("lconvert"));
    if (!onPath.isEmpty())
        return onPath;
    return QStandardPaths::findExecutable(QStringLiteral("lconvert"), {QStringLiteral("/usr/lib/qt5/bin")});
}

void measureTs(const TranslationFileTool& tool, const QString& path, const QString& label, double megabytes,
               const QString& lconvert, std::vector<Measurement>& results)
{
    const auto nothing = [] {};
    const std::vector<std::pair<QString, std::function<void()>>> operations = {
        {"fix", [&] { tool.processTsFile(path, TranslationFileTool::FixTags); }},
        {"mock", [&] { tool.processTsFile(path, TranslationFileTool::MockSwedish); }},
        {"count braces",
         [&] {
             tool.countChar(path, '<');
             tool.countChar(path, '>');
         }},
        {"count numerus", [&] { tool.countString(path, QStringLiteral("numerus=\"yes\"")); }},
        {"check braces", [&] { tool.checkBraces(path); }},
        {"count unfinished", [&] { tool.countUnfinished(path); }},
    };
    // An output that is already there with the same bytes is not written again; time the writing.
    const auto removeOutputs = [&] {
        QFile::remove(path + QStringLiteral(".fix"));
        QFile::remove(path + QStringLiteral(".swe"));
    };
    for (const auto& operation : operations)
        results.push_back({label, megabytes, operation.first, bestMilliseconds(removeOutputs, operation.second)});
    const double rewrite = bestMilliseconds(nothing, operations.at(1).second);
    results.push_back({label, megabytes, QStringLiteral("mock, same output"), rewrite});
    if (lconvert.isEmpty())
        return;
    const auto convert = [&] {
        QProcess process;
        process.start(lconvert, {QStringLiteral("-i"), path, QStringLiteral("-o"), path + ".lconvert.ts"});
        process.waitForFinished(-1);
    };
    results.push_back({label, megabytes, QStringLiteral("lconvert"), bestMilliseconds(nothing, convert)});
}

void printResults(const std::vector<Measurement>& results)
{
    std::printf("\n%-16s %9s  %-17s %10s %9s\n", "input", "size MB", "operation", "time ms", "MB/s");
    for (const Measurement& result : results) {
        std::printf("%-16s %9.2f  %-17s %10.2f %9.1f\n", qPrintable(result.input), result.megabytes,
                    qPrintable(result.operation), result.milliseconds, result.megabytes * 1000.0 / result.milliseconds);
    }
}

// The 20 MB times of fix and mock as fractions of lconvert's time on the same file.
void printLconvertRatios(const std::vector<Measurement>& results)
{
    const auto timeOf = [&](const QString& operation) {
        for (const Measurement& result : results) {
            if (result.input == QLatin1String("ts 20 MB") && result.operation == operation)
                return result.milliseconds;
        }
        return 0.0;
    };
    const double lconvert = timeOf(QStringLiteral("lconvert"));
    if (lconvert <= 0)
        return;
    std::printf("\nts 20 MB, share of lconvert's time: fix %.2f (goal 0.20), mock %.2f (goal 0.25)\n",
                timeOf(QStringLiteral("fix")) / lconvert, timeOf(QStringLiteral("mock")) / lconvert);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir workDir;
    if (!workDir.isValid()) {
        std::fprintf(stderr, "cannot create a temporary directory\n");
        return 1;
    }
    const QString lconvert = findLconvert();
    const TranslationFileTool tool;
    std::vector<Measurement> results;

    for (const int sizeMb : {1, 2, 5, 10, 20}) {
        const QString label = QStringLiteral("ts %1 MB").arg(sizeMb);
        const QString tsPath = workDir.filePath(QStringLiteral("generated_%1.ts").arg(sizeMb));
        const QByteArray ts = generateTs(sizeMb * megabyte);
        if (!writeFile(tsPath, ts))
            return 1;
        measureTs(tool, tsPath, label, ts.size() / double(megabyte), lconvert, results);

        const QString cppPath = workDir.filePath(QStringLiteral("Generated%1.cpp").arg(sizeMb));
        const QByteArray cpp = generateCpp(sizeMb * megabyte);
        const double cppMs = bestMilliseconds([&] { writeFile(cppPath, cpp); }, [&] { tool.replaceTrCalls(cppPath); });
        results.push_back({QStringLiteral("cpp %1 MB").arg(sizeMb), cpp.size() / double(megabyte),
                           QStringLiteral("replaceTrCalls"), cppMs});
    }

    const QString malformedPath = workDir.filePath(QStringLiteral("malformed.ts"));
    const QByteArray malformed = generateMalformedTs(400 * 1000);
    if (!writeFile(malformedPath, malformed))
        return 1;
    measureTs(tool, malformedPath, QStringLiteral("malformed 400 KB"), malformed.size() / double(megabyte), QString(),
              results);

    for (const int sizeMb : {8, 32}) {
        const QString path = workDir.filePath(QStringLiteral("onesource_%1.ts").arg(sizeMb));
        const QByteArray ts = generateOneSourceTs(sizeMb * megabyte);
        if (!writeFile(path, ts))
            return 1;
        const double ms = bestMilliseconds([&] { QFile::remove(path + QStringLiteral(".swe")); },
                                           [&] { tool.processTsFile(path, TranslationFileTool::MockSwedish); });
        results.push_back(
            {QStringLiteral("one source %1 MB").arg(sizeMb), ts.size() / double(megabyte), QStringLiteral("mock"), ms});
    }

    printResults(results);
    printLconvertRatios(results);
    if (lconvert.isEmpty())
        std::printf("lconvert: not found\n");
    else
        std::printf("lconvert: %s\n", qPrintable(lconvert));
    return 0;
}
