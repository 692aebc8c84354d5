#pragma once

#include "vnwidgets_export.h"

#include <QList>
#include <QObject>
#include <QString>

// The toolkit's unit system: the units a value field can carry, their texts, the physical
// quantity each one measures, and the conversion between units of the same quantity.
//
// Unit texts are what users type and read: "" (no unit), "%", "deg", "rad", "mm", "cm", "m",
// "inch", "ft", "N", "kN", "MPa", "kPa", "bar", "psi", "kg", "t", "s", "min", "°C", "K", "Pa".
// Parsing also accepts common spellings ("°", "in", "feet", "N/mm²", "degC", "sec", ...). Symbols
// are matched exactly as written, because their case carries meaning ("Mm" is a megametre, not a
// millimetre; "M" is no metre); only spelled-out names ("Inch", "Millimetre") may take any case.
//
// A value without a unit is a pure number (a ratio of 1), so it converts to and from percent.
class VNWIDGETS_EXPORT UnitConverter
{
    Q_GADGET
public:
    // The values are the unit tags; they are grouped by quantity so that a list of all units
    // reads well, and new units are only ever appended to keep stored tags valid.
    enum Unit
    {
        NoUnit = 0,
        Percent = 1,
        Degree = 2,
        Radian = 3,
        Millimeter = 4,
        Centimeter = 5,
        Meter = 6,
        Inch = 7,
        Foot = 8,
        Newton = 9,
        Kilonewton = 10,
        Megapascal = 11,
        Kilopascal = 12,
        Bar = 13,
        Psi = 14,
        Kilogram = 15,
        Tonne = 16,
        Second = 17,
        Minute = 18,
        DegreeCelsius = 19,
        Kelvin = 20,
        Pascal = 21
    };
    Q_ENUM(Unit)

    enum Quantity
    {
        UnknownQuantity = -1,
        Dimensionless = 0,
        Angle,
        Length,
        Force,
        Pressure,
        Mass,
        Time,
        Temperature
    };
    Q_ENUM(Quantity)

    UnitConverter() = delete;

    // The text of the unit with that tag; empty for an unknown tag.
    static QString UnitFromTag(int tag);
    static QString unitText(Unit unit);
    // Reads a unit text in any accepted spelling; *ok is false (and NoUnit returned) for a text
    // that names no unit.
    static Unit unitFromText(const QString& text, bool* ok = nullptr);
    static bool isUnit(const QString& text);
    // The canonical text of a known unit, or the trimmed text itself for anything else.
    static QString normalizedUnitText(const QString& text);

    static Quantity quantity(Unit unit);
    static Quantity quantityOf(const QString& unitText);
    static QList<Unit> units(Quantity quantity);

    static bool isConvertable(Unit from, Unit to);
    static bool isConvertable(const QString& from, const QString& to);

    static double convert(double value, Unit from, Unit to);
    // *ok is false when the two texts are not convertible units; the value is then returned as is.
    static double convert(double value, const QString& from, const QString& to, bool* ok = nullptr);
};
