#include "VNDesignerCatalog.h"

#include <ColorDisplay.h>
#include <VNActionsBar.h>
#include <VNAnimatedOPTabBar.h>
#include <VNAnimatedTabBar.h>
#include <VNBarChart.h>
#include <VNButton.h>
#include <VNCheckBox.h>
#include <VNClearLineEdit.h>
#include <VNComboBox.h>
#include <VNComboBoxDoubleInput.h>
#include <VNContainerListControl.h>
#include <VNCurveInputControl.h>
#include <VNCustomMenuButton.h>
#include <VNDendrogramWidget.h>
#include <VNDisplayNeededInput.h>
#include <VNDoubleSpinBox.h>
#include <VNDragTreeWidget.h>
#include <VNElementNavigationBar.h>
#include <VNElidedLabel.h>
#include <VNFileMenuButton.h>
#include <VNFilterComboBox.h>
#include <VNFilterListView.h>
#include <VNGroupableComboBox.h>
#include <VNInfoArea.h>
#include <VNLabel.h>
#include <VNLineEdit.h>
#include <VNListToolBar.h>
#include <VNListWidget.h>
#include <VNModuleNavigation.h>
#include <VNMultiProgressBar.h>
#include <VNProgressiveDisclosure.h>
#include <VNProgressiveDisclosureBtn.h>
#include <VNPushButton.h>
#include <VNRadioButton.h>
#include <VNResizeableDisclosure.h>
#include <VNResultSwitcher.h>
#include <VNSeparator.h>
#include <VNSlider.h>
#include <VNSlidingCheckBox.h>
#include <VNStackControllerWidget.h>
#include <VNTabBar.h>
#include <VNTabWidget.h>
#include <VNTableView.h>
#include <VNTableWidget.h>
#include <VNTaskBar.h>
#include <VNToolTipButton.h>
#include <VNTreeView.h>
#include <VNTwinPushButton.h>
#include <VNValueEdit.h>
#include <VNViewSwitcher.h>

#include <QCoreApplication>
#include <QSize>

namespace {

const QString widgetsGroup = QStringLiteral("VN Widgets");

QString stringProperty(const char* name, const char* value)
{
    return QStringLiteral("<property name=\"%1\"><string>%2</string></property>")
        .arg(QLatin1String(name), QLatin1String(value));
}

QString enumProperty(const char* name, const char* value)
{
    return QStringLiteral("<property name=\"%1\"><enum>%2</enum></property>")
        .arg(QLatin1String(name), QLatin1String(value));
}

QString numberProperty(const char* name, int value)
{
    return QStringLiteral("<property name=\"%1\"><number>%2</number></property>").arg(QLatin1String(name)).arg(value);
}

QString page(const char* name, const char* title)
{
    return QStringLiteral("<widget class=\"QWidget\" name=\"%1\">"
                          "<attribute name=\"title\"><string>%2</string></attribute></widget>")
        .arg(QLatin1String(name), QLatin1String(title));
}

// The form's own markup for a new instance: Designer takes the object name as the stem of the
// names it gives, and the geometry as the size of a widget dropped outside a layout.
QString domXml(const QString& className, const char* objectName, QSize size, const QString& content)
{
    return QStringLiteral("<ui language=\"c++\">\n"
                          " <widget class=\"%1\" name=\"%2\">\n"
                          "  <property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%3</width><height>%4</height></rect></property>\n"
                          "  %5\n"
                          " </widget>\n"
                          "</ui>\n")
        .arg(className, QLatin1String(objectName))
        .arg(size.width())
        .arg(size.height())
        .arg(content);
}

QString headerOf(const QString& className)
{
    return className.section(QStringLiteral("::"), -1) + QStringLiteral(".h");
}

struct Appearance
{
    const char* objectName;
    QSize size;
    QString content;
};

template<typename Widget>
VNDesignerWidgetInfo widget(const char* className, const char* family, const char* toolTip, const char* whatsThis,
                            const Appearance& appearance, bool container = false)
{
    VNDesignerWidgetInfo info;
    info.className = QLatin1String(className);
    info.includeFile = headerOf(info.className);
    info.group = widgetsGroup;
    info.family = QLatin1String(family);
    info.toolTip = toolTip;
    info.whatsThis = whatsThis;
    info.container = container;
    info.domXml = domXml(info.className, appearance.objectName, appearance.size, appearance.content);
    info.create = [](QWidget* parent) -> QWidget* { return new Widget(parent); };
    return info;
}

QVector<VNDesignerWidgetInfo> buttons()
{
    return {
        widget<VNButton>("VNButton", "button", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Tool button"),
                         QT_TRANSLATE_NOOP("VNDesignerCatalog",
                                           "A tool button that shows its widget status in its look and can "
                                           "open a menu."),
                         {"vnButton", {80, 24}, stringProperty("text", "...")}),
        widget<VNPushButton>(
            "VNPushButton", "button", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Push button"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A push button that shows its widget status in its look."),
            {"vnPushButton", {100, 28}, stringProperty("text", "PushButton")}),
        widget<VNTwinPushButton>(
            "VNTwinPushButton", "button", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Twin push button"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "Two push buttons joined into one control, left and right."),
            {"vnTwinPushButton", {160, 28}, stringProperty("leftText", "Left") + stringProperty("rightText", "Right")}),
        widget<VNToolTipButton>(
            "VNToolTipButton", "button", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Tool tip button"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                              "A small button that shows a rich tool tip, as help, info or warning sign."),
            {"vnToolTipButton", {24, 24}, {}}),
        widget<VNCustomMenuButton>(
            "VNCustomMenuButton", "button", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Custom menu button"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A tool button whose menu holds a widget of your own."),
            {"vnCustomMenuButton", {32, 24}, {}}),
        widget<VNFileMenuButton>(
            "VNFileMenuButton", "button", QT_TRANSLATE_NOOP("VNDesignerCatalog", "File menu button"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A tool button that offers the recent files in its menu."),
            {"vnFileMenuButton", {32, 24}, {}}),
        widget<VNCurveInputControl>(
            "VNCurveInputControl", "button", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Curve input control"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                              "A button that picks curves and shows how many are picked and whether they "
                              "are valid."),
            {"vnCurveInputControl", {120, 28}, {}}),
        widget<VNProgressiveDisclosureBtn>(
            "VNProgressiveDisclosureBtn", "button", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Disclosure head button"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                              "The head of a collapsible section: an arrow and a caption that open and "
                              "close it."),
            {"progressiveDisclosureBtn", {160, 24}, stringProperty("text", "Caption")}),
    };
}

