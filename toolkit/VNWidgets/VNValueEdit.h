#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QLineEdit>

class VNFormatter;

// A line edit for one number with an optional unit, formatted by its VNFormatter. A finished edit
// that reads as a number (in the display unit, or with any unit of the same quantity) becomes the
// new value and is shown formatted again; a text that does not read keeps standing, marked as an
// input error with the reason as tool tip, until it is corrected.
class VNWIDGETS_EXPORT VNValueEdit : public QLineEdit, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(bool inputError READ hasInputError)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep NOTIFY singleStepChanged)

public:
    explicit VNValueEdit(QWidget* parent = nullptr);

    VNFormatter* formatter() const { return m_formatter; }

    double value() const { return m_value; }
    void setValue(double value);
    bool hasInputError() const { return m_inputError; }

    // The step of the arrow keys and of a virtual slider, in the value unit.
    double singleStep() const { return m_singleStep; }
    void setSingleStep(double step);
    void stepBy(int steps);

signals:
    void valueChanged(double value);
    void singleStepChanged(double step);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void takeTypedText();
    void showValue();
    void setInputError(const QString& message);

    VNFormatter* m_formatter;
    double m_value = 0.0;
    double m_singleStep = 1.0;
    bool m_inputError = false;
    QString m_plainToolTip;
};
