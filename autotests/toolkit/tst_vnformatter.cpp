#include "VNFormatter.h"

#include <QLocale>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>
#include <QtMath>

#include <cmath>

class TestVNFormatter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void notation_data();
    void notation();
    void fieldWidthAndEmpty();
    void textRoundTrip_data();
    void textRoundTrip();
    void valueFromText_data();
    void valueFromText();
    void everyFiniteDoubleInEveryNotation();
    void displayUnitResolution();
    void settingsChangedOnlyOnEffectiveChanges();
    void globalChangeSignalsOnlyAffectedFormatters();

private:
    static void clearGlobalDisplayUnits();

    QLocale m_originalLocale;
};

// Runs before any test clears the global display units.
void TestVNFormatter::initTestCase()
{
    VNFormatter formatter;
    formatter.setValueUnit(QStringLiteral("inch"));
    formatter.setUseGlobalDisplayUnit(true);
    QVERIFY(formatter.isGlobalOn());
    QCOMPARE(formatter.displayUnit(), QStringLiteral("mm"));
    QCOMPARE(VNFormatter::globalDisplayUnit(UnitConverter::Angle), QStringLiteral("deg"));
    QCOMPARE(VNFormatter::globalDisplayUnit(UnitConverter::Dimensionless), QString());
}

void TestVNFormatter::init()
{
    m_originalLocale = QLocale();
    QLocale::setDefault(QLocale::c());
    clearGlobalDisplayUnits();
}

void TestVNFormatter::cleanup()
{
    QLocale::setDefault(m_originalLocale);
}

void TestVNFormatter::clearGlobalDisplayUnits()
{
    const QMetaEnum quantities = QMetaEnum::fromType<UnitConverter::Quantity>();
    for (int i = 0; i < quantities.keyCount(); ++i)
        VNFormatter::setGlobalDisplayUnit(UnitConverter::Quantity(quantities.value(i)), QString());
}

void TestVNFormatter::notation_data()
{
    QTest::addColumn<int>("notation");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("standard") << 0 << 2 << 6 << 1234.567 << "1234.57";
    QTest::newRow("standard never -0") << 0 << 2 << 6 << -0.001 << "0.00";
    QTest::newRow("scientific") << 1 << 2 << 4 << 1234.567 << "1.235e+03";
    QTest::newRow("automatic plain") << 2 << 2 << 6 << 1234.5 << "1234.5";
    QTest::newRow("automatic large") << 2 << 2 << 6 << 1234567.0 << "1.23457e+06";
    QTest::newRow("engineering") << 3 << 2 << 3 << 12345.0 << "12.3e+03";
    QTest::newRow("engineering micro") << 3 << 2 << 3 << -0.00012345 << "-123e-06";
    QTest::newRow("engineering rounds up") << 3 << 2 << 4 << 999.96 << "1.000e+03";
    QTest::newRow("engineering zero") << 3 << 2 << 3 << 0.0 << "0.00e+00";
    QTest::newRow("engineering smallest subnormal") << 3 << 2 << 3 << 4.9406564584124654e-324 << "4.94e-324";
    QTest::newRow("engineering subnormal") << 3 << 2 << 3 << -2.5e-320 << "-25.0e-321";
    QTest::newRow("engineering largest") << 3 << 2 << 3 << 1.7976931348623157e308 << "180e+306";
    QTest::newRow("scientific subnormal") << 1 << 2 << 3 << 4.9406564584124654e-324 << "4.94e-324";
    // Half a hundredth rounds up, never down to zero; just below it rounds to zero, unsigned.
    QTest::newRow("standard 0.005") << 0 << 2 << 6 << 0.005 << "0.01";
    QTest::newRow("standard 0.007") << 0 << 2 << 6 << 0.007 << "0.01";
    QTest::newRow("standard -0.005") << 0 << 2 << 6 << -0.005 << "-0.01";
    QTest::newRow("standard 0.0049") << 0 << 2 << 6 << 0.0049 << "0.00";
    QTest::newRow("standard -0.0049") << 0 << 2 << 6 << -0.0049 << "0.00";
    QTest::newRow("standard 0.0005 at three") << 0 << 3 << 6 << 0.0005 << "0.001";
}

void TestVNFormatter::notation()
{
    QFETCH(int, notation);
    QFETCH(int, decimals);
    QFETCH(int, precision);
    QFETCH(double, value);
    QFETCH(QString, expected);

    VNFormatter formatter;
    formatter.setNotation(notation);
    formatter.setDecimals(decimals);
    formatter.setPrecision(precision);
    QCOMPARE(int(formatter.notation()), notation);
    QCOMPARE(formatter.textFromValue(value, false), expected);
}

void TestVNFormatter::fieldWidthAndEmpty()
{
    VNFormatter formatter;
    formatter.setValueUnit("mm");
    formatter.setFieldWidth(8);
    QCOMPARE(formatter.textFromValue(1.5, true), QStringLiteral("    1.50 mm"));
    formatter.setFieldWidth(-8);
    QCOMPARE(formatter.valueFromText(formatter.textFromValue(1.5, false)), 1.5);
    formatter.setEmpty(true);
    QVERIFY(formatter.isEmpty());
    QCOMPARE(formatter.textFromValue(1.5, true), QString());
}

