// Prints what the delegate gallery costs: its first open, and a full repaint of the tree's
// viewport with every status bit set (the heaviest look). Run it headless:
// QT_QPA_PLATFORM=offscreen ./bench_delegates
#include "TestTreeDelegates.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTextStream>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    QElapsedTimer timer;
    timer.start();
    TestTreeDelegates dialog(nullptr);
    dialog.resize(1400, 900);
    dialog.show();
    QApplication::processEvents();
    out << "first open of the delegate gallery: " << timer.nsecsElapsed() / 1.0e6 << " ms\n";

    const auto boxes = dialog.findChildren<QCheckBox*>();
    for (QCheckBox* box : boxes) {
        if (box->objectName().startsWith(QLatin1String("m_")))
            box->setChecked(true);
    }
    QApplication::processEvents();
    QWidget* viewport = dialog.findChild<QTreeWidget*>(QStringLiteral("treeWidget"))->viewport();
    const int repaints = 50;
    QPixmap target(viewport->size());
    timer.restart();
    for (int i = 0; i < repaints; ++i)
        viewport->render(&target);
    out << "full viewport repaint (" << viewport->width() << "x" << viewport->height()
        << ", all status bits): " << timer.nsecsElapsed() / 1.0e6 / repaints << " ms per frame\n";
    return 0;
}
