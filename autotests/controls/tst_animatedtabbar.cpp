#include "../TestSupport.h"
#include "TestVNAnimatedTabBar.h"

#include <VNAnimatedOPTabBar.h>
#include <VNAnimatedTabBar.h>
#include <VNStatusPalette.h>
#include <VNTabBar.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVariantAnimation>

namespace {
template<typename Bar>
QStringList texts(const Bar* bar)
{
    QStringList result;
    for (int i = 0; i < bar->count(); ++i)
        result.append(bar->tabText(i));
    return result;
}

struct Bars
{
    explicit Bars(QWidget* dialog)
        : plain(child<VNTabBar>(dialog, "m_tabBar"))
        , animated(child<VNAnimatedTabBar>(dialog, "m_animatedTabBar"))
        , op(child<VNAnimatedOPTabBar>(dialog, "m_opTabBar"))
        , add(child<QPushButton>(dialog, "m_addBtn"))
        , remove(child<QPushButton>(dialog, "m_removeBtn"))
        , arrows(child<QPushButton>(dialog, "m_useArrowsBtn"))
        , mirror(child<QPushButton>(dialog, "m_mirrorArrowsBtn"))
    {}

    QList<int> currents() const { return {plain->currentIndex(), animated->currentIndex(), op->currentIndex()}; }

    VNTabBar* plain;
    VNAnimatedTabBar* animated;
    VNAnimatedOPTabBar* op;
    QPushButton* add;
    QPushButton* remove;
    QPushButton* arrows;
    QPushButton* mirror;
};

const QStringList sampleTabs = {"PL", "(F-40)", "D-20", "(T40)"};

struct Popup
{
    QStringList entries; // "--" for a separator
    QPoint position;
};

// What pops up while `open` runs: its entries and place, read before it is closed again.
Popup popupDuring(const std::function<void()>& open)
{
    Popup popup;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&popup] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        for (QAction* action : menu->actions())
            popup.entries << (action->isSeparator() ? QStringLiteral("--") : action->text());
        popup.position = menu->pos();
        menu->close();
    });
    poll.start(10);
    open();
    return popup;
}
} // namespace

class TestAnimatedTabBar : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void sampleStates();
    void currentTabFollowsOnAllBars();
    void addNumbersFromPlainCount();
    void removeOnEmptyBarsIsHarmless();
    void closeRemovesFromAnimatedBarsOnly();
    void arrowsSwitchAndMirror();
    void indicatorSlides();
    void tabMenus_data();
    void tabMenus();
    void lockedOperationIsNotSelectable();
    void statusAndDarkStyleArePainted();
    void firstTabKeepsPreferredWidth();
};

void TestAnimatedTabBar::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The sample states are in the screenshot baseline; what the add button does is not.
void TestAnimatedTabBar::sampleStates()
{
    TestVNAnimatedTabBar dialog(nullptr);
    QToolButton* add = Bars(&dialog).animated->buttons().first();
    QCOMPARE(add->menu()->actions(), QList<QAction*>({add->defaultAction()}));
    QCOMPARE(add->popupMode(), QToolButton::MenuButtonPopup);
}

void TestAnimatedTabBar::currentTabFollowsOnAllBars()
{
    TestVNAnimatedTabBar dialog(nullptr);
    Bars bars(&dialog);
    bars.plain->setCurrentIndex(2);
    QCOMPARE(bars.currents(), QList<int>({2, 2, 2}));
    bars.op->setCurrentIndex(1);
    QCOMPARE(bars.currents(), QList<int>({1, 1, 1}));
}

void TestAnimatedTabBar::addNumbersFromPlainCount()
{
    TestVNAnimatedTabBar dialog(nullptr);
    Bars bars(&dialog);
    bars.add->click();
    QCOMPARE(bars.plain->tabText(4), QStringLiteral("(D-4)"));
    QCOMPARE(bars.animated->tabText(4), QStringLiteral("(D-4)"));
    QCOMPARE(bars.op->operationStates(4), VNAnimatedOPTabBar::Locked);
    bars.remove->click();
    bars.remove->click();
    bars.add->click();
    QCOMPARE(texts(bars.plain).last(), QStringLiteral("(D-3)"));
    QCOMPARE(texts(bars.op).last(), QStringLiteral("(D-3)"));
}

