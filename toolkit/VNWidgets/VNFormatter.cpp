#include "VNFormatter.h"

#include <QHash>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QVector>
#include <QtMath>

#include <cmath>
#include <utility>

namespace {

// The application's unit system until it sets its own: metric, with lengths in millimetres.
QHash<int, QString>& globalDisplayUnits()
{
    static QHash<int, QString> units = {
        {UnitConverter::Length, UnitConverter::unitText(UnitConverter::Millimeter)},
        {UnitConverter::Angle, UnitConverter::unitText(UnitConverter::Degree)},
        {UnitConverter::Force, UnitConverter::unitText(UnitConverter::Newton)},
        {UnitConverter::Pressure, UnitConverter::unitText(UnitConverter::Megapascal)},
        {UnitConverter::Mass, UnitConverter::unitText(UnitConverter::Kilogram)},
        {UnitConverter::Time, UnitConverter::unitText(UnitConverter::Second)},
        {UnitConverter::Temperature, UnitConverter::unitText(UnitConverter::DegreeCelsius)},
    };
    return units;
}

// Every formatter, so that a change of a global display unit reaches those that follow it.
QVector<VNFormatter*>& liveFormatters()
{
    static QVector<VNFormatter*> formatters;
    return formatters;
}

bool hasGlobalDisplayUnit(UnitConverter::Quantity quantity)
{
    return quantity != UnitConverter::UnknownQuantity && quantity != UnitConverter::Dimensionless;
}

// What a formatter shows besides its own settings; a global change signals only when this moves.
std::pair<bool, QString> appearanceOf(const VNFormatter* formatter)
{
    return {formatter->isGlobalOn(), formatter->displayUnit()};
}

double parseNumber(const QString& text, bool* ok)
{
    return VNFormatter::numberFromText(text, ok);
}

// "1.500" or "12.345" where the dot also groups thousands: a German reader may mean 1500.
bool looksGroupedByDot(const QString& number)
{
    static const QRegularExpression grouped(QStringLiteral("^[+\\-\\x{2212}]?[1-9][0-9]{0,2}\\.[0-9]{3}$"));
    return grouped.match(number).hasMatch();
}

// A value that rounds to zero is shown as "0.00", never as "-0.00".
double withoutNegativeZero(double value, int decimals)
{
    if (std::abs(value) < 0.5 * std::pow(10.0, -decimals))
        return 0.0;
    return value;
}

// The exponent is always marked by a lower-case letter; Qt 6's locale data gives some languages
// (German among them) an upper-case one.
QString exponentMark(const QLocale& locale)
{
    return QString(locale.exponential()).toLower();
}

// QLocale::toString() with the exponent marked in lower case ('e' and 'g' formats).
QString numberText(const QLocale& locale, double value, char format, int precision)
{
    const QString mark = QString(locale.exponential());
    return locale.toString(value, format, precision).replace(mark, mark.toLower());
}

QString exponentText(const QLocale& locale, int exponent)
{
    QString digits = locale.toString(std::abs(exponent));
    if (std::abs(exponent) < 10)
        digits.prepend(locale.zeroDigit());
    const QString sign = exponent < 0 ? locale.negativeSign() : locale.positiveSign();
    return exponentMark(locale) + sign + digits;
}

QString engineeringText(const QLocale& locale, double value, int precision)
{
    if (!qIsFinite(value))
        return numberText(locale, value, 'e', precision - 1);
    // Round to the significant digits first, so that 999.96 becomes 1.00e+03 and not 1000e+00.
    // The mantissa is shifted by at most two places; dividing by a power of ten instead would
    // overflow for subnormal numbers (10^-324 is zero in a double).
    const QString scientific = QString::number(value, 'e', precision - 1);
    const int e = scientific.indexOf(QLatin1Char('e'));
    const int exponent = scientific.mid(e + 1).toInt();
    const int engineeringExponent = static_cast<int>(std::floor(exponent / 3.0)) * 3;
    const int integerDigits = exponent - engineeringExponent + 1;
    const double mantissa = scientific.left(e).toDouble() * std::pow(10.0, integerDigits - 1);
    const int decimals = qMax(0, precision - integerDigits);
    return locale.toString(mantissa, 'f', decimals) + exponentText(locale, engineeringExponent);
}

} // namespace

VNFormatter::VNFormatter(QObject* parent)
    : QObject(parent)
{
    liveFormatters().append(this);
}

VNFormatter::~VNFormatter()
{
    liveFormatters().removeOne(this);
}

