#include "TestModuleNavigation.h"

#include <VNModuleNavigation.h>

#include <QApplication>
#include <QTest>
#include <QToolButton>

namespace {
QStringList modules(const VNModuleNavigation* navigation)
{
    QStringList texts;
    for (int i = 0; i < navigation->count(); ++i)
        texts.append(navigation->buttonText(i));
    return texts;
}

const QStringList normalSet = {"Nose", "Adjust", "Clamp", "Apron", "Adjust", "Edgetest", "Shapetest"};
const QStringList compactSet = {"Nose", "Adjust", "Clamp", "PX", "Edgetest", "Shapetest"};
} // namespace

class TestModuleNavigationDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void initialModules();
    void switchToCompactSet();
    void twoClicksRestoreTheOriginal();
    void lockedModuleCannotBeChosen();
};

void TestModuleNavigationDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestModuleNavigationDialog::initialModules()
{
    TestModuleNavigation dialog(nullptr);
    auto* navigation = dialog.findChild<VNModuleNavigation*>("m_moduleNavigation");
    QVERIFY(navigation);
    QCOMPARE(modules(navigation), normalSet); // the baseline has them, but not in their order
    QCOMPARE(navigation->groupButtonRange(0), qMakePair(3, 4));
    QVERIFY(!navigation->isModuleLocked(1));
}

void TestModuleNavigationDialog::switchToCompactSet()
{
    TestModuleNavigation dialog(nullptr);
    auto* navigation = dialog.findChild<VNModuleNavigation*>("m_moduleNavigation");
    navigation->groupButton(0)->click();
    QVERIFY(dialog.isCompactSetShown());
    QCOMPARE(modules(navigation), compactSet);
    QCOMPARE(navigation->groupButtonRange(0), qMakePair(3, 3));
    QCOMPARE(navigation->groupButton(0)->text(), QStringLiteral("Switch to RX"));
    QVERIFY(navigation->groupButton(0)->isChecked());
    QVERIFY(navigation->isModuleLocked(1));
    QVERIFY(!navigation->button(1)->isEnabled());
}

void TestModuleNavigationDialog::twoClicksRestoreTheOriginal()
{
    TestModuleNavigation dialog(nullptr);
    auto* navigation = dialog.findChild<VNModuleNavigation*>("m_moduleNavigation");
    navigation->groupButton(0)->click();
    navigation->groupButton(0)->click();
    // The way back inserts "Adjust" before "Apron": the same seven modules, the last two swapped.
    QCOMPARE(modules(navigation), QStringList({"Nose", "Adjust", "Clamp", "Adjust", "Apron", "Edgetest", "Shapetest"}));
    QStringList sorted = modules(navigation);
    sorted.sort();
    QStringList original = normalSet;
    original.sort();
    QCOMPARE(sorted, original);
    QVERIFY(!navigation->isModuleLocked(1));
    QVERIFY(navigation->button(1)->isEnabled());
    QCOMPARE(navigation->groupButtonRange(0), qMakePair(3, 4));
    QCOMPARE(navigation->findChildren<QToolButton*>("groupButton").size(), 1);
}

void TestModuleNavigationDialog::lockedModuleCannotBeChosen()
{
    VNModuleNavigation navigation;
    navigation.addButton(QStringLiteral("A"));
    navigation.addButton(QStringLiteral("B"));
    navigation.setModuleLocked(1, true);
    navigation.setCurrentIndex(1);
    QCOMPARE(navigation.currentIndex(), -1);
    navigation.setCurrentIndex(0);
    QCOMPARE(navigation.currentIndex(), 0);
}

QTEST_MAIN(TestModuleNavigationDialog)
#include "tst_modulenavigation.moc"
