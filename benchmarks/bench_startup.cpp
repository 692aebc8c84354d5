// Prints how fast the panel starts, how long each dialog takes to open the first time, and what a
// loupe repaint costs. Run it headless: QT_QPA_PLATFORM=offscreen ./bench_startup
#include "LauncherTable.h"
#include "Loupe.h"
#include "TestWidgetCollection.h"

#include <VNStyleSheet.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QTextStream>

#include <chrono>

namespace {

double ms(qint64 nanoseconds)
{
    return nanoseconds / 1.0e6;
}

qint64 monotonicNow()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

const char* const spawnVariable = "TWC_BENCH_SPAWNED_AT";

// Starts this program again and lets the child report the time from its spawn, so that loading
// the libraries counts too.
void measureFromProcessStart(QTextStream& out)
{
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(spawnVariable), QString::number(monotonicNow()));
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), QStringList());
    child.waitForFinished();
    out << QString::fromUtf8(child.readAllStandardOutput());
}

// The buttons of the launcher table that open a window: all but the loupe's.
QList<QPushButton*> launcherButtons(QWidget* panel)
{
    QList<QPushButton*> buttons;
    for (const LauncherTable::Entry& entry : LauncherTable::entries()) {
        if (entry.policy != LauncherTable::Policy::MovesLoupe)
            buttons << panel->findChild<QPushButton*>(QLatin1String(entry.button));
    }
    return buttons;
}

QList<QWidget*> windowsOf(QWidget* panel)
{
    QList<QWidget*> windows;
    for (QWidget* child : panel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isWindow())
            windows << child;
    }
    return windows;
}
} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QTextStream out(stdout);

    VNStyleSheet::applyTo(&application);
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    panel.show();
    panel.grab(); // the first paint, with the style sheet resolved
    QApplication::processEvents();
    if (qEnvironmentVariableIsSet(spawnVariable)) {
        const qint64 spawned = qEnvironmentVariable(spawnVariable).toLongLong();
        out << QStringLiteral("panel shown after process start: %1 ms (goal 150 ms)\n")
                   .arg(ms(monotonicNow() - spawned), 0, 'f', 1);
        return 0;
    }
    for (int run = 0; run < 3; ++run)
        measureFromProcessStart(out);

    out << "first open of each dialog (goal 100 ms each):\n";
    for (QPushButton* button : launcherButtons(&panel)) {
        const int before = windowsOf(&panel).size();
        QElapsedTimer timer;
        timer.start();
        button->click();
        QList<QWidget*> windows = windowsOf(&panel);
        if (windows.size() == before)
            continue; // not wired to a dialog
        windows.last()->grab();
        QApplication::processEvents();
        out << QStringLiteral("  %1 %2 ms\n").arg(button->objectName(), -28).arg(ms(timer.nsecsElapsed()), 6, 'f', 1);
    }

    QWidget host;
    host.resize(800, 400);
    host.show();
    Loupe loupe(&host);
    QImage target(loupe.size(), QImage::Format_ARGB32_Premultiplied);
    const int repaints = 500;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < repaints; ++i) {
        QPainter painter(&target);
        loupe.render(&painter);
    }
    out << QStringLiteral("loupe repaint (%1 x %2): %3 ms per repaint (goal 2 ms)\n")
               .arg(loupe.width())
               .arg(loupe.height())
               .arg(ms(timer.nsecsElapsed()) / repaints, 0, 'f', 3);
    return 0;
}
