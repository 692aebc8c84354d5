// Prints what the widget status gallery costs: opening it, applying one status word to its busiest
// tab (the tab with the most widgets), and the memory that 20 open/close cycles leave behind.
// Goals: open < 150 ms, one status word < 30 ms, growth < 1 MB. Run it headless:
// QT_QPA_PLATFORM=offscreen ./bench_gallery
#include "TestSquish.h"
#include "TestWidgetCollection.h"

#include <VNStyleSheet.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPixmapCache>
#include <QPushButton>
#include <QTabWidget>
#include <QTextStream>

#include <algorithm>
#if defined(__GLIBC__)
#include <malloc.h>
#endif
#include <ctime>

namespace {
const int openCycles = 20;

// Wall-clock and processor time of one measurement. On a busy machine the processor time is the
// figure to compare with the goals: the wall clock then also counts other processes.
struct Stopwatch
{
    QElapsedTimer wall;
    std::clock_t cpu = 0;

    Stopwatch()
    {
        wall.start();
        cpu = std::clock();
    }
    double wallMs() const { return wall.nsecsElapsed() / 1.0e6; }
    double cpuMs() const { return double(std::clock() - cpu) * 1000.0 / CLOCKS_PER_SEC; }
};

struct Timing
{
    double wallMs;
    double cpuMs;
};

QTextStream& operator<<(QTextStream& out, const Timing& timing)
{
    return out << timing.cpuMs << " ms processor time (" << timing.wallMs << " ms wall clock)";
}

void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

// The resident set size of this process in kB, from /proc (Linux only; 0 elsewhere).
long residentKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    }
    return 0;
}

// Bytes of heap that the process has allocated and not yet freed (glibc only; 0 elsewhere). Unlike
// the resident size it does not depend on when the allocator returns pages to the system.
long heapInUseKb()
{
#if defined(__GLIBC__) && (__GLIBC__ > 2 || (__GLIBC__ == 2 && __GLIBC_MINOR__ >= 33))
    return long(mallinfo2().uordblks / 1024);
#else
    return 0;
#endif
}

Timing openAndShow()
{
    const Stopwatch stopwatch;
    auto* gallery = new TestSquish(nullptr);
    gallery->show();
    QApplication::processEvents();
    const Timing timing{stopwatch.wallMs(), stopwatch.cpuMs()};
    delete gallery;
    settle();
    return timing;
}

Timing median(QVector<Timing> values)
{
    std::sort(values.begin(), values.end(), [](const Timing& a, const Timing& b) { return a.cpuMs < b.cpuMs; });
    return values.at(values.size() / 2);
}

// Applies "Need Input" and "None" in turn to the tab, each including the repaint that follows.
Timing applyStatusWord(TestSquish& gallery, QTabWidget* tabs, int tab)
{
    tabs->setCurrentIndex(tab);
    settle();
    auto* needInput = gallery.findChild<QPushButton*>(QStringLiteral("needInputStateButton"));
    auto* none = gallery.findChild<QPushButton*>(QStringLiteral("noStateButton"));
    QVector<Timing> times;
    for (int i = 0; i < 10; ++i) {
        const Stopwatch stopwatch;
        (i % 2 ? none : needInput)->click();
        gallery.repaint();
        times << Timing{stopwatch.wallMs(), stopwatch.cpuMs()};
    }
    return median(times);
}
} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    VNStyleSheet::applyTo(&app);
    QTextStream out(stdout);

    {
        // A user's first open: the panel is on screen, the gallery is built from its button.
        TestWidgetCollection panel;
        panel.show();
        settle();
        const Stopwatch stopwatch;
        panel.findChild<QPushButton*>(QStringLiteral("m_testSquish"))->click();
        QApplication::processEvents();
        out << "first open of the gallery from the panel: " << Timing{stopwatch.wallMs(), stopwatch.cpuMs()} << "\n";
    }
    settle();
    QVector<Timing> opens;
    for (int i = 0; i < 5; ++i)
        opens << openAndShow();
    out << "open of the gallery (median of 5, goal < 150 ms): " << median(opens) << "\n";

    {
        TestSquish gallery(nullptr);
        gallery.show();
        settle();
        auto* tabs = gallery.findChild<QTabWidget*>(QStringLiteral("m_tabWidget"));
        int busiest = 0;
        for (int tab = 0; tab < tabs->count(); ++tab) {
            const int widgets = tabs->widget(tab)->findChildren<QWidget*>().size();
            const Timing timing = applyStatusWord(gallery, tabs, tab);
            out << "  status word on \"" << tabs->tabText(tab) << "\" (" << widgets << " widgets): " << timing << "\n";
            if (widgets > tabs->widget(busiest)->findChildren<QWidget*>().size())
                busiest = tab;
        }
        out << "one status word on the busiest tab \"" << tabs->tabText(busiest)
            << "\" (goal < 30 ms): " << applyStatusWord(gallery, tabs, busiest) << "\n";
    }
    settle();

    // Every gallery paints with new palettes, so Qt's pixmap cache takes new entries until it holds
    // its limit (10 MB by default); it is emptied before both readings so that only what the
    // gallery itself leaves behind counts.
    QPixmapCache::clear();
    const long before = residentKb();
    const long heapBefore = heapInUseKb();
    for (int i = 0; i < openCycles; ++i)
        openAndShow();
    QPixmapCache::clear();
    const long after = residentKb();
    const long heapAfter = heapInUseKb();
    out << "heap in use after " << openCycles
        << " open/close cycles (goal: grows < 1024 kB): " << heapAfter - heapBefore << " kB more\n";
    out << "memory growth over " << openCycles << " open/close cycles (goal < 1024 kB): " << after - before
        << " kB (resident " << before << " kB before, " << after << " kB after)\n";
    return 0;
}
