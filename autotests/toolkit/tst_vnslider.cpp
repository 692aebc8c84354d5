#include "../TestSupport.h"

#include <VNSlider.h>
#include <VNWidgetStatus.h>

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

namespace {
const QColor red(0xd3, 0x2f, 0x2f);
const QColor green(0x2e, 0xa0, 0x43);
const QColor groove(0xc9, 0xd1, 0xd9);
const QColor best(0x1f, 0x3a, 0x93);
const QColor admissible(0x40, 0x40, 0x40);

// The sigma slider of the slider view test, drawn large enough to tell the zones apart.
void makeSigmaSlider(VNSlider& slider)
{
    slider.setRange(0, 100);
    slider.resize(400, 40);
    slider.mark(0, 20, VNSlider::redBrush());
    slider.mark(40, 60, VNSlider::greenBrush());
    slider.mark(90, 100, VNSlider::redBrush());
    slider.setAdmissibleRange(5, 95, true);
    slider.setCurrentSublimit({0, 100});
    slider.markBest(55);
    slider.setValue(70);
}

QColor pixel(const QImage& image, int x, int y)
{
    return image.pixelColor(x, y);
}

int grooveMiddle(const VNSlider& slider)
{
    return slider.grooveRect().center().y();
}

void drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    sendLeftButtonDrag(widget, QEvent::MouseButtonPress, from);
    sendLeftButtonDrag(widget, QEvent::MouseMove, (from + to) / 2);
    sendLeftButtonDrag(widget, QEvent::MouseMove, to);
    sendLeftButtonDrag(widget, QEvent::MouseButtonRelease, to);
}
} // namespace

class VNSliderTest : public QObject
{
    Q_OBJECT

private slots:
    void zoneColours_data();
    void zoneColours();
    void bestMarkAboveGroove();
    void rangeMiddleInWidgetMiddle();
    void draggingAdmissibleHandle_data();
    void draggingAdmissibleHandle();
    void valueDragRespectsTrackingAndSublimit();
    void inputDisabledIgnoresMouse();
    void spanSliderHandles();
    void disabledLookIsGrey();
    void brushColourRecoloursOwnMarkers();
    void verticalMarkersRunBottomUp();
    void gaussianCurveDrawsOverGroove();
};

void VNSliderTest::zoneColours_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("low red zone") << 10 << red;
    QTest::newRow("green zone") << 45 << green;
    QTest::newRow("high red zone") << 98 << red;
    QTest::newRow("between zones") << 30 << groove;
}

void VNSliderTest::zoneColours()
{
    QFETCH(int, value);
    QFETCH(QColor, expected);
    VNSlider slider(Qt::Horizontal);
    makeSigmaSlider(slider);
    const QImage image = slider.grab().toImage();
    QCOMPARE(pixel(image, slider.pixelPosition(value), grooveMiddle(slider)), expected);
}

void VNSliderTest::bestMarkAboveGroove()
{
    VNSlider slider(Qt::Horizontal);
    makeSigmaSlider(slider);
    const QImage image = slider.grab().toImage();
    const int above = slider.grooveRect().top() - 6;
    QCOMPARE(pixel(image, slider.pixelPosition(55), above), best);
    QVERIFY(pixel(image, slider.pixelPosition(50), above) != best);
    slider.markBest(20);
    const QImage moved = slider.grab().toImage();
    QCOMPARE(pixel(moved, slider.pixelPosition(20), above), best);
    QVERIFY(pixel(moved, slider.pixelPosition(55), above) != best);
}

// A range that does not start at zero: its middle value still sits in the middle of the slider.
void VNSliderTest::rangeMiddleInWidgetMiddle()
{
    VNSlider slider(Qt::Horizontal);
    slider.setRange(-50, 50);
    slider.resize(400, 40);
    slider.mark(-2, 2, VNSlider::greenBrush());
    slider.setValue(40);
    const QImage image = slider.grab().toImage();
    QCOMPARE(pixel(image, 200, grooveMiddle(slider)), green);
    QCOMPARE(pixel(image, 150, grooveMiddle(slider)), groove);
}

void VNSliderTest::draggingAdmissibleHandle_data()
{
    QTest::addColumn<int>("handle");
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("expectedMinimum");
    QTest::addColumn<int>("expectedMaximum");
    QTest::newRow("minimum up") << 5 << 20 << 20 << 95;
    QTest::newRow("minimum to the start") << 5 << 0 << 0 << 95;
    QTest::newRow("maximum down") << 95 << 80 << 5 << 80;
    QTest::newRow("maximum past the end stays in range") << 95 << 130 << 5 << 100;
    QTest::newRow("minimum cannot pass maximum") << 5 << 99 << 95 << 95;
}

void VNSliderTest::draggingAdmissibleHandle()
{
    QFETCH(int, handle);
    QFETCH(int, target);
    QFETCH(int, expectedMinimum);
    QFETCH(int, expectedMaximum);
    VNSlider slider(Qt::Horizontal);
    makeSigmaSlider(slider);
    QSignalSpy spy(&slider, &VNSlider::admissibleRangeChanged);
    const int below = slider.grooveRect().bottom() + 6;
    drag(&slider, QPoint(slider.pixelPosition(handle), below), QPoint(slider.pixelPosition(target), below));
    QVERIFY(!spy.isEmpty());
    QCOMPARE(spy.last().at(0).toInt(), expectedMinimum);
    QCOMPARE(spy.last().at(1).toInt(), expectedMaximum);
    QCOMPARE(slider.admissibleRange().minimum, expectedMinimum);
    QCOMPARE(slider.admissibleRange().maximum, expectedMaximum);
    QCOMPARE(slider.value(), 70);
    const QImage image = slider.grab().toImage();
    QCOMPARE(pixel(image, slider.pixelPosition(handle == 5 ? expectedMinimum : expectedMaximum), below), admissible);
    QVERIFY(pixel(image, slider.pixelPosition(handle), below) != admissible || handle == expectedMinimum ||
            handle == expectedMaximum);
}

