#include "../TestSupport.h"
#include "TestMasterDetailTree.h"

#include <VNContainerListControl.h>
#include <VNControlledStackItem.h>
#include <VNControlledStackWidget.h>
#include <VNDragTreeWidget.h>
#include <VNStackControllerWidget.h>

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QPointer>
#include <QTest>

namespace {
// The page texts in depth-first order, read through the stack's depth-first lookup.
QStringList dfsTexts(VNControlledStackWidget* stack)
{
    QStringList texts;
    for (int i = 0; VNControlledStackItem* item = stack->itemAtDFSIndex(i); ++i)
        texts << item->text();
    return texts;
}

QStringList mirroredTexts(QTreeWidget* tree)
{
    QStringList texts;
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        texts << (*it)->text(0);
    return texts;
}

QVariant marker(VNControlledStackItem* item)
{
    return item->data(0, VNControlledStackItem::SymmetryMarkerRole);
}

QTreeWidget* controllerTree(TestMasterDetailTree& dialog)
{
    return dialog.controller()->getListControl()->treeWidget();
}

const QStringList initialTexts{"Page 0",     "Sub Page 0", "Sub Page 1", "Sub Sub Page 0", "Sub Sub Page 1",
                               "Sub Page 2", "Page 1",     "Page 2",     "Sub Page 0"};
} // namespace

class TestMasterDetail : public QObject
{
    Q_OBJECT

private slots:
    void initialContents();
    void numberingRestartsAfterDeleteAll();
    void subSubItemOnEmptyStackCreatesUpperLevels();
    void checkableItemsOnlyForNewPages();
    void symmetrySetupMarkers();
    void makeSymmetrical_data();
    void makeSymmetrical();
    void selectionByDfsIndex();
    void selectingShowsDetailPage();
    void highlightFollowsCurrent();
    void colourBoxes();
    void iconRule_data();
    void iconRule();
    void iconPlacement_data();
    void iconPlacement();
    void multiselectionSwitchesEveryTree();
    void groupHeaderAndMarkersArePainted();
    void contextMenuNamesSelection();
};

void TestMasterDetail::initialContents()
{
    TestMasterDetailTree dialog(nullptr);
    QCOMPARE(child<QComboBox>(&dialog, "m_alignmentCB")->currentText(), QStringLiteral("Left"));
    VNControlledStackWidget* stack = dialog.stackWidget();
    QCOMPARE(dfsTexts(stack), initialTexts);
    QCOMPARE(stack->itemCount(), 3);
    QCOMPARE(stack->itemAt(0)->itemAt(1)->itemCount(), 2);
    for (int i = 0; i < initialTexts.size(); ++i)
        QCOMPARE(stack->itemAtDFSIndex(i)->getDFSIndex(), i);
    QVERIFY(!stack->itemAtDFSIndex(initialTexts.size()));
    QVERIFY(!stack->itemAtDFSIndex(-1));
    QCOMPARE(mirroredTexts(child<QTreeWidget>(&dialog, "m_qtreeWidget")), initialTexts);
    QCOMPARE(mirroredTexts(child<QTreeWidget>(&dialog, "m_dragTreeWdg")), initialTexts);
    QCOMPARE(stack->count(), initialTexts.size()); // one detail page per item
    QVERIFY(!(stack->itemAt(0)->flags() & Qt::ItemIsEditable));
    QVERIFY(stack->itemAt(0)->itemAt(0)->flags() & Qt::ItemIsEditable);
}

void TestMasterDetail::numberingRestartsAfterDeleteAll()
{
    TestMasterDetailTree dialog(nullptr);
    QPointer<QWidget> page = dialog.stackWidget()->itemAt(0)->page();
    clickButton(&dialog, "m_deleteAllBtn");
    QVERIFY(!page); // cleared pages are deleted
    QCOMPARE(dfsTexts(dialog.stackWidget()), QStringList());
    QCOMPARE(dialog.stackWidget()->count(), 0);
    QCOMPARE(child<QTreeWidget>(&dialog, "m_qtreeWidget")->topLevelItemCount(), 0);
    clickButton(&dialog, "m_addTopBtn");
    clickButton(&dialog, "m_addSubBtn");
    clickButton(&dialog, "m_addTopBtn");
    clickButton(&dialog, "m_addSubBtn");
    QCOMPARE(dfsTexts(dialog.stackWidget()), (QStringList{"Page 0", "Sub Page 0", "Page 1", "Sub Page 0"}));
    clickButton(&dialog, "m_initialSetup");
    QCOMPARE(dfsTexts(dialog.stackWidget()), initialTexts);
}