void VNFormatter::setValueUnit(const QString& unit)
{
    const QString normalized = UnitConverter::normalizedUnitText(unit);
    if (normalized == m_valueUnit)
        return;
    m_valueUnit = normalized;
    emit settingsChanged();
}

UnitConverter::Quantity VNFormatter::quantity() const
{
    return UnitConverter::quantityOf(m_valueUnit);
}

QString VNFormatter::displayUnit() const
{
    if (isGlobalOn())
        return globalDisplayUnit(quantity());
    if (m_displayUnit.isEmpty())
        return m_valueUnit;
    if (m_valueUnit.isEmpty() || UnitConverter::isConvertable(m_valueUnit, m_displayUnit))
        return m_displayUnit;
    return m_valueUnit;
}

void VNFormatter::setDisplayUnit(const QString& unit, bool overrideGlobal)
{
    const QString normalized = UnitConverter::normalizedUnitText(unit);
    const bool useGlobal = m_useGlobalDisplayUnit && !overrideGlobal;
    if (normalized == m_displayUnit && useGlobal == m_useGlobalDisplayUnit)
        return;
    m_displayUnit = normalized;
    m_useGlobalDisplayUnit = useGlobal;
    emit settingsChanged();
}

void VNFormatter::setUseGlobalDisplayUnit(bool use)
{
    if (use == m_useGlobalDisplayUnit)
        return;
    m_useGlobalDisplayUnit = use;
    emit settingsChanged();
}

bool VNFormatter::isGlobalOn() const
{
    return m_useGlobalDisplayUnit && !globalDisplayUnit(quantity()).isEmpty();
}

void VNFormatter::setDecimals(int decimals)
{
    decimals = qBound(0, decimals, maximumDecimals);
    if (decimals == m_decimals)
        return;
    m_decimals = decimals;
    emit settingsChanged();
}

void VNFormatter::setPrecision(int precision)
{
    precision = qBound(1, precision, maximumPrecision);
    if (precision == m_precision)
        return;
    m_precision = precision;
    emit settingsChanged();
}

void VNFormatter::setFieldWidth(int width)
{
    width = qBound(-maximumFieldWidth, width, maximumFieldWidth);
    if (width == m_fieldWidth)
        return;
    m_fieldWidth = width;
    emit settingsChanged();
}

void VNFormatter::setNotation(OutputNotation notation)
{
    if (notation == m_notation)
        return;
    m_notation = notation;
    emit settingsChanged();
}

void VNFormatter::setNotation(int notation)
{
    // Combo box indices arrive here; an index that names no notation is ignored.
    if (notation < StandardNotation || notation > EngineeringNotation)
        return;
    setNotation(static_cast<OutputNotation>(notation));
}

void VNFormatter::setEmpty(bool empty)
{
    if (empty == m_empty)
        return;
    m_empty = empty;
    emit settingsChanged();
}

double VNFormatter::valueToDisplayValue(double value) const
{
    // Units that do not convert (a label on a value without unit) leave the number as it is.
    return UnitConverter::convert(value, m_valueUnit, displayUnit());
}

double VNFormatter::displayValueToValue(double displayValue) const
{
    return UnitConverter::convert(displayValue, displayUnit(), m_valueUnit);
}

QString VNFormatter::textFromValue(double value, bool appendUnit) const
{
    return textFromDisplayValue(valueToDisplayValue(value), appendUnit);
}

QString VNFormatter::textFromDisplayValue(double displayValue, bool appendUnit) const
{
    if (m_empty)
        return QString();
    QString text = formatNumber(displayValue);
    const QString unit = displayUnit();
    if (appendUnit && !unit.isEmpty())
        text += QLatin1Char(' ') + unit;
    return text;
}

double VNFormatter::valueFromText(const QString& text, bool* ok) const
{
    bool parsed = false;
    double number = 0.0;
    QString unit;
    if (splitNumberAndUnit(text, &number, &unit)) {
        // An empty unit is also what "5 none" gives: no unit typed, so the display unit applies.
        if (unit.isEmpty() || unit == displayUnit()) {
            number = displayValueToValue(number);
            parsed = true;
        } else if (UnitConverter::isConvertable(unit, m_valueUnit)) {
            number = UnitConverter::convert(number, unit, m_valueUnit, &parsed);
        } else if (UnitConverter::isConvertable(unit, displayUnit())) {
            number = displayValueToValue(UnitConverter::convert(number, unit, displayUnit(), &parsed));
        }
    }
    if (ok)
        *ok = parsed;
    return parsed ? number : 0.0;
}

double VNFormatter::displayValueFromText(const QString& text, bool* ok) const
{
    bool parsed = false;
    const double value = valueFromText(text, &parsed);
    if (ok)
        *ok = parsed;
    return parsed ? valueToDisplayValue(value) : 0.0;
}

