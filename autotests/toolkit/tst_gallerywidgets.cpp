#include <VNClearLineEdit.h>
#include <VNElementNavigationBar.h>
#include <VNElidedLabel.h>
#include <VNSlidingCheckBox.h>
#include <VNStyleSheet.h>
#include <VNTabWidget.h>
#include <VNTaskBar.h>
#include <VNTwinPushButton.h>
#include <VNViewSwitcher.h>

#include <QAction>
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

QWidget* twinButton()
{
    auto* twin = new VNTwinPushButton;
    twin->setLeftText(QStringLiteral("Apply"));
    twin->setRightText(QStringLiteral("Apply All"));
    return twin;
}

QWidget* slidingCheckBox()
{
    return new VNSlidingCheckBox(QStringLiteral("Sliding"));
}

// The button Qt shows for a line edit action: what a user clicks.
QWidget* actionButton(QAction* action, QWidget* edit)
{
    for (QWidget* widget : action->associatedWidgets())
        if (widget != edit)
            return widget;
    return nullptr;
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
    void slidingCheckBoxToggles();
    void clearLineEditClears_data();
    void clearLineEditClears();
    void elidedLabelShortens_data();
    void elidedLabelShortens();
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
        {"VNTaskBar", taskBar},     {"VNElementNavigationBar", navigationBar}, {"VNViewSwitcher", viewSwitcher},
        {"VNTabWidget", tabWidget}, {"VNTwinPushButton", twinButton},          {"VNSlidingCheckBox", slidingCheckBox},
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

void GalleryWidgetsTest::slidingCheckBoxToggles()
{
    VNSlidingCheckBox box(QStringLiteral("Sliding"));
    box.resize(box.sizeHint());
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QImage off = box.grab().toImage();
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.width() - 3, box.height() / 2)); // on the text
    QVERIFY(box.isChecked());
    QTRY_COMPARE(box.knobPosition(), 1.0);
    const QImage on = box.grab().toImage();
    QVERIFY(on != off);
    // The track fills blue towards the left end once the knob has slid over.
    const QColor trackStart = on.pixelColor(10, box.height() / 2);
    QVERIFY2(trackStart.blue() > trackStart.red() + 60, qPrintable(trackStart.name()));
    QTest::keyClick(&box, Qt::Key_Space);
    QVERIFY(!box.isChecked());
    QTRY_COMPARE(box.knobPosition(), 0.0);
}

void GalleryWidgetsTest::clearLineEditClears_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("byEscape");
    QTest::addColumn<QString>("expected");
    QTest::newRow("click") << "Cleared text" << false << false << "";
    QTest::newRow("escape") << "Cleared text" << false << true << "";
    QTest::newRow("read-only keeps") << "Kept text" << true << true << "Kept text";
}

void GalleryWidgetsTest::clearLineEditClears()
{
    QFETCH(QString, text);
    QFETCH(bool, readOnly);
    QFETCH(bool, byEscape);
    QFETCH(QString, expected);
    VNClearLineEdit edit(text);
    edit.setReadOnly(readOnly);
    edit.resize(200, edit.sizeHint().height());
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    QSignalSpy cleared(&edit, &VNClearLineEdit::cleared);
    QWidget* cross = actionButton(edit.clearAction(), &edit);
    QVERIFY(cross);
    if (byEscape)
        QTest::keyClick(&edit, Qt::Key_Escape);
    else
        QTest::mouseClick(cross, Qt::LeftButton);
    QCOMPARE(edit.text(), expected);
    QCOMPARE(cleared.size(), expected.isEmpty() ? 1 : 0);
    QCOMPARE(edit.clearAction()->isVisible(), false);
}

void GalleryWidgetsTest::elidedLabelShortens_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<QString>("expectedStart");
    QTest::addColumn<QString>("expectedEnd");
    const QString dots = QStringLiteral("\u2026");
    QTest::newRow("wide") << 900 << Qt::ElideRight << "Cutting Line"
                          << "Flange";
    QTest::newRow("right") << 90 << Qt::ElideRight << "Cutting" << dots;
    QTest::newRow("left") << 90 << Qt::ElideLeft << dots << "Flange";
    QTest::newRow("middle") << 120 << Qt::ElideMiddle << "Cut"
                            << "ange";
}

void GalleryWidgetsTest::elidedLabelShortens()
{
    QFETCH(int, width);
    QFETCH(Qt::TextElideMode, mode);
    QFETCH(QString, expectedStart);
    QFETCH(QString, expectedEnd);
    VNElidedLabel label(QStringLiteral("Cutting Line of the Outer Hemming Flange"));
    label.setElideMode(mode);
    label.resize(width, 20);
    const QString shown = label.displayedText();
    QVERIFY2(shown.startsWith(expectedStart) && shown.endsWith(expectedEnd), qPrintable(shown));
    QCOMPARE(label.isElided(), width < 900);
    QVERIFY(label.fontMetrics().horizontalAdvance(shown) <= width);
}

QTEST_MAIN(GalleryWidgetsTest)
#include "tst_gallerywidgets.moc"
