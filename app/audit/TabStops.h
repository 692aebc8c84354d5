#pragma once

#include <QList>

class QWidget;

// The widgets of a window that Tab can reach, in the window's focus chain order: enabled, shown,
// accepting Tab focus and not handing their focus on to a focus proxy (Qt's own rule for Tab).
class TabStops
{
public:
    static QList<QWidget*> of(QWidget* window);
    // The widget that users and screen readers see for a tab stop: a spin box for its inner line
    // edit, a combo box for its editor; otherwise the tab stop itself.
    static QWidget* owner(QWidget* tabStop);
    // The first tab stop after `tabStop` in the focus chain, or nullptr when there is none.
    static QWidget* next(QWidget* window, QWidget* tabStop);
    static bool isTabStop(QWidget* window, QWidget* widget);
};
