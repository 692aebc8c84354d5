#include "TestMasterDetailTree.h"
#include "TestSquish.h"
#include "TestTreeDelegates.h"
#include "TranslationFileTool.h"

#include <VNAdvancedMenu.h>
#include <VNAnimatedTabBar.h>
#include <VNContainerWidgetInterface.h>
#include <VNResultSwitcher.h>
#include <VNStyleSheet.h>
#include <VNWidgetInterface.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCalendarWidget>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <memory>

namespace {
using Flags = VNWidgetStatus::StatusFlags;

struct Word
{
    const char* button;
    const char* text;
    int flags;
};

// clang-format off
// The status buttons in their order, with the word each applies.
const Word words[] = {
    {"noStateButton", "None", 0x0}, {"needInputStateButton", "Need Input", 0x20},
    {"userEditStateButton", "User Edited", 0x2}, {"differentStateButton", "Different", 0x400},
    {"sigmaEnabledStateButton", "Sigma Enabled", 0x40}, {"sigmaActiveStateButton", "Sigma Active", 0x140},
    {"sigmaInvalidStateButton", "Sigma Invalid", 0x340},
    {"sigmaStandardChangedStateButton", "Sigma Std Changed", 0x101C0},
    {"sigmaAndStandardStateButton", "Sigma && Standard", 0x3040},
    {"sigmaAndStandardChangedStateButton", "Sigma && Std Changed", 0x13040},
    {"standardDefinedStateButton", "Standard Defined", 0x3000},
    {"standardChangedStateButton", "Standard Changed", 0x13000},
    {"standardLockedStateButton", "Standard Locked", 0x23000},
    {"standardChangedLockedStateButton", "Std Changed Locked", 0x33000},
    {"standardDefaultStateButton", "Standard Default", 0x7000},
    {"standardDefaultChangedStateButton", "Std Default Changed", 0xF000}};

// Every object name robots find, by the container it lives in (a tab page or the dialog itself).
const std::pair<const char*, const char*> namesByContainer[] = {
    {"TestSquishClass",
     "gridLayout_4 groupBox verticalLayout readOnlyCheckbox disabledCheckBox noStateButton needInputStateButton "
     "userEditStateButton differentStateButton vnSeparator sigmaEnabledStateButton sigmaActiveStateButton "
     "sigmaInvalidStateButton sigmaStandardChangedStateButton vnSeparator_7 sigmaAndStandardStateButton "
     "sigmaAndStandardChangedStateButton vnSeparator_8 standardDefinedStateButton standardChangedStateButton "
     "standardLockedStateButton standardChangedLockedStateButton standardDefaultStateButton "
     "standardDefaultChangedStateButton vnSeparator_9 compareDifferentStateButton m_stateLabel m_tabWidget"},
    {"tabInOut",
     "tabInOut gridLayout m_elidedTextLabel_3 m_vnCheckBoxHovered m_vnButtonClicked_2 vnLabel_25 vnLineEdit "
     "m_qPushButtonNormal m_clearLineEdit vnLabel_49 m_vnButtonNormal m_vnCheckBoxSlidingHover vnLabel_24 "
     "horizontalLayout_6 fileNameLineEdit replaceMaterial vnLabel_27 widget_4 verticalLayout_18 "
     "commandLinkButton_3 horizontalLayout_8 commandLinkButtonHovered m_commandLinkButtonRight "
     "commandLinkButtonClicked m_vnTwinPushButtonNormal m_vnButtonMenuIcons vnLabel_11 m_vnTwinPushButtonClicked "
     "buttonGroup_2 m_radioButtonHoveredChecked vnValueEdit_29 vnPushButton_14 label_8 vnLabel_12 "
     "m_vnButtonHovered vnLabel_28 vnLabel_unit m_vnCheckBoxNormal vnLabel_44 vnLabel_9 vnLabel_15 "
     "m_vnCheckBoxSlidingClicked vnLabel_68 progressiveDisclosure_9 ProgressiveDisclosureContainer_9 m_vnComboBox "
     "m_vnPushButtonClicked vnLabel_14 textEdit_3 horizontalLayout_4 m_btn_2 m_btn m_btn_5 comboBox_7 comboBox_21 "
     "vnLabel_22 m_curveInputControl m_automaticButton m_qCheckBoxChecked vnLabel_18 label_4 "
     "m_vnCheckBoxSlidingClickedOn buttonGroup_3 m_radioButtonNormal vnLabel_7 m_checkBoxGroupBtn vnLabel_2 "
     "m_clearLineEdit_empty widget_7 horizontalLayout_5 m_qToolButtonClicked m_qToolButtonMenuClicked "
     "m_vnCheckBoxSliding textEdit_4 m_qPushButtonHovered m_vnComboBoxIcons m_elidedTextLabel_2 vnLineEditElide "
     "m_qPushButtonClicked m_observeItemWidgetStatusCB_2 buttonGroup m_vnRadioButtonChecked m_radioButtonChecked "
     "m_qCheckBoxNormal vnLabel_20 m_vnButtonClicked m_vnRadioButtonNormal vnLabel_3 vnLabel_45 "
     "m_vnCheckBoxSlidingOn m_elidedTextLabel label_6 vnLabel_67 vnLabel_50 m_vnPushButtonNormal "
     "m_qPushButtonClicked_2 horizontalLayout m_vnCheckBoxInvisible m_vnCheckBoxVisible m_vnCheckBoxPartially "
     "m_vnCheckBoxHoveredChecked progressiveDisclosure_10 ProgressiveDisclosureContainer_10 verticalLayout_24 "
     "label vnDoubleSpinBox vnCheckBox checkBox vnLabel m_groupableComboBox m_vnPushButtonFlatClicked comboBox_8 "
     "vnLabel_153 m_vnCheckBoxSlidingHoverOn vnLabel_19 widget_5 horizontalLayout_3 m_qToolButtonNormal "
     "m_qToolButtonMenu vnLabel_4 m_observeItemWidgetStatusCB vnLabel_134 vnLabel_6 m_groupableComboBox_2 "
     "vnLabel_30 m_vnButtonMenu vnLabel_21 m_vnCheckBoxNormal_2 m_radioButtonHovered m_doubleInputCombo "
     "comboBox_20"},
    {"tabDoubleSpinbox",
     "tabDoubleSpinbox gridLayout_11 verticalLayout_26 m_referenceN_7 m_referenceT_7 m_referencePhi_7 "
     "m_referencePhi_9 vnLabel_104 verticalLayout_11 m_referenceN m_referenceT m_referencePhi frame_5 "
     "horizontalLayout_7 vnSeparator_11 m_btnParameterGlobalCopy vnSeparator_12 m_btnParameterGlobalPaste "
     "vnDoubleSpinBox_37 vnLabel_103 verticalLayout_28 m_referenceN_8 m_referenceT_8 m_referencePhi_11 "
     "m_referencePhi_12 vnLabel_101 vnLabel_185 vnLabel_180 vnDoubleSpinBox_36 verticalLayout_32 m_referenceN_10 "
     "m_referenceT_10 m_referencePhi_15 m_referencePhi_16 verticalLayout_12 m_referenceN_2 m_referenceT_2 "
     "m_referencePhi_2 frame_6 horizontalLayout_12 vnSeparator_13 m_btnParameterGlobalCopy_2 vnSeparator_14 "
     "m_btnParameterGlobalPaste_2 vnLabel_183 verticalLayout_29 vnDoubleSpinBox_21 vnDoubleSpinBox_22 "
     "vnDoubleSpinBox_23 vnDoubleSpinBox_44 verticalLayout_31 m_referenceN_9 m_referenceT_9 m_referencePhi_13 "
     "m_referencePhi_14 vnDoubleSpinBox_unit1 vnLabel_181 verticalLayout_23 vnDoubleSpinBox_39 vnDoubleSpinBox_40 "
     "vnDoubleSpinBox_41 vnLabel_100 vnDoubleSpinBox_35 vnDoubleSpinBox_blue verticalLayout_13 m_referenceN_3 "
     "m_referenceT_3 m_referencePhi_3 frame_7 horizontalLayout_14 vnSeparator_15 m_btnParameterGlobalCopy_3 "
     "vnSeparator_16 m_btnParameterGlobalPaste_3 verticalLayout_30 vnDoubleSpinBox_24 vnDoubleSpinBox_25 "
     "vnDoubleSpinBox_26 vnLabel_105 vnLabel_178 vnLabel_182 vnDoubleSpinBox_43 vnLabel_99 vnLabel_102 vnLabel_184 "
     "verticalLayout_17 m_referenceN_4 m_referenceT_4 m_referencePhi_4 m_referencePhi_8 vnDoubleSpinBox_blue_2 "
     "vnLabel_97 vnDoubleSpinBox_45 vnDoubleSpinBox_42 vnDoubleSpinBox_unit2 verticalLayout_22 vnDoubleSpinBox_32 "
     "vnDoubleSpinBox_33 vnDoubleSpinBox_38 m_vnDoubleSpinboxSingle verticalLayout_21 vnDoubleSpinBox_18 "
     "vnDoubleSpinBox_19 vnDoubleSpinBox_20"},
    {"tabNavigation",
     "tabNavigation gridLayout_5 taskBarLayout vnLabel_133 verticalLayout_16 vnLabel_131 frame verticalLayout_3 "
     "moduleNavigation moduleNavigation_2 verticalFrame_2 animatedTabBarLayout vnLabel_140 vnLabel_141 "
     "verticalLayout_15 vnLabel_142 vnTabWidget tabNormal tabActive verticalLayout_20 vnLabel_132 "
     "elementNavigationBar elementNavigationBar_2 bgViewswitcher"},
    {"tabDisclosures",
     "tabDisclosures gridLayout_3 resizeableDisclosure ResizableDisclosureContainer progressiveDisclosure_colorBox "
     "ProgressiveDisclosureContainer_5 progressiveDisclosure_closedHover ProgressiveDisclosureContainer_6 "
     "progressiveDisclosure_openHover ProgressiveDisclosureContainer_4 verticalLayout_6 vnLabel_164 "
     "progressiveDisclosure_state ProgressiveDisclosureContainer_3 verticalLayout_5 vnLabel_163 "
     "progressiveDisclosure_ClosedVisibility ProgressiveDisclosureContainer_7 "
     "progressiveDisclosure_VisibilitySwitch ProgressiveDisclosureContainer_8 verticalLayout_7 vnLabel_165 "
     "progressiveDisclosure ProgressiveDisclosureContainer verticalLayout_2 vnLabel_64 progressiveDisclosure_2 "
     "ProgressiveDisclosureContainer_2"},
    {"tabMisc",
     "tabMisc tabMisc_Layout column1_Layout dateLayout calendarWidget dateEdit vnLabel_13 m_todayBtn "
     "colorWidgetLayout vnLabel_16 widget_9 gridLayout_2 vnLabel_17 m_infoArea_3 m_infoArea_4 m_infoArea_2 "
     "m_infoArea m_condApplyInfo m_infoArea_5 column2_layout barChartContainer displayNeedInputLayout "
     "vnDisplayNeededInput vnDisplayNeededInput_2 slider_Layout m_vnSlider_6 m_progressBar_2 vnLabel_136 "
     "m_vnSlider_normal m_vnSlider_extended m_vnSliderMarks vnLabel_75 vnLabel_143 vnLabel_138 vnLabel_139 "
     "m_vnSlider_5 vnLabel_179 vnLabel_137 m_vnSlider_span vnLabel_10 m_vnSliderRange m_vnSlider vnLabel_144 "
     "column3_layout separatorLayout frame_2 verticalLayout_8 label_2 label_7 frame_3 verticalLayout_9 label_3 "
     "vnSeparator_10 frame_4 verticalLayout_10 label_5 gridLayout_9 vnLabel_145 horizontalLayout_19 "
     "vnToolTipButton_hover vnToolTipButton_warning_hover vnToolTipButton_info_hover horizontalLayout_2 "
     "m_fileMenuButtonContainer m_fileMenuButtonContainer_hover horizontalLayout_18 vnToolTipButton "
     "vnToolTipButton_warning vnToolTipButton_info horizontalLayout_10 vnToolTipButton_header "
     "vnToolTipButton_headerInfo m_resultSwitcherSingle vnLabel_135 m_messageBoxBtn m_vnCustomMenuButton "
     "m_resultSwitcher m_advancedListBtn m_actionBar m_resultSwitcherMulti label_10 vnLabel_146 "
     "m_advancedBtnModify horizontalLayout_9 m_resetBtn m_resetButton m_deleteFeasibilityButton vnLabel_5 "
     "vnLabel_8 m_advancedBtnGroup m_logToolBar horizontalLayout_11 m_autoScroll m_jumpLeft_btn m_stepLeft_btn "
     "m_selectStep_cb m_stepRight_btn m_jumpRight_btn m_toolBarSeperator m_exportBtn m_fldToolBar "
     "horizontalLayout_13 m_fldPointSelectToggleButton m_fldHistorySelectToggleButton frame_8 "
     "m_fldLiveToggleButton frame_9 m_fldClearSelectPushButton frame_11 m_fldPrint vnlisttoolbar_2 m_importLineMB "
     "m_editLine m_replaceLinePB m_keyWordFilterbtn vnSeparator_3 m_deleteLine"},
    {"tabTables", "tabTables verticalLayout_14"},
    {"tabMasterDetail", "tabMasterDetail verticalLayout_27"}};

// The class a name implies, first match wins; "~" admits derived classes. Other names may be of any class.
const std::pair<const char*, const char*> impliedClasses[] = {
    {"^gridLayout", "QGridLayout"}, {"^verticalLayout", "QVBoxLayout"}, {"^horizontalLayout", "QHBoxLayout"},
    {"(Layout|_layout)$", "~QLayout"}, {"^buttonGroup", "QButtonGroup"}, {"^vnSeparator", "VNSeparator"},
    {"^vnLabel", "VNLabel"}, {"^(label|m_stateLabel$)", "~QLabel"}, {"^m_elidedTextLabel", "VNElidedLabel"},
    {"^m_vnCheckBoxSliding", "VNSlidingCheckBox"}, {"^(m_vnCheckBox|vnCheckBox$)", "VNCheckBox"},
    {"^(m_qCheckBox|checkBox$|readOnlyCheckbox$|disabledCheckBox$)", "QCheckBox"}, {"^m_vnButton", "VNButton"},
    {"^vnLineEdit", "VNLineEdit"}, {"^m_clearLineEdit", "VNClearLineEdit"}, {"^m_qPushButton", "QPushButton"},
    {"^m_qToolButton", "QToolButton"}, {"ommandLinkButton", "QCommandLinkButton"},
    {"^m_vnTwinPushButton", "VNTwinPushButton"}, {"^m_radioButton", "QRadioButton"},
    {"^m_vnRadioButton", "VNRadioButton"}, {"^vnValueEdit", "VNValueEdit"},
    {"^(vnPushButton|m_vnPushButton)", "VNPushButton"}, {"^progressiveDisclosure", "VNProgressiveDisclosure"},
    {"^resizeableDisclosure$", "VNResizeableDisclosure"}, {"^m_vnComboBox", "VNComboBox"},
    {"^(comboBox|m_selectStep_cb$)", "~QComboBox"}, {"^textEdit", "~QTextEdit"},
    {"^m_curveInputControl$", "VNCurveInputControl"}, {"^m_groupableComboBox", "VNGroupableComboBox"},
    {"^m_doubleInputCombo$", "VNComboBoxDoubleInput"}, {"^(vnDoubleSpinBox|m_vnDoubleSpinbox)", "VNDoubleSpinBox"},
    {"^(frame|verticalFrame)", "~QFrame"}, {"^moduleNavigation", "VNModuleNavigation"},
    {"^elementNavigationBar", "VNElementNavigationBar"}, {"^vnTabWidget$", "VNTabWidget"},
    {"^m_tabWidget$", "~QTabWidget"}, {"^calendarWidget$", "~QCalendarWidget"}, {"^dateEdit$", "~QDateEdit"},
    {"^m_infoArea", "VNInfoArea"}, {"^vnDisplayNeededInput", "VNDisplayNeededInput"}, {"^m_vnSlider", "VNSlider"},
    {"^m_progressBar", "~QProgressBar"}, {"^vnToolTipButton", "VNToolTipButton"},
    {"^m_resultSwitcher", "VNResultSwitcher"}, {"^m_vnCustomMenuButton$", "VNCustomMenuButton"},
    {"^m_actionBar$", "VNActionsBar"}, {"^vnlisttoolbar", "VNListToolBar"}, {"^groupBox$", "QGroupBox"},
    {"StateButton$", "~QPushButton"}, {"(_btn|Btn|Button|PB|MB)(_\\d+)?$", "~QAbstractButton"},
    {"^(tab|widget_)|Container", "~QWidget"}};

// clang-format on

QString impliedClass(const QString& name)
{
    for (const auto& rule : impliedClasses) {
        if (name.contains(QRegularExpression(QLatin1String(rule.first))))
            return QLatin1String(rule.second);
    }
    return QString();
}

QTabWidget* tabs(QWidget& dialog)
{
    return dialog.findChild<QTabWidget*>(QStringLiteral("m_tabWidget"));
}

QWidget* showPage(QWidget& dialog, const QString& page)
{
    tabs(dialog)->setCurrentWidget(dialog.findChild<QWidget*>(page));
    return tabs(dialog)->currentWidget();
}

void clickButton(QWidget& dialog, const char* name)
{
    dialog.findChild<QAbstractButton*>(QLatin1String(name))->click();
}

QString stateLabel(QWidget& dialog)
{
    return dialog.findChild<QLabel*>(QStringLiteral("m_stateLabel"))->text();
}

QString describe(const QWidget* widget)
{
    return widget->objectName() + QLatin1Char(' ') + QLatin1String(widget->metaObject()->className());
}

bool isTabBar(QWidget* widget)
{
    return qobject_cast<VNAnimatedTabBar*>(widget) && !dynamic_cast<VNWidgetInterface*>(widget);
}

// The status a widget holds: toolkit widgets behind their status interface, others in the property.
Flags statusOf(QWidget* widget)
{
    if (auto* toolkit = dynamic_cast<VNWidgetInterface*>(widget))
        return toolkit->getWidgetStatus();
    return VNWidgetStatus::statusFromProperty(widget);
}

// The first widget whose status differs from the expected one: each widget holds word, the tabs of
// animated tab bars hold tabWord and their last tab lastTab, the last item of other containers word.
QString firstMismatch(const QList<QWidget*>& widgets, int word, int tabWord, int lastTab)
{
    for (QWidget* widget : widgets) {
        const bool tabBar = isTabBar(widget);
        bool matches = tabBar || int(statusOf(widget)) == word;
        if (auto* container = dynamic_cast<VNContainerWidgetInterface*>(widget)) {
            const int last = container->containerItemCount() - 1;
            for (int item = tabBar ? 0 : qMax(last, 0); item <= last; ++item) {
                const int expected = !tabBar ? word : item == last ? lastTab : tabWord;
                matches = matches && int(container->itemWidgetStatus(item)) == expected;
            }
        }
        if (!matches)
            return describe(widget);
    }
    return QString();
}

template<typename Predicate>
bool anyPixel(const QImage& image, Predicate predicate)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (predicate(image.pixelColor(x, y)))
                return true;
        }
    }
    return false;
}

