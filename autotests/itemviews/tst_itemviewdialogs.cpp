#include "../TestSupport.h"
#include "ItemViewPayloads.h"
#include "TestDendrogramWidget.h"
#include "TestDragAndDrop.h"
#include "TestJoinsTable.h"
#include "TestTreeItemDelegate.h"
#include "TestTreeWidget.h"
#include "TestVNTableWidget.h"
#include "TestVNTreeView.h"

#include <VNCustomHeaderView.h>
#include <VNDendrogramWidget.h>
#include <VNDragAndDropManager.h>
#include <VNDragTreeWidget.h>
#include <VNItemDataRoles.h>
#include <VNStyleSheet.h>
#include <VNTableView.h>
#include <VNTableWidget.h>
#include <VNTreeView.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QMimeData>
#include <QPointer>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {
QMimeData* mime(const QString& format, const QByteArray& payload)
{
    auto* data = new QMimeData;
    data->setData(format, payload);
    return data;
}

QPoint rowCenter(QTreeWidget* tree, int row, int column = 0)
{
    return tree->visualRect(tree->model()->index(row, column)).center();
}

QByteArray streamed(std::function<void(QDataStream&)> write)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    write(stream);
    return data;
}

using Links = TestDendrogramWidget::Links;
} // namespace

class TestItemViewDialogs : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void tableSectionsNumberedAndCoded();
    void tableRemoveOnEmptyChangesNothing();

    void treeViewNumbersAndDropCopiesFirstText();
    void treeViewKeepsTargetModelAfterClose();

    void dragAndDropNumberingAndPlacement();

    void mouseDragCopiesRow();
    void mouseDragMovesJoin();
    void mouseDragDrawsDendrogramLink();
    void dendrogramColumnsAndDefaults();
    void dendrogramButtonsAcceptOnePastLast();
    void dendrogramDrops_data();
    void dendrogramDrops();

    void joinsRowsAndRadioPaths();
    void joinsActiveToggleAndHeaderSelection();
    void joinsDropTargets();

    void treeItemDelegateRows();
    void treeWidgetPropertiesOnFrames();

    void payloadReadersRefuseMalformed_data();
    void payloadReadersRefuseMalformed();

private:
    void mouseDrag(QDialog* dialog, VNDragAndDropManager* manager, QPoint start, QPoint end);
};

void TestItemViewDialogs::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestItemViewDialogs::tableSectionsNumberedAndCoded()
{
    TestVNTableWidget dialog(nullptr);
    auto* table = child<VNTableWidget>(&dialog, "m_vnTableWidget");
    QStandardItemModel* model = dialog.viewModel();
    QTest::mouseClick(child<QAbstractButton>(&dialog, "m_addColumnPB"), Qt::LeftButton);
    child<QAbstractButton>(&dialog, "m_colorCodingCB")->setChecked(true);
    child<QAbstractButton>(&dialog, "m_htmlHeaderCB")->setChecked(true);
    QTest::mousePress(child<QAbstractButton>(&dialog, "m_addColumnPB"), Qt::LeftButton);
    QTest::mousePress(child<QAbstractButton>(&dialog, "m_addRowPB"), Qt::LeftButton);
    QCOMPARE(table->horizontalHeaderItem(0)->text(), QStringLiteral("Column0"));
    QCOMPARE(table->horizontalHeaderItem(0)->data(VNItemDataRoles::StatusRole).toInt(), 0);
    QCOMPARE(table->horizontalHeaderItem(1)->text(), QStringLiteral("Column<sub>1</sub>"));
    QCOMPARE(table->horizontalHeaderItem(1)->data(VNItemDataRoles::StatusRole).toInt(), 2);
    QCOMPARE(table->verticalHeaderItem(0)->text(), QStringLiteral("Row<sub>0</sub>"));
    QCOMPARE(table->verticalHeaderItem(0)->data(VNItemDataRoles::StatusRole).toInt(), 32);
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Column<sub>1</sub>"));
    QCOMPARE(model->headerData(0, Qt::Vertical, VNItemDataRoles::StatusRole).toInt(), 32);
    QCOMPARE(model->headerData(0, Qt::Vertical, VNItemDataRoles::RichTextRole).toBool(), true);
    QVERIFY(qobject_cast<VNCustomHeaderView*>(child<VNTableView>(&dialog, "m_vnTableView")->verticalHeader()));
}

