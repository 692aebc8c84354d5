#include "TestSquish.h"

#include "TestMasterDetailTree.h"
#include "TestTreeDelegates.h"

#include <SVGImageConfiguration.h>
#include <SetWidgetsReadOnly.h>
#include <SvgIcons.h>
#include <UnitConverter.h>
#include <VNActionsBar.h>
#include <VNAdvancedListMenu.h>
#include <VNAdvancedMenu.h>
#include <VNAnimatedTabBar.h>
#include <VNBarChart.h>
#include <VNCheckBoxGroupMenu.h>
#include <VNContainerWidgetInterface.h>
#include <VNFileMenuButton.h>
#include <VNFilterListView.h>
#include <VNLabel.h>
#include <VNListWidget.h>
#include <VNMenu.h>
#include <VNMessageBox.h>
#include <VNProgressiveDisclosureBtn.h>
#include <VNTaskBar.h>
#include <VNWidgetInterface.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QStandardItemModel>
#include <QTextCharFormat>
#include <QVBoxLayout>

namespace {
// Drops the news that a widget's style changed while the widget keeps the application's style. Qt
// sends it to every widget below a widget that gets a parent, so building the gallery (each tab page
// is made first and then added; each embedded test dialog is moved into its tab) sends it to every
// widget several times. Nothing changes for them, yet item views lay out all their rows again and
// command link buttons load their icon again, for pages that nobody sees yet.
class SameStyleFilter : public QObject
{
public:
    SameStyleFilter() { qApp->installEventFilter(this); }
    ~SameStyleFilter() override { qApp->removeEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::StyleChange || !watched->isWidgetType())
            return false;
        return static_cast<QWidget*>(watched)->style() == QApplication::style();
    }
};

// The status words of the status buttons (bits of VNWidgetStatus).
constexpr int noStatus = 0x0;
constexpr int needInput = 0x20;
constexpr int userEdit = 0x2;
constexpr int different = 0x400;
constexpr int sigmaEnabled = 0x40;
constexpr int sigmaActive = 0x140;
constexpr int sigmaInvalid = 0x340;
constexpr int sigmaStandardChanged = 0x101C0;
constexpr int sigmaAndStandard = 0x3040;
constexpr int sigmaAndStandardChanged = 0x13040;
constexpr int standardDefined = 0x3000;
constexpr int standardChanged = 0x13000;
constexpr int standardLocked = 0x23000;
constexpr int standardChangedLocked = 0x33000;
constexpr int standardDefault = 0x7000;
constexpr int standardDefaultChanged = 0xF000;

const QString addIcon = QStringLiteral(":/Icons/Shared/add_16.svg");

void holdDown(std::initializer_list<QAbstractButton*> buttons)
{
    for (QAbstractButton* button : buttons)
        button->setDown(true);
}

// Draws the widgets as if the mouse were over them; Qt clears the attribute again when the mouse
// really enters and leaves.
void showHovered(std::initializer_list<QWidget*> widgets)
{
    for (QWidget* widget : widgets)
        widget->setAttribute(Qt::WA_UnderMouse, true);
}

QWidget* placeInContainer(QWidget* container, QWidget* widget)
{
    auto* layout = new QHBoxLayout(container);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    return widget;
}

void setUpCalendar(QCalendarWidget* calendar)
{
    // A locale change resets the first day of the week to the locale's, so the locale comes first.
    QLocale locale = calendar->locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    calendar->setLocale(locale);
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setGridVisible(true);
    const QTextCharFormat weekday = calendar->weekdayTextFormat(Qt::Monday);
    calendar->setWeekdayTextFormat(Qt::Saturday, weekday);
    calendar->setWeekdayTextFormat(Qt::Sunday, weekday);
}
} // namespace

