#include "../TestSupport.h"
#include "TestModuleNavigation.h"

#include <VNModuleNavigation.h>

#include <QApplication>
#include <QSignalSpy>
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

    void setsAfterClicks_data();
    void setsAfterClicks();
    void lockedModuleCannotBeChosen();
};

void TestModuleNavigationDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestModuleNavigationDialog::setsAfterClicks_data()
{
    QTest::addColumn<int>("clicks");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<int>("lastGrouped");
    QTest::addColumn<QString>("groupText");
    QTest::addColumn<bool>("compact");
    QTest::newRow("start") << 0 << normalSet << 4 << "Switch to PX" << false;
    QTest::newRow("compact") << 1 << compactSet << 3 << "Switch to RX" << true;
    // The way back inserts "Adjust" before "Apron": the same seven modules, the last two swapped.
    QTest::newRow("back") << 2 << QStringList({"Nose", "Adjust", "Clamp", "Adjust", "Apron", "Edgetest", "Shapetest"})
                          << 4 << "Switch to PX" << false;
}

// The group button switches the module sets; it lies below the modules it spans, and the compact
// set locks module 1.
void TestModuleNavigationDialog::setsAfterClicks()
{
    QFETCH(int, clicks);
    QFETCH(QStringList, shown);
    QFETCH(int, lastGrouped);
    QFETCH(QString, groupText);
    QFETCH(bool, compact);
    TestModuleNavigation dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* navigation = child<VNModuleNavigation>(&dialog, QStringLiteral("m_moduleNavigation"));
    for (int click = 0; click < clicks; ++click)
        QTest::mouseClick(navigation->groupButton(0), Qt::LeftButton);
    QCOMPARE(modules(navigation), shown);
    QCOMPARE(navigation->groupButtonRange(0), qMakePair(3, lastGrouped));
    QToolButton* group = navigation->groupButton(0);
    QCOMPARE(group->text(), groupText);
    QCOMPARE(group->isChecked(), compact);
    QCOMPARE(navigation->findChildren<QToolButton*>(QStringLiteral("groupButton")).size(), 1);
    QTRY_VERIFY(group->geometry().top() > navigation->button(3)->geometry().bottom());
    QCOMPARE(group->geometry().left(), navigation->button(3)->geometry().left());
    QCOMPARE(group->geometry().right(), navigation->button(lastGrouped)->geometry().right());
    QCOMPARE(navigation->isModuleLocked(1), compact);
    QCOMPARE(navigation->button(1)->isEnabled(), !compact);
    QCOMPARE(navigation->button(1)->icon().isNull(), !compact);
}

// A click chooses a module and says so; a locked module cannot be chosen, by click or by call.
void TestModuleNavigationDialog::lockedModuleCannotBeChosen()
{
    VNModuleNavigation navigation;
    navigation.addButton(QStringLiteral("A"));
    navigation.addButton(QStringLiteral("B"), QStringLiteral("second"));
    navigation.insertButton(QStringLiteral("C"), 1);
    QCOMPARE(modules(&navigation), QStringList({"A", "C", "B"}));
    QCOMPARE(navigation.button(2)->toolTip(), QStringLiteral("second"));
    navigation.setModuleLocked(1, true);
    navigation.show();
    QVERIFY(QTest::qWaitForWindowExposed(&navigation));
    QSignalSpy changed(&navigation, &VNModuleNavigation::currentChanged);
    QTest::mouseClick(navigation.button(1), Qt::LeftButton);
    navigation.setCurrentIndex(1);
    QCOMPARE(navigation.currentIndex(), -1);
    QTest::mouseClick(navigation.button(2), Qt::LeftButton);
    QCOMPARE(navigation.currentIndex(), 2);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toInt(), 2);
    navigation.removeButton(0);
    QCOMPARE(modules(&navigation), QStringList({"C", "B"}));
    QVERIFY(!navigation.button(2));
    QCOMPARE(navigation.currentIndex(), 1);
}

QTEST_MAIN(TestModuleNavigationDialog)
#include "tst_modulenavigation.moc"
