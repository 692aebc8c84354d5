#include "Loupe.h"

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTest>

namespace {
// Every pixel of the pattern has its own colour, so a magnified copy tells where it came from.
QColor patternColor(int x, int y)
{
    return QColor(x % 256, y % 256, (x / 256) * 64 + 32);
}

class PatternWidget : public QWidget
{
public:
    bool plain = false;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        if (plain) {
            painter.fillRect(rect(), Qt::white);
            return;
        }
        QImage image(size(), QImage::Format_RGB32);
        for (int y = 0; y < height(); ++y) {
            for (int x = 0; x < width(); ++x)
                image.setPixelColor(x, y, patternColor(x, y));
        }
        painter.drawImage(0, 0, image);
    }
};

QAction* action(QWidget* loupe, const QString& text)
{
    for (QAction* candidate : loupe->actions()) {
        if (candidate->text() == text)
            return candidate;
    }
    return nullptr;
}

QColor blended(const QColor& over, const QColor& under)
{
    const qreal alpha = over.alphaF();
    return QColor::fromRgbF(over.redF() * alpha + under.redF() * (1 - alpha),
                            over.greenF() * alpha + under.greenF() * (1 - alpha),
                            over.blueF() * alpha + under.blueF() * (1 - alpha));
}

bool near(const QColor& a, const QColor& b)
{
    return qAbs(a.red() - b.red()) <= 2 && qAbs(a.green() - b.green()) <= 2 && qAbs(a.blue() - b.blue()) <= 2;
}

const QPoint loupePosition(350, 120);

// The source pixel that a loupe pixel magnifies, for a loupe of the default size at loupePosition.
QPoint sourceOf(const QPoint& loupePixel, int zoom, int position)
{
    const QSize capture(300 / zoom, 200 / zoom);
    QPoint origin;
    if (position == 1)
        origin = loupePosition + QPoint(300, 0);
    else if (position == 2)
        origin = loupePosition - QPoint(0, capture.height() + 1);
    else
        origin = loupePosition - QPoint(capture.width() + 1, 0);
    return origin + QPoint(loupePixel.x() / zoom, loupePixel.y() / zoom);
}

struct Fixture
{
    PatternWidget parent;
    Loupe* loupe;
    Fixture()
    {
        parent.resize(800, 400);
        parent.move(0, 0);
        loupe = new Loupe(&parent);
        loupe->move(loupePosition);
        loupe->onChangeShowRect(false);
        const QList<QAction*> actions = loupe->actions();
        for (QAction* candidate : actions) {
            if (candidate->text().startsWith(QLatin1String("Show baseline")) && candidate->isChecked())
                candidate->trigger();
        }
        parent.show();
    }
};
} // namespace

class LoupeTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void construction();
    void contextMenu();
    void sizeChoices_data();
    void sizeChoices();
    void capture_data();
    void capture();
    void zoomIsClamped_data();
    void zoomIsClamped();
    void keyMoves_data();
    void keyMoves();
    void overlayColors();
    void ctrlArrowMovesMarkerAndGuides();
    void zoomAtLimitKeepsGuides();
    void mouseDragMovesLoupe();
    void exitHides();
};

