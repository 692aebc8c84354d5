#include "ReproducibleRun.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

// Takes a screenshot of every window and compares it, pixel for pixel, with its reference in
// autotests/app/screenshots (screenshots-qt6 for a build with Qt 6, which draws a little
// differently); the panel and the gallery's tabs also at two device pixels per pixel
// (--scale 2), with references in its subfolder 2x. A window that looks different leaves its new
// screenshot and a difference image in the build tree's screenshot-results folder. With
// TWC_ACCEPT_SCREENSHOTS=1 (scripts/accept-screenshots.sh) the new screenshots become the
// references instead.
namespace {
const QString referenceDirectory = QStringLiteral(TWC_SCREENSHOT_REFERENCES);
const QString resultsDirectory = QStringLiteral(TWC_BINARY_DIR "/screenshot-results");
// The windows whose look at --scale 2 has references too, and where they are.
const QStringList highDensityWindows = {QStringLiteral("TestWidgetCollection.png"),
                                        QStringLiteral("m_testSquish-*.png")};
const QString highDensityFolder = QStringLiteral("2x");
const QString acceptCommand = QStringLiteral(TWC_ACCEPT_SCREENSHOTS_COMMAND);
// Compressed as far as PNG goes, to keep the references small.
const int referenceQuality = 0;
const QRgb differentPixel = qRgb(255, 0, 0);

QStringList screenshotNames(const QDir& directory, const QStringList& filters = {QStringLiteral("*.png")})
{
    QStringList names = directory.entryList(filters, QDir::Files, QDir::Name);
    for (QString& name : names)
        name.chop(4);
    return names;
}

QImage comparable(const QImage& image)
{
    return image.convertToFormat(QImage::Format_ARGB32);
}

// Equal pixels show pale grey, so that the window stays recognisable; differing ones and the area
// that only one of the two images covers show red.
QImage differenceImage(const QImage& reference, const QImage& screenshot, int* differing)
{
    const QSize size = reference.size().expandedTo(screenshot.size());
    QImage difference(size, QImage::Format_RGB32);
    *differing = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool inBoth = reference.valid(x, y) && screenshot.valid(x, y);
            const QRgb pixel = inBoth ? reference.pixel(x, y) : differentPixel;
            if (inBoth && pixel == screenshot.pixel(x, y)) {
                const int pale = 255 - (255 - qGray(pixel)) / 4;
                difference.setPixel(x, y, qRgb(pale, pale, pale));
            } else {
                difference.setPixel(x, y, differentPixel);
                ++*differing;
            }
        }
    }
    return difference;
}
} // namespace

class ScreenshotsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void matchesReference_data();
    void matchesReference();
    void ignoresUserSettings();

private:
    bool takeScreenshots(const QProcessEnvironment& environment, const QString& directory,
                         const QStringList& options = {});
    void acceptScreenshots(QDir references, const QDir& screenshots, const QStringList& filters);
    QString screenshotPath(const QString& name) const;

    QTemporaryDir m_home;
    QTemporaryDir m_screenshots;
    QTemporaryDir m_highDensityScreenshots;
};

bool ScreenshotsTest::takeScreenshots(const QProcessEnvironment& environment, const QString& directory,
                                      const QStringList& options)
{
    return ReproducibleRun::runHost(environment, QStringList{QStringLiteral("--screenshot"), directory} + options);
}

void ScreenshotsTest::acceptScreenshots(QDir references, const QDir& screenshots, const QStringList& filters)
{
    QVERIFY(references.mkpath(QStringLiteral(".")));
    for (const QString& name : screenshotNames(references))
        QVERIFY(references.remove(name + QStringLiteral(".png")));
    for (const QString& name : screenshotNames(screenshots, filters)) {
        const QString file = name + QStringLiteral(".png");
        QVERIFY2(QImage(screenshots.filePath(file)).save(references.filePath(file), "PNG", referenceQuality),
                 qPrintable(references.filePath(file)));
    }
    qInfo("Accepted %d screenshots into %s", int(screenshotNames(screenshots, filters).size()),
          qPrintable(references.path()));
}

