#include "QtCompat.h"

#include <VNActionsBar.h>
#include <VNClearLineEdit.h>
#include <VNCustomMenuButton.h>
#include <VNElementNavigationBar.h>
#include <VNElidedLabel.h>
#include <VNFileMenuButton.h>
#include <VNFilterListView.h>
#include <VNListToolBar.h>
#include <VNSlidingCheckBox.h>
#include <VNStyleSheet.h>
#include <VNTaskBar.h>
#include <VNToolTipButton.h>
#include <VNViewSwitcher.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <functional>

namespace {
// The button Qt shows for a line edit action: what a user clicks.
QWidget* actionButton(QAction* action, QWidget* edit)
{
    for (QWidget* widget : QtCompat::associatedWidgets(action))
        if (widget != edit)
            return widget;
    return nullptr;
}

} // namespace

using ToolTipSetup = std::function<void(VNToolTipButton&)>;
Q_DECLARE_METATYPE(ToolTipSetup)

class GalleryWidgetsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void viewSwitcherSwitches();
    void taskBarStagesAreExclusive();
    void navigationBarLocksAndRemoves();
    void slidingCheckBoxToggles();
    void clearLineEditClears_data();
    void clearLineEditClears();
    void elidedLabelShortens_data();
    void elidedLabelShortens();
    void toolTipButtonVariants_data();
    void toolTipButtonVariants();
    void actionsBarRows_data();
    void actionsBarRows();
    void customMenuButtonOwnsWidget();
    void fileMenuButtonRecentFiles();
    void filterListViewFilters_data();
    void filterListViewFilters();
    void listToolBarVariants_data();
    void listToolBarVariants();
};

void GalleryWidgetsTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
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

    // A second group switches on its own.
    switcher.addView(QStringLiteral("Forces"), 1);
    switcher.addView(QStringLiteral("Distances"), 1);
    QCOMPARE(switcher.currentIndex(1), 2);
    QTest::mouseClick(switcher.viewButton(3), Qt::LeftButton);
    QCOMPARE(switcher.currentIndex(1), 3);
    QCOMPARE(switcher.currentIndex(0), 1);
    QCOMPARE(spy.last().at(0).toInt(), 3);
    QCOMPARE(switcher.groupOf(3), 1);
}

void GalleryWidgetsTest::taskBarStagesAreExclusive()
{
    VNTaskBar bar;
    bar.addItem(QIcon(), QStringLiteral("Part"));
    bar.addItem(QIcon(), QStringLiteral("Plan"));
    QSignalSpy spy(&bar, &VNTaskBar::currentIndexChanged);
    QTest::mouseClick(bar.itemButton(1), Qt::LeftButton);
    QCOMPARE(bar.currentIndex(), 1);
    QCOMPARE(spy.size(), 1);
    QTest::mouseClick(bar.itemButton(1), Qt::LeftButton);
    QCOMPARE(bar.currentIndex(), 1); // clicking the current stage keeps it
    QCOMPARE(bar.itemText(0), QStringLiteral("Part"));
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

void GalleryWidgetsTest::toolTipButtonVariants_data()
{
    using Setup = ToolTipSetup;
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<QColor>("centreHue"); // the disc colour, sampled just above the mark
    QTest::addColumn<QSize>("size");
    QTest::newRow("help") << Setup([](VNToolTipButton&) {}) << QColor(0x7a, 0x85, 0x91) << QSize(18, 18);
    QTest::newRow("info") << Setup([](VNToolTipButton& b) { b.setUseAsInfo(true); }) << QColor(0x7a, 0x85, 0x91)
                          << QSize(18, 18);
    QTest::newRow("warning") << Setup([](VNToolTipButton& b) { b.setUseAsWarning(true); }) << QColor(0xe0, 0x9a, 0x00)
                             << QSize(18, 18);
    QTest::newRow("header") << Setup([](VNToolTipButton& b) { b.setUseAsHeader(true); }) << QColor(0x1f, 0x3a, 0x56)
                            << QSize(22, 22);
    QTest::newRow("custom image") << Setup([](VNToolTipButton& b) {
        QPixmap green(48, 48);
        green.fill(Qt::green);
        b.setCustomImage(QIcon(green), QSize(48, 48));
    }) << QColor(Qt::green) << QSize(52, 52);
}

void GalleryWidgetsTest::toolTipButtonVariants()
{
    using Setup = ToolTipSetup;
    QFETCH(Setup, setup);
    QFETCH(QColor, centreHue);
    QFETCH(QSize, size);
    VNToolTipButton button;
    setup(button);
    QCOMPARE(button.sizeHint(), size);
    button.resize(size);
    const QImage image = button.grab().toImage();
    QCOMPARE(image.pixelColor(size.width() / 2, 3), centreHue);
}

void GalleryWidgetsTest::actionsBarRows_data()
{
    QTest::addColumn<int>("perRow");
    QTest::addColumn<int>("rows");
    QTest::newRow("one per row") << 1 << 3;
    QTest::newRow("two per row") << 2 << 2;
    QTest::newRow("all in one row") << 0 << 1;
}

void GalleryWidgetsTest::actionsBarRows()
{
    QFETCH(int, perRow);
    QFETCH(int, rows);
    VNActionsBar bar;
    bar.setActionsPerRow(perRow);
    QList<QAction*> actions;
    for (const char* text : {"Input...", "Check", "Export"}) {
        actions << new QAction(QString::fromLatin1(text), &bar);
        bar.addAction(actions.last());
    }
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QSet<int> tops;
    for (QAction* action : actions)
        tops << bar.buttonFor(action)->geometry().top();
    QCOMPARE(tops.size(), rows);
    QCOMPARE(bar.buttonFor(actions.first())->text(), QStringLiteral("Input..."));
    actions.at(1)->setEnabled(false);
    QVERIFY(!bar.buttonFor(actions.at(1))->isEnabled());
    bar.removeAction(actions.at(2));
    QVERIFY(!bar.buttonFor(actions.at(2)));
}

void GalleryWidgetsTest::customMenuButtonOwnsWidget()
{
    VNCustomMenuButton button;
    QPointer<VNFilterListView> first = new VNFilterListView;
    button.setMenuWidget(first);
    QCOMPARE(button.menuWidget(), first.data());
    QVERIFY(button.menu());
    button.setMenuWidget(new QWidget);
    QVERIFY(first.isNull()); // the replaced widget is deleted with its drop-down
    button.setMenuWidget(nullptr);
    QVERIFY(!button.menu());
}

void GalleryWidgetsTest::fileMenuButtonRecentFiles()
{
    VNFileMenuButton button;
    QVERIFY(!button.recentMenu()->isEnabled());
    button.addRecentFile(QStringLiteral("/data/a.xml"));
    button.addRecentFile(QStringLiteral("/data/b.xml"));
    button.addRecentFile(QStringLiteral("/data//a.xml"));
    QCOMPARE(button.recentFiles(), QStringList({"/data/a.xml", "/data/b.xml"}));
    QVERIFY(button.recentMenu()->isEnabled());
    QCOMPARE(button.recentMenu()->actions().at(1)->text(), QStringLiteral("b.xml"));
    QSignalSpy recent(&button, &VNFileMenuButton::recentFileRequested);
    QSignalSpy open(&button, &VNFileMenuButton::openRequested);
    button.recentMenu()->actions().at(1)->trigger();
    QCOMPARE(recent.value(0).value(0).toString(), QStringLiteral("/data/b.xml"));
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(open.size(), 1);
}

void GalleryWidgetsTest::filterListViewFilters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("visible");
    QTest::newRow("none") << "" << QStringList({"Hallo", "Kuchen", "Halter"});
    QTest::newRow("prefix") << "hal" << QStringList({"Hallo", "Halter"});
    QTest::newRow("inside") << "CHE" << QStringList({"Kuchen"});
    QTest::newRow("nothing") << "xyz" << QStringList();
}

