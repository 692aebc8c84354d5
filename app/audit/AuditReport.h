#pragma once

#include "AuditFinding.h"
#include "StatusMatrix.h"

#include <QJsonObject>
#include <QList>

// The audit's result for machines (audit.json) and for people (audit.html with the pictures of
// every window first, then the status matrix, then every finding with a picture of its widget).
class AuditReport
{
public:
    void addPicture(const QString& window, const QString& caption, const QImage& picture);
    void addFinding(const AuditFinding& finding);
    void addFindings(const QList<AuditFinding>& findings);
    void setMatrix(const StatusMatrix& matrix) { m_matrix = matrix; }
    void setTabStopCount(int count) { m_tabStops = count; }

    const QList<AuditFinding>& findings() const { return m_findings; }
    int openFindingCount() const;
    // Open findings per check, in the order of the checks.
    QList<QPair<QString, int>> openCountsByCheck() const;

    // Writes audit.json, audit.html, matrix.png and the pictures into `directory`; returns an
    // empty string on success, otherwise what went wrong.
    QString save(const QString& directory);
    // Reads the findings of another report's audit.json (pictures stay where they are, in
    // `subdirectory` next to audit.html); returns an empty string on success.
    QString merge(const QString& directory, const QString& subdirectory);

private:
    struct Picture
    {
        QString window;
        QString caption;
        QImage image;
        QString file;
    };
    QJsonObject toJson() const;
    QString html() const;
    QString findingHtml(const AuditFinding& finding) const;

    QList<Picture> m_pictures;
    QList<AuditFinding> m_findings;
    QStringList m_cropFiles; // per finding, relative to the report
    StatusMatrix m_matrix;
    int m_tabStops = 0;
};
