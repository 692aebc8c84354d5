#include "../TestSupport.h"
#include "TestStringReducer.h"

#include <PathShortener.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

namespace {
const QString samplePath = QStringLiteral("I:\\datablabla\\work\\temporary\\TP_96757_hemming_plan.vnd");
const QString sampleName = QStringLiteral("TP_96757_hemming_plan.vnd");
const QString leastWithName = QStringLiteral("I:\\%1\\TP_96757_hemming_plan.vnd").arg(PathShortener::ellipsis);

QLineEdit* field(QWidget* dialog)
{
    return child<QLineEdit>(dialog, "label");
}

int textWidth(QLineEdit* edit)
{
    return QFontMetrics(edit->font()).horizontalAdvance(edit->text());
}
} // namespace

class StringReducerTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void sampleData();
    void fixedWidth_data();
    void fixedWidth();
    void widthIgnoredWhileNotFixed();
    void freeingTheWidthWaitsForTheNextAdjust();
    void adjustOnResize();
};

void StringReducerTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void StringReducerTest::sampleData()
{
    TestStringReducer dialog(nullptr);
    QVERIFY(field(&dialog)->text().isEmpty());
    QVERIFY(field(&dialog)->isReadOnly());
    // The width stays within what the field can show.
    auto* width = child<QSpinBox>(&dialog, "m_width");
    width->setValue(700);
    QCOMPARE(width->value(), 600);
    width->setValue(-1);
    QCOMPARE(width->value(), 0);
}

void StringReducerTest::fixedWidth_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("wide") << 600;
    QTest::newRow("sample") << 258;
    QTest::newRow("just the name") << 10 + QFontMetrics(QFont()).horizontalAdvance(leastWithName);
    QTest::newRow("narrow") << 90;
    QTest::newRow("nothing") << 0;
}

// With the width fixed, every change of the spin box re-shortens at once.
void StringReducerTest::fixedWidth()
{
    QFETCH(int, width);
    TestStringReducer dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* spinBox = child<QSpinBox>(&dialog, "m_width");
    clickButton(&dialog, "m_fixedWidth");
    spinBox->setValue(width == 258 ? 300 : 258);
    spinBox->setValue(width);
    QLineEdit* result = field(&dialog);
    QCOMPARE(result->width(), width);
    QVERIFY(textWidth(result) <= std::max(0, width - 10));
    const QFontMetrics metrics(result->font());
    const int room = width - 10;
    QCOMPARE(result->text() == samplePath, metrics.horizontalAdvance(samplePath) <= room);
    const bool keepsName = metrics.horizontalAdvance(leastWithName) <= room;
    QCOMPARE(result->text().startsWith(QStringLiteral("I:\\")) && result->text().endsWith(sampleName), keepsName);
    QCOMPARE(result->text().isEmpty(), room < metrics.horizontalAdvance(PathShortener::ellipsis));
}

void StringReducerTest::widthIgnoredWhileNotFixed()
{
    TestStringReducer dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(child<QPushButton>(&dialog, "pushButton"), Qt::LeftButton);
    QLineEdit* result = field(&dialog);
    const QString shown = result->text();
    const int fieldWidth = result->width();
    child<QSpinBox>(&dialog, "m_width")->setValue(40);
    QCOMPARE(result->text(), shown);
    QCOMPARE(result->width(), fieldWidth);
}

void StringReducerTest::freeingTheWidthWaitsForTheNextAdjust()
{
    TestStringReducer dialog(nullptr);
    dialog.resize(1400, 139);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QLineEdit* result = field(&dialog);
    const int freeWidth = result->width();
    child<QSpinBox>(&dialog, "m_width")->setValue(150);
    clickButton(&dialog, "m_fixedWidth");
    const QString narrow = result->text();
    QVERIFY(narrow != samplePath);

    clickButton(&dialog, "m_fixedWidth");
    QCOMPARE(result->minimumWidth(), 10);
    QCOMPARE(result->maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(result->text(), narrow);
    QTRY_COMPARE(result->width(), freeWidth);
    QCOMPARE(result->text(), narrow);
    QTest::mouseClick(child<QPushButton>(&dialog, "pushButton"), Qt::LeftButton);
    QCOMPARE(result->text(), samplePath);
}

void StringReducerTest::adjustOnResize()
{
    TestStringReducer dialog(nullptr);
    dialog.resize(400, 139);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QLineEdit* result = field(&dialog);
    dialog.resize(1400, 139);
    QVERIFY(result->text().isEmpty()); // not adjusting on resize yet

    dialog.resize(400, 139);
    clickButton(&dialog, "checkBox");
    const QString narrow = result->text();
    QVERIFY(!narrow.isEmpty());
    QVERIFY(narrow != samplePath);
    QVERIFY(textWidth(result) <= result->width() - 10);
    dialog.resize(1400, 139);
    QTRY_COMPARE(result->text(), samplePath);
    dialog.resize(400, 139);
    QTRY_COMPARE(result->text(), narrow);

    clickButton(&dialog, "checkBox");
    dialog.resize(1400, 139);
    QCOMPARE(result->text(), narrow);
}

QTEST_MAIN(StringReducerTest)
#include "tst_stringreducer.moc"