void TestAnimatedTabBar::removeOnEmptyBarsIsHarmless()
{
    TestVNAnimatedTabBar dialog(nullptr);
    Bars bars(&dialog);
    bars.plain->setCurrentIndex(3);
    bars.remove->click();
    QCOMPARE(bars.currents(), QList<int>({2, 2, 2}));
    for (int i = 0; i < 5; ++i)
        bars.remove->click();
    QCOMPARE(bars.plain->count(), 0);
    QCOMPARE(bars.animated->count(), 0);
    QCOMPARE(bars.op->count(), 0);
    QCOMPARE(bars.animated->currentIndex(), -1);
    bars.add->click();
    QCOMPARE(bars.plain->tabText(0), QStringLiteral("(D-0)"));
    QCOMPARE(bars.currents(), QList<int>({0, 0, 0}));
}

void TestAnimatedTabBar::closeRemovesFromAnimatedBarsOnly()
{
    TestVNAnimatedTabBar dialog(nullptr);
    Bars bars(&dialog);
    dialog.resize(600, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy closed(bars.op, &VNAnimatedTabBar::closeButtonClicked);
    QTest::mouseClick(bars.op, Qt::LeftButton, {}, bars.op->closeButtonRect(2).center());
    QCOMPARE(closed.count(), 1);
    QCOMPARE(texts(bars.plain), sampleTabs);
    QCOMPARE(texts(bars.animated), QStringList({"PL", "(F-40)", "(T40)"}));
    QCOMPARE(texts(bars.op), QStringList({"PL", "(F-40)", "(T40)"}));
    QCOMPARE(bars.op->operationStates(2), VNAnimatedOPTabBar::Skipped);
}

void TestAnimatedTabBar::arrowsSwitchAndMirror()
{
    TestVNAnimatedTabBar dialog(nullptr);
    Bars bars(&dialog);
    QCOMPARE(bars.op->imageAfterTabs(), QStringLiteral(":/Style/VnWidgets/VNOPTabBar/op_tab_triangle.svg"));
    bars.op->resize(500, 30);
    const QImage withArrows = bars.op->grab().toImage();
    bars.mirror->click();
    QVERIFY(bars.op->isImageAfterTabsMirrored());
    QVERIFY(bars.op->grab().toImage() != withArrows);
    bars.arrows->click();
    QCOMPARE(bars.op->imageAfterTabs(), QString());
    QVERIFY(!bars.op->hasImageAfterTab(1));
    bars.arrows->click();
    QVERIFY(bars.op->hasImageAfterTab(1));
}

void TestAnimatedTabBar::indicatorSlides()
{
    VNAnimatedTabBar bar;
    for (const QString& text : sampleTabs)
        bar.addTab(text);
    bar.resize(400, 30);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    const QRectF start = bar.indicatorRect();
    QCOMPARE(start.left(), qreal(bar.tabRect(0).left()));
    bar.setCurrentIndex(3);
    QVariantAnimation* animation = bar.indicatorAnimation();
    QCOMPARE(animation->state(), QAbstractAnimation::Running);
    animation->setCurrentTime(animation->duration() / 4);
    const double between = bar.indicatorRect().left();
    QVERIFY(between > start.left() && between < bar.tabRect(3).left());
    animation->setCurrentTime(animation->duration());
    QCOMPARE(bar.indicatorRect().left(), qreal(bar.tabRect(3).left()));
    QCOMPARE(bar.indicatorRect().width(), qreal(bar.tabRect(3).width()));
    bar.removeTab(0);
    animation->setCurrentTime(animation->duration());
    QCOMPARE(bar.indicatorRect().left(), qreal(bar.tabRect(2).left()));
}

void TestAnimatedTabBar::tabMenus_data()
{
    QTest::addColumn<bool>("contextMenu");
    QTest::addColumn<int>("tab"); // -1: beside the tabs
    QTest::addColumn<QStringList>("entries");
    const QStringList tabMenu{"Test1", "--", "Test2", "--", "Test3"};
    QTest::newRow("menu button of the last tab") << false << 3 << tabMenu;
    QTest::newRow("menu button of the first tab") << false << 0 << tabMenu;
    QTest::newRow("menu for no tab") << false << -1 << QStringList();
    QTest::newRow("context menu over a tab") << true << 1 << QStringList({"Test1", "Test2"});
    QTest::newRow("context menu over the first tab") << true << 0 << QStringList({"Test1", "Test2"});
    QTest::newRow("context menu beside the tabs") << true << -1 << QStringList();
}

void TestAnimatedTabBar::tabMenus()
{
    QFETCH(bool, contextMenu);
    QFETCH(int, tab);
    QFETCH(QStringList, entries);
    TestVNAnimatedTabBar dialog(nullptr);
    Bars bars(&dialog);
    dialog.resize(600, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    VNAnimatedTabBar* bar = bars.animated;
    bar->useMenuButton(0, true);
    const QPoint beside(bar->tabRect(3).right() + 4, bar->tabRect(3).center().y());
    QCOMPARE(bar->getIndexAtPosition(bar->mapToGlobal(beside)), -1);
    const QPoint at = tab < 0 ? beside : bar->tabRect(tab).center();
    const Popup popup = popupDuring([&] {
        if (contextMenu) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, at, bar->mapToGlobal(at));
            QApplication::sendEvent(bar, &event);
        } else if (tab < 0) {
            QMetaObject::invokeMethod(&dialog, "menuButtonClicked", Q_ARG(int, -1));
        } else {
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->menuButtonRect(tab).center());
        }
    });
    QCOMPARE(popup.entries, entries);
    if (tab >= 0)
        QCOMPARE(popup.position, bar->mapToGlobal(contextMenu ? at : bar->tabRect(tab).bottomLeft()));
}

