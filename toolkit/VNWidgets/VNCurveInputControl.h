#pragma once

#include "VNButton.h"

class QMenu;

// The button with which a curve is entered. Its menu offers the available ways of input
// (the options), greys out those not enabled and marks the default one, which the button itself
// triggers and names. The input type (line, point, generic curve) selects the button's icon.
class VNWIDGETS_EXPORT VNCurveInputControl : public VNButton
{
    Q_OBJECT

public:
    enum Option
    {
        NoOption = 0x0,
        Sketch = 0x1,
        PickPoints = 0x2,
        Coordinates = 0x4,
        Formula = 0x8,
        ImportFile = 0x10
    };
    Q_ENUM(Option)
    Q_DECLARE_FLAGS(Options, Option)

    enum InputType
    {
        Line = 0,
        Point = 1,
        Generic = 2
    };
    Q_ENUM(InputType)

    explicit VNCurveInputControl(QWidget* parent = nullptr);

    Options getOptionsAvailable() const { return m_available; }
    void setOptionsAvailable(Options options);
    Options getOptionsEnabled() const { return m_enabled; }
    void setOptionsEnabled(Options options);
    Option getDefaultOption() const { return m_default; }
    void setDefaultOption(Option option);

    InputType inputType() const { return m_inputType; }
    void setInputType(InputType type);

    static QString optionText(Option option);
    QAction* optionAction(Option option) const;

signals:
    void optionTriggered(VNCurveInputControl::Option option);

private:
    void rebuildMenu();
    void updateLook();
    void triggerDefault();
    static QIcon inputTypeIcon(InputType type, const QColor& color);

    Options m_available;
    Options m_enabled;
    Option m_default = NoOption;
    InputType m_inputType = Line;
    QMenu* m_menu;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VNCurveInputControl::Options)