TestSquish::TestSquish(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_treeDelegates(nullptr)
    , m_masterDetailTree(nullptr)
    , m_compareDifferent(false)
{
    SameStyleFilter filter;
    ui.setupUi(this);
    setUpButtonStates();
    setUpMenus();
    setUpComboBoxes();
    setUpSpinBoxes();
    setUpTaskBar();
    setUpAnimatedTabBars();
    setUpNavigationBars();
    setUpDisclosures();
    setUpCalendars();
    setUpInfoAreas();
    setUpBarChart();
    setUpSliders();
    setUpToolTipButtons();
    setUpCustomMenuButtons();
    setUpResultSwitchers();
    setUpToolBars();
    embedTests();
    VNWidgetStatus::setStatusProperty(ui.m_tabWidget, VNWidgetStatus::StatusFlags());
}

TestSquish::~TestSquish()
{
    delete m_treeDelegates;
    delete m_masterDetailTree;
}

void TestSquish::setUpButtonStates()
{
    showHovered({ui.m_vnButtonHovered, ui.m_qPushButtonHovered, ui.commandLinkButtonHovered, ui.m_vnCheckBoxHovered,
                 ui.m_vnCheckBoxHoveredChecked, ui.m_vnCheckBoxSlidingHover, ui.m_vnCheckBoxSlidingHoverOn,
                 ui.m_radioButtonHovered, ui.m_radioButtonHoveredChecked});
    holdDown({ui.m_vnButtonClicked, ui.m_vnButtonClicked_2, ui.m_vnPushButtonClicked, ui.m_vnPushButtonFlatClicked,
              ui.m_qPushButtonClicked, ui.m_qToolButtonClicked, ui.m_qToolButtonMenuClicked,
              ui.commandLinkButtonClicked, ui.m_vnCheckBoxSlidingClicked, ui.m_vnCheckBoxSlidingClickedOn,
              ui.m_vnTwinPushButtonClicked->leftButton()});
    ui.m_vnCheckBoxPartially->setCheckState(Qt::PartiallyChecked);
}

void TestSquish::setUpMenus()
{
    setUpButtonMenus();
    setUpCheckBoxGroupMenu();
    setUpAdvancedMenus();
    connect(ui.m_messageBoxBtn, &QPushButton::clicked, this, [this] {
        Varnis::VNMessageBox::warning(this, tr("Warning"), QStringLiteral("This is a default message box"),
                                      QMessageBox::Ok);
    });
}

void TestSquish::setUpButtonMenus()
{
    auto* iconMenu = new VNMenu(ui.m_vnButtonMenuIcons);
    iconMenu->addAction(tr("Action 1"));
    iconMenu->addAction(createSvgIcon(addIcon), tr("Action 2"));
    ui.m_vnButtonMenuIcons->setMenu(iconMenu);

    auto* plainMenu = new VNMenu(ui.m_vnButtonMenu);
    plainMenu->addAction(tr("Action 1"));
    plainMenu->addAction(tr("Action 2"));
    ui.m_vnButtonMenu->setMenu(plainMenu);

    for (QToolButton* button : {ui.m_qToolButtonMenu, ui.m_qToolButtonMenuClicked}) {
        auto* menu = new VNMenu(button);
        menu->addAction(tr("Action 1"));
        menu->addAction(tr("Action 2"));
        button->setMenu(menu);
    }

    auto* importMenu = new VNMenu(ui.m_importLineMB);
    importMenu->addAction(tr("Import from File..."));
    importMenu->addAction(tr("Import from Clipboard"));
    ui.m_importLineMB->setMenu(importMenu);
}

void TestSquish::setUpCheckBoxGroupMenu()
{
    auto* columns = new VNCheckBoxGroupMenu(ui.m_checkBoxGroupBtn);
    columns->setupSelectMenu(VNCheckBoxGroupMenu::SelectActions(3));
    const QString group = tr("Columns");
    columns->addControlGroup(group);
    for (const QString& text : {tr("Name"), tr("Value"), tr("Unit")}) {
        auto* box = new QCheckBox(text, columns);
        columns->addCheckBoxToGroup(box, group);
        box->setChecked(true);
    }
    ui.m_checkBoxGroupBtn->setMenu(columns);
}

void TestSquish::setUpAdvancedMenus()
{
    auto* listMenu = new VNAdvancedListMenu(ui.m_advancedListBtn);
    listMenu->setDefaultIconSize(QSize(48, 48));
    listMenu->addControl(
        new QAction(createSvgIcon(QStringLiteral(":/Icons/Modify/add_trim_24.svg")), tr("Trim"), listMenu), 300);
    listMenu->addControl(
        new QAction(createSvgIcon(QStringLiteral(":/Icons/Modify/add_radius_24.svg")), tr("Radius"), listMenu), 300);
    ui.m_advancedListBtn->setMenu(listMenu);

    auto* modifyMenu = new VNAdvancedMenu(ui.m_advancedBtnModify);
    const int modify = modifyMenu->addControlGroup(tr("Modify"), false, false);
    const struct
    {
        const char* text;
        const char* icon;
    } modifyActions[] = {{QT_TR_NOOP("Trim"), ":/Icons/Modify/add_trim_24.svg"},
                         {QT_TR_NOOP("Radius"), ":/Icons/Modify/add_radius_24.svg"},
                         {QT_TR_NOOP("Morph"), ":/Icons/Modify/add_morph_24.svg"},
                         {QT_TR_NOOP("Preform"), ":/Icons/Modify/add_preform_24.svg"}};
    for (const auto& entry : modifyActions)
        modifyMenu->addControlToGroup(new QAction(createSvgIcon(QLatin1String(entry.icon)), tr(entry.text), modifyMenu),
                                      modify);
    ui.m_advancedBtnModify->setMenu(modifyMenu);

    auto* selectMenu = new VNAdvancedMenu(ui.m_advancedBtnGroup);
    connect(selectMenu, &VNAdvancedMenu::selectDefaultClicked, this, &TestSquish::onSelectDefault);
    selectMenu->setupSelectMenu(VNAdvancedMenu::SelectActions(7));
    selectMenu->setCheckable(true);
    const int nesting = selectMenu->addControlGroup(tr("Nesting"), false, false);
    const struct
    {
        const char* text;
        const char* icon;
    } nestingActions[] = {{QT_TR_NOOP("Single"), ":/Icons/Blank/nest_single.svg"},
                          {QT_TR_NOOP("Double"), ":/Icons/Blank/nest_double.svg"},
                          {QT_TR_NOOP("Mirror"), ":/Icons/Blank/nest_mirror.svg"},
                          {QT_TR_NOOP("Unequal"), ":/Icons/Blank/nest_unequal.svg"}};
    for (const auto& entry : nestingActions) {
        auto* action = new QAction(createSvgIcon(QLatin1String(entry.icon)), tr(entry.text), selectMenu);
        action->setCheckable(true);
        selectMenu->addControlToGroup(action, nesting);
    }
    ui.m_advancedBtnGroup->setMenu(selectMenu);
}

void TestSquish::setUpComboBoxes()
{
    const QStringList items{tr("Item 1"), tr("Item 2"), tr("Item 3")};
    for (QComboBox* box : {static_cast<QComboBox*>(ui.m_vnComboBox), ui.comboBox_7, ui.comboBox_8, ui.comboBox_20,
                           ui.comboBox_21, static_cast<QComboBox*>(ui.m_selectStep_cb)})
        box->addItems(items);
    ui.m_vnComboBoxIcons->addItem(createSvgIcon(addIcon), tr("Add"));
    ui.m_vnComboBoxIcons->addItem(createSvgIcon(QStringLiteral(":/Icons/Shared/edit_16.svg")), tr("Edit"));
    ui.m_vnComboBoxIcons->addItem(createSvgIcon(QStringLiteral(":/Icons/Shared/delete_16.svg")), tr("Delete"));

    for (VNComboBox* box : {ui.m_observeItemWidgetStatusCB, ui.m_observeItemWidgetStatusCB_2}) {
        box->addItems({tr("Undefined"), tr("Need Input"), tr("User Edited")});
        box->setItemWidgetStatus(1, VNWidgetStatus::needInput);
        box->setItemWidgetStatus(2, VNWidgetStatus::userEdit);
    }
    ui.m_observeItemWidgetStatusCB_2->setCurrentIndex(1);

    for (VNGroupableComboBox* box : {ui.m_groupableComboBox, ui.m_groupableComboBox_2}) {
        const QModelIndex steel = box->addGroupItem(tr("Steel"));
        box->addGroupItem(tr("DC04"), steel);
        box->addGroupItem(tr("DP600"), steel);
        const QModelIndex aluminium = box->addGroupItem(tr("Aluminium"));
        box->addGroupItem(tr("AA6016"), aluminium);
        box->addGroupItem(tr("Without Group"));
    }
    ui.m_groupableComboBox->setCurrentGroupIndex(0, 0);
    ui.m_groupableComboBox_2->setCurrentGroupIndex(1, 0);

    ui.m_doubleInputCombo->setValueUnit(QStringLiteral("mm"));
    for (double value : {0.5, 1.0, 2.5})
        ui.m_doubleInputCombo->addValue(value);
    ui.m_doubleInputCombo->addSpecialValue(tr("Automatic"), 1);
}

void TestSquish::setUpSpinBoxes()
{
    ui.vnDoubleSpinBox_blue->setPaintFrame(true);
    ui.vnDoubleSpinBox_unit2->setDisplayUnit(UnitConverter::UnitFromTag(2), true);
}

void TestSquish::setUpTaskBar()
{
    auto* taskBar = new VNTaskBar(ui.tabNavigation);
    const struct
    {
        const char* icon;
        const char* text;
    } stages[] = {{":/Icons/Stages/part.svg", QT_TR_NOOP("Part")},
                  {":/Icons/Stages/plan.svg", QT_TR_NOOP("Plan")},
                  {":/Icons/Stages/hemming.svg", QT_TR_NOOP("Hemming Definition")},
                  {":/Icons/Stages/assembly_process.svg", QT_TR_NOOP("Process")},
                  {":/Icons/Stages/simul.svg", QT_TR_NOOP("Simulation")},
                  {":/Icons/Stages/eval.svg", QT_TR_NOOP("Evaluation")}};
    for (const auto& stage : stages)
        taskBar->addItem(createSvgIcon(QLatin1String(stage.icon)), tr(stage.text));
    taskBar->setCurrentIndex(2);
    ui.taskBarLayout->addWidget(taskBar);
}

void TestSquish::setUpAnimatedTabBars()
{
    auto* full = new VNAnimatedTabBar(ui.verticalFrame_2);
    for (const QString& text : {tr("(F-40)"), tr("D-20"), tr("(T-40)"), tr("F-100")})
        full->addTab(text);
    full->setCurrentIndex(1);
    ui.animatedTabBarLayout->insertWidget(1, full);

    // Reduced bars: short tabs with the issue-list icon, on a bright and on a dark tab look.
    const QString darkIcon = QStringLiteral(":/Icons/Shared/issue_list_dark_16.svg");
    const QString brightIcon = QStringLiteral(":/Icons/Shared/issue_list_bright_16.svg");
    for (bool dark : {false, true}) {
        auto* reduced = new VNAnimatedTabBar(ui.verticalFrame_2);
        for (int i = 1; i <= 3; ++i) {
            const int index = reduced->addTab(tr("D-%1").arg(i * 10), dark ? brightIcon : darkIcon);
            reduced->setDarkStyle(index, dark);
        }
        ui.animatedTabBarLayout->addWidget(reduced);
    }
    ui.animatedTabBarLayout->addStretch();
}

void TestSquish::setUpNavigationBars()
{
    ui.elementNavigationBar->addButton(tr("Button 1"), tr("NavToolTip 1"));
    ui.elementNavigationBar->addButton(tr("Button 2"), tr("Tooltip"));
    ui.elementNavigationBar->addButton(tr("Button 3"));
    const int locked = ui.elementNavigationBar->addButton(
        tr("Locked"), QString(), createSvgIcon(QStringLiteral(":/Icons/DieFace/compensation_dead_end_16.svg")));
    ui.elementNavigationBar->setButtonLocked(locked, true);
    ui.elementNavigationBar->setCurrentIndex(0);

    ui.elementNavigationBar_2->addButton(tr("Button 1"), tr("NavToolTip 1"));
    const int issue = ui.elementNavigationBar_2->addButton(tr("Button 2"), tr("Tooltip"));
    ui.elementNavigationBar_2->setButtonIcon(issue,
                                             createSvgIcon(QStringLiteral(":/Icons/Issues/issuezone_error_16.svg")));
    ui.elementNavigationBar_2->addButton(tr("Button 3"));
    ui.elementNavigationBar_2->addButton(tr("Button Remove"));
    ui.elementNavigationBar_2->setCurrentIndex(1);

    ui.bgViewswitcher->addView(tr("Forces"), 0);
    ui.bgViewswitcher->addView(tr("Distances"), 0);
    ui.bgViewswitcher->addView(tr("Modify"), 1);
    ui.bgViewswitcher->addView(tr("Original"), 1);

    for (const QString& module : {tr("Part"), tr("Process"), tr("Simulation"), tr("Evaluation")})
        ui.moduleNavigation->addButton(module);
    for (const QString& module : {tr("Die Face"), tr("Addendum"), tr("Compensation")})
        ui.moduleNavigation_2->addButton(module);
    ui.moduleNavigation_2->setModuleLocked(2, true);
}

void TestSquish::setUpDisclosures()
{
    ui.progressiveDisclosure_state->setOptionalCheckVisible(true);
    ui.progressiveDisclosure_state->setOptionalCheckForVisibilitySwitch(false);
    ui.progressiveDisclosure_state->getOptionalCheckBox()->setText(tr("CheckBox"));
    ui.progressiveDisclosure_state->setShowStateAlsoWhenOpen(true);
    ui.progressiveDisclosure_colorBox->setColorBox(QColor(255, 0, 255));
    for (VNProgressiveDisclosure* disclosure :
         {ui.progressiveDisclosure_openHover, ui.progressiveDisclosure_closedHover}) {
        if (auto* button = disclosure->findChild<VNProgressiveDisclosureBtn*>())
            button->setAttribute(Qt::WA_UnderMouse, true);
    }
    auto* resizeLayout = new QVBoxLayout(ui.ResizableDisclosureContainer);
    resizeLayout->addWidget(
        new VNLabel(tr("Drag the handle below to change the height."), ui.ResizableDisclosureContainer));
    ui.progressiveDisclosure_VisibilitySwitch->setOptionalCheckVisible(true);
    ui.progressiveDisclosure_ClosedVisibility->setOptionalCheckVisible(true);
    ui.progressiveDisclosure_ClosedVisibility->getOptionalCheckBox()->setChecked(true);
}

void TestSquish::setUpCalendars()
{
    const QDate date(2022, 4, 1);
    ui.dateEdit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    ui.dateEdit->setDate(date);
    ui.calendarWidget->setSelectedDate(date);
    setUpCalendar(ui.calendarWidget);
    if (QCalendarWidget* popup = ui.dateEdit->calendarWidget())
        setUpCalendar(popup);
    connect(ui.m_todayBtn, &QPushButton::clicked, this, [this] {
        ui.dateEdit->setDate(QDate::currentDate());
        ui.calendarWidget->setSelectedDate(QDate::currentDate());
    });
}

void TestSquish::setUpInfoAreas()
{
    ui.m_infoArea_3->setText(tr("An information for the user."));
    ui.m_infoArea_4->setText(tr("A warning that the user should read."));
    ui.m_infoArea_2->setText(tr("An error occurred."));
    ui.m_infoArea->setText(tr("The calculation succeeded."));
    ui.m_condApplyInfo->setText(tr("Changes are applied only when the condition is met; this text is long enough "
                                   "to be elided where the area is narrow."));
    ui.m_infoArea_5->setText(tr("An info area with an info button."));
    ui.m_infoArea_5->setInfoButtonText(tr("More about this information."));
    ui.m_infoArea_5->setInfoButtonVisible(true);
}

void TestSquish::setUpBarChart()
{
    auto* chart = new VNBarChart;
    chart->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    chart->setHeaderLabel(tr("Force Calculations"));
    chart->addBar(tr("Bar 1"), 42.0, QColor(QStringLiteral("firebrick")));
    chart->addBar(tr("Bar 2"), 21.0, QColor(QStringLiteral("forestgreen")));
    chart->addBar(tr("Bar 3"), 36.0, QColor(QStringLiteral("royalblue")));
    placeInContainer(ui.barChartContainer, chart);
}

void TestSquish::setUpSliders()
{
    ui.m_vnSlider_normal->setValue(25);
    ui.m_vnSlider->setValue(25);

    ui.m_vnSlider_span->setUseAsSpanSlider(true);
    ui.m_vnSlider_span->setAdmissibleRange(10, 80, true);

    for (VNSlider* slider : {ui.m_vnSliderRange, ui.m_vnSliderMarks}) {
        slider->setTracking(false);
        slider->setRange(0, 100);
        slider->mark(0, 20, VNSlider::redBrush());
        slider->mark(90, 100, VNSlider::redBrush());
        slider->mark(40, 60, VNSlider::greenBrush());
        slider->setAdmissibleRange(5, 95, true);
        slider->markBest(55);
        slider->setValue(25);
    }

    VNSlider* extended = ui.m_vnSlider_extended;
    extended->setExtended(true);
    extended->setSubPageFilled(false);
    const QBrush brush = extended->markerBrush();
    const QPair<int, int> marks[] = {{0, 5}, {10, 10}, {15, 16}, {33, 33}, {55, 65}, {95, 100}};
    for (const auto& mark : marks)
        extended->mark(mark.first, mark.second, brush);
}

void TestSquish::setUpToolTipButtons()
{
    auto* fileMenu = new VNFileMenuButton;
    auto* fileMenuHovered = new VNFileMenuButton;
    for (VNFileMenuButton* button : {fileMenu, fileMenuHovered}) {
        button->addRecentFile(QStringLiteral("C:/Projects/door_outer.dat"));
        button->addRecentFile(QStringLiteral("C:/Projects/hood_inner.dat"));
    }
    placeInContainer(ui.m_fileMenuButtonContainer, fileMenu);
    placeInContainer(ui.m_fileMenuButtonContainer_hover, fileMenuHovered);

    for (VNToolTipButton* button :
         {ui.vnToolTipButton_info, ui.vnToolTipButton_info_hover, ui.vnToolTipButton_headerInfo})
        button->setUseAsInfo(true);
    for (VNToolTipButton* button : {ui.vnToolTipButton_warning, ui.vnToolTipButton_warning_hover})
        button->setUseAsWarning(true);
    for (VNToolTipButton* button : {ui.vnToolTipButton_header, ui.vnToolTipButton_headerInfo})
        button->setUseAsHeader(true);

    const QIcon sketch(QStringLiteral(":/Icons/Blank/Sketches/embed_chevron_help.svg"));
    const QPixmap sketchPixmap = sketch.pixmap(QSize(600, 150));
    ui.vnToolTipButton->setToolTip(tr("Shoulder Angle") + QStringLiteral("<br>") +
                                   SVGImageConfiguration::pixmapToEmbeddedHtmlImageString(sketchPixmap));

    const QIcon variants(QStringLiteral(":/Icons/Blank/variants_embed_nest.svg"));
    for (VNToolTipButton* button : {ui.vnToolTipButton, ui.vnToolTipButton_hover})
        button->setCustomImage(variants, QSize(48, 48));

    showHovered(
        {ui.vnToolTipButton_hover, ui.vnToolTipButton_warning_hover, ui.vnToolTipButton_info_hover, fileMenuHovered});
}

void TestSquish::setUpCustomMenuButtons()
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->addWidget(new VNLineEdit(tr("Search"), content));
    auto* list = new VNListWidget(content);
    list->addItems({tr("Hallo"), tr("Kuchen")});
    layout->addWidget(list);
    ui.m_vnCustomMenuButton->setMenuWidget(content);

    auto* filterButton = new VNCustomMenuButton(ui.tabMisc);
    filterButton->setText(tr("Filter Menu"));
    auto* filterView = new VNFilterListView;
    filterView->setItems({tr("Hallo"), tr("Kuchen")});
    filterButton->setMenuWidget(filterView);
    ui.gridLayout_9->addWidget(filterButton, 10, 1);

    ui.m_actionBar->setActionsPerRow(1);
    ui.m_actionBar->addAction(
        new QAction(createSvgIcon(QStringLiteral(":/Icons/Shared/add_curve.svg")), tr("Input..."), ui.m_actionBar));
}

