#include "Loupe.h"
#include "QtTraining.h"
#include "TestVNMessageBox.h"
#include "TestWidgetCollection.h"

#include <DebugStateInfo.h>
#include <DebugStyleSheet.h>
#include <VNLabel.h>

#include <QApplication>
#include <QGridLayout>
#include <QMetaMethod>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace {
QPushButton* button(QWidget* panel, const char* name)
{
    return panel->findChild<QPushButton*>(QLatin1String(name));
}

template<typename Window>
QList<Window*> windowsOf(QWidget* panel)
{
    return panel->findChildren<Window*>(QString(), Qt::FindDirectChildrenOnly);
}
} // namespace

class LauncherPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void panelForm();
    void gridButtons_data();
    void gridButtons();
    void emptyRows();
    void inspectionButtons();
    void tabOrder();
    void slotOrder();
    void cachedWindows_data();
    void cachedWindows();
    void loupeGoesToPanelWithoutDialog();
    void loupeMovesToLatestVisibleDialog();
    void destructorDeletesInspectionWindowsFirst();
};

void LauncherPanelTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void LauncherPanelTest::panelForm()
{
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    QCOMPARE(panel.objectName(), QStringLiteral("TestWidgetCollection"));
    QCOMPARE(panel.windowTitle(), QStringLiteral("TestWidgetCollection"));
    QCOMPARE(panel.size(), QSize(706, 636));
    QCOMPARE(panel.property("base"), QVariant(true));
    auto* outer = panel.findChild<QVBoxLayout*>(QStringLiteral("verticalLayout_2"));
    QVERIFY(outer);
    QCOMPARE(outer->spacing(), 6);
    QCOMPARE(outer->contentsMargins(), QMargins(11, 11, 11, 11));
    QCOMPARE(outer->count(), 3);
    QCOMPARE(outer->itemAt(0)->layout()->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(outer->itemAt(1)->layout()->objectName(), QStringLiteral("gridLayout"));
    QSpacerItem* spacer = outer->itemAt(2)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(20, 40));
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(panel.findChild<QGridLayout*>(QStringLiteral("gridLayout"))->spacing(), 6);

    auto* header = panel.findChild<VNLabel*>(QStringLiteral("vnLabel"));
    QVERIFY(header);
    QVERIFY(header->isHeader());
    QCOMPARE(header->text(), QStringLiteral("VNWidgets Examples"));
    QCOMPARE(header->alignment(), Qt::AlignLeading | Qt::AlignLeft | Qt::AlignVCenter);
}

void LauncherPanelTest::gridButtons_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    const struct
    {
        const char* name;
        const char* text;
        int row;
        int column;
    } table[] = {
        {"m_visualizePointsControl", "PointsControl", 0, 0},
        {"testMasterDetailTree", "Master Detail Tree", 0, 1},
        {"testPathShortener", "PathShortener", 0, 2},
        {"testComboBox", "ComboBox", 1, 0},
        {"testValueFields", "ValueFields", 1, 1},
        {"testComposePixmap", "Compose Pixmap", 1, 2},
        {"testFlipWidget", "FlipWidget", 2, 0},
        {"testColorDisplay", "Color Display", 2, 1},
        {"m_testRegExp", "Reg Exp", 2, 2},
        {"m_testTreeDelegates", "Tree Delegates", 3, 0},
        {"m_testTreeItemDelegate", "Tree Item Delegate", 3, 1},
        {"m_testLayouts", "Layout && SizeHint", 3, 2},
        {"m_testAlignment", "TestAlignment", 4, 0},
        {"m_QtTraining", "Qt Training", 4, 1},
        {"m_testSVG", "Test SVG", 4, 2},
        {"m_testLayoutHelper", "VNLayoutHelper", 5, 0},
        {"m_testDendrogramWidget", "DendrogramTest", 5, 1},
        {"m_compareIcons", "Compare PNG and SVG Icons", 5, 2},
        {"m_testSquish", "Squish", 7, 0},
        {"m_testAnimatedTabBar", "Animated Tab Bar (QML)", 7, 1},
        {"m_testNewAssemblyImport", "VNTreeView for Assembly Import Test", 7, 2},
        {"vnLabel", "VNWidgets Examples", 9, 0},
        {"testDisclosure", "VNProgressiveDisclosure", 10, 0},
        {"testVnSlider", "VNSlider", 10, 1},
        {"testVNAdvancedMenu", "VNAdvancedMenu", 10, 2},
        {"testCurveInputControl", "VNCurveInputControl", 11, 0},
        {"testInfoArea", "Test InfoArea", 11, 1},
        {"testVNModuleNavigation", "VNModuleNavigation", 11, 2},
        {"testTableWidget", "VNTableWidget/View", 12, 0},
        {"testTreeWidget", "Tree Widget/View", 12, 1},
        {"m_joinsTestTable", "Joins Table", 12, 2},
        {"m_vnResultSwitcher", "VNResultSwitcher", 13, 0},
        {"m_testVNTreeView", "VNTreeView", 13, 1},
        {"m_testVirtualSlider", "VirtualSlider", 13, 2},
        {"m_testDragAndDrop", "Drag && Drop", 14, 0},
        {"m_progressTest", "ProgressSimu", 14, 1},
        {"m_converterTest", "ConverterUtility", 14, 2},
        {"m_testVNMessageBox", "VNMessageBox", 15, 0},
    };
    for (const auto& entry : table)
        QTest::newRow(entry.name) << entry.name << entry.text << entry.row << entry.column;
}

