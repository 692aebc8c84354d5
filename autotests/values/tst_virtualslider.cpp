#include "../TestSupport.h"
#include "TestVirtualSlider.h"

#include <VNDoubleSpinBox.h>
#include <VNLabel.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

class TestVirtualSliderDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void radioButtonEnablesOnlyItsField_data();
    void radioButtonEnablesOnlyItsField();
    void checkBoxTogglesItsField_data();
    void checkBoxTogglesItsField();
    void cursorPositionWhileButtonHeld();
    void fieldValueCanBeDragged();
};

void TestVirtualSliderDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestVirtualSliderDialog::radioButtonEnablesOnlyItsField_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("enabledFields");
    QTest::newRow("first") << "m_vnRadioButton" << QStringList{"m_vnDSpinBox"};
    QTest::newRow("second") << "m_vnRadioButton_1" << QStringList{"m_vnDSpinBox_1"};
    QTest::newRow("third") << "m_vnRadioButton_2" << QStringList{"m_vnDSpinBox_2"};
    // The group's choice survives a click on the separate button outside it.
    QTest::newRow("outside the group") << "m_vnRadioButton_3" << QStringList{"m_vnDSpinBox_1", "m_vnDSpinBox_6"};
}

void TestVirtualSliderDialog::radioButtonEnablesOnlyItsField()
{
    QFETCH(QString, button);
    QFETCH(QStringList, enabledFields);
    TestVirtualSlider dialog(nullptr);
    dialog.show();
    clickButton(&dialog, "m_vnRadioButton_1");
    clickButton(&dialog, button);
    for (const QString& name : QStringList{"m_vnDSpinBox", "m_vnDSpinBox_1", "m_vnDSpinBox_2", "m_vnDSpinBox_6"})
        QCOMPARE(child<VNDoubleSpinBox>(&dialog, name)->isEnabled(), enabledFields.contains(name));
    QVERIFY(child<VNDoubleSpinBox>(&dialog, "m_vnDSpinBox_3")->isEnabled());
}

void TestVirtualSliderDialog::checkBoxTogglesItsField_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("field");
    QTest::newRow("first") << "m_vnCheckBox"
                           << "m_vnDSpinBox_4";
    QTest::newRow("second") << "m_vnCheckBox_1"
                            << "m_vnDSpinBox_8";
}

void TestVirtualSliderDialog::checkBoxTogglesItsField()
{
    QFETCH(QString, box);
    QFETCH(QString, field);
    TestVirtualSlider dialog(nullptr);
    dialog.show();
    auto* spinBox = child<VNDoubleSpinBox>(&dialog, field);
    clickButton(&dialog, box);
    QVERIFY(spinBox->isEnabled());
    clickButton(&dialog, box);
    QVERIFY(!spinBox->isEnabled());
}

void TestVirtualSliderDialog::cursorPositionWhileButtonHeld()
{
    TestVirtualSlider dialog(nullptr);
    dialog.show();
    sendLeftButtonDrag(&dialog, QEvent::MouseButtonPress, QPoint(300, 500));
    sendLeftButtonDrag(&dialog, QEvent::MouseMove, QPoint(312, 507));
    QCOMPARE(child<VNLabel>(&dialog, "vnLabel_5")->text(), QStringLiteral("Cursor pos: 312/507"));
    sendLeftButtonDrag(&dialog, QEvent::MouseButtonRelease, QPoint(312, 507));
}

void TestVirtualSliderDialog::fieldValueCanBeDragged()
{
    TestVirtualSlider dialog(nullptr);
    dialog.show();
    auto* field = child<VNDoubleSpinBox>(&dialog, "m_vnDSpinBox_3");
    QWidget* edit = field->findChild<QLineEdit*>();
    const double before = field->value();
    sendLeftButtonDrag(edit, QEvent::MouseButtonPress, QPoint(10, 8));
    sendLeftButtonDrag(edit, QEvent::MouseMove, QPoint(30, 8));
    sendLeftButtonDrag(edit, QEvent::MouseButtonRelease, QPoint(30, 8));
    QCOMPARE(field->value(), before + 5 * field->singleStep());
}

QTEST_MAIN(TestVirtualSliderDialog)
#include "tst_virtualslider.moc"
