#include "../TestSupport.h"
#include "Loupe.h"
#include "TestComboBox.h"
#include "TestWidgetCollection.h"

#include <VNComboBox.h>
#include <VNComboBoxDoubleInput.h>
#include <VNFilterComboBox.h>
#include <VNFormatter.h>
#include <VNGroupableComboBox.h>
#include <VNStatusPalette.h>
#include <VNValueEdit.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTreeView>

namespace {
const QStringList standardItems{"Entry 1", "A longer Entry 2", "New Item", "3"};

QStringList texts(const QComboBox* combo)
{
    QStringList result;
    for (int i = 0; i < combo->count(); ++i)
        result << combo->itemText(i);
    return result;
}

// Every entry of a groupable box, depth first: a child behind its group, with its data.
QStringList groupEntries(const QAbstractItemModel* model, const QModelIndex& parent = QModelIndex())
{
    QStringList result;
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        const QVariant data = index.data(Qt::UserRole);
        result << (parent.isValid() ? parent.data().toString() + '/' : QString()) + index.data().toString() +
                      (data.isValid() ? '=' + data.toString() : QString());
        result << groupEntries(model, index);
    }
    return result;
}

const QStringList groupSample{"Group1",
                              "Group1/Child1=0",
                              "Group1/Child 02=1",
                              "Group1/Child 03=2",
                              "Group1/Child 04=3",
                              "Group1/Child 05=4",
                              "ItemWithoutGroup",
                              "Group2",
                              "Group2/Child 11=0",
                              "Group2/Child 12=1",
                              "Group2/Child 13=2",
                              "Group2/Child 14=3"};
} // namespace

class ComboBoxTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void standardItemsAndIcons();
    void addEntryUsesDefaultAndCurrentStatus();
    void bulkButtonsLeaveNumberComboAlone();
    void restoreRefillsEverything();
    void styleRadios_data();
    void styleRadios();
    void statusListShowsCurrentStatus_data();
    void statusListShowsCurrentStatus();
    void statusBarInPopup();
    void ownDelegateStaysAtFirstPopup();
    void numberComboItems();
    void unitComboParsesUnits_data();
    void unitComboParsesUnits();
    void degreeSpecialValues_data();
    void degreeSpecialValues();
    void degreeFieldSelectsAllOnFocus();
    void groupableDeleteCurrent_data();
    void groupableDeleteCurrent();
    void groupablePopupCollapsesAndSelects();
    void filterComboFiltersWhileTyping();
    void loupeMovesIntoComboBoxTest();
};

void ComboBoxTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The items' texts are in the object-map baseline; their icons and statuses are not.
void ComboBoxTest::standardItemsAndIcons()
{
    TestComboBox dialog(nullptr);
    auto* filter = dialog.findChild<VNFilterComboBox*>();
    QVERIFY(!filter->itemIcon(0).isNull());
    // The filter box sits below the form's last row, at its start, where scripts look for it.
    auto* layout = child<QGridLayout>(&dialog, "gridLayout");
    int at[4] = {};
    layout->getItemPosition(layout->indexOf(filter), &at[0], &at[1], &at[2], &at[3]);
    QCOMPARE(QList<int>({at[0], at[1], at[2], at[3]}), QList<int>({14, 0, 1, 1}));
    QCOMPARE(layout->itemAtPosition(13, 1)->widget()->objectName(), QString("groupableCB"));
    auto* withIcons = child<QComboBox>(&dialog, "comboBox_3");
    QVERIFY(!withIcons->itemIcon(0).pixmap(16).isNull());
    QVERIFY(!withIcons->itemIcon(1).pixmap(16).isNull());
    QVERIFY(withIcons->itemIcon(2).isNull());
    QVERIFY(child<QComboBox>(&dialog, "comboBox_4")->itemIcon(0).isNull());
    auto* nine = child<VNComboBox>(&dialog, "comboBox_9");
    QVERIFY(nine->isUserEditStatus());
    QCOMPARE(nine->property("statusLook").toString(), QString("userEdit"));
    QCOMPARE(nine->iconSize(), QSize(14, 14));
    auto* empty = child<VNComboBox>(&dialog, "m_widgetStatusCB_2");
    QCOMPARE(empty->count(), 0);
    QVERIFY(empty->isNeedInputStatus());
    QCOMPARE(empty->property("statusLook").toString(), QString("needInput"));
    child<QComboBox>(&dialog, "m_widgetStatusCB")->setCurrentIndex(2);
    clickButton(&dialog, "add");
    QCOMPARE(empty->property("statusLook").toString(), QString("userEdit"));
}