void ScreenshotsTest::initTestCase()
{
    QVERIFY(m_home.isValid() && m_screenshots.isValid() && m_highDensityScreenshots.isValid());
    QVERIFY2(QFile::exists(ReproducibleRun::fontConfiguration), qPrintable(ReproducibleRun::fontConfiguration));
    QVERIFY2(QFile::exists(ReproducibleRun::fontFile),
             "the references show Debian's fonts-dejavu-core: install it with scripts/bootstrap.sh");
    const QProcessEnvironment environment = ReproducibleRun::environment(QDir(m_home.path()));
    QVERIFY2(takeScreenshots(environment, m_screenshots.path()), "the screenshot run failed");
    QVERIFY2(
        takeScreenshots(environment, m_highDensityScreenshots.path(), {QStringLiteral("--scale"), QStringLiteral("2")}),
        "the screenshot run at --scale 2 failed");
    QVERIFY(QDir(resultsDirectory).removeRecursively() && QDir().mkpath(resultsDirectory) &&
            QDir(resultsDirectory).mkpath(highDensityFolder));
    if (qEnvironmentVariableIntValue("TWC_ACCEPT_SCREENSHOTS") != 1)
        return;
    const QDir references(referenceDirectory);
    acceptScreenshots(references, QDir(m_screenshots.path()), {QStringLiteral("*.png")});
    acceptScreenshots(QDir(references.filePath(highDensityFolder)), QDir(m_highDensityScreenshots.path()),
                      highDensityWindows);
}

void ScreenshotsTest::matchesReference_data()
{
    QTest::addColumn<QString>("name");
    QStringList names = screenshotNames(QDir(referenceDirectory)) + screenshotNames(QDir(m_screenshots.path()));
    const QDir highDensityReferences(QDir(referenceDirectory).filePath(highDensityFolder));
    for (const QString& name : screenshotNames(highDensityReferences) +
                                   screenshotNames(QDir(m_highDensityScreenshots.path()), highDensityWindows))
        names << highDensityFolder + QLatin1Char('/') + name;
    names.removeDuplicates();
    names.sort();
    for (const QString& name : qAsConst(names))
        QTest::newRow(qPrintable(name)) << name;
}

// Where the run saved the window `name` ("2x/..." for the run at --scale 2).
QString ScreenshotsTest::screenshotPath(const QString& name) const
{
    const QString prefix = highDensityFolder + QLatin1Char('/');
    if (name.startsWith(prefix))
        return QDir(m_highDensityScreenshots.path()).filePath(name.mid(prefix.size()) + QStringLiteral(".png"));
    return QDir(m_screenshots.path()).filePath(name + QStringLiteral(".png"));
}

void ScreenshotsTest::matchesReference()
{
    QFETCH(QString, name);
    const QString file = name + QStringLiteral(".png");
    const QImage reference(QDir(referenceDirectory).filePath(file));
    const QImage screenshot(screenshotPath(name));
    if (reference.isNull())
        QFAIL(qPrintable(
            QStringLiteral("window %1 has no reference screenshot; accept it with %2").arg(name, acceptCommand)));
    if (screenshot.isNull())
        QFAIL(qPrintable(
            QStringLiteral("reference %1 has no window any more; remove it with %2").arg(file, acceptCommand)));
    if (comparable(reference) == comparable(screenshot))
        return;

    const QDir results(resultsDirectory);
    int differing = 0;
    const QString differenceFile = name + QStringLiteral("-difference.png");
    QVERIFY(screenshot.save(results.filePath(file)));
    QVERIFY(differenceImage(comparable(reference), comparable(screenshot), &differing)
                .save(results.filePath(differenceFile)));
    QFAIL(qPrintable(QStringLiteral("window %1 looks different from its reference (%2 x %3 now, %4 x %5 before, "
                                    "%6 pixels differ): see %7 and %8; accept it with %9")
                         .arg(name)
                         .arg(screenshot.width())
                         .arg(screenshot.height())
                         .arg(reference.width())
                         .arg(reference.height())
                         .arg(differing)
                         .arg(results.filePath(file), results.filePath(differenceFile), acceptCommand)));
}

// A designer's own scaling, style, font resolution, language and time zone change nothing.
void ScreenshotsTest::ignoresUserSettings()
{
    QProcessEnvironment environment = ReproducibleRun::environment(QDir(m_home.path()));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    environment.insert(QStringLiteral("QT_STYLE_OVERRIDE"), QStringLiteral("Windows"));
    environment.insert(QStringLiteral("QT_FONT_DPI"), QStringLiteral("120"));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("de_DE.UTF-8"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("Pacific/Auckland"));
    QTemporaryDir directory;
    QVERIFY(takeScreenshots(environment, directory.path()));
    const QDir screenshots(m_screenshots.path());
    const QDir withSettings(directory.path());
    QCOMPARE(screenshotNames(withSettings), screenshotNames(screenshots));
    QStringList changed;
    for (const QString& name : screenshotNames(screenshots)) {
        const QString file = name + QStringLiteral(".png");
        if (comparable(QImage(screenshots.filePath(file))) != comparable(QImage(withSettings.filePath(file))))
            changed << name;
    }
    QVERIFY2(changed.isEmpty(), qPrintable(QStringLiteral("windows that look different with a designer's settings: ") +
                                           changed.join(QStringLiteral(", "))));
}

QTEST_GUILESS_MAIN(ScreenshotsTest)
#include "tst_screenshots.moc"
