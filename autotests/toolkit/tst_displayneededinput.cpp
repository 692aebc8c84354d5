#include <VNDisplayNeededInput.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

namespace {
const QColor accent(0, 0, 255);
const QColor background(255, 255, 255);
const QColor textColor(0, 0, 0);

void useKnownColours(QWidget& widget)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::WindowText, textColor);
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

bool near(const QColor& seen, const QColor& expected, int tolerance = 40)
{
    return std::abs(seen.red() - expected.red()) <= tolerance &&
           std::abs(seen.green() - expected.green()) <= tolerance &&
           std::abs(seen.blue() - expected.blue()) <= tolerance;
}

// The pixels of the circle's outline on the horizontal and vertical through its centre.
QList<QColor> outline(const QImage& image, const QRect& point)
{
    const QPoint centre = point.center();
    return {image.pixelColor(point.left() + 1, centre.y()), image.pixelColor(point.right() - 1, centre.y()),
            image.pixelColor(centre.x(), point.top() + 1), image.pixelColor(centre.x(), point.bottom() - 1)};
}

int countNear(const QList<QColor>& colours, const QColor& expected)
{
    return int(std::count_if(colours.begin(), colours.end(),
                             [&expected](const QColor& colour) { return near(colour, expected); }));
}

bool hasInk(const QImage& image, const QRect& area)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (near(image.pixelColor(x, y), textColor, 100))
                return true;
        }
    }
    return false;
}
} // namespace

class DisplayNeededInputTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void optionalCount_data();
    void optionalCount();
    void signalsOnlyOnChange();
    void negativeCountsAreZero();
    void pointsShowWhatWasGiven_data();
    void pointsShowWhatWasGiven();
    void textBesideThePoints();
    void tooManyPointsAreSummedUp();
};

void DisplayNeededInputTest::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void DisplayNeededInputTest::optionalCount_data()
{
    QTest::addColumn<int>("needed");
    QTest::addColumn<int>("manual");
    QTest::addColumn<bool>("useOptional");
    QTest::addColumn<int>("expected");
    QTest::newRow("manual count") << 3 << 2 << false << 2;
    QTest::newRow("derived: one less than needed") << 3 << 7 << true << 2;
    QTest::newRow("derived: one needed, none optional") << 1 << 7 << true << 0;
    QTest::newRow("derived: nothing needed") << 0 << 7 << true << 0;
}

void DisplayNeededInputTest::optionalCount()
{
    QFETCH(int, needed);
    QFETCH(int, manual);
    QFETCH(bool, useOptional);
    QFETCH(int, expected);
    VNDisplayNeededInput display;
    display.setOptional(manual);
    display.setNeeded(needed);
    display.setUseOptional(useOptional);
    QCOMPARE(display.optional(), expected);
    QCOMPARE(display.pointCount(), needed + expected);
    display.setUseOptional(false); // keeps what it showed
    QCOMPARE(display.optional(), expected);
}

void DisplayNeededInputTest::signalsOnlyOnChange()
{
    VNDisplayNeededInput display;
    QSignalSpy needed(&display, &VNDisplayNeededInput::neededChanged);
    QSignalSpy optional(&display, &VNDisplayNeededInput::optionalChanged);
    QSignalSpy text(&display, &VNDisplayNeededInput::infoTextChanged);
    display.setUseOptional(true);
    display.setNeeded(4);
    display.setNeeded(4);
    QCOMPARE(needed.count(), 1);
    QCOMPARE(optional.count(), 1);
    QCOMPARE(optional.at(0).at(0).toInt(), 3);
    display.setOptional(5); // the shown count stays derived
    QCOMPARE(optional.count(), 1);
    display.setUseOptional(false); // and stays when switched off
    QCOMPARE(optional.count(), 1);
    display.setOptional(5);
    QCOMPARE(optional.count(), 2);
    QCOMPARE(optional.at(1).at(0).toInt(), 5);
    display.setInfoText(QStringLiteral("Pick"));
    display.setInfoText(QStringLiteral("Pick"));
    QCOMPARE(text.count(), 1);
}

