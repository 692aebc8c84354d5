#include "../TestSupport.h"
#include "TestDisclosure.h"

#include <VNBarChart.h>
#include <VNProgressiveDisclosure.h>
#include <VNProgressiveDisclosureBtn.h>
#include <VNProgressiveDisclosureGroup.h>
#include <VNResizeableDisclosure.h>
#include <VNStatusPalette.h>
#include <VNStyleSheet.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCursor>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVariantAnimation>

namespace {
QWidget* part(VNProgressiveDisclosure& disclosure, const char* name)
{
    return disclosure.findChild<QWidget*>(QLatin1String(name));
}

// Finishes a running open or close animation without waiting for it.
void finishAnimation(VNProgressiveDisclosure& disclosure)
{
    QVariantAnimation* animation = disclosure.animation();
    if (animation->state() == QAbstractAnimation::Running)
        animation->setCurrentTime(animation->duration());
}
} // namespace

class DisclosureTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void showModes_data();
    void showModes();
    void opensWithAnimation();
    void optionalCheckSwitches();
    void formPropertiesAndContent();
    void groupSingleMode();
    void colorBox();
    void statusShowsOnHead_data();
    void statusShowsOnHead();
    void resizeHandleChangesHeight();
    void barChartPaintsBars();
    void settingsRoundTrip();
    void enabledSwitchesCurrentDisclosure();
    void calculateDisablesButKeepsVisible();
};

void DisclosureTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
}

void DisclosureTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void DisclosureTest::showModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("visibleOpen");
    QTest::addColumn<bool>("visibleClosed");
    QTest::newRow("ShowNever") << 0 << false << false;
    QTest::newRow("ShowAlways") << 1 << true << true;
    QTest::newRow("ShowOnClose") << 2 << false << true;
}

void DisclosureTest::showModes()
{
    QFETCH(int, mode);
    QFETCH(bool, visibleOpen);
    QFETCH(bool, visibleClosed);
    VNProgressiveDisclosure disclosure;
    disclosure.setAnimationDuration(0);
    disclosure.setStateLabelText(QStringLiteral("state"));
    disclosure.setShowStateLabel(mode);
    disclosure.setShowInfoButton(mode);
    disclosure.setShowTopLine(mode);
    disclosure.setShowBottomLine(mode);
    disclosure.show();
    for (const char* name : {"stateLabel", "infoButton", "topLine", "bottomLine"})
        QVERIFY2(part(disclosure, name)->isVisible() == visibleOpen, name);
    disclosure.setOpen(false);
    for (const char* name : {"stateLabel", "infoButton", "topLine", "bottomLine"})
        QVERIFY2(part(disclosure, name)->isVisible() == visibleClosed, name);
    QCOMPARE(disclosure.getShowStateLabel(), mode);
}

void DisclosureTest::opensWithAnimation()
{
    VNProgressiveDisclosure disclosure;
    auto* content = new QLabel(QStringLiteral("content"));
    content->setMinimumHeight(60);
    disclosure.setContentWidget(content);
    disclosure.show();
    QVERIFY(QTest::qWaitForWindowExposed(&disclosure));
    QWidget* area = part(disclosure, "contentArea");

    disclosure.setOpen(false);
    QVERIFY(disclosure.isAnimating());
    disclosure.animation()->setCurrentTime(disclosure.animationDuration() / 2);
    QVERIFY(area->isVisible());
    QVERIFY(area->maximumHeight() > 0 && area->maximumHeight() < 60);
    finishAnimation(disclosure);
    QVERIFY(!disclosure.isAnimating());
    QVERIFY(!area->isVisible());

    disclosure.setOpen(true);
    QVERIFY(disclosure.isAnimating());
    finishAnimation(disclosure);
    QTRY_VERIFY(area->height() >= 60);
}

