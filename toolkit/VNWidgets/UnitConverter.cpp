#include "UnitConverter.h"

#include <QHash>
#include <QtMath>

namespace {

// A value in `unit` is `value * factor + offset` in the reference unit of its quantity. The
// reference units (mm, deg, N, Pa, kg, s, K) keep the everyday conversions exact: 1 inch is
// 25.4 mm, not 0.0254 m.
struct UnitInfo
{
    UnitConverter::Unit unit;
    UnitConverter::Quantity quantity;
    const char* text; // UTF-8; escaped bytes keep it independent of the compiler's source charset
    double factor;
    double offset;
};

// The pound-force per square inch as defined from the international pound and inch.
constexpr double psiInPascal = 4.4482216152605 / (0.0254 * 0.0254);

const UnitInfo unitInfos[] = {
    {UnitConverter::NoUnit, UnitConverter::Dimensionless, "", 1.0, 0.0},
    {UnitConverter::Percent, UnitConverter::Dimensionless, "%", 0.01, 0.0},
    {UnitConverter::Degree, UnitConverter::Angle, "deg", 1.0, 0.0},
    {UnitConverter::Radian, UnitConverter::Angle, "rad", 180.0 / M_PI, 0.0},
    {UnitConverter::Millimeter, UnitConverter::Length, "mm", 1.0, 0.0},
    {UnitConverter::Centimeter, UnitConverter::Length, "cm", 10.0, 0.0},
    {UnitConverter::Meter, UnitConverter::Length, "m", 1000.0, 0.0},
    {UnitConverter::Inch, UnitConverter::Length, "inch", 25.4, 0.0},
    {UnitConverter::Foot, UnitConverter::Length, "ft", 304.8, 0.0},
    {UnitConverter::Newton, UnitConverter::Force, "N", 1.0, 0.0},
    {UnitConverter::Kilonewton, UnitConverter::Force, "kN", 1000.0, 0.0},
    {UnitConverter::Megapascal, UnitConverter::Pressure, "MPa", 1.0e6, 0.0},
    {UnitConverter::Kilopascal, UnitConverter::Pressure, "kPa", 1.0e3, 0.0},
    {UnitConverter::Bar, UnitConverter::Pressure, "bar", 1.0e5, 0.0},
    {UnitConverter::Psi, UnitConverter::Pressure, "psi", psiInPascal, 0.0},
    {UnitConverter::Kilogram, UnitConverter::Mass, "kg", 1.0, 0.0},
    {UnitConverter::Tonne, UnitConverter::Mass, "t", 1000.0, 0.0},
    {UnitConverter::Second, UnitConverter::Time, "s", 1.0, 0.0},
    {UnitConverter::Minute, UnitConverter::Time, "min", 60.0, 0.0},
    {UnitConverter::DegreeCelsius, UnitConverter::Temperature, "\xc2\xb0\x43", 1.0, 273.15}, // °C
    {UnitConverter::Kelvin, UnitConverter::Temperature, "K", 1.0, 0.0},
    {UnitConverter::Pascal, UnitConverter::Pressure, "Pa", 1.0, 0.0},
};

struct Alias
{
    const char* text; // UTF-8
    UnitConverter::Unit unit;
};

const Alias aliases[] = {
    {"none", UnitConverter::NoUnit},
    {"-", UnitConverter::NoUnit},
    {"percent", UnitConverter::Percent},
    {"\xc2\xb0", UnitConverter::Degree}, // °
    {"degree", UnitConverter::Degree},
    {"degrees", UnitConverter::Degree},
    {"radian", UnitConverter::Radian},
    {"radians", UnitConverter::Radian},
    {"millimeter", UnitConverter::Millimeter},
    {"millimetre", UnitConverter::Millimeter},
    {"centimeter", UnitConverter::Centimeter},
    {"centimetre", UnitConverter::Centimeter},
    {"meter", UnitConverter::Meter},
    {"metre", UnitConverter::Meter},
    {"in", UnitConverter::Inch},
    {"inches", UnitConverter::Inch},
    {"\"", UnitConverter::Inch},
    {"\xe2\x80\xb3", UnitConverter::Inch}, // ″
    {"foot", UnitConverter::Foot},
    {"feet", UnitConverter::Foot},
    {"'", UnitConverter::Foot},
    {"\xe2\x80\xb2", UnitConverter::Foot}, // ′
    {"newton", UnitConverter::Newton},
    {"kilonewton", UnitConverter::Kilonewton},
    {"N/mm\xc2\xb2", UnitConverter::Megapascal}, // N/mm²
    {"N/mm^2", UnitConverter::Megapascal},
    {"N/mm2", UnitConverter::Megapascal},
    {"tonne", UnitConverter::Tonne},
    {"tonnes", UnitConverter::Tonne},
    {"sec", UnitConverter::Second},
    {"second", UnitConverter::Second},
    {"seconds", UnitConverter::Second},
    {"minute", UnitConverter::Minute},
    {"minutes", UnitConverter::Minute},
    {"degC", UnitConverter::DegreeCelsius},
    {"\xe2\x84\x83", UnitConverter::DegreeCelsius}, // ℃
    {"celsius", UnitConverter::DegreeCelsius},
    {"kelvin", UnitConverter::Kelvin},
    {"pascal", UnitConverter::Pascal},
};

const UnitInfo* infoOf(int unit)
{
    for (const UnitInfo& info : unitInfos) {
        if (info.unit == unit)
            return &info;
    }
    return nullptr;
}

struct UnitLookup
{
    QHash<QString, UnitConverter::Unit> exact;
    QHash<QString, UnitConverter::Unit> folded;

