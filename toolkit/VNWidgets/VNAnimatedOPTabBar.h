#pragma once

#include "VNAnimatedTabBar.h"

// An animated tab bar for the operations of a process: an arrow is drawn after each tab, and each
// operation can be locked (greyed with a closed lock, not selectable by the user), semi-locked
// (an open lock), cycled (a circular arrow) or skipped (struck out).
class VNWIDGETS_EXPORT VNAnimatedOPTabBar : public VNAnimatedTabBar
{
    Q_OBJECT

public:
    enum OperationState
    {
        Locked = 0x1,
        SemiLocked = 0x2,
        Cycled = 0x4,
        Skipped = 0x8
    };
    Q_DECLARE_FLAGS(OperationStates, OperationState)

    static const char* const defaultArrowImage;

    explicit VNAnimatedOPTabBar(QWidget* parent = nullptr);

    void setOperationLocked(int index, bool on);
    void setOperationSemiLocked(int index, bool on);
    void setOperationCycled(int index, bool on);
    void setOperationSkipped(int index, bool on);
    OperationStates operationStates(int index) const;

protected:
    TabLook tabLook(int index) const override;
    void paintTabDecoration(QPainter& painter, int index, const QRect& rect) const override;
    bool isTabSelectable(int index) const override;
    int decorationWidth(int index) const override;

private:
    void setState(int index, OperationState state, bool on);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VNAnimatedOPTabBar::OperationStates)
