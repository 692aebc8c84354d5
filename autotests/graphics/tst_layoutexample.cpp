#include "../TestSupport.h"
#include "MyButton.h"
#include "TestLayoutExample.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTextEdit>

namespace {
QFrame* frame(QWidget& dialog)
{
    return child<QFrame>(&dialog, "frame");
}

QPushButton* buttonUnderTest(QWidget& dialog)
{
    QLayout* layout = frame(dialog)->layout();
    for (int index = 0; index < layout->count(); ++index) {
        if (auto* button = qobject_cast<QPushButton*>(layout->itemAt(index)->widget()))
            return button;
    }
    return nullptr;
}

QPoint gridPosition(QGridLayout* grid, int index)
{
    int row, column, rowSpan, columnSpan;
    grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
    return QPoint(row, column);
}
} // namespace

class LayoutExampleTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void startState();
    void boxSwitchKeepsLayout();
    void gridPlacesByTakeOrder();
    void stretchAddedAndRemoved();
    void sizePolicyFromCombo();
    void myButtonSizeHints_data();
    void myButtonSizeHints();
    void myButtonSwapKeepsPlaceAndSettings();
    void mySizeIgnoredForPlainButton();
    void resetKeepsMyButton();
    void policiesWorkTranslated();
};

void LayoutExampleTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void LayoutExampleTest::startState()
{
    TestLayoutExample dialog(nullptr);
    QPushButton* button = buttonUnderTest(dialog);
    QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(child<QLineEdit>(&dialog, "sizeHintW")->text(), QString::number(button->sizeHint().width()));
    QVERIFY(child<QLineEdit>(&dialog, "sizeW")->isReadOnly());
    QCOMPARE(TestLayoutExample::layoutKind(frame(dialog)->layout()), 0);

    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTRY_COMPARE(child<QLineEdit>(&dialog, "sizeW")->text(), QString::number(button->width()));
}

