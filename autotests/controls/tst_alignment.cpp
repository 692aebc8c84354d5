#include "TestAlignment.h"

#include <VNMenu.h>

#include <QApplication>
#include <QCheckBox>
#include <QTest>

class TestAlignmentDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void rowsShareEdges();
    void guidesRunAlongFieldEdges();
};

void TestAlignmentDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestAlignmentDialog::rowsShareEdges()
{
    TestAlignment dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    for (const char* row : {"Normal", "NeedInput", "ReadOnly", "Disabled"}) {
        const QRect edit = dialog.findChild<QWidget*>(QStringLiteral("m_lineEdit%1").arg(row))->geometry();
        const QRect field = dialog.findChild<QWidget*>(QStringLiteral("m_spinBox%1").arg(row))->geometry();
        QCOMPARE(field.center().y(), edit.center().y());
    }
    const QRect top = dialog.findChild<QWidget*>("m_spinBoxNormal")->geometry();
    const QRect bottom = dialog.findChild<QWidget*>("m_spinBoxDisabled")->geometry();
    QCOMPARE(bottom.left(), top.left());
    QCOMPARE(bottom.width(), top.width());
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
