#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QToolButton>

// The file button of a tool: a document icon whose click asks to open a file and whose
// drop-down offers "Open...", "Save", "Save As..." and the recent files (newest first, at most
// maximumRecentFiles). Each choice emits its request; the tool does the file work. Status looks
// are those of the toolkit's tool buttons.
class VNWIDGETS_EXPORT VNFileMenuButton : public QToolButton, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNFileMenuButton(QWidget* parent = nullptr);

    static const int maximumRecentFiles = 8;
    void addRecentFile(const QString& path);
    QStringList recentFiles() const { return m_recentFiles; }
    void clearRecentFiles();

    QAction* openAction() const { return m_open; }
    QAction* saveAction() const { return m_save; }
    QAction* saveAsAction() const { return m_saveAs; }
    QMenu* recentMenu() const { return m_recent; }

signals:
    void openRequested();
    void saveRequested();
    void saveAsRequested();
    void recentFileRequested(const QString& path);

private:
    void fillRecentMenu();

    QAction* m_open;
    QAction* m_save;
    QAction* m_saveAs;
    QMenu* m_recent;
    QStringList m_recentFiles;
};