QString firstToolkitText(const QList<QWidget*>& widgets)
{
    for (QWidget* widget : widgets) {
        if (auto* toolkit = dynamic_cast<VNWidgetInterface*>(widget))
            return VNWidgetStatus::debugStatusFlag(toolkit->getWidgetStatus());
    }
    return QString();
}
} // namespace

class TestSquishTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void robotNames();
    void titles();
    void applyWord_data();
    void applyWord();
    void familySpotChecks();
    void compareTogglesOnlyItsBit();
    void disableAndReadOnlyActOnCurrentPage();
    void selectDefaultOnlyForAdvancedMenu();
    void embeddedDialogsDeletedWithGallery();
    void wordsLookDistinct_data();
    void wordsLookDistinct();
    void mockLocaleLeavesNoEnglish();
};

void TestSquishTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
}

void TestSquishTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

// Each name exists in its container with the class the name implies.
void TestSquishTest::robotNames()
{
    TestSquish dialog(nullptr);
    int count = 0;
    for (const auto& entry : namesByContainer) {
        const QString containerName = QLatin1String(entry.first);
        QObject* container = containerName == dialog.objectName() ? &dialog : dialog.findChild<QObject*>(containerName);
        QVERIFY2(container, entry.first);
        for (const QString& name : QString::fromLatin1(entry.second).split(QLatin1Char(' '))) {
            ++count;
            const QString className = impliedClass(name);
            // The form designer gives button groups to the form itself.
            QObject* scope = className == QLatin1String("QButtonGroup") ? &dialog : container;
            QObject* object = name == containerName ? container : scope->findChild<QObject*>(name);
            QVERIFY2(object, qPrintable(name));
            const QString actual = QLatin1String(object->metaObject()->className());
            if (className.startsWith(QLatin1Char('~')))
                QVERIFY2(object->inherits(qPrintable(className.mid(1))), qPrintable(name + QLatin1Char(' ') + actual));
            else if (!className.isEmpty())
                QCOMPARE(actual + QLatin1Char(' ') + name, className + QLatin1Char(' ') + name);
        }
    }
    QCOMPARE(count, 436);
}

