#pragma once

#include "AuditFinding.h"

#include <QHash>
#include <QImage>
#include <QList>

class QWidget;

// Walks a window with the Tab key as a keyboard user does: from the first focus widget, Tab must
// reach every tab stop and come back to the start without getting stuck in a widget that keeps
// the key, and the focused widget must look different from its unfocused self.
class KeyboardCheck
{
public:
    KeyboardCheck(const QString& windowName, QWidget* window);
    QList<AuditFinding> run();
    int tabStopCount() const { return m_stops.size(); }

private:
    void grabUnfocused();
    QWidget* firstFocus() const;
    void walk(QWidget* start);
    QWidget* pressTab(QWidget* focused);
    void reportTrap(QWidget* stop);
    void checkFocusLooks();
    bool isReachedThroughGroup(QWidget* stop) const;
    QImage grabOwner(QWidget* stop) const;
    AuditFinding finding(QWidget* stop, const QString& rule, const QString& message) const;

    QString m_windowName;
    QWidget* m_window;
    QList<QWidget*> m_stops;
    QList<QWidget*> m_visited;
    QHash<QWidget*, QImage> m_unfocused;
    QHash<QWidget*, QImage> m_focused;
    QList<AuditFinding> m_findings;
};