void TestMasterDetail::subSubItemOnEmptyStackCreatesUpperLevels()
{
    TestMasterDetailTree dialog(nullptr);
    clickButton(&dialog, "m_deleteAllBtn");
    clickButton(&dialog, "m_addSubSubBtn");
    const QStringList expected{"Page 0", "Sub Page 0", "Sub Sub Page 0"};
    QCOMPARE(dfsTexts(dialog.stackWidget()), expected);
    QCOMPARE(mirroredTexts(child<QTreeWidget>(&dialog, "m_qtreeWidget")), expected);
    QTreeWidget* mirror = child<QTreeWidget>(&dialog, "m_dragTreeWdg");
    QCOMPARE(mirror->topLevelItem(0)->child(0)->child(0)->text(0), QStringLiteral("Sub Sub Page 0"));
}

void TestMasterDetail::checkableItemsOnlyForNewPages()
{
    TestMasterDetailTree dialog(nullptr);
    VNControlledStackWidget* stack = dialog.stackWidget();
    child<QCheckBox>(&dialog, "m_checkableStateCB")->setChecked(true);
    QCOMPARE(stack->isCheckableItems(), VNControlledStackWidget::AllItem);
    QVERIFY(!stack->itemAt(0)->data(0, Qt::CheckStateRole).isValid());
    clickButton(&dialog, "m_addTopBtn");
    QCOMPARE(stack->itemAt(3)->checkState(0), Qt::Checked);
    child<QCheckBox>(&dialog, "m_checkableStateCB")->setChecked(false);
    QCOMPARE(stack->isCheckableItems(), VNControlledStackWidget::NoItem);
    QCOMPARE(stack->itemAt(3)->checkState(0), Qt::Checked);
    clickButton(&dialog, "m_addTopBtn");
    QVERIFY(!stack->itemAt(4)->data(0, Qt::CheckStateRole).isValid());
}

// Every page after "Symmetry Setup" in depth-first order, with its marker ("-" for none).
void TestMasterDetail::symmetrySetupMarkers()
{
    TestMasterDetailTree dialog(nullptr);
    clickButton(&dialog, "m_symmetrySetup");
    QStringList pages;
    for (int i = 0; VNControlledStackItem* item = dialog.stackWidget()->itemAtDFSIndex(i); ++i)
        pages << item->text() + (marker(item).isValid() ? QString::number(marker(item).toInt()) : QStringLiteral("-"));
    const QStringList expected{
        "Page 00",     "Page 11",     "Page 22",         "Page 3-",         "Sub Page 00",     "Sub Page 11",
        "Sub Page 22", "Page 4-",     "Sub Page 0-",     "Sub Sub Page 00", "Sub Sub Page 11", "Sub Sub Page 22",
        "Page 51",     "Sub Page 0-", "Sub Sub Page 0-", "Page 62",         "Sub Page 0-",     "Sub Sub Page 0-",
        "Page 7-",     "Sub Page 00", "Sub Sub Page 0-", "Page 80",         "Sub Page 01",     "Sub Page 12",
        "Page 9-",     "Sub Page 00", "Sub Sub Page 01", "Sub Sub Page 12"};
    QCOMPARE(pages, expected);
}

void TestMasterDetail::makeSymmetrical_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<QList<int>>("markers");
    QTest::newRow("one") << QList<int>{2} << QList<int>{0};
    QTest::newRow("two") << QList<int>{1, 2} << QList<int>{1, 2};
    QTest::newRow("three") << QList<int>{1, 2, 5} << QList<int>{1, 3, 2};
}

