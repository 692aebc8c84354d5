#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QDoubleSpinBox>
#include <QPoint>

class VNFormatter;

// The toolkit's number field with units.
//
// The value (value(), minimum(), maximum(), setValue(), ...) is kept in the value unit; the field
// shows it in the display unit of its formatter, multiplied by the factor, followed by the unit
// text. Users may type a number alone (read in the display unit) or a number with any unit of the
// same quantity. The single step is a step of the shown number.
//
// Besides typing and stepping, the value can be dragged: pressing the left button in the text and
// moving the mouse sideways by more than the drag distance turns the field into a virtual slider
// (one single step per few pixels, Shift for tenths, Ctrl for tens of steps). A click without such
// a movement still places the text cursor.
class VNWIDGETS_EXPORT VNDoubleSpinBox : public QDoubleSpinBox, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(QString valueUnit READ valueUnit WRITE setValueUnit)
    Q_PROPERTY(QString displayUnit READ displayUnit WRITE setDisplayUnit)
    Q_PROPERTY(bool useGlobalDisplayUnit READ useGlobalDisplayUnit WRITE setUseGlobalDisplayUnit)
    Q_PROPERTY(bool empty READ isEmpty WRITE setEmpty)
    Q_PROPERTY(double factor READ factor WRITE setFactor NOTIFY factorChanged)
    Q_PROPERTY(bool fitText READ fitText WRITE setFitText NOTIFY fitTextChanged)
    Q_PROPERTY(bool stepRounding READ stepRounding WRITE setStepRounding NOTIFY stepRoundingChanged)
    Q_PROPERTY(InputFieldSize inputFieldSize READ inputFieldSize WRITE setInputFieldSize NOTIFY inputFieldSizeChanged)
    Q_PROPERTY(bool paintFrame READ paintFrame WRITE setPaintFrame NOTIFY paintFrameChanged)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)

public:
    // Width classes of the input field. Ignore leaves the width to the layout, Content follows the
    // shown text, and the three sizes are fixed widths for short, medium and long numbers.
    enum InputFieldSize
    {
        Ignore = -2,
        Content = -1,
        Small = 0,
        Medium = 1,
        Large = 2
    };
    Q_ENUM(InputFieldSize)

    explicit VNDoubleSpinBox(QWidget* parent = nullptr);
    ~VNDoubleSpinBox() override;

    VNFormatter* formatter() const { return m_formatter; }

    QString valueUnit() const;
    void setValueUnit(const QString& unit);
    QString displayUnit() const;
    // With overrideGlobal this field shows the unit even while a global display unit exists.
    void setDisplayUnit(const QString& unit, bool overrideGlobal = false);
    bool useGlobalDisplayUnit() const;
    void setUseGlobalDisplayUnit(bool use);

    // An empty field shows no text and keeps its value; a value typed or dragged in ends it.
    bool isEmpty() const;
    void setEmpty(bool empty);

    // Digits after the decimal point, kept by the formatter: values themselves are never rounded.
    int decimals() const;
    void setDecimals(int decimals);

    // The shown number is the value in the display unit times the factor. Any finite factor but 0
    // is taken; a negative one turns the shown range around.
    double factor() const { return m_factor; }
    void setFactor(double factor);

    // Shrinks the font of the text while the text is wider than the field.
    bool fitText() const { return m_fitText; }
    void setFitText(bool fit);

    // Stepping lands on multiples of the single step.
    bool stepRounding() const { return m_stepRounding; }
    void setStepRounding(bool rounding);

    InputFieldSize inputFieldSize() const { return m_inputFieldSize; }
    void setInputFieldSize(InputFieldSize size);
    int inputFieldWidth() const { return m_inputFieldSize; }
    void setInputFieldWidth(int size);

    // Draws a highlighted frame around the field.
    bool paintFrame() const { return m_paintFrame; }
    void setPaintFrame(bool paint);

    void setReadOnly(bool readOnly);

    // Prefix and suffix surround the number and its unit.
    QString prefix() const { return m_prefix; }
    void setPrefix(const QString& prefix);
    QString suffix() const { return m_suffix; }
    void setSuffix(const QString& suffix);

    double minimumInDisplayUnit() const;
    void setMinimumInDisplayUnit(double minimum);
    double maximumInDisplayUnit() const;
    void setMaximumInDisplayUnit(double maximum);
    double valueInDisplayUnit() const;

    bool isSliding() const { return m_sliding; }

    QString textFromValue(double value) const override;
    double valueFromText(const QString& text) const override;
    QValidator::State validate(QString& input, int& pos) const override;
    void fixup(QString& input) const override;
    void stepBy(int steps) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void factorChanged(double factor);
    void fitTextChanged(bool fit);
    void stepRoundingChanged(bool rounding);
    void inputFieldSizeChanged(VNDoubleSpinBox::InputFieldSize size);
    void paintFrameChanged(bool paint);
    void readOnlyChanged(bool readOnly);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    StepEnabled stepEnabled() const override;
    void statusChanged() override;

private:
    double toDisplay(double value) const;
    double fromDisplay(double displayValue) const;
    QString numberText(const QString& text) const;
    double parse(const QString& text, bool* ok) const;
    double steppedValue(double start, double steps, double step) const;
    double boundedStep(double oldValue, double newValue) const;
    void leaveEmptyStateForTypedText();
    void refreshText();
    void fitFont();
    int fieldWidthFor(int textWidth) const;
    int sigmaMarkerWidth() const;
    void paintSigmaMarker(QWidget* edit);

    bool handleEditMousePress(QMouseEvent* event);
    bool handleEditMouseMove(QMouseEvent* event);
    bool handleEditMouseRelease(QMouseEvent* event);

    VNFormatter* m_formatter;
    double m_factor = 1.0;
    bool m_fitText = false;
    bool m_stepRounding = false;
    InputFieldSize m_inputFieldSize = Ignore;
    QSizePolicy m_defaultSizePolicy;
    bool m_paintFrame = false;
    QString m_prefix;
    QString m_suffix;

    // Virtual slider state
    bool m_pressed = false;
    bool m_sliding = false;
    QPoint m_pressPosition;
    double m_pressValue = 0.0;
};