void LayoutExampleTest::boxSwitchKeepsLayout()
{
    TestLayoutExample dialog(nullptr);
    QLayout* before = frame(dialog)->layout();
    child<QComboBox>(&dialog, "comboLayout")->setCurrentIndex(1);
    QCOMPARE(frame(dialog)->layout(), before);
    QCOMPARE(static_cast<QBoxLayout*>(before)->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(TestLayoutExample::layoutKind(before), 1);
    child<QComboBox>(&dialog, "comboLayout")->setCurrentIndex(0);
    QCOMPARE(frame(dialog)->layout(), before);
    QCOMPARE(static_cast<QBoxLayout*>(before)->direction(), QBoxLayout::LeftToRight);
}

void LayoutExampleTest::gridPlacesByTakeOrder()
{
    TestLayoutExample dialog(nullptr);
    QTest::mouseClick(child<QCheckBox>(&dialog, "addStretch"), Qt::LeftButton);
    child<QComboBox>(&dialog, "comboLayout")->setCurrentIndex(2);
    auto* grid = qobject_cast<QGridLayout*>(frame(dialog)->layout());
    QVERIFY(grid);
    QCOMPARE(grid->count(), 4);
    QVERIFY(qobject_cast<QTextEdit*>(grid->itemAt(0)->widget()));
    QCOMPARE(gridPosition(grid, 0), QPoint(0, 0));
    QVERIFY(qobject_cast<QLineEdit*>(grid->itemAt(1)->widget()));
    QCOMPARE(gridPosition(grid, 1), QPoint(0, 1));
    QVERIFY(qobject_cast<QPushButton*>(grid->itemAt(2)->widget()));
    QCOMPARE(gridPosition(grid, 2), QPoint(1, 0));
    QVERIFY(grid->itemAt(3)->spacerItem());
    QCOMPARE(gridPosition(grid, 3), QPoint(1, 1));

    child<QComboBox>(&dialog, "comboLayout")->setCurrentIndex(1);
    auto* box = qobject_cast<QBoxLayout*>(frame(dialog)->layout());
    QVERIFY(box);
    QCOMPARE(box->direction(), QBoxLayout::TopToBottom);
    QVERIFY(qobject_cast<QTextEdit*>(box->itemAt(0)->widget()));
    QVERIFY(qobject_cast<QLineEdit*>(box->itemAt(1)->widget()));
    QVERIFY(qobject_cast<QPushButton*>(box->itemAt(2)->widget()));
    QVERIFY(box->itemAt(3)->spacerItem());
}

void LayoutExampleTest::stretchAddedAndRemoved()
{
    TestLayoutExample dialog(nullptr);
    auto* stretch = child<QCheckBox>(&dialog, "addStretch");
    QTest::mouseClick(stretch, Qt::LeftButton);
    QTest::mouseClick(stretch, Qt::LeftButton);
    QTest::mouseClick(stretch, Qt::LeftButton);
    QCOMPARE(frame(dialog)->layout()->count(), 4);
    QTest::mouseClick(stretch, Qt::LeftButton);
    QCOMPARE(frame(dialog)->layout()->count(), 3);
}

void LayoutExampleTest::sizePolicyFromCombo()
{
    TestLayoutExample dialog(nullptr);
    child<QComboBox>(&dialog, "comboHSizePolicy")->setCurrentIndex(5);
    child<QComboBox>(&dialog, "comboVSizePolicy")->setCurrentIndex(4);
    QCOMPARE(buttonUnderTest(dialog)->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(buttonUnderTest(dialog)->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void LayoutExampleTest::myButtonSizeHints_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("extraWidth");
    QTest::newRow("short") << "OK" << 120;
    QTest::newRow("long") << "A much longer caption" << 40;
    QTest::newRow("empty") << "" << 0;
}

void LayoutExampleTest::myButtonSizeHints()
{
    QFETCH(QString, text);
    QFETCH(int, extraWidth);
    MyButton button;
    button.setText(text);
    QCOMPARE(button.extraSize(), QSize(120, 20));
    button.setExtraWidth(extraWidth);
    const QRect bounds = button.fontMetrics().boundingRect(text);
    QCOMPARE(button.minimumSizeHint(), QSize(bounds.width() + 20, bounds.height()));
    QCOMPARE(button.sizeHint(), QSize(bounds.width() + 20 + extraWidth, bounds.height() + 20));
}

void LayoutExampleTest::myButtonSwapKeepsPlaceAndSettings()
{
    TestLayoutExample dialog(nullptr);
    child<QComboBox>(&dialog, "comboLayout")->setCurrentIndex(2);
    child<QSpinBox>(&dialog, "minSizeW")->setValue(90);
    child<QLineEdit>(&dialog, "buttonText")->setText(QStringLiteral("Press"));
    QTest::mouseClick(child<QCheckBox>(&dialog, "useMyButton"), Qt::LeftButton);

    auto* myButton = qobject_cast<MyButton*>(buttonUnderTest(dialog));
    QVERIFY(myButton);
    QCOMPARE(myButton->text(), QStringLiteral("Press"));
    QCOMPARE(myButton->minimumWidth(), 90);
    auto* grid = static_cast<QGridLayout*>(frame(dialog)->layout());
    QCOMPARE(gridPosition(grid, grid->indexOf(myButton)), QPoint(1, 0));
    QCOMPARE(child<QSpinBox>(&dialog, "m_mySize")->value(), 120);
    auto* code = dialog.findChild<QTextEdit*>();
    QCOMPARE(code->toPlainText(), TestLayoutExample::myButtonSource(120));
    QVERIFY(code->toPlainText().contains(QStringLiteral("return minimumSizeHint() + QSize(120,20);")));

    child<QSpinBox>(&dialog, "m_mySize")->setValue(50);
    QCOMPARE(myButton->extraSize().width(), 50);
    QVERIFY(code->toPlainText().contains(QStringLiteral("QSize(50,20)")));

    // The size fields follow the new button.
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    child<QSpinBox>(&dialog, "minSizeW")->setValue(150);
    QTRY_VERIFY(myButton->width() >= 150);
    QCOMPARE(child<QLineEdit>(&dialog, "sizeW")->text(), QString::number(myButton->width()));

    QTest::mouseClick(child<QCheckBox>(&dialog, "useMyButton"), Qt::LeftButton);
    QPushButton* plain = buttonUnderTest(dialog);
    QVERIFY(!qobject_cast<MyButton*>(plain));
    QCOMPARE(plain->text(), QStringLiteral("Press"));
    QVERIFY(code->toPlainText().isEmpty());
    QCOMPARE(grid->count(), 3);
}

void LayoutExampleTest::mySizeIgnoredForPlainButton()
{
    TestLayoutExample dialog(nullptr);
    QPushButton* button = buttonUnderTest(dialog);
    const QSize hint = button->sizeHint();
    child<QSpinBox>(&dialog, "m_mySize")->setValue(300);
    QCOMPARE(buttonUnderTest(dialog), button);
    QCOMPARE(button->sizeHint(), hint);
    QVERIFY(dialog.findChild<QTextEdit*>()->toPlainText().isEmpty());
}

void LayoutExampleTest::resetKeepsMyButton()
{
    TestLayoutExample dialog(nullptr);
    QTest::mouseClick(child<QCheckBox>(&dialog, "useMyButton"), Qt::LeftButton);
    child<QComboBox>(&dialog, "comboHSizePolicy")->setCurrentIndex(6);
    QTest::mouseClick(child<QPushButton>(&dialog, "resetBtn"), Qt::LeftButton);
    QVERIFY(!child<QCheckBox>(&dialog, "useMyButton")->isChecked());
    QVERIFY(qobject_cast<MyButton*>(buttonUnderTest(dialog)));
    QCOMPARE(buttonUnderTest(dialog)->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
}

// The policy and layout items are code names that the slots convert back: translations keep them.
void LayoutExampleTest::policiesWorkTranslated()
{
    const MockTranslation mock;
    if (!mock.loaded())
        QSKIP("built without lupdate and lrelease");
    TestLayoutExample dialog(nullptr);
    QVERIFY(child<QPushButton>(&dialog, "resetBtn")->text() != QStringLiteral("Rest"));
    QCOMPARE(child<QComboBox>(&dialog, "comboLayout")->itemText(2), QStringLiteral("QGridLayout"));
    QCOMPARE(buttonUnderTest(dialog)->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    child<QComboBox>(&dialog, "comboVSizePolicy")->setCurrentIndex(6);
    QCOMPARE(buttonUnderTest(dialog)->sizePolicy().verticalPolicy(), QSizePolicy::Ignored);
}

QTEST_MAIN(LayoutExampleTest)
#include "tst_layoutexample.moc"