// Remove takes the last section from both tables; on empty tables it changes nothing.
void TestItemViewDialogs::tableRemoveOnEmptyChangesNothing()
{
    TestVNTableWidget dialog(nullptr);
    auto press = [&dialog](const char* name) {
        QTest::mousePress(child<QAbstractButton>(&dialog, name), Qt::LeftButton);
    };
    auto* table = child<VNTableWidget>(&dialog, "m_vnTableWidget");
    for (const char* name :
         {"m_addColumnPB", "m_addColumnPB", "m_addRowPB", "m_addRowPB", "m_removeColumnPB", "m_removeRowPB"})
        press(name);
    QCOMPARE(table->horizontalHeaderItem(table->columnCount() - 1)->text(), QStringLiteral("Column0"));
    QCOMPARE(dialog.viewModel()->headerData(dialog.viewModel()->rowCount() - 1, Qt::Vertical).toString(),
             QStringLiteral("Row0"));
    for (const char* name : {"m_removeColumnPB", "m_removeRowPB", "m_removeColumnPB", "m_removeRowPB"})
        press(name);
    QCOMPARE(dialog.viewModel()->columnCount() + dialog.viewModel()->rowCount(), 0);
    QCOMPARE(table->columnCount() + table->rowCount(), 0);
}

void TestItemViewDialogs::treeViewNumbersAndDropCopiesFirstText()
{
    TestVNTreeView dialog(nullptr);
    auto* add = child<QAbstractButton>(&dialog, "m_addItemButton");
    QTest::mousePress(add, Qt::LeftButton); // pressed, not clicked
    QTest::mouseRelease(add, Qt::LeftButton);
    QTest::mousePress(add, Qt::LeftButton);
    QStandardItemModel* source = dialog.sourceModel();
    QCOMPARE(source->item(0)->text(), QStringLiteral("Item 0"));
    QCOMPARE(source->item(1)->text(), QStringLiteral("Item 1"));
    QPixmap pixmap;
    std::unique_ptr<QMimeData> data(
        dialog.sourceView()->getDragAndDropManager()->prepareDrag({source->index(1, 0), source->index(0, 0)}, pixmap));
    QVERIFY(data);
    QVERIFY(dropOn(dialog.targetView(), data.get(), QPoint(10, 10)));
    QVERIFY(dropOn(dialog.targetView(), data.get(), QPoint(10, 10)));
    QCOMPARE(dialog.targetModel()->rowCount(), 2);
    QCOMPARE(dialog.targetModel()->item(1)->text(), QStringLiteral("Item 1"));
    QCOMPARE(source->rowCount(), 2);
    std::unique_ptr<QMimeData> other(mime("text/plain", "x"));
    QVERIFY(!dropOn(dialog.targetView(), other.get(), QPoint(10, 10)));
    std::unique_ptr<QMimeData> broken(mime("myMimeData", QByteArray::fromHex("0000ffff0041")));
    dropOn(dialog.targetView(), broken.get(), QPoint(10, 10));
    QCOMPARE(dialog.targetModel()->rowCount(), 2);
    // The source view takes no drops from other views.
    dialog.sourceView()->getDragAndDropManager()->finishDrag();
    QVERIFY(!dropOn(dialog.sourceView(), data.get(), QPoint(10, 10)));
}

void TestItemViewDialogs::dragAndDropNumberingAndPlacement()
{
    TestDragAndDrop dialog(nullptr);
    dialog.resize(400, 400);
    auto* initiator = child<VNDragTreeWidget>(&dialog, "m_initiatorTree");
    auto* target = child<VNDragTreeWidget>(&dialog, "m_targetTree");
    QCOMPARE(initiator->dragDropMode(), QAbstractItemView::DragOnly);
    for (int i = 0; i < 2; ++i) {
        QTest::mousePress(child<QAbstractButton>(&dialog, "m_addItemButton"), Qt::LeftButton);
        QTest::mouseRelease(child<QAbstractButton>(&dialog, "m_addItemButton"), Qt::LeftButton);
    }
    QCOMPARE(initiator->topLevelItemCount(), 2);
    QCOMPARE(initiator->topLevelItem(0)->text(0), QStringLiteral("item_2"));
    QCOMPARE(initiator->topLevelItem(1)->text(0), QStringLiteral("item_3"));
    initiator->topLevelItem(1)->setSelected(true);
    initiator->topLevelItem(0)->setSelected(true);
    QPixmap pixmap;
    std::unique_ptr<QMimeData> data(initiator->prepareDragOfSelection(pixmap));
    QVERIFY(data);
    dialog.show();
    QVERIFY(dropOn(target, data.get(), QPoint(10, 150)));
    QCOMPARE(target->topLevelItem(0)->text(0), QStringLiteral("item_2"));
    std::unique_ptr<QMimeData> second(mime("myMimeData", ItemViewPayloads::writeText(QStringLiteral("front"))));
    QVERIFY(dropOn(target, second.get(), rowCenter(target, 0)));
    QCOMPARE(target->topLevelItemCount(), 2);
    QCOMPARE(target->topLevelItem(0)->text(0), QStringLiteral("front"));
    QCOMPARE(initiator->topLevelItemCount(), 2);
    QVERIFY(!dropOn(initiator, second.get(), QPoint(10, 10)));
    initiator->finishDrag();
}

