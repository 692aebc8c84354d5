#include "VNToolTipButton.h"

#include <QPainter>
#include <QToolTip>

namespace {
const QColor circleColor(0x7a, 0x85, 0x91);
const QColor hoverColor(0x2f, 0x6f, 0xb3);
} // namespace

VNToolTipButton::VNToolTipButton(QWidget* parent)
    : QToolButton(parent)
{
    setAutoRaise(true);
    setCursor(Qt::WhatsThisCursor);
    connect(this, &QToolButton::clicked, this, &VNToolTipButton::showToolTipNow);
}

void VNToolTipButton::setUseAsInfo(bool info)
{
    m_info = info;
    update();
}

QSize VNToolTipButton::sizeHint() const
{
    return QSize(18, 18);
}

void VNToolTipButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int extent = qMin(width(), height()) - 2;
    const QRectF circle((width() - extent) / 2.0, (height() - extent) / 2.0, extent, extent);
    painter.setPen(Qt::NoPen);
    painter.setBrush(underMouse() || isDown() ? hoverColor : circleColor);
    if (!isEnabled())
        painter.setOpacity(0.4);
    painter.drawEllipse(circle);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(qMax(8, extent * 2 / 3));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(circle, Qt::AlignCenter, m_info ? QStringLiteral("i") : QStringLiteral("?"));
}

void VNToolTipButton::showToolTipNow()
{
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), toolTip(), this);
}