QVector<VNDesignerWidgetInfo> inputs()
{
    return {
        widget<VNLineEdit>(
            "VNLineEdit", "input", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Line edit"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A line edit that shows its widget status in its look."),
            {"vnLineEdit", {140, 24}, {}}),
        widget<VNClearLineEdit>(
            "VNClearLineEdit", "input", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Clearable line edit"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A line edit with a button that clears its text."),
            {"vnClearLineEdit", {140, 24}, {}}),
        widget<VNValueEdit>("VNValueEdit", "input", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Value edit"),
                            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                                              "A field for a number with its unit, which it converts and "
                                              "checks against its range."),
                            {"vnValueEdit", {100, 24}, {}}),
        widget<VNDoubleSpinBox>(
            "VNDoubleSpinBox", "input", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Double spin box"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                              "A spin box for a number with a unit that shows its widget status in its look."),
            {"vnDoubleSpinBox", {100, 24}, {}}),
        widget<VNSlider>("VNSlider", "input", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Slider"),
                         QT_TRANSLATE_NOOP("VNDesignerCatalog",
                                           "A slider that paints marked ranges, the admissible range and the "
                                           "best value, and can select a span."),
                         {"vnSlider", {160, 24}, enumProperty("orientation", "Qt::Horizontal")}),
    };
}

QVector<VNDesignerWidgetInfo> choices()
{
    return {
        widget<VNCheckBox>(
            "VNCheckBox", "choice", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Check box"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A check box that shows its widget status in its look."),
            {"vnCheckBox", {100, 20}, stringProperty("text", "CheckBox")}),
        widget<VNSlidingCheckBox>(
            "VNSlidingCheckBox", "choice", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Sliding check box"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A check box drawn as a switch that slides on and off."),
            {"vnSlidingCheckBox", {120, 20}, stringProperty("text", "CheckBox")}),
        widget<VNRadioButton>(
            "VNRadioButton", "choice", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Radio button"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A radio button that shows its widget status in its look."),
            {"vnRadioButton", {110, 20}, stringProperty("text", "RadioButton")}),
        widget<VNComboBox>(
            "VNComboBox", "choice", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Combo box"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A combo box that shows its widget status in its look."),
            {"vnComboBox", {120, 24}, {}}),
        widget<VNComboBoxDoubleInput>(
            "VNComboBoxDoubleInput", "choice", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Combo box with number input"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "An editable combo box whose entries are numbers with a unit."),
            {"vnComboBoxDoubleInput", {120, 24}, {}}),
        widget<VNFilterComboBox>(
            "VNFilterComboBox", "choice", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Filter combo box"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A combo box that filters its entries by the text typed."),
            {"vnFilterComboBox", {140, 24}, {}}),
        widget<VNGroupableComboBox>(
            "VNGroupableComboBox", "choice", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Groupable combo box"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A combo box whose entries are sorted under group headers."),
            {"vnGroupableComboBox", {140, 24}, {}}),
    };
}