void DisclosureTest::optionalCheckSwitches()
{
    VNProgressiveDisclosure disclosure;
    disclosure.setContentWidget(new QLabel(QStringLiteral("content")));
    disclosure.setAnimationDuration(0);
    disclosure.setOptionalCheckVisible(true);
    disclosure.show();
    QCheckBox* check = disclosure.getOptionalCheckBox();
    QVERIFY(check->isVisible());

    check->setChecked(false);
    QVERIFY(!disclosure.contentWidget()->isVisible());
    check->setChecked(true);
    QVERIFY(disclosure.contentWidget()->isVisible());

    disclosure.setOptionalCheckForVisibilitySwitch(false);
    check->setChecked(false);
    QVERIFY(disclosure.contentWidget()->isVisible());
    QVERIFY(!disclosure.contentWidget()->isEnabled());
}

void DisclosureTest::formPropertiesAndContent()
{
    QWidget parent;
    auto* disclosure = new VNProgressiveDisclosure(&parent);
    auto* container = new QWidget(disclosure);
    container->setObjectName(QStringLiteral("SomeContainer"));
    disclosure->setProperty("resizeAble", true);
    disclosure->setProperty("showOptionalCheck", true);
    disclosure->setProperty("enableClientWidget", true);
    QVERIFY(disclosure->isResizable());
    QVERIFY(disclosure->isOptionalCheckVisible());
    QVERIFY(!disclosure->isOptionalCheckForVisibilitySwitch());
    QCOMPARE(disclosure->contentWidget(), container);
}

void DisclosureTest::groupSingleMode()
{
    QWidget window;
    VNProgressiveDisclosureGroup group;
    QList<VNProgressiveDisclosure*> disclosures;
    for (int index = 0; index < 3; ++index) {
        auto* disclosure = new VNProgressiveDisclosure(&window);
        disclosure->setAnimationDuration(0);
        group.add(disclosure);
        disclosures.append(disclosure);
    }
    disclosures[1]->setOpen(true);
    group.setGlobalSingleMode(true);
    QCOMPARE(disclosures[0]->isOpen(), true);
    QCOMPARE(disclosures[1]->isOpen(), false);
    QCOMPARE(disclosures[2]->isOpen(), false);

    disclosures[2]->setOpen(true);
    QCOMPARE(disclosures[0]->isOpen(), false);
    QCOMPARE(disclosures[2]->isOpen(), true);

    auto* newcomer = new VNProgressiveDisclosure(&window);
    newcomer->setAnimationDuration(0);
    group.add(newcomer);
    QVERIFY(!newcomer->isOpen());
    QVERIFY(disclosures[2]->isOpen());
    group.remove(newcomer);
    newcomer->setOpen(true);
    QVERIFY(disclosures[2]->isOpen());

    group.setGlobalSingleMode(false);
    disclosures[0]->setOpen(true);
    QCOMPARE(disclosures[2]->isOpen(), true);
}

void DisclosureTest::colorBox()
{
    VNProgressiveDisclosure disclosure;
    disclosure.show();
    QWidget* box = part(disclosure, "colorBox");
    QVERIFY(!box->isVisible());
    disclosure.setColorBox(QColor(255, 0, 255));
    QVERIFY(box->isVisible());
    QCOMPARE(QColor(box->grab().toImage().pixel(box->width() / 2, box->height() / 2)), QColor(255, 0, 255));
    disclosure.setColorBox(QColor());
    QVERIFY(!box->isVisible());
}

void DisclosureTest::statusShowsOnHead_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QColor>("background");
    using Look = VNStatusPalette::Look;
    QTest::newRow("needInput") << int(VNWidgetStatus::needInput) << VNStatusPalette::colors(Look::needInput).fill;
    QTest::newRow("userEdit") << int(VNWidgetStatus::userEdit) << VNStatusPalette::colors(Look::userEdit).fill;
    QTest::newRow("different") << int(VNWidgetStatus::different) << VNStatusPalette::colors(Look::different).fill;
}

