#include "TestAlignment.h"

#include <QApplication>
#include <QCheckBox>
#include <QTest>

class TestAlignmentDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void guidesRunAlongFieldEdges();
};

void TestAlignmentDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestAlignmentDialog::guidesRunAlongFieldEdges()
{
    TestAlignment dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QWidget* area = dialog.findChild<QWidget*>("m_alignmentArea");
    const QRect edit = dialog.findChild<QWidget*>("m_lineEditNormal")->geometry();
    const QImage withGuides = area->grab().toImage();
    // Between the columns, away from every control, only a guide can colour the edit's top row.
    const int gapX = edit.right() + 3;
    QCOMPARE(withGuides.pixelColor(gapX, edit.top()), QColor(0, 170, 200));
    dialog.findChild<QCheckBox*>("m_showGuides")->click();
    const QImage withoutGuides = area->grab().toImage();
    QVERIFY(withoutGuides.pixelColor(gapX, edit.top()) != QColor(0, 170, 200));
}

QTEST_MAIN(TestAlignmentDialog)
#include "tst_alignment.moc"