QVector<VNDesignerWidgetInfo> displays()
{
    return {
        widget<VNLabel>("VNLabel", "display", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Label"),
                        QT_TRANSLATE_NOOP("VNDesignerCatalog", "A label with an optional unit, icon and header look."),
                        {"vnLabel", {80, 20}, stringProperty("text", "TextLabel")}),
        widget<VNElidedLabel>(
            "VNElidedLabel", "display", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Elided label"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A label that cuts a text that does not fit with an ellipsis."),
            {"vnElidedLabel", {120, 20}, stringProperty("text", "TextLabel")}),
        widget<VNSeparator>("VNSeparator", "display", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Separator"),
                            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A thin line between groups of controls."),
                            {"vnSeparator", {160, 3}, {}}),
        widget<VNInfoArea>("VNInfoArea", "display", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Info area"),
                           QT_TRANSLATE_NOOP("VNDesignerCatalog",
                                             "A message area coloured by its kind (info, warning, error, "
                                             "success, help) with an info button for the full text."),
                           {"vnInfoArea",
                            {240, 40},
                            stringProperty("infoText", "Info text") + enumProperty("iconType", "VNInfoArea::Info")}),
        widget<ColorDisplay>("ColorDisplay", "display", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Colour display"),
                             QT_TRANSLATE_NOOP("VNDesignerCatalog", "A box that shows a colour."),
                             {"colorDisplay", {24, 24}, {}}),
        widget<VNBarChart>("VNBarChart", "display", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Bar chart"),
                           QT_TRANSLATE_NOOP("VNDesignerCatalog", "A chart of labelled, coloured bars under a header."),
                           {"vnBarChart", {240, 160}, stringProperty("headerLabel", "Header")}),
        widget<VNMultiProgressBar>(
            "VNMultiProgressBar", "display", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Multi progress bar"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A progress bar for a row of operations, one segment each."),
            {"vnMultiProgressBar", {240, 40}, {}}),
        widget<VNDisplayNeededInput>(
            "VNDisplayNeededInput", "display", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Needed input display"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                              "A row of points that shows how many inputs an operation needs, accepts and "
                              "has got."),
            {"vnDisplayNeededInput",
             {200, 40},
             numberProperty("needed", 3) + numberProperty("checked", 1) +
                 stringProperty("infoText", "Select the points")}),
    };
}

QVector<VNDesignerWidgetInfo> itemViews()
{
    return {
        widget<VNTableView>("VNTableView", "itemview", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Table view"),
                            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A table view in the toolkit's look."),
                            {"vnTableView", {256, 192}, {}}),
        widget<VNTableWidget>(
            "VNTableWidget", "itemview", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Table widget"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A table widget in the toolkit's look, with status cells."),
            {"vnTableWidget", {256, 192}, {}}),
        widget<VNTreeView>("VNTreeView", "itemview", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Tree view"),
                           QT_TRANSLATE_NOOP("VNDesignerCatalog", "A tree view in the toolkit's look."),
                           {"vnTreeView", {256, 192}, {}}),
        widget<VNDragTreeWidget>(
            "VNDragTreeWidget", "itemview", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Drag tree widget"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                              "A tree widget whose rows can be dragged and dropped, with drop marks."),
            {"vnDragTreeWidget", {256, 192}, {}}),
        widget<Varnis::VNDendrogramWidget>(
            "Varnis::VNDendrogramWidget", "itemview", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Dendrogram"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A tree of components and assembly operations that draws the links "
                                                   "between them."),
            {"dendrogramWidget", {320, 192}, {}}),
        widget<VNListWidget>(
            "VNListWidget", "itemview", QT_TRANSLATE_NOOP("VNDesignerCatalog", "List widget"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A list widget that shows its widget status in its look."),
            {"vnListWidget", {200, 160}, {}}),
        widget<VNFilterListView>("VNFilterListView", "itemview",
                                 QT_TRANSLATE_NOOP("VNDesignerCatalog", "Filter list view"),
                                 QT_TRANSLATE_NOOP("VNDesignerCatalog", "A list with a filter field above it."),
                                 {"vnFilterListView", {200, 200}, {}}),
        widget<VNContainerListControl>(
            "VNContainerListControl", "itemview", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Page list"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "The tree of pages of a master-detail pair, editable in place."),
            {"vnContainerListControl", {200, 200}, {}}),
        widget<VNStackControllerWidget>(
            "VNStackControllerWidget", "itemview", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Master-detail page tree"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                              "The master of a master-detail pair: the tree of pages with their icons, "
                              "colour boxes and context menu."),
            {"vnStackControllerWidget", {200, 240}, {}}),
    };
}

