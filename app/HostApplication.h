#pragma once

#include <QStringList>

#include <functional>
#include <memory>

class QDir;
class ContactSheet;
class QPushButton;
class QTabWidget;
class QTranslator;
class QWidget;
class TestWidgetCollection;

// The host of the collection: creates the panel in the toolkit's style and carries out the
// command line (--list, --open, --screenshot, --object-map, --mock-locale).
class HostApplication
{
public:
    HostApplication();
    ~HostApplication();

    // Returns the process exit code, or -1 when the event loop should run.
    int start(const QStringList& arguments);

private:
    // Called with each window that appears, numbered per button; the panel comes first, without a
    // button. Returns false to stop the run.
    using WindowVisitor = std::function<bool(const QPushButton* button, QWidget* window, int index)>;

    QPushButton* findButton(const QString& name) const;
    int listButtons() const;
    int openButtons(const QStringList& names);
    bool visitEveryWindow(const WindowVisitor& visit);
    int takeScreenshots(const QString& directory);
    int writeObjectMap(const QString& path);
    bool saveScreenshot(const QDir& directory, const QString& name, QWidget* window) const;
    // Saves a window once per page of its tab widget, as <name>-<page object name>.png.
    bool saveTabScreenshots(const QDir& directory, const QString& name, const QString& caption, QWidget* window,
                            QTabWidget* tabs, ContactSheet& sheet) const;
    void useReproducibleLook();
    void useReproducibleBehaviour();
    bool installMockTranslation();

    std::unique_ptr<QTranslator> m_mockTranslation;
    std::unique_ptr<TestWidgetCollection> m_panel;
};
