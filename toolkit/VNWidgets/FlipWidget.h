#pragma once

#include "vnwidgets_export.h"

#include <QPixmap>
#include <QWidget>

class QStackedLayout;
class QVariantAnimation;

// Shows one of two pages and turns to the other one like a card: the page in front rotates about
// the vertical axis until it stands edge-on, then the other page rotates into view. The pages are
// the widgets themselves, so they keep their state across flips.
class VNWIDGETS_EXPORT FlipWidget : public QWidget
{
    Q_OBJECT

public:
    FlipWidget(QWidget* front, QWidget* back, QWidget* parent = nullptr);

    QWidget* front() const { return m_front; }
    QWidget* back() const { return m_back; }
    // 0 while the front shows, 1 while the back shows (the target page during a flip).
    int currentIndex() const;
    QWidget* currentWidget() const;

    int animationDuration() const { return m_duration; }
    // 0 turns at once.
    void setAnimationDuration(int milliseconds);
    QVariantAnimation* animation() const { return m_animation; }
    bool isFlipping() const;
    // Turn angle in degrees, 0 to 180, while a flip runs.
    qreal angle() const { return m_angle; }

public slots:
    void flip();

signals:
    void flipped(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap snapshot(QWidget* page) const;
    void setAngle(qreal angle);
    void finishFlip();

    QWidget* m_front;
    QWidget* m_back;
    QStackedLayout* m_stack;
    QVariantAnimation* m_animation;
    QPixmap m_fromPixmap;
    QPixmap m_toPixmap;
    qreal m_angle = 0.0;
    int m_duration = 450;
};