void DisclosureTest::statusShowsOnHead()
{
    QFETCH(int, status);
    QFETCH(QColor, background);
    VNProgressiveDisclosure disclosure;
    disclosure.setWidgetCaption(QStringLiteral("Caption"));
    disclosure.resize(300, 60);
    // Away from the head, which tints its inside while the mouse is over it.
    QCursor::setPos(-100, -100);
    disclosure.show();
    QVERIFY(QTest::qWaitForWindowExposed(&disclosure));
    QWidget* head = disclosure.findChild<VNProgressiveDisclosureBtn*>();
    const QPoint probe(head->width() - 4, head->height() / 2);
    QVERIFY(QColor(head->grab().toImage().pixel(probe)) != background);
    disclosure.setWidgetStatus(VNWidgetStatus::StatusFlags(status));
    QCOMPARE(QColor(head->grab().toImage().pixel(probe)), background);
    disclosure.setWidgetStatus(VNWidgetStatus::StatusFlags());
    QVERIFY(QColor(head->grab().toImage().pixel(probe)) != background);
}

void DisclosureTest::resizeHandleChangesHeight()
{
    VNResizeableDisclosure disclosure;
    disclosure.setContentWidget(new QLabel(QStringLiteral("content")));
    disclosure.show();
    QVERIFY(QTest::qWaitForWindowExposed(&disclosure));
    QWidget* handle = part(disclosure, "resizeHandle");
    QVERIFY(handle->isVisible());
    const int before = part(disclosure, "contentArea")->height();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, QPoint(5, 3));
    QMouseEvent move(QEvent::MouseMove, QPoint(5, 43), handle->mapToGlobal(QPoint(5, 43)), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(handle, &move);
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, QPoint(5, 43));
    QTRY_COMPARE(part(disclosure, "contentArea")->height(), before + 40);
}

void DisclosureTest::barChartPaintsBars()
{
    VNBarChart chart;
    chart.resize(300, 120);
    chart.addBar(QStringLiteral("Bar 1"), 42.0, QColor("firebrick"));
    chart.addBar(QStringLiteral("Bar 2"), 21.0, QColor("forestgreen"));
    const QImage image = chart.grab().toImage();
    const QRect first = chart.barRect(0);
    const QRect second = chart.barRect(1);
    QCOMPARE(second.width() * 2, first.width() + (first.width() % 2));
    QCOMPARE(QColor(image.pixel(first.center())), QColor("firebrick"));
    QCOMPARE(QColor(image.pixel(second.center())), QColor("forestgreen"));
}

// Apply writes every field into the disclosure chosen in "Current Disclosure", and only into it.
void DisclosureTest::settingsRoundTrip()
{
    TestDisclosure dialog(nullptr);
    auto* current = child<QComboBox>(&dialog, QStringLiteral("m_progressiveDisclosure"));
    current->setCurrentIndex(1);
    auto* caption = child<QLineEdit>(&dialog, QStringLiteral("m_widgetCaption"));
    QCOMPARE(caption->text(), QStringLiteral("Curves"));
    auto* stateText = child<QLineEdit>(&dialog, QStringLiteral("m_stateLabel"));
    QCOMPARE(stateText->text(), QStringLiteral("2 Curve(s)"));

    caption->setText(QStringLiteral("Splines"));
    stateText->setText(QStringLiteral("3 Splines"));
    child<QLineEdit>(&dialog, QStringLiteral("m_infoButtonText"))->setText(QStringLiteral("About splines"));
    const struct
    {
        const char* combo;
        int mode;
        int (VNProgressiveDisclosure::*written)() const;
    } modes[] = {{"m_showStateLabel", 1, &VNProgressiveDisclosure::getShowStateLabel},
                 {"m_showInfoButton", 1, &VNProgressiveDisclosure::getShowInfoButton},
                 {"m_showTopLine", 2, &VNProgressiveDisclosure::getShowTopLine},
                 {"m_showBottomLine", 0, &VNProgressiveDisclosure::getShowBottomLine}};
    auto* curves = child<VNProgressiveDisclosure>(&dialog, QStringLiteral("progressiveDisclosure1"));
    for (const auto& entry : modes) {
        QVERIFY2((curves->*entry.written)() != entry.mode, entry.combo);
        child<QComboBox>(&dialog, QLatin1String(entry.combo))->setCurrentIndex(entry.mode);
    }
    clickButton(&dialog, QStringLiteral("m_optionalCheck"));
    clickButton(&dialog, QStringLiteral("m_applyBtn"));

    QCOMPARE(curves->getWidgetCaption(), QStringLiteral("Splines"));
    QCOMPARE(curves->getStateLabelText(), QStringLiteral("3 Splines"));
    QCOMPARE(part(*curves, "stateLabel")->property("text").toString(), QStringLiteral("3 Splines"));
    QCOMPARE(curves->getInfoButtonText(), QStringLiteral("About splines"));
    for (const auto& entry : modes)
        QVERIFY2((curves->*entry.written)() == entry.mode, entry.combo);
    QVERIFY(curves->isOptionalCheckVisible());
    QCOMPARE(current->itemText(1), QStringLiteral("Splines"));

    current->setCurrentIndex(0);
    QCOMPARE(caption->text(), QStringLiteral("Settings"));
    QCOMPARE(child<VNProgressiveDisclosure>(&dialog, QStringLiteral("progressiveDisclosure0"))->getStateLabelText(),
             stateText->text());
    current->setCurrentIndex(1);
    QCOMPARE(caption->text(), QStringLiteral("Splines"));
    QCOMPARE(stateText->text(), QStringLiteral("3 Splines"));
}

