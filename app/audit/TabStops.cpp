#include "TabStops.h"

#include <QWidget>

bool TabStops::isTabStop(QWidget* window, QWidget* widget)
{
    return widget && widget->window() == window && (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
           !widget->focusProxy() && widget->isVisibleTo(window) && widget->isEnabled();
}

QList<QWidget*> TabStops::of(QWidget* window)
{
    QList<QWidget*> stops;
    for (QWidget* widget = window->nextInFocusChain(); widget && widget != window;
         widget = widget->nextInFocusChain()) {
        if (isTabStop(window, widget) && !stops.contains(widget))
            stops << widget;
    }
    return stops;
}

QWidget* TabStops::owner(QWidget* tabStop)
{
    QWidget* owner = tabStop;
    for (QWidget* parent = owner->parentWidget(); parent && !owner->isWindow(); parent = parent->parentWidget()) {
        if (parent->focusProxy() != owner)
            break;
        owner = parent;
    }
    return owner;
}

QWidget* TabStops::next(QWidget* window, QWidget* tabStop)
{
    for (QWidget* widget = tabStop->nextInFocusChain(); widget && widget != tabStop;
         widget = widget->nextInFocusChain()) {
        if (isTabStop(window, widget))
            return widget;
    }
    return nullptr;
}
