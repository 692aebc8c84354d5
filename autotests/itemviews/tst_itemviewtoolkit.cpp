#include "../TestSupport.h"
#include <IconToggleDelegate.h>
#include <VNCustomHeaderView.h>
#include <VNDendrogramWidget.h>
#include <VNDragAndDropManager.h>
#include <VNDragTreeWidget.h>
#include <VNItemDataRoles.h>
#include <VNItemDelegate.h>
#include <VNStatusPalette.h>
#include <VNTreeView.h>

#include <QApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

namespace {
const QColor userEditBlue = VNStatusPalette::markColor(VNWidgetStatus::userEdit);
const QColor needInputRed = VNStatusPalette::markColor(VNWidgetStatus::needInput);

int countPixels(const QImage& image, const QRect& area, const QColor& color)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    return count;
}
} // namespace

class TestItemViewToolkit : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void headerColourBand_data();
    void headerColourBand();
    void headerRichTextDrawsSubscript();
    void headerSelection();
    void headerCheckBoxFollowsRows();
    void dfsIndexesFollowDepthFirstOrder();
    void receiverDecidesDropAction();
    void moveOnDropReordersRows();
    void prepareDragFillsMimeData();
    void dendrogramPaintsLinks();
    void dendrogramIgnoresBrokenLinks();
    void delegateDrawsStatusAndTreeLines();
    void iconToggleFlipsAndMirrorsState();
};

void TestItemViewToolkit::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestItemViewToolkit::headerColourBand_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("status");
    QTest::addColumn<QColor>("band");
    QTest::newRow("column userEdit") << int(Qt::Horizontal) << 2 << userEditBlue;
    QTest::newRow("row needInput") << int(Qt::Vertical) << 32 << needInputRed;
    QTest::newRow("none") << int(Qt::Horizontal) << 0 << QColor();
}

void TestItemViewToolkit::headerColourBand()
{
    QFETCH(int, orientation);
    QFETCH(int, status);
    QFETCH(QColor, band);
    QStandardItemModel model(2, 2);
    model.setHeaderData(0, Qt::Orientation(orientation), status, VNItemDataRoles::StatusRole);
    auto header = std::make_unique<VNCustomHeaderView>(Qt::Orientation(orientation), QSize(0, 0), nullptr);
    header->setModel(&model);
    header->resize(200, 200);
    header->show();
    const QImage image = header->grab().toImage();
    const QRect section = orientation == Qt::Horizontal ? QRect(0, 0, header->sectionSize(0), header->height())
                                                        : QRect(0, 0, header->width(), header->sectionSize(0));
    if (band.isValid())
        QVERIFY(countPixels(image, section, band) > 20);
    else {
        QCOMPARE(countPixels(image, section, userEditBlue), 0);
        QCOMPARE(countPixels(image, section, needInputRed), 0);
    }
}

void TestItemViewToolkit::headerRichTextDrawsSubscript()
{
    // The same word plain and as "Column<sub>0</sub>": the subscript sits lower, so the ink of the
    // rich title reaches further down than the ink of the plain one.
    QStandardItemModel model(1, 2);
    model.setHeaderData(0, Qt::Horizontal, QStringLiteral("Column0"), Qt::EditRole);
    model.setHeaderData(1, Qt::Horizontal, QStringLiteral("Column<sub>0</sub>"), Qt::EditRole);
    model.setHeaderData(1, Qt::Horizontal, true, VNItemDataRoles::RichTextRole);
    VNCustomHeaderView header(Qt::Horizontal, QSize(0, 0));
    header.setModel(&model);
    header.resize(300, 40);
    header.resizeSection(0, 120);
    header.resizeSection(1, 120);
    const QImage image = header.grab().toImage();
    auto lowestInk = [&image](int left, int right) {
        int lowest = -1;
        for (int y = 0; y < image.height() - 4; ++y)
            for (int x = left; x < right; ++x)
                lowest = qGray(image.pixel(x, y)) < 100 ? y : lowest;
        return lowest;
    };
    const int plainBottom = lowestInk(2, 118);
    QVERIFY(plainBottom > 0);
    QVERIFY(lowestInk(122, 238) > plainBottom);
}

