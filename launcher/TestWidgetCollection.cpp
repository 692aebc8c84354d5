#include "TestWidgetCollection.h"

#include "Loupe.h"
#include "QtTraining.h"
#include "TestAdvancedMenu.h"
#include "TestAlignment.h"
#include "TestColorDisplay.h"
#include "TestComboBox.h"
#include "TestCompareIcons.h"
#include "TestComposePixmap.h"
#include "TestConverterUtility.h"
#include "TestCurveInputControl.h"
#include "TestDendrogramWidget.h"
#include "TestDisclosure.h"
#include "TestDragAndDrop.h"
#include "TestFlipWidget.h"
#include "TestInfoArea.h"
#include "TestJoinsTable.h"
#include "TestLayoutExample.h"
#include "TestLayoutHelper.h"
#include "TestMasterDetailTree.h"
#include "TestModuleNavigation.h"
#include "TestNewAssemblyImport.h"
#include "TestProgressComposition.h"
#include "TestRegExp.h"
#include "TestSVG.h"
#include "TestSquish.h"
#include "TestStringReducer.h"
#include "TestTreeDelegates.h"
#include "TestTreeItemDelegate.h"
#include "TestTreeWidget.h"
#include "TestVNAnimatedTabBar.h"
#include "TestVNMessageBox.h"
#include "TestVNResultSwitcher.h"
#include "TestVNSliderView.h"
#include "TestVNTableWidget.h"
#include "TestVNTreeView.h"
#include "TestValueFields.h"
#include "TestVirtualSlider.h"
#include "TestVisualizePointsControl.h"

#include <DebugStateInfo.h>
#include <DebugStyleSheet.h>

#include <QMessageBox>

namespace {
// Creates the window on the first call, with the panel as its parent, and shows it every time.
template<typename Window>
Window* showCached(Window*& window, QWidget* panel)
{
    if (!window)
        window = new Window(panel);
    window->show();
    return window;
}
} // namespace

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
    if (!m_styleSheetViewer)
        m_styleSheetViewer = new DebugStyleSheet(this, false);
    m_styleSheetViewer->show();
}

// The loupe goes into the most recently created window of the panel that is still visible, or into
// the panel when there is none; there is only ever one loupe, moved between windows. Only windows
// count: the panel's own buttons and the loupe itself are children too, and a loupe inside a button
// (or inside itself) would be useless.
void TestWidgetCollection::on_loupe_clicked()
{
    const QObjectList candidates = children();
    QWidget* target = this;
    for (auto it = candidates.crbegin(); it != candidates.crend(); ++it) {
        QObject* child = *it;
        if (!child->isWidgetType())
            continue;
        auto* widget = static_cast<QWidget*>(child);
        if (widget->isVisible() && widget->isWindow()) {
            target = widget;
            break;
        }
    }
    if (!m_loupe)
        m_loupe = new Loupe(target);
    else if (m_loupe->parentWidget() != target)
        m_loupe->setParent(target);
    m_loupe->show();
}

void TestWidgetCollection::on_stateDebug_clicked()
{
    showCached(m_stateDebug, this)->raise();
}

void TestWidgetCollection::on_m_visualizePointsControl_clicked()
{
    showCached(m_testPointsControl, this);
}

void TestWidgetCollection::on_testMasterDetailTree_clicked()
{
    showCached(m_testMasterDetailTree, this);
}

void TestWidgetCollection::on_testPathShortener_clicked()
{
    showCached(m_testStringReducer, this);
}

// The combo box test takes the loupe along, if there is one, every time it is opened. Moving a
// widget hides it, so a loupe that was on screen is shown again in its new window.
void TestWidgetCollection::on_testComboBox_clicked()
{
    if (!m_testComboBox)
        m_testComboBox = new TestComboBox(this);
    if (m_loupe) {
        const bool loupeShown = m_loupe->isVisible();
        m_loupe->setParent(m_testComboBox);
        if (loupeShown)
            m_loupe->show();
    }
    m_testComboBox->show();
}

void TestWidgetCollection::on_testValueFields_clicked()
{
    showCached(m_testValueFields, this);
}

