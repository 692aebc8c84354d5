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
    QColor plain; // when valid, the widget is painted in this one colour

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        if (plain.isValid()) {
            painter.fillRect(rect(), plain);
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

class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
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
        // Every guide off, through the context menu as a user switches them off.
        const QList<QAction*> actions = loupe->actions();
        for (QAction* candidate : actions) {
            if (candidate->isCheckable() && candidate->isChecked() && candidate->text().startsWith("Show ") &&
                !candidate->actionGroup())
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
    void contextMenu();
    void sizeChoices_data();
    void sizeChoices();
    void capture_data();
    void capture();
    void zoomIsClamped_data();
    void zoomIsClamped();
    void keyMoves_data();
    void keyMoves();
    void overlays_data();
    void overlays();
    void refreshesTwiceASecond();
    void ctrlArrowMovesMarkerAndGuidesUntilZoomChanges();
    void mouseDragMovesLoupeAndExitHidesIt();
};

void LoupeTest::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void LoupeTest::contextMenu()
{
    QWidget parent;
    Loupe loupe(&parent);
    QVERIFY(!loupe.isWindow());
    QCOMPARE(loupe.geometry(), QRect(200, 10, 300, 200));
    QCOMPARE(loupe.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(loupe.contextMenuPolicy(), Qt::ActionsContextMenu);
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

// Each guide over a black area: the pixels on it in its pen colour, the pixels beside it untouched.
// Marker: 59 x 20 source pixels at zoom 4, centred in the 300 x 200 loupe, drawn one source pixel wide.
void LoupeTest::overlays_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QColor>("pen");
    QTest::addColumn<QList<QPoint>>("on");
    QTest::addColumn<QList<QPoint>>("off");
    using Points = QList<QPoint>;
    QTest::newRow("marker") << "Show 21px rect" << QColor(255, 0, 0, 110)
                            << Points{{150, 58}, {150, 61}, {30, 100}, {33, 100}, {266, 139}}
                            << Points{{150, 57}, {150, 62}, {29, 100}, {34, 100}, {150, 100}};
    QTest::newRow("ruler") << "Show coord" << QColor(240, 240, 240)
                           << Points{{10, 60}, {38, 60}, {36, 61}, {32, 150}, {32, 195}}
                           << Points{{10, 59}, {10, 61}, {38, 59}, {38, 61}, {31, 150}, {33, 150}, {36, 63}};
    QTest::newRow("centre line") << "Show centerline" << QColor() << Points{{10, 98}, {10, 99}, {10, 100}, {299, 99}}
                                 << Points{{10, 97}, {10, 101}};
    QTest::newRow("6px baseline") << "Show baseline 6px" << QColor(255, 255, 210, 190)
                                  << Points{{32, 118}, {150, 118}, {267, 118}}
                                  << Points{{31, 118}, {150, 117}, {150, 119}};
    QTest::newRow("7px baseline") << "Show baseline 7px (default)" << QColor(210, 255, 210, 190)
                                  << Points{{32, 114}, {150, 114}, {267, 114}}
                                  << Points{{268, 114}, {150, 113}, {150, 115}};
    QTest::newRow("8px baseline") << "Show baseline 8px (CheckBox)" << QColor(210, 255, 255, 190)
                                  << Points{{32, 110}, {150, 110}, {267, 110}}
                                  << Points{{20, 110}, {150, 109}, {150, 111}};
    QTest::newRow("vertical alignment") << "Show V-Alignation" << QColor(175, 10, 10, 190)
                                        << Points{{5, 0}, {5, 100}, {5, 199}} << Points{{4, 100}, {6, 100}};
    QTest::newRow("horizontal alignment") << "Show H-Alignation" << QColor(175, 10, 10, 190)
                                          << Points{{0, 189}, {150, 189}, {299, 189}} << Points{{150, 188}, {150, 190}};
}

void LoupeTest::overlays()
{
    QFETCH(QString, choice);
    QFETCH(QColor, pen);
    QFETCH(QList<QPoint>, on);
    QFETCH(QList<QPoint>, off);
    Fixture fixture;
    fixture.parent.plain = Qt::black;
    action(fixture.loupe, choice)->trigger();
    const QImage image = fixture.loupe->grab().toImage();
    // The centre line is a light band three pixels wide with a dark line in its middle.
    const QColor band = blended(QColor(210, 210, 210, 190), Qt::black);
    const QColor color = pen.isValid() ? blended(pen, Qt::black) : band;
    for (const QPoint& point : on) {
        const QColor expected = !pen.isValid() && point.y() == 99 ? blended(QColor(10, 10, 10, 110), band) : color;
        QVERIFY2(
            near(image.pixelColor(point), expected),
            qPrintable(QStringLiteral("%1,%2: %3").arg(point.x()).arg(point.y()).arg(image.pixelColor(point).name())));
    }
    for (const QPoint& point : off)
        QVERIFY2(image.pixelColor(point) == Qt::black,
                 qPrintable(QStringLiteral("%1,%2").arg(point.x()).arg(point.y())));
}

// The loupe follows the live widgets under it: it captures them afresh twice a second.
void LoupeTest::refreshesTwiceASecond()
{
    Fixture fixture;
    QVERIFY(QTest::qWaitForWindowExposed(&fixture.parent));
    QCoreApplication::processEvents(); // the first paint
    PaintCounter counter;
    fixture.loupe->installEventFilter(&counter);
    QTRY_VERIFY_WITH_TIMEOUT(counter.paints >= 2, 1800); // a slower refresh needs 2000 ms
}

void LoupeTest::ctrlArrowMovesMarkerAndGuidesUntilZoomChanges()
{
    Fixture fixture;
    fixture.parent.plain = Qt::white;
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

    // A zoom change puts the guides back; a zoom key at its limit changes nothing.
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(fixture.loupe, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(fixture.loupe, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(fixture.loupe, Qt::Key_Minus, Qt::ControlModifier); // already at zoom 1
    QVERIFY(near(fixture.loupe->grab().toImage().pixelColor(6, 20), blended(QColor(175, 10, 10, 190), white)));
    QTest::keyClick(fixture.loupe, Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(near(fixture.loupe->grab().toImage().pixelColor(5, 20), blended(QColor(175, 10, 10, 190), white)));
}

void LoupeTest::mouseDragMovesLoupeAndExitHidesIt()
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
    action(loupe, "E&xit")->trigger();
    QVERIFY(!loupe->isVisible());
}

QTEST_MAIN(LoupeTest)
#include "tst_loupe.moc"