// A drag with the mouse through the platform's drag machinery: press on a point of the dialog,
// move while the button is held; the rest of the gesture, up to the release at the end point,
// happens while the drag runs its own event loop.
void TestItemViewDialogs::mouseDrag(QDialog* dialog, VNDragAndDropManager* manager, QPoint start, QPoint end)
{
    QWindow* window = dialog->windowHandle();
    auto finish = connect(
        manager, QOverload<QList<QTreeWidgetItem*>&, QMimeData&, QPixmap&>::of(&VNDragAndDropManager::sigPrepareDrag),
        this, [window, start, end, this]() {
            QTimer::singleShot(0, this, [window, start, end]() {
                for (int step = 1; step <= 10; ++step)
                    QTest::mouseMove(window, start + (end - start) * step / 10);
                QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, end);
            });
        });
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(window, start + QPoint(QApplication::startDragDistance() + 5, 0));
    QTest::mouseMove(window, start + QPoint(QApplication::startDragDistance() + 10, 2));
    disconnect(finish);
}

// The offscreen platform ends every drag at once; run these under a display server (xvfb-run).
void TestItemViewDialogs::mouseDragCopiesRow()
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        QSKIP("the offscreen platform runs no drags");
    TestDragAndDrop dialog(nullptr);
    dialog.resize(400, 400);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* initiator = child<VNDragTreeWidget>(&dialog, "m_initiatorTree");
    auto* target = child<VNDragTreeWidget>(&dialog, "m_targetTree");
    QTest::mousePress(child<QAbstractButton>(&dialog, "m_addItemButton"), Qt::LeftButton);
    mouseDrag(&dialog, initiator->getDragAndDropManager(),
              initiator->viewport()->mapTo(&dialog, rowCenter(initiator, 0)),
              target->viewport()->mapTo(&dialog, QPoint(30, 60)));
    QTRY_COMPARE(target->topLevelItemCount(), 1);
    QCOMPARE(target->topLevelItem(0)->text(0), QStringLiteral("item_2"));
    QCOMPARE(initiator->topLevelItemCount(), 1);
}

void TestItemViewDialogs::mouseDragMovesJoin()
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        QSKIP("the offscreen platform runs no drags");
    TestJoinsTable dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    VNDragTreeWidget* table = dialog.table();
    mouseDrag(&dialog, table->getDragAndDropManager(), table->viewport()->mapTo(&dialog, rowCenter(table, 5, 2)),
              table->viewport()->mapTo(&dialog, rowCenter(table, 1, 2)));
    QTRY_COMPARE(table->topLevelItem(1)->text(2), QStringLiteral("Join 6"));
    QCOMPARE(table->topLevelItemCount(), 10);
}

void TestItemViewDialogs::mouseDragDrawsDendrogramLink()
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        QSKIP("the offscreen platform runs no drags");
    TestDendrogramWidget dialog(nullptr);
    clickButton(&dialog, "m_addColumn");
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    Varnis::VNDendrogramWidget* dendrogram = dialog.dendrogram();
    QWidget* viewport = dendrogram->viewport();
    mouseDrag(&dialog, dendrogram->getDragAndDropManager(),
              viewport->mapTo(&dialog, rowCenter(dendrogram, 0, 0) - QPoint(40, 0)),
              viewport->mapTo(&dialog, rowCenter(dendrogram, 0, 2)));
    QTRY_COMPARE(dialog.itemToColumnLinks(), (Links{{2, 0}}));
}

