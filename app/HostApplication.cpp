#include "HostApplication.h"

#include "ContactSheet.h"
#include "ObjectMap.h"

#include <TestWidgetCollection.h>
#include <VNStyleSheet.h>

#include <algorithm>

#include <QApplication>
#include <QCommandLineParser>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLayout>
#include <QPixmap>
#include <QPushButton>
#include <QSet>
#include <QTabWidget>
#include <QTemporaryFile>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

namespace {
// Shipped by Debian's fonts-dejavu-core, so that texts measure the same on every machine.
const QString reproducibleFontFile = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
const int reproducibleFontPointSize = 9;
// How long a window that runs modally stays open before it is mapped and ended.
const int modalWindowDelayMs = 200;
// Built from the collection's own texts and embedded into the library when lupdate and lrelease
// were found at build time.
const QString mockTranslation = QStringLiteral(":/TestWidgetCollection/Translations/testwidgetcollection_mock.qm");

// Windows that show one gallery per tab: the launcher button and the object name of the tab
// widget whose every page gets a screenshot of its own.
const struct
{
    const char* button;
    const char* tabWidget;
} tabbedWindows[] = {{"m_testSquish", "m_tabWidget"}};

QTabWidget* galleryTabs(const QString& buttonName, QWidget* window)
{
    for (const auto& entry : tabbedWindows) {
        if (buttonName == QLatin1String(entry.button))
            return window->findChild<QTabWidget*>(QLatin1String(entry.tabWidget));
    }
    return nullptr;
}

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream& err()
{
    static QTextStream stream(stderr);
    return stream;
}

QSet<QWidget*> visibleWidgets()
{
    QSet<QWidget*> visible;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->isVisible())
            visible.insert(widget);
    }
    return visible;
}

// A child that floats over a window outside its layout, like the loupe.
bool isFloatingChild(QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    return parent && parent->isWindow() && (!parent->layout() || parent->layout()->indexOf(widget) < 0);
}

// Windows that became visible, or windows into which a floating child was placed, ordered by
// object name so that every run numbers them alike.
QList<QWidget*> newlyShownWindows(const QSet<QWidget*>& before)
{
    QList<QWidget*> windows;
    const QSet<QWidget*> after = visibleWidgets();
    for (QWidget* widget : after) {
        if (before.contains(widget) || !(widget->isWindow() || isFloatingChild(widget)))
            continue;
        if (!windows.contains(widget->window()))
            windows << widget->window();
    }
    std::sort(windows.begin(), windows.end(),
              [](const QWidget* left, const QWidget* right) { return left->objectName() < right->objectName(); });
    return windows;
}

// Ends the modal window that a click opened; a dialog is ended even when it refuses to close.
void endModalWindow()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* dialog = qobject_cast<QDialog*>(modal))
        dialog->done(QDialog::Rejected);
    else if (modal)
        modal->close();
}
} // namespace

HostApplication::HostApplication() = default;

HostApplication::~HostApplication() = default;

int HostApplication::start(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Opens the TestWidgetCollection panel: test dialogs for the VN widget toolkit."));
    parser.addHelpOption();
    const QCommandLineOption listOption(QStringLiteral("list"),
                                        QStringLiteral("Print every launcher button (object name, text, row, "
                                                       "column; tab separated; \"-\" for the inspection buttons) "
                                                       "and exit."));
    const QCommandLineOption openOption(QStringLiteral("open"),
                                        QStringLiteral("Click the launcher button NAME after start (repeatable)."),
                                        QStringLiteral("NAME"));
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"),
        QStringLiteral("Open every launcher button in turn, save each window that appears as DIR/<button>.png and "
                       "the panel as DIR/TestWidgetCollection.png, then exit."),
        QStringLiteral("DIR"));
    const QCommandLineOption mockLocaleOption(
        QStringLiteral("mock-locale"),
        QStringLiteral("Show every translated text in mock Swedish, so that a text that stays English is one that "
                       "is hard-coded."));
    const QCommandLineOption objectMapOption(
        QStringLiteral("object-map"),
        QStringLiteral("Open every launcher button in turn, as --screenshot does, write every window's tree of "
                       "widgets (object name, classes, path of object names, geometry, visibility, enabled "
                       "state, text) as JSON to FILE, then exit."),
        QStringLiteral("FILE"));
    parser.addOptions({listOption, openOption, screenshotOption, objectMapOption, mockLocaleOption});
    parser.process(arguments);
    // The texts are translated when the forms are set up, so the translation comes first.
    if (parser.isSet(mockLocaleOption) && !installMockTranslation())
        return 1;

    if (parser.isSet(screenshotOption) || parser.isSet(objectMapOption))
        useReproducibleLook();
    VNStyleSheet::applyTo(qApp);
    m_panel = std::make_unique<TestWidgetCollection>(nullptr, Qt::WindowFlags());

    if (parser.isSet(listOption))
        return listButtons();
    if (parser.isSet(screenshotOption))
        return takeScreenshots(parser.value(screenshotOption));
    if (parser.isSet(objectMapOption))
        return writeObjectMap(parser.value(objectMapOption));

    const QStringList names = parser.values(openOption);
    for (const QString& name : names) {
        if (!findButton(name)) {
            QStringList valid;
            for (const LauncherButton& entry : launcherButtons())
                valid << entry.button->objectName();
            err() << "testwidgetcollection: unknown launcher button \"" << name
                  << "\". Valid names: " << valid.join(QStringLiteral(", ")) << Qt::endl;
            return 2;
        }
    }
    m_panel->show();
    return openButtons(names);
}

