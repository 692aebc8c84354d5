#include "../TestSupport.h"
#include "TestVNSliderView.h"

#include <VNSlider.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

namespace {
QSpinBox* spin(QWidget* dialog, const char* name)
{
    return child<QSpinBox>(dialog, name);
}

VNSlider* slider(QWidget* dialog, const char* name)
{
    return child<VNSlider>(dialog, name);
}

QList<QPair<int, int>> intervals(const VNSlider* slider)
{
    QList<QPair<int, int>> result;
    for (const VNSlider::Marker& marker : slider->markers())
        result << qMakePair(marker.from, marker.to);
    return result;
}
} // namespace

class SliderViewTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void seededSigmaSlider();
    void draggingAdmissibleRangeUpdatesSpinBoxes();
    void spinBoxesRebuildMarkings();
    void minimumDoesNotClampRecord();
    void bestAcceptsMinusOne();
    void currentFollowsSliderWithoutFeedback();
    void defaultMarkersTwiceLeaveSix();
    void addPassesReversedPair();
    void colourSpinBoxesRecolourMarkers();
    void defCurrentMovesThreeSliders();
    void rangeSpinBoxesAreInert();
    void enabledBoxes();
};

void SliderViewTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void SliderViewTest::seededSigmaSlider()
{
    TestVNSliderView dialog(nullptr);
    VNSlider* sigma = slider(&dialog, "m_sigmaSlider");
    QVERIFY(!sigma->hasTracking());
    QVERIFY(sigma->isDVValueSlider());
    QVERIFY(sigma->shadeOutsideAdmissibleRange);
    QCOMPARE(sigma->property("isIssueSlider"), QVariant(false));
    QCOMPARE(intervals(sigma), (QList<QPair<int, int>>{{0, 20}, {40, 60}, {90, 100}}));
    QCOMPARE(sigma->markers().at(0).brush, VNSlider::redBrush());
    QCOMPARE(sigma->markers().at(1).brush, VNSlider::greenBrush());
    QCOMPARE(sigma->admissibleRange().minimum, 5);
    QCOMPARE(sigma->admissibleRange().maximum, 95);
    QCOMPARE(sigma->bestMark(), 55);
    QCOMPARE(spin(&dialog, "m_markBest")->minimum(), -1);
}

void SliderViewTest::draggingAdmissibleRangeUpdatesSpinBoxes()
{
    TestVNSliderView dialog(nullptr);
    child<QTabWidget>(&dialog, "verticalSliderWidget")->setCurrentIndex(1);
    dialog.show();
    VNSlider* sigma = slider(&dialog, "m_sigmaSlider");
    QTRY_VERIFY(sigma->isVisible());
    const int below = sigma->grooveRect().bottom() + 6;
    sendLeftButtonDrag(sigma, QEvent::MouseButtonPress, QPoint(sigma->pixelPosition(95), below));
    sendLeftButtonDrag(sigma, QEvent::MouseMove, QPoint(sigma->pixelPosition(70), below));
    sendLeftButtonDrag(sigma, QEvent::MouseButtonRelease, QPoint(sigma->pixelPosition(70), below));
    QCOMPARE(spin(&dialog, "m_admissMax")->value(), 70);
    QCOMPARE(spin(&dialog, "m_admissMin")->value(), 5);
    QCOMPARE(sigma->admissibleRange().maximum, 70);
    // The record follows, so a later rebuild keeps the dragged range.
    spin(&dialog, "m_markBest")->setValue(30);
    QCOMPARE(sigma->admissibleRange().maximum, 70);
    QCOMPARE(sigma->markers().size(), 3);
}