void TestSquish::setUpResultSwitchers()
{
    const QIcon icons[] = {createSvgIcon(QStringLiteral(":/Icons/Ribbon/ResultVariable/GEOM_CURVCASE.svg")),
                           createSvgIcon(QStringLiteral(":/Icons/Ribbon/ResultVariable/SB_DELTA_ANGLE.svg")),
                           createSvgIcon(QStringLiteral(":/Icons/Ribbon/ResultVariable/TOOL_DRAWING_ANGLE.svg")),
                           createSvgIcon(QStringLiteral(":/Icons/Ribbon/ResultVariable/ZEBRA_LINES.svg"))};
    for (int i = 0; i < 3; ++i) {
        ui.m_resultSwitcherSingle->insertButton(icons[i], tr("Result %1").arg(i + 1), i, 0);
        ui.m_resultSwitcher->insertButton(icons[i], tr("Result %1").arg(i + 1), i, 0);
    }
    ui.m_resultSwitcherSingle->setChecked(1);
    for (int i = 0; i < 6; ++i)
        ui.m_resultSwitcherMulti->insertButton(icons[i % 4], tr("Result %1").arg(i + 1), i, i / 3);
    ui.m_resultSwitcherMulti->setChecked(4);
}

void TestSquish::setUpToolBars()
{
    // The line tool bar's buttons sit in the form without a layout: line them up here.
    auto* layout = new QHBoxLayout(ui.vnlisttoolbar_2);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    for (QWidget* widget : std::initializer_list<QWidget*>{ui.m_importLineMB, ui.m_editLine, ui.m_replaceLinePB,
                                                           ui.m_keyWordFilterbtn, ui.vnSeparator_3, ui.m_deleteLine})
        layout->addWidget(widget);
    layout->addStretch();
    ui.m_importLineMB->setPopupMode(QToolButton::MenuButtonPopup);
}

