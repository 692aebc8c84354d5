#include "LauncherTable.h"

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
#include "TestWidgetCollection.h"

#include <DebugStateInfo.h>
#include <DebugStyleSheet.h>
#include <FileConverterDialog.h>

#include <type_traits>

namespace {
using Entry = LauncherTable::Entry;
using Policy = LauncherTable::Policy;
using Extra = LauncherTable::Extra;

// The panel's window pointer that a member pointer names, and the class it holds.
template<auto window>
using WindowOf =
    std::remove_pointer_t<std::remove_reference_t<decltype(std::declval<TestWidgetCollection&>().*window)>>;

template<typename Window>
Window* make(QWidget* panel)
{
    return new Window(panel);
}

template<>
DebugStyleSheet* make<DebugStyleSheet>(QWidget* panel)
{
    return new DebugStyleSheet(panel, false);
}

template<auto window>
WindowOf<window>* keptOrNew(TestWidgetCollection& panel)
{
    auto& kept = panel.*window;
    if (!kept)
        kept = make<WindowOf<window>>(&panel);
    return kept;
}

template<auto window>
QWidget* keptWindow(const TestWidgetCollection& panel)
{
    return panel.*window;
}

template<auto window>
QWidget* showKept(TestWidgetCollection& panel)
{
    QWidget* shown = keptOrNew<window>(panel);
    shown->show();
    return shown;
}

template<auto window>
QWidget* showKeptRaised(TestWidgetCollection& panel)
{
    QWidget* shown = showKept<window>(panel);
    shown->raise();
    return shown;
}

// Moving a widget hides it, so a loupe that was on screen is shown again in its new window.
template<auto window, auto loupe>
QWidget* showKeptTakingLoupe(TestWidgetCollection& panel)
{
    QWidget* shown = keptOrNew<window>(panel);
    if (Loupe* magnifier = panel.*loupe) {
        const bool wasShown = magnifier->isVisible();
        magnifier->setParent(shown);
        if (wasShown)
            magnifier->show();
    }
    shown->show();
    return shown;
}

template<typename Window>
QWidget* showNew(TestWidgetCollection& panel)
{
    QWidget* shown = new Window(&panel);
    shown->show();
    return shown;
}

QWidget* runConverter(TestWidgetCollection& panel)
{
    TestConverterUtility converter(&panel);
    converter.run();
    return converter.dialog();
}

// The loupe goes into the most recently created window of the panel that is still visible, or into
// the panel when there is none. Only windows count: the panel's own buttons and the loupe itself
// are children too, and a loupe inside a button (or inside itself) would be useless.
QWidget* latestVisibleWindow(TestWidgetCollection& panel)
{
    const QObjectList candidates = panel.children();
    for (auto it = candidates.crbegin(); it != candidates.crend(); ++it) {
        QObject* child = *it;
        if (!child->isWidgetType())
            continue;
        auto* widget = static_cast<QWidget*>(child);
        if (widget->isVisible() && widget->isWindow())
            return widget;
    }
    return &panel;
}

template<auto loupe>
QWidget* placeLoupe(TestWidgetCollection& panel)
{
    QWidget* target = latestVisibleWindow(panel);
    Loupe*& magnifier = panel.*loupe;
    if (!magnifier)
        magnifier = new Loupe(target);
    else if (magnifier->parentWidget() != target)
        magnifier->setParent(target);
    magnifier->show();
    return magnifier;
}

QWidget* keepsNothing(const TestWidgetCollection&)
{
    return nullptr;
}

template<auto window>
Entry kept(const char* button, const char* pages = nullptr)
{
    return {button, Policy::Kept, Extra::None, &showKept<window>, &keptWindow<window>, pages};
}

template<auto window>
Entry keptRaised(const char* button)
{
    return {button, Policy::Kept, Extra::Raised, &showKeptRaised<window>, &keptWindow<window>, nullptr};
}

template<auto window, auto loupe>
Entry keptTakingLoupe(const char* button)
{
    return {button, Policy::Kept, Extra::TakesLoupe, &showKeptTakingLoupe<window, loupe>, &keptWindow<window>, nullptr};
}

template<typename Window>
Entry newEachClick(const char* button)
{
    return {button, Policy::NewEachClick, Extra::None, &showNew<Window>, &keepsNothing, nullptr};
}

template<auto loupe>
Entry movesLoupe(const char* button)
{
    return {button, Policy::MovesLoupe, Extra::None, &placeLoupe<loupe>, &keptWindow<loupe>, nullptr};
}

Entry runAtOnce(const char* button, QWidget* (*run)(TestWidgetCollection&))
{
    return {button, Policy::RunAtOnce, Extra::None, run, &keepsNothing, nullptr};
}
} // namespace