void LauncherPanelTest::gridButtons()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(int, row);
    QFETCH(int, column);
    TestWidgetCollection panel;
    auto* grid = panel.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    auto* widget = panel.findChild<QWidget*>(name);
    QVERIFY(widget);
    QCOMPARE(widget->property("text").toString(), text);
    int itemRow = -1, itemColumn = -1, rowSpan = 0, columnSpan = 0;
    grid->getItemPosition(grid->indexOf(widget), &itemRow, &itemColumn, &rowSpan, &columnSpan);
    QCOMPARE(QList<int>({itemRow, itemColumn, rowSpan, columnSpan}), QList<int>({row, column, 1, 1}));
}

void LauncherPanelTest::emptyRows()
{
    TestWidgetCollection panel;
    auto* grid = panel.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QCOMPARE(grid->count(), 38);
    QCOMPARE(grid->columnCount(), 3);
    for (int row : {6, 8}) {
        for (int column = 0; column < 3; ++column)
            QVERIFY(!grid->itemAtPosition(row, column));
    }
}

void LauncherPanelTest::inspectionButtons()
{
    TestWidgetCollection panel;
    auto* column = panel.findChild<QVBoxLayout*>(QStringLiteral("verticalLayout"));
    const QStringList names = {"showStyleSheet", "loupe", "stateDebug"};
    const QStringList texts = {"Show StyleSheet", "Show Loupe", "State Debug"};
    for (int index = 0; index < names.size(); ++index) {
        auto* widget = qobject_cast<QPushButton*>(column->itemAt(index)->widget());
        QVERIFY(widget);
        QCOMPARE(widget->objectName(), names.at(index));
        QCOMPARE(widget->text(), texts.at(index));
    }
    for (const char* name : {"showStyleSheet", "loupe"}) {
        const QSizePolicy policy = button(&panel, name)->sizePolicy();
        QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(policy.verticalPolicy(), QSizePolicy::Fixed);
    }
}

void LauncherPanelTest::tabOrder()
{
    const QStringList chain = {"m_testTreeDelegates",
                               "loupe",
                               "stateDebug",
                               "testDisclosure",
                               "testCurveInputControl",
                               "testPathShortener",
                               "testVnSlider",
                               "showStyleSheet",
                               "m_testRegExp",
                               "testVNAdvancedMenu",
                               "testComposePixmap",
                               "m_visualizePointsControl",
                               "testMasterDetailTree",
                               "testValueFields",
                               "testFlipWidget",
                               "m_converterTest",
                               "m_QtTraining",
                               "m_testLayouts",
                               "m_testTreeItemDelegate",
                               "m_joinsTestTable",
                               "testTableWidget",
                               "testColorDisplay",
                               "m_testDragAndDrop",
                               "testInfoArea",
                               "testTreeWidget",
                               "m_testSVG",
                               "testComboBox",
                               "m_testLayoutHelper",
                               "m_testDendrogramWidget",
                               "m_vnResultSwitcher",
                               "m_progressTest",
                               "testVNModuleNavigation",
                               "m_compareIcons",
                               "m_testSquish",
                               "m_testAlignment"};
    TestWidgetCollection panel;
    QWidget* current = button(&panel, "m_testTreeDelegates");
    for (int index = 1; index < chain.size(); ++index) {
        current = current->nextInFocusChain();
        QCOMPARE(current->objectName(), chain.at(index));
    }
}

void LauncherPanelTest::slotOrder()
{
    const QMetaObject& meta = TestWidgetCollection::staticMetaObject;
    QStringList slotNames;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        slotNames << QString::fromLatin1(meta.method(index).name());
    QCOMPARE(slotNames.size(), 41);
    QCOMPARE(slotNames.first(), QStringLiteral("showMessage"));
    QCOMPARE(meta.method(meta.methodOffset()).access(), QMetaMethod::Public);
    QCOMPARE(slotNames.at(1), QStringLiteral("on_showStyleSheet_clicked"));
    QCOMPARE(slotNames.at(3), QStringLiteral("on_stateDebug_clicked"));
    QCOMPARE(slotNames.last(), QStringLiteral("on_m_testVirtualSlider_clicked"));
    QCOMPARE(meta.method(meta.methodCount() - 1).access(), QMetaMethod::Protected);
    // Every button of the panel reaches its slot by name.
    TestWidgetCollection panel;
    for (QPushButton* widget : panel.findChildren<QPushButton*>()) {
        const QString slot = QStringLiteral("on_%1_clicked").arg(widget->objectName());
        QVERIFY2(slotNames.contains(slot), qPrintable(slot));
    }
}

