#include "TestCurveInputControl.h"

#include <VNCurveInputControl.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QTest>

namespace {

template<typename T>
QList<T*> column(QWidget* dialog, const char* container)
{
    return dialog->findChild<QWidget*>(QLatin1String(container))
        ->findChildren<T*>(QString(), Qt::FindDirectChildrenOnly);
}

template<typename T>
T* optionButton(QWidget* dialog, const char* container, const QString& key)
{
    for (T* button : column<T>(dialog, container)) {
        if (button->text() == key)
            return button;
    }
    qFatal("no option button");
    return nullptr;
}

QStringList menuTexts(VNCurveInputControl* control)
{
    QStringList texts;
    for (QAction* action : control->menu()->actions())
        texts << action->text();
    return texts;
}
} // namespace

class CurveInputControlTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void availableTogglesMenuEntries();
    void enabledTogglesMenuEntries();
    void zeroOptionOnlyForEmptySet();
    void defaultRadioRenamesButton();
    void uncheckingDefaultKeepsIt();
    void inputTypeChangesIcon();
};

void CurveInputControlTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void CurveInputControlTest::availableTogglesMenuEntries()
{
    TestCurveInputControl dialog(nullptr);
    auto* control = dialog.findChild<VNCurveInputControl*>();
    optionButton<QCheckBox>(&dialog, "widgetA", "Formula")->setChecked(true);
    optionButton<QCheckBox>(&dialog, "widgetA", "PickPoints")->setChecked(false);
    QCOMPARE(int(control->getOptionsAvailable()),
             int(VNCurveInputControl::Sketch | VNCurveInputControl::Coordinates | VNCurveInputControl::Formula));
    QCOMPARE(menuTexts(control), QStringList({"Sketch", "Coordinates", "Formula"}));
}

void CurveInputControlTest::enabledTogglesMenuEntries()
{
    TestCurveInputControl dialog(nullptr);
    auto* control = dialog.findChild<VNCurveInputControl*>();
    optionButton<QCheckBox>(&dialog, "widgetE", "Coordinates")->setChecked(false);
    QVERIFY(!control->getOptionsEnabled().testFlag(VNCurveInputControl::Coordinates));
    QVERIFY(!control->optionAction(VNCurveInputControl::Coordinates)->isEnabled());
    QVERIFY(control->optionAction(VNCurveInputControl::Sketch)->isEnabled());
}

void CurveInputControlTest::zeroOptionOnlyForEmptySet()
{
    TestCurveInputControl dialog(nullptr);
    auto* control = dialog.findChild<VNCurveInputControl*>();
    QVERIFY(!control->optionAction(VNCurveInputControl::NoOption));
    for (const char* key : {"Sketch", "PickPoints", "Coordinates"})
        optionButton<QCheckBox>(&dialog, "widgetA", key)->setChecked(false);
    QCOMPARE(int(control->getOptionsAvailable()), 0);
    QCOMPARE(menuTexts(control), QStringList({"No Input"}));
    // The boxes are built once: the zero option's box does not follow later changes.
    QVERIFY(!optionButton<QCheckBox>(&dialog, "widgetA", "NoOption")->isChecked());
    // Checking the zero option sets no bit.
    optionButton<QCheckBox>(&dialog, "widgetA", "NoOption")->setChecked(true);
    QCOMPARE(int(control->getOptionsAvailable()), 0);
}

void CurveInputControlTest::defaultRadioRenamesButton()
{
    TestCurveInputControl dialog(nullptr);
    auto* control = dialog.findChild<VNCurveInputControl*>();
    QCOMPARE(control->text(), QString("Sketch"));
    optionButton<QRadioButton>(&dialog, "widgetD", "Coordinates")->click();
    QCOMPARE(control->getDefaultOption(), VNCurveInputControl::Coordinates);
    QCOMPARE(control->text(), QString("Coordinates"));
    QVERIFY(control->optionAction(VNCurveInputControl::Coordinates)->isChecked());
    QVERIFY(!control->optionAction(VNCurveInputControl::Sketch)->isChecked());
}

void CurveInputControlTest::uncheckingDefaultKeepsIt()
{
    TestCurveInputControl dialog(nullptr);
    auto* control = dialog.findChild<VNCurveInputControl*>();
    optionButton<QCheckBox>(&dialog, "widgetE", "Sketch")->setChecked(false);
    QCOMPARE(control->getDefaultOption(), VNCurveInputControl::Sketch);
    QCOMPARE(control->property("defaultUsable").toBool(), false);
    optionButton<QCheckBox>(&dialog, "widgetA", "Sketch")->setChecked(false);
    QCOMPARE(control->getDefaultOption(), VNCurveInputControl::Sketch);
}

void CurveInputControlTest::inputTypeChangesIcon()
{
    TestCurveInputControl dialog(nullptr);
    auto* control = dialog.findChild<VNCurveInputControl*>();
    auto* types = dialog.findChild<QComboBox*>("inputTypeCombo");
    QList<QImage> icons;
    for (int index = 0; index < 3; ++index) {
        types->setCurrentIndex(index);
        QCOMPARE(int(control->inputType()), index);
        icons << control->icon().pixmap(16).toImage();
    }
    QVERIFY(icons.at(0) != icons.at(1));
    QVERIFY(icons.at(1) != icons.at(2));
    QVERIFY(icons.at(0) != icons.at(2));
    dialog.findChild<QCheckBox*>("enableCheckbox")->setChecked(false);
    QVERIFY(!control->isEnabled());
}

QTEST_MAIN(CurveInputControlTest)
#include "tst_curveinputcontrol.moc"