    UnitLookup()
    {
        for (const UnitInfo& info : unitInfos)
            add(QString::fromUtf8(info.text), info.unit);
        for (const Alias& alias : aliases)
            add(QString::fromUtf8(alias.text), alias.unit);
    }

    void add(const QString& text, UnitConverter::Unit unit)
    {
        exact.insert(text, unit);
        if (isSpelledOut(text))
            folded.insert(text.toCaseFolded(), unit);
    }

    // Names of four letters or more ("inch", "feet", "metre"); symbols such as "mm", "Pa" or
    // "min" are not, and their case decides what they mean.
    static bool isSpelledOut(const QString& text)
    {
        if (text.size() < 4)
            return false;
        for (const QChar c : text) {
            if (!c.isLetter())
                return false;
        }
        return true;
    }
};

const UnitLookup& unitLookup()
{
    static const UnitLookup lookup;
    return lookup;
}

} // namespace

QString UnitConverter::UnitFromTag(int tag)
{
    const UnitInfo* info = infoOf(tag);
    return info ? QString::fromUtf8(info->text) : QString();
}

QString UnitConverter::unitText(Unit unit)
{
    return UnitFromTag(unit);
}

UnitConverter::Unit UnitConverter::unitFromText(const QString& text, bool* ok)
{
    const QString trimmed = text.trimmed();
    const UnitLookup& lookup = unitLookup();
    // Exact spelling first: SI prefixes are case sensitive, so only spelled-out names have a
    // case-folded fallback ("Inch", "Millimetre").
    auto found = lookup.exact.constFind(trimmed);
    if (found == lookup.exact.constEnd()) {
        found = lookup.folded.constFind(trimmed.toCaseFolded());
        if (found == lookup.folded.constEnd()) {
            if (ok)
                *ok = false;
            return NoUnit;
        }
    }
    if (ok)
        *ok = true;
    return found.value();
}

bool UnitConverter::isUnit(const QString& text)
{
    bool ok = false;
    unitFromText(text, &ok);
    return ok;
}

QString UnitConverter::normalizedUnitText(const QString& text)
{
    bool ok = false;
    const Unit unit = unitFromText(text, &ok);
    return ok ? unitText(unit) : text.trimmed();
}

UnitConverter::Quantity UnitConverter::quantity(Unit unit)
{
    const UnitInfo* info = infoOf(unit);
    return info ? info->quantity : UnknownQuantity;
}

UnitConverter::Quantity UnitConverter::quantityOf(const QString& unitText)
{
    bool ok = false;
    const Unit unit = unitFromText(unitText, &ok);
    return ok ? quantity(unit) : UnknownQuantity;
}

QList<UnitConverter::Unit> UnitConverter::units(Quantity quantity)
{
    QList<Unit> result;
    for (const UnitInfo& info : unitInfos) {
        if (info.quantity == quantity)
            result.append(info.unit);
    }
    return result;
}

bool UnitConverter::isConvertable(Unit from, Unit to)
{
    const Quantity fromQuantity = quantity(from);
    return fromQuantity != UnknownQuantity && fromQuantity == quantity(to);
}

bool UnitConverter::isConvertable(const QString& from, const QString& to)
{
    const Quantity fromQuantity = quantityOf(from);
    return fromQuantity != UnknownQuantity && fromQuantity == quantityOf(to);
}

double UnitConverter::convert(double value, Unit from, Unit to)
{
    if (from == to || !isConvertable(from, to))
        return value;
    const UnitInfo* source = infoOf(from);
    const UnitInfo* target = infoOf(to);
    return (value * source->factor + source->offset - target->offset) / target->factor;
}

double UnitConverter::convert(double value, const QString& from, const QString& to, bool* ok)
{
    const bool convertable = isConvertable(from, to);
    if (ok)
        *ok = convertable;
    if (!convertable)
        return value;
    return convert(value, unitFromText(from), unitFromText(to));
}
