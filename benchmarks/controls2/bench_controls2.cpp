// Prints how long the menu, tab bar, result switcher, module navigation and progress dialogs take
// to open the first time, how long each frame of the tab indicator animation takes with 30 tabs,
// and how long a result switcher of 200 buttons takes to build. With a folder argument it also
// saves pictures of the dialogs' pop-up menus and of the progress bar's looks there.
// Run it headless: QT_QPA_PLATFORM=offscreen ./bench_controls2 [DIR]
#include "../BenchTiming.h"
#include "TestAdvancedMenu.h"
#include "TestModuleNavigation.h"
#include "TestProgressComposition.h"
#include "TestVNAnimatedTabBar.h"
#include "TestVNResultSwitcher.h"

#include <VNAnimatedTabBar.h>
#include <VNButton.h>
#include <VNMultiProgressBar.h>
#include <VNResultSwitcher.h>
#include <VNStyleSheet.h>

#include <QApplication>
#include <QCommandLinkButton>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTextStream>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariantAnimation>

#include <functional>

namespace {
template<typename Dialog>
BenchTiming::Timing firstOpen()
{
    Dialog* dialog = nullptr;
    const BenchTiming::Timing open = BenchTiming::once([&] {
        dialog = new Dialog(nullptr);
        dialog->show();
        QCoreApplication::processEvents();
    });
    delete dialog;
    return open;
}

// The host has shown its panel before any dialog opens: fonts, style and plug-ins are loaded.
void warmUp()
{
    QDialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QPushButton(QStringLiteral("Warm up"), &dialog));
    layout->addWidget(new QToolButton(&dialog));
    layout->addWidget(new QLabel(QStringLiteral("Warm up"), &dialog));
    dialog.show();
    QCoreApplication::processEvents();
}

void measureFirstOpen(QTextStream& out)
{
    warmUp();
    const QList<QPair<QString, std::function<BenchTiming::Timing()>>> dialogs = {
        {QStringLiteral("TestAdvancedMenu"), firstOpen<TestAdvancedMenu>},
        {QStringLiteral("TestVNAnimatedTabBar"), firstOpen<TestVNAnimatedTabBar>},
        {QStringLiteral("TestVNResultSwitcher"), firstOpen<TestVNResultSwitcher>},
        {QStringLiteral("TestModuleNavigation"), firstOpen<TestModuleNavigation>},
        {QStringLiteral("TestProgressComposition"), firstOpen<TestProgressComposition>},
    };
    for (const auto& dialog : dialogs)
        out << BenchTiming::line("first open " + dialog.first, dialog.second(), QStringLiteral("budget 50 ms"));
}

// Drives the animation by hand in 16 ms steps and paints every frame synchronously.
void measureIndicatorFrames(QTextStream& out)
{
    VNAnimatedTabBar bar;
    for (int i = 0; i < 30; ++i)
        bar.addTab(QStringLiteral("(D-%1)").arg(i));
    bar.resize(bar.sizeHint().width(), 30);
    bar.show();
    QCoreApplication::processEvents();
    BenchTiming::Samples frames;
    for (int target : {29, 0, 15}) {
        bar.setCurrentIndex(target);
        QVariantAnimation* animation = bar.indicatorAnimation();
        animation->pause();
        for (int time = 0; time <= animation->duration(); time += 16) {
            frames.add(BenchTiming::once([&] {
                animation->setCurrentTime(time);
                bar.repaint();
            }));
        }
        animation->stop();
    }
    out << BenchTiming::line(QStringLiteral("tab indicator frame, 30 tabs"), frames,
                             QStringLiteral("budget 16 ms per frame"));
}

void measureSwitcherBuild(QTextStream& out)
{
    BenchTiming::Samples runs;
    const QIcon icon(QStringLiteral(":/Icons/Ribbon/ResultVariable/ZEBRA_LINES.svg"));
    for (int run = 0; run < 5; ++run) {
        VNResultSwitcher switcher;
        switcher.show();
        runs.add(BenchTiming::once([&] {
            switcher.beginModifyButtons();
            for (int i = 0; i < 200; ++i)
                switcher.insertButton(icon, QStringLiteral("Test %1").arg(i), -1, i / 100);
            switcher.endModifyButtons();
        }));
    }
    out << BenchTiming::line(QStringLiteral("result switcher, 200 buttons"), runs, QStringLiteral("budget 20 ms"));
}

void saveMenu(QMenu* menu, const QString& file)
{
    menu->adjustSize();
    menu->grab().save(file);
}

void saveMenus(const QString& folder)
{
    QDir().mkpath(folder);
    TestAdvancedMenu dialog(nullptr);
    for (const char* name : {"m_advancedBtnModify", "m_advancedBtnOneGroup", "m_advanceListBtn", "m_CheckBoxGroupBtn",
                             "m_advancedSubMenuButton", "m_vnMenuButton"})
        saveMenu(dialog.findChild<VNButton*>(name)->menu(), folder + QStringLiteral("/%1.png").arg(name));
    saveMenu(dialog.findChild<QCommandLinkButton*>("commandLinkButton_2")->menu(),
             folder + QStringLiteral("/commandLinkButton_2.png"));

    VNMultiProgressBar bar;
    bar.setProgressItems({QStringLiteral("OP10"), QStringLiteral("OP20"), QStringLiteral("Long operation 30"),
                          QStringLiteral("OP40"), QStringLiteral("OP50")});
    bar.setCurrent(2);
    bar.stepCurrent(40);
    const char* modes[] = {"GaussianBell", "Constant", "Balance", "Manual"};
    for (int mode = 0; mode < 4; ++mode) {
        bar.setStretchMode(mode);
        bar.resize(600, 30);
        bar.grab().save(folder + QStringLiteral("/progress_%1.png").arg(QLatin1String(modes[mode])));
    }
    bar.setCircular(true);
    bar.resize(160, 160);
    bar.grab().save(folder + QStringLiteral("/progress_circular.png"));
}
} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    VNStyleSheet::applyTo(&app);
    QTextStream out(stdout);
    measureFirstOpen(out);
    measureIndicatorFrames(out);
    measureSwitcherBuild(out);
    if (argc > 1)
        saveMenus(QString::fromLocal8Bit(argv[1]));
    return 0;
}