const QVector<LauncherTable::Entry>& LauncherTable::entries()
{
    using P = TestWidgetCollection;
    static const QVector<Entry> table{
        kept<&P::m_styleSheetViewer>("showStyleSheet"),
        movesLoupe<&P::m_loupe>("loupe"),
        keptRaised<&P::m_stateDebug>("stateDebug"),
        kept<&P::m_testPointsControl>("m_visualizePointsControl"),
        kept<&P::m_testMasterDetailTree>("testMasterDetailTree"),
        kept<&P::m_testStringReducer>("testPathShortener"),
        keptTakingLoupe<&P::m_testComboBox, &P::m_loupe>("testComboBox"),
        kept<&P::m_testValueFields>("testValueFields"),
        kept<&P::m_testComposePixmap>("testComposePixmap"),
        kept<&P::m_testFlipWidget>("testFlipWidget"),
        kept<&P::m_testColorDisplay>("testColorDisplay"),
        kept<&P::m_testRegExp>("m_testRegExp"),
        kept<&P::m_testTreeDelegates>("m_testTreeDelegates"),
        kept<&P::m_testTreeItemDelegate>("m_testTreeItemDelegate"),
        kept<&P::m_testLayoutExample>("m_testLayouts"),
        kept<&P::m_testAlignment>("m_testAlignment"),
        kept<&P::m_qtTraining>("m_QtTraining"),
        kept<&P::m_testSVG>("m_testSVG"),
        kept<&P::m_testLayoutHelper>("m_testLayoutHelper"),
        kept<&P::m_testDendrogramWidget>("m_testDendrogramWidget"),
        kept<&P::m_testCompareIcons>("m_compareIcons"),
        kept<&P::m_testSquish>("m_testSquish", "m_tabWidget"),
        kept<&P::m_testAnimatedTabBar>("m_testAnimatedTabBar"),
        kept<&P::m_testNewAssemblyImport>("m_testNewAssemblyImport"),
        kept<&P::m_testDisclosure>("testDisclosure"),
        kept<&P::m_testSliderView>("testVnSlider"),
        kept<&P::m_testAdvancedMenu>("testVNAdvancedMenu"),
        kept<&P::m_testCurveInputControl>("testCurveInputControl"),
        kept<&P::m_testInfoArea>("testInfoArea"),
        kept<&P::m_testModuleNavigation>("testVNModuleNavigation"),
        kept<&P::m_testTableWidget>("testTableWidget"),
        kept<&P::m_testTreeWidget>("testTreeWidget"),
        kept<&P::m_testJoinsTable>("m_joinsTestTable"),
        newEachClick<TestVNResultSwitcher>("m_vnResultSwitcher"),
        kept<&P::m_testTreeView>("m_testVNTreeView"),
        kept<&P::m_testVirtualSlider>("m_testVirtualSlider"),
        kept<&P::m_testDragAndDrop>("m_testDragAndDrop"),
        kept<&P::m_testProgressComposition>("m_progressTest"),
        runAtOnce("m_converterTest", &runConverter),
        kept<&P::m_testMessageBox>("m_testVNMessageBox"),
    };
    return table;
}

const LauncherTable::Entry* LauncherTable::find(const QString& button)
{
    for (const Entry& entry : entries()) {
        if (button == QLatin1String(entry.button))
            return &entry;
    }
    return nullptr;
}

QWidget* LauncherTable::open(TestWidgetCollection& panel, const char* button)
{
    const Entry* entry = find(QLatin1String(button));
    Q_ASSERT_X(entry, "LauncherTable::open", button);
    return entry ? entry->open(panel) : nullptr;
}