void ComboBoxTest::addEntryUsesDefaultAndCurrentStatus()
{
    TestComboBox dialog(nullptr);
    child<QLineEdit>(&dialog, "itemText")->clear();
    child<QComboBox>(&dialog, "m_widgetStatusCB")->setCurrentIndex(1);
    clickButton(&dialog, "add");
    for (QComboBox* combo : dialog.findChildren<QComboBox*>()) {
        if (combo->objectName() == QLatin1String("vnDoubleComboBox"))
            continue;
        QCOMPARE(combo->itemText(combo->count() - 1), QString("default"));
        if (auto* vnCombo = qobject_cast<VNComboBox*>(combo))
            QCOMPARE(int(vnCombo->itemWidgetStatus(vnCombo->count() - 1)), 0x20);
    }
    child<QLineEdit>(&dialog, "itemText")->setText("Typed");
    clickButton(&dialog, "add");
    QCOMPARE(child<QComboBox>(&dialog, "comboBox_6")->itemText(5), QString("Typed"));
}

void ComboBoxTest::bulkButtonsLeaveNumberComboAlone()
{
    TestComboBox dialog(nullptr);
    auto* numbers = child<VNComboBox>(&dialog, "vnDoubleComboBox");
    const QStringList before = texts(numbers);
    QCOMPARE(before.size(), 5);
    for (const char* button : {"add", "addSeparator", "deleteCurrent", "deleteAll", "restore", "add"})
        clickButton(&dialog, button);
    child<QRadioButton>(&dialog, "radioText")->click();
    QCOMPARE(texts(numbers), before);
    QCOMPARE(numbers->comboBoxStyle(), VNComboBox::IconAndText);
}

void ComboBoxTest::restoreRefillsEverything()
{
    TestComboBox dialog(nullptr);
    clickButton(&dialog, "deleteAll");
    QCOMPARE(child<QComboBox>(&dialog, "comboBox_2")->count(), 0);
    QCOMPARE(child<QComboBox>(&dialog, "groupableCB")->count(), 0);
    clickButton(&dialog, "addSeparator");
    for (QComboBox* combo : dialog.findChildren<QComboBox*>()) {
        const bool bulk = combo->objectName() != QLatin1String("vnDoubleComboBox");
        const QString last = combo->itemData(combo->count() - 1, Qt::AccessibleDescriptionRole).toString();
        QVERIFY2((last == QLatin1String("separator")) == bulk, qPrintable(combo->objectName()));
        QCOMPARE(combo->count(), bulk ? 1 : 5);
    }
    clickButton(&dialog, "restore");
    for (const char* name : {"comboDeg", "vnUnitComboBox", "comboBox_2", "comboBox_10"})
        QCOMPARE(texts(child<QComboBox>(&dialog, name)), standardItems);
    QCOMPARE(texts(dialog.findChild<VNFilterComboBox*>()), standardItems);
    QCOMPARE(child<QComboBox>(&dialog, "m_widgetStatusCB")->count(), 7);
    QCOMPARE(child<QComboBox>(&dialog, "m_widgetStatusCB_2")->count(), 0);
    auto* groups = child<VNGroupableComboBox>(&dialog, "groupableCB");
    // The groups as the dialog starts: headings in bold that cannot be chosen, the second child
    // of the second group current.
    QCOMPARE(groupEntries(groups->model()), groupSample);
    QCOMPARE(groups->currentText(), QString("Child 12"));
    QCOMPARE(QList<int>({groups->currentTopLevelRow(), groups->currentChildRow()}), QList<int>({2, 1}));
    QCOMPARE(groups->currentData().toInt(), 1);
    const QModelIndex group1 = groups->model()->index(0, 0);
    QCOMPARE(groups->model()->flags(group1), Qt::ItemIsEnabled);
    QVERIFY(group1.data(Qt::FontRole).value<QFont>().bold());
    QVERIFY(groups->model()->flags(groups->model()->index(1, 0)) & Qt::ItemIsSelectable);
}

void ComboBoxTest::styleRadios_data()
{
    QTest::addColumn<QString>("radio");
    QTest::addColumn<int>("style");
    QTest::newRow("icon only") << "radioIcon" << 0;
    QTest::newRow("text only") << "radioText" << 1;
}