void TestItemViewToolkit::headerSelection()
{
    QStandardItemModel model(1, 4);
    model.setHeaderData(0, Qt::Horizontal, QStringLiteral("A section title wider than the minimum"));
    model.setHeaderData(3, Qt::Horizontal, true, VNItemDataRoles::ReadOnlyRole);
    VNCustomHeaderView header(Qt::Horizontal, QSize(4, 0));
    header.setModel(&model);
    header.setSelectable(true, 1);
    header.setSelectable(true, 2);
    header.setSelectable(true, 3);
    header.setSelectedIndexes({0, 2, 3, 2});
    QCOMPARE(header.selectedSections(), QList<int>{2});
    header.resize(400, 30);
    const QImage image = header.grab().toImage();
    const int section2 = header.sectionViewportPosition(2);
    const int section1 = header.sectionViewportPosition(1);
    QVERIFY(countPixels(image, QRect(section2, 0, header.sectionSize(2), 30), QColor(0xcf, 0xe2, 0xf7)) > 100);
    QCOMPARE(countPixels(image, QRect(section1, 0, header.sectionSize(1), 30), QColor(0xcf, 0xe2, 0xf7)), 0);
    header.setSelectable(false, 2); // no longer selectable: no longer selected either
    QCOMPARE(header.selectedSections(), QList<int>{});
    header.setSelectable(true, 2);
    QCOMPARE(header.selectedSections(), QList<int>{});
    // The padding argument widens every section by its width, a "?" button by its 14 pixels and a gap.
    VNCustomHeaderView plain(Qt::Horizontal, QSize(0, 0));
    plain.setModel(&model);
    QCOMPARE(header.sectionSizeHint(0) - plain.sectionSizeHint(0), 4);
    header.setToolTipButtonText(1, QStringLiteral("tip"));
    QCOMPARE(header.sectionSizeHint(1) - plain.sectionSizeHint(1), 4 + 14 + 4);
    QSignalSpy tipClicked(&header, &VNCustomHeaderView::toolTipButtonClicked);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, header.toolTipButtonRect(1).center());
    QCOMPARE(tipClicked.count(), 1);
    QCOMPARE(tipClicked.first().first().toInt(), 1);
}

void TestItemViewToolkit::headerCheckBoxFollowsRows()
{
    VNDragTreeWidget tree;
    for (int i = 0; i < 2; ++i) {
        auto* item = new QTreeWidgetItem(&tree);
        item->setCheckState(0, Qt::Unchecked);
    }
    tree.useCheckStateHeader(0, Qt::AlignRight | Qt::AlignVCenter);
    auto* header = qobject_cast<VNCustomHeaderView*>(tree.header());
    QVERIFY(header);
    QCOMPARE(header->checkBoxState(), Qt::Unchecked);
    tree.topLevelItem(0)->setCheckState(0, Qt::PartiallyChecked);
    QCOMPARE(header->checkBoxState(), Qt::PartiallyChecked);
    tree.topLevelItem(0)->setCheckState(0, Qt::Checked);
    QCOMPARE(header->checkBoxState(), Qt::PartiallyChecked);
    tree.resize(300, 200);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    QVERIFY(header->checkBoxRect().center().x() > header->sectionSize(0) / 2);
    // A click beside the box changes nothing; on a partly checked box it checks every row, then
    // unchecks them.
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(4, header->height() / 2));
    QCOMPARE(tree.topLevelItem(1)->checkState(0), Qt::Unchecked);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, header->checkBoxRect().center());
    QCOMPARE(tree.topLevelItem(1)->checkState(0), Qt::Checked);
    QCOMPARE(header->checkBoxState(), Qt::Checked);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, header->checkBoxRect().center());
    QCOMPARE(tree.topLevelItem(0)->checkState(0), Qt::Unchecked);
    QCOMPARE(header->checkBoxState(), Qt::Unchecked);
}