void SliderViewTest::spinBoxesRebuildMarkings()
{
    TestVNSliderView dialog(nullptr);
    VNSlider* sigma = slider(&dialog, "m_sigmaSlider");
    spin(&dialog, "m_admissMin")->setValue(12);
    spin(&dialog, "m_sublimitMax")->setValue(80);
    spin(&dialog, "m_markBest")->setValue(44);
    QCOMPARE(sigma->admissibleRange().minimum, 12);
    QCOMPARE(sigma->currentSublimit().maximum, 80);
    QCOMPARE(sigma->bestMark(), 44);
    QCOMPARE(sigma->markers().size(), 3);
    child<QCheckBox>(&dialog, "m_gauss")->setChecked(true);
    QVERIFY(sigma->showGaussianCurve());
    child<QCheckBox>(&dialog, "m_input")->setChecked(false);
    QVERIFY(!sigma->isInputEnabled());
}

void SliderViewTest::minimumDoesNotClampRecord()
{
    TestVNSliderView dialog(nullptr);
    VNSlider* sigma = slider(&dialog, "m_sigmaSlider");
    QSignalSpy spy(sigma, &QSlider::valueChanged);
    spin(&dialog, "m_min")->setValue(60);
    QCOMPARE(sigma->minimum(), 60);
    QCOMPARE(spin(&dialog, "m_current")->minimum(), 60);
    QCOMPARE(spin(&dialog, "m_markBest")->minimum(), 60);
    QCOMPARE(spy.count(), 0);
    // The best field clamps to the new minimum and the mark follows it; the sublimit stays.
    QCOMPARE(spin(&dialog, "m_markBest")->value(), 60);
    QCOMPARE(sigma->bestMark(), 60);
    QCOMPARE(sigma->currentSublimit().minimum, 0);
    spin(&dialog, "m_min")->setValue(0);
    QCOMPARE(sigma->bestMark(), 60);
    spin(&dialog, "m_sublimitMin")->setValue(1);
    QCOMPARE(sigma->admissibleRange().minimum, 5);
    QCOMPARE(sigma->currentSublimit().minimum, 1);
    spin(&dialog, "m_max")->setValue(80);
    QCOMPARE(sigma->maximum(), 80);
    QCOMPARE(spin(&dialog, "m_markBest")->maximum(), 80);
    QCOMPARE(spin(&dialog, "m_current")->maximum(), 80);
}

void SliderViewTest::bestAcceptsMinusOne()
{
    TestVNSliderView dialog(nullptr);
    spin(&dialog, "m_min")->setValue(-1);
    spin(&dialog, "m_markBest")->setValue(-1);
    QCOMPARE(slider(&dialog, "m_sigmaSlider")->bestMark(), -1);
}

void SliderViewTest::currentFollowsSliderWithoutFeedback()
{
    TestVNSliderView dialog(nullptr);
    VNSlider* sigma = slider(&dialog, "m_sigmaSlider");
    spin(&dialog, "m_current")->setValue(42);
    QCOMPARE(sigma->value(), 42);
    QSignalSpy currentSpy(spin(&dialog, "m_current"), QOverload<int>::of(&QSpinBox::valueChanged));
    sigma->setValue(17);
    QCOMPARE(spin(&dialog, "m_current")->value(), 17);
    QCOMPARE(currentSpy.count(), 0);
}

void SliderViewTest::defaultMarkersTwiceLeaveSix()
{
    TestVNSliderView dialog(nullptr);
    const QList<QPair<int, int>> six{{0, 5}, {10, 10}, {15, 16}, {33, 33}, {55, 65}, {95, 100}};
    for (int round = 0; round < 2; ++round)
        child<QToolButton>(&dialog, "def_default")->click();
    QCOMPARE(intervals(slider(&dialog, "m_extendedSlider")), six);
    QCOMPARE(intervals(slider(&dialog, "m_spanSlider")), six);
    QCOMPARE(slider(&dialog, "m_extendedSlider")->markers().first().brush,
             slider(&dialog, "m_extendedSlider")->markerBrush());
    child<QToolButton>(&dialog, "def_reset")->click();
    QVERIFY(slider(&dialog, "m_extendedSlider")->markers().isEmpty());
    QVERIFY(slider(&dialog, "m_spanSlider")->markers().isEmpty());
    QVERIFY(slider(&dialog, "m_vnSlider")->markers().isEmpty());
}

