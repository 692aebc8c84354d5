#include "../TestSupport.h"
#include "TestMasterDetailTree.h"
#include "TestSquish.h"
#include "TestTreeDelegates.h"
#include "TranslationFileTool.h"

#include <VNAdvancedMenu.h>
#include <VNAnimatedTabBar.h>
#include <VNContainerWidgetInterface.h>
#include <VNMessageBox.h>
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
#include <QTabWidget>
#include <QTest>
#include <QToolTip>

#include <memory>

namespace {
using Flags = VNWidgetStatus::StatusFlags;

QTabWidget* tabs(QWidget& dialog)
{
    return child<QTabWidget>(&dialog, QStringLiteral("m_tabWidget"));
}

QWidget* showPage(QWidget& dialog, const QString& page)
{
    tabs(dialog)->setCurrentWidget(child<QWidget>(&dialog, page));
    return tabs(dialog)->currentWidget();
}

QString stateLabel(QWidget& dialog)
{
    return child<QLabel>(&dialog, QStringLiteral("m_stateLabel"))->text();
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
    void applyWord_data();
    void applyWord();
    void familySpotChecks();
    void compareTogglesOnlyItsBit();
    void disableAndReadOnlyActOnCurrentPage();
    void selectDefaultOnlyForAdvancedMenu();
    void embeddedDialogsDeletedWithGallery();
    void messageBoxTextStaysEnglish();
    void toolTipShowsSketch_data();
    void toolTipShowsSketch();
    void wordsLookDistinct_data();
    void wordsLookDistinct();
};

void TestSquishTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
}

void TestSquishTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestSquishTest::applyWord_data()
{
    addStatusWordRows();
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
        clickButton(&dialog, qPrintable(button));
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
    clickButton(&dialog, "standardLockedStateButton");
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
    clickButton(&dialog, "standardChangedLockedStateButton");
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
        clickButton(&dialog, "standardChangedLockedStateButton");
        compare->click();
        QVERIFY(compare->isChecked());
        QCOMPARE(firstMismatch(below, 0x33800, 0x800, 0x800), QString());
        QCOMPARE(stateLabel(dialog), firstToolkitText(below));
        clickButton(&dialog, "noStateButton");
        QCOMPARE(firstMismatch(below, 0x800, 0x800, 0x800), QString());
        QCOMPARE(stateLabel(dialog), QStringLiteral("compareDifferent"));
        clickButton(&dialog, "needInputStateButton");
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
    clickButton(&dialog, "disabledCheckBox");
    for (QWidget* widget : spinPage->findChildren<QWidget*>())
        QVERIFY2(!widget->isEnabled(), qPrintable(describe(widget)));
    QVERIFY(spinPage->isEnabled() && lineEdit->isEnabled());
    clickButton(&dialog, "disabledCheckBox");
    for (QWidget* widget : spinPage->findChildren<QWidget*>())
        QVERIFY2(widget->isEnabled(), qPrintable(describe(widget)));

    clickButton(&dialog, "readOnlyCheckbox");
    QVERIFY(spinBox->isReadOnly() && !lineEdit->isReadOnly());
    showPage(dialog, QStringLiteral("tabInOut"));
    clickButton(&dialog, "readOnlyCheckbox"); // unchecked: this page stays as it is, the other one too
    QVERIFY(!lineEdit->isReadOnly() && spinBox->isReadOnly());
    clickButton(&dialog, "readOnlyCheckbox");
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

// Scripts find the gallery's message box by its text in every locale; its title is translated.
void TestSquishTest::messageBoxTextStaysEnglish()
{
    const MockTranslation mock;
    if (!mock.loaded())
        QSKIP("built without lupdate and lrelease");
    TestSquish dialog(nullptr);
    QString title;
    QString text;
    onNextModal<Varnis::VNMessageBox>([&](Varnis::VNMessageBox* box) {
        title = child<QLabel>(box, QStringLiteral("titleLabel"))->text();
        text = child<QLabel>(box, QStringLiteral("textLabel"))->text();
        box->reject();
    });
    clickButton(&dialog, QStringLiteral("m_messageBoxBtn"));
    QCOMPARE(text, QStringLiteral("This is a default message box"));
    QCOMPARE(title, TranslationFileTool().mockSwedish(QStringLiteral("Warning")));
}

void TestSquishTest::toolTipShowsSketch_data()
{
    QTest::addColumn<bool>("hover");
    QTest::newRow("hovered") << true;
    QTest::newRow("clicked") << false;
}

// The shoulder angle's tool tip carries its sketch from the start, for robots that read it, and shows
// it whether the mouse rests on the button or clicks it.
void TestSquishTest::toolTipShowsSketch()
{
    QFETCH(bool, hover);
    TestSquish dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* button =
        child<QAbstractButton>(showPage(dialog, QStringLiteral("tabMisc")), QStringLiteral("vnToolTipButton"));
    const QString prefix = QStringLiteral("Shoulder Angle<br><img src=\"data:image/png;base64,");
    QVERIFY(button->toolTip().startsWith(prefix));
    if (hover)
        QTest::mouseMove(button);
    else
        QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(QToolTip::isVisible());
    const QString text = QToolTip::text();
    QVERIFY2(text.startsWith(prefix), qPrintable(text.left(80)));
    const QImage sketch =
        QImage::fromData(QByteArray::fromBase64(text.mid(prefix.size()).section('"', 0, 0).toLatin1()));
    QCOMPARE(sketch.height(), 150);
    QToolTip::hideText();
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
    // applyWord clicks every button with the mouse; here only the looks count, so the buttons'
    // own click() is enough for the hundreds of clicks and keeps the test quick.
    for (int pass = 0; pass < 2; ++pass) {
        for (const StatusWord& word : statusWords()) {
            child<QAbstractButton>(&dialog, QLatin1String(word.button))->click();
            looks << widget->grab().toImage();
        }
        child<QAbstractButton>(&dialog, QStringLiteral("compareDifferentStateButton"))->click();
    }
    const QVector<StatusWord>& words = statusWords();
    const int count = words.size();
    QStringList alike;
    for (int first = 0; first < count; ++first) {
        for (int second = first + 1; second < count; ++second) {
            if (looks.at(first) == looks.at(second))
                alike << QLatin1String(words[first].name) + QLatin1String(" = ") + QLatin1String(words[second].name);
        }
        if (looks.at(first) == looks.at(first + count))
            alike << QLatin1String(words[first].name) + QLatin1String(" = with Compare Differs");
    }
    QVERIFY2(alike.isEmpty(), qPrintable(alike.join(QLatin1String(", "))));
    QVERIFY(anyPixel(looks.at(1), [](const QColor& pixel) {
        return pixel.red() > 180 && pixel.green() < 90 && pixel.blue() < 90; // need input is red
    }));
}

QTEST_MAIN(TestSquishTest)
#include "tst_testsquish.moc"