void TestItemViewToolkit::dfsIndexesFollowDepthFirstOrder()
{
    VNDragTreeWidget tree;
    auto* a = new QTreeWidgetItem(&tree);
    auto* a1 = new QTreeWidgetItem(a);
    auto* a1x = new QTreeWidgetItem(a1);
    auto* a2 = new QTreeWidgetItem(a);
    auto* b = new QTreeWidgetItem(&tree);
    QCOMPARE(tree.getDFSIndex(a), 0);
    QCOMPARE(tree.getDFSIndex(a1), 1);
    QCOMPARE(tree.getDFSIndex(a1x), 2);
    QCOMPARE(tree.getDFSIndex(a2), 3);
    QCOMPARE(tree.getDFSIndex(b), 4);
    QCOMPARE(tree.getDFSIndex(nullptr), -1);
    const QTreeWidgetItem foreign;
    QCOMPARE(tree.getDFSIndex(&foreign), -1);
    tree.insertTopLevelItem(0, new QTreeWidgetItem);
    QCOMPARE(tree.getDFSIndex(b), 5);
    delete a1;
    QCOMPARE(tree.getDFSIndex(a2), 2);
    QCOMPARE(tree.itemAtDFSIndex(3), b);
}

void TestItemViewToolkit::receiverDecidesDropAction()
{
    VNDragTreeWidget tree;
    tree.resize(200, 200);
    new QTreeWidgetItem(&tree, {QStringLiteral("row")});
    VNDragAndDropManager* manager = tree.getDragAndDropManager();
    manager->addAcceptedFormat(QStringLiteral("f"));
    QList<QTreeWidgetItem*> targets;
    connect(manager, &VNDragAndDropManager::sigDropTargetChanged, this,
            [&targets](QTreeWidgetItem* target, QTreeWidgetItem*, QDragMoveEvent* event) {
                targets.append(target);
                event->setDropAction(target ? Qt::MoveAction : Qt::IgnoreAction);
            });
    QMimeData data;
    data.setData(QStringLiteral("f"), "x");
    const QPoint onRow = tree.visualItemRect(tree.topLevelItem(0)).center();
    const QImage idle = tree.viewport()->grab().toImage();
    moveAction(&tree, &data, onRow);
    QCOMPARE(tree.viewport()->grab().toImage(), idle);
    manager->m_highlightDropTarget = true; // the row under the drag is framed until the drop
    moveAction(&tree, &data, onRow);
    QVERIFY(tree.viewport()->grab().toImage() != idle);
    QVERIFY(dropOn(&tree, &data, onRow));
    QCOMPARE(tree.viewport()->grab().toImage(), idle);
    QCOMPARE(targets.first(), tree.topLevelItem(0));
    QVERIFY(!dropOn(&tree, &data, QPoint(10, 150)));
    QCOMPARE(targets.last(), nullptr);
}

void TestItemViewToolkit::moveOnDropReordersRows()
{
    VNDragTreeWidget tree;
    tree.resize(200, 300);
    for (const char* text : {"a", "b", "c"})
        new QTreeWidgetItem(&tree, {QString::fromLatin1(text)});
    tree.m_moveItemsOnDrop = true;
    VNDragAndDropManager* manager = tree.getDragAndDropManager();
    manager->addAcceptedFormat(QStringLiteral("f"));
    connect(manager,
            QOverload<QList<QTreeWidgetItem*>&, QMimeData&, QPixmap&>::of(&VNDragAndDropManager::sigPrepareDrag), this,
            [](QList<QTreeWidgetItem*>&, QMimeData& mimeData, QPixmap&) { mimeData.setData("f", "x"); });
    connect(manager, &VNDragAndDropManager::sigDropTargetChanged, this,
            [](QTreeWidgetItem*, QTreeWidgetItem*, QDragMoveEvent* event) { event->setDropAction(Qt::MoveAction); });
    tree.topLevelItem(2)->setSelected(true);
    QPixmap pixmap;
    std::unique_ptr<QMimeData> data(tree.prepareDragOfSelection(pixmap));
    QVERIFY(data);
    dropOn(&tree, data.get(), tree.visualItemRect(tree.topLevelItem(0)).center());
    tree.finishDrag();
    QCOMPARE(tree.topLevelItem(0)->text(0), QStringLiteral("c"));
    QCOMPARE(tree.topLevelItem(1)->text(0), QStringLiteral("a"));
    // Dropped onto itself, a row stays where it is.
    data.reset(tree.prepareDragOfSelection(pixmap));
    dropOn(&tree, data.get(), tree.visualItemRect(tree.topLevelItem(0)).center());
    tree.finishDrag();
    QCOMPARE(tree.topLevelItemCount(), 3);
    QCOMPARE(tree.topLevelItem(0)->text(0), QStringLiteral("c"));
}

