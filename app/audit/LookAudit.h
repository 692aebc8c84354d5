#pragma once

#include "AllowList.h"
#include "AuditReport.h"

#include <QSet>
#include <QString>

#include <memory>

class QProcess;
class QWidget;

// The look audit of a run over every window: the host hands it each window that appears, and it
// checks what a careful designer and an accessibility reviewer would check by eye (status looks
// against the palette, contrast, keyboard use, names for screen readers, high-density drawing).
// At one device pixel per pixel it starts the host once more at --scale 2 for the high-density
// check and adds that run's findings; in that run it checks nothing else.
class LookAudit
{
public:
    // `hostProgram` is the program to start for the high-density run; empty for none.
    explicit LookAudit(const QString& directory, const QString& hostProgram = QString());
    ~LookAudit();

    // Uses these entries instead of the allow-list that comes with the audit.
    void setAllowList(const AllowList& allowList) { m_allowList = allowList; }
    // Prepares the report's folder; returns an empty string on success, otherwise what is wrong.
    QString begin();
    void inspectWindow(const QString& windowName, const QString& caption, QWidget* window);
    // Writes the report and returns the exit code: 0 when nothing was found, 1 when something was
    // (or the report could not be written).
    int finish();

    const AuditReport& report() const { return m_report; }
    static QString builtInAllowList();

private:
    void add(QList<AuditFinding> findings);
    QString mergeHighDensityRun();
    bool isHighDensityRun() const;

    QString m_directory;
    QString m_hostProgram;
    AllowList m_allowList;
    AuditReport m_report;
    QSet<QWidget*> m_inspected;
    int m_tabStops = 0;
    std::unique_ptr<QProcess> m_highDensityRun;
};
