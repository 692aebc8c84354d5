// Opens and closes every window of the panel through its own buttons (those of the launcher
// table), round after round, then destroys the panel, and prints the resident memory after each
// round and the mean growth per round after the first one (goal: under 50 KB). Built with TWC_SANITIZE, LeakSanitizer
// checks at exit that nothing was lost. Naming buttons limits the rounds to them, to find what grows. Run it headless:
//   QT_QPA_PLATFORM=offscreen ./bench_leakrounds [ROUNDS [BUTTON...]]
#include "LauncherTable.h"
#include "TestWidgetCollection.h"
#include "WindowWalk.h"

#include <VNStyleSheet.h>

#include <QApplication>
#include <QPixmapCache>
#include <QPointer>
#include <QPushButton>
#include <QTextStream>

#include <fstream>
#include <unistd.h>

namespace {
const int defaultRounds = 50;
const double goalKilobytesPerRound = 50.0;
// How often a window that runs modally is looked for, so that it is ended instead of blocking.
const int modalWatchIntervalMs = 50;

using WindowList = QList<QPointer<QWidget>>;

double residentKilobytes()
{
    std::ifstream statm("/proc/self/statm");
    long totalPages = 0;
    long residentPages = 0;
    statm >> totalPages >> residentPages;
    return double(residentPages) * double(sysconf(_SC_PAGESIZE)) / 1024.0;
}

void processEverything()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Clicks one button and closes every window that the click showed (the panel stays, also when the
// loupe went into it), returning them.
WindowList openAndClose(const WindowWalk& walk, QPushButton* button)
{
    WindowList opened;
    walk.click(button, [&](QWidget* window, int) {
        if (window != button->window())
            opened << window;
        return true;
    });
    processEverything();
    for (const QPointer<QWidget>& window : opened) {
        if (window)
            window->close();
    }
    processEverything();
    return opened;
}

// A button that makes a new window on every click leaves the earlier one to the panel, which would
// keep it until it goes; it is deleted here once a newer one has replaced it. Windows the panel
// shows again (its kept ones) stay, as they do for a user.
bool makesNewWindows(const QPushButton* button)
{
    const LauncherTable::Entry* entry = LauncherTable::find(button->objectName());
    return entry &&
           (entry->policy == LauncherTable::Policy::NewEachClick || entry->policy == LauncherTable::Policy::RunAtOnce);
}

void deleteReplacedWindows(WindowList& previous, const WindowList& opened)
{
    for (const QPointer<QWidget>& window : previous) {
        if (window && !opened.contains(window))
            delete window.data();
    }
    previous = opened;
}

int roundsFromArguments(const QStringList& arguments)
{
    bool ok = false;
    const int rounds = arguments.size() > 1 ? arguments.at(1).toInt(&ok) : defaultRounds;
    return arguments.size() > 1 && (!ok || rounds < 2) ? -1 : rounds;
}
} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QTextStream out(stdout);
    const int rounds = roundsFromArguments(QCoreApplication::arguments());
    if (rounds < 0) {
        QTextStream(stderr) << "usage: bench_leakrounds [ROUNDS [BUTTON...]] (at least 2 rounds, default "
                            << defaultRounds << ")\n";
        return 2;
    }

    VNStyleSheet::applyTo(&application);
    auto* panel = new TestWidgetCollection(nullptr, Qt::WindowFlags());
    panel->show();
    processEverything();
    const QList<QPushButton*> buttons = WindowWalk::buttons(*panel, QCoreApplication::arguments().mid(2));
    const WindowWalk walk(modalWatchIntervalMs);
    QHash<QPushButton*, WindowList> windowsByButton;

    out << QStringLiteral("%1 panel buttons, %2 rounds; resident memory after each round:\n")
               .arg(buttons.size())
               .arg(rounds);
    QList<double> resident;
    for (int round = 1; round <= rounds; ++round) {
        for (QPushButton* button : buttons) {
            const WindowList opened = openAndClose(walk, button);
            if (makesNewWindows(button))
                deleteReplacedWindows(windowsByButton[button], opened);
        }
        processEverything();
        // Qt keeps what it renders of each icon in its pixmap cache under a key of that icon, up to
        // QPixmapCache::cacheLimit() (10 MB): windows made anew every round fill it with entries never
        // asked for again. Emptied before each reading, so that the figure is what the windows keep.
        QPixmapCache::clear();
        resident << residentKilobytes();
        out << QStringLiteral("  round %1: %2 KB\n").arg(round, 2).arg(resident.last(), 0, 'f', 0);
        out.flush();
    }

    delete panel;
    processEverything();
    out << QStringLiteral("after destroying the panel: %1 KB\n").arg(residentKilobytes(), 0, 'f', 0);
    const double growth = (resident.last() - resident.first()) / (rounds - 1);
    out << QStringLiteral("mean growth per round after the first: %1 KB (goal under %2 KB)\n")
               .arg(growth, 0, 'f', 1)
               .arg(goalKilobytesPerRound, 0, 'f', 0);
    return 0;
}