void TestSquishTest::titles()
{
    TestSquish dialog(nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("TestSquishClass"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Test Squish"));
    QWidget* panel = dialog.findChild<QWidget*>(QStringLiteral("groupBox"));
    QCOMPARE(panel->property("title").toString(), QStringLiteral("VN Widget Status"));
    QStringList shown;
    for (int index = 0; index < tabs(dialog)->count(); ++index)
        shown << tabs(dialog)->tabText(index);
    QCOMPARE(shown.join(QLatin1Char('|')), QStringLiteral("Input / Output|DoubleSpinbox|Navigation|Disclosures|Misc|"
                                                          "Delegates|Master / Detail"));
    // A doubled ampersand shows one "&" on the button.
    QStringList buttons;
    for (auto* button : panel->findChildren<QAbstractButton*>())
        buttons << button->objectName() + QLatin1Char('=') + button->text();
    QStringList expected = {"readOnlyCheckbox=ReadOnly", "disabledCheckBox=Disable"};
    for (const Word& word : words)
        expected << QLatin1String(word.button) + QLatin1Char('=') + QLatin1String(word.text);
    expected << QStringLiteral("compareDifferentStateButton=Compare Differs");
    QCOMPARE(buttons, expected);
}

void TestSquishTest::applyWord_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("word");
    for (const Word& word : words)
        QTest::newRow(word.button) << word.button << word.flags;
}

// On every tab the word reaches each widget by its kind, the tabs of animated tab bars its dominant
// status and the last item of each container the word; the label shows the word.
void TestSquishTest::applyWord()
{
    QFETCH(QString, button);
    QFETCH(int, word);
    TestSquish dialog(nullptr);
    const int dominant = VNWidgetStatus::getDominantStatusFromFlag(Flags(word));
    for (int index = 0; index < tabs(dialog)->count(); ++index) {
        tabs(dialog)->setCurrentIndex(index);
        clickButton(dialog, qPrintable(button));
        QCOMPARE(stateLabel(dialog), VNWidgetStatus::debugStatusFlag(Flags(word)));
        const QString mismatch =
            firstMismatch(tabs(dialog)->currentWidget()->findChildren<QWidget*>(), word, dominant, word);
        QVERIFY2(mismatch.isEmpty(), qPrintable(mismatch));
    }
    QCOMPARE(int(statusOf(tabs(dialog))), 0);
}

// One widget of each family by name, and an empty container, which gets nothing.
void TestSquishTest::familySpotChecks()
{
    // A locale whose week starts on Sunday, which the calendars must override.
    const QLocale previous;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    TestSquish dialog(nullptr);
    QLocale::setDefault(previous);
    QWidget* misc = showPage(dialog, QStringLiteral("tabMisc"));
    auto* empty = new VNResultSwitcher(misc);
    clickButton(dialog, "standardLockedStateButton");
    QCOMPARE(empty->count(), 0);
    QCOMPARE(int(VNWidgetStatus::statusFromProperty(empty)), 0x23000);
    auto* switcher = dialog.findChild<VNResultSwitcher*>(QStringLiteral("m_resultSwitcher"));
    QCOMPARE(int(switcher->itemWidgetStatus(switcher->count() - 1)), 0x23000);
    for (const char* name : {"m_vnCustomMenuButton", "m_vnSlider", "m_actionBar", "calendarWidget"})
        QCOMPARE(int(statusOf(dialog.findChild<QWidget*>(QLatin1String(name)))), 0x23000);
    QCOMPARE(int(statusOf(dialog.findChild<QWidget*>(QStringLiteral("vnLineEdit")))), 0);
    auto* calendar = dialog.findChild<QCalendarWidget*>(QStringLiteral("calendarWidget"));
    for (QCalendarWidget* shown :
         {calendar, dialog.findChild<QDateEdit*>(QStringLiteral("dateEdit"))->calendarWidget()})
        QCOMPARE(shown->firstDayOfWeek(), Qt::Monday);
    QCOMPARE(calendar->selectedDate(), QDate(2022, 4, 1));

    QWidget* navigation = showPage(dialog, QStringLiteral("tabNavigation"));
    clickButton(dialog, "standardChangedLockedStateButton");
    const QList<VNAnimatedTabBar*> bars = navigation->findChildren<VNAnimatedTabBar*>();
    QVERIFY(!bars.isEmpty());
    for (VNAnimatedTabBar* bar : bars) {
        QVERIFY(bar->count() > 1);
        QCOMPARE(int(bar->widgetStatus(0)), int(VNWidgetStatus::standardChangedLocked));
        QCOMPARE(int(bar->widgetStatus(bar->count() - 1)), 0x33000);
        // On the light status fill even dark tabs write dark text.
        QVERIFY(anyPixel(bar->grab().toImage(), [](const QColor& pixel) { return qGray(pixel.rgb()) < 90; }));
    }
    for (const char* name : {"elementNavigationBar", "bgViewswitcher", "vnTabWidget"})
        QCOMPARE(int(statusOf(dialog.findChild<QWidget*>(QLatin1String(name)))), 0x33000);
}

// The toggle switches 0x800 on and off and leaves every other bit; "None" keeps it while it is on.
void TestSquishTest::compareTogglesOnlyItsBit()
{
    TestSquish dialog(nullptr);
    auto* compare = dialog.findChild<QAbstractButton*>(QStringLiteral("compareDifferentStateButton"));
    QVERIFY(compare->isCheckable());
    for (int index = 0; index < tabs(dialog)->count(); ++index) {
        tabs(dialog)->setCurrentIndex(index);
        const QList<QWidget*> below = tabs(dialog)->currentWidget()->findChildren<QWidget*>();
        clickButton(dialog, "standardChangedLockedStateButton");
        compare->click();
        QVERIFY(compare->isChecked());
        QCOMPARE(firstMismatch(below, 0x33800, 0x800, 0x800), QString());
        QCOMPARE(stateLabel(dialog), firstToolkitText(below));
        clickButton(dialog, "noStateButton");
        QCOMPARE(firstMismatch(below, 0x800, 0x800, 0x800), QString());
        QCOMPARE(stateLabel(dialog), QStringLiteral("compareDifferent"));
        clickButton(dialog, "needInputStateButton");
        compare->click();
        QCOMPARE(firstMismatch(below, 0x20, 0, 0), QString());
        QCOMPARE(stateLabel(dialog), firstToolkitText(below));
    }
    // The label follows the first toolkit widget of the page.
    const QList<QWidget*> below = showPage(dialog, QStringLiteral("tabInOut"))->findChildren<QWidget*>();
    auto* first = dynamic_cast<VNWidgetInterface*>(*std::find_if(below.begin(), below.end(), [](QWidget* widget) {
        return dynamic_cast<VNWidgetInterface*>(widget) != nullptr;
    }));
    first->setWidgetStatus(VNWidgetStatus::userEdit);
    compare->click();
    QCOMPARE(stateLabel(dialog), QStringLiteral("userEdit | compareDifferent"));
}

void TestSquishTest::disableAndReadOnlyActOnCurrentPage()
{
    TestSquish dialog(nullptr);
    auto* lineEdit = dialog.findChild<QLineEdit*>(QStringLiteral("vnLineEdit"));
    auto* spinBox = dialog.findChild<QAbstractSpinBox*>(QStringLiteral("vnDoubleSpinBox_37"));
    QWidget* spinPage = showPage(dialog, QStringLiteral("tabDoubleSpinbox"));
    clickButton(dialog, "disabledCheckBox");
    for (QWidget* widget : spinPage->findChildren<QWidget*>())
        QVERIFY2(!widget->isEnabled(), qPrintable(describe(widget)));
    QVERIFY(spinPage->isEnabled() && lineEdit->isEnabled());
    clickButton(dialog, "disabledCheckBox");
    for (QWidget* widget : spinPage->findChildren<QWidget*>())
        QVERIFY2(widget->isEnabled(), qPrintable(describe(widget)));

    clickButton(dialog, "readOnlyCheckbox");
    QVERIFY(spinBox->isReadOnly() && !lineEdit->isReadOnly());
    showPage(dialog, QStringLiteral("tabInOut"));
    clickButton(dialog, "readOnlyCheckbox"); // unchecked: this page stays as it is, the other one too
    QVERIFY(!lineEdit->isReadOnly() && spinBox->isReadOnly());
    clickButton(dialog, "readOnlyCheckbox");
    QVERIFY(lineEdit->isReadOnly());
}

// Every third action of the menu asking is enabled; a request from anything else changes nothing.
void TestSquishTest::selectDefaultOnlyForAdvancedMenu()
{
    TestSquish dialog(nullptr);
    VNAdvancedMenu advanced;
    QMenu plain;
    for (int index = 0; index < 7; ++index) {
        advanced.addAction(QString::number(index));
        plain.addAction(QString::number(index));
    }
    connect(&advanced, SIGNAL(selectDefaultClicked()), &dialog, SLOT(onSelectDefault()));
    connect(&plain, SIGNAL(aboutToHide()), &dialog, SLOT(onSelectDefault()));
    QMetaObject::invokeMethod(&plain, "aboutToHide");
    QMetaObject::invokeMethod(&advanced, "selectDefaultClicked");
    QString enabled;
    for (QMenu* menu : {static_cast<QMenu*>(&advanced), &plain}) {
        for (QAction* action : menu->actions())
            enabled += action->isEnabled() ? QLatin1Char('1') : QLatin1Char('0');
    }
    QCOMPARE(enabled, QStringLiteral("1001001"
                                     "1111111"));
}

void TestSquishTest::embeddedDialogsDeletedWithGallery()
{
    auto dialog = std::make_unique<TestSquish>(nullptr);
    QPointer<TestTreeDelegates> delegates = dialog->findChild<TestTreeDelegates*>();
    QPointer<TestMasterDetailTree> masterDetail = dialog->findChild<TestMasterDetailTree*>();
    QVERIFY(dialog->findChild<QWidget*>(QStringLiteral("tabTables"))->isAncestorOf(delegates));
    QVERIFY(dialog->findChild<QWidget*>(QStringLiteral("tabMasterDetail"))->isAncestorOf(masterDetail));
    dialog.reset();
    QVERIFY(!delegates && !masterDetail);
}

void TestSquishTest::wordsLookDistinct_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("target"); // an object name, or ":" and the class of the first such widget
    // clang-format off
    const std::pair<const char*, const char*> families[] = {
        {"tabInOut", "vnLineEdit"}, {"tabInOut", "m_clearLineEdit"}, {"tabInOut", "textEdit_3"},
        {"tabInOut", "m_qPushButtonNormal"}, {"tabInOut", "m_vnPushButtonNormal"}, {"tabInOut", "m_vnButtonNormal"},
        {"tabInOut", "m_qToolButtonNormal"}, {"tabInOut", "m_vnTwinPushButtonNormal"},
        {"tabInOut", "m_vnCheckBoxNormal"}, {"tabInOut", "m_qCheckBoxNormal"}, {"tabInOut", "m_vnCheckBoxSliding"},
        {"tabInOut", "m_vnRadioButtonNormal"}, {"tabInOut", "m_radioButtonNormal"}, {"tabInOut", "m_vnComboBox"},
        {"tabInOut", "m_groupableComboBox"}, {"tabInOut", "m_doubleInputCombo"}, {"tabInOut", "vnValueEdit_29"},
        {"tabInOut", "m_curveInputControl"}, {"tabInOut", "progressiveDisclosure_9"},
        {"tabDoubleSpinbox", "vnDoubleSpinBox_37"}, {"tabNavigation", ":VNTaskBar"},
        {"tabNavigation", ":VNAnimatedTabBar"}, {"tabNavigation", "vnTabWidget"},
        {"tabNavigation", "elementNavigationBar"}, {"tabNavigation", "bgViewswitcher"},
        {"tabDisclosures", "progressiveDisclosure"}, {"tabDisclosures", "progressiveDisclosure_closedHover"},
        {"tabMisc", "dateEdit"}, {"tabMisc", "m_vnSlider"},
        {"tabMisc", "m_resultSwitcher"}, {"tabMisc", "m_vnCustomMenuButton"}, {"tabMisc", "m_actionBar"},
        {"tabMisc", "m_selectStep_cb"}};
    // clang-format on
    for (const auto& family : families)
        QTest::newRow(family.second) << family.first << family.second;
}

