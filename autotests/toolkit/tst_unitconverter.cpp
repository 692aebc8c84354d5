#include "UnitConverter.h"

#include <QMetaEnum>
#include <QSet>
#include <QTest>
#include <QtMath>

#include <algorithm>

namespace {
// One of each unit in another unit of its quantity, from published definitions.
const struct Reference
{
    const char* from;
    double amount;
    const char* to;
    double expected;
} references[] = {
    {"", 1, "%", 100},
    {"%", 1, "", 0.01},
    {"deg", 1, "rad", 0.017453292519943295},
    {"rad", 1, "deg", 57.29577951308232},
    {"mm", 1, "m", 0.001},
    {"cm", 1, "mm", 10},
    {"m", 1, "cm", 100},
    {"inch", 1, "mm", 25.4},
    {"ft", 1, "inch", 12},
    {"ft", 1, "m", 0.3048},
    {"N", 1, "kN", 0.001},
    {"kN", 1, "N", 1000},
    {"MPa", 1, "kPa", 1000},
    {"MPa", 1, "bar", 10},
    {"MPa", 1, "psi", 145.0377377},
    {"kPa", 1, "Pa", 1000},
    {"bar", 1, "kPa", 100},
    {"psi", 1, "kPa", 6.894757293},
    {"Pa", 1, "MPa", 1e-6},
    {"kg", 1, "t", 0.001},
    {"t", 1, "kg", 1000},
    {"s", 1, "min", 1.0 / 60},
    {"min", 1, "s", 60},
    {"\u00b0C", 1, "K", 274.15},
    {"\u00b0C", 100, "K", 373.15},
    {"K", 0, "\u00b0C", -273.15},
};
} // namespace

class TestUnitConverter : public QObject
{
    Q_OBJECT

private slots:
    void convert_data();
    void convert();
    void referenceValues_data();
    void referenceValues();
    void everyUnitHasAReference();
    void symbolsAreMatchedExactly_data();
    void symbolsAreMatchedExactly();
    void roundTripThroughEveryUnit();
    void readsCommonSpellings();
    void everyEnumKeyHasItsOwnText();
};

void TestUnitConverter::convert_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("convertable");
    QTest::addColumn<double>("expected");

    // Spellings and quantities; the factors themselves are in referenceValues.
    const auto row = [](const char* tag, double value, const char* from, const char* to, bool convertable,
                        double expected) {
        QTest::newRow(tag) << value << QString::fromUtf8(from) << QString::fromUtf8(to) << convertable << expected;
    };
    row("mm to inch", 25.4, "mm", "in", true, 1.0);
    row("N/mm2 is MPa", 2.0, "N/mm\u00b2", "MPa", true, 2.0);
    row("boiling point", 373.15, "K", "degC", true, 100.0);
    row("length and angle", 3.0, "mm", "deg", false, 3.0);
    row("force and pressure", 3.0, "N", "MPa", false, 3.0);
    row("plain number and length", 3.0, "", "mm", false, 3.0);
    row("unknown text", 3.0, "px", "px", false, 3.0);
}

void TestUnitConverter::convert()
{
    QFETCH(double, value);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(bool, convertable);
    QFETCH(double, expected);

    bool ok = !convertable;
    QCOMPARE(UnitConverter::convert(value, from, to, &ok), expected);
    QCOMPARE(ok, convertable);
    QCOMPARE(UnitConverter::isConvertable(to, from), convertable);
}

void TestUnitConverter::referenceValues_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<double>("amount");
    QTest::addColumn<QString>("to");
    QTest::addColumn<double>("expected");
    for (const auto& row : references) {
        QTest::addRow("%g %s in %s", row.amount, row.from, row.to)
            << QString::fromUtf8(row.from) << row.amount << QString::fromUtf8(row.to) << row.expected;
    }
}

void TestUnitConverter::referenceValues()
{
    QFETCH(QString, from);
    QFETCH(double, amount);
    QFETCH(QString, to);
    QFETCH(double, expected);
    bool ok = false;
    const double converted = UnitConverter::convert(amount, from, to, &ok);
    QVERIFY(ok);
    QVERIFY2(qAbs(converted - expected) <= 1e-9 * qMax(1.0, qAbs(expected)) + 5e-8 * qAbs(expected),
             qPrintable(QString::number(converted, 'g', 17)));
}