void DisplayNeededInputTest::negativeCountsAreZero()
{
    VNDisplayNeededInput display;
    display.setNeeded(-2);
    display.setOptional(-1);
    display.setChecked(-5);
    QCOMPARE(display.needed(), 0);
    QCOMPARE(display.optional(), 0);
    QCOMPARE(display.checked(), 0);
}

void DisplayNeededInputTest::pointsShowWhatWasGiven_data()
{
    QTest::addColumn<int>("checked");
    QTest::newRow("none given") << 0;
    QTest::newRow("one needed given") << 1;
    QTest::newRow("all needed given") << 3;
    QTest::newRow("one optional given too") << 4;
}

// Three needed and two optional points: given ones are filled, missing needed ones have a solid
// accent outline, missing optional ones a lighter broken outline.
void DisplayNeededInputTest::pointsShowWhatWasGiven()
{
    QFETCH(int, checked);
    VNDisplayNeededInput display;
    useKnownColours(display);
    display.setNeeded(3);
    display.setOptional(2);
    display.setChecked(checked);
    display.resize(300, 40);
    const QImage image = display.grab().toImage();

    for (int index = 0; index < 5; ++index) {
        const QRect point = display.pointRect(index);
        QVERIFY(!point.isEmpty());
        QVERIFY(display.rect().contains(point));
        if (index > 0)
            QVERIFY(point.left() > display.pointRect(index - 1).right());
        const QColor inside = image.pixelColor(point.center());
        const QList<QColor> ring = outline(image, point);
        const bool needed = index < 3;
        if (index < checked) {
            QVERIFY2(needed ? near(inside, accent) : !near(inside, background) && !near(inside, accent),
                     qPrintable(QStringLiteral("point %1 not filled").arg(index)));
        } else if (needed) {
            QVERIFY2(near(inside, background), qPrintable(QStringLiteral("point %1 filled").arg(index)));
            QCOMPARE(countNear(ring, accent), 4);
        } else {
            QVERIFY2(near(inside, background), qPrintable(QStringLiteral("point %1 filled").arg(index)));
            QCOMPARE(countNear(ring, accent), 0);
            QVERIFY2(countNear(ring, background) < 4, "optional point has no outline");
        }
    }
}

void DisplayNeededInputTest::textBesideThePoints()
{
    VNDisplayNeededInput display;
    useKnownColours(display);
    display.setNeeded(2);
    display.resize(400, 40);
    const QRect rightOfPoints(display.pointRect(1).right() + 4, 0, 400 - display.pointRect(1).right() - 4, 40);
    QVERIFY(!hasInk(display.grab().toImage(), rightOfPoints));
    display.setInfoText(QStringLiteral("Click two points"));
    QVERIFY(hasInk(display.grab().toImage(), rightOfPoints));
    QVERIFY(display.sizeHint().width() > display.fontMetrics().horizontalAdvance(QStringLiteral("Click two points")));
}

void DisplayNeededInputTest::tooManyPointsAreSummedUp()
{
    VNDisplayNeededInput display;
    useKnownColours(display);
    display.setNeeded(99);
    display.resize(200, 40);
    QVERIFY(!display.pointRect(0).isEmpty());
    QVERIFY(display.pointRect(98).isEmpty());
    int shown = 0;
    while (!display.pointRect(shown).isEmpty())
        ++shown;
    QVERIFY(display.pointRect(shown - 1).right() < 200);
    // "+n" stands for the rest behind the last circle
    const int behind = display.pointRect(shown - 1).right() + 2;
    QVERIFY(hasInk(display.grab().toImage(), QRect(behind, 0, 200 - behind, 40)));
}

QTEST_MAIN(DisplayNeededInputTest)
#include "tst_displayneededinput.moc"
