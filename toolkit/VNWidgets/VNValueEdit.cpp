#include "VNValueEdit.h"

#include <QLocale>

#include "VNFormatter.h"

#include <QKeyEvent>

VNValueEdit::VNValueEdit(QWidget* parent)
    : QLineEdit(parent)
    , VNWidgetInterface(this)
    , m_formatter(new VNFormatter(this))
{
    connect(this, &QLineEdit::editingFinished, this, &VNValueEdit::takeTypedText);
    connect(m_formatter, &VNFormatter::settingsChanged, this, [this] {
        if (!m_inputError)
            showValue();
    });
    showValue();
}

void VNValueEdit::setValue(double value)
{
    setInputError(QString());
    if (value == m_value)
        return;
    m_value = value;
    showValue();
    emit valueChanged(value);
}

void VNValueEdit::setSingleStep(double step)
{
    if (step == m_singleStep)
        return;
    m_singleStep = step;
    emit singleStepChanged(step);
}

void VNValueEdit::stepBy(int steps)
{
    if (isReadOnly())
        return;
    setValue(m_value + steps * m_singleStep);
}

void VNValueEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        stepBy(event->key() == Qt::Key_Up ? 1 : -1);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void VNValueEdit::takeTypedText()
{
    bool ok = false;
    const double typed = m_formatter->valueFromText(text(), &ok);
    if (!ok) {
        const QString unit = m_formatter->displayUnit();
        bool ambiguous = false;
        VNFormatter::numberFromText(text().trimmed().section(QLatin1Char(' '), 0, 0), nullptr, &ambiguous);
        if (ambiguous) {
            setInputError(tr("\"%1\" can be read in more than one way: write decimals with \"%2\" or \".\" and no "
                             "digit grouping.")
                              .arg(text(), QLocale().decimalPoint()));
            return;
        }
        setInputError(unit.isEmpty() ? tr("\"%1\" is not a number.").arg(text())
                                     : tr("\"%1\" is not a number in %2 or a unit of its kind.").arg(text(), unit));
        return;
    }
    setInputError(QString());
    if (typed != m_value) {
        m_value = typed;
        emit valueChanged(typed);
    }
    showValue();
}

void VNValueEdit::showValue()
{
    const QString shown = m_formatter->textFromValue(m_value, true);
    if (shown != text())
        setText(shown);
}

void VNValueEdit::setInputError(const QString& message)
{
    const bool error = !message.isEmpty();
    if (error && !m_inputError)
        m_plainToolTip = toolTip();
    if (error)
        setToolTip(message);
    if (error == m_inputError)
        return;
    m_inputError = error;
    if (!error) {
        setToolTip(m_plainToolTip);
        showValue();
    }
    VNWidgetStatus::repolish(this);
}
