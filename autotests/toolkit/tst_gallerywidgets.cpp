#include <VNElementNavigationBar.h>
#include <VNStyleSheet.h>
#include <VNTabWidget.h>
#include <VNTaskBar.h>
#include <VNViewSwitcher.h>

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <functional>
#include <memory>

namespace {
using Factory = std::function<QWidget*()>;

QWidget* taskBar()
{
    auto* bar = new VNTaskBar;
    bar->addItem(QIcon(), QStringLiteral("Part"));
    bar->addItem(QIcon(), QStringLiteral("Plan"));
    return bar;
}

QWidget* navigationBar()
{
    auto* bar = new VNElementNavigationBar;
    bar->addButton(QStringLiteral("Button 1"), QStringLiteral("NavToolTip 1"));
    bar->addButton(QStringLiteral("Button 2"));
    return bar;
}

QWidget* viewSwitcher()
{
    auto* switcher = new VNViewSwitcher;
    switcher->addView(QStringLiteral("Forces"));
    switcher->addView(QStringLiteral("Distances"));
    return switcher;
}

QWidget* tabWidget()
{
    auto* tabs = new VNTabWidget;
    tabs->addTab(new QWidget, QStringLiteral("tabNormal"));
    tabs->addTab(new QWidget, QStringLiteral("tabActive"));
    return tabs;
}

QImage grabWithStatus(QWidget* widget, int word)
{
    dynamic_cast<VNWidgetInterface*>(widget)->setWidgetStatus(VNWidgetStatus::StatusFlags(word));
    return widget->grab().toImage();
}
} // namespace

Q_DECLARE_METATYPE(Factory)

class GalleryWidgetsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void statusChangesLook_data();
    void statusChangesLook();
    void viewSwitcherSwitches();
    void taskBarStagesAreExclusive();
    void navigationBarLocksAndRemoves();
};

void GalleryWidgetsTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
}

void GalleryWidgetsTest::statusChangesLook_data()
{
    QTest::addColumn<Factory>("factory");
    QTest::addColumn<int>("word");
    const QList<QPair<const char*, Factory>> families = {
        {"VNTaskBar", taskBar},
        {"VNElementNavigationBar", navigationBar},
        {"VNViewSwitcher", viewSwitcher},
        {"VNTabWidget", tabWidget},
    };
    const QList<QPair<const char*, int>> words = {
        {"Need Input", 0x20}, {"Sigma Active", 0x140}, {"Standard Locked", 0x23000}, {"Compare Differs", 0x800}};
    for (const auto& family : families)
        for (const auto& word : words)
            QTest::addRow("%s %s", family.first, word.first) << family.second << word.second;
}

// Every status word must show: the look differs from the undefined status and from "Need Input".
void GalleryWidgetsTest::statusChangesLook()
{
    QFETCH(Factory, factory);
    QFETCH(int, word);
    std::unique_ptr<QWidget> widget(factory());
    widget->resize(widget->sizeHint().expandedTo(QSize(200, 80)));
    const QImage plain = grabWithStatus(widget.get(), 0);
    const QImage looked = grabWithStatus(widget.get(), word);
    QCOMPARE(looked.size(), plain.size());
    QVERIFY(looked != plain);
    if (word != 0x20)
        QVERIFY(looked != grabWithStatus(widget.get(), 0x20));
}

void GalleryWidgetsTest::viewSwitcherSwitches()
{
    VNViewSwitcher switcher;
    switcher.addView(QStringLiteral("Modify"));
    switcher.addView(QStringLiteral("Original"));
    QSignalSpy spy(&switcher, &VNViewSwitcher::currentChanged);
    QCOMPARE(switcher.currentIndex(), 0);
    QTest::mouseClick(switcher.viewButton(1), Qt::LeftButton);
    QCOMPARE(switcher.currentIndex(), 1);
    QCOMPARE(spy.last().at(0).toInt(), 1);
    QVERIFY(!switcher.viewButton(0)->isChecked());
    QCOMPARE(switcher.viewText(1), QStringLiteral("Original"));
}

void GalleryWidgetsTest::taskBarStagesAreExclusive()
{
    std::unique_ptr<VNTaskBar> bar(static_cast<VNTaskBar*>(taskBar()));
    QSignalSpy spy(bar.get(), &VNTaskBar::currentIndexChanged);
    QTest::mouseClick(bar->itemButton(1), Qt::LeftButton);
    QCOMPARE(bar->currentIndex(), 1);
    QCOMPARE(spy.size(), 1);
    QTest::mouseClick(bar->itemButton(1), Qt::LeftButton);
    QCOMPARE(bar->currentIndex(), 1); // clicking the current stage keeps it
    QCOMPARE(bar->itemText(0), QStringLiteral("Part"));
}

void GalleryWidgetsTest::navigationBarLocksAndRemoves()
{
    VNElementNavigationBar bar;
    for (const char* text : {"Button 1", "Button 2", "Button 3", "Button Remove"})
        bar.addButton(QString::fromLatin1(text));
    bar.setButtonLocked(2, true);
    QTest::mouseClick(bar.button(2), Qt::LeftButton);
    QCOMPARE(bar.currentIndex(), 0);
    bar.setCurrentIndex(3);
    bar.removeButton(3);
    QCOMPARE(bar.buttonCount(), 3);
    QCOMPARE(bar.currentIndex(), 1); // the locked neighbour is skipped
}

QTEST_MAIN(GalleryWidgetsTest)
#include "tst_gallerywidgets.moc"
