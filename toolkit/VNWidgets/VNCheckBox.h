#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QCheckBox>

class VNButtonBuddy;
class VNDoubleSpinBox;

// A check box in the toolkit's look that can own a value field: the buddy field is enabled
// exactly while the box is checked and enabled itself, so an option switches on its value.
class VNWIDGETS_EXPORT VNCheckBox : public QCheckBox, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNCheckBox(QWidget* parent = nullptr);
    explicit VNCheckBox(const QString& text, QWidget* parent = nullptr);

    VNDoubleSpinBox* buddy() const;
    void setBuddy(VNDoubleSpinBox* buddy);

signals:
    void buddyChanged(VNDoubleSpinBox* buddy);

private:
    VNButtonBuddy* m_buddy;
};
