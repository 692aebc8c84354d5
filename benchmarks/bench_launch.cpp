// Measures in real processes, from process start until a window is mapped on the X server, what a
// user waits for: a trivial Qt window that this program builds itself, the panel of the host
// application, and the first open of each dialog (with the host's --open, less the panel's start). The X server reports
// each mapping to this program, so nothing in the measured processes is changed or trusted. Without a display it runs
// itself under xvfb-run. Prints the median of RUNS runs (default 7) of each, and the goals: the panel at most 1.1 times
// the trivial window, the status gallery's first open at most 50 ms.
//   ./bench_launch [--host PATH] [RUNS [BUTTON...]]
#include <QApplication>
#include <QCoreApplication>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <dlfcn.h>
#include <fstream>
#include <poll.h>
#include <string>

namespace {
const int defaultRuns = 7;
const double goalPanelRatio = 1.1;
const double goalGalleryMs = 50.0;
const char galleryButton[] = "m_testSquish";
const int windowTimeoutMs = 5000;
const char trivialOption[] = "--trivial";
const char withoutOpenGlOption[] = "--without-opengl";
const char underXvfbVariable[] = "TWC_BENCH_UNDER_XVFB";

using Clock = std::chrono::steady_clock;

double msBetween(Clock::time_point from, Clock::time_point to)
{
    return std::chrono::duration<double, std::milli>(to - from).count();
}

double median(QList<double> values)
{
    if (values.isEmpty())
        return -1.0;
    std::sort(values.begin(), values.end());
    const int middle = values.size() / 2;
    return values.size() % 2 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2.0;
}

// The few calls of libxcb that watch the root window for mapped windows. The library is loaded at
// run time, so that building this program needs no X development files.
class MapWatch
{
public:
    MapWatch()
    {
        m_library = dlopen("libxcb.so.1", RTLD_NOW);
        if (!m_library || !resolveAll())
            return;
        // The default screen of a virtual server is its first one.
        m_connection = m_connect(nullptr, nullptr);
        if (!m_connection || m_hasError(m_connection)) {
            m_connection = nullptr;
            return;
        }
        const ScreenIterator roots = m_rootsIterator(m_getSetup(m_connection));
        const uint32_t substructureNotify = 1u << 19;
        const uint32_t eventMaskAttribute = 1u << 11;
        m_changeAttributes(m_connection, *static_cast<const uint32_t*>(roots.data), eventMaskAttribute,
                           &substructureNotify);
        m_flush(m_connection);
    }

    ~MapWatch()
    {
        if (m_connection)
            m_disconnect(m_connection);
        if (m_library)
            dlclose(m_library);
    }

    bool isValid() const { return m_connection != nullptr; }

    // Waits until a new top-level window (not a pop-up) is mapped and returns when that was, or
    // nothing when none was mapped in time.
    bool waitForMappedWindow(Clock::time_point* mappedAt)
    {
        const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(windowTimeoutMs);
        while (Clock::now() < deadline) {
            while (void* event = m_pollForEvent(m_connection)) {
                const bool mapped = isMapOfTopLevel(static_cast<const uint8_t*>(event));
                std::free(event);
                if (mapped) {
                    *mappedAt = Clock::now();
                    return true;
                }
            }
            pollfd descriptor{m_fileDescriptor(m_connection), POLLIN, 0};
            poll(&descriptor, 1, 50);
        }
        return false;
    }

    void discardEvents()
    {
        while (void* event = m_pollForEvent(m_connection))
            std::free(event);
    }

private:
    struct ScreenIterator
    {
        const void* data; // the screen, whose first member is its root window
        int rem;
        int index;
    };

    static bool isMapOfTopLevel(const uint8_t* event)
    {
        const uint8_t mapNotify = 19;
        const int overrideRedirectOffset = 12;
        return (event[0] & 0x7f) == mapNotify && !event[overrideRedirectOffset];
    }

    template<typename Function>
    bool resolve(Function& function, const char* name)
    {
        function = reinterpret_cast<Function>(dlsym(m_library, name));
        return function != nullptr;
    }

    bool resolveAll()
    {
        return resolve(m_connect, "xcb_connect") && resolve(m_hasError, "xcb_connection_has_error") &&
               resolve(m_getSetup, "xcb_get_setup") && resolve(m_rootsIterator, "xcb_setup_roots_iterator") &&
               resolve(m_changeAttributes, "xcb_change_window_attributes") && resolve(m_flush, "xcb_flush") &&
               resolve(m_pollForEvent, "xcb_poll_for_event") && resolve(m_fileDescriptor, "xcb_get_file_descriptor") &&
               resolve(m_disconnect, "xcb_disconnect");
    }

