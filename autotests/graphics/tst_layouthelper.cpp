#include "TestInfoArea.h"
#include "TestLayoutHelper.h"

#include <LayoutVisualizationFilter.h>
#include <VNInfoArea.h>
#include <VNLayoutHelper.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace {
const char* const layoutNames[] = {"m_layout1", "m_layout2",         "m_layout3",
                                   "m_layout4", "m_directionLayout", "m_directionLayoutWithoutDisclosure"};

QList<int> labelColumnEnds(TestLayoutHelper& dialog)
{
    QList<int> ends;
    for (const char* name : layoutNames)
        ends.append(dialog.layoutHelper()->labelColumnEnd(dialog.findChild<QGridLayout*>(QLatin1String(name))));
    return ends;
}

int distinctEnds(TestLayoutHelper& dialog)
{
    QList<int> ends = labelColumnEnds(dialog);
    std::sort(ends.begin(), ends.end());
    return int(std::unique(ends.begin(), ends.end()) - ends.begin());
}

int differingPixels(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < qMin(a.height(), b.height()); ++y) {
        for (int x = 0; x < qMin(a.width(), b.width()); ++x)
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return count;
}
} // namespace

class LayoutHelperTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void labelColumnsEndTogether();
    void readdingGivesSameAlignment();
    void helperAlignsSeparateGrids();
    void visualizationOnlyWhileInstalled();
    void infoAreaTypes();
};

void LayoutHelperTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void LayoutHelperTest::labelColumnsEndTogether()
{
    TestLayoutHelper dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.layoutHelper()->layoutCount(), 6);
    QTRY_COMPARE(distinctEnds(dialog), 1);
    // The widest label decides: no label column is narrower than its own labels.
    auto* profile = dialog.findChild<QWidget*>(QStringLiteral("m_restrikeDirections"));
    QVERIFY(labelColumnEnds(dialog).first() >= profile->mapTo(&dialog, QPoint(profile->sizeHint().width(), 0)).x());
    // With the hint, the hint's column is the label column.
    auto* hint = dialog.findChild<QWidget*>(QStringLiteral("m_labelForHint1"));
    QCOMPARE(hint->mapTo(&dialog, QPoint(0, 0)).x() < labelColumnEnds(dialog).first(), true);
    auto* button4 = dialog.findChild<QWidget*>(QStringLiteral("m_btn_4"));
    QVERIFY(button4->mapTo(&dialog, QPoint(button4->width(), 0)).x() < hint->mapTo(&dialog, QPoint(0, 0)).x());
}

void LayoutHelperTest::readdingGivesSameAlignment()
{
    TestLayoutHelper dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTRY_COMPARE(distinctEnds(dialog), 1);
    const QList<int> before = labelColumnEnds(dialog);
    auto* readd = dialog.findChild<QPushButton*>(QStringLiteral("m_removeAndAddAllAgain"));
    for (int round = 0; round < 3; ++round)
        QTest::mouseClick(readd, Qt::LeftButton);
    QCOMPARE(dialog.layoutHelper()->layoutCount(), 6);
    QTRY_COMPARE(labelColumnEnds(dialog), before);
}

void LayoutHelperTest::helperAlignsSeparateGrids()
{
    QWidget form;
    auto* outer = new QVBoxLayout(&form);
    auto* first = new QGridLayout;
    first->addWidget(new QLabel(QStringLiteral("A")), 0, 0);
    first->addWidget(new QLabel(QStringLiteral("value")), 0, 1);
    auto* second = new QGridLayout;
    second->setContentsMargins(30, 0, 0, 0);
    second->addWidget(new QLabel(QStringLiteral("A rather long label")), 0, 0);
    second->addWidget(new QLabel(QStringLiteral("value")), 0, 1);
    outer->addLayout(first);
    outer->addLayout(second);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    VNLayoutHelper helper(&form);
    helper.addLayout(first);
    helper.addLayout(second);
    helper.addLayout(second);
    QCOMPARE(helper.layoutCount(), 2);
    helper.help();
    QTRY_COMPARE(helper.labelColumnEnd(first), helper.labelColumnEnd(second));
    helper.removeAllLayouts();
    QCOMPARE(first->columnMinimumWidth(0), 0);
}

void LayoutHelperTest::visualizationOnlyWhileInstalled()
{
    TestLayoutHelper dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* display = dialog.findChild<QPushButton*>(QStringLiteral("m_displayLayouts"));
    auto* filter = dialog.findChild<LayoutVisualizationFilter*>();
    QVERIFY(filter);
    QVERIFY(!filter->isInstalledOn(&dialog));
    const QImage plain = dialog.grab().toImage();

    display->click();
    QVERIFY(filter->isInstalledOn(&dialog));
    QTRY_VERIFY(differingPixels(plain, dialog.grab().toImage()) > 500);

    display->click();
    QVERIFY(!filter->isInstalledOn(&dialog));
    QCOMPARE(differingPixels(plain, dialog.grab().toImage()), 0);
}

void LayoutHelperTest::infoAreaTypes()
{
    TestInfoArea dialog(nullptr);
    auto* combo = dialog.findChild<QComboBox*>(QStringLiteral("typeCombo"));
    auto* area = dialog.findChild<VNInfoArea*>(QStringLiteral("m_infoArea"));
    QCOMPARE(combo->currentIndex(), int(area->iconType()));
    QVERIFY(area->text().endsWith(QStringLiteral("invidunt ut  ...")));
    combo->setCurrentIndex(3);
    QCOMPARE(area->iconType(), VNInfoArea::Error);
    auto* vertical = dialog.findChild<QCheckBox*>(QStringLiteral("verticalArranged"));
    QTest::mouseClick(vertical, Qt::LeftButton);
    QVERIFY(area->isVerticalArranged());
    auto* info = dialog.findChild<QCheckBox*>(QStringLiteral("showInfoBtn"));
    QTest::mouseClick(info, Qt::LeftButton);
    QVERIFY(area->isInfoButtonVisible());
}

QTEST_MAIN(LayoutHelperTest)
#include "tst_layouthelper.moc"
