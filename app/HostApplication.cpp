#include "HostApplication.h"

#include "ContactSheet.h"
#include "LookAudit.h"
#include "ObjectMap.h"
#include "ReproducibleFont.h"

#include <CollectionClock.h>
#include <LauncherTable.h>
#include <TestWidgetCollection.h>
#include <VNStyleSheet.h>
#include <WindowWalk.h>

#include <QAbstractAnimation>
#include <QApplication>
#include <QCommandLineParser>
#include <QCursor>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLocale>
#include <QPixmap>
#include <QPushButton>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryFile>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

namespace {
// Qt's own style, which every Qt build has, whatever style plugins a machine adds.
const QString reproducibleStyle = QStringLiteral("Fusion");
// The date a screenshot run shows as today, and where its mouse rests: off every screen, so that
// nothing is hovered and the state inspector follows nothing.
const QDate reproducibleToday(2022, 4, 1);
const QPoint reproducibleCursorPosition(-10000, -10000);
// Animations that start further animations when they end are finished this many times at most.
const int maxAnimationRounds = 10;
// How long a window that runs modally stays open before it is mapped and ended.
const int modalWindowDelayMs = 200;
// Built from the collection's own texts and embedded into the library when lupdate and lrelease
// were found at build time.
const QString mockTranslation = QStringLiteral(":/TestWidgetCollection/Translations/testwidgetcollection_mock.qm");

// The tab widget whose every page the launcher table names as a view of its own.
QTabWidget* pagesOf(const QString& buttonName, QWidget* window)
{
    const LauncherTable::Entry* entry = LauncherTable::find(buttonName);
    return entry && entry->pages ? window->findChild<QTabWidget*>(QLatin1String(entry->pages)) : nullptr;
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

// Brings every running animation of the window to its end, so that the window is saved at rest
// rather than at whatever frame the clock reached.
void finishAnimations(QWidget* window)
{
    for (int round = 0; round < maxAnimationRounds; ++round) {
        bool finished = false;
        const QList<QAbstractAnimation*> animations = window->findChildren<QAbstractAnimation*>();
        for (QAbstractAnimation* animation : animations) {
            if (animation->state() != QAbstractAnimation::Running)
                continue;
            finished = true;
            if (animation->inherits("QStyleAnimation"))
                delete animation; // the style paints the first frame of a new one
            else if (animation->totalDuration() < 0)
                animation->stop();
            else
                animation->setCurrentTime(
                    animation->direction() == QAbstractAnimation::Forward ? animation->totalDuration() : 0);
        }
        // Layouts follow the sizes the animations ended with.
        QCoreApplication::sendPostedEvents();
        if (!finished)
            return;
    }
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
                       "the panel as DIR/TestWidgetCollection.png, then exit. Windows are saved at rest (animations "
                       "ended, nothing hovered, a fixed date), offscreen, with a fixed font, style and locale, so "
                       "that every machine gives the same pixels."),
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
    const QCommandLineOption auditOption(
        QStringLiteral("audit"),
        QStringLiteral("Open every launcher button in turn, as --screenshot does, check every window's look (status "
                       "looks against the palette, contrast, Tab order and focus, names for screen readers, "
                       "drawing at --scale 2), write DIR/audit.json and DIR/audit.html, then exit: 1 when "
                       "something was found, 0 otherwise."),
        QStringLiteral("DIR"));
    const QCommandLineOption scaleOption(
        QStringLiteral("scale"),
        QStringLiteral("With --screenshot or --audit: draw every window for a screen of N device pixels per pixel "
                       "(1 to 4, default 1), icons included."),
        QStringLiteral("N"), QStringLiteral("1"));
    parser.addOptions(
        {listOption, openOption, screenshotOption, objectMapOption, auditOption, mockLocaleOption, scaleOption});
    parser.process(arguments);
    bool scaleValid = false;
    const int scale = parser.value(scaleOption).toInt(&scaleValid);
    if (!scaleValid || scale < 1 || scale > 4) {
        err() << "testwidgetcollection: --scale takes a whole number from 1 to 4." << Qt::endl;
        return 2;
    }
    // The texts are translated when the forms are set up, so the translation comes first.
    if (parser.isSet(mockLocaleOption) && !installMockTranslation())
        return 1;

    if (parser.isSet(screenshotOption) || parser.isSet(objectMapOption) || parser.isSet(auditOption)) {
        useReproducibleLook();
        useReproducibleBehaviour();
    }
    VNStyleSheet::applyTo(qApp);
    m_panel = std::make_unique<TestWidgetCollection>(nullptr, Qt::WindowFlags());

    if (parser.isSet(listOption))
        return listButtons();
    if (parser.isSet(screenshotOption))
        return takeScreenshots(parser.value(screenshotOption));
    if (parser.isSet(objectMapOption))
        return writeObjectMap(parser.value(objectMapOption));
    if (parser.isSet(auditOption))
        return runAudit(parser.value(auditOption));

    const QStringList names = parser.values(openOption);
    for (const QString& name : names) {
        if (!findButton(name)) {
            QStringList valid;
            for (const LauncherTable::Entry& entry : LauncherTable::entries())
                valid << QLatin1String(entry.button);
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

QPushButton* HostApplication::findButton(const QString& name) const
{
    return LauncherTable::find(name) ? m_panel->findChild<QPushButton*>(name) : nullptr;
}

// Buttons outside the grid (the inspection buttons) have no row and column: "-".
int HostApplication::listButtons() const
{
    auto* grid = m_panel->findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    for (const LauncherTable::Entry& entry : LauncherTable::entries()) {
        QPushButton* button = findButton(QLatin1String(entry.button));
        const int index = grid && button ? grid->indexOf(button) : -1;
        int row = -1;
        int column = -1;
        int rowSpan = 0;
        int columnSpan = 0;
        if (index >= 0)
            grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
        const auto cell = [](int value) { return value < 0 ? QStringLiteral("-") : QString::number(value); };
        out() << entry.button << '\t' << (button ? button->text() : QString()) << '\t' << cell(row) << '\t'
              << cell(column) << '\n';
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
    // Again here: showing another page of a window may have started animations of its own.
    finishAnimations(window);
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
    if (!ReproducibleFont::install())
        err() << "testwidgetcollection: \"" << ReproducibleFont::file
              << "\" is missing (Debian package fonts-dejavu-core); texts use the system font." << Qt::endl;
}

// Everything else a screenshot run fixes so that it gives the same pixels on every machine and day.
void HostApplication::useReproducibleBehaviour()
{
    QApplication::setStyle(QStyleFactory::create(reproducibleStyle));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    // A text cursor that never blinks is drawn in every screenshot alike.
    QApplication::setCursorFlashTime(0);
    QCursor::setPos(reproducibleCursorPosition);
    CollectionClock::fixToday(reproducibleToday);
}

bool HostApplication::visitEveryWindow(const WindowVisitor& visit)
{
    m_panel->show();
    QApplication::processEvents();
    finishAnimations(m_panel.get());
    if (!visit(nullptr, m_panel.get(), 0))
        return false;
    const WindowWalk walk(modalWindowDelayMs);
    const QList<QPushButton*> buttons = WindowWalk::buttons(*m_panel);
    for (QPushButton* button : buttons) {
        const bool goOn = walk.click(button, [&](QWidget* window, int index) {
            finishAnimations(window);
            return visit(button, window, index);
        });
        if (!goOn)
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
        QTabWidget* tabs = pagesOf(name, window);
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

int HostApplication::runAudit(const QString& directory)
{
    LookAudit audit(directory, QCoreApplication::applicationFilePath());
    const QString error = audit.begin();
    if (!error.isEmpty()) {
        err() << "testwidgetcollection: " << error << "." << Qt::endl;
        return 1;
    }
    visitEveryWindow([&](const QPushButton* button, QWidget* window, int index) {
        const QString name = button ? button->objectName() : m_panel->objectName();
        audit.inspectWindow(index == 0 ? name : QStringLiteral("%1_%2").arg(name).arg(index + 1),
                            button ? button->text() : m_panel->windowTitle(), window);
        return true;
    });
    return audit.finish();
}
