#include "TestStringReducer.h"

#include <PathShortener.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

namespace {
const QString samplePath = QStringLiteral("I:\\datablabla\\work\\temporary\\TP_96757_hemming_plan.vnd");
const QString sampleName = QStringLiteral("TP_96757_hemming_plan.vnd");
const QString leastWithName = QStringLiteral("I:\\%1\\TP_96757_hemming_plan.vnd").arg(PathShortener::ellipsis);

template<typename Widget>
Widget* child(QWidget* dialog, const char* name)
{
    auto* widget = dialog->findChild<Widget*>(QLatin1String(name));
    if (!widget)
        qWarning("no %s named %s", Widget::staticMetaObject.className(), name);
    return widget;
}

QLineEdit* field(QWidget* dialog)
{
    return child<QLineEdit>(dialog, "label");
}

// Clicks on the box itself: a check box stretched by its layout ignores clicks beside its text.
void clickCheckBox(QWidget* dialog, const char* name)
{
    auto* box = child<QCheckBox>(dialog, name);
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(box->height() / 2, box->height() / 2));
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
    void form();
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

// What robots rely on: names, classes and texts, and the width field's range as users see it.
void StringReducerTest::form()
{
    TestStringReducer dialog(nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("TestStringReducerClass"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("TestStringReducer"));
    QVERIFY(child<QLineEdit>(&dialog, "lineEdit"));
    QCOMPARE(child<QPushButton>(&dialog, "pushButton")->text(), QStringLiteral("Adjust"));
    QCOMPARE(child<QCheckBox>(&dialog, "checkBox")->text(), QStringLiteral("Adjust on Resize"));
    QCOMPARE(child<QCheckBox>(&dialog, "m_fixedWidth")->text(), QStringLiteral("Set Fixed Width"));
    QVERIFY(field(&dialog)->isReadOnly());
    auto* width = child<QSpinBox>(&dialog, "m_width");
    QCOMPARE(width->text(), QStringLiteral("%1 px").arg(width->value()));
    width->setValue(700);
    QCOMPARE(width->value(), 600);
    width->setValue(-1);
    QCOMPARE(width->value(), 0);
}

void StringReducerTest::sampleData()
{
    TestStringReducer dialog(nullptr);
    QCOMPARE(child<QLineEdit>(&dialog, "lineEdit")->text(), samplePath);
    QCOMPARE(child<QSpinBox>(&dialog, "m_width")->value(), 258);
    QVERIFY(!child<QCheckBox>(&dialog, "m_fixedWidth")->isChecked());
    QVERIFY(!child<QCheckBox>(&dialog, "checkBox")->isChecked());
    QVERIFY(field(&dialog)->text().isEmpty());
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
    clickCheckBox(&dialog, "m_fixedWidth");
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
    clickCheckBox(&dialog, "m_fixedWidth");
    const QString narrow = result->text();
    QVERIFY(narrow != samplePath);

    clickCheckBox(&dialog, "m_fixedWidth");
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
    clickCheckBox(&dialog, "checkBox");
    const QString narrow = result->text();
    QVERIFY(!narrow.isEmpty());
    QVERIFY(narrow != samplePath);
    QVERIFY(textWidth(result) <= result->width() - 10);
    dialog.resize(1400, 139);
    QTRY_COMPARE(result->text(), samplePath);
    dialog.resize(400, 139);
    QTRY_COMPARE(result->text(), narrow);

    clickCheckBox(&dialog, "checkBox");
    dialog.resize(1400, 139);
    QCOMPARE(result->text(), narrow);
}

QTEST_MAIN(StringReducerTest)
#include "tst_stringreducer.moc"