void TestSquish::embedTests()
{
    m_treeDelegates = new TestTreeDelegates(nullptr);
    m_masterDetailTree = new TestMasterDetailTree(nullptr);
    ui.verticalLayout_14->addWidget(m_treeDelegates);
    ui.verticalLayout_27->addWidget(m_masterDetailTree);
}

QList<QWidget*> TestSquish::currentPageWidgets() const
{
    QWidget* page = ui.m_tabWidget->currentWidget();
    return page ? page->findChildren<QWidget*>() : QList<QWidget*>();
}

void TestSquish::setTabStatuses(VNAnimatedTabBar* tabBar, VNWidgetStatus::StatusFlags status)
{
    for (int i = 0; i < tabBar->count(); ++i)
        tabBar->setWidgetStatus(i, status);
}

void TestSquish::applyStatus(int value)
{
    VNWidgetStatus::StatusFlags word(QFlag{value});
    VNWidgetStatus::setFlag(word, VNWidgetStatus::compareDifferent, m_compareDifferent);
    for (QWidget* widget : currentPageWidgets()) {
        if (auto* statusWidget = dynamic_cast<VNWidgetInterface*>(widget))
            statusWidget->setWidgetStatus(word);
        else if (auto* tabBar = qobject_cast<VNAnimatedTabBar*>(widget))
            setTabStatuses(tabBar, VNWidgetStatus::getDominantStatusFromFlag(word));
        else
            VNWidgetStatus::setStatusProperty(widget, word);
        auto* container = dynamic_cast<VNContainerWidgetInterface*>(widget);
        if (container && container->containerItemCount() > 0)
            container->setItemWidgetStatus(container->containerItemCount() - 1, word);
    }
    ui.m_stateLabel->setText(VNWidgetStatus::debugStatusFlag(word));
}