void VNSliderTest::valueDragRespectsTrackingAndSublimit()
{
    VNSlider slider(Qt::Horizontal);
    makeSigmaSlider(slider);
    slider.setTracking(false);
    slider.setCurrentSublimit({10, 80});
    QSignalSpy spy(&slider, &QSlider::valueChanged);
    const int y = grooveMiddle(slider);
    sendLeftButtonDrag(&slider, QEvent::MouseButtonPress, QPoint(slider.pixelPosition(70), y));
    sendLeftButtonDrag(&slider, QEvent::MouseMove, QPoint(slider.pixelPosition(90), y));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(slider.sliderPosition(), 80);
    sendLeftButtonDrag(&slider, QEvent::MouseButtonRelease, QPoint(slider.pixelPosition(90), y));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(slider.value(), 80);
}

void VNSliderTest::inputDisabledIgnoresMouse()
{
    VNSlider slider(Qt::Horizontal);
    makeSigmaSlider(slider);
    slider.setInputEnabled(false);
    const int y = grooveMiddle(slider);
    drag(&slider, QPoint(slider.pixelPosition(70), y), QPoint(slider.pixelPosition(30), y));
    QCOMPARE(slider.value(), 70);
    QTest::keyClick(&slider, Qt::Key_Left);
    QCOMPARE(slider.value(), 70);
    slider.setInputEnabled(true);
    drag(&slider, QPoint(slider.pixelPosition(70), y), QPoint(slider.pixelPosition(30), y));
    QCOMPARE(slider.value(), 30);
}

void VNSliderTest::spanSliderHandles()
{
    VNSlider slider(Qt::Horizontal);
    slider.setRange(0, 200);
    slider.resize(400, 40);
    slider.setUseAsSpanSlider(true);
    slider.setAdmissibleRange(30, 150, true);
    slider.setUserRelevantRange(0, 200);
    const QColor fill(0x3d, 0x7e, 0xc9);
    const int y = grooveMiddle(slider);
    QImage image = slider.grab().toImage();
    QCOMPARE(pixel(image, slider.pixelPosition(100), y), fill);
    QVERIFY(pixel(image, slider.pixelPosition(10), y) != fill);
    QVERIFY(pixel(image, slider.pixelPosition(175), y) != fill);

    QSignalSpy spy(&slider, &VNSlider::admissibleRangeChanged);
    drag(&slider, QPoint(slider.pixelPosition(150), y), QPoint(slider.pixelPosition(180), y));
    QCOMPARE(spy.last(), QList<QVariant>({30, 180}));
    image = slider.grab().toImage();
    QCOMPARE(pixel(image, slider.pixelPosition(170), y), fill);
}

void VNSliderTest::disabledLookIsGrey()
{
    VNSlider slider(Qt::Horizontal);
    makeSigmaSlider(slider);
    slider.setEnabled(false);
    const QColor zone = pixel(slider.grab().toImage(), slider.pixelPosition(10), grooveMiddle(slider));
    QCOMPARE(zone.red(), zone.green());
    QCOMPARE(zone.green(), zone.blue());
}

void VNSliderTest::brushColourRecoloursOwnMarkers()
{
    VNSlider slider(Qt::Horizontal);
    slider.setRange(0, 100);
    slider.resize(400, 40);
    slider.setExtended(true);
    slider.mark(10, 30, slider.markerBrush());
    slider.mark(60, 70, VNSlider::greenBrush());
    slider.setBrushColor(QColor(255, 0, 255));
    const QImage image = slider.grab().toImage();
    QCOMPARE(pixel(image, slider.pixelPosition(20), grooveMiddle(slider)), QColor(255, 0, 255));
    QCOMPARE(pixel(image, slider.pixelPosition(65), grooveMiddle(slider)), green);
}

void VNSliderTest::verticalMarkersRunBottomUp()
{
    VNSlider slider(Qt::Vertical);
    slider.setRange(0, 100);
    slider.resize(40, 400);
    slider.mark(0, 20, VNSlider::redBrush());
    const QImage image = slider.grab().toImage();
    const int x = slider.grooveRect().center().x();
    QVERIFY(slider.pixelPosition(10) > slider.pixelPosition(90));
    QCOMPARE(pixel(image, x, slider.pixelPosition(10)), red);
    QCOMPARE(pixel(image, x, slider.pixelPosition(80)), groove);
}

void VNSliderTest::gaussianCurveDrawsOverGroove()
{
    VNSlider slider(Qt::Horizontal);
    makeSigmaSlider(slider);
    const QImage without = slider.grab().toImage();
    slider.setShowGaussianCurve(true);
    const QImage with = slider.grab().toImage();
    // The bell peaks over the best mark and is flat far from it.
    const int top = 0;
    const int bottom = slider.grooveRect().top() - 2;
    const auto columnChanged = [&](int x) {
        for (int y = top; y < bottom; ++y) {
            if (with.pixelColor(x, y) != without.pixelColor(x, y))
                return y;
        }
        return -1;
    };
    const int atPeak = columnChanged(slider.pixelPosition(48));
    const int atFlank = columnChanged(slider.pixelPosition(80));
    QVERIFY(atPeak >= 0);
    QVERIFY(atFlank >= 0);
    QVERIFY2(atPeak < atFlank, "the curve is highest near the best mark");
}

QTEST_MAIN(VNSliderTest)
#include "tst_vnslider.moc"
