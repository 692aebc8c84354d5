#include "TestWidgetCollection.h"

#include "LauncherTable.h"

#include <DebugStateInfo.h>
#include <DebugStyleSheet.h>

#include <QMessageBox>

TestWidgetCollection::TestWidgetCollection(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_styleSheetViewer(nullptr)
    , m_testValueFields(nullptr)
    , m_testSliderView(nullptr)
    , m_testComboBox(nullptr)
    , m_qtTraining(nullptr)
    , m_testProgressComposition(nullptr)
    , m_testDisclosure(nullptr)
    , m_loupe(nullptr)
    , m_stateDebug(nullptr)
    , m_testPointsControl(nullptr)
    , m_testTreeDelegates(nullptr)
    , m_testMasterDetailTree(nullptr)
    , m_testStringReducer(nullptr)
    , m_testComposePixmap(nullptr)
    , m_testFlipWidget(nullptr)
    , m_testRegExp(nullptr)
    , m_testSquish(nullptr)
    , m_testAdvancedMenu(nullptr)
    , m_testCurveInputControl(nullptr)
    , m_testInfoArea(nullptr)
    , m_testColorDisplay(nullptr)
    , m_testTableWidget(nullptr)
    , m_testTreeView(nullptr)
    , m_testTreeWidget(nullptr)
    , m_testTreeItemDelegate(nullptr)
    , m_testJoinsTable(nullptr)
    , m_testLayoutExample(nullptr)
    , m_testDragAndDrop(nullptr)
    , m_testSVG(nullptr)
    , m_testLayoutHelper(nullptr)
    , m_testModuleNavigation(nullptr)
    , m_testDendrogramWidget(nullptr)
    , m_testCompareIcons(nullptr)
    , m_testAlignment(nullptr)
    , m_testAnimatedTabBar(nullptr)
    , m_testNewAssemblyImport(nullptr)
    , m_testMessageBox(nullptr)
    , m_testVirtualSlider(nullptr)
{
    ui.setupUi(this);
}

TestWidgetCollection::~TestWidgetCollection()
{
    delete m_styleSheetViewer;
    delete m_stateDebug;
}

void TestWidgetCollection::showMessage()
{
    QMessageBox::information(this, QStringLiteral("test"), QStringLiteral("test"), QMessageBox::Ok,
                             QMessageBox::NoButton);
}

void TestWidgetCollection::on_showStyleSheet_clicked()
{
    LauncherTable::open(*this, "showStyleSheet");
}

void TestWidgetCollection::on_loupe_clicked()
{
    LauncherTable::open(*this, "loupe");
}

void TestWidgetCollection::on_stateDebug_clicked()
{
    LauncherTable::open(*this, "stateDebug");
}

void TestWidgetCollection::on_m_visualizePointsControl_clicked()
{
    LauncherTable::open(*this, "m_visualizePointsControl");
}

void TestWidgetCollection::on_testMasterDetailTree_clicked()
{
    LauncherTable::open(*this, "testMasterDetailTree");
}

void TestWidgetCollection::on_testPathShortener_clicked()
{
    LauncherTable::open(*this, "testPathShortener");
}

void TestWidgetCollection::on_testComboBox_clicked()
{
    LauncherTable::open(*this, "testComboBox");
}

void TestWidgetCollection::on_testValueFields_clicked()
{
    LauncherTable::open(*this, "testValueFields");
}

void TestWidgetCollection::on_testComposePixmap_clicked()
{
    LauncherTable::open(*this, "testComposePixmap");
}

void TestWidgetCollection::on_testFlipWidget_clicked()
{
    LauncherTable::open(*this, "testFlipWidget");
}

void TestWidgetCollection::on_testColorDisplay_clicked()
{
    LauncherTable::open(*this, "testColorDisplay");
}

void TestWidgetCollection::on_m_testRegExp_clicked()
{
    LauncherTable::open(*this, "m_testRegExp");
}

void TestWidgetCollection::on_m_testTreeDelegates_clicked()
{
    LauncherTable::open(*this, "m_testTreeDelegates");
}

void TestWidgetCollection::on_m_testTreeItemDelegate_clicked()
{
    LauncherTable::open(*this, "m_testTreeItemDelegate");
}

void TestWidgetCollection::on_m_testLayouts_clicked()
{
    LauncherTable::open(*this, "m_testLayouts");
}

void TestWidgetCollection::on_m_testSquish_clicked()
{
    LauncherTable::open(*this, "m_testSquish");
}

void TestWidgetCollection::on_m_QtTraining_clicked()
{
    LauncherTable::open(*this, "m_QtTraining");
}

void TestWidgetCollection::on_m_testSVG_clicked()
{
    LauncherTable::open(*this, "m_testSVG");
}

void TestWidgetCollection::on_m_testAnimatedTabBar_clicked()
{
    LauncherTable::open(*this, "m_testAnimatedTabBar");
}

void TestWidgetCollection::on_m_testLayoutHelper_clicked()
{
    LauncherTable::open(*this, "m_testLayoutHelper");
}

void TestWidgetCollection::on_m_testDendrogramWidget_clicked()
{
    LauncherTable::open(*this, "m_testDendrogramWidget");
}

void TestWidgetCollection::on_m_compareIcons_clicked()
{
    LauncherTable::open(*this, "m_compareIcons");
}

void TestWidgetCollection::on_m_testNewAssemblyImport_clicked()
{
    LauncherTable::open(*this, "m_testNewAssemblyImport");
}

void TestWidgetCollection::on_testDisclosure_clicked()
{
    LauncherTable::open(*this, "testDisclosure");
}

void TestWidgetCollection::on_testVnSlider_clicked()
{
    LauncherTable::open(*this, "testVnSlider");
}

void TestWidgetCollection::on_testVNAdvancedMenu_clicked()
{
    LauncherTable::open(*this, "testVNAdvancedMenu");
}

void TestWidgetCollection::on_testCurveInputControl_clicked()
{
    LauncherTable::open(*this, "testCurveInputControl");
}

void TestWidgetCollection::on_testInfoArea_clicked()
{
    LauncherTable::open(*this, "testInfoArea");
}

void TestWidgetCollection::on_testVNModuleNavigation_clicked()
{
    LauncherTable::open(*this, "testVNModuleNavigation");
}

void TestWidgetCollection::on_testTableWidget_clicked()
{
    LauncherTable::open(*this, "testTableWidget");
}

void TestWidgetCollection::on_m_testVNTreeView_clicked()
{
    LauncherTable::open(*this, "m_testVNTreeView");
}

void TestWidgetCollection::on_testTreeWidget_clicked()
{
    LauncherTable::open(*this, "testTreeWidget");
}

void TestWidgetCollection::on_m_joinsTestTable_clicked()
{
    LauncherTable::open(*this, "m_joinsTestTable");
}

void TestWidgetCollection::on_m_vnResultSwitcher_clicked()
{
    LauncherTable::open(*this, "m_vnResultSwitcher");
}

void TestWidgetCollection::on_m_testDragAndDrop_clicked()
{
    LauncherTable::open(*this, "m_testDragAndDrop");
}

void TestWidgetCollection::on_m_progressTest_clicked()
{
    LauncherTable::open(*this, "m_progressTest");
}

void TestWidgetCollection::on_m_converterTest_clicked()
{
    LauncherTable::open(*this, "m_converterTest");
}

void TestWidgetCollection::on_m_testAlignment_clicked()
{
    LauncherTable::open(*this, "m_testAlignment");
}

void TestWidgetCollection::on_m_testVNMessageBox_clicked()
{
    LauncherTable::open(*this, "m_testVNMessageBox");
}

void TestWidgetCollection::on_m_testVirtualSlider_clicked()
{
    LauncherTable::open(*this, "m_testVirtualSlider");
}
