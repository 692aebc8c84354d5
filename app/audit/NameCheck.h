#pragma once

#include "AuditFinding.h"

#include <QAccessible>
#include <QList>

class QWidget;

// What a screen reader and an accessibility-based test robot get for every tab stop of a window:
// a name (the widget's own text, its label's buddy text or an accessible name set in the form)
// and a role that says what kind of control it is.
class NameCheck
{
public:
    static QList<AuditFinding> run(const QString& windowName, QWidget* window);

    // The roles that suit the widget's class; empty when any control role will do.
    static QList<QAccessible::Role> rolesFor(const QWidget* widget);
    // Roles that say nothing about what a focusable widget does.
    static bool isVague(QAccessible::Role role);

private:
    static QWidget* announced(QWidget* stop);
    static AuditFinding finding(const QString& windowName, QWidget* owner, const QString& rule, const QString& message);
};
