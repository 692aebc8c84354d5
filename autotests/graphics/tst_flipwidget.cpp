#include "TestFlipWidget.h"

#include <FlipWidget.h>
#include <LayoutVisualizationFilter.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QVariantAnimation>

namespace {
void finishFlip(FlipWidget* flip)
{
    if (flip->isFlipping())
        flip->animation()->setCurrentTime(flip->animation()->duration());
}
} // namespace

class FlipWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void flipButtonsTurnAndKeepState();
    void flipPaintsTurningPage();
};

void FlipWidgetTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void FlipWidgetTest::flipButtonsTurnAndKeepState()
{
    TestFlipWidget dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    FlipWidget* flip = dialog.flipWidget();
    auto* slider = dialog.findChild<QSlider*>(QStringLiteral("horizontalSlider"));
    auto* spinBox = dialog.findChild<QDoubleSpinBox*>(QStringLiteral("doubleSpinBox"));
    slider->setValue(42);
    QCOMPARE(flip->currentWidget()->objectName(), QStringLiteral("frame1"));
    // The dialog shows its layouts for inspection.
    auto* layouts = dialog.findChild<LayoutVisualizationFilter*>();
    QVERIFY(layouts && layouts->isInstalledOn(&dialog));

    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("flip1")), Qt::LeftButton);
    QVERIFY(flip->isFlipping());
    finishFlip(flip);
    QCOMPARE(flip->currentWidget()->objectName(), QStringLiteral("frame2"));
    QVERIFY(spinBox->isVisible());
    QVERIFY(!slider->isVisible());
    spinBox->setValue(7.5);

    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("flip2")), Qt::LeftButton);
    finishFlip(flip);
    QCOMPARE(flip->currentIndex(), 0);
    QVERIFY(slider->isVisible());
    QCOMPARE(slider->value(), 42);
    QCOMPARE(spinBox->value(), 7.5);
}

void FlipWidgetTest::flipPaintsTurningPage()
{
    QWidget window;
    auto* front = new QLabel;
    front->setAutoFillBackground(true);
    front->setStyleSheet(QStringLiteral("background: #ff0000;"));
    auto* back = new QLabel;
    back->setAutoFillBackground(true);
    back->setStyleSheet(QStringLiteral("background: #0000ff;"));
    auto* flip = new FlipWidget(front, back, &window);
    flip->resize(200, 100);
    window.resize(200, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    flip->flip();
    QVariantAnimation* animation = flip->animation();
    // A quarter turn in: the front page, narrowed, still shows; the corners are free.
    animation->setCurrentTime(animation->duration() / 4);
    QImage image = flip->grab().toImage();
    QCOMPARE(QColor(image.pixel(100, 50)), QColor(Qt::red));
    QVERIFY(QColor(image.pixel(2, 50)) != QColor(Qt::red));
    // Three quarters in: the back page turns into view.
    animation->setCurrentTime(animation->duration() * 3 / 4);
    image = flip->grab().toImage();
    QCOMPARE(QColor(image.pixel(100, 50)), QColor(Qt::blue));
    QVERIFY(QColor(image.pixel(2, 50)) != QColor(Qt::blue));
    QSignalSpy flipped(flip, &FlipWidget::flipped);
    animation->setCurrentTime(animation->duration());
    QVERIFY(!flip->isFlipping());
    QCOMPARE(QColor(flip->grab().toImage().pixel(2, 50)), QColor(Qt::blue));
    QCOMPARE(flipped.count(), 1);
    QCOMPARE(flipped.last().first().toInt(), 1);

    // A second flip during a turn ends the turn first and turns back.
    flip->flip();
    flip->flip();
    QVERIFY(flip->isFlipping());
    animation->setCurrentTime(animation->duration());
    QCOMPARE(flip->currentIndex(), 1);
    QCOMPARE(flipped.count(), 3);
    // Without animation the page turns at once.
    flip->setAnimationDuration(0);
    flip->flip();
    QVERIFY(!flip->isFlipping());
    QCOMPARE(flip->currentIndex(), 0);
    QVERIFY(front->isVisible());
    QCOMPARE(flipped.last().first().toInt(), 0);
}

QTEST_MAIN(FlipWidgetTest)
#include "tst_flipwidget.moc"
