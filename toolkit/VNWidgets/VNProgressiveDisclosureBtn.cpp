#include "VNProgressiveDisclosureBtn.h"
#include "VNFocusMark_p.h"
#include "VNWidgetStatus.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>

VNProgressiveDisclosureBtn::VNProgressiveDisclosureBtn(QWidget* parent)
    : QAbstractButton(parent)
{
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

void VNProgressiveDisclosureBtn::setHoverColor(const QColor& color)
{
    m_hoverColor = color;
    update();
}

void VNProgressiveDisclosureBtn::setArrowColor(const QColor& color)
{
    m_arrowColor = color;
    update();
}

QSize VNProgressiveDisclosureBtn::sizeHint() const
{
    const QFontMetrics metrics(font());
    return QSize(arrowBox + 6 + metrics.horizontalAdvance(text()) + 4, qMax(arrowBox, metrics.height()) + 6);
}

QSize VNProgressiveDisclosureBtn::minimumSizeHint() const
{
    return QSize(arrowBox + 4, sizeHint().height());
}

void VNProgressiveDisclosureBtn::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // The style sheet paints the status look (statusLook) as the background.
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Scripts set WA_UnderMouse to get the hovered look without moving the mouse.
    // Over a status look the hover only tints the inside, so that the status bars and frames stay
    // as they are.
    if (testAttribute(Qt::WA_UnderMouse) && isEnabled()) {
        if (VNWidgetStatus::statusFromProperty(this)) {
            QColor tint = m_hoverColor;
            tint.setAlpha(90);
            painter.fillRect(rect().adjusted(5, 2, -2, -2), tint);
        } else {
            painter.fillRect(rect(), m_hoverColor);
        }
    }

    const QRectF box(2, (height() - arrowBox) / 2.0, arrowBox, arrowBox);
    const QPointF c = box.center();
    QPainterPath arrow;
    if (isChecked()) {
        arrow.moveTo(c.x() - 4, c.y() - 2);
        arrow.lineTo(c.x() + 4, c.y() - 2);
        arrow.lineTo(c.x(), c.y() + 3);
    } else {
        arrow.moveTo(c.x() - 2, c.y() - 4);
        arrow.lineTo(c.x() + 3, c.y());
        arrow.lineTo(c.x() - 2, c.y() + 4);
    }
    arrow.closeSubpath();
    const QColor arrowColor = isEnabled() ? m_arrowColor : palette().color(QPalette::Disabled, QPalette::WindowText);
    painter.fillPath(arrow, arrowColor);

    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const QRect textRect = rect().adjusted(arrowBox + 6, 0, -2, 0);
    painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, textRect.width()));
    // Inside the status bars and the compare frame, so that they keep their colours.
    if (hasFocus())
        VNFocusMark::paint(painter, rect().adjusted(6, 2, -6, -2));
}

bool VNProgressiveDisclosureBtn::event(QEvent* event)
{
    const bool handled = QAbstractButton::event(event);
    if (event->type() == QEvent::Enter)
        update();
    return handled;
}

void VNProgressiveDisclosureBtn::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}
