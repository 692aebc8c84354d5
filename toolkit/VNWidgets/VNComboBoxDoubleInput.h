#pragma once

#include "VNComboBox.h"

class VNFormatter;

// An editable combo box for a number in a value unit. Its list offers preset values, shown in the
// formatter's display unit, and special values (texts such as "Automatic") that carry an id.
// Typing a number, with or without a unit, emits doubleInputTextEdited() with the value in the
// value unit; pressing Return shows the typed value formatted.
class VNWIDGETS_EXPORT VNComboBoxDoubleInput : public VNComboBox
{
    Q_OBJECT

public:
    static const int ValueRole = Qt::UserRole + 0x5701;
    static const int SpecialIdRole = Qt::UserRole + 0x5702;

    explicit VNComboBoxDoubleInput(QWidget* parent = nullptr);

    VNFormatter* formatter() const { return m_formatter; }
    QString valueUnit() const;
    void setValueUnit(const QString& unit);

    void addValue(double value);
    void addSpecialValue(const QString& text, int id);

    // The value last typed or chosen; a special value leaves it unchanged.
    double value() const { return m_value; }
    // The id of the current special value, or -1 while a number is shown.
    int specialValueId() const;

    void setSelectAllOnFocusIn(bool selectAll);
    bool selectAllOnFocusIn() const { return m_selectAllOnFocusIn; }

signals:
    void doubleInputTextEdited(double value);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void onTextEdited(const QString& text);
    void onActivated(int index);
    void showTypedValue();
    void refreshValueTexts();

    VNFormatter* m_formatter;
    double m_value = 0.0;
    bool m_selectAllOnFocusIn = false;
};
