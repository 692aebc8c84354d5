#include "VNToolTipButton.h"

#include "VNFocusMark_p.h"

#include <QPainter>
#include <QToolTip>

namespace {
const QColor circleColor(0x7a, 0x85, 0x91);
const QColor hoverColor(0x2f, 0x6f, 0xb3);
const QColor warningColor(0xe0, 0x9a, 0x00);
const QColor warningHoverColor(0xb8, 0x6e, 0x00);
const QColor headerColor(0x1f, 0x3a, 0x56);
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

void VNToolTipButton::setUseAsWarning(bool warning)
{
    m_warning = warning;
    update();
}

void VNToolTipButton::setUseAsHeader(bool header)
{
    m_header = header;
    updateGeometry();
    update();
}

void VNToolTipButton::setCustomImage(const QIcon& image, const QSize& size)
{
    m_customImage = image;
    m_customImageSize = size;
    updateGeometry();
    update();
}

QSize VNToolTipButton::sizeHint() const
{
    if (!m_customImage.isNull())
        return m_customImageSize + QSize(4, 4);
    return m_header ? QSize(22, 22) : QSize(18, 18);
}

QColor VNToolTipButton::discColor() const
{
    const bool hot = underMouse() || isDown();
    if (m_warning)
        return hot ? warningHoverColor : warningColor;
    if (hot)
        return hoverColor;
    return m_header ? headerColor : circleColor;
}

void VNToolTipButton::paintCustomImage(QPainter& painter)
{
    if (!isEnabled())
        painter.setOpacity(0.4);
    const QRect target(QPoint((width() - m_customImageSize.width()) / 2, (height() - m_customImageSize.height()) / 2),
                       m_customImageSize);
    m_customImage.paint(&painter, target);
    if (underMouse() || isDown()) {
        painter.setPen(QPen(hoverColor, 1));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void VNToolTipButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_customImage.isNull())
        paintCustomImage(painter);
    else
        paintDisc(painter);
    if (hasFocus())
        VNFocusMark::paint(painter, rect());
}

void VNToolTipButton::paintDisc(QPainter& painter)
{
    const int extent = qMin(width(), height()) - 2;
    const QRectF circle((width() - extent) / 2.0, (height() - extent) / 2.0, extent, extent);
    painter.setPen(Qt::NoPen);
    painter.setBrush(discColor());
    if (!isEnabled())
        painter.setOpacity(0.4);
    painter.drawEllipse(circle);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(qMax(8, extent * 2 / 3));
    painter.setFont(font);
    painter.setPen(Qt::white);
    const QString mark = m_warning ? QStringLiteral("!") : m_info ? QStringLiteral("i") : QStringLiteral("?");
    painter.drawText(circle, Qt::AlignCenter, mark);
}

void VNToolTipButton::showToolTipNow()
{
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), toolTip(), this);
}