// Each word looks different from every other on each widget family, compare-differs shows on top
// of every word, and need input shows red.
void TestSquishTest::wordsLookDistinct()
{
    QFETCH(QString, page);
    QFETCH(QString, target);
    TestSquish dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QWidget* widget = dialog.findChild<QWidget*>(target);
    for (QWidget* candidate : showPage(dialog, page)->findChildren<QWidget*>()) {
        if (!widget && target.startsWith(QLatin1Char(':')) && candidate->inherits(qPrintable(target.mid(1))))
            widget = candidate;
    }
    QVERIFY(widget && widget->isVisible());
    QList<QImage> looks; // the words without, then with compare-differs
    for (int pass = 0; pass < 2; ++pass) {
        for (const Word& word : words) {
            clickButton(dialog, word.button);
            looks << widget->grab().toImage();
        }
        clickButton(dialog, "compareDifferentStateButton");
    }
    const int count = int(std::size(words));
    QStringList alike;
    for (int first = 0; first < count; ++first) {
        for (int second = first + 1; second < count; ++second) {
            if (looks.at(first) == looks.at(second))
                alike << QLatin1String(words[first].text) + QLatin1String(" = ") + QLatin1String(words[second].text);
        }
        if (looks.at(first) == looks.at(first + count))
            alike << QLatin1String(words[first].text) + QLatin1String(" = with Compare Differs");
    }
    QVERIFY2(alike.isEmpty(), qPrintable(alike.join(QLatin1String(", "))));
    QVERIFY(anyPixel(looks.at(1), [](const QColor& pixel) {
        return pixel.red() > 180 && pixel.green() < 90 && pixel.blue() < 90; // need input is red
    }));
}

