// Prints what the delegate gallery costs: its first open, and a full repaint of the tree's
// viewport with every status bit set (the heaviest look). Run it headless:
// QT_QPA_PLATFORM=offscreen ./bench_delegates
#include "../BenchTiming.h"
#include "TestTreeDelegates.h"

#include <QApplication>
#include <QCheckBox>
#include <QPixmap>
#include <QTextStream>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    const BenchTiming::Stopwatch stopwatch;
    TestTreeDelegates dialog(nullptr);
    dialog.resize(1400, 900);
    dialog.show();
    QApplication::processEvents();
    out << BenchTiming::line(QStringLiteral("first open of the delegate gallery"), stopwatch.elapsed());

    const auto boxes = dialog.findChildren<QCheckBox*>();
    for (QCheckBox* box : boxes) {
        if (box->objectName().startsWith(QLatin1String("m_")))
            box->setChecked(true);
    }
    QApplication::processEvents();
    QWidget* viewport = dialog.findChild<QTreeWidget*>(QStringLiteral("treeWidget"))->viewport();
    QPixmap target(viewport->size());
    out << BenchTiming::line(
        QStringLiteral("full viewport repaint (%1x%2, all status bits)").arg(viewport->width()).arg(viewport->height()),
        BenchTiming::repeat(50, [&] { viewport->render(&target); }));
    return 0;
}
