#include "LauncherTable.h"
#include "Loupe.h"
#include "TestWidgetCollection.h"
#include "WindowWalk.h"

#include <DebugStyleSheet.h>

#include <QApplication>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace {
QPushButton* button(QWidget* panel, const char* name)
{
    return panel->findChild<QPushButton*>(QLatin1String(name));
}

// The panel's windows in creation (and raise) order.
QList<QWidget*> windows(QWidget* panel, const char* className = nullptr)
{
    QList<QWidget*> found;
    for (QWidget* child : panel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isWindow() && (!className || child->inherits(className)))
            found << child;
    }
    return found;
}
void clickAsUser(QWidget* panel, const char* name)
{
    QTest::mouseClick(button(panel, name), Qt::LeftButton);
}
} // namespace

class LauncherPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void buttons_data();
    void buttons();
    void tabOrder();
    void styleSheetViewerIsEditable();
    void raisedWindowComesToFront();
    void loupeFollowsLatestVisibleWindow();
    void destructorDeletesInspectionWindowsFirst();
    void walkVisitsEachNewWindowOnceAndEndsModalOnes();
};

void LauncherPanelTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void LauncherPanelTest::buttons_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < LauncherTable::entries().size(); ++row)
        QTest::newRow(LauncherTable::entries().at(row).button) << row;
}

// Two clicks on each button, as the launcher table says: a kept window is made once and shown again
// (and is the one the panel holds), otherwise every click shows a window of its own. Every window
// is the panel's.
void LauncherPanelTest::buttons()
{
    QFETCH(int, row);
    const LauncherTable::Entry& entry = LauncherTable::entries().at(row);
    if (entry.policy == LauncherTable::Policy::MovesLoupe)
        QSKIP("the loupe is no window of its own: loupeFollowsLatestVisibleWindow");
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    panel.show();
    QList<QWidget*> opened;
    for (int click = 0; click < 2; ++click) {
        const QList<QWidget*> before = windows(&panel);
        clickAsUser(&panel, entry.button);
        for (QWidget* window : windows(&panel)) {
            if (!before.contains(window))
                opened << window;
        }
        if (entry.policy == LauncherTable::Policy::Kept) {
            QWidget* kept = entry.kept(panel);
            QVERIFY(kept && kept->isVisible() && kept->isWindow());
            QCOMPARE(opened, QList<QWidget*>({kept}));
            kept->close();
        }
    }
    if (entry.policy != LauncherTable::Policy::Kept) {
        QCOMPARE(opened.size(), 2);
        QVERIFY(opened.at(0)->isVisible() && opened.at(1)->isVisible());
        QVERIFY(!entry.kept(panel));
    }
}

void LauncherPanelTest::tabOrder()
{
    const QStringList chain =
        QStringLiteral(
            "m_testTreeDelegates loupe stateDebug testDisclosure testCurveInputControl testPathShortener testVnSlider "
            "showStyleSheet m_testRegExp testVNAdvancedMenu testComposePixmap m_visualizePointsControl "
            "testMasterDetailTree testValueFields testFlipWidget m_converterTest m_QtTraining m_testLayouts "
            "m_testTreeItemDelegate m_joinsTestTable testTableWidget testColorDisplay m_testDragAndDrop testInfoArea "
            "testTreeWidget m_testSVG testComboBox m_testLayoutHelper m_testDendrogramWidget m_vnResultSwitcher "
            "m_progressTest testVNModuleNavigation m_compareIcons m_testSquish m_testAlignment")
            .split(QLatin1Char(' '));
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    QStringList seen;
    for (QWidget* current = button(&panel, "m_testTreeDelegates"); seen.size() < chain.size();
         current = current->nextInFocusChain())
        seen << current->objectName();
    QCOMPARE(seen, chain);
}