// "Widget Enabled" switches the content of the current disclosure, and only of it.
void DisclosureTest::enabledSwitchesCurrentDisclosure()
{
    TestDisclosure dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    child<QComboBox>(&dialog, QStringLiteral("m_progressiveDisclosure"))->setCurrentIndex(2);
    auto* list = child<VNProgressiveDisclosure>(&dialog, QStringLiteral("progressiveDisclosure2"));
    auto* settings = child<VNProgressiveDisclosure>(&dialog, QStringLiteral("progressiveDisclosure0"));
    QVERIFY(list->isWidgetEnabled());
    clickButton(&dialog, QStringLiteral("m_enabled"));
    QVERIFY(!list->isWidgetEnabled());
    QVERIFY(!child<QWidget>(&dialog, QStringLiteral("listWidget"))->isEnabled());
    QVERIFY(settings->isWidgetEnabled());
    clickButton(&dialog, QStringLiteral("m_enabled"));
    QVERIFY(list->isWidgetEnabled());
    QVERIFY(child<QWidget>(&dialog, QStringLiteral("listWidget"))->isEnabled());
}

void DisclosureTest::calculateDisablesButKeepsVisible()
{
    TestDisclosure dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* options = dialog.findChild<VNProgressiveDisclosure*>(QStringLiteral("progressiveDisclosure3"));
    QCheckBox* calculate = options->getOptionalCheckBox();
    QCOMPARE(calculate->text(), QStringLiteral("Calculate"));
    QVERIFY(calculate->isChecked());
    QWidget* content = dialog.findChild<QWidget*>(QStringLiteral("ProgressiveDisclosureContainer_4"));
    QVERIFY(content->isEnabled());
    calculate->setChecked(false);
    QVERIFY(!options->isWidgetEnabled());
    QVERIFY(!content->isEnabled());
    QVERIFY(content->isVisible());

    auto* single = dialog.findChild<QCheckBox*>(QStringLiteral("m_groupSingleMode"));
    single->setChecked(true);
    auto* resizeable = dialog.findChild<VNProgressiveDisclosure*>(QStringLiteral("resizeableDisclosure"));
    options->setOpen(true);
    QCOMPARE(dialog.group()->disclosures().size(), 4);
    int open = 0;
    for (VNProgressiveDisclosure* disclosure : dialog.group()->disclosures())
        open += disclosure->isOpen() ? 1 : 0;
    QCOMPARE(open, 1);
    QVERIFY(options->isOpen());
    QVERIFY(resizeable->isOpen());
    QVERIFY(dialog.findChild<VNBarChart*>());
}

QTEST_MAIN(DisclosureTest)
#include "tst_disclosure.moc"
