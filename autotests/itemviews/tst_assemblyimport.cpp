#include "TestNewAssemblyImport.h"

#include <TreeViewContextMenu.h>
#include <VNButton.h>
#include <VNItemDelegate.h>
#include <VNTreeView.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTest>

namespace {
// The visible names of the proxy's rows, depth first, children indented by two blanks.
QStringList visibleNames(const QAbstractItemModel* model, const QModelIndex& parent = QModelIndex(), int depth = 0)
{
    QStringList names;
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        names << QString(depth * 2, QLatin1Char(' ')) + index.data().toString();
        names << visibleNames(model, index, depth + 1);
    }
    return names;
}

// The sample rows of the dialog, as visibleNames() lists them.
const QStringList sampleNames = [] {
    QStringList names;
    const std::pair<const char*, int> groups[] = {
        {"Geometries", 4}, {"Curves", 3}, {"Points", 5}, {"Coordinate Systems", 2}};
    const char* const members[] = {"Geometry", "Curve", "Point", "Coordinate System"};
    for (int group = 0; group < 4; ++group) {
        names << QString::fromLatin1(groups[group].first);
        for (int i = 0; i < groups[group].second; ++i)
            names << QStringLiteral("  %1 %2").arg(QLatin1String(members[group])).arg(i);
    }
    return names;
}();

QStandardItem* findItem(QStandardItemModel* model, const QString& name)
{
    const QList<QStandardItem*> found = model->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.first();
}

// A right click at pos of the tree's viewport: the context menu event the window system sends.
void rightClick(VNTreeView* tree, const QPoint& pos)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, tree->viewport()->mapToGlobal(pos));
    QApplication::sendEvent(tree->viewport(), &event);
}

// Opens the context menu over the row of the item with a right click and triggers an action.
void triggerMenuAction(TestNewAssemblyImport& dialog, QStandardItem* item, const QString& text)
{
    VNTreeView* tree = dialog.tree();
    const QModelIndex viewIndex = dialog.proxyModel()->mapFromSource(item->index());
    QVERIFY(viewIndex.isValid());
    tree->scrollTo(viewIndex);
    rightClick(tree, tree->visualRect(viewIndex).center());
    auto* menu = tree->findChild<TreeViewContextMenu*>();
    QVERIFY(menu);
    QAction* chosen = nullptr;
    for (QAction* action : menu->actions())
        if (action->text() == text)
            chosen = action;
    QVERIFY(chosen && chosen->isEnabled());
    chosen->trigger();
    menu->close();
    delete menu;
}
} // namespace

class TestAssemblyImport : public QObject
{
    Q_OBJECT

private slots:
    void contents();
    void searchBar();
    void filter_data();
    void filter();
    void resetClearsFilter();
    void addToGroupKeepsItem();
    void groupingTwiceNests();
    void removeDeletesRowAndChildren();
    void menuOverEmptySpaceIsGreyed();
};

void TestAssemblyImport::contents()
{
    TestNewAssemblyImport dialog(nullptr);
    QStandardItemModel* model = dialog.sourceModel();
    QCOMPARE(visibleNames(model), sampleNames);
    QCOMPARE(model->item(2)->child(4, 1)->text(), QStringLiteral("Enter Comment"));
    QCOMPARE(model->item(2, 1)->text(), QString());
    QCOMPARE(dialog.tree()->model(), dialog.proxyModel());
    QVERIFY(dialog.tree()->isExpanded(dialog.proxyModel()->index(3, 0)));
    QCOMPARE(dialog.tree()->contextMenuPolicy(), Qt::CustomContextMenu);
    auto* comments = qobject_cast<VNItemDelegate*>(dialog.tree()->itemDelegateForColumn(1));
    QVERIFY(comments && comments->indentsForLeftIcon());
    auto* names = qobject_cast<VNItemDelegate*>(dialog.tree()->itemDelegateForColumn(0));
    QVERIFY(names && names->hasCheckIndicator());
}

void TestAssemblyImport::searchBar()
{
    TestNewAssemblyImport dialog(nullptr);
    QCOMPARE(dialog.searchField()->placeholderText(), QStringLiteral("Search..."));
    QCOMPARE(dialog.searchField()->parentWidget()->findChild<VNButton*>()->toolTip(), QStringLiteral("Reset Search"));
}