void TestUnitConverter::everyUnitHasAReference()
{
    const QMetaEnum units = QMetaEnum::fromType<UnitConverter::Unit>();
    for (int i = 0; i < units.keyCount(); ++i) {
        const QString text = UnitConverter::UnitFromTag(units.value(i));
        const bool listed = std::any_of(std::begin(references), std::end(references),
                                        [&text](const Reference& row) { return QString::fromUtf8(row.from) == text; });
        QVERIFY2(listed, units.key(i));
    }
}

void TestUnitConverter::symbolsAreMatchedExactly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isUnit");
    QTest::addColumn<QString>("canonical");
    QTest::newRow("megametre is no millimetre") << "Mm" << false << "Mm";
    QTest::newRow("M is no metre") << "M" << false << "M";
    QTest::newRow("MM") << "MM" << false << "MM";
    QTest::newRow("pascal") << "Pa" << true << "Pa";
    QTest::newRow("pa") << "pa" << false << "pa";
    QTest::newRow("MPa") << " MPa " << true << "MPa";
    QTest::newRow("MPA") << "MPA" << false << "MPA";
    QTest::newRow("KN") << "KN" << false << "KN";
    QTest::newRow("spelled out") << "Millimetre" << true << "mm";
    QTest::newRow("Inch") << "Inch" << true << "inch";
}

void TestUnitConverter::symbolsAreMatchedExactly()
{
    QFETCH(QString, text);
    QFETCH(bool, isUnit);
    QFETCH(QString, canonical);
    QCOMPARE(UnitConverter::isUnit(text), isUnit);
    QCOMPARE(UnitConverter::normalizedUnitText(text), canonical);
}

void TestUnitConverter::roundTripThroughEveryUnit()
{
    const QMetaEnum quantities = QMetaEnum::fromType<UnitConverter::Quantity>();
    for (int i = 1; i < quantities.keyCount(); ++i) {
        const QList<UnitConverter::Unit> units = UnitConverter::units(UnitConverter::Quantity(quantities.value(i)));
        QVERIFY2(units.size() >= 2, quantities.key(i));
        for (UnitConverter::Unit from : units) {
            for (UnitConverter::Unit to : units)
                QCOMPARE(UnitConverter::convert(UnitConverter::convert(-12.345, from, to), to, from), -12.345);
        }
    }
}

void TestUnitConverter::readsCommonSpellings()
{
    QCOMPARE(UnitConverter::unitFromText("\u00b0"), UnitConverter::Degree);
    QCOMPARE(UnitConverter::unitFromText("feet"), UnitConverter::Foot);
    QCOMPARE(UnitConverter::normalizedUnitText("Inch"), QStringLiteral("inch"));
    bool ok = true;
    QCOMPARE(UnitConverter::unitFromText("furlong", &ok), UnitConverter::NoUnit);
    QVERIFY(!ok);
    QVERIFY(UnitConverter::isUnit(""));
}

void TestUnitConverter::everyEnumKeyHasItsOwnText()
{
    const QMetaEnum units = QMetaEnum::fromType<UnitConverter::Unit>();
    QCOMPARE(units.name(), "Unit");
    QCOMPARE(units.key(0), "NoUnit");
    QSet<QString> texts;
    for (int i = 0; i < units.keyCount(); ++i) {
        const QString text = UnitConverter::UnitFromTag(units.value(i));
        QVERIFY2(!texts.contains(text), units.key(i));
        texts.insert(text);
        QCOMPARE(int(UnitConverter::unitFromText(text)), units.value(i));
    }
    QCOMPARE(UnitConverter::UnitFromTag(2), QStringLiteral("deg"));
    QVERIFY(UnitConverter::UnitFromTag(-1).isEmpty());
    QVERIFY(UnitConverter::UnitFromTag(units.keyCount()).isEmpty());
}

QTEST_GUILESS_MAIN(TestUnitConverter)

#include "tst_unitconverter.moc"