    void* m_library = nullptr;
    void* m_connection = nullptr;
    void* (*m_connect)(const char*, int*) = nullptr;
    int (*m_hasError)(void*) = nullptr;
    const void* (*m_getSetup)(void*) = nullptr;
    ScreenIterator (*m_rootsIterator)(const void*) = nullptr;
    unsigned (*m_changeAttributes)(void*, uint32_t, uint32_t, const uint32_t*) = nullptr;
    int (*m_flush)(void*) = nullptr;
    void* (*m_pollForEvent)(void*) = nullptr;
    int (*m_fileDescriptor)(void*) = nullptr;
    void (*m_disconnect)(void*) = nullptr;
};

// The window a minimal Qt program shows: the yardstick for the panel.
int showTrivialWindow(int argc, char* argv[])
{
    if (argc > 2 && qstrcmp(argv[2], withoutOpenGlOption) == 0)
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    QApplication application(argc, argv);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QPushButton(QStringLiteral("Trivial"), &window));
    window.resize(706, 636);
    window.show();
    return QApplication::exec();
}

struct Launch
{
    QString program;
    QStringList arguments;
};

// One mapped window: wall-clock time since the process was started and processor time that the
// process's main thread had used by then. On a busy machine the second is the steadier figure.
struct Sample
{
    double wallMs;
    double processorMs;
};

double mainThreadProcessorMs(qint64 pid)
{
    std::ifstream schedstat("/proc/" + std::to_string(pid) + "/schedstat");
    double nanoseconds = -1.0e6;
    schedstat >> nanoseconds;
    return nanoseconds / 1.0e6;
}

// Starts the program and returns its first `windows` mapped windows, each measured from the start;
// empty when fewer appeared in time.
QList<Sample> mappedWindows(MapWatch& watch, const Launch& launch, int windows)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    watch.discardEvents();
    const Clock::time_point started = Clock::now();
    process.start(launch.program, launch.arguments);
    QList<Sample> samples;
    Clock::time_point mappedAt;
    while (samples.size() < windows && watch.waitForMappedWindow(&mappedAt))
        samples << Sample{msBetween(started, mappedAt), mainThreadProcessorMs(process.processId())};
    process.kill();
    process.waitForFinished();
    return samples.size() == windows ? samples : QList<Sample>();
}

struct Medians
{
    double wallMs = -1.0;
    double processorMs = -1.0;
};

// The median of each figure of the `window`th window over the runs (counted from 1).
Medians mediansOf(const QList<QList<Sample>>& runs, int window)
{
    QList<double> wall;
    QList<double> processor;
    for (const QList<Sample>& run : runs) {
        if (run.size() >= window) {
            wall << run.at(window - 1).wallMs;
            processor << run.at(window - 1).processorMs;
        }
    }
    return {median(wall), median(processor)};
}

// Runs this program again under a virtual X server when there is no display.
int runUnderXvfb(const QStringList& arguments)
{
    const QString xvfbRun = QStandardPaths::findExecutable(QStringLiteral("xvfb-run"));
    if (xvfbRun.isEmpty() || qEnvironmentVariableIsSet(underXvfbVariable)) {
        QTextStream(stderr) << "bench_launch: needs an X display or xvfb-run (Debian package xvfb).\n";
        return 1;
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(underXvfbVariable), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(xvfbRun,
                  QStringList{QStringLiteral("-a"), QStringLiteral("-s"), QStringLiteral("-screen 0 1600x1200x24"),
                              QCoreApplication::applicationFilePath()} +
                      arguments.mid(1));
    process.waitForFinished(-1);
    return process.exitCode();
}

QStringList hostButtons(const QString& host)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.start(host, {QStringLiteral("--list")});
    process.waitForFinished();
    QStringList names;
    const QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (!line.isEmpty())
            names << line.section(QLatin1Char('\t'), 0, 0);
    }
    return names;
}

class Benchmark
{
public:
    Benchmark(const QString& host, int runs)
        : m_host(host)
        , m_runs(runs)
        , m_out(stdout)
    {}

