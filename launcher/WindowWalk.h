#pragma once

#include "testwidgetcollection_export.h"

#include <QList>
#include <QStringList>

#include <functional>

class QPushButton;
class QWidget;

// Clicks the panel's buttons as a user would and hands each window that a click showed to a
// visitor: windows that appeared and windows into which a floating child (the loupe) was placed.
// A window that runs modally is visited from inside its own event loop and then ended, so that the
// walk never waits for a user. The host's screenshot and object-map runs and the leak benchmark
// walk the same way.
class TESTWIDGETCOLLECTION_EXPORT WindowWalk
{
public:
    // Called with each window that one click showed, numbered from 0 in a fixed order (by object
    // name, class and title). Returns false to stop the walk.
    using Visitor = std::function<bool(QWidget* window, int index)>;

    // A window that runs modally is visited once it has been open for about `modalDelayMs`.
    explicit WindowWalk(int modalDelayMs);

    // Clicks the button and visits every window that the click showed. Returns false when the
    // visitor stopped the walk.
    bool click(QPushButton* button, const Visitor& visit) const;

    // The panel's buttons in the launcher table's order, limited to `names` unless that is empty;
    // the buttons that move the loupe come last, so that it lands in the latest window opened.
    static QList<QPushButton*> buttons(const QWidget& panel, const QStringList& names = QStringList());

private:
    int m_modalDelayMs;
};
