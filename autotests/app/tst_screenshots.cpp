#include "ReproducibleRun.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

// Takes a screenshot of every window and compares it, pixel for pixel, with its reference in
// autotests/app/screenshots. A window that looks different leaves its new screenshot and a
// difference image in the build tree's screenshot-results folder. With TWC_ACCEPT_SCREENSHOTS=1
// (scripts/accept-screenshots.sh) the new screenshots become the references instead.
namespace {
const QString referenceDirectory = QStringLiteral(TWC_SOURCE_DIR "/autotests/app/screenshots");
const QString resultsDirectory = QStringLiteral(TWC_BINARY_DIR "/screenshot-results");
const QString acceptCommand = QStringLiteral("scripts/accept-screenshots.sh");
// Compressed as far as PNG goes, to keep the references small.
const int referenceQuality = 0;
const QRgb differentPixel = qRgb(255, 0, 0);

QStringList screenshotNames(const QDir& directory)
{
    QStringList names = directory.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
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
    bool takeScreenshots(const QProcessEnvironment& environment, const QString& directory);
    void acceptScreenshots();

    QTemporaryDir m_home;
    QTemporaryDir m_screenshots;
};

bool ScreenshotsTest::takeScreenshots(const QProcessEnvironment& environment, const QString& directory)
{
    return ReproducibleRun::runHost(environment, {QStringLiteral("--screenshot"), directory});
}

void ScreenshotsTest::acceptScreenshots()
{
    QDir references(referenceDirectory);
    for (const QString& name : screenshotNames(references))
        QVERIFY(references.remove(name + QStringLiteral(".png")));
    const QDir screenshots(m_screenshots.path());
    for (const QString& name : screenshotNames(screenshots)) {
        const QString file = name + QStringLiteral(".png");
        QVERIFY2(QImage(screenshots.filePath(file)).save(references.filePath(file), "PNG", referenceQuality),
                 qPrintable(references.filePath(file)));
    }
    qInfo("Accepted %d screenshots into %s", screenshotNames(screenshots).size(), qPrintable(referenceDirectory));
}

void ScreenshotsTest::initTestCase()
{
    QVERIFY(m_home.isValid() && m_screenshots.isValid());
    QVERIFY2(QFile::exists(ReproducibleRun::fontConfiguration), qPrintable(ReproducibleRun::fontConfiguration));
    QVERIFY2(QFile::exists(ReproducibleRun::fontFile),
             "the references show Debian's fonts-dejavu-core: install it with scripts/bootstrap.sh");
    QVERIFY2(takeScreenshots(ReproducibleRun::environment(QDir(m_home.path())), m_screenshots.path()),
             "the screenshot run failed");
    QVERIFY(QDir(resultsDirectory).removeRecursively() && QDir().mkpath(resultsDirectory));
    if (qEnvironmentVariableIntValue("TWC_ACCEPT_SCREENSHOTS") == 1)
        acceptScreenshots();
}

void ScreenshotsTest::matchesReference_data()
{
    QTest::addColumn<QString>("name");
    QStringList names = screenshotNames(QDir(referenceDirectory)) + screenshotNames(QDir(m_screenshots.path()));
    names.removeDuplicates();
    names.sort();
    for (const QString& name : qAsConst(names))
        QTest::newRow(qPrintable(name)) << name;
}

void ScreenshotsTest::matchesReference()
{
    QFETCH(QString, name);
    const QString file = name + QStringLiteral(".png");
    const QImage reference(QDir(referenceDirectory).filePath(file));
    const QImage screenshot(QDir(m_screenshots.path()).filePath(file));
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
