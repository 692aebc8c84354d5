#pragma once

#include "AuditFinding.h"

#include <QList>
#include <QString>

// Findings that are right by design, one per line: window, object name, check (or check:rule, as
// "keyboard:keeps-tab") and reason, separated by tabs ("*" for any window or object name). Lines that start with "#"
// and empty lines are comments; an entry without a reason is an error, because every exception needs one.
class AllowList
{
public:
    // Returns an empty string on success, otherwise what is wrong with the text.
    QString parse(const QString& text);
    // Sets the finding's allowedBecause when an entry covers it; returns whether one did.
    bool allow(AuditFinding& finding) const;
    int size() const { return m_entries.size(); }

private:
    struct Entry
    {
        QString window;
        QString objectName;
        QString check;
        QString reason;
    };
    QList<Entry> m_entries;
};
