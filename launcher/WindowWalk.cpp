#include "WindowWalk.h"

#include "LauncherTable.h"

#include <QApplication>
#include <QDialog>
#include <QLayout>
#include <QPushButton>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <tuple>

namespace {
// A child that floats over a window outside its layout, like the loupe.
bool isFloatingChild(QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    return parent && parent->isWindow() && (!parent->layout() || parent->layout()->indexOf(widget) < 0);
}

// Qt keeps its widgets in a set; windows alike in name are told apart by class and title.
auto orderKey(const QWidget* window)
{
    return std::make_tuple(window->objectName(), QString::fromLatin1(window->metaObject()->className()),
                           window->windowTitle());
}

QSet<QWidget*> visibleWidgets()
{
    QSet<QWidget*> visible;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->isVisible())
            visible.insert(widget);
    }
    return visible;
}

// Windows that became visible, or windows into which a floating child was placed.
QList<QWidget*> newlyShownWindows(const QSet<QWidget*>& before)
{
    QList<QWidget*> windows;
    const QSet<QWidget*> after = visibleWidgets();
    for (QWidget* widget : after) {
        if (before.contains(widget) || !(widget->isWindow() || isFloatingChild(widget)))
            continue;
        if (!windows.contains(widget->window()))
            windows << widget->window();
    }
    std::sort(windows.begin(), windows.end(),
              [](const QWidget* left, const QWidget* right) { return orderKey(left) < orderKey(right); });
    return windows;
}

// Ends the modal window that a click opened; a dialog is ended even when it refuses to close.
void endModalWindow()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* dialog = qobject_cast<QDialog*>(modal))
        dialog->done(QDialog::Rejected);
    else if (modal)
        modal->close();
}
} // namespace

WindowWalk::WindowWalk(int modalDelayMs)
    : m_modalDelayMs(modalDelayMs)
{}

bool WindowWalk::click(QPushButton* button, const Visitor& visit) const
{
    const QSet<QWidget*> before = visibleWidgets();
    QList<QWidget*> visited;
    bool goOn = true;
    const auto visitNewWindows = [&] {
        const QList<QWidget*> windows = newlyShownWindows(before);
        for (QWidget* window : windows) {
            if (goOn && !visited.contains(window))
                goOn = visit(window, visited.size());
            visited << window;
        }
    };
    QTimer modalWatch;
    QObject::connect(&modalWatch, &QTimer::timeout, [&] {
        if (QApplication::activeModalWidget()) {
            visitNewWindows();
            endModalWindow();
        }
    });
    modalWatch.start(m_modalDelayMs);
    button->click();
    QApplication::processEvents();
    modalWatch.stop();
    visitNewWindows();
    return goOn;
}

QList<QPushButton*> WindowWalk::buttons(const QWidget& panel, const QStringList& names)
{
    QList<QPushButton*> found;
    QList<QPushButton*> loupeButtons;
    for (const LauncherTable::Entry& entry : LauncherTable::entries()) {
        const QString name = QLatin1String(entry.button);
        auto* button = panel.findChild<QPushButton*>(name);
        if (!button || (!names.isEmpty() && !names.contains(name)))
            continue;
        (entry.policy == LauncherTable::Policy::MovesLoupe ? loupeButtons : found) << button;
    }
    return found + loupeButtons;
}