void ComboBoxTest::styleRadios()
{
    QFETCH(QString, radio);
    QFETCH(int, style);
    TestComboBox dialog(nullptr);
    dialog.show();
    auto* combo = child<VNComboBox>(&dialog, "comboBox_3");
    const QImage before = combo->grab().toImage();
    const int width = combo->sizeHint().width();
    dialog.findChild<QRadioButton*>(radio)->click();
    QCOMPARE(combo->sizeHint().width() < width, style == VNComboBox::IconOnly);
    for (VNComboBox* vnCombo : dialog.findChildren<VNComboBox*>()) {
        if (vnCombo->objectName() != QLatin1String("vnDoubleComboBox"))
            QCOMPARE(int(vnCombo->comboBoxStyle()), style);
    }
    QVERIFY(combo->grab().toImage() != before);
    child<QRadioButton>(&dialog, "radioIconText")->click();
    QCOMPARE(combo->comboBoxStyle(), VNComboBox::IconAndText);
    QCOMPARE(combo->grab().toImage(), before);
}

void ComboBoxTest::statusListShowsCurrentStatus_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("look");
    QTest::newRow("undef") << 0 << 0 << "undef";
    QTest::newRow("needInput") << 1 << 0x20 << "needInput";
    QTest::newRow("userEdit") << 2 << 0x2 << "userEdit";
    QTest::newRow("compareDifferent") << 3 << 0x800 << "undef";
    QTest::newRow("different") << 4 << 0x400 << "different";
    QTest::newRow("standardDefined") << 5 << 0x2000 << "standardDefined";
    QTest::newRow("standardChanged") << 6 << 0x12000 << "standardChanged";
}

void ComboBoxTest::statusListShowsCurrentStatus()
{
    QFETCH(int, index);
    QFETCH(int, status);
    QFETCH(QString, look);
    TestComboBox dialog(nullptr);
    auto* combo = child<VNComboBox>(&dialog, "m_widgetStatusCB");
    combo->setCurrentIndex(index);
    QCOMPARE(int(combo->getWidgetStatusOfCurrent()), status);
    QCOMPARE(int(combo->getWidgetStatus()), status);
    QCOMPARE(combo->property("statusLook").toString(), look);
    QCOMPARE(combo->property("compareDiffers").toBool(), status == 0x800);
}

void ComboBoxTest::statusBarInPopup()
{
    VNComboBox combo;
    combo.addItems({"plain", "missing", "standard changed"});
    combo.setItemWidgetStatus(1, VNWidgetStatus::needInput);
    combo.setItemWidgetStatus(2, VNWidgetStatus::standardChanged);
    combo.resize(200, 30);
    combo.show();
    combo.showPopup();
    QAbstractItemView* view = combo.view();
    QTRY_VERIFY(view->isVisible());
    const QImage image = view->viewport()->grab().toImage();
    const QRect plain = view->visualRect(view->model()->index(0, 0));
    const QRect missing = view->visualRect(view->model()->index(1, 0));
    const QRect changed = view->visualRect(view->model()->index(2, 0));
    // The frame colours of the style's need-input and standard-changed looks, in a bar four pixels
    // wide beside the item's left edge.
    for (int x = 1; x <= 4; ++x)
        QCOMPARE(image.pixelColor(missing.left() + x, missing.center().y()),
                 VNStatusPalette::markColor(VNWidgetStatus::needInput));
    for (int x : {0, 5})
        QVERIFY(image.pixelColor(missing.left() + x, missing.center().y()) !=
                VNStatusPalette::markColor(VNWidgetStatus::needInput));
    QCOMPARE(image.pixelColor(changed.left() + 2, changed.center().y()),
             VNStatusPalette::markColor(VNWidgetStatus::standardChanged));
    QVERIFY(image.pixelColor(plain.left() + 2, plain.center().y()) !=
            VNStatusPalette::markColor(VNWidgetStatus::needInput));
    combo.hidePopup();
}

void ComboBoxTest::ownDelegateStaysAtFirstPopup()
{
    VNComboBox combo;
    combo.addItems({"one", "two"});
    auto* own = new QStyledItemDelegate(&combo);
    combo.setItemDelegate(own);
    combo.show();
    combo.showPopup();
    QTRY_VERIFY(combo.view()->isVisible());
    QCOMPARE(combo.itemDelegate(), own);
    combo.hidePopup();
}