void SliderViewTest::addPassesReversedPair()
{
    TestVNSliderView dialog(nullptr);
    spin(&dialog, "def_pos")->setValue(50);
    QCOMPARE(spin(&dialog, "def_pos2")->value(), 50);
    spin(&dialog, "def_pos2")->setValue(10);
    child<QToolButton>(&dialog, "def_add")->click();
    QCOMPARE(intervals(slider(&dialog, "m_extendedSlider")), (QList<QPair<int, int>>{{50, 10}}));
    QCOMPARE(intervals(slider(&dialog, "m_spanSlider")), (QList<QPair<int, int>>{{50, 10}}));
}

void SliderViewTest::colourSpinBoxesRecolourMarkers()
{
    TestVNSliderView dialog(nullptr);
    VNSlider* extended = slider(&dialog, "m_extendedSlider");
    const QColor initial = extended->markerBrush().color();
    QCOMPARE(spin(&dialog, "m_r")->value(), initial.red());
    QCOMPARE(spin(&dialog, "m_a")->value(), initial.alpha());
    child<QToolButton>(&dialog, "def_default")->click();
    spin(&dialog, "m_r")->setValue(255);
    spin(&dialog, "m_g")->setValue(0);
    spin(&dialog, "m_b")->setValue(255);
    spin(&dialog, "m_a")->setValue(255);
    QCOMPARE(extended->markerBrush().color(), QColor(255, 0, 255));
    extended->resize(400, 40);
    const QImage image = extended->grab().toImage();
    QCOMPARE(image.pixelColor(extended->pixelPosition(60), extended->grooveRect().center().y()), QColor(255, 0, 255));
    QVERIFY(slider(&dialog, "m_spanSlider")->markerBrush().color() != QColor(255, 0, 255));
}

void SliderViewTest::defCurrentMovesThreeSliders()
{
    TestVNSliderView dialog(nullptr);
    spin(&dialog, "def_current")->setValue(77);
    for (const char* name : {"m_extendedSlider", "m_vnSlider", "m_spanSlider"})
        QCOMPARE(slider(&dialog, name)->value(), 77);
    QSignalSpy spy(spin(&dialog, "def_current"), QOverload<int>::of(&QSpinBox::valueChanged));
    slider(&dialog, "m_extendedSlider")->setValue(120);
    QCOMPARE(spin(&dialog, "def_current")->value(), 120);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(slider(&dialog, "m_vnSlider")->value(), 77);
}

void SliderViewTest::rangeSpinBoxesAreInert()
{
    TestVNSliderView dialog(nullptr);
    spin(&dialog, "def_min")->setValue(-100);
    spin(&dialog, "def_max")->setValue(20);
    for (const char* name : {"m_extendedSlider", "m_spanSlider"}) {
        QCOMPARE(slider(&dialog, name)->minimum(), 0);
        QCOMPARE(slider(&dialog, name)->maximum(), 200);
    }
    QCOMPARE(slider(&dialog, "m_vnSlider")->maximum(), 99);
}

void SliderViewTest::enabledBoxes()
{
    TestVNSliderView dialog(nullptr);
    child<QCheckBox>(&dialog, "def_enabled")->setChecked(false);
    for (const char* name : {"m_extendedSlider", "m_vnSlider", "m_spanSlider", "m_plotSlider"})
        QVERIFY(!slider(&dialog, name)->isEnabled());
    child<QCheckBox>(&dialog, "def_extend")->setChecked(false);
    QVERIFY(!slider(&dialog, "m_extendedSlider")->isExtended());
    child<QCheckBox>(&dialog, "def_fill")->setChecked(false);
    QVERIFY(!slider(&dialog, "m_vnSlider")->isSubPageFilled());
    QVERIFY(!slider(&dialog, "m_extendedSlider")->isSubPageFilled());
    child<QCheckBox>(&dialog, "vert_enabled")->setChecked(false);
    QVERIFY(!child<QSlider>(&dialog, "m_verticalQSlider")->isEnabled());
    QVERIFY(!slider(&dialog, "m_verticalVNSlider")->isEnabled());
}

QTEST_MAIN(SliderViewTest)
#include "tst_sliderview.moc"
