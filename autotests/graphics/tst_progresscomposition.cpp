#include "../TestSupport.h"
#include "TestProgressComposition.h"

#include <VNMultiProgressBar.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimerEvent>

namespace {
struct Form
{
    explicit Form(QWidget* dialog)
        : bar(dialog->findChild<VNMultiProgressBar*>("m_multiProgress"))
        , ops(dialog->findChild<QSpinBox*>("m_ops"))
        , prefix(dialog->findChild<QLineEdit*>("m_prefix"))
        , current(dialog->findChild<QSpinBox*>("m_current"))
        , circular(dialog->findChild<QCheckBox*>("m_circular"))
        , stretchMode(dialog->findChild<QComboBox*>("stretchMode"))
    {}

    QPushButton* button(QWidget* dialog, const char* name) const { return dialog->findChild<QPushButton*>(name); }

    VNMultiProgressBar* bar;
    QSpinBox* ops;
    QLineEdit* prefix;
    QSpinBox* current;
    QCheckBox* circular;
    QComboBox* stretchMode;
};

// One tick of the dialog's animation timer, without waiting for it.
void tick(TestProgressComposition& dialog)
{
    QTimerEvent event(dialog.animationTimerId());
    QCoreApplication::sendEvent(&dialog, &event);
}
} // namespace

class TestProgressCompositionDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void initialSettingsAndDefaultSize();
    void setupBuildsNamedOperations();
    void stepSingleAddsTen();
    void animationTicks_data();
    void animationTicks();
    void noOperationsAcceptOnlyMinusOne();
    void linearAnimationFillsEveryOperation();
    void circularAnimationMovesOnePerTick();
    void manualChangeStopsAnimation();
    void stopClearsCurrent();
    void stretchModes_data();
    void stretchModes();
    void circularLookIsDrawn();
    void rowFillsByStep();
};

void TestProgressCompositionDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The sample starts circular with three operations; "Designer Default" gives back the form's width.
void TestProgressCompositionDialog::initialSettingsAndDefaultSize()
{
    TestProgressComposition dialog(nullptr);
    Form form(&dialog);
    QVERIFY(form.bar->isCircular());
    dialog.resize(700, 500);
    form.button(&dialog, "resizeDefault")->click();
    QCOMPARE(dialog.width(), 450);
}

// A new prefix takes effect with "Setup OP's", with Return in the prefix field and with a new count.
void TestProgressCompositionDialog::setupBuildsNamedOperations()
{
    TestProgressComposition dialog(nullptr);
    Form form(&dialog);
    form.prefix->setText(QStringLiteral("OP"));
    QVERIFY(form.bar->progressItems().value(0) != QStringLiteral("OP10"));
    clickButton(&dialog, QStringLiteral("setup"));
    QCOMPARE(form.bar->progressItems(), QStringList({"OP10", "OP20", "OP30"}));
    form.prefix->clear();
    QTest::keyClicks(form.prefix, QStringLiteral("PX"));
    QTest::keyClick(form.prefix, Qt::Key_Return);
    QCOMPARE(form.bar->progressItems(), QStringList({"PX10", "PX20", "PX30"}));
    form.prefix->setText(QStringLiteral("RX"));
    form.ops->setValue(5);
    QCOMPARE(form.bar->progressItems(), QStringList({"RX10", "RX20", "RX30", "RX40", "RX50"}));
    QCOMPARE(form.current->value(), -1);
}

// "Step +10" moves the current operation's step on by ten from where it stands.
void TestProgressCompositionDialog::stepSingleAddsTen()
{
    TestProgressComposition dialog(nullptr);
    Form form(&dialog);
    clickButton(&dialog, QStringLiteral("setup"));
    form.current->setValue(1);
    form.bar->stepCurrent(5);
    clickButton(&dialog, QStringLiteral("stepSingle"));
    QCOMPARE(form.bar->currentStep(), 15);
    clickButton(&dialog, QStringLiteral("stepSingle"));
    QCOMPARE(form.bar->currentStep(), 25);
    QCOMPARE(form.bar->current(), 1);
}

void TestProgressCompositionDialog::animationTicks_data()
{
    QTest::addColumn<bool>("circular");
    QTest::addColumn<int>("interval");
    QTest::newRow("circular") << true << 3000;
    QTest::newRow("linear") << false << 200;
}

// The animation ticks with a coarse timer, slowly for the circular look.
void TestProgressCompositionDialog::animationTicks()
{
    QFETCH(bool, circular);
    QFETCH(int, interval);
    TestProgressComposition dialog(nullptr);
    Form form(&dialog);
    if (!circular)
        clickButton(&dialog, QStringLiteral("m_circular"));
    QCOMPARE(form.bar->isCircular(), circular);
    clickButton(&dialog, QStringLiteral("startAnimation"));
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&dialog);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().timerId, dialog.animationTimerId());
    QCOMPARE(timers.first().interval, interval);
    QCOMPARE(timers.first().timerType, Qt::CoarseTimer);
}

void TestProgressCompositionDialog::noOperationsAcceptOnlyMinusOne()
{
    TestProgressComposition dialog(nullptr);
    Form form(&dialog);
    form.ops->setValue(0);
    QCOMPARE(form.bar->progressItemsCount(), 0);
    form.current->setValue(2);
    QCOMPARE(form.current->value(), -1);
    QCOMPARE(form.bar->current(), -1);
}

