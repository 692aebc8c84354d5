#include "UnitConverter.h"

#include <QMetaEnum>
#include <QSet>
#include <QTest>
#include <QtMath>

class TestUnitConverter : public QObject
{
    Q_OBJECT

private slots:
    void convert_data();
    void convert();
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

    QTest::newRow("inch to mm") << 1.0 << "inch"
                                << "mm" << true << 25.4;
    QTest::newRow("mm to inch") << 25.4 << "mm"
                                << "in" << true << 1.0;
    QTest::newRow("ft to m") << 1.0 << "ft"
                             << "m" << true << 0.3048;
    QTest::newRow("psi to kPa") << 1.0 << "psi"
                                << "kPa" << true << 6.894757293168;
    QTest::newRow("bar to kPa") << 1.0 << "bar"
                                << "kPa" << true << 100.0;
    QTest::newRow("N/mm2 is MPa") << 2.0 << "N/mm\u00b2"
                                  << "MPa" << true << 2.0;
    QTest::newRow("pi rad to deg") << M_PI << "rad"
                                   << "deg" << true << 180.0;
    QTest::newRow("kN to N") << 2.5 << "kN"
                             << "N" << true << 2500.0;
    QTest::newRow("t to kg") << 1.5 << "t"
                             << "kg" << true << 1500.0;
    QTest::newRow("min to s") << 1.5 << "min"
                              << "s" << true << 90.0;
    QTest::newRow("percent to plain") << 50.0 << "%"
                                      << "" << true << 0.5;
    QTest::newRow("freezing point") << 0.0 << "\u00b0C"
                                    << "K" << true << 273.15;
    QTest::newRow("boiling point") << 373.15 << "K"
                                   << "degC" << true << 100.0;
    QTest::newRow("length and angle") << 3.0 << "mm"
                                      << "deg" << false << 3.0;
    QTest::newRow("force and pressure") << 3.0 << "N"
                                        << "MPa" << false << 3.0;
    QTest::newRow("plain number and length") << 3.0 << ""
                                             << "mm" << false << 3.0;
    QTest::newRow("unknown text") << 3.0 << "px"
                                  << "px" << false << 3.0;
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
    QCOMPARE(UnitConverter::unitFromText(" MPA "), UnitConverter::Megapascal);
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
