#include "VNComboBoxDoubleInput.h"

#include "VNFormatter.h"

#include <QLineEdit>
#include <QTimer>

VNComboBoxDoubleInput::VNComboBoxDoubleInput(QWidget* parent)
    : VNComboBox(parent)
    , m_formatter(new VNFormatter(this))
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    connect(lineEdit(), &QLineEdit::textEdited, this, &VNComboBoxDoubleInput::onTextEdited);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &VNComboBoxDoubleInput::showTypedValue);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &VNComboBoxDoubleInput::onActivated);
    connect(m_formatter, &VNFormatter::settingsChanged, this, &VNComboBoxDoubleInput::refreshValueTexts);
}

QString VNComboBoxDoubleInput::valueUnit() const
{
    return m_formatter->valueUnit();
}

void VNComboBoxDoubleInput::setValueUnit(const QString& unit)
{
    m_formatter->setValueUnit(unit);
    refreshValueTexts();
}

void VNComboBoxDoubleInput::addValue(double value)
{
    addItem(m_formatter->textFromValue(value, true));
    setItemData(count() - 1, value, ValueRole);
}

void VNComboBoxDoubleInput::addSpecialValue(const QString& text, int id)
{
    addItem(text);
    setItemData(count() - 1, id, SpecialIdRole);
}

int VNComboBoxDoubleInput::specialValueId() const
{
    const QString text = currentText().trimmed();
    for (int i = 0; i < count(); ++i) {
        const QVariant id = itemData(i, SpecialIdRole);
        if (id.isValid() && itemText(i).compare(text, Qt::CaseInsensitive) == 0)
            return id.toInt();
    }
    return -1;
}

void VNComboBoxDoubleInput::setSelectAllOnFocusIn(bool selectAll)
{
    m_selectAllOnFocusIn = selectAll;
}

// The combo box takes the focus for its line edit. Selecting at once would be undone by the click
// that gave the focus.
void VNComboBoxDoubleInput::focusInEvent(QFocusEvent* event)
{
    VNComboBox::focusInEvent(event);
    if (m_selectAllOnFocusIn)
        QTimer::singleShot(0, lineEdit(), &QLineEdit::selectAll);
}

void VNComboBoxDoubleInput::onTextEdited(const QString& text)
{
    bool ok = false;
    const double value = m_formatter->valueFromText(text, &ok);
    if (!ok)
        return;
    m_value = value;
    emit doubleInputTextEdited(value);
}

void VNComboBoxDoubleInput::onActivated(int index)
{
    const QVariant value = itemData(index, ValueRole);
    if (value.isValid())
        m_value = value.toDouble();
}

void VNComboBoxDoubleInput::showTypedValue()
{
    if (specialValueId() >= 0)
        return;
    bool ok = false;
    const double value = m_formatter->valueFromText(lineEdit()->text(), &ok);
    if (ok) {
        m_value = value;
        lineEdit()->setText(m_formatter->textFromValue(value, true));
    }
}

void VNComboBoxDoubleInput::refreshValueTexts()
{
    for (int i = 0; i < count(); ++i) {
        const QVariant value = itemData(i, ValueRole);
        if (value.isValid())
            setItemText(i, m_formatter->textFromValue(value.toDouble(), true));
    }
}
