#include "VNSlidingCheckBox.h"
#include "VNFocusMark_p.h"

#include <QPainter>
#include <QStyleOption>
#include <QVariantAnimation>

namespace {
const QSize trackSize(30, 16);
const int textGap = 6;
const QColor trackOff(0xb9, 0xc3, 0xcc);
const QColor trackOn(0x2f, 0x6f, 0xb3);
} // namespace

VNSlidingCheckBox::VNSlidingCheckBox(QWidget* parent)
    : VNSlidingCheckBox(QString(), parent)
{}

VNSlidingCheckBox::VNSlidingCheckBox(const QString& text, QWidget* parent)
    : VNCheckBox(text, parent)
    , m_slide(new QVariantAnimation(this))
{
    m_slide->setDuration(120);
    connect(m_slide, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        m_knobPosition = value.toReal();
        update();
    });
    connect(this, &QAbstractButton::toggled, this, &VNSlidingCheckBox::slideTo);
}

QSize VNSlidingCheckBox::sizeHint() const
{
    const QMargins margins = contentsMargins();
    const int textWidth = text().isEmpty() ? 0 : textGap + fontMetrics().horizontalAdvance(text());
    const int height = qMax(trackSize.height(), fontMetrics().height()) + 6;
    return QSize(trackSize.width() + textWidth + 12 + margins.left() + margins.right(), height);
}

QSize VNSlidingCheckBox::minimumSizeHint() const
{
    return QSize(trackSize.width() + 12, trackSize.height() + 6);
}

void VNSlidingCheckBox::slideTo(bool checked)
{
    m_slide->stop();
    // Hidden switches jump, visible ones slide.
    if (!isVisible()) {
        m_knobPosition = checked ? 1.0 : 0.0;
        update();
        return;
    }
    m_slide->setStartValue(m_knobPosition);
    m_slide->setEndValue(checked ? 1.0 : 0.0);
    m_slide->start();
}

QRect VNSlidingCheckBox::trackRect() const
{
    const QRect inner = contentsRect().adjusted(6, 0, 0, 0);
    return QRect(QPoint(inner.left(), inner.center().y() - trackSize.height() / 2 + 1), trackSize);
}

bool VNSlidingCheckBox::hitButton(const QPoint& pos) const
{
    return rect().contains(pos);
}

void VNSlidingCheckBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // The style sheet's frame and fill carry the status look.
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(0.45);
    const QRectF track = trackRect();
    const qreal radius = track.height() / 2.0;
    QColor fill = trackOff;
    if (m_knobPosition > 0.0) {
        const qreal t = m_knobPosition;
        fill = QColor::fromRgbF(trackOff.redF() + t * (trackOn.redF() - trackOff.redF()),
                                trackOff.greenF() + t * (trackOn.greenF() - trackOff.greenF()),
                                trackOff.blueF() + t * (trackOn.blueF() - trackOff.blueF()));
    }
    if (underMouse() || isDown())
        fill = fill.darker(115);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(track, radius, radius);

    const qreal knobExtent = track.height() - 4;
    const qreal knobX = track.left() + 2 + m_knobPosition * (track.width() - knobExtent - 4);
    painter.setBrush(isDown() ? QColor(0xe6, 0xec, 0xf2) : QColor(Qt::white));
    painter.drawEllipse(QRectF(knobX, track.top() + 2, knobExtent, knobExtent));

    if (checkState() == Qt::PartiallyChecked) {
        painter.setPen(QPen(Qt::white, 2));
        painter.drawLine(QPointF(track.center().x() - 4, track.center().y()),
                         QPointF(track.center().x() + 4, track.center().y()));
    }
    if (!text().isEmpty()) {
        painter.setPen(palette().color(QPalette::WindowText));
        const QRect textRect = contentsRect().adjusted(track.right() + textGap - contentsRect().left(), 0, 0, 0);
        painter.drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft, text());
    }
    if (hasFocus())
        VNFocusMark::paint(painter, rect().adjusted(1, 1, -1, -1));
}
