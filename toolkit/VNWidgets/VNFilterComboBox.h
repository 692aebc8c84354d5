#pragma once

#include "VNComboBox.h"

class QCompleter;

// An editable combo box whose list filters as the user types: a list under the field offers the
// entries that contain the typed text anywhere, ignoring case. Choosing one makes it current.
// Entering the field selects its text, so typing starts a new filter.
class VNWIDGETS_EXPORT VNFilterComboBox : public VNComboBox
{
    Q_OBJECT

public:
    explicit VNFilterComboBox(QWidget* parent = nullptr);

    QCompleter* filterCompleter() const { return m_completer; }

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void chooseText(const QString& text);

    QCompleter* m_completer;
};
