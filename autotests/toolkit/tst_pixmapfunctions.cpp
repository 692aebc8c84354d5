#include <PixmapFunctions.h>

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace {
QPixmap onePixel(QRgb colour)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, colour);
    return QPixmap::fromImage(image);
}

QRgb pixelOf(const QPixmap& pixmap, int x = 0, int y = 0)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32).pixel(x, y);
}

QString writeImage(const QTemporaryDir& dir, const QString& name, const QSize& size, QColor colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    const QString path = dir.filePath(name);
    image.save(path);
    return path;
}
} // namespace

class TestPixmapFunctions : public QObject
{
    Q_OBJECT

private slots:
    void disabledIsLightGrey_data();
    void disabledIsLightGrey();
    void transparencyKeepsColours();
    void brightness_data();
    void brightness();
    void nullPixmapsStayNull();
    void composeLayers();
    void composeLeavesOutMissingLayers();
};

void TestPixmapFunctions::disabledIsLightGrey_data()
{
    QTest::addColumn<QRgb>("in");
    QTest::addColumn<QRgb>("out");
    // grey = (qGray + 255) / 2; qGray(r, g, b) = (11r + 16g + 5b) / 32
    QTest::newRow("black") << qRgba(0, 0, 0, 255) << qRgba(127, 127, 127, 255);
    QTest::newRow("white") << qRgba(255, 255, 255, 255) << qRgba(255, 255, 255, 255);
    QTest::newRow("pure red, half alpha") << qRgba(255, 0, 0, 128) << qRgba(171, 171, 171, 128);
    QTest::newRow("pure green") << qRgba(0, 255, 0, 255) << qRgba(191, 191, 191, 255);
}

void TestPixmapFunctions::disabledIsLightGrey()
{
    QFETCH(QRgb, in);
    QFETCH(QRgb, out);
    QCOMPARE(pixelOf(disabledPixmap(onePixel(in))), out);
}

void TestPixmapFunctions::transparencyKeepsColours()
{
    QCOMPARE(pixelOf(disabledPixmapByTransparency(onePixel(qRgba(10, 200, 30, 255)))), qRgba(10, 200, 30, 102));
    QCOMPARE(qAlpha(pixelOf(disabledPixmapByTransparency(onePixel(qRgba(10, 200, 30, 100))))), 40);
}

void TestPixmapFunctions::brightness_data()
{
    QTest::addColumn<int>("factor");
    QTest::addColumn<QRgb>("out");
    // applied to qRgba(100, 200, 0, 255)
    QTest::newRow("unchanged") << 0 << qRgba(100, 200, 0, 255);
    QTest::newRow("half way to white") << 50 << qRgba(178, 228, 128, 255);
    QTest::newRow("half way to black") << -50 << qRgba(50, 100, 0, 255);
    QTest::newRow("-20 %") << -20 << qRgba(80, 160, 0, 255);
    QTest::newRow("white") << 100 << qRgba(255, 255, 255, 255);
    QTest::newRow("clamped up") << 250 << qRgba(255, 255, 255, 255);
    QTest::newRow("clamped down") << -250 << qRgba(0, 0, 0, 255);
}

void TestPixmapFunctions::brightness()
{
    QFETCH(int, factor);
    QFETCH(QRgb, out);
    QCOMPARE(pixelOf(adjustPixmapBrightness(onePixel(qRgba(100, 200, 0, 255)), factor)), out);
}

void TestPixmapFunctions::nullPixmapsStayNull()
{
    QVERIFY(disabledPixmap(QPixmap()).isNull());
    QVERIFY(disabledPixmapByTransparency(QPixmap()).isNull());
    QVERIFY(adjustPixmapBrightness(QPixmap(), 30).isNull());
    QVERIFY(composePixmap(QString(), QString(), QString()).isNull());
}

void TestPixmapFunctions::composeLayers()
{
    QTemporaryDir dir;
    const QString base = writeImage(dir, "base.png", QSize(48, 48), Qt::blue);
    const QString overlay = writeImage(dir, "overlay.png", QSize(10, 10), Qt::red);
    const QString large = writeImage(dir, "large.png", QSize(96, 24), Qt::green);

    const QPixmap composed = composePixmap(base, overlay, QString());
    QCOMPARE(composed.size(), QSize(48, 48));
    QCOMPARE(pixelOf(composed, 0, 0), qRgb(0, 0, 255));
    QCOMPARE(pixelOf(composed, 19, 19), qRgb(255, 0, 0)); // centred: 19 ... 28
    QCOMPARE(pixelOf(composed, 18, 19), qRgb(0, 0, 255));

    // A wider layer is scaled down to the canvas width, keeping its aspect ratio: 48 x 12, centred.
    const QPixmap scaled = composePixmap(base, QString(), large);
    QCOMPARE(pixelOf(scaled, 24, 17), qRgb(0, 0, 255));
    QCOMPARE(pixelOf(scaled, 24, 19), qRgb(0, 255, 0));
    QCOMPARE(pixelOf(scaled, 24, 28), qRgb(0, 255, 0));
    QCOMPARE(pixelOf(scaled, 24, 30), qRgb(0, 0, 255));

    // Without a base the largest overlay sets the canvas.
    QCOMPARE(composePixmap(QString(), overlay, large).size(), QSize(96, 24));
}

void TestPixmapFunctions::composeLeavesOutMissingLayers()
{
    QTemporaryDir dir;
    const QString overlay = writeImage(dir, "overlay.png", QSize(10, 10), Qt::red);
    QFile corrupt(dir.filePath("corrupt.png"));
    QVERIFY(corrupt.open(QIODevice::WriteOnly));
    corrupt.write("\x89PNG\r\n\x1a\n truncated");
    corrupt.close();
    const QPixmap composed = composePixmap(corrupt.fileName(), overlay, dir.filePath("missing.png"));
    QCOMPARE(composed.size(), QSize(10, 10));
    QCOMPARE(pixelOf(composed, 5, 5), qRgb(255, 0, 0));
}

QTEST_MAIN(TestPixmapFunctions)
#include "tst_pixmapfunctions.moc"