void TestAssemblyImport::filter_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("visible");
    const QStringList points{"Points", "  Point 0", "  Point 1", "  Point 2", "  Point 3", "  Point 4"};
    QTest::newRow("lower case") << "point" << points;
    QTest::newRow("upper case") << "POINT" << points;
    QTest::newRow("mixed case") << "pOiNt" << points;
    QTest::newRow("regular expression") << "^curve [02]$" << QStringList{"Curves", "  Curve 0", "  Curve 2"};
    QTest::newRow("no text shows all") << "" << sampleNames;
    QTest::newRow("comment column") << "enter COMM" << sampleNames;
    QTest::newRow("no match") << "xyz" << QStringList();
}

void TestAssemblyImport::filter()
{
    QFETCH(QString, search);
    QFETCH(QStringList, visible);
    TestNewAssemblyImport dialog(nullptr);
    QTest::keyClicks(dialog.searchField(), search);
    QCOMPARE(visibleNames(dialog.proxyModel()), visible);
}

void TestAssemblyImport::resetClearsFilter()
{
    TestNewAssemblyImport dialog(nullptr);
    dialog.searchField()->setText(QStringLiteral("curve"));
    QCOMPARE(dialog.proxyModel()->rowCount(), 1);
    dialog.searchField()->parentWidget()->findChild<VNButton*>()->click();
    QCOMPARE(dialog.searchField()->text(), QString());
    QCOMPARE(dialog.proxyModel()->rowCount(), 4);
}

void TestAssemblyImport::addToGroupKeepsItem()
{
    TestNewAssemblyImport dialog(nullptr);
    QStandardItem* point = findItem(dialog.sourceModel(), QStringLiteral("Point 2"));
    triggerMenuAction(dialog, point, QStringLiteral("Add to Group"));
    QStandardItem* points = dialog.sourceModel()->item(2);
    QCOMPARE(points->rowCount(), 5);
    QStandardItem* group = points->child(4);
    QCOMPARE(group->text(), QStringLiteral("Group"));
    QCOMPARE(group->child(0), point); // the same item, moved
    QCOMPARE(group->child(0, 1)->text(), QStringLiteral("Enter Comment"));
    QCOMPARE(points->child(2)->text(), QStringLiteral("Point 3"));
}

void TestAssemblyImport::groupingTwiceNests()
{
    TestNewAssemblyImport dialog(nullptr);
    QStandardItem* curve = findItem(dialog.sourceModel(), QStringLiteral("Curve 0"));
    triggerMenuAction(dialog, curve, QStringLiteral("Add to Group"));
    triggerMenuAction(dialog, curve, QStringLiteral("Add to Group"));
    QStandardItem* outer = dialog.sourceModel()->item(1)->child(2);
    QCOMPARE(outer->text(), QStringLiteral("Group"));
    QCOMPARE(outer->rowCount(), 1);
    QCOMPARE(outer->child(0)->text(), QStringLiteral("Group"));
    QCOMPARE(outer->child(0)->child(0), curve);
}

void TestAssemblyImport::removeDeletesRowAndChildren()
{
    TestNewAssemblyImport dialog(nullptr);
    QStandardItem* geometry = findItem(dialog.sourceModel(), QStringLiteral("Geometry 1"));
    triggerMenuAction(dialog, geometry, QStringLiteral("Add to Group"));
    QStandardItem* group = dialog.sourceModel()->item(0)->child(3);
    QCOMPARE(group->text(), QStringLiteral("Group"));
    triggerMenuAction(dialog, group, QStringLiteral("Remove from Group"));
    QCOMPARE(visibleNames(dialog.sourceModel()).mid(0, 5),
             (QStringList{"Geometries", "  Geometry 0", "  Geometry 2", "  Geometry 3", "Curves"}));
    QVERIFY(!findItem(dialog.sourceModel(), QStringLiteral("Geometry 1")));
}

void TestAssemblyImport::menuOverEmptySpaceIsGreyed()
{
    TestNewAssemblyImport dialog(nullptr);
    dialog.show();
    VNTreeView* tree = dialog.tree();
    rightClick(tree, QPoint(5, tree->viewport()->height() - 2));
    auto* menu = tree->findChild<TreeViewContextMenu*>();
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 2);
    for (QAction* action : menu->actions())
        QVERIFY(!action->isEnabled());
    menu->close();
    delete menu;
}

QTEST_MAIN(TestAssemblyImport)
#include "tst_assemblyimport.moc"
