#pragma once

#include "VNCheckBox.h"
#include "vnwidgets_export.h"

class QVariantAnimation;

// An on/off switch: a check box drawn as a rounded track whose knob slides to the right and the
// track fills blue when checked. The whole widget (switch and text) toggles on a click or the
// space key. Its status shows through the check box rules of the toolkit style (fill, frame,
// sigma bar, compare frame) around the switch.
class VNWIDGETS_EXPORT VNSlidingCheckBox : public VNCheckBox
{
    Q_OBJECT

public:
    explicit VNSlidingCheckBox(QWidget* parent = nullptr);
    explicit VNSlidingCheckBox(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // 0 with the knob on the left (unchecked) to 1 on the right (checked); moves while sliding.
    qreal knobPosition() const { return m_knobPosition; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& pos) const override;

private:
    void slideTo(bool checked);
    QRect trackRect() const;

    QVariantAnimation* m_slide;
    qreal m_knobPosition = 0.0;
};
