#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QRadioButton>

class VNButtonBuddy;
class VNDoubleSpinBox;

// A radio button in the toolkit's look that can own a value field: the buddy field is enabled
// exactly while the button is checked and enabled itself, so one choice of a group switches on
// the field that belongs to it.
class VNWIDGETS_EXPORT VNRadioButton : public QRadioButton, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNRadioButton(QWidget* parent = nullptr);
    explicit VNRadioButton(const QString& text, QWidget* parent = nullptr);

    VNDoubleSpinBox* buddy() const;
    void setBuddy(VNDoubleSpinBox* buddy);

signals:
    void buddyChanged(VNDoubleSpinBox* buddy);

private:
    VNButtonBuddy* m_buddy;
};