void TestProgressCompositionDialog::linearAnimationFillsEveryOperation()
{
    TestProgressComposition dialog(nullptr);
    Form form(&dialog);
    form.circular->setChecked(false);
    form.ops->setValue(2);
    form.button(&dialog, "startAnimation")->click();
    QVERIFY(dialog.animationTimerId() != 0);
    QCOMPARE(form.bar->current(), 0);
    for (int i = 0; i < 10; ++i)
        tick(dialog);
    QCOMPARE(form.bar->current(), 1);
    QCOMPARE(form.current->value(), 1);
    for (int i = 0; i < 10; ++i)
        tick(dialog);
    QCOMPARE(form.bar->currentStep(), 100);
    QVERIFY(dialog.animationTimerId() != 0);
    tick(dialog);
    QCOMPARE(dialog.animationTimerId(), 0);
    QCOMPARE(form.bar->current(), -1);
}

void TestProgressCompositionDialog::circularAnimationMovesOnePerTick()
{
    TestProgressComposition dialog(nullptr);
    Form form(&dialog);
    form.button(&dialog, "setup")->click();
    form.button(&dialog, "startAnimation")->click();
    QCOMPARE(form.bar->current(), 0);
    tick(dialog);
    tick(dialog);
    QCOMPARE(form.bar->current(), 2);
    tick(dialog);
    QCOMPARE(form.bar->current(), -1);
    QCOMPARE(dialog.animationTimerId(), 0);
}

void TestProgressCompositionDialog::manualChangeStopsAnimation()
{
    TestProgressComposition dialog(nullptr);
    Form form(&dialog);
    form.button(&dialog, "setup")->click();
    form.button(&dialog, "startAnimation")->click();
    form.button(&dialog, "step")->click();
    QCOMPARE(dialog.animationTimerId(), 0);
    QCOMPARE(form.bar->current(), 1);
    form.button(&dialog, "startAnimation")->click();
    form.current->setValue(0);
    QCOMPARE(dialog.animationTimerId(), 0);
    QCOMPARE(form.bar->current(), 0);
    form.button(&dialog, "startAnimation")->click();
    form.button(&dialog, "setup")->click();
    QCOMPARE(dialog.animationTimerId(), 0);
}

void TestProgressCompositionDialog::stopClearsCurrent()
{
    TestProgressComposition dialog(nullptr);
    Form form(&dialog);
    form.button(&dialog, "setup")->click();
    form.current->setValue(1);
    form.button(&dialog, "stopAnimation")->click();
    QCOMPARE(form.bar->current(), 1);
    form.button(&dialog, "startAnimation")->click();
    form.button(&dialog, "stopAnimation")->click();
    QCOMPARE(form.bar->current(), -1);
    QCOMPARE(form.current->value(), -1);
}

void TestProgressCompositionDialog::stretchModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("equal");
    QTest::addColumn<bool>("fillsBar");
    QTest::newRow("GaussianBell") << 0 << false << true;
    QTest::newRow("Constant") << 1 << true << true;
    QTest::newRow("Balance") << 2 << false << true;
    QTest::newRow("Manual") << 3 << true << false;
}

void TestProgressCompositionDialog::stretchModes()
{
    QFETCH(int, mode);
    QFETCH(bool, equal);
    QFETCH(bool, fillsBar);
    VNMultiProgressBar bar;
    bar.resize(600, 30);
    bar.setProgressItems({QStringLiteral("A"), QStringLiteral("Long operation name"), QStringLiteral("C")});
    bar.setCurrent(0);
    bar.setStretchMode(mode);
    const QRectF first = bar.segmentRect(0);
    const QRectF second = bar.segmentRect(1);
    QCOMPARE(qAbs(first.width() - second.width()) < 0.5, equal);
    QCOMPARE(first.left(), 0.0);
    QVERIFY(second.left() > first.right());
    QCOMPARE(qRound(bar.segmentRect(2).right()) == 600, fillsBar);
    if (mode == 0)
        QVERIFY(first.width() > second.width());
    if (mode == 2)
        QVERIFY(second.width() > first.width());
}

void TestProgressCompositionDialog::circularLookIsDrawn()
{
    VNMultiProgressBar bar;
    bar.resize(120, 120);
    bar.setProgressItems({QStringLiteral("A"), QStringLiteral("B")});
    bar.setCurrent(1);
    const QImage row = bar.grab().toImage();
    bar.setCircular(true);
    const QImage ring = bar.grab().toImage();
    QVERIFY(row != ring);
    QVERIFY(bar.segmentRect(0).isNull());
}

// Earlier operations are full, later ones empty; the current one fills as its step runs through
// its range.
void TestProgressCompositionDialog::rowFillsByStep()
{
    VNMultiProgressBar bar;
    bar.resize(300, 24);
    bar.setStretchMode(VNMultiProgressBar::Constant);
    bar.setProgressItems({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    bar.setCurrent(1);
    bar.setRange(1, 20, 60);
    const auto at = [&bar](int index, double fraction) {
        const QRectF segment = bar.segmentRect(index);
        return bar.grab().toImage().pixelColor(int(segment.left() + segment.width() * fraction), 3);
    };
    bar.stepCurrent(20);
    QCOMPARE(at(1, 0.1), at(1, 0.9));
    bar.stepCurrent(30);
    QVERIFY(at(1, 0.2) != at(1, 0.3));
    QCOMPARE(at(1, 0.3), at(1, 0.9));
    QCOMPARE(bar.getRange(1), qMakePair(20, 60));
    QCOMPARE(at(0, 0.1), at(0, 0.9));
    QVERIFY(at(0, 0.5) != at(2, 0.5));
    QVERIFY(at(0, 0.5) != at(1, 0.1));
    QCOMPARE(at(2, 0.1), at(2, 0.9));
}

QTEST_MAIN(TestProgressCompositionDialog)
#include "tst_progresscomposition.moc"
