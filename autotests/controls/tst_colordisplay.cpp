#include "TestColorDisplay.h"

#include <ColorDisplay.h>
#include <VNDoubleSpinBox.h>
#include <VNFormatter.h>

#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QTest>

namespace {
struct Form
{
    explicit Form(QWidget* dialog)
        : display(dialog->findChild<ColorDisplay*>("m_colorDisplay"))
        , twoSides(dialog->findChild<QCheckBox*>("m_twoSides"))
        , left(dialog->findChild<QRadioButton*>("m_leftSide"))
        , right(dialog->findChild<QRadioButton*>("m_rightSide"))
        , red(dialog->findChild<VNDoubleSpinBox*>("m_red"))
        , green(dialog->findChild<VNDoubleSpinBox*>("m_green"))
        , blue(dialog->findChild<VNDoubleSpinBox*>("m_blue"))
    {}

    QColor fields() const { return QColor(int(red->value()), int(green->value()), int(blue->value())); }

    ColorDisplay* display;
    QCheckBox* twoSides;
    QRadioButton* left;
    QRadioButton* right;
    VNDoubleSpinBox* red;
    VNDoubleSpinBox* green;
    VNDoubleSpinBox* blue;
};
} // namespace

class TestColorDisplayDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void fieldsShowDisplayColour();
    void singleColourIgnoresRadioButtons();
    void fractionsAreTruncated_data();
    void fractionsAreTruncated();
    void twoSidesEditLeftAndRight();
    void switchingSidesOnlyReloads();
};

void TestColorDisplayDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The fields start with the display's colour, as whole numbers from 0 to 255.
void TestColorDisplayDialog::fieldsShowDisplayColour()
{
    TestColorDisplay dialog(nullptr);
    Form form(&dialog);
    for (VNDoubleSpinBox* field : {form.red, form.green, form.blue})
        QCOMPARE(field->maximum(), 255.0);
    QCOMPARE(form.fields(), form.display->color());
}

void TestColorDisplayDialog::singleColourIgnoresRadioButtons()
{
    TestColorDisplay dialog(nullptr);
    Form form(&dialog);
    const QColor left = form.display->colorLeft();
    const QColor right = form.display->colorRight();
    form.right->click();
    form.red->setValue(10);
    form.left->click();
    form.green->setValue(20);
    QCOMPARE(form.display->color(), QColor(10, 20, 255));
    QCOMPARE(form.display->colorLeft(), left);
    QCOMPARE(form.display->colorRight(), right);
}

void TestColorDisplayDialog::fractionsAreTruncated_data()
{
    QTest::addColumn<double>("typed");
    QTest::addColumn<int>("channel");
    QTest::newRow("just below the next") << 100.9 << 100;
    QTest::newRow("half") << 7.5 << 7;
    QTest::newRow("whole") << 42.0 << 42;
}

void TestColorDisplayDialog::fractionsAreTruncated()
{
    QFETCH(double, typed);
    QFETCH(int, channel);
    TestColorDisplay dialog(nullptr);
    Form form(&dialog);
    form.blue->setValue(typed);
    QCOMPARE(form.display->color().blue(), channel);
}

void TestColorDisplayDialog::twoSidesEditLeftAndRight()
{
    TestColorDisplay dialog(nullptr);
    dialog.show();
    Form form(&dialog);
    form.twoSides->click();
    QVERIFY(form.display->twoSides());
    QVERIFY(form.left->isEnabled());
    QCOMPARE(form.fields(), form.display->colorLeft());
    form.red->setValue(1);
    QCOMPARE(form.display->colorLeft().red(), 1);
    form.right->click();
    form.green->setValue(2);
    QCOMPARE(form.display->colorRight().green(), 2);
    QCOMPARE(form.display->colorLeft().green(), 255);

    form.twoSides->click();
    QVERIFY(!form.display->twoSides());
    QVERIFY(!form.left->isEnabled());
    QVERIFY(!form.right->isEnabled());
    QCOMPARE(form.fields(), form.display->color());
}

void TestColorDisplayDialog::switchingSidesOnlyReloads()
{
    TestColorDisplay dialog(nullptr);
    Form form(&dialog);
    form.display->setColorLeft(QColor(1, 2, 3));
    form.display->setColorRight(QColor(4, 5, 6));
    form.twoSides->click();
    QCOMPARE(form.fields(), QColor(1, 2, 3));
    form.right->click();
    QCOMPARE(form.fields(), QColor(4, 5, 6));
    form.left->click();
    QCOMPARE(form.fields(), QColor(1, 2, 3));
    QCOMPARE(form.display->colorLeft(), QColor(1, 2, 3));
    QCOMPARE(form.display->colorRight(), QColor(4, 5, 6));
}

QTEST_MAIN(TestColorDisplayDialog)
#include "tst_colordisplay.moc"