void TestWidgetCollection::on_testComposePixmap_clicked()
{
    showCached(m_testComposePixmap, this);
}

void TestWidgetCollection::on_testFlipWidget_clicked()
{
    showCached(m_testFlipWidget, this);
}

void TestWidgetCollection::on_testColorDisplay_clicked()
{
    showCached(m_testColorDisplay, this);
}

void TestWidgetCollection::on_m_testRegExp_clicked()
{
    showCached(m_testRegExp, this);
}

void TestWidgetCollection::on_m_testTreeDelegates_clicked()
{
    showCached(m_testTreeDelegates, this);
}

void TestWidgetCollection::on_m_testTreeItemDelegate_clicked()
{
    showCached(m_testTreeItemDelegate, this);
}

void TestWidgetCollection::on_m_testLayouts_clicked()
{
    showCached(m_testLayoutExample, this);
}

void TestWidgetCollection::on_m_testSquish_clicked()
{
    showCached(m_testSquish, this);
}

void TestWidgetCollection::on_m_QtTraining_clicked()
{
    showCached(m_qtTraining, this);
}

void TestWidgetCollection::on_m_testSVG_clicked()
{
    showCached(m_testSVG, this);
}

void TestWidgetCollection::on_m_testAnimatedTabBar_clicked()
{
    showCached(m_testAnimatedTabBar, this);
}

void TestWidgetCollection::on_m_testLayoutHelper_clicked()
{
    showCached(m_testLayoutHelper, this);
}

void TestWidgetCollection::on_m_testDendrogramWidget_clicked()
{
    showCached(m_testDendrogramWidget, this);
}

void TestWidgetCollection::on_m_compareIcons_clicked()
{
    showCached(m_testCompareIcons, this);
}

void TestWidgetCollection::on_m_testNewAssemblyImport_clicked()
{
    showCached(m_testNewAssemblyImport, this);
}

void TestWidgetCollection::on_testDisclosure_clicked()
{
    showCached(m_testDisclosure, this);
}

void TestWidgetCollection::on_testVnSlider_clicked()
{
    showCached(m_testSliderView, this);
}

void TestWidgetCollection::on_testVNAdvancedMenu_clicked()
{
    showCached(m_testAdvancedMenu, this);
}

void TestWidgetCollection::on_testCurveInputControl_clicked()
{
    showCached(m_testCurveInputControl, this);
}

void TestWidgetCollection::on_testInfoArea_clicked()
{
    showCached(m_testInfoArea, this);
}

void TestWidgetCollection::on_testVNModuleNavigation_clicked()
{
    showCached(m_testModuleNavigation, this);
}

void TestWidgetCollection::on_testTableWidget_clicked()
{
    showCached(m_testTableWidget, this);
}

void TestWidgetCollection::on_m_testVNTreeView_clicked()
{
    showCached(m_testTreeView, this);
}

void TestWidgetCollection::on_testTreeWidget_clicked()
{
    showCached(m_testTreeWidget, this);
}

void TestWidgetCollection::on_m_joinsTestTable_clicked()
{
    showCached(m_testJoinsTable, this);
}

// A new window on every click; the panel deletes them all when it goes.
void TestWidgetCollection::on_m_vnResultSwitcher_clicked()
{
    (new TestVNResultSwitcher(this))->show();
}

void TestWidgetCollection::on_m_testDragAndDrop_clicked()
{
    showCached(m_testDragAndDrop, this);
}

void TestWidgetCollection::on_m_progressTest_clicked()
{
    showCached(m_testProgressComposition, this);
}

void TestWidgetCollection::on_m_converterTest_clicked()
{
    TestConverterUtility(this).run();
}

void TestWidgetCollection::on_m_testAlignment_clicked()
{
    showCached(m_testAlignment, this);
}

void TestWidgetCollection::on_m_testVNMessageBox_clicked()
{
    showCached(m_testMessageBox, this);
}

void TestWidgetCollection::on_m_testVirtualSlider_clicked()
{
    showCached(m_testVirtualSlider, this);
}