double VNFormatter::numberFromText(const QString& text, bool* ok, bool* ambiguous)
{
    bool parsed = false;
    bool unclear = false;
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() | QLocale::RejectGroupSeparator);
    const QString point = locale.decimalPoint();
    const QString group = locale.groupSeparator();
    const QString dot = QStringLiteral(".");
    QString number = text.trimmed();
    double value = 0.0;
    if (group != point && group != dot && number.contains(group)) {
        unclear = true; // a group separator, or a decimal separator of another language
    } else if (point != dot && number.contains(dot)) {
        unclear = number.contains(point) || number.count(dot) > 1 || (group == dot && looksGroupedByDot(number));
        if (!unclear)
            value = locale.toDouble(number.replace(QLatin1Char('.'), point), &parsed);
    } else {
        value = locale.toDouble(number, &parsed);
    }
    if (!parsed && !unclear) {
        QLocale c = QLocale::c();
        c.setNumberOptions(QLocale::RejectGroupSeparator);
        value = c.toDouble(text.trimmed(), &parsed);
    }
    parsed = parsed && qIsFinite(value);
    if (ok)
        *ok = parsed;
    if (ambiguous) {
        // Ambiguous is what a lenient reader would take for a number; "3,x" is simply none.
        bool lenient = false;
        if (unclear)
            QLocale().toDouble(text.trimmed(), &lenient);
        *ambiguous = lenient;
    }
    return parsed ? value : 0.0;
}

bool VNFormatter::isUnit(const QString& text)
{
    return UnitConverter::isUnit(text);
}

bool VNFormatter::isConvertable(const QString& from, const QString& to)
{
    return UnitConverter::isConvertable(from, to);
}

bool VNFormatter::setGlobalDisplayUnit(UnitConverter::Quantity quantity, const QString& unit)
{
    const QString normalized = UnitConverter::normalizedUnitText(unit);
    if (!hasGlobalDisplayUnit(quantity))
        return false;
    if (!normalized.isEmpty() && UnitConverter::quantityOf(normalized) != quantity)
        return false;
    if (globalDisplayUnits().value(quantity) == normalized)
        return true;

    QVector<std::pair<QPointer<VNFormatter>, std::pair<bool, QString>>> before;
    for (VNFormatter* formatter : qAsConst(liveFormatters()))
        before.append({formatter, appearanceOf(formatter)});

    if (normalized.isEmpty())
        globalDisplayUnits().remove(quantity);
    else
        globalDisplayUnits().insert(quantity, normalized);

    // A receiver may delete other formatters, hence the guarded copies.
    for (const auto& entry : qAsConst(before)) {
        if (entry.first && appearanceOf(entry.first) != entry.second)
            emit entry.first->settingsChanged();
    }
    return true;
}

QString VNFormatter::globalDisplayUnit(UnitConverter::Quantity quantity)
{
    return globalDisplayUnits().value(quantity);
}

QString VNFormatter::formatNumber(double displayValue) const
{
    // Shown texts carry no digit grouping, so that what a field shows can be typed back.
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    if (displayValue == 0.0)
        displayValue = 0.0; // drops the sign of -0.0
    QString text;
    switch (m_notation) {
    case StandardNotation:
        text = locale.toString(withoutNegativeZero(displayValue, m_decimals), 'f', m_decimals);
        break;
    case ScientificNotation:
        text = numberText(locale, displayValue, 'e', m_precision - 1);
        break;
    case AutomaticNotation:
        text = numberText(locale, displayValue, 'g', m_precision);
        break;
    case EngineeringNotation:
        text = engineeringText(locale, displayValue, m_precision);
        break;
    }
    return QStringLiteral("%1").arg(text, m_fieldWidth);
}

bool VNFormatter::splitNumberAndUnit(const QString& text, double* number, QString* unit) const
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return false;
    bool ok = false;
    *number = parseNumber(trimmed, &ok);
    if (ok) {
        *unit = QString();
        return true;
    }
    // Only a split with a number in front counts, so "2 min" is not read as "2 m" + "in".
    const QString display = displayUnit();
    for (int split = trimmed.size() - 1; split > 0; --split) {
        const QString unitPart = trimmed.mid(split).trimmed();
        if (!UnitConverter::isUnit(unitPart) && unitPart != display && unitPart != m_valueUnit)
            continue;
        *number = parseNumber(trimmed.left(split).trimmed(), &ok);
        if (ok) {
            *unit = UnitConverter::normalizedUnitText(unitPart);
            return true;
        }
    }
    return false;
}