void ComboBoxTest::numberComboItems()
{
    TestComboBox dialog(nullptr);
    auto* numbers = child<VNComboBox>(&dialog, "vnDoubleComboBox");
    QVERIFY(qobject_cast<VNValueEdit*>(numbers->lineEdit()));
    QCOMPARE(numbers->insertPolicy(), QComboBox::NoInsert);
    // The items' texts are in the object-map baseline; what they stand for is not.
    QCOMPARE(VNFormatter().valueFromText(numbers->itemText(2)), 0.5);
    // Choosing a number reports its value, with the item's text, on the debug output.
    QTest::ignoreMessage(QtDebugMsg, "0.2");
    QTest::keyClick(numbers, Qt::Key_Down);
    auto* millimetres = child<VNComboBoxDoubleInput>(&dialog, "vnUnitComboBox");
    QCOMPARE(millimetres->formatter()->valueFromText(millimetres->itemText(2)), 25.0);
    QTest::keyClick(millimetres, Qt::Key_Down);
    QCOMPARE(millimetres->value(), 10.0);
    millimetres->setValueUnit("cm");
    QCOMPARE(millimetres->itemText(2), millimetres->formatter()->textFromValue(25, true));
    QVERIFY(millimetres->itemText(2).endsWith("cm"));
}

void ComboBoxTest::unitComboParsesUnits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("millimetres");
    QTest::newRow("plain number") << "12" << 12.0;
    QTest::newRow("centimetres") << "2 cm" << 20.0;
    QTest::newRow("metres") << "0.5m" << 500.0;
}

void ComboBoxTest::unitComboParsesUnits()
{
    QFETCH(QString, typed);
    QFETCH(double, millimetres);
    TestComboBox dialog(nullptr);
    auto* combo = child<VNComboBoxDoubleInput>(&dialog, "vnUnitComboBox");
    QSignalSpy spy(combo, &VNComboBoxDoubleInput::doubleInputTextEdited);
    combo->lineEdit()->clear();
    QTest::keyClicks(combo->lineEdit(), typed);
    QVERIFY(!spy.isEmpty());
    QCOMPARE(spy.last().first().toDouble(), millimetres);
    QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
    QCOMPARE(combo->value(), millimetres);
    QCOMPARE(combo->lineEdit()->text(), combo->formatter()->textFromValue(millimetres, true));
}

void ComboBoxTest::degreeSpecialValues_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("output");
    QTest::newRow("automatic") << 0 << "Auto";
    QTest::newRow("x") << 1 << "X";
    QTest::newRow("y") << 2 << "Y";
    QTest::newRow("added entry") << 3 << "??";
}

void ComboBoxTest::degreeSpecialValues()
{
    QFETCH(int, index);
    QFETCH(QString, output);
    TestComboBox dialog(nullptr);
    auto* degrees = child<VNComboBoxDoubleInput>(&dialog, "comboDeg");
    clickButton(&dialog, "add");
    degrees->setCurrentIndex(index == 0 ? 1 : index - 1);
    QTest::keyClick(degrees, index == 0 ? Qt::Key_Up : Qt::Key_Down);
    QCOMPARE(child<QLabel>(&dialog, "comboOutput")->text(), output);
    const QString typed = degrees->itemText(index).toLower();
    degrees->lineEdit()->clear();
    QTest::keyClicks(degrees->lineEdit(), typed);
    QCOMPARE(degrees->specialValueId(), index < 3 ? index : -1);
}

void ComboBoxTest::degreeFieldSelectsAllOnFocus()
{
    TestComboBox dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QApplication::setActiveWindow(&dialog);
    auto* degrees = child<VNComboBoxDoubleInput>(&dialog, "comboDeg");
    degrees->setFocus();
    QTRY_COMPARE(degrees->lineEdit()->selectedText(), QString("Automatic Direction"));
    QTest::keyClicks(degrees->lineEdit(), "45");
    QCOMPARE(child<QLabel>(&dialog, "comboOutput")->text(), degrees->formatter()->textFromValue(45, false));
    QVERIFY(child<QLabel>(&dialog, "comboOutput")->text().startsWith("45"));
}

void ComboBoxTest::groupableDeleteCurrent_data()
{
    QTest::addColumn<int>("topLevelRow");
    QTest::addColumn<int>("childRow");
    QTest::addColumn<QString>("removed");
    QTest::newRow("child of the second group") << 2 << 1 << "Group2/Child 12=1";
    QTest::newRow("first child") << 0 << 0 << "Group1/Child1=0";
    QTest::newRow("last child") << 0 << 4 << "Group1/Child 05=4";
    QTest::newRow("entry without group") << 1 << -1 << "ItemWithoutGroup";
}