void LoupeTest::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void LoupeTest::construction()
{
    QWidget parent;
    Loupe loupe(&parent);
    QCOMPARE(loupe.objectName(), QStringLiteral("LoupeClass"));
    QCOMPARE(loupe.windowTitle(), QStringLiteral("Loupe"));
    QVERIFY(!loupe.isWindow());
    QCOMPARE(loupe.geometry(), QRect(200, 10, 300, 200));
    QCOMPARE(loupe.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(loupe.contextMenuPolicy(), Qt::ActionsContextMenu);
}

void LoupeTest::contextMenu()
{
    QWidget parent;
    Loupe loupe(&parent);
    QStringList texts;
    for (QAction* entry : loupe.actions())
        texts << (entry->isSeparator() ? QStringLiteral("--") : entry->text());
    QCOMPARE(texts, QStringList({"small",
                                 "normal",
                                 "large",
                                 "Xlarge",
                                 "vertical",
                                 "--",
                                 "Show centerline",
                                 "Show baseline 6px",
                                 "Show baseline 7px (default)",
                                 "Show baseline 8px (CheckBox)",
                                 "Show V-Alignation",
                                 "Show H-Alignation",
                                 "--",
                                 "Show reft",
                                 "Show right",
                                 "Show bottom",
                                 "--",
                                 "Show 21px rect",
                                 "Show coord",
                                 "--",
                                 "E&xit"}));
    QVERIFY(action(&loupe, "normal")->isChecked());
    QVERIFY(!action(&loupe, "large")->isChecked());
    QVERIFY(!action(&loupe, "Xlarge")->isCheckable());
    QVERIFY(action(&loupe, "Show baseline 7px (default)")->isChecked());
    QVERIFY(action(&loupe, "Show right")->isChecked());
    QVERIFY(action(&loupe, "Show 21px rect")->isChecked());
    QCOMPARE(action(&loupe, "E&xit")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Q")));
}

void LoupeTest::sizeChoices_data()
{
    QTest::addColumn<bool>("vertical");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << false << "small" << QSize(200, 200);
    QTest::newRow("normal") << false << "normal" << QSize(300, 200);
    QTest::newRow("large is the widest") << false << "large" << QSize(500, 200);
    QTest::newRow("Xlarge is the smallest") << false << "Xlarge" << QSize(200, 200);
    QTest::newRow("vertical normal") << true << "normal" << QSize(200, 300);
    QTest::newRow("vertical large") << true << "large" << QSize(200, 500);
}

void LoupeTest::sizeChoices()
{
    QFETCH(bool, vertical);
    QFETCH(QString, choice);
    QFETCH(QSize, size);
    QWidget parent;
    Loupe loupe(&parent);
    action(&loupe, choice)->trigger();
    if (vertical)
        action(&loupe, "vertical")->trigger();
    QCOMPARE(loupe.size(), size);
}

void LoupeTest::capture_data()
{
    QTest::addColumn<QString>("positionAction");
    QTest::addColumn<int>("position");
    QTest::newRow("right of the area") << "Show right" << 0;
    QTest::newRow("left of the area") << "Show reft" << 1;
    QTest::newRow("below the area") << "Show bottom" << 2;
}

void LoupeTest::capture()
{
    QFETCH(QString, positionAction);
    QFETCH(int, position);
    Fixture fixture;
    action(fixture.loupe, positionAction)->trigger();
    const QImage image = fixture.loupe->grab().toImage();
    QCOMPARE(image.size(), QSize(300, 200));
    for (const QPoint& pixel : {QPoint(0, 0), QPoint(3, 3), QPoint(4, 0), QPoint(150, 101), QPoint(299, 199)}) {
        const QPoint source = sourceOf(pixel, 4, position);
        QCOMPARE(image.pixelColor(pixel), patternColor(source.x(), source.y()));
    }
}

void LoupeTest::zoomIsClamped_data()
{
    QTest::addColumn<int>("plus");
    QTest::addColumn<int>("minus");
    QTest::addColumn<int>("zoom");
    QTest::newRow("down to one") << 0 << 3 << 1;
    QTest::newRow("not below one") << 0 << 7 << 1;
    QTest::newRow("up to five") << 1 << 0 << 5;
    QTest::newRow("not above ten") << 9 << 0 << 10;
    QTest::newRow("down from the top") << 9 << 8 << 2;
}

void LoupeTest::zoomIsClamped()
{
    QFETCH(int, plus);
    QFETCH(int, minus);
    QFETCH(int, zoom);
    Fixture fixture;
    for (int i = 0; i < plus; ++i)
        QTest::keyClick(fixture.loupe, Qt::Key_Plus, Qt::ControlModifier);
    for (int i = 0; i < minus; ++i)
        QTest::keyClick(fixture.loupe, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(fixture.loupe, Qt::Key_Plus); // without Ctrl nothing changes
    const QImage image = fixture.loupe->grab().toImage();
    for (const QPoint& pixel : {QPoint(0, 0), QPoint(zoom, 0), QPoint(120, 60), QPoint(299, 199)}) {
        const QPoint source = sourceOf(pixel, zoom, 0);
        QCOMPARE(image.pixelColor(pixel), patternColor(source.x(), source.y()));
    }
}

void LoupeTest::keyMoves_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPoint>("move");
    QTest::newRow("left") << int(Qt::Key_Left) << int(Qt::NoModifier) << QPoint(-1, 0);
    QTest::newRow("right") << int(Qt::Key_Right) << int(Qt::NoModifier) << QPoint(1, 0);
    QTest::newRow("up") << int(Qt::Key_Up) << int(Qt::NoModifier) << QPoint(0, -1);
    QTest::newRow("down") << int(Qt::Key_Down) << int(Qt::NoModifier) << QPoint(0, 1);
    QTest::newRow("shift left") << int(Qt::Key_Left) << int(Qt::ShiftModifier) << QPoint(-10, 0);
    QTest::newRow("shift down") << int(Qt::Key_Down) << int(Qt::ShiftModifier) << QPoint(0, 10);
    QTest::newRow("ctrl keeps the loupe") << int(Qt::Key_Right) << int(Qt::ControlModifier) << QPoint(0, 0);
}

void LoupeTest::keyMoves()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QPoint, move);
    QWidget parent;
    Loupe loupe(&parent);
    const QPoint before = loupe.pos();
    QTest::keyClick(&loupe, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(loupe.pos() - before, move);
}

void LoupeTest::overlayColors()
{
    Fixture fixture;
    fixture.parent.plain = true;
    fixture.loupe->onChangeShowRect(true);
    fixture.loupe->showVAlignation(true);
    fixture.loupe->showHAlignation(true);
    const QImage image = fixture.loupe->grab().toImage();
    const QColor white(Qt::white);
    // Marker: 59 x 20 source pixels at zoom 4, centred in the 300 x 200 loupe.
    const QRect marker(32, 60, 236, 80);
    QVERIFY(near(image.pixelColor(marker.center().x(), marker.top()), blended(QColor(255, 0, 0, 110), white)));
    QVERIFY(near(image.pixelColor(marker.left(), marker.center().y()), blended(QColor(255, 0, 0, 110), white)));
    QCOMPARE(image.pixelColor(marker.center()), white);
    const QColor guide = blended(QColor(175, 10, 10, 190), white);
    QVERIFY(near(image.pixelColor(5, 20), guide));
    QVERIFY(near(image.pixelColor(100, 199 - 10), guide));
    QCOMPARE(image.pixelColor(6, 20), white);
}

void LoupeTest::ctrlArrowMovesMarkerAndGuides()
{
    Fixture fixture;
    fixture.parent.plain = true;
    fixture.loupe->showVAlignation(true);
    fixture.loupe->showCenterLine(true);
    const QPoint position = fixture.loupe->pos();
    QTest::keyClick(fixture.loupe, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(fixture.loupe, Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(fixture.loupe->pos(), position);
    const QImage image = fixture.loupe->grab().toImage();
    const QColor white(Qt::white);
    QVERIFY(near(image.pixelColor(6, 20), blended(QColor(175, 10, 10, 190), white)));
    QCOMPARE(image.pixelColor(5, 20), white);
    // The centre line follows the marker one pixel down: the marker's centre was at y = 99.
    const QColor centre = blended(QColor(10, 10, 10, 110), blended(QColor(210, 210, 210, 190), white));
    QVERIFY(near(image.pixelColor(20, 100), centre));
    QVERIFY(!near(image.pixelColor(20, 98), centre));
}

void LoupeTest::zoomAtLimitKeepsGuides()
{
    Fixture fixture;
    fixture.parent.plain = true;
    fixture.loupe->showVAlignation(true);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(fixture.loupe, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(fixture.loupe, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(fixture.loupe, Qt::Key_Minus, Qt::ControlModifier); // already at zoom 1
    const QImage image = fixture.loupe->grab().toImage();
    QVERIFY(near(image.pixelColor(6, 20), blended(QColor(175, 10, 10, 190), Qt::white)));
    QTest::keyClick(fixture.loupe, Qt::Key_Plus, Qt::ControlModifier); // a real change resets the guides
    QVERIFY(near(fixture.loupe->grab().toImage().pixelColor(5, 20), blended(QColor(175, 10, 10, 190), Qt::white)));
}

void LoupeTest::mouseDragMovesLoupe()
{
    Fixture fixture;
    Loupe* loupe = fixture.loupe;
    const QPoint start = loupe->pos();
    QTest::mousePress(loupe, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    const QPoint target(30, 25);
    QMouseEvent move(QEvent::MouseMove, target, loupe->mapToGlobal(target), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(loupe, &move);
    QCOMPARE(loupe->pos(), start + QPoint(20, 15));
    QTest::mouseRelease(loupe, Qt::LeftButton, Qt::NoModifier, target);
}

void LoupeTest::exitHides()
{
    Fixture fixture;
    QVERIFY(fixture.loupe->isVisible());
    action(fixture.loupe, "E&xit")->trigger();
    QVERIFY(!fixture.loupe->isVisible());
}

QTEST_MAIN(LoupeTest)
#include "tst_loupe.moc"