void TestSquish::on_compareDifferentStateButton_clicked()
{
    const bool on = ui.compareDifferentStateButton->isChecked();
    m_compareDifferent = on;
    QString text;
    bool textTaken = false;
    for (QWidget* widget : currentPageWidgets()) {
        if (auto* statusWidget = dynamic_cast<VNWidgetInterface*>(widget)) {
            VNWidgetStatus::StatusFlags status = statusWidget->getWidgetStatus();
            VNWidgetStatus::setFlag(status, VNWidgetStatus::compareDifferent, on);
            statusWidget->setWidgetStatus(status);
            if (!textTaken) {
                text = VNWidgetStatus::debugStatusFlag(status);
                textTaken = true;
            }
        } else if (auto* tabBar = qobject_cast<VNAnimatedTabBar*>(widget)) {
            setTabStatuses(tabBar, on ? VNWidgetStatus::compareDifferent : VNWidgetStatus::undef);
        } else {
            VNWidgetStatus::setStatusProperty(widget, VNWidgetStatus::compareDifferent, on);
        }
        auto* container = dynamic_cast<VNContainerWidgetInterface*>(widget);
        if (container && container->containerItemCount() > 0) {
            const int last = container->containerItemCount() - 1;
            VNWidgetStatus::StatusFlags status = container->itemWidgetStatus(last);
            VNWidgetStatus::setFlag(status, VNWidgetStatus::compareDifferent, on);
            container->setItemWidgetStatus(last, status);
        }
    }
    ui.m_stateLabel->setText(text);
}

