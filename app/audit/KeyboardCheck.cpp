#include "KeyboardCheck.h"

#include "TabStops.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {
// An item view with Tab key navigation moves from cell to cell before Tab leaves it; it gets
// this many presses before it counts as keeping the key.
const int maxPressesInOneView = 400;
const int cropGap = 6;

// As a keyboard sends it: with the tab character as text, which text fields may take.
void pressTabOn(QWidget* widget)
{
    const QString tab(QLatin1Char('\t'));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, tab);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Tab, Qt::NoModifier, tab);
    QApplication::sendEvent(widget, &press);
    QApplication::sendEvent(widget, &release);
}

int pressesBeforeLeaving(QWidget* widget)
{
    const auto* view = qobject_cast<QAbstractItemView*>(widget);
    return view && view->tabKeyNavigation() ? maxPressesInOneView : 1;
}

QString typedText(QWidget* widget)
{
    if (auto* edit = qobject_cast<QTextEdit*>(widget))
        return edit->toPlainText();
    if (auto* plain = qobject_cast<QPlainTextEdit*>(widget))
        return plain->toPlainText();
    return QString();
}

// A text field that took the Tab as text gets its text back: the audit changes nothing. Undo
// is not enough, a field may have it switched off.
void undoTypedTab(QWidget* widget, const QString& text)
{
    if (auto* edit = qobject_cast<QTextEdit*>(widget)) {
        edit->undo();
        if (edit->toPlainText() != text)
            edit->setPlainText(text);
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(widget)) {
        plain->undo();
        if (plain->toPlainText() != text)
            plain->setPlainText(text);
    }
}

// Tab enters a group of exclusive buttons (radio buttons) once; the arrow keys move within it.
bool inSameExclusiveGroup(QWidget* first, QWidget* second)
{
    const auto* a = qobject_cast<QAbstractButton*>(first);
    const auto* b = qobject_cast<QAbstractButton*>(second);
    if (!a || !b || a == b)
        return false;
    if (a->group() || b->group())
        return a->group() == b->group() && a->group()->exclusive();
    return a->autoExclusive() && b->autoExclusive() && a->parentWidget() == b->parentWidget();
}

QImage sideBySide(const QImage& left, const QImage& right)
{
    QImage image(left.width() + cropGap + right.width(), qMax(left.height(), right.height()),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(left.devicePixelRatio());
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawImage(QPointF(0, 0), left);
    painter.drawImage(QPointF((left.width() + cropGap) / left.devicePixelRatio(), 0), right);
    return image;
}
} // namespace

KeyboardCheck::KeyboardCheck(const QString& windowName, QWidget* window)
    : m_windowName(windowName)
    , m_window(window)
    , m_stops(TabStops::of(window))
{}

QList<AuditFinding> KeyboardCheck::run()
{
    if (m_stops.isEmpty())
        return {};
    QApplication::setActiveWindow(m_window);
    QWidget* start = firstFocus();
    grabUnfocused();
    walk(start);
    checkFocusLooks();
    return m_findings;
}

QWidget* KeyboardCheck::firstFocus() const
{
    QWidget* focus = m_window->focusWidget();
    return m_stops.contains(focus) ? focus : m_stops.first();
}

void KeyboardCheck::grabUnfocused()
{
    if (QWidget* focused = QApplication::focusWidget())
        focused->clearFocus();
    for (QWidget* stop : qAsConst(m_stops))
        m_unfocused.insert(stop, grabOwner(stop));
}

void KeyboardCheck::walk(QWidget* start)
{
    start->setFocus(Qt::TabFocusReason);
    m_visited << start;
    m_focused.insert(start, grabOwner(start));
    QWidget* current = start;
    for (int step = 0; step <= m_stops.size(); ++step) {
        QWidget* next = pressTab(current);
        if (!next) {
            reportTrap(current);
            next = TabStops::next(m_window, current);
            if (!next)
                return;
            next->setFocus(Qt::TabFocusReason);
        }
        // Tab may come back into the start's radio group at another of its buttons.
        if (next == start || inSameExclusiveGroup(next, start)) {
            // Styles show some focus cues only once the keyboard has moved the focus, so the start
            // is seen as a keyboard user sees it when Tab comes back to it.
            if (next == start)
                m_focused.insert(start, grabOwner(start));
            return;
        }
        if (m_visited.contains(next) || !m_stops.contains(next))
            break;
        m_visited << next;
        m_focused.insert(next, grabOwner(next));
        current = next;
    }
    m_findings << finding(start, QStringLiteral("no-return"),
                          QStringLiteral("Tab never brings the focus back to the first focus widget."));
    m_findings.last().measured.insert(QStringLiteral("reached"), m_visited.size());
}

// Returns the widget that has the focus after Tab, or nullptr when the focus stayed although
// Tab had somewhere else to go (or typed itself into a text field).
QWidget* KeyboardCheck::pressTab(QWidget* focused)
{
    const QString text = typedText(focused);
    const int presses = pressesBeforeLeaving(focused);
    for (int press = 0; press < presses; ++press) {
        pressTabOn(focused);
        QWidget* now = QApplication::focusWidget();
        if (now != focused)
            return now;
    }
    const bool typed = typedText(focused) != text;
    if (typed)
        undoTypedTab(focused, text);
    // The only tab stop of a window: Tab leaves it and comes straight back.
    return typed || m_stops.size() > 1 ? nullptr : focused;
}

void KeyboardCheck::reportTrap(QWidget* stop)
{
    m_findings << finding(stop, QStringLiteral("keeps-tab"),
                          QStringLiteral("The widget keeps the Tab key: the focus cannot leave it with Tab."));
}

void KeyboardCheck::checkFocusLooks()
{
    for (QWidget* stop : qAsConst(m_stops)) {
        if (!m_visited.contains(stop)) {
            if (!isReachedThroughGroup(stop))
                m_findings << finding(stop, QStringLiteral("not-reached"),
                                      QStringLiteral("Tab never reaches the widget."));
            stop->setFocus(Qt::TabFocusReason);
            m_focused.insert(stop, grabOwner(stop));
        }
        const QImage unfocused = m_unfocused.value(stop);
        const QImage focused = m_focused.value(stop);
        if (unfocused != focused)
            continue;
        AuditFinding invisible =
            finding(stop, QStringLiteral("focus-invisible"),
                    QStringLiteral("The widget looks the same with and without the keyboard focus."));
        invisible.crop = sideBySide(unfocused, focused);
        m_findings << invisible;
    }
}

bool KeyboardCheck::isReachedThroughGroup(QWidget* stop) const
{
    for (QWidget* visited : m_visited) {
        if (inSameExclusiveGroup(stop, visited))
            return true;
    }
    return false;
}

QImage KeyboardCheck::grabOwner(QWidget* stop) const
{
    return TabStops::owner(stop)->grab().toImage();
}

AuditFinding KeyboardCheck::finding(QWidget* stop, const QString& rule, const QString& message) const
{
    return AuditFinding::aboutWidget(m_windowName, TabStops::owner(stop), AuditFinding::keyboardCheck, rule, message);
}