void TestItemViewToolkit::prepareDragFillsMimeData()
{
    VNTreeView view;
    QStandardItemModel model;
    QModelIndexList rows;
    for (int row = 0; row < 8; ++row) {
        model.appendRow(new QStandardItem(QStringLiteral("row")));
        rows.append(model.index(row, 0));
    }
    view.setModel(&model);
    view.resize(200, 400);
    VNDragAndDropManager* manager = view.getDragAndDropManager();
    QPixmap pixmap;
    // Nobody fills the data: no drag.
    QVERIFY(!manager->prepareDrag(QModelIndexList{model.index(0, 0)}, pixmap));
    connect(manager, QOverload<const QModelIndexList, QMimeData&, QPixmap&>::of(&VNDragAndDropManager::sigPrepareDrag),
            this, [](const QModelIndexList indexes, QMimeData& mimeData, QPixmap&) {
                mimeData.setData("f", indexes.first().data().toByteArray());
            });
    std::unique_ptr<QMimeData> data(manager->prepareDrag(rows, pixmap));
    QVERIFY(data);
    QCOMPARE(data->data("f"), QByteArray("row"));
    // The picture shows the first five of the eight rows.
    QCOMPARE(pixmap.height(), 5 * view.visualRect(rows.first()).height());
    manager->finishDrag();
    manager->m_createDragPixmap = false;
    data.reset(manager->prepareDrag(rows, pixmap));
    QVERIFY(pixmap.isNull());
    manager->finishDrag();
}

void TestItemViewToolkit::dendrogramPaintsLinks()
{
    Varnis::VNDendrogramWidget dendrogram;
    dendrogram.setHeaderLabels({"Parts", "AO-10", "AO-20", ""});
    for (int i = 0; i < 3; ++i)
        new QTreeWidgetItem(&dendrogram, {QStringLiteral("C%1").arg(i)});
    dendrogram.resize(400, 200);
    dendrogram.header()->resizeSection(1, 40);
    dendrogram.header()->resizeSection(2, 40);
    const QColor link(0x2f, 0x6d, 0xb5);
    auto linkPixels = [&]() {
        return countPixels(dendrogram.viewport()->grab().toImage(), dendrogram.viewport()->rect(), link);
    };
    QCOMPARE(linkPixels(), 0);
    auto model = std::make_shared<Varnis::VNDendrogramWidget::DendrogramModel>();
    model->itemToColumn = {{1, 0}, {1, 1}};
    dendrogram.setDendrogramModel(model);
    const QPoint mark = dendrogram.linkMarkPosition(1, 1);
    QVERIFY(!mark.isNull());
    QImage image = dendrogram.viewport()->grab().toImage();
    QCOMPARE(image.pixelColor(mark), link);
    const int withMarks = linkPixels();
    model = std::make_shared<Varnis::VNDendrogramWidget::DendrogramModel>(*model);
    model->columnToColumn = {{1, 2}};
    dendrogram.setDendrogramModel(model);
    QVERIFY(linkPixels() > withMarks + 20);
    const QImage joined = dendrogram.viewport()->grab().toImage();
    QCOMPARE(joined.pixelColor(dendrogram.linkMarkPosition(2, 1)), link);
    // The connector runs on the lowest mark's line from the start column to the end column.
    const QPoint onConnector = mark + QPoint(10, 0);
    QVERIFY(joined.pixelColor(onConnector) != image.pixelColor(onConnector));
}