    void measureStart(MapWatch& watch)
    {
        const Launch trivial{QCoreApplication::applicationFilePath(), {QLatin1String(trivialOption)}};
        const Launch trivialWithoutOpenGl{QCoreApplication::applicationFilePath(),
                                          {QLatin1String(trivialOption), QLatin1String(withoutOpenGlOption)}};
        const Launch panel{m_host, {}};
        mappedWindows(watch, trivial, 1); // the first start fills the file cache for both
        mappedWindows(watch, panel, 1);
        QList<QList<Sample>> trivialRuns;
        QList<QList<Sample>> plainRuns;
        QList<QList<Sample>> panelRuns;
        for (int run = 0; run < m_runs; ++run) {
            trivialRuns << mappedWindows(watch, trivial, 1);
            plainRuns << mappedWindows(watch, trivialWithoutOpenGl, 1);
            panelRuns << mappedWindows(watch, panel, 1);
        }
        const Medians yardstick = mediansOf(trivialRuns, 1);
        const Medians plain = mediansOf(plainRuns, 1);
        m_panel = mediansOf(panelRuns, 1);
        m_out << QStringLiteral("process start to window mapped, median of %1 runs (wall clock; processor time "
                                "of the main thread):\n")
                     .arg(m_runs);
        m_out << QStringLiteral("  trivial Qt window %1 ms; %2 ms\n")
                     .arg(yardstick.wallMs, 7, 'f', 1)
                     .arg(yardstick.processorMs, 7, 'f', 1);
        m_out << QStringLiteral("  panel             %1 ms; %2 ms: %3 times the trivial window by the clock, %4 "
                                "by processor time (goal at most %5)\n")
                     .arg(m_panel.wallMs, 7, 'f', 1)
                     .arg(m_panel.processorMs, 7, 'f', 1)
                     .arg(m_panel.wallMs / yardstick.wallMs, 0, 'f', 2)
                     .arg(m_panel.processorMs / yardstick.processorMs, 0, 'f', 2)
                     .arg(goalPanelRatio, 0, 'f', 1);
        // The host skips the X server's OpenGL integration; like for like, the panel's own cost.
        m_out << QStringLiteral("  trivial Qt window without OpenGL integration %1 ms; %2 ms: the panel is %3 times "
                                "that by the clock, %4 by processor time\n")
                     .arg(plain.wallMs, 0, 'f', 1)
                     .arg(plain.processorMs, 0, 'f', 1)
                     .arg(m_panel.wallMs / plain.wallMs, 0, 'f', 2)
                     .arg(m_panel.processorMs / plain.processorMs, 0, 'f', 2);
        m_out.flush();
    }

    // The host shows the panel and clicks the button before it first waits for events, so the X server
    // may see the panel and the dialog mapped at once: the first open is the time until the dialog is
    // mapped less the panel's own start.
    void measureFirstOpens(MapWatch& watch, const QStringList& buttons)
    {
        m_out << QStringLiteral("first open: process start to the dialog mapped with --open, less the panel's start, "
                                "median of %1 runs (wall clock; processor time):\n")
                     .arg(m_runs);
        for (const QString& button : buttons) {
            const Launch open{m_host, {QStringLiteral("--open"), button}};
            QList<QList<Sample>> runs;
            for (int run = 0; run < m_runs; ++run) {
                runs << mappedWindows(watch, open, 2);
                if (runs.last().isEmpty())
                    break; // the button shows no window of its own (the loupe)
            }
            if (runs.last().isEmpty())
                continue;
            const Medians dialog = mediansOf(runs, 2);
            m_out << QStringLiteral("  %1 %2 ms; %3 ms")
                         .arg(button, -28)
                         .arg(dialog.wallMs - m_panel.wallMs, 7, 'f', 1)
                         .arg(dialog.processorMs - m_panel.processorMs, 7, 'f', 1);
            if (button == QLatin1String(galleryButton))
                m_out << QStringLiteral(" (goal at most %1 ms)").arg(goalGalleryMs, 0, 'f', 0);
            m_out << '\n';
            m_out.flush();
        }
    }

private:
    QString m_host;
    int m_runs;
    Medians m_panel;
    QTextStream m_out;
};
} // namespace

int main(int argc, char* argv[])
{
    if (argc > 1 && qstrcmp(argv[1], trivialOption) == 0)
        return showTrivialWindow(argc, argv);
    QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    QString host = QStringLiteral(TWC_HOST_EXECUTABLE);
    if (arguments.size() > 2 && arguments.at(1) == QLatin1String("--host")) {
        host = arguments.at(2);
        arguments.erase(arguments.begin() + 1, arguments.begin() + 3);
    }
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        return runUnderXvfb(QCoreApplication::arguments());
    bool ok = true;
    const int runs = arguments.size() > 1 ? arguments.at(1).toInt(&ok) : defaultRuns;
    if (!ok || runs < 1) {
        QTextStream(stderr) << "usage: bench_launch [--host PATH] [RUNS [BUTTON...]]\n";
        return 2;
    }
    MapWatch watch;
    if (!watch.isValid()) {
        QTextStream(stderr) << "bench_launch: cannot watch the X display for mapped windows.\n";
        return 1;
    }
    Benchmark benchmark(host, runs);
    benchmark.measureStart(watch);
    const QStringList named = arguments.mid(2);
    benchmark.measureFirstOpens(watch, named.isEmpty() ? hostButtons(host) : named);
    return 0;
}