void TestMasterDetail::makeSymmetrical()
{
    QFETCH(QList<int>, selected);
    QFETCH(QList<int>, markers);
    TestMasterDetailTree dialog(nullptr);
    for (int index : selected)
        dialog.stackWidget()->itemAtDFSIndex(index)->setSelected(true);
    clickButton(&dialog, "m_symBtn");
    for (int i = 0; i < selected.size(); ++i)
        QCOMPARE(marker(dialog.stackWidget()->itemAtDFSIndex(selected.at(i))), QVariant(markers.at(i)));
    QVERIFY(!marker(dialog.stackWidget()->itemAtDFSIndex(0)).isValid());
}

void TestMasterDetail::selectionByDfsIndex()
{
    TestMasterDetailTree dialog(nullptr);
    auto* mirror = child<VNDragTreeWidget>(&dialog, "m_dragTreeWdg");
    mirror->itemAtDFSIndex(3)->setSelected(true);
    mirror->itemAtDFSIndex(7)->setSelected(true);
    clickButton(&dialog, "m_selectBtn");
    QStringList selected;
    for (QTreeWidgetItem* item : controllerTree(dialog)->selectedItems())
        selected << item->text(0);
    selected.sort();
    QCOMPARE(selected, (QStringList{"Page 2", "Sub Sub Page 0"}));
    QCOMPARE(dialog.stackWidget()->currentItem(), dialog.stackWidget()->itemAtDFSIndex(3));
    // Indexes past the end are left out; the first existing one becomes current.
    dialog.stackWidget()->setSelectedElementsByDfsIndex({99, 5, 1});
    QCOMPARE(controllerTree(dialog)->selectedItems().size(), 2);
    QCOMPARE(dialog.stackWidget()->currentItem(), dialog.stackWidget()->itemAtDFSIndex(5));
}

void TestMasterDetail::selectingShowsDetailPage()
{
    TestMasterDetailTree dialog(nullptr);
    VNControlledStackItem* item = dialog.stackWidget()->itemAtDFSIndex(4);
    controllerTree(dialog)->setCurrentItem(item);
    QWidget* page = dialog.stackWidget()->currentWidget();
    QCOMPARE(page, item->page());
    QCOMPARE(page->windowTitle(), QStringLiteral("Sub Sub Page 1"));
    auto* header = page->findChild<QLabel*>();
    QVERIFY(header);
    QCOMPARE(header->text(), QStringLiteral("Sub Sub Page 1"));
    QCOMPARE(header->property("detailheader").toBool(), true);
}

void TestMasterDetail::highlightFollowsCurrent()
{
    TestMasterDetailTree dialog(nullptr);
    VNControlledStackWidget* stack = dialog.stackWidget();
    auto highlighted = [stack](int dfs) {
        return stack->itemAtDFSIndex(dfs)->data(0, VNControlledStackItem::HighlightRole).toBool();
    };
    child<QCheckBox>(&dialog, "m_useHighlighting")->setChecked(true);
    controllerTree(dialog)->setCurrentItem(stack->itemAtDFSIndex(2));
    QVERIFY(highlighted(3));
    controllerTree(dialog)->setCurrentItem(stack->itemAtDFSIndex(6));
    QVERIFY(!highlighted(3));
    QVERIFY(highlighted(7));
    child<QCheckBox>(&dialog, "m_useHighlighting")->setChecked(false);
    controllerTree(dialog)->setCurrentItem(stack->itemAtDFSIndex(0));
    QVERIFY(!highlighted(7));
    QVERIFY(!highlighted(1));
}

void TestMasterDetail::colourBoxes()
{
    TestMasterDetailTree dialog(nullptr);
    VNControlledStackWidget* stack = dialog.stackWidget();
    auto box = [stack](int dfs) { return stack->itemAtDFSIndex(dfs)->data(0, VNControlledStackItem::ColorBoxRole); };
    child<QCheckBox>(&dialog, "m_colorBoxCB")->setChecked(true);
    QCOMPARE(box(0).value<QColor>(), QColor(255, 0, 0, 255));
    QCOMPARE(box(1).value<QColor>(), QColor(0, 0, 255, 255));
    QCOMPARE(box(3).value<QColor>(), QColor(0, 0, 255, 255));
    clickButton(&dialog, "m_addTopBtn");
    QCOMPARE(box(9).value<QColor>(), QColor(0, 0, 255, 255)); // new pages get blue
    child<QCheckBox>(&dialog, "m_colorBoxCB")->setChecked(false);
    for (int i = 0; i < 10; ++i)
        QVERIFY(!box(i).isValid());
}