void GalleryWidgetsTest::filterListViewFilters()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, visible);
    VNFilterListView view;
    view.setItems({"Hallo", "Kuchen"});
    view.addItem(QStringLiteral("Halter"));
    QTest::keyClicks(view.filterEdit(), filter);
    QCOMPARE(view.visibleItems(), visible);
    view.setWidgetStatus(VNWidgetStatus::needInput);
    QCOMPARE(view.filterEdit()->getWidgetStatus(), VNWidgetStatus::StatusFlags(VNWidgetStatus::needInput));
    // Typing fades the line edit's clear button in; Qt deletes that animation only when it has run
    // to its end, so the view stays until the button is fully shown.
    if (!filter.isEmpty()) {
        auto* clearButton = view.filterEdit()->findChild<QToolButton*>();
        QVERIFY(clearButton);
        QTRY_COMPARE(clearButton->property("opacity").toReal(), 1.0);
    }
}

void GalleryWidgetsTest::listToolBarVariants_data()
{
    QTest::addColumn<VNListToolBar::Attachment>("attachment");
    QTest::addColumn<bool>("lineOnTop");
    QTest::addColumn<bool>("lineAtBottom");
    QTest::addColumn<bool>("lineOnLeft");
    QTest::newRow("below a list") << VNListToolBar::AttachedBelow << true << false << false;
    QTest::newRow("above a list") << VNListToolBar::AttachedAbove << false << true << false;
    QTest::newRow("standalone") << VNListToolBar::Standalone << true << true << true;
}

void GalleryWidgetsTest::listToolBarVariants()
{
    QFETCH(VNListToolBar::Attachment, attachment);
    QFETCH(bool, lineOnTop);
    QFETCH(bool, lineAtBottom);
    QFETCH(bool, lineOnLeft);
    VNListToolBar bar;
    bar.setAttachment(attachment);
    bar.resize(120, 24);
    const QImage image = bar.grab().toImage();
    const QColor line(0xc9, 0xd0, 0xd8);
    QCOMPARE(image.pixelColor(60, 0) == line, lineOnTop);
    QCOMPARE(image.pixelColor(60, 23) == line, lineAtBottom);
    QCOMPARE(image.pixelColor(0, 12) == line, lineOnLeft);
}

QTEST_MAIN(GalleryWidgetsTest)
#include "tst_gallerywidgets.moc"