void LauncherPanelTest::cachedWindows_data()
{
    QTest::addColumn<QString>("buttonName");
    QTest::addColumn<QString>("className");
    QTest::newRow("style sheet") << "showStyleSheet"
                                 << "DebugStyleSheet";
    QTest::newRow("state debug") << "stateDebug"
                                 << "DebugStateInfo";
    QTest::newRow("qt training") << "m_QtTraining"
                                 << "QtTraining";
    QTest::newRow("reg exp") << "m_testRegExp"
                             << "TestRegExp";
    QTest::newRow("message box test") << "m_testVNMessageBox"
                                      << "TestVNMessageBox";
    QTest::newRow("value fields test") << "testValueFields"
                                       << "TestValueFields";
    QTest::newRow("colour display test") << "testColorDisplay"
                                         << "TestColorDisplay";
    QTest::newRow("alignment test") << "m_testAlignment"
                                    << "TestAlignment";
    QTest::newRow("virtual slider test") << "m_testVirtualSlider"
                                         << "TestVirtualSlider";
}

void LauncherPanelTest::cachedWindows()
{
    QFETCH(QString, buttonName);
    QFETCH(QString, className);
    TestWidgetCollection panel;
    panel.show();
    const auto windowsOfClass = [&] {
        QList<QWidget*> found;
        for (QWidget* child : panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->isWindow() && className == QLatin1String(child->metaObject()->className()))
                found << child;
        }
        return found;
    };
    auto* launch = panel.findChild<QPushButton*>(buttonName);
    launch->click();
    QCOMPARE(windowsOfClass().size(), 1);
    QWidget* window = windowsOfClass().first();
    QVERIFY(window->isVisible());
    QCOMPARE(window->parentWidget(), &panel);
    window->close();
    QVERIFY(!window->isVisible());
    launch->click();
    QCOMPARE(windowsOfClass(), QList<QWidget*>({window}));
    QVERIFY(window->isVisible());
}

void LauncherPanelTest::loupeGoesToPanelWithoutDialog()
{
    TestWidgetCollection panel;
    panel.show();
    button(&panel, "loupe")->click();
    QList<Loupe*> loupes = panel.findChildren<Loupe*>();
    QCOMPARE(loupes.size(), 1);
    QCOMPARE(loupes.first()->parentWidget(), &panel);
    QVERIFY(loupes.first()->isVisible());
    button(&panel, "loupe")->click();
    QCOMPARE(panel.findChildren<Loupe*>(), loupes);
    QCOMPARE(loupes.first()->parentWidget(), &panel);
}

void LauncherPanelTest::loupeMovesToLatestVisibleDialog()
{
    TestWidgetCollection panel;
    panel.show();
    button(&panel, "loupe")->click();
    Loupe* loupe = panel.findChild<Loupe*>();
    button(&panel, "m_QtTraining")->click();
    button(&panel, "m_testVNMessageBox")->click();
    auto* training = windowsOf<QtTraining>(&panel).first();
    auto* messageTest = windowsOf<TestVNMessageBox>(&panel).first();

    button(&panel, "loupe")->click();
    QCOMPARE(loupe->parentWidget(), messageTest);
    QVERIFY(loupe->isVisible());

    messageTest->close();
    button(&panel, "loupe")->click();
    QCOMPARE(loupe->parentWidget(), training);

    training->close();
    button(&panel, "loupe")->click();
    QCOMPARE(loupe->parentWidget(), &panel);
    QCOMPARE(panel.findChildren<Loupe*>().size(), 1);
}

void LauncherPanelTest::destructorDeletesInspectionWindowsFirst()
{
    auto panel = std::make_unique<TestWidgetCollection>();
    panel->show();
    for (const char* name : {"m_QtTraining", "stateDebug", "m_testVNMessageBox", "showStyleSheet"})
        button(panel.get(), name)->click();
    QStringList order;
    for (QWidget* child : panel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isWindow())
            continue;
        const QString name = QString::fromLatin1(child->metaObject()->className());
        connect(child, &QObject::destroyed, this, [&order, name] { order << name; });
    }
    panel.reset();
    QCOMPARE(order, QStringList({"DebugStyleSheet", "DebugStateInfo", "QtTraining", "TestVNMessageBox"}));
}

QTEST_MAIN(LauncherPanelTest)
#include "tst_launcherpanel.moc"