QVector<VNDesignerWidgetInfo> navigation()
{
    return {
        widget<VNTabBar>("VNTabBar", "navigation", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Tab bar"),
                         QT_TRANSLATE_NOOP("VNDesignerCatalog", "A tab bar in the toolkit's look."),
                         {"vnTabBar", {240, 28}, {}}),
        widget<VNAnimatedTabBar>(
            "VNAnimatedTabBar", "navigation", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Animated tab bar"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                              "A tab bar whose selection slides to the tab picked; each tab shows its "
                              "widget status."),
            {"vnAnimatedTabBar", {240, 32}, {}}),
        widget<VNAnimatedOPTabBar>(
            "VNAnimatedOPTabBar", "navigation", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Animated operation tab bar"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "An animated tab bar for the steps of an operation."),
            {"vnAnimatedOPTabBar", {240, 32}, {}}),
        widget<VNModuleNavigation>(
            "VNModuleNavigation", "navigation", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Module navigation"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A row of module buttons that switches between modules."),
            {"vnModuleNavigation", {240, 40}, {}}),
        widget<VNResultSwitcher>(
            "VNResultSwitcher", "navigation", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Result switcher"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A row of toggle buttons that picks one or several results."),
            {"vnResultSwitcher", {200, 28}, {}}),
        widget<VNElementNavigationBar>(
            "VNElementNavigationBar", "navigation", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Element navigation bar"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "Buttons that step and jump through a list of elements."),
            {"vnElementNavigationBar", {200, 28}, {}}),
        widget<VNViewSwitcher>("VNViewSwitcher", "navigation", QT_TRANSLATE_NOOP("VNDesignerCatalog", "View switcher"),
                               QT_TRANSLATE_NOOP("VNDesignerCatalog", "Toggle buttons that switch between views."),
                               {"vnViewSwitcher", {120, 28}, {}}),
        widget<VNTaskBar>("VNTaskBar", "navigation", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Task bar"),
                          QT_TRANSLATE_NOOP("VNDesignerCatalog", "A bar of task buttons."),
                          {"vnTaskBar", {300, 36}, {}}),
        widget<VNActionsBar>("VNActionsBar", "navigation", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Actions bar"),
                             QT_TRANSLATE_NOOP("VNDesignerCatalog", "A grid of buttons for actions, in rows."),
                             {"vnActionsBar", {200, 60}, {}}),
    };
}

QVector<VNDesignerWidgetInfo> containers()
{
    const QString disclosureContent =
        stringProperty("widgetCaption", "Caption") +
        QStringLiteral("<widget class=\"QWidget\" name=\"ProgressiveDisclosureContainer\"/>");
    return {
        widget<VNListToolBar>("VNListToolBar", "container", QT_TRANSLATE_NOOP("VNDesignerCatalog", "List tool bar"),
                              QT_TRANSLATE_NOOP("VNDesignerCatalog",
                                                "A frame for the tool buttons of a list, attached above or below it."),
                              {"vnListToolBar", {200, 24}, {}}, true),
        widget<VNProgressiveDisclosure>(
            "VNProgressiveDisclosure", "container", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Progressive disclosure"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog",
                              "A collapsible section: a head with caption, state and info button over "
                              "content that opens and closes."),
            {"progressiveDisclosure", {240, 160}, disclosureContent}, true),
        widget<VNResizeableDisclosure>(
            "VNResizeableDisclosure", "container", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Resizeable disclosure"),
            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A collapsible section whose content height the user can drag."),
            {"resizeableDisclosure", {240, 160}, disclosureContent}, true),
        widget<VNTabWidget>("VNTabWidget", "container", QT_TRANSLATE_NOOP("VNDesignerCatalog", "Tab widget"),
                            QT_TRANSLATE_NOOP("VNDesignerCatalog", "A tab widget whose tabs show their widget status."),
                            {"vnTabWidget", {300, 200}, page("tab", "Tab 1") + page("tab_2", "Tab 2")}, true),
    };
}

} // namespace

QVector<VNDesignerWidgetInfo> VNDesignerCatalog::widgets()
{
    return buttons() + inputs() + choices() + displays() + itemViews() + navigation() + containers();
}

QString VNDesignerCatalog::translatedText(const char* text)
{
    return QCoreApplication::translate("VNDesignerCatalog", text);
}
