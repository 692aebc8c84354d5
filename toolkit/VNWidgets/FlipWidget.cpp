#include "FlipWidget.h"

#include <QLayout>
#include <QPainter>
#include <QStackedLayout>
#include <QVariantAnimation>

FlipWidget::FlipWidget(QWidget* front, QWidget* back, QWidget* parent)
    : QWidget(parent)
    , m_front(front)
    , m_back(back)
    , m_stack(new QStackedLayout(this))
    , m_animation(new QVariantAnimation(this))
{
    m_stack->setContentsMargins(0, 0, 0, 0);
    m_stack->addWidget(front);
    m_stack->addWidget(back);
    m_stack->setCurrentIndex(0);
    m_animation->setStartValue(0.0);
    m_animation->setEndValue(180.0);
    m_animation->setEasingCurve(QEasingCurve::InOutSine);
    connect(m_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { setAngle(value.toReal()); });
    connect(m_animation, &QVariantAnimation::finished, this, &FlipWidget::finishFlip);
}

int FlipWidget::currentIndex() const
{
    return m_stack->currentIndex();
}

QWidget* FlipWidget::currentWidget() const
{
    return m_stack->currentWidget();
}

void FlipWidget::setAnimationDuration(int milliseconds)
{
    m_duration = qMax(0, milliseconds);
}

bool FlipWidget::isFlipping() const
{
    return m_animation->state() == QAbstractAnimation::Running;
}

QPixmap FlipWidget::snapshot(QWidget* page) const
{
    // The hidden page has never been laid out at this size: do it now, so the picture is right.
    page->setGeometry(contentsRect());
    if (page->layout())
        page->layout()->activate();
    return page->grab();
}

void FlipWidget::flip()
{
    if (isFlipping())
        m_animation->setCurrentTime(m_animation->duration());
    QWidget* from = currentWidget();
    QWidget* to = from == m_front ? m_back : m_front;
    const bool animate = m_duration > 0 && isVisible();
    if (animate) {
        m_fromPixmap = snapshot(from);
        m_toPixmap = snapshot(to);
    }
    m_stack->setCurrentWidget(to);
    if (!animate) {
        emit flipped(currentIndex());
        return;
    }
    // The pages stay hidden while the pictures turn, so that the turn is not covered.
    to->hide();
    m_angle = 0.0;
    m_animation->setDuration(m_duration);
    m_animation->start();
    update();
}

void FlipWidget::setAngle(qreal angle)
{
    m_angle = angle;
    update();
}

void FlipWidget::finishFlip()
{
    m_fromPixmap = QPixmap();
    m_toPixmap = QPixmap();
    m_angle = 0.0;
    currentWidget()->show();
    update();
    emit flipped(currentIndex());
}

void FlipWidget::paintEvent(QPaintEvent*)
{
    if (!isFlipping() || m_fromPixmap.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const bool firstHalf = m_angle < 90.0;
    const QPixmap& picture = firstHalf ? m_fromPixmap : m_toPixmap;
    const qreal turn = firstHalf ? m_angle : m_angle - 180.0;
    const QRectF area = contentsRect();
    QTransform transform;
    transform.translate(area.center().x(), area.center().y());
    transform.rotate(turn, Qt::YAxis);
    transform.translate(-area.width() / 2.0, -area.height() / 2.0);
    painter.setTransform(transform);
    painter.drawPixmap(QRectF(QPointF(0, 0), area.size()), picture, QRectF(picture.rect()));
}