void TestItemViewToolkit::dendrogramIgnoresBrokenLinks()
{
    Varnis::VNDendrogramWidget dendrogram;
    dendrogram.setHeaderLabels({"Parts", "AO-10", ""});
    new QTreeWidgetItem(&dendrogram, {QStringLiteral("C")});
    dendrogram.resize(300, 100);
    auto model = std::make_shared<Varnis::VNDendrogramWidget::DendrogramModel>();
    model->itemToColumn = {{1, 5}, {9, 0}, {-1, -1}, {0, 0}};
    model->columnToColumn = {{1, 40}, {-3, 1}, {7, 8}};
    dendrogram.setDendrogramModel(model);
    dendrogram.setDendrogramModel(nullptr);
    dendrogram.setDendrogramModel(model);
    QVERIFY(dendrogram.linkMarkPosition(0, 0).isNull()); // never on the name column
    const QImage image = dendrogram.viewport()->grab().toImage();
    QCOMPARE(countPixels(image, image.rect(), QColor(0x2f, 0x6d, 0xb5)), 0);
}

void TestItemViewToolkit::delegateDrawsStatusAndTreeLines()
{
    QStandardItemModel model(2, 1);
    model.setData(model.index(0, 0), 32, VNItemDataRoles::StatusRole);
    model.setData(model.index(1, 0), VNItemDelegate::Connected | VNItemDelegate::Nested, VNItemDataRoles::TreeLineRole);
    VNTreeView view;
    view.setAlternatingRowColors(false);
    view.setModel(&model);
    view.setItemDelegate(new VNItemDelegate(&view));
    view.resize(200, 100);
    const QImage image = view.viewport()->grab().toImage();
    const QRect statusRow = view.visualRect(model.index(0, 0));
    QVERIFY(countPixels(image, statusRow, needInputRed) >= statusRow.height());
    QVERIFY(countPixels(image, statusRow, VNStatusPalette::colors(VNStatusPalette::Look::needInput).fill) > 100);
    const QRect lineRow = view.visualRect(model.index(1, 0));
    const QColor lineColor(0x9a, 0xa4, 0xb0);
    // Nested: the outer line runs through and the inner line starts one step further right.
    QVERIFY(countPixels(image, QRect(lineRow.left() + 6, lineRow.top(), 1, lineRow.height()), lineColor) >=
            lineRow.height() - 1);
    QVERIFY(countPixels(image, QRect(lineRow.left() + 18, lineRow.top(), 1, lineRow.height()), lineColor) > 0);
}

void TestItemViewToolkit::iconToggleFlipsAndMirrorsState()
{
    VNDragTreeWidget tree;
    auto* item = new QTreeWidgetItem(&tree);
    item->setCheckState(0, Qt::Unchecked);
    auto* delegate = new IconToggleDelegate(IconToggleDelegate::Radio, &tree);
    delegate->setBaseColorOn(QColor(51, 68, 255));
    delegate->setIconSize(QSize(7, 7));
    tree.setItemDelegateForColumn(0, delegate);
    tree.resize(200, 100);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    QSignalSpy toggled(delegate, &IconToggleDelegate::toggled);
    const QRect cell = tree.visualItemRect(item);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(cell.left() + 20, cell.center().y()));
    QCOMPARE(toggled.count(), 1);
    QCOMPARE(toggled.first().at(1).toBool(), true);
    QCOMPARE(item->checkState(0), Qt::Checked);
    QCOMPARE(item->data(0, Qt::EditRole).toBool(), true);
    const QImage image = tree.viewport()->grab().toImage();
    QCOMPARE(image.pixelColor(delegate->toggleRect(tree.visualItemRect(item)).center()), QColor(51, 68, 255));
    item->setCheckState(0, Qt::Unchecked);
    QTRY_COMPARE(item->data(0, Qt::EditRole).toBool(), false);
}

QTEST_MAIN(TestItemViewToolkit)
#include "tst_itemviewtoolkit.moc"