void TestAnimatedTabBar::lockedOperationIsNotSelectable()
{
    VNAnimatedOPTabBar bar;
    bar.addTab(QStringLiteral("OP10"));
    bar.addTab(QStringLiteral("OP20"));
    bar.addTab(QStringLiteral("OP30"));
    bar.setOperationLocked(1, true);
    bar.resize(400, 30);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
    QCOMPARE(bar.currentIndex(), 0);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(2).center());
    QCOMPARE(bar.currentIndex(), 2);
    bar.removeTab(0);
    QCOMPARE(bar.operationStates(0), VNAnimatedOPTabBar::Locked);
    QCOMPARE(bar.currentIndex(), 1);
}

void TestAnimatedTabBar::statusAndDarkStyleArePainted()
{
    VNAnimatedTabBar bar;
    bar.addTab(QStringLiteral("A"));
    bar.addTab(QStringLiteral("B"));
    bar.resize(300, 30);
    const QPoint probe = bar.tabRect(1).topLeft() + QPoint(4, 6);
    const QColor plain = bar.grab().toImage().pixelColor(probe);
    bar.setWidgetStatus(1, VNWidgetStatus::needInput);
    QCOMPARE(bar.grab().toImage().pixelColor(probe), VNStatusPalette::colors(VNStatusPalette::Look::needInput).fill);
    bar.setWidgetStatus(1, VNWidgetStatus::undef);
    QCOMPARE(bar.grab().toImage().pixelColor(probe), plain);
    bar.setDarkStyle(1, true);
    QVERIFY(bar.grab().toImage().pixelColor(probe).lightness() < 100);
}

void TestAnimatedTabBar::firstTabKeepsPreferredWidth()
{
    VNAnimatedTabBar bar;
    for (int i = 0; i < 8; ++i)
        bar.addTab(QStringLiteral("Operation %1").arg(i));
    bar.resize(2000, 30);
    const int preferred = bar.tabRect(0).width();
    bar.resize(300, 30);
    QVERIFY(bar.tabRect(0).width() < preferred);
    bar.setFixFirstWidthPreferred(true);
    QCOMPARE(bar.tabRect(0).width(), preferred);
    QVERIFY(bar.tabRect(1).width() < preferred);
}

QTEST_MAIN(TestAnimatedTabBar)
#include "tst_animatedtabbar.moc"
