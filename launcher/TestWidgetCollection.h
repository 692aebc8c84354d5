#pragma once

#include "testwidgetcollection_export.h"
#include "ui_TestWidgetCollection.h"

#include <QWidget>

class DebugStateInfo;
class DebugStyleSheet;
class Loupe;
class QtTraining;
class TestAdvancedMenu;
class TestAlignment;
class TestColorDisplay;
class TestComboBox;
class TestCompareIcons;
class TestComposePixmap;
class TestCurveInputControl;
class TestDendrogramWidget;
class TestDisclosure;
class TestDragAndDrop;
class TestFlipWidget;
class TestInfoArea;
class TestJoinsTable;
class TestLayoutExample;
class TestLayoutHelper;
class TestMasterDetailTree;
class TestModuleNavigation;
class TestNewAssemblyImport;
class TestProgressComposition;
class TestRegExp;
class TestSquish;
class TestStringReducer;
class TestSVG;
class TestTreeDelegates;
class TestTreeItemDelegate;
class TestTreeWidget;
class TestValueFields;
class TestVirtualSlider;
class TestVisualizePointsControl;
class TestVNAnimatedTabBar;
class TestVNMessageBox;
class TestVNSliderView;
class TestVNTableWidget;
class TestVNTreeView;

// The panel of the collection: one button per test dialog of the VN widget toolkit, plus the
// style-sheet viewer, the loupe and the state-debug window. It owns every window it opens.
class TESTWIDGETCOLLECTION_EXPORT TestWidgetCollection : public QWidget
{
    Q_OBJECT

public:
    TestWidgetCollection(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~TestWidgetCollection() override;

public slots:
    void showMessage();

protected slots:
    void on_showStyleSheet_clicked();
    void on_loupe_clicked();
    void on_stateDebug_clicked();
    void on_m_visualizePointsControl_clicked();
    void on_testMasterDetailTree_clicked();
    void on_testPathShortener_clicked();
    void on_testComboBox_clicked();
    void on_testValueFields_clicked();
    void on_testComposePixmap_clicked();
    void on_testFlipWidget_clicked();
    void on_testColorDisplay_clicked();
    void on_m_testRegExp_clicked();
    void on_m_testTreeDelegates_clicked();
    void on_m_testTreeItemDelegate_clicked();
    void on_m_testLayouts_clicked();
    void on_m_testSquish_clicked();
    void on_m_QtTraining_clicked();
    void on_m_testSVG_clicked();
    void on_m_testAnimatedTabBar_clicked();
    void on_m_testLayoutHelper_clicked();
    void on_m_testDendrogramWidget_clicked();
    void on_m_compareIcons_clicked();
    void on_m_testNewAssemblyImport_clicked();
    void on_testDisclosure_clicked();
    void on_testVnSlider_clicked();
    void on_testVNAdvancedMenu_clicked();
    void on_testCurveInputControl_clicked();
    void on_testInfoArea_clicked();
    void on_testVNModuleNavigation_clicked();
    void on_testTableWidget_clicked();
    void on_m_testVNTreeView_clicked();
    void on_testTreeWidget_clicked();
    void on_m_joinsTestTable_clicked();
    void on_m_vnResultSwitcher_clicked();
    void on_m_testDragAndDrop_clicked();
    void on_m_progressTest_clicked();
    void on_m_converterTest_clicked();
    void on_m_testAlignment_clicked();
    void on_m_testVNMessageBox_clicked();
    void on_m_testVirtualSlider_clicked();

private:
    // The table of buttons makes, keeps and shows the windows held below.
    friend class LauncherTable;

    Ui::TestWidgetCollection ui;

    DebugStyleSheet* m_styleSheetViewer;
    TestValueFields* m_testValueFields;
    TestVNSliderView* m_testSliderView;
    TestComboBox* m_testComboBox;
    QtTraining* m_qtTraining;
    TestProgressComposition* m_testProgressComposition;
    TestDisclosure* m_testDisclosure;
    Loupe* m_loupe;
    DebugStateInfo* m_stateDebug;
    TestVisualizePointsControl* m_testPointsControl;
    TestTreeDelegates* m_testTreeDelegates;
    TestMasterDetailTree* m_testMasterDetailTree;
    TestStringReducer* m_testStringReducer;
    TestComposePixmap* m_testComposePixmap;
    TestFlipWidget* m_testFlipWidget;
    TestRegExp* m_testRegExp;
    TestSquish* m_testSquish;
    TestAdvancedMenu* m_testAdvancedMenu;
    TestCurveInputControl* m_testCurveInputControl;
    TestInfoArea* m_testInfoArea;
    TestColorDisplay* m_testColorDisplay;
    TestVNTableWidget* m_testTableWidget;
    TestVNTreeView* m_testTreeView;
    TestTreeWidget* m_testTreeWidget;
    TestTreeItemDelegate* m_testTreeItemDelegate;
    TestJoinsTable* m_testJoinsTable;
    TestLayoutExample* m_testLayoutExample;
    TestDragAndDrop* m_testDragAndDrop;
    TestSVG* m_testSVG;
    TestLayoutHelper* m_testLayoutHelper;
    TestModuleNavigation* m_testModuleNavigation;
    TestDendrogramWidget* m_testDendrogramWidget;
    TestCompareIcons* m_testCompareIcons;
    TestAlignment* m_testAlignment;
    TestVNAnimatedTabBar* m_testAnimatedTabBar;
    TestNewAssemblyImport* m_testNewAssemblyImport;
    TestVNMessageBox* m_testMessageBox;
    TestVirtualSlider* m_testVirtualSlider;
};