void TestMasterDetail::iconRule_data()
{
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<int>("entry"); // of the icon combo box
    // Whether the first page, "Sub Sub Page 0" and the last page show the entry's icon (else none).
    QTest::addColumn<QList<bool>>("shown");
    QTest::newRow("sub pages only") << QStringList{"m_iconCB"} << 0 << QList<bool>{false, true, false};
    QTest::newRow("with top level") << QStringList{"m_includeTopLevelItemsCB", "m_iconCB", "m_addTopBtn"} << 1
                                    << QList<bool>{true, true, true};
    QTest::newRow("off again") << QStringList{"m_includeTopLevelItemsCB", "m_iconCB", "m_iconCB"} << 0
                               << QList<bool>{false, false, false};
    QTest::newRow("top level left alone")
        << QStringList{"m_includeTopLevelItemsCB", "m_iconCB", "m_includeTopLevelItemsCB", "m_iconCB"} << 0
        << QList<bool>{true, false, true};
}

void TestMasterDetail::iconRule()
{
    QFETCH(QStringList, clicks);
    QFETCH(int, entry);
    QFETCH(QList<bool>, shown);
    TestMasterDetailTree dialog(nullptr);
    auto* icons = child<QComboBox>(&dialog, "m_chooseIconCB");
    icons->setCurrentIndex(entry);
    for (const QString& name : clicks)
        clickButton(&dialog, name);
    VNControlledStackWidget* stack = dialog.stackWidget();
    const VNControlledStackItem* items[] = {stack->itemAt(0), stack->itemAtDFSIndex(3),
                                            stack->itemAt(stack->itemCount() - 1)};
    for (int i = 0; i < 3; ++i) {
        const QIcon icon = items[i]->icon(0);
        QCOMPARE(icon.isNull(), !shown.at(i));
        QCOMPARE(icon.cacheKey() == icons->itemIcon(entry).cacheKey(), shown.at(i));
    }
}

void TestMasterDetail::iconPlacement_data()
{
    QTest::addColumn<int>("alignment"); // entry of the alignment box
    QTest::addColumn<bool>("indentation");
    QTest::addColumn<int>("place"); // where the icon shows: -1 left of the row, 0 at its start, 1 at its end
    QTest::newRow("left") << 1 << false << 0;
    QTest::newRow("right") << 0 << false << 1;
    QTest::newRow("in indentation") << 1 << true << -1;
    QTest::newRow("in indentation wins over right") << 0 << true << -1;
}

// The first column where a sub page's row looks different with an icon tells where the icon went.
void TestMasterDetail::iconPlacement()
{
    QFETCH(int, alignment);
    QFETCH(bool, indentation);
    QFETCH(int, place);
    TestMasterDetailTree dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTreeWidget* tree = controllerTree(dialog);
    tree->expandAll();
    const QRect row = tree->visualItemRect(dialog.stackWidget()->itemAtDFSIndex(1));
    const QRect strip(0, row.top(), tree->viewport()->width(), row.height());
    const QImage plain = tree->viewport()->grab(strip).toImage();
    auto* indentationBox = child<QCheckBox>(&dialog, "m_leftIconInIndentationCB");
    QVERIFY(!indentationBox->isEnabled());
    clickButton(&dialog, "m_iconCB");
    QVERIFY(indentationBox->isEnabled());
    child<QComboBox>(&dialog, "m_alignmentCB")->setCurrentIndex(alignment);
    if (indentation)
        clickButton(&dialog, "m_leftIconInIndentationCB");
    const QImage image = tree->viewport()->grab(strip).toImage();
    int first = -1;
    for (int x = 0; x < image.width() && first < 0; ++x)
        for (int y = 0; y < image.height() && first < 0; ++y)
            first = image.pixel(x, y) != plain.pixel(x, y) ? x : -1;
    QVERIFY(first >= 0);
    const int found = first < row.left() ? -1 : first < row.left() + 24 ? 0 : 1;
    QCOMPARE(found, place);
}