void TestSquish::on_disabledCheckBox_toggled(bool checked)
{
    for (QWidget* widget : currentPageWidgets())
        widget->setEnabled(!checked);
}

void TestSquish::on_readOnlyCheckbox_toggled(bool checked)
{
    QWidget* page = ui.m_tabWidget->currentWidget();
    if (!page)
        return;
    const SetWidgetsReadOnly setReadOnly(checked);
    setReadOnly(page);
    for (QWidget* widget : page->findChildren<QWidget*>())
        setReadOnly(widget);
}

void TestSquish::onSelectDefault()
{
    auto* menu = qobject_cast<VNAdvancedMenu*>(sender());
    if (!menu)
        return;
    const QList<QAction*> actions = menu->actions();
    for (int i = 0; i < actions.size(); ++i)
        actions.at(i)->setEnabled(i % 3 == 0);
}

void TestSquish::on_noStateButton_clicked()
{
    applyStatus(noStatus);
}

void TestSquish::on_needInputStateButton_clicked()
{
    applyStatus(needInput);
}

void TestSquish::on_userEditStateButton_clicked()
{
    applyStatus(userEdit);
}

void TestSquish::on_differentStateButton_clicked()
{
    applyStatus(different);
}

void TestSquish::on_sigmaEnabledStateButton_clicked()
{
    applyStatus(sigmaEnabled);
}

