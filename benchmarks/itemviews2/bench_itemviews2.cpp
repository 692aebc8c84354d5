// Prints what the master-detail and assembly import trees cost: first open of each dialog, a
// depth-first lookup of every page of a large stack, and filtering a large import tree per
// keystroke. Run it headless: QT_QPA_PLATFORM=offscreen ./bench_itemviews2
#include "../BenchTiming.h"
#include "TestMasterDetailTree.h"
#include "TestNewAssemblyImport.h"

#include <VNControlledStackItem.h>
#include <VNControlledStackWidget.h>
#include <VNStackControllerWidget.h>
#include <VNStyleSheet.h>
#include <VNTreeView.h>

#include <QApplication>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTextStream>
#include <QWidget>

namespace {
template<typename Dialog>
BenchTiming::Timing firstOpen()
{
    const BenchTiming::Stopwatch stopwatch;
    Dialog dialog(nullptr);
    dialog.show();
    QApplication::processEvents();
    return stopwatch.elapsed();
}

void benchDfsLookup(QTextStream& out, int topLevel, int perTop)
{
    QWidget parent;
    auto* controller = new VNStackControllerWidget(&parent);
    auto* stack = new VNControlledStackWidget(controller, &parent);
    for (int i = 0; i < topLevel; ++i) {
        VNControlledStackItem* top = stack->addItem(new QWidget, -1);
        top->setText(QStringLiteral("Page %1").arg(i));
        for (int j = 0; j < perTop; ++j)
            stack->addItem(new QWidget, top, -1)->setText(QStringLiteral("Sub Page %1").arg(j));
    }
    const int total = topLevel * (perTop + 1);
    int found = 0;
    const BenchTiming::Timing lookups = BenchTiming::once([&] {
        for (int i = 0; i < total; ++i)
            found += stack->itemAtDFSIndex(i) != nullptr;
    });
    out << BenchTiming::line(QStringLiteral("itemAtDFSIndex for all %1 pages (%2 found)").arg(total).arg(found),
                             lookups);
}

void benchFilter(QTextStream& out, int groups, int perGroup)
{
    TestNewAssemblyImport dialog(nullptr);
    QStandardItemModel* model = dialog.sourceModel();
    model->removeRows(0, model->rowCount());
    for (int i = 0; i < groups; ++i) {
        auto* group = new QStandardItem(QStringLiteral("Group %1").arg(i));
        for (int j = 0; j < perGroup; ++j)
            group->appendRow({new QStandardItem(QStringLiteral("Point %1").arg(j)),
                              new QStandardItem(QStringLiteral("Enter Comment"))});
        model->appendRow({group, new QStandardItem});
    }
    dialog.show();
    QApplication::processEvents();
    const int rows = groups * (perGroup + 1);
    const QString typed = QStringLiteral("point 42");
    int length = 0;
    const BenchTiming::Samples keystrokes = BenchTiming::repeat(typed.size(), [&] {
        dialog.searchField()->setText(typed.left(++length));
        QApplication::processEvents();
    });
    out << BenchTiming::line(QStringLiteral("filtering %1 rows, per keystroke of \"%2\"").arg(rows).arg(typed),
                             keystrokes);
}
} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    VNStyleSheet::applyTo(&app);
    QTextStream out(stdout);
    // Pays the process's one-time costs (fonts, style sheet) before anything is timed.
    {
        QWidget warmUp;
        warmUp.show();
        QApplication::processEvents();
    }
    out << BenchTiming::line(QStringLiteral("first open TestMasterDetailTree"), firstOpen<TestMasterDetailTree>());
    out << BenchTiming::line(QStringLiteral("first open TestNewAssemblyImport"), firstOpen<TestNewAssemblyImport>());
    benchDfsLookup(out, 1000, 9);
    benchFilter(out, 1000, 99);
    return 0;
}