void TestMasterDetail::multiselectionSwitchesEveryTree()
{
    TestMasterDetailTree dialog(nullptr);
    const QList<QAbstractItemView*> views{controllerTree(dialog), child<QTreeWidget>(&dialog, "m_qtreeWidget"),
                                          child<QTreeWidget>(&dialog, "m_dragTreeWdg")};
    for (const auto mode : {QAbstractItemView::SingleSelection, QAbstractItemView::ExtendedSelection}) {
        clickButton(&dialog, "m_multiselectionEnabled");
        for (QAbstractItemView* view : views)
            QCOMPARE(view->selectionMode(), mode);
    }
}

void TestMasterDetail::groupHeaderAndMarkersArePainted()
{
    TestMasterDetailTree dialog(nullptr);
    dialog.show();
    QTreeWidget* tree = controllerTree(dialog);
    VNControlledStackItem* page = dialog.stackWidget()->itemAt(1);
    const QRect row = tree->visualItemRect(page);
    const QPoint inside(row.right() - 30, row.center().y());
    QCOMPARE(tree->viewport()->grab().toImage().pixelColor(inside), QColor(Qt::white));
    child<QCheckBox>(&dialog, "m_showGroupHeader")->setChecked(true);
    QCOMPARE(tree->viewport()->grab().toImage().pixelColor(inside), QColor(0xe1, 0xe6, 0xec));
    page->setData(0, VNControlledStackItem::HighlightRole, true);
    QCOMPARE(tree->viewport()->grab().toImage().pixelColor(inside), QColor(0xff, 0xe8, 0x9c));
    clickButton(&dialog, "m_colorBoxCB"); // a red box at the start of the row
    QCOMPARE(tree->viewport()->grab().toImage().pixelColor(row.left() + 7, row.center().y()), QColor(Qt::red));

    page->setData(0, VNControlledStackItem::SymmetryMarkerRole, VNControlledStackItem::InnerItem);
    const QImage image = tree->viewport()->grab().toImage();
    bool bracket = false;
    for (int x = row.right() - 10; x <= row.right(); ++x)
        bracket = bracket || image.pixelColor(x, row.top() + 1) == QColor(0x2f, 0x6f, 0xb3);
    QVERIFY(bracket);
}

void TestMasterDetail::contextMenuNamesSelection()
{
    TestMasterDetailTree dialog(nullptr);
    dialog.show();
    QTreeWidget* tree = controllerTree(dialog);
    auto texts = [&](const QPoint& position) {
        QScopedPointer<QMenu> menu(dialog.controller()->createContextMenuAt(position));
        QStringList result;
        for (QAction* action : menu->actions())
            result << action->text();
        return result;
    };
    const QPoint onPage = tree->visualItemRect(dialog.stackWidget()->itemAt(0)).center();
    tree->itemAt(onPage)->setSelected(true);
    QCOMPARE(texts(onPage), (QStringList{"Expand All", "Collapse All", "single Selection"}));
    dialog.stackWidget()->itemAt(1)->setSelected(true);
    QCOMPARE(texts(onPage), (QStringList{"Expand All", "Collapse All", "multi selection"}));
    QCOMPARE(texts(QPoint(5, tree->viewport()->height() - 2)), (QStringList{"Expand All", "Collapse All"}));
    dialog.controller()->createCustomContextMenu(16, true, 1); // the handler's entries before the second
    QCOMPARE(texts(onPage), (QStringList{"Expand All", "multi selection", "Collapse All"}));
    dialog.controller()->createCustomContextMenu(16, false, -1);
    QCOMPARE(texts(onPage), QStringList{"multi selection"});
}

QTEST_MAIN(TestMasterDetail)
#include "tst_masterdetailtree.moc"
