// Prints what the widget status gallery costs: opening it, applying one status word to its busiest
// tab (the tab with the most widgets), and the memory that 20 open/close cycles leave behind.
// Goals: open < 150 ms, one status word < 30 ms, growth < 1 MB. Run it headless:
// QT_QPA_PLATFORM=offscreen ./bench_gallery
#include "../BenchTiming.h"
#include "TestSquish.h"
#include "TestWidgetCollection.h"

#include <VNStyleSheet.h>

#include <QApplication>
#include <QFile>
#include <QPixmapCache>
#include <QPushButton>
#include <QTabWidget>
#include <QTextStream>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace {
const int openCycles = 20;

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

BenchTiming::Timing openAndShow()
{
    const BenchTiming::Stopwatch stopwatch;
    auto* gallery = new TestSquish(nullptr);
    gallery->show();
    QApplication::processEvents();
    const BenchTiming::Timing timing = stopwatch.elapsed();
    delete gallery;
    settle();
    return timing;
}

// Applies "Need Input" and "None" in turn to the tab, each including the repaint that follows.
BenchTiming::Samples applyStatusWord(TestSquish& gallery, QTabWidget* tabs, int tab)
{
    tabs->setCurrentIndex(tab);
    settle();
    auto* needInput = gallery.findChild<QPushButton*>(QStringLiteral("needInputStateButton"));
    auto* none = gallery.findChild<QPushButton*>(QStringLiteral("noStateButton"));
    int clicks = 0;
    return BenchTiming::repeat(10, [&] {
        (clicks++ % 2 ? none : needInput)->click();
        gallery.repaint();
    });
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
        const BenchTiming::Stopwatch stopwatch;
        panel.findChild<QPushButton*>(QStringLiteral("m_testSquish"))->click();
        QApplication::processEvents();
        out << BenchTiming::line(QStringLiteral("first open of the gallery from the panel"), stopwatch.elapsed());
    }
    settle();
    BenchTiming::Samples opens;
    for (int i = 0; i < 5; ++i)
        opens.add(openAndShow());
    out << BenchTiming::line(QStringLiteral("open of the gallery"), opens, QStringLiteral("goal < 150 ms"));

    {
        TestSquish gallery(nullptr);
        gallery.show();
        settle();
        auto* tabs = gallery.findChild<QTabWidget*>(QStringLiteral("m_tabWidget"));
        int busiest = 0;
        for (int tab = 0; tab < tabs->count(); ++tab) {
            const int widgets = tabs->widget(tab)->findChildren<QWidget*>().size();
            out << BenchTiming::line(
                QStringLiteral("  status word on \"%1\" (%2 widgets)").arg(tabs->tabText(tab)).arg(widgets),
                applyStatusWord(gallery, tabs, tab));
            if (widgets > tabs->widget(busiest)->findChildren<QWidget*>().size())
                busiest = tab;
        }
        out << BenchTiming::line(
            QStringLiteral("one status word on the busiest tab \"%1\"").arg(tabs->tabText(busiest)),
            applyStatusWord(gallery, tabs, busiest), QStringLiteral("goal < 30 ms"));
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