// With the mock translation every text of the gallery reads translated, the embedded dialogs' too.
void TestSquishTest::mockLocaleLeavesNoEnglish()
{
    if (!TWC_HAS_MOCK_TRANSLATION)
        QSKIP("built without lupdate and lrelease");
    const TranslationFileTool tool;
    TestSquish english(nullptr);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/TestWidgetCollection/Translations/testwidgetcollection_mock.qm")));
    QCoreApplication::installTranslator(&translator);
    TestSquish mocked(nullptr);
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(mocked.windowTitle(), tool.mockSwedish(english.windowTitle()));
    for (int index = 0; index < tabs(english)->count(); ++index)
        QCOMPARE(tabs(mocked)->tabText(index), tool.mockSwedish(tabs(english)->tabText(index)));
    // Widgets with their texts, titles, current items and headers, and the actions of the menus.
    // Values, file names and Qt's own parts (the calendar's month names) are no texts to translate.
    const QRegularExpression letters(QStringLiteral("[A-Za-z]")), data(QStringLiteral("^[\\d.]|\\.\\w{3}$"));
    auto showsValues = [](const QObject* object) {
        if (object->parent() && object->parent()->inherits("QComboBox"))
            return true; // the editor of a combo box
        for (; object; object = object->parent()) {
            if (object->inherits("QAbstractSpinBox") || object->inherits("QCalendarWidget"))
                return true;
        }
        return false;
    };
    const QList<QObject*> before = english.findChildren<QObject*>();
    const QList<QObject*> after = mocked.findChildren<QObject*>();
    QCOMPARE(after.size(), before.size());
    for (int index = 0; index < before.size(); ++index) {
        const QObject* object = before.at(index);
        if (showsValues(object))
            continue;
        for (const char* property : {"text", "title", "currentText", "headerLabel"}) {
            const QString text = object->property(property).toString();
            if (text.contains(letters) && !text.contains(data))
                QCOMPARE(after.at(index)->property(property).toString(), tool.mockSwedish(text));
        }
    }
}

QTEST_MAIN(TestSquishTest)
#include "tst_testsquish.moc"
