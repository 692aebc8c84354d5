#include "ColorDisplay.h"

#include <QPainter>

namespace {
const QColor frameColor(0x7a, 0x86, 0x92);
const QColor disabledFrameColor(0xb9, 0xc3, 0xcc);
} // namespace

ColorDisplay::ColorDisplay(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ColorDisplay::setColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
    emit colorChanged(color);
}

void ColorDisplay::setColorLeft(const QColor& color)
{
    if (color == m_colorLeft)
        return;
    m_colorLeft = color;
    update();
    emit colorLeftChanged(color);
}

void ColorDisplay::setColorRight(const QColor& color)
{
    if (color == m_colorRight)
        return;
    m_colorRight = color;
    update();
    emit colorRightChanged(color);
}

void ColorDisplay::setTwoSides(bool twoSides)
{
    if (twoSides == m_twoSides)
        return;
    m_twoSides = twoSides;
    update();
    emit twoSidesChanged(twoSides);
}

QSize ColorDisplay::sizeHint() const
{
    return QSize(60, 21);
}

QSize ColorDisplay::minimumSizeHint() const
{
    return QSize(16, 12);
}

void ColorDisplay::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    if (m_twoSides) {
        QRect left = inside;
        left.setWidth(inside.width() / 2);
        QRect right = inside;
        right.setLeft(left.right() + 1);
        paintSwatch(painter, left, m_colorLeft);
        paintSwatch(painter, right, m_colorRight);
    } else {
        paintSwatch(painter, inside, m_color);
    }
    painter.setPen(isEnabled() ? frameColor : disabledFrameColor);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (m_twoSides) {
        const int middle = inside.left() + inside.width() / 2;
        painter.drawLine(middle, inside.top(), middle, inside.bottom());
    }
}

void ColorDisplay::paintSwatch(QPainter& painter, const QRect& area, const QColor& color) const
{
    if (color.isValid()) {
        painter.fillRect(area, shown(color));
        return;
    }
    // No colour: a white field crossed out in red.
    painter.fillRect(area, isEnabled() ? Qt::white : palette().color(QPalette::Window));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(shown(QColor(0xd3, 0x2f, 0x2f)), 1));
    painter.drawLine(area.topLeft(), area.bottomRight());
    painter.drawLine(area.bottomLeft(), area.topRight());
    painter.restore();
}

QColor ColorDisplay::shown(const QColor& color) const
{
    if (isEnabled())
        return color;
    // Disabled: the colour faded halfway into the window background, so it still reads.
    const QColor background = palette().color(QPalette::Window);
    return QColor((color.red() + background.red()) / 2, (color.green() + background.green()) / 2,
                  (color.blue() + background.blue()) / 2);
}
