#pragma once

#include "vnwidgets_export.h"

#include "UnitConverter.h"

#include <QObject>
#include <QString>

// Turns values into the texts that value fields and labels show, and typed texts back into values.
//
// A value is kept in the value unit and shown in the display unit. The display unit is, in this
// order: the process-wide global display unit of the value unit's quantity while this formatter
// follows it; else the formatter's own display unit when it converts from the value unit; else
// the value unit. A formatter without a value unit takes a display unit of any quantity as a
// plain label, because there is nothing to convert from.
//
// Notations: StandardNotation shows `decimals` digits after the decimal point; the other three
// show `precision` significant digits: ScientificNotation with one digit before the point,
// EngineeringNotation with an exponent that is a multiple of three, AutomaticNotation as a plain
// number while it stays readable and in scientific notation otherwise, without trailing zeros.
//
// Texts use the default QLocale at the time of the call. A typed number never changes magnitude
// through a separator: the locale's decimal separator and the dot both mark decimals, group
// separators are refused, and so is what stays ambiguous ("1.500" or "1.234,5" in a German
// session, "0,125" in an English one).
//
// The global display units start as the toolkit's metric unit system (mm, deg, N, MPa, kg, s, °C);
// an application sets its own. Formatters and the global display units belong to the GUI thread.
class VNWIDGETS_EXPORT VNFormatter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString valueUnit READ valueUnit WRITE setValueUnit NOTIFY settingsChanged)
    Q_PROPERTY(QString displayUnit READ displayUnit NOTIFY settingsChanged)
    Q_PROPERTY(bool useGlobalDisplayUnit READ useGlobalDisplayUnit WRITE setUseGlobalDisplayUnit NOTIFY settingsChanged)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals NOTIFY settingsChanged)
    Q_PROPERTY(int precision READ precision WRITE setPrecision NOTIFY settingsChanged)
    Q_PROPERTY(int fieldWidth READ fieldWidth WRITE setFieldWidth NOTIFY settingsChanged)
    Q_PROPERTY(OutputNotation notation READ notation WRITE setNotation NOTIFY settingsChanged)
    Q_PROPERTY(bool empty READ isEmpty WRITE setEmpty NOTIFY settingsChanged)

public:
    enum OutputNotation
    {
        StandardNotation = 0,
        ScientificNotation = 1,
        AutomaticNotation = 2,
        EngineeringNotation = 3
    };
    Q_ENUM(OutputNotation)

    static constexpr int maximumDecimals = 323; // as QDoubleSpinBox: down to the smallest double
    static constexpr int maximumPrecision = 17; // digits a double can tell apart
    static constexpr int maximumFieldWidth = 255;

    explicit VNFormatter(QObject* parent = nullptr);
    ~VNFormatter() override;

    // Unit texts are stored in their canonical spelling ("Inch" becomes "inch"); a text that is
    // no known unit is kept as a label that converts to nothing but itself.
    QString valueUnit() const { return m_valueUnit; }
    void setValueUnit(const QString& unit);
    UnitConverter::Quantity quantity() const;

    // The unit values are shown in, resolved as described above.
    QString displayUnit() const;
    // With overrideGlobal this formatter stops following the global display unit.
    void setDisplayUnit(const QString& unit, bool overrideGlobal = false);

    bool useGlobalDisplayUnit() const { return m_useGlobalDisplayUnit; }
    void setUseGlobalDisplayUnit(bool use);
    // True while a global display unit decides what this formatter shows.
    bool isGlobalOn() const;

    int decimals() const { return m_decimals; }
    void setDecimals(int decimals);
    int precision() const { return m_precision; }
    void setPrecision(int precision);
    // Minimum width of the number: positive pads on the left, negative on the right.
    int fieldWidth() const { return m_fieldWidth; }
    void setFieldWidth(int width);
    OutputNotation notation() const { return m_notation; }
    void setNotation(OutputNotation notation);
    void setNotation(int notation);
    // An empty formatter shows no text, whatever the value.
    bool isEmpty() const { return m_empty; }
    void setEmpty(bool empty);

    double valueToDisplayValue(double value) const;
    double displayValueToValue(double displayValue) const;

    QString textFromValue(double value, bool appendUnit = false) const;
    QString textFromDisplayValue(double displayValue, bool appendUnit = false) const;
    // Reads a number with an optional unit behind it; without a unit the number is taken in the
    // display unit. *ok is false for no number, a unit of another quantity or a non-finite value.
    double valueFromText(const QString& text, bool* ok = nullptr) const;
    double displayValueFromText(const QString& text, bool* ok = nullptr) const;

    // Reads a plain number by the rules above; *ambiguous tells a refused separator from no number.
    static double numberFromText(const QString& text, bool* ok, bool* ambiguous = nullptr);

    static bool isUnit(const QString& text);
    static bool isConvertable(const QString& from, const QString& to);

    // The global display unit of a physical quantity; an empty unit removes it. Returns false and
    // changes nothing for a unit of another quantity, or for dimensionless values, which would
    // otherwise turn every plain number of the application into a percentage.
    static bool setGlobalDisplayUnit(UnitConverter::Quantity quantity, const QString& unit);
    static QString globalDisplayUnit(UnitConverter::Quantity quantity);

signals:
    void settingsChanged();

private:
    QString formatNumber(double displayValue) const;
    bool splitNumberAndUnit(const QString& text, double* number, QString* unit) const;

    QString m_valueUnit;
    QString m_displayUnit;
    bool m_useGlobalDisplayUnit = false;
    int m_decimals = 2;
    int m_precision = 6;
    int m_fieldWidth = 0;
    OutputNotation m_notation = StandardNotation;
    bool m_empty = false;
};