void TestVNFormatter::textRoundTrip_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("valueUnit");
    QTest::addColumn<QString>("displayUnit");
    QTest::addColumn<int>("notation");
    QTest::addColumn<QString>("expectedText");

    const auto row = [](const char* tag, const char* locale, const char* valueUnit, const char* displayUnit,
                        int notation, const char* text) {
        QTest::newRow(tag) << locale << valueUnit << displayUnit << notation << text;
    };
    row("C, mm shown in inch", "C", "mm", "inch", 0, "48.6050 inch");
    row("German, no groups", "de_DE", "mm", "mm", 0, "1234,5678 mm");
    row("US English, no groups", "en_US", "mm", "mm", 0, "1234.5678 mm");
    row("German, scientific", "de_DE", "N", "kN", 1, "1,2346e+00 kN");
    row("German, engineering", "de_DE", "s", "min", 3, "20,576e+00 min");
}

void TestVNFormatter::textRoundTrip()
{
    QFETCH(QString, locale);
    QFETCH(QString, valueUnit);
    QFETCH(QString, displayUnit);
    QFETCH(int, notation);
    QFETCH(QString, expectedText);

    QLocale::setDefault(locale == QLatin1String("C") ? QLocale::c() : QLocale(locale));
    VNFormatter formatter;
    formatter.setValueUnit(valueUnit);
    formatter.setDisplayUnit(displayUnit);
    formatter.setNotation(notation);
    formatter.setDecimals(4);
    formatter.setPrecision(5);
    const QString text = formatter.textFromValue(1234.5678, true);
    QCOMPARE(text, expectedText);

    bool ok = false;
    const double parsed = formatter.valueFromText(text, &ok);
    QVERIFY(ok);
    QVERIFY(qAbs(parsed - 1234.5678) <= 0.2); // the text holds only the shown digits
    QCOMPARE(formatter.textFromValue(parsed, true), text);
    QCOMPARE(formatter.valueFromText(formatter.textFromValue(parsed, false)), parsed);
}

void TestVNFormatter::valueFromText_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("displayUnit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("expectedMm");

    const auto row = [](const char* tag, const char* locale, const char* displayUnit, const char* text, bool ok,
                        double mm) {
        QTest::newRow(tag) << locale << displayUnit << QString::fromUtf8(text) << ok << mm;
    };
    row("German decimal comma", "de_DE", "", "1,5", true, 1.5);
    row("German, C decimal point", "de_DE", "", "1.5", true, 1.5);
    // A separator never changes the magnitude: grouping is refused, and so is what could be read
    // either way.
    const struct
    {
        const char* locale;
        const char* text;
        bool ok;
        double value;
    } separators[] = {
        {"de_DE", "0.125", true, 0.125},   {"de_DE", "0,125", true, 0.125},   {"de_DE", "1.500", false, 0},
        {"de_DE", "2.000", false, 0},      {"de_DE", "-1.500", false, 0},     {"de_DE", "1.234,5", false, 0},
        {"de_DE", "1.234.567", false, 0},  {"de_DE", "1234.5", true, 1234.5}, {"de_DE", "1.5e3", true, 1500},
        {"en_US", "0,125", false, 0},      {"en_US", "1,500", false, 0},      {"en_US", "1.500", true, 1.5},
        {"fr_FR", "1\u202f000", false, 0}, {"fr_FR", "0,5", true, 0.5},       {"fr_FR", "0.5", true, 0.5},
        {"de_CH", "1\u2019000", false, 0}, {"C", "1,500", false, 0},          {"de_DE", "0.125 mm", true, 0.125},
    };
    for (const auto& separator : separators) {
        QTest::addRow("%s %s", separator.locale, separator.text)
            << separator.locale << "" << QString::fromUtf8(separator.text) << separator.ok << separator.value;
    }
    row("no unit means display unit", "C", "inch", "2", true, 50.8);
    row("typed unit wins", "C", "inch", "2 cm", true, 20.0);
    row("unit without space", "C", "", "1e-3m", true, 1.0);
    row("unit of another quantity", "C", "", "5 deg", false, 0.0);
    row("unknown unit", "C", "", "5 furlong", false, 0.0);
    row("not a number", "C", "", "abc", false, 0.0);
    row("blank", "C", "", "  ", false, 0.0);
    row("infinite", "C", "", "inf", false, 0.0);
}

void TestVNFormatter::valueFromText()
{
    QFETCH(QString, locale);
    QFETCH(QString, displayUnit);
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(double, expectedMm);

    QLocale::setDefault(locale == QLatin1String("C") ? QLocale::c() : QLocale(locale));
    VNFormatter formatter;
    formatter.setValueUnit("mm");
    formatter.setDisplayUnit(displayUnit);
    bool parsed = !ok;
    QCOMPARE(formatter.valueFromText(text, &parsed), expectedMm);
    QCOMPARE(parsed, ok);
}

