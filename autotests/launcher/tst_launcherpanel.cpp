#include "Loupe.h"
#include "TestWidgetCollection.h"

#include <DebugStyleSheet.h>
#include <VNLabel.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace {
struct Entry
{
    const char* name;
    const char* text;
    const char* opens; // the class of the window the button opens, "+" first when every click makes a new one;
                       // empty while it opens none yet
};

// What robots and users rely on: every button's name and text, and the window behind it.
const Entry entries[] = {
    {"showStyleSheet", "Show StyleSheet", "DebugStyleSheet"},
    {"stateDebug", "State Debug", "DebugStateInfo"},
    {"m_visualizePointsControl", "PointsControl", "TestVisualizePointsControl"},
    {"testMasterDetailTree", "Master Detail Tree", "TestMasterDetailTree"},
    {"testPathShortener", "PathShortener", "TestStringReducer"},
    {"testComboBox", "ComboBox", "TestComboBox"},
    {"testValueFields", "ValueFields", "TestValueFields"},
    {"testComposePixmap", "Compose Pixmap", "TestComposePixmap"},
    {"testFlipWidget", "FlipWidget", "TestFlipWidget"},
    {"testColorDisplay", "Color Display", "TestColorDisplay"},
    {"m_testRegExp", "Reg Exp", "TestRegExp"},
    {"m_testTreeDelegates", "Tree Delegates", "TestTreeDelegates"},
    {"m_testTreeItemDelegate", "Tree Item Delegate", "TestTreeItemDelegate"},
    {"m_testLayouts", "Layout && SizeHint", "TestLayoutExample"},
    {"m_testAlignment", "TestAlignment", "TestAlignment"},
    {"m_QtTraining", "Qt Training", "QtTraining"},
    {"m_testSVG", "Test SVG", "TestSVG"},
    {"m_testLayoutHelper", "VNLayoutHelper", "TestLayoutHelper"},
    {"m_testDendrogramWidget", "DendrogramTest", "TestDendrogramWidget"},
    {"m_compareIcons", "Compare PNG and SVG Icons", "TestCompareIcons"},
    {"m_testSquish", "Squish", "TestSquish"},
    {"m_testAnimatedTabBar", "Animated Tab Bar (QML)", "TestVNAnimatedTabBar"},
    {"m_testNewAssemblyImport", "VNTreeView for Assembly Import Test", "TestNewAssemblyImport"},
    {"testDisclosure", "VNProgressiveDisclosure", "TestDisclosure"},
    {"testVnSlider", "VNSlider", "TestVNSliderView"},
    {"testVNAdvancedMenu", "VNAdvancedMenu", "TestAdvancedMenu"},
    {"testCurveInputControl", "VNCurveInputControl", "TestCurveInputControl"},
    {"testInfoArea", "Test InfoArea", "TestInfoArea"},
    {"testVNModuleNavigation", "VNModuleNavigation", "TestModuleNavigation"},
    {"testTableWidget", "VNTableWidget/View", "TestVNTableWidget"},
    {"testTreeWidget", "Tree Widget/View", "TestTreeWidget"},
    {"m_joinsTestTable", "Joins Table", "TestJoinsTable"},
    {"m_vnResultSwitcher", "VNResultSwitcher", "+TestVNResultSwitcher"},
    {"m_testVNTreeView", "VNTreeView", "TestVNTreeView"},
    {"m_testVirtualSlider", "VirtualSlider", "TestVirtualSlider"},
    {"m_testDragAndDrop", "Drag && Drop", "TestDragAndDrop"},
    {"m_progressTest", "ProgressSimu", "TestProgressComposition"},
    {"m_converterTest", "ConverterUtility", "+Varnis::FileConverterDialog"},
    {"m_testVNMessageBox", "VNMessageBox", "TestVNMessageBox"},
};

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
} // namespace

class LauncherPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void buttons_data();
    void buttons();
    void header();
    void tabOrder();
    void styleSheetViewerIsEditable();
    void stateDebugComesToFront();
    void loupeFollowsLatestVisibleWindow();
    void destructorDeletesInspectionWindowsFirst();
};

void LauncherPanelTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void LauncherPanelTest::buttons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("opens");
    for (const Entry& entry : entries)
        QTest::newRow(entry.name) << entry.text << entry.opens;
}

// A click opens the window once with the panel as its parent; the next click shows the same one.
void LauncherPanelTest::buttons()
{
    QFETCH(QString, text);
    QFETCH(QString, opens);
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    panel.show();
    QPushButton* launch = button(&panel, QTest::currentDataTag());
    QVERIFY(launch);
    QCOMPARE(launch->text(), text);
    if (opens.isEmpty())
        return;
    const bool newPerClick = opens.startsWith(QLatin1Char('+'));
    const QByteArray className = opens.mid(newPerClick ? 1 : 0).toLatin1();
    launch->click();
    QCOMPARE(windows(&panel, className).size(), 1);
    QWidget* window = windows(&panel, className).first();
    QVERIFY(window->isVisible());
    window->close();
    launch->click();
    if (newPerClick) {
        QCOMPARE(windows(&panel, className).size(), 2);
        QVERIFY(windows(&panel, className).last()->isVisible());
        return;
    }
    QCOMPARE(windows(&panel, className), QList<QWidget*>({window}));
    QVERIFY(window->isVisible());
}

void LauncherPanelTest::header()
{
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    QCOMPARE(panel.windowTitle(), QStringLiteral("TestWidgetCollection"));
    QCOMPARE(button(&panel, "loupe")->text(), QStringLiteral("Show Loupe"));
    auto* header = panel.findChild<VNLabel*>(QStringLiteral("vnLabel"));
    QVERIFY(header && header->isHeader());
    QCOMPARE(header->text(), QStringLiteral("VNWidgets Examples"));
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
    button(&panel, "showStyleSheet")->click();
    auto* viewer = panel.findChild<DebugStyleSheet*>();
    QVERIFY(viewer && viewer->isVisible());
    QVERIFY(!viewer->isReadOnly());
    QVERIFY(!viewer->findChild<QPlainTextEdit*>()->isReadOnly());
}

// The state-debug window is raised above the other windows on every click. The headless platform
// cannot stack windows; it says so each time a window is raised, which shows that it was.
void LauncherPanelTest::stateDebugComesToFront()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        QSKIP("the raise is seen through the headless platform");
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    panel.show();
    for (int click = 0; click < 2; ++click) {
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        button(&panel, "stateDebug")->click();
        QVERIFY(windows(&panel, "DebugStateInfo").first()->isVisible());
    }
}

void LauncherPanelTest::loupeFollowsLatestVisibleWindow()
{
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    panel.show();
    button(&panel, "loupe")->click();
    auto* loupe = panel.findChild<Loupe*>();
    QVERIFY(loupe && loupe->isVisible());
    QCOMPARE(loupe->parentWidget(), &panel);
    button(&panel, "m_QtTraining")->click();
    button(&panel, "m_testVNMessageBox")->click();
    QWidget* training = windows(&panel, "QtTraining").first();
    QWidget* messageTest = windows(&panel, "TestVNMessageBox").first();
    for (QWidget* expected : {messageTest, training, static_cast<QWidget*>(&panel)}) {
        button(&panel, "loupe")->click();
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
        button(panel.get(), name)->click();
    QStringList order;
    for (QWidget* window : windows(panel.get())) {
        const QString name = QString::fromLatin1(window->metaObject()->className());
        connect(window, &QObject::destroyed, this, [&order, name] { order << name; });
    }
    panel.reset();
    QCOMPARE(order, QStringList({"DebugStyleSheet", "DebugStateInfo", "QtTraining", "TestVNMessageBox"}));
}

QTEST_MAIN(LauncherPanelTest)
#include "tst_launcherpanel.moc"