bool HostApplication::installMockTranslation()
{
    m_mockTranslation = std::make_unique<QTranslator>();
    if (!m_mockTranslation->load(mockTranslation)) {
        err() << "testwidgetcollection: --mock-locale: this build has no mock Swedish translation. Install lupdate "
                 "and lrelease (Debian package qttools5-dev-tools) and build again."
              << Qt::endl;
        return false;
    }
    QCoreApplication::installTranslator(m_mockTranslation.get());
    return true;
}

QList<HostApplication::LauncherButton> HostApplication::launcherButtons() const
{
    QList<LauncherButton> buttons;
    for (const char* name : {"showStyleSheet", "loupe", "stateDebug"}) {
        if (auto* button = m_panel->findChild<QPushButton*>(QLatin1String(name)))
            buttons << LauncherButton{button, -1, -1};
    }
    auto* grid = m_panel->findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    if (!grid)
        return buttons;
    for (int row = 0; row < grid->rowCount(); ++row) {
        for (int column = 0; column < grid->columnCount(); ++column) {
            QLayoutItem* item = grid->itemAtPosition(row, column);
            if (auto* button = item ? qobject_cast<QPushButton*>(item->widget()) : nullptr)
                buttons << LauncherButton{button, row, column};
        }
    }
    return buttons;
}

QPushButton* HostApplication::findButton(const QString& name) const
{
    for (const LauncherButton& entry : launcherButtons()) {
        if (entry.button->objectName() == name)
            return entry.button;
    }
    return nullptr;
}

int HostApplication::listButtons() const
{
    for (const LauncherButton& entry : launcherButtons()) {
        const auto cell = [](int value) { return value < 0 ? QStringLiteral("-") : QString::number(value); };
        out() << entry.button->objectName() << '\t' << entry.button->text() << '\t' << cell(entry.row) << '\t'
              << cell(entry.column) << '\n';
    }
    out().flush();
    return 0;
}

int HostApplication::openButtons(const QStringList& names)
{
    for (const QString& name : names) {
        QPushButton* button = findButton(name);
        QTimer::singleShot(0, button, &QPushButton::click);
    }
    return -1;
}

bool HostApplication::saveScreenshot(const QDir& directory, const QString& name, QWidget* window) const
{
    const QString path = directory.filePath(name + QStringLiteral(".png"));
    if (!window->grab().save(path, "PNG")) {
        err() << "testwidgetcollection: cannot write \"" << path << "\"." << Qt::endl;
        return false;
    }
    out() << path << '\n';
    out().flush();
    return true;
}

bool HostApplication::saveTabScreenshots(const QDir& directory, const QString& name, const QString& caption,
                                         QWidget* window, QTabWidget* tabs, ContactSheet& sheet) const
{
    const int shownTab = tabs->currentIndex();
    bool saved = true;
    for (int i = 0; i < tabs->count() && saved; ++i) {
        tabs->setCurrentIndex(i);
        QApplication::processEvents();
        const QString tabShot = QStringLiteral("%1-%2").arg(name, tabs->widget(i)->objectName());
        sheet.addShot(name, QStringLiteral("%1: %2").arg(caption, tabs->tabText(i)), tabShot + QStringLiteral(".png"));
        saved = saveScreenshot(directory, tabShot, window);
    }
    // The window goes on as it was, so that later windows (the loupe) see it unchanged.
    tabs->setCurrentIndex(shownTab);
    QApplication::processEvents();
    return saved;
}

