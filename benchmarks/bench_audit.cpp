// Prints how long the look audit of every window takes (testwidgetcollection --audit, with its run
// at --scale 2 beside it), as wall clock and as processor time of both host processes, and what it
// found per check. Goal: under 10 s wall clock on a machine with two cores. On a busy machine the
// processor time is the figure to compare: the wall clock then also counts other processes.
// QT_QPA_PLATFORM=offscreen ./bench_audit [ROUNDS]
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <sys/resource.h>

namespace {
const double goalSeconds = 10.0;

double childProcessorSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) { return time.tv_sec + time.tv_usec / 1.0e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

QJsonObject summary(const QString& directory)
{
    QFile file(QDir(directory).filePath(QStringLiteral("audit.json")));
    if (!file.open(QIODevice::ReadOnly))
        return QJsonObject();
    return QJsonDocument::fromJson(file.readAll()).object().value(QStringLiteral("summary")).toObject();
}
} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    const int rounds = argc > 1 ? qMax(1, QByteArray(argv[1]).toInt()) : 3;
    double bestWall = 0;
    for (int round = 0; round < rounds; ++round) {
        QTemporaryDir directory;
        QProcess host;
        host.setStandardOutputFile(QProcess::nullDevice());
        host.setStandardErrorFile(QProcess::nullDevice());
        const double processorBefore = childProcessorSeconds();
        QElapsedTimer wall;
        wall.start();
        host.start(QStringLiteral(HOST_EXECUTABLE), {QStringLiteral("--audit"), directory.path()});
        if (!host.waitForFinished(600000) || host.exitStatus() != QProcess::NormalExit) {
            out << "the audit did not finish" << Qt::endl;
            return 1;
        }
        const double wallSeconds = wall.nsecsElapsed() / 1.0e9;
        const double processorSeconds = childProcessorSeconds() - processorBefore;
        bestWall = round == 0 ? wallSeconds : qMin(bestWall, wallSeconds);
        const QJsonObject counts = summary(directory.path());
        out << "round " << round + 1 << ": " << wallSeconds << " s wall clock, " << processorSeconds
            << " s processor time; findings " << counts.value(QStringLiteral("findings")).toInt() << " "
            << QJsonDocument(counts.value(QStringLiteral("byCheck")).toObject()).toJson(QJsonDocument::Compact)
            << ", tab stops " << counts.value(QStringLiteral("tabStops")).toInt() << Qt::endl;
    }
    out << "look audit of every window, best of " << rounds << ": " << bestWall << " s wall clock (goal < "
        << goalSeconds << " s)" << Qt::endl;
    return 0;
}
