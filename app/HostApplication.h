#pragma once

#include <QStringList>

#include <memory>

class QDir;
class QPushButton;
class QTranslator;
class QWidget;
class TestWidgetCollection;

// The host of the collection: creates the panel in the toolkit's style and carries out the
// command line (--list, --open, --screenshot, --mock-locale).
class HostApplication
{
public:
    HostApplication();
    ~HostApplication();

    // Returns the process exit code, or -1 when the event loop should run.
    int start(const QStringList& arguments);

private:
    struct LauncherButton
    {
        QPushButton* button;
        int row;
        int column;
    };

    QList<LauncherButton> launcherButtons() const;
    QPushButton* findButton(const QString& name) const;
    int listButtons() const;
    int openButtons(const QStringList& names);
    int takeScreenshots(const QString& directory);
    bool saveScreenshot(const QDir& directory, const QString& name, QWidget* window) const;
    bool installMockTranslation();

    std::unique_ptr<QTranslator> m_mockTranslation;
    std::unique_ptr<TestWidgetCollection> m_panel;
};