void TestItemViewDialogs::dendrogramColumnsAndDefaults()
{
    TestDendrogramWidget dialog(nullptr);
    Varnis::VNDendrogramWidget* dendrogram = dialog.dendrogram();
    QCOMPARE(dendrogram->topLevelItem(0)->text(0), QStringLiteral("Component 1"));
    QVERIFY(dendrogram->topLevelItem(0)->flags() & Qt::ItemIsDragEnabled);
    clickButton(&dialog, "m_addColumn");
    clickButton(&dialog, "m_addColumn");
    QCOMPARE(dialog.headerLabels(), (QStringList{"Parts", "AO-10", "AO-20", "AO-30", ""}));
    QCOMPARE(dendrogram->header()->sectionSize(3), 40);
    QCOMPARE(dendrogram->headerItem()->data(2, VNItemDataRoles::ReadOnlyRole).toBool(), true);
    clickButton(&dialog, "m_addItem");
    QCOMPARE(dendrogram->topLevelItem(1)->text(0), QStringLiteral("Component 2"));
    // The links of a deleted row stay, in the dialog and in the widget.
    child<QDoubleSpinBox>(&dialog, "m_itemDoubleSpinBox")->setValue(1);
    child<QDoubleSpinBox>(&dialog, "m_columnDoubleSpinBox")->setValue(2);
    clickButton(&dialog, "m_addColumnColumnToModel");
    clickButton(&dialog, "m_deleteLastItem");
    QCOMPARE(dendrogram->topLevelItemCount(), 1);
    QCOMPARE(dialog.itemToColumnLinks(), (Links{{2, 1}}));
    QCOMPARE(dendrogram->dendrogramModel()->itemToColumn, (Links{{2, 1}}));
    clickButton(&dialog, "m_backToDefault");
    clickButton(&dialog, "m_addColumn");
    QCOMPARE(dialog.headerLabels().at(2), QStringLiteral("AO-20"));
    QCOMPARE(dendrogram->topLevelItemCount(), 1);
    clickButton(&dialog, "m_deleteLastItem");
    clickButton(&dialog, "m_deleteLastItem");
    QCOMPARE(dendrogram->topLevelItemCount(), 0);
}

void TestItemViewDialogs::dendrogramButtonsAcceptOnePastLast()
{
    TestDendrogramWidget dialog(nullptr);
    child<QDoubleSpinBox>(&dialog, "m_itemDoubleSpinBox")->setValue(1);   // == row count
    child<QDoubleSpinBox>(&dialog, "m_columnDoubleSpinBox")->setValue(3); // == column count
    clickButton(&dialog, "m_addColumnColumnToModel");
    QCOMPARE(dialog.itemToColumnLinks(), (Links{{3, 1}}));
    child<QDoubleSpinBox>(&dialog, "m_columnDoubleSpinBox")->setValue(4);
    clickButton(&dialog, "m_addColumnColumnToModel");
    QCOMPARE(dialog.itemToColumnLinks().size(), size_t(1));
    child<QDoubleSpinBox>(&dialog, "m_startColumnDoubleSpinBox")->setValue(1);
    child<QDoubleSpinBox>(&dialog, "m_endColumnDoubleSpinBox")->setValue(3);
    clickButton(&dialog, "m_addItemColumnToModel");
    QCOMPARE(dialog.columnToColumnLinks(), (Links{{1, 3}}));
    QCOMPARE(dialog.dendrogram()->dendrogramModel()->columnToColumn, (Links{{1, 3}}));
    clickButton(&dialog, "m_backToDefault");
    QVERIFY(dialog.dendrogram()->dendrogramModel()->itemToColumn.empty());
}