void LauncherPanelTest::styleSheetViewerIsEditable()
{
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    clickAsUser(&panel, "showStyleSheet");
    auto* viewer = panel.findChild<DebugStyleSheet*>();
    QVERIFY(viewer && viewer->isVisible());
    QVERIFY(!viewer->isReadOnly());
    QVERIFY(!viewer->findChild<QPlainTextEdit*>()->isReadOnly());
}

// A raised window comes to the front on every click. The headless platform cannot stack windows;
// it says so each time a window is raised, which shows that it was.
void LauncherPanelTest::raisedWindowComesToFront()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        QSKIP("the raise is seen through the headless platform");
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    panel.show();
    int raised = 0;
    for (const LauncherTable::Entry& entry : LauncherTable::entries()) {
        if (entry.extra != LauncherTable::Extra::Raised)
            continue;
        for (int click = 0; click < 2; ++click) {
            QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
            clickAsUser(&panel, entry.button);
            QVERIFY(entry.kept(panel)->isVisible());
        }
        ++raised;
    }
    QCOMPARE(raised, 1);
}

void LauncherPanelTest::loupeFollowsLatestVisibleWindow()
{
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    panel.show();
    clickAsUser(&panel, "loupe");
    auto* loupe = panel.findChild<Loupe*>();
    QVERIFY(loupe && loupe->isVisible());
    QCOMPARE(loupe->parentWidget(), &panel);
    clickAsUser(&panel, "m_QtTraining");
    clickAsUser(&panel, "m_testVNMessageBox");
    QWidget* training = windows(&panel, "QtTraining").first();
    QWidget* messageTest = windows(&panel, "TestVNMessageBox").first();
    for (QWidget* expected : {messageTest, training, static_cast<QWidget*>(&panel)}) {
        clickAsUser(&panel, "loupe");
        QCOMPARE(loupe->parentWidget(), expected);
        QVERIFY(loupe->isVisible());
        expected->close();
    }
    QCOMPARE(panel.findChildren<Loupe*>(), QList<Loupe*>({loupe}));
}

void LauncherPanelTest::destructorDeletesInspectionWindowsFirst()
{
    auto panel = std::make_unique<TestWidgetCollection>(nullptr, Qt::WindowFlags());
    panel->show();
    for (const char* name : {"m_QtTraining", "stateDebug", "m_testVNMessageBox", "showStyleSheet"})
        clickAsUser(panel.get(), name);
    QStringList order;
    for (QWidget* window : windows(panel.get())) {
        const QString name = QString::fromLatin1(window->metaObject()->className());
        connect(window, &QObject::destroyed, this, [&order, name] { order << name; });
    }
    panel.reset();
    QCOMPARE(order, QStringList({"DebugStyleSheet", "DebugStateInfo", "QtTraining", "TestVNMessageBox"}));
}

// A click that shows a window and then runs another modally: the walk visits both once, in the
// order of their names, from inside the modal loop, and then ends the modal one.
void LauncherPanelTest::walkVisitsEachNewWindowOnceAndEndsModalOnes()
{
    QWidget panel;
    auto* launch = new QPushButton(QStringLiteral("Open"), &panel);
    QDialog modeless(&panel);
    modeless.setObjectName(QStringLiteral("zeta"));
    QDialog modal(&panel);
    modal.setObjectName(QStringLiteral("alpha"));
    int result = -1;
    connect(launch, &QPushButton::clicked, this, [&] {
        modeless.show();
        result = modal.exec();
    });
    panel.show();
    QStringList visited;
    const bool goOn = WindowWalk(50).click(launch, [&](QWidget* window, int index) {
        visited << QStringLiteral("%1 %2 %3").arg(index).arg(window->objectName()).arg(modal.isVisible());
        return true;
    });
    QVERIFY(goOn);
    QCOMPARE(visited, QStringList({"0 alpha 1", "1 zeta 1"}));
    QCOMPARE(result, int(QDialog::Rejected));
}

QTEST_MAIN(LauncherPanelTest)
#include "tst_launcherpanel.moc"