// "Delete Current" removes the chosen entry, wherever it sits; the other boxes lose theirs.
void ComboBoxTest::groupableDeleteCurrent()
{
    QFETCH(int, topLevelRow);
    QFETCH(int, childRow);
    QFETCH(QString, removed);
    TestComboBox dialog(nullptr);
    auto* groups = child<VNGroupableComboBox>(&dialog, "groupableCB");
    groups->setCurrentGroupIndex(topLevelRow, childRow);
    QCOMPARE(groups->currentTopLevelRow(), topLevelRow);
    QCOMPARE(groups->currentChildRow(), childRow);
    auto* plain = child<QComboBox>(&dialog, "comboBox_2");
    plain->setCurrentIndex(2);
    clickButton(&dialog, "deleteCurrent");
    QStringList expected = groupSample;
    expected.removeOne(removed);
    QCOMPARE(groupEntries(groups->model()), expected);
    QCOMPARE(texts(plain), QStringList({"Entry 1", "A longer Entry 2", "3"}));
    QCOMPARE(texts(dialog.findChild<VNFilterComboBox*>()), QStringList(standardItems.mid(1)));
}

void ComboBoxTest::groupablePopupCollapsesAndSelects()
{
    TestComboBox dialog(nullptr);
    dialog.show();
    auto* groups = child<VNGroupableComboBox>(&dialog, "groupableCB");
    QSignalSpy spy(groups, &VNGroupableComboBox::currentGroupIndexChanged);
    groups->showPopup();
    QTreeView* tree = groups->treeView();
    QTRY_VERIFY(tree->isVisible());
    const QModelIndex group1 = groups->model()->index(0, 0);
    QVERIFY(tree->isExpanded(group1));
    QVERIFY(tree->window()->height() >= 12 * tree->sizeHintForRow(0));

    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(group1).center());
    QVERIFY(!tree->isExpanded(group1));
    QVERIFY(tree->isVisible());
    QCOMPARE(spy.count(), 0);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(group1).center());
    QVERIFY(tree->isExpanded(group1));

    const QModelIndex child03 = groups->model()->index(2, 0, group1);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(child03).center());
    QTRY_VERIFY(!tree->isVisible());
    QCOMPARE(groups->currentText(), QString("Child 03"));
    QCOMPARE(spy.last(), QList<QVariant>({0, 2}));

    groups->showPopup();
    QTRY_VERIFY(tree->isVisible());
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(groups->model()->index(1, 0)).center());
    QTRY_VERIFY(!tree->isVisible());
    QCOMPARE(groups->currentText(), QString("ItemWithoutGroup"));
    QCOMPARE(spy.last(), QList<QVariant>({1, -1}));
}

void ComboBoxTest::filterComboFiltersWhileTyping()
{
    TestComboBox dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* filter = dialog.findChild<VNFilterComboBox*>();
    QApplication::setActiveWindow(&dialog);
    filter->setFocus();
    QTRY_COMPARE(filter->lineEdit()->selectedText(), QString("Entry 1"));
    QTest::keyClicks(filter->lineEdit(), "ENTR");
    QCompleter* completer = filter->filterCompleter();
    QCOMPARE(completer->completionCount(), 2);
    QTRY_VERIFY(completer->popup()->isVisible());
    QTest::keyClick(filter->lineEdit(), Qt::Key_Backspace);
    QTest::keyClicks(filter->lineEdit(), "ry 1");
    QCOMPARE(completer->completionCount(), 1);
    QCOMPARE(completer->currentCompletion(), QString("Entry 1"));
    QTest::keyClick(completer->popup(), Qt::Key_Down);
    QTest::keyClick(completer->popup(), Qt::Key_Return);
    QCOMPARE(filter->currentIndex(), 0);
}

// Opening the dialog makes no loupe; a loupe already shown moves into it, and stays the only one.
void ComboBoxTest::loupeMovesIntoComboBoxTest()
{
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    panel.show();
    panel.findChild<QPushButton*>("testComboBox")->click();
    auto* comboTest = panel.findChild<TestComboBox*>();
    QVERIFY(!panel.findChild<Loupe*>());
    comboTest->close();
    panel.findChild<QPushButton*>("loupe")->click();
    auto* loupe = panel.findChild<Loupe*>();
    QCOMPARE(loupe->parentWidget(), &panel);
    panel.findChild<QPushButton*>("testComboBox")->click();
    QCOMPARE(loupe->parentWidget(), comboTest);
    QVERIFY(loupe->isVisible());
    comboTest->close();
    panel.findChild<QPushButton*>("testComboBox")->click();
    QCOMPARE(panel.findChildren<TestComboBox*>().size(), 1);
    QCOMPARE(loupe->parentWidget(), comboTest);
    QCOMPARE(panel.findChildren<Loupe*>().size(), 1);
}

QTEST_MAIN(ComboBoxTest)
#include "tst_combobox.moc"