void TestItemViewDialogs::dendrogramDrops_data()
{
    QTest::addColumn<int>("dragRow");
    QTest::addColumn<int>("dragColumn");
    QTest::addColumn<int>("dropRow");
    QTest::addColumn<int>("dropColumn");
    QTest::addColumn<Links>("presetItemLinks");
    QTest::addColumn<Links>("presetColumnLinks");
    QTest::addColumn<Links>("itemLinks");
    QTest::addColumn<Links>("columnLinks");
    QTest::addColumn<bool>("accepted");
    // Columns: 0 Parts, 1 AO-10, 2 AO-20, 3 AO-30, 4 trailing.
    QTest::newRow("name to column") << 1 << 0 << 1 << 2 << Links{} << Links{} << Links{{2, 1}} << Links{} << true;
    QTest::newRow("name to trailing") << 1 << 0 << 1 << 4 << Links{} << Links{} << Links{} << Links{} << false;
    QTest::newRow("other row") << 0 << 0 << 1 << 2 << Links{} << Links{} << Links{} << Links{} << true;
    QTest::newRow("column to column") << 1 << 1 << 1 << 3 << Links{{1, 1}} << Links{} << Links{{1, 1}} << Links{{1, 3}}
                                      << true;
    QTest::newRow("chain from end") << 0 << 2 << 0 << 3 << Links{} << Links{{1, 2}} << Links{} << Links{{1, 2}, {2, 3}}
                                    << true;
    QTest::newRow("leftwards") << 1 << 3 << 1 << 2 << Links{{3, 1}} << Links{} << Links{{3, 1}} << Links{} << false;
    QTest::newRow("no link in column") << 1 << 1 << 1 << 2 << Links{} << Links{} << Links{} << Links{} << false;
}

void TestItemViewDialogs::dendrogramDrops()
{
    QFETCH(int, dragRow);
    QFETCH(int, dragColumn);
    QFETCH(int, dropRow);
    QFETCH(int, dropColumn);
    QFETCH(Links, presetItemLinks);
    QFETCH(Links, presetColumnLinks);
    QFETCH(Links, itemLinks);
    QFETCH(Links, columnLinks);
    QFETCH(bool, accepted);
    TestDendrogramWidget dialog(nullptr);
    clickButton(&dialog, "m_addItem");
    clickButton(&dialog, "m_addColumn");
    clickButton(&dialog, "m_addColumn");
    auto setSpin = [&dialog](const char* name, int value) { child<QDoubleSpinBox>(&dialog, name)->setValue(value); };
    for (const auto& link : presetItemLinks) {
        setSpin("m_columnDoubleSpinBox", link.first);
        setSpin("m_itemDoubleSpinBox", link.second);
        clickButton(&dialog, "m_addColumnColumnToModel");
    }
    for (const auto& link : presetColumnLinks) {
        setSpin("m_startColumnDoubleSpinBox", link.first);
        setSpin("m_endColumnDoubleSpinBox", link.second);
        clickButton(&dialog, "m_addItemColumnToModel");
    }
    dialog.resize(1000, 500);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    Varnis::VNDendrogramWidget* dendrogram = dialog.dendrogram();
    dendrogram->topLevelItem(dragRow)->setSelected(true);
    QCursor::setPos(dendrogram->viewport()->mapToGlobal(rowCenter(dendrogram, dragRow, dragColumn)));
    QPixmap pixmap;
    std::unique_ptr<QMimeData> data(dendrogram->prepareDragOfSelection(pixmap));
    QVERIFY(data);
    const bool dropAccepted = dropOn(dendrogram, data.get(), rowCenter(dendrogram, dropRow, dropColumn));
    dendrogram->finishDrag();
    QCOMPARE(dialog.itemToColumnLinks(), itemLinks);
    QCOMPARE(dialog.columnToColumnLinks(), columnLinks);
    // A drop onto another row returns before deciding, so it stays accepted but adds nothing.
    QCOMPARE(dropAccepted, accepted);
}

void TestItemViewDialogs::joinsRowsAndRadioPaths()
{
    TestJoinsTable dialog(nullptr);
    VNDragTreeWidget* table = dialog.table();
    QCOMPARE(table->topLevelItemCount(), 10);
    for (int i = 1; i <= 10; ++i) {
        QTreeWidgetItem* item = table->topLevelItem(i - 1);
        QCOMPARE(item->text(1), QStringLiteral("%1.").arg(i));
        QCOMPARE(item->text(2), QStringLiteral("Join %1").arg(i));
        QCOMPARE(item->checkState(0), Qt::Checked);
        const int path = (i - 1) % 3;
        for (int k = 0; k < 3; ++k)
            QCOMPARE(item->checkState(3 + k), k == path ? Qt::Checked : Qt::Unchecked);
    }
    QCOMPARE(TestJoinsTable::pathColor(1), QColor(0, 213, 255));
    QCOMPARE(TestJoinsTable::pathColor(7), QColor(170, 0, 255));
    QCOMPARE(TestJoinsTable::pathColor(8), QColor(107, 126, 153));
    QCOMPARE(table->header()->sectionSize(0), 35);
    QVERIFY(dialog.customHeader()->isSelectable(4));
    QVERIFY(!dialog.customHeader()->isSelectable(2));

    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    // Clicking path 3 of row 1 makes it the row's only path, like a radio button.
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, rowCenter(table, 0, 5));
    QCOMPARE(table->topLevelItem(0)->checkState(5), Qt::Checked);
    QCOMPARE(table->topLevelItem(0)->checkState(3), Qt::Unchecked);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, rowCenter(table, 0, 5));
    QCOMPARE(table->topLevelItem(0)->checkState(5), Qt::Checked);
    child<QAbstractButton>(&dialog, "m_enabled")->click();
    QVERIFY(!table->isEnabled());
}

