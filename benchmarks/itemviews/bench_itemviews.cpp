// Prints how fast the item-view dialogs open and how the toolkit's views cope with large data:
// first open of each dialog, a dendrogram repaint, depth-first numbers of a big tree and a page
// scroll of a big colour-coded table. Run with QT_QPA_PLATFORM=offscreen for comparable figures.
#include "../BenchTiming.h"
#include "TestDendrogramWidget.h"
#include "TestDragAndDrop.h"
#include "TestJoinsTable.h"
#include "TestTreeItemDelegate.h"
#include "TestTreeWidget.h"
#include "TestVNTableWidget.h"
#include "TestVNTreeView.h"

#include <VNDendrogramWidget.h>
#include <VNDragTreeWidget.h>
#include <VNItemDataRoles.h>
#include <VNStyleSheet.h>
#include <VNTableWidget.h>

#include <QApplication>
#include <QScrollBar>
#include <QTextStream>

#include <functional>
#include <vector>

namespace {
QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

// Construction, first show and the first paint, as a user waits for them.
BenchTiming::Timing firstOpen(const std::function<QDialog*()>& create)
{
    QDialog* dialog = nullptr;
    const BenchTiming::Timing open = BenchTiming::once([&] {
        dialog = create();
        dialog->show();
        dialog->repaint();
        QCoreApplication::processEvents();
    });
    delete dialog;
    return open;
}

void benchmarkFirstOpen()
{
    const std::vector<std::pair<const char*, std::function<QDialog*()>>> dialogs{
        {"TestVNTableWidget", [] { return new TestVNTableWidget(nullptr); }},
        {"TestVNTreeView", [] { return new TestVNTreeView(nullptr); }},
        {"TestDendrogramWidget", [] { return new TestDendrogramWidget(nullptr); }},
        {"TestDragAndDrop", [] { return new TestDragAndDrop(nullptr); }},
        {"TestJoinsTable", [] { return new TestJoinsTable(nullptr); }},
        {"TestTreeItemDelegate", [] { return new TestTreeItemDelegate(nullptr); }},
        {"TestTreeWidget", [] { return new TestTreeWidget(nullptr); }},
    };
    BenchTiming::Samples opens;
    for (const auto& entry : dialogs) {
        const BenchTiming::Timing open = firstOpen(entry.second);
        opens.add(open);
        out() << BenchTiming::line(QStringLiteral("first open ") + QLatin1String(entry.first), open);
    }
    out() << BenchTiming::line(QStringLiteral("second open TestDendrogramWidget"),
                               firstOpen([] { return new TestDendrogramWidget(nullptr); }));
    out() << BenchTiming::line(QStringLiteral("first open of the item-view dialogs"), opens,
                               QStringLiteral("limit 16 ms for the median, 50 ms for the worst"));
}

void benchmarkDendrogram()
{
    Varnis::VNDendrogramWidget dendrogram;
    QStringList labels{QStringLiteral("Parts")};
    for (int column = 1; column <= 50; ++column)
        labels << QStringLiteral("AO-%1").arg(10 * column);
    dendrogram.setHeaderLabels(labels);
    for (int column = 1; column <= 50; ++column)
        dendrogram.header()->resizeSection(column, 40);
    for (int row = 0; row < 1000; ++row)
        new QTreeWidgetItem(&dendrogram, {QStringLiteral("Component %1").arg(row + 1)});
    auto model = std::make_shared<Varnis::VNDendrogramWidget::DendrogramModel>();
    for (int link = 0; link < 4950; ++link)
        model->itemToColumn.emplace_back(1 + link % 50, (link * 7) % 1000);
    for (int column = 1; column < 50; ++column)
        model->columnToColumn.emplace_back(column, column + 1);
    dendrogram.setDendrogramModel(model);
    dendrogram.resize(1400, 900);
    dendrogram.show();
    QCoreApplication::processEvents();
    out() << BenchTiming::line(QStringLiteral("dendrogram repaint, 1000 rows, 50 columns, 5000 links"),
                               BenchTiming::repeat(20, [&] { dendrogram.viewport()->repaint(); }),
                               QStringLiteral("limit 16 ms"));
}

void benchmarkDFSIndexes()
{
    VNDragTreeWidget tree;
    std::vector<QTreeWidgetItem*> items;
    items.reserve(100000);
    QList<QTreeWidgetItem*> topLevel;
    for (int group = 0; group < 1000; ++group) {
        auto* parent = new QTreeWidgetItem;
        items.push_back(parent);
        for (int child = 0; child < 99; ++child)
            items.push_back(new QTreeWidgetItem(parent));
        topLevel.append(parent);
    }
    tree.addTopLevelItems(topLevel);
    long long sum = 0;
    const BenchTiming::Timing lookups = BenchTiming::once([&] {
        for (const QTreeWidgetItem* item : items)
            sum += tree.getDFSIndex(item);
    });
    out() << BenchTiming::line(
        QStringLiteral("getDFSIndex for all of %1 items (checksum %2)").arg(items.size()).arg(sum), lookups,
        QStringLiteral("limit 1000 ms"));
}

void benchmarkTableScroll()
{
    VNTableWidget table;
    table.setRowCount(10000);
    table.setColumnCount(20);
    for (int column = 0; column < 20; ++column) {
        auto* item = new QTableWidgetItem(QStringLiteral("Column<sub>%1</sub>").arg(column));
        item->setData(VNItemDataRoles::StatusRole, 2);
        item->setData(VNItemDataRoles::RichTextRole, true);
        table.setHorizontalHeaderItem(column, item);
    }
    for (int row = 0; row < 10000; ++row) {
        auto* header = new QTableWidgetItem(QStringLiteral("Row%1").arg(row));
        header->setData(VNItemDataRoles::StatusRole, 32);
        table.setVerticalHeaderItem(row, header);
        for (int column = 0; column < 20; ++column)
            table.setItem(row, column, new QTableWidgetItem(QString::number(row * column)));
    }
    table.resize(1200, 800);
    table.show();
    QCoreApplication::processEvents();
    QScrollBar* bar = table.verticalScrollBar();
    out() << BenchTiming::line(QStringLiteral("table page scroll, 10000 rows x 20 colour-coded columns"),
                               BenchTiming::repeat(30,
                                                   [&] {
                                                       bar->setValue(bar->value() + bar->pageStep());
                                                       table.viewport()->repaint();
                                                       table.verticalHeader()->viewport()->repaint();
                                                   }),
                               QStringLiteral("limit 16 ms"));
}
} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    VNStyleSheet::applyTo(&application);
    // The first window of a process pays for fonts and the style sheet; in the collection the
    // panel has paid for them before any dialog opens.
    firstOpen([] { return new TestDragAndDrop(nullptr); });
    benchmarkFirstOpen();
    benchmarkDendrogram();
    benchmarkDFSIndexes();
    benchmarkTableScroll();
    return 0;
}