void HostApplication::useReproducibleLook()
{
    const int id = QFontDatabase::addApplicationFont(reproducibleFontFile);
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
        err() << "testwidgetcollection: \"" << reproducibleFontFile
              << "\" is missing (Debian package fonts-dejavu-core); texts use the system font." << Qt::endl;
        return;
    }
    QFont font(families.first(), reproducibleFontPointSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
}

bool HostApplication::visitEveryWindow(const WindowVisitor& visit)
{
    m_panel->show();
    QApplication::processEvents();
    if (!visit(nullptr, m_panel.get(), 0))
        return false;
    QList<LauncherButton> buttons = launcherButtons();
    // The loupe goes last, so that it lands in the most recently opened dialog.
    std::stable_partition(buttons.begin(), buttons.end(), [](const LauncherButton& entry) {
        return entry.button->objectName() != QLatin1String("loupe");
    });
    bool ok = true;
    for (const LauncherButton& entry : buttons) {
        const QSet<QWidget*> before = visibleWidgets();
        QList<QWidget*> visited;
        const auto visitNewWindows = [&] {
            const QList<QWidget*> windows = newlyShownWindows(before);
            for (QWidget* window : windows) {
                if (ok && !visited.contains(window))
                    ok = visit(entry.button, window, visited.size());
                visited << window;
            }
        };
        // A window that runs modally is visited from inside its own event loop, then ended.
        QTimer modalWatch;
        QObject::connect(&modalWatch, &QTimer::timeout, [&] {
            if (QApplication::activeModalWidget()) {
                visitNewWindows();
                endModalWindow();
            }
        });
        modalWatch.start(modalWindowDelayMs);
        entry.button->click();
        QApplication::processEvents();
        modalWatch.stop();
        visitNewWindows();
        if (!ok)
            return false;
    }
    return true;
}

int HostApplication::takeScreenshots(const QString& directory)
{
    const QDir dir(directory);
    QTemporaryFile probe(dir.filePath(QStringLiteral("probe-XXXXXX")));
    if (!QDir().mkpath(directory) || !probe.open()) {
        err() << "testwidgetcollection: cannot write screenshots to \"" << directory << "\"." << Qt::endl;
        return 1;
    }
    probe.close();

    ContactSheet sheet;
    const bool saved = visitEveryWindow([&](const QPushButton* button, QWidget* window, int index) {
        const QString name = button ? button->objectName() : m_panel->objectName();
        const QString shotName = index == 0 ? name : QStringLiteral("%1_%2").arg(name).arg(index + 1);
        const QString caption = button ? button->text() : m_panel->windowTitle();
        sheet.addShot(name, caption, shotName + QStringLiteral(".png"));
        if (!saveScreenshot(dir, shotName, window))
            return false;
        QTabWidget* tabs = galleryTabs(name, window);
        return !tabs || saveTabScreenshots(dir, shotName, caption, window, tabs, sheet);
    });
    if (!saved)
        return 1;
    const QString indexPath = dir.filePath(QStringLiteral("index.html"));
    const QString error = sheet.save(indexPath);
    if (!error.isEmpty()) {
        err() << "testwidgetcollection: cannot write \"" << indexPath << "\": " << error << Qt::endl;
        return 1;
    }
    out() << indexPath << Qt::endl;
    return 0;
}

int HostApplication::writeObjectMap(const QString& path)
{
    // Checked first, so that an unwritable place is reported before every window opens.
    const QFileInfo target(path);
    QTemporaryFile probe(target.absoluteDir().filePath(QStringLiteral("probe-XXXXXX")));
    if (target.isDir() || !probe.open()) {
        err() << "testwidgetcollection: cannot write the object map to \"" << path << "\"." << Qt::endl;
        return 1;
    }
    probe.close();

    ObjectMap map;
    visitEveryWindow([&](const QPushButton* button, QWidget* window, int) {
        map.addWindow(button ? button->objectName() : QString(), window);
        return true;
    });
    const QString error = map.save(path);
    if (!error.isEmpty()) {
        err() << "testwidgetcollection: cannot write \"" << path << "\": " << error << Qt::endl;
        return 1;
    }
    out() << path << Qt::endl;
    return 0;
}