void TestItemViewDialogs::joinsActiveToggleAndHeaderSelection()
{
    TestJoinsTable dialog(nullptr);
    VNDragTreeWidget* table = dialog.table();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, rowCenter(table, 1, 0));
    QCOMPARE(table->topLevelItem(1)->checkState(0), Qt::Unchecked);
    for (int column = 1; column <= 5; ++column)
        QCOMPARE(table->topLevelItem(1)->data(column, VNItemDataRoles::ActiveRole), QVariant(false));
    QVERIFY(!table->topLevelItem(0)->data(1, VNItemDataRoles::ActiveRole).isValid());

    // Header click on "Path 2": rows 2, 5, 8 are selected, and they mark only that header.
    QTRY_VERIFY(table->topLevelItem(7)->data(4, Qt::EditRole).toBool());
    QHeaderView* header = table->header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header->sectionViewportPosition(4) + 5, header->height() / 2));
    QList<int> selectedRows;
    for (QTreeWidgetItem* item : table->selectedItems())
        selectedRows.append(table->indexOfTopLevelItem(item));
    std::sort(selectedRows.begin(), selectedRows.end());
    QCOMPARE(selectedRows, (QList<int>{1, 4, 7}));
    QCOMPARE(dialog.customHeader()->selectedSections(), QList<int>{4});
    table->topLevelItem(0)->setSelected(true);
    QCOMPARE(dialog.customHeader()->selectedSections(), (QList<int>{4, 3}));
}

void TestItemViewDialogs::joinsDropTargets()
{
    TestJoinsTable dialog(nullptr);
    VNDragTreeWidget* table = dialog.table();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    table->topLevelItem(4)->setSelected(true);
    QPixmap pixmap;
    std::unique_ptr<QMimeData> data(table->prepareDragOfSelection(pixmap));
    QVERIFY(data);
    QCOMPARE(ItemViewPayloads::readFirstComponent(data->data("application/ap-component")), 4);
    QCOMPARE(moveAction(table, data.get(), rowCenter(table, 4, 2)), Qt::IgnoreAction);
    QCOMPARE(moveAction(table, data.get(), QPoint(20, table->viewport()->height() - 5)), Qt::IgnoreAction);
    std::unique_ptr<QMimeData> foreign(mime("text/plain", "4"));
    QCOMPARE(moveAction(table, foreign.get(), rowCenter(table, 1, 2)), Qt::IgnoreAction);
    std::unique_ptr<QMimeData> negative(
        mime("application/ap-component", streamed([](QDataStream& s) { s << qint32(-1) << qint32(2); })));
    QCOMPARE(moveAction(table, negative.get(), rowCenter(table, 1, 2)), Qt::IgnoreAction);
    QVERIFY(dropOn(table, data.get(), rowCenter(table, 1, 2)));
    table->finishDrag();
    QCOMPARE(table->topLevelItem(1)->text(2), QStringLiteral("Join 5"));
    QCOMPARE(table->topLevelItem(2)->text(2), QStringLiteral("Join 2"));
    QCOMPARE(table->topLevelItemCount(), 10);
}

// Only the source model goes with the dialog; the target model, with its dropped rows, stays.
void TestItemViewDialogs::treeViewKeepsTargetModelAfterClose()
{
    auto* dialog = new TestVNTreeView(nullptr);
    QPointer<QStandardItemModel> source = dialog->sourceModel();
    QPointer<QStandardItemModel> target = dialog->targetModel();
    delete dialog;
    QTRY_VERIFY(source.isNull());
    QVERIFY(!target.isNull());
}

