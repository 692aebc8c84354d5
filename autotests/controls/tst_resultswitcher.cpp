#include "TestAdvancedMenu.h"
#include "TestModuleNavigation.h"
#include "TestProgressComposition.h"
#include "TestVNAnimatedTabBar.h"
#include "TestVNResultSwitcher.h"
#include "TestWidgetCollection.h"

#include <VNFixedFontSizeToolButton.h>
#include <VNLabel.h>
#include <VNResultSwitcher.h>

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace {
QStringList buttonTexts(const VNResultSwitcher* switcher)
{
    QStringList texts;
    for (int i = 0; i < switcher->count(); ++i)
        texts.append(switcher->button(i)->toolTip());
    return texts;
}
} // namespace

class TestResultSwitcher : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void insertionOrder();
    void enableCheckBoxReachesEveryButton();
    void buttonsAreExclusive();
    void fixedFontSizeIgnoresParentFont();
    void launcherOpensNewSwitcherEveryClick();
};

void TestResultSwitcher::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestResultSwitcher::insertionOrder()
{
    TestVNResultSwitcher dialog(nullptr);
    QCOMPARE(buttonTexts(dialog.findChild<VNResultSwitcher*>("m_resultSwitcherSingle")), QStringList({"Zebra"}));
    auto* switcher = dialog.findChild<VNResultSwitcher*>("m_resultSwitcher");
    QCOMPARE(buttonTexts(switcher), QStringList({"Test 0", "Test 1", "Test 2", "Test 3"}));
    QVERIFY(qobject_cast<VNFixedFontSizeToolButton*>(switcher->button(2)));
    QCOMPARE(switcher->button(2)->toolButtonStyle(), Qt::ToolButtonIconOnly);
    auto* multi = dialog.findChild<VNResultSwitcher*>("m_resultSwitcherMulti");
    QCOMPARE(buttonTexts(multi).last(), QStringLiteral("Test 9"));
    // A wider gap between the parts than between the buttons of one part.
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto gapBefore = [multi](int i) { return multi->button(i)->x() - multi->button(i - 1)->geometry().right(); };
    QVERIFY(gapBefore(5) > gapBefore(4) + 4);
    // The counts are written once: a button added later leaves them.
    addZebraButton(dialog.findChild<VNResultSwitcher*>("m_resultSwitcherSingle"));
    QCOMPARE(dialog.findChild<VNLabel*>("m_countSingle")->text(), QStringLiteral("1"));
}

void TestResultSwitcher::enableCheckBoxReachesEveryButton()
{
    TestVNResultSwitcher dialog(nullptr);
    auto* enable = dialog.findChild<QCheckBox*>("m_enableCB");
    const QList<QToolButton*> buttons = dialog.findChildren<QToolButton*>("resultButton");
    QCOMPARE(buttons.size(), 15);
    enable->click();
    for (QToolButton* button : buttons)
        QVERIFY(!button->isEnabled());
    enable->click();
    for (QToolButton* button : buttons)
        QVERIFY(button->isEnabled());
}

// One button is checked at a time; removing it checks the first one left.
void TestResultSwitcher::buttonsAreExclusive()
{
    VNResultSwitcher switcher;
    for (int i = 0; i < 4; ++i)
        switcher.insertButton(QIcon(), QString::number(i), -1, 0);
    QCOMPARE(switcher.checkedIndex(), 0);
    QSignalSpy current(&switcher, &VNResultSwitcher::currentChanged);
    QTest::mouseClick(switcher.button(2), Qt::LeftButton);
    QCOMPARE(current.last(), QList<QVariant>({2}));
    QVERIFY(!switcher.button(0)->isChecked());
    switcher.removeButton(0);
    QCOMPARE(switcher.checkedIndex(), 1);
    switcher.removeButton(1);
    QCOMPARE(buttonTexts(&switcher), QStringList({"1", "3"}));
    QCOMPARE(switcher.checkedIndex(), 0);
    QCOMPARE(current.last(), QList<QVariant>({0}));
    switcher.removeButton(2);
    QCOMPARE(switcher.count(), 2);
    switcher.setItemWidgetStatus(1, VNWidgetStatus::needInput);
    QCOMPARE(switcher.button(1)->property("statusLook").toString(), QStringLiteral("needInput"));
}

void TestResultSwitcher::fixedFontSizeIgnoresParentFont()
{
    QWidget parent;
    VNFixedFontSizeToolButton button(&parent, 3);
    QCOMPARE(button.font().pointSize(), 10);
    QFont big = parent.font();
    big.setPointSize(20);
    parent.setFont(big);
    QCOMPARE(button.font().pointSize(), 10);
}

template<typename Window>
int windows(const QWidget& panel)
{
    return panel.findChildren<Window*>(QString(), Qt::FindDirectChildrenOnly).size();
}

void TestResultSwitcher::launcherOpensNewSwitcherEveryClick()
{
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    for (const char* name : {"m_vnResultSwitcher", "testVNAdvancedMenu", "m_testAnimatedTabBar",
                             "testVNModuleNavigation", "m_progressTest"}) {
        QPushButton* button = panel.findChild<QPushButton*>(QLatin1String(name));
        QVERIFY2(button, name);
        button->click();
        button->click();
    }
    QCOMPARE(windows<TestVNResultSwitcher>(panel), 2);
    QCOMPARE(windows<TestAdvancedMenu>(panel), 1);
    QCOMPARE(windows<TestVNAnimatedTabBar>(panel), 1);
    QCOMPARE(windows<TestModuleNavigation>(panel), 1);
    QCOMPARE(windows<TestProgressComposition>(panel), 1);
    for (auto* window : panel.findChildren<TestVNResultSwitcher*>())
        QVERIFY(window->isVisible());
}

QTEST_MAIN(TestResultSwitcher)
#include "tst_resultswitcher.moc"