void TestSquish::on_sigmaActiveStateButton_clicked()
{
    applyStatus(sigmaActive);
}

void TestSquish::on_sigmaInvalidStateButton_clicked()
{
    applyStatus(sigmaInvalid);
}

void TestSquish::on_sigmaStandardChangedStateButton_clicked()
{
    applyStatus(sigmaStandardChanged);
}

void TestSquish::on_sigmaAndStandardStateButton_clicked()
{
    applyStatus(sigmaAndStandard);
}

void TestSquish::on_sigmaAndStandardChangedStateButton_clicked()
{
    applyStatus(sigmaAndStandardChanged);
}

void TestSquish::on_standardDefinedStateButton_clicked()
{
    applyStatus(standardDefined);
}

void TestSquish::on_standardChangedStateButton_clicked()
{
    applyStatus(standardChanged);
}

void TestSquish::on_standardLockedStateButton_clicked()
{
    applyStatus(standardLocked);
}

void TestSquish::on_standardChangedLockedStateButton_clicked()
{
    applyStatus(standardChangedLocked);
}

void TestSquish::on_standardDefaultStateButton_clicked()
{
    applyStatus(standardDefault);
}

void TestSquish::on_standardDefaultChangedStateButton_clicked()
{
    applyStatus(standardDefaultChanged);
}