void TestItemViewDialogs::treeItemDelegateRows()
{
    TestTreeItemDelegate dialog(nullptr);
    VNDragTreeWidget* tree = dialog.tree();
    QTreeWidgetItem* parent1 = tree->topLevelItem(0);
    QVERIFY(parent1->isExpanded());
    QVERIFY(!(parent1->flags() & Qt::ItemIsSelectable));
    QVERIFY(parent1->flags() & Qt::ItemIsAutoTristate);
    const QStringList texts{"Child 1", "Sub Child 1", "Sub Child 2", "Child 2"};
    const QList<int> lines{2, 6, 7, 3};
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(parent1->child(i)->text(1), texts.at(i));
        QCOMPARE(parent1->child(i)->data(1, VNItemDataRoles::TreeLineRole).toInt(), lines.at(i));
        QCOMPARE(bool(parent1->child(i)->flags() & Qt::ItemIsEditable), i == 1 || i == 2);
    }
    QCOMPARE(tree->topLevelItem(1)->childCount(), 2);
    parent1->child(0)->setCheckState(0, Qt::Checked);
    QCOMPARE(parent1->checkState(0), Qt::PartiallyChecked);
    auto* header = qobject_cast<VNCustomHeaderView*>(tree->header());
    QCOMPARE(header->checkBoxState(), Qt::PartiallyChecked);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, header->checkBoxRect().center());
    QCOMPARE(parent1->child(3)->checkState(0), Qt::Checked);
    QCOMPARE(tree->topLevelItem(1)->child(1)->checkState(0), Qt::Checked);
}

void TestItemViewDialogs::treeWidgetPropertiesOnFrames()
{
    qApp->setStyleSheet(VNStyleSheet::styleSheet());
    TestTreeWidget dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* frame = child<QFrame>(&dialog, "m_frame3");
    auto* inner = child<QWidget>(&dialog, "m_vnDragTreeWidgetWithFrameNoHeader");
    const QImage before = frame->grab().toImage();
    child<QRadioButton>(&dialog, "m_fullWidthRB")->click();
    QCOMPARE(frame->property("fullWidth").toBool(), true);
    QCOMPARE(frame->property("fullRightSide").toBool(), false);
    QVERIFY(!inner->property("fullWidth").isValid());
    QCOMPARE(child<QWidget>(&dialog, "m_vnDragTreeWidget")->property("fullWidth").toBool(), true);
    QVERIFY(frame->grab().toImage() != before);
    child<QRadioButton>(&dialog, "m_fullRightSideRB")->click();
    QCOMPARE(frame->property("fullRightSide").toBool(), true);
    QCOMPARE(frame->property("fullWidth").toBool(), false);
    child<QRadioButton>(&dialog, "m_noPropertyRB")->click();
    QVERIFY(frame->property("fullRightSide").isValid());
    QCOMPARE(frame->property("fullRightSide").toBool(), false);
    qApp->setStyleSheet(QString());
}

void TestItemViewDialogs::payloadReadersRefuseMalformed_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("text");
    QTest::addColumn<int>("contentTexts");
    QTest::addColumn<int>("component");
    const QByteArray good = ItemViewPayloads::writeDragContent(3, {"a", "b"});
    QTest::newRow("empty") << QByteArray() << false << 0 << -1;
    QTest::newRow("valid content") << good << false << 2 << 2;
    QTest::newRow("truncated content") << good.left(good.size() - 1) << false << 0 << 2;
    QTest::newRow("negative count") << streamed([](QDataStream& s) { s << qint32(1) << qint32(-5) << QPoint(); })
                                    << false << 0 << -1;
    QTest::newRow("oversized count") << streamed([](QDataStream& s) { s << qint32(0x7fffffff) << qint32(9); }) << false
                                     << 0 << -1;
    QTest::newRow("huge string") << QByteArray::fromHex("7ffffff0") << false << 0 << -1;
    QTest::newRow("valid text") << ItemViewPayloads::writeText(QStringLiteral("x")) << true << 0 << -1;
    QTest::newRow("valid components") << ItemViewPayloads::writeComponents({7, 1}) << true << 0 << 7;
}

void TestItemViewDialogs::payloadReadersRefuseMalformed()
{
    QFETCH(QByteArray, data);
    QFETCH(bool, text);
    QFETCH(int, contentTexts);
    QFETCH(int, component);
    QString read;
    QCOMPARE(ItemViewPayloads::readText(data, read), text);
    QCOMPARE(ItemViewPayloads::readDragContent(data).texts.size(), contentTexts);
    QCOMPARE(ItemViewPayloads::readFirstComponent(data), component);
}

QTEST_MAIN(TestItemViewDialogs)
#include "tst_itemviewdialogs.moc"