void TestVNFormatter::everyFiniteDoubleInEveryNotation()
{
    // Powers of two from the smallest subnormal to the largest double, both signs: every text
    // reads back as a finite number within the shown precision.
    VNFormatter formatter;
    formatter.setPrecision(3);
    for (int notation = VNFormatter::ScientificNotation; notation <= VNFormatter::EngineeringNotation; ++notation) {
        formatter.setNotation(notation);
        for (int exponent = -1074; exponent <= 1023; exponent += 7) {
            for (double sign : {1.0, -1.0}) {
                const double value = sign * std::ldexp(1.0, exponent);
                const QString text = formatter.textFromValue(value);
                bool ok = false;
                const double back = formatter.valueFromText(text, &ok);
                QVERIFY2(ok && qAbs(back - value) <= 0.006 * qAbs(value),
                         qPrintable(QStringLiteral("%1 (notation %2)").arg(text).arg(notation)));
            }
        }
    }
}

void TestVNFormatter::displayUnitResolution()
{
    VNFormatter formatter;
    formatter.setValueUnit("mm");
    formatter.setDisplayUnit("deg");
    QCOMPARE(formatter.displayUnit(), QStringLiteral("mm")); // cannot convert, so not shown
    formatter.setUseGlobalDisplayUnit(true);
    QVERIFY(!formatter.isGlobalOn());

    QVERIFY(VNFormatter::setGlobalDisplayUnit(UnitConverter::Length, "inch"));
    QVERIFY(formatter.isGlobalOn());
    QCOMPARE(formatter.displayUnit(), QStringLiteral("inch"));
    QCOMPARE(formatter.valueToDisplayValue(25.4), 1.0);
    QCOMPARE(formatter.displayValueToValue(2.0), 50.8);
    QVERIFY(!VNFormatter::setGlobalDisplayUnit(UnitConverter::Length, "deg"));
    QVERIFY(!VNFormatter::setGlobalDisplayUnit(UnitConverter::Dimensionless, "%"));

    formatter.setDisplayUnit("cm", true);
    QVERIFY(!formatter.isGlobalOn());
    QCOMPARE(formatter.textFromValue(25.4, true), QStringLiteral("2.54 cm"));

    VNFormatter label; // without a value unit, nothing converts: the display unit is a label
    label.setDisplayUnit("mm");
    QCOMPARE(label.textFromValue(2.0, true), QStringLiteral("2.00 mm"));
}

void TestVNFormatter::settingsChangedOnlyOnEffectiveChanges()
{
    VNFormatter formatter;
    QSignalSpy spy(&formatter, &VNFormatter::settingsChanged);
    formatter.setDecimals(formatter.decimals());
    formatter.setPrecision(formatter.precision());
    formatter.setNotation(42);
    formatter.setEmpty(false);
    formatter.setFieldWidth(0);
    formatter.setValueUnit("");
    formatter.setUseGlobalDisplayUnit(false);
    QCOMPARE(spy.count(), 0);

    formatter.setDecimals(3);
    formatter.setPrecision(8);
    formatter.setNotation(VNFormatter::EngineeringNotation);
    formatter.setEmpty(true);
    formatter.setFieldWidth(10);
    formatter.setValueUnit("mm");
    formatter.setDisplayUnit("inch");
    formatter.setUseGlobalDisplayUnit(true);
    QCOMPARE(spy.count(), 8);

    formatter.setValueUnit("Millimetre");
    formatter.setDisplayUnit("in");
    formatter.setDecimals(-5);
    formatter.setDecimals(-1);
    QCOMPARE(spy.count(), 9);
    QCOMPARE(formatter.decimals(), 0);
}

void TestVNFormatter::globalChangeSignalsOnlyAffectedFormatters()
{
    VNFormatter following;
    following.setValueUnit("mm");
    following.setUseGlobalDisplayUnit(true);
    VNFormatter ownUnit;
    ownUnit.setValueUnit("mm");
    VNFormatter angle;
    angle.setValueUnit("deg");
    angle.setUseGlobalDisplayUnit(true);
    QSignalSpy followingSpy(&following, &VNFormatter::settingsChanged);
    QSignalSpy ownUnitSpy(&ownUnit, &VNFormatter::settingsChanged);
    QSignalSpy angleSpy(&angle, &VNFormatter::settingsChanged);

    QVERIFY(VNFormatter::setGlobalDisplayUnit(UnitConverter::Length, "ft"));
    QVERIFY(VNFormatter::setGlobalDisplayUnit(UnitConverter::Length, "feet"));
    QCOMPARE(followingSpy.count(), 1);
    QVERIFY(VNFormatter::setGlobalDisplayUnit(UnitConverter::Length, QString()));
    QCOMPARE(followingSpy.count(), 2);
    QCOMPARE(following.displayUnit(), QStringLiteral("mm"));
    QCOMPARE(ownUnitSpy.count(), 0);
    QCOMPARE(angleSpy.count(), 0);
}

QTEST_GUILESS_MAIN(TestVNFormatter)

#include "tst_vnformatter.moc"
