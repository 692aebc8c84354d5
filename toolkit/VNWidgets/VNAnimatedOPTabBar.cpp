#include "VNAnimatedOPTabBar.h"

#include <QPainter>
#include <QPainterPath>

namespace {
const int symbolExtent = 12;
const QColor lockedText(0x8a, 0x94, 0x9e);
const QColor lockedFill(0xe4, 0xe8, 0xec);
const QColor symbolColor(0x4a, 0x5a, 0x6a);
const QColor skippedText(0x9a, 0xa7, 0xb3);

void paintLock(QPainter& painter, const QRectF& r, bool open)
{
    const QRectF body(r.left() + 1, r.center().y() - 1, r.width() - 2, r.height() / 2 + 1);
    painter.setPen(QPen(symbolColor, 1.5));
    painter.setBrush(Qt::NoBrush);
    QPainterPath shackle;
    const double left = body.left() + 2.5;
    const double right = body.right() - 2.5;
    shackle.moveTo(left, body.top());
    shackle.lineTo(left, r.top() + 3);
    shackle.arcTo(QRectF(left, r.top(), right - left, 6), 180, -180);
    if (!open)
        shackle.lineTo(right, body.top());
    painter.drawPath(shackle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(symbolColor);
    painter.drawRect(body);
}

void paintCycle(QPainter& painter, const QRectF& r)
{
    painter.setPen(QPen(symbolColor, 1.5));
    painter.setBrush(Qt::NoBrush);
    const QRectF circle = r.adjusted(1.5, 1.5, -1.5, -1.5);
    painter.drawArc(circle, 90 * 16, 270 * 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(symbolColor);
    const QPointF tip(circle.center().x(), circle.top());
    painter.drawPolygon(QPolygonF({tip + QPointF(-1, -3), tip + QPointF(3.5, 0), tip + QPointF(-1, 3)}));
}
} // namespace

const char* const VNAnimatedOPTabBar::defaultArrowImage = ":/Style/VnWidgets/VNOPTabBar/op_tab_triangle.svg";

VNAnimatedOPTabBar::VNAnimatedOPTabBar(QWidget* parent)
    : VNAnimatedTabBar(parent)
{
    setImageAfterTabs(QLatin1String(defaultArrowImage));
}

void VNAnimatedOPTabBar::setOperationLocked(int index, bool on)
{
    setState(index, Locked, on);
}

void VNAnimatedOPTabBar::setOperationSemiLocked(int index, bool on)
{
    setState(index, SemiLocked, on);
}

void VNAnimatedOPTabBar::setOperationCycled(int index, bool on)
{
    setState(index, Cycled, on);
}

void VNAnimatedOPTabBar::setOperationSkipped(int index, bool on)
{
    setState(index, Skipped, on);
}

VNAnimatedOPTabBar::OperationStates VNAnimatedOPTabBar::operationStates(int index) const
{
    return OperationStates(tabFlags(index));
}

void VNAnimatedOPTabBar::setState(int index, OperationState state, bool on)
{
    OperationStates states = operationStates(index);
    states.setFlag(state, on);
    setTabFlags(index, int(states));
}

VNAnimatedTabBar::TabLook VNAnimatedOPTabBar::tabLook(int index) const
{
    TabLook look = VNAnimatedTabBar::tabLook(index);
    const OperationStates states = operationStates(index);
    if (states.testFlag(Locked)) {
        look.fill = lockedFill;
        look.text = lockedText;
    }
    if (states.testFlag(Skipped)) {
        look.text = skippedText;
        look.strikeOut = true;
    }
    return look;
}

int VNAnimatedOPTabBar::decorationWidth(int index) const
{
    const OperationStates states = operationStates(index);
    int symbols = 0;
    if (states & (Locked | SemiLocked))
        ++symbols;
    if (states.testFlag(Cycled))
        ++symbols;
    return symbols * (symbolExtent + 3);
}

void VNAnimatedOPTabBar::paintTabDecoration(QPainter& painter, int index, const QRect& rect) const
{
    const OperationStates states = operationStates(index);
    QRectF symbol(rect.left() + 3, rect.center().y() - symbolExtent / 2.0, symbolExtent, symbolExtent);
    painter.save();
    if (states & (Locked | SemiLocked)) {
        paintLock(painter, symbol, !states.testFlag(Locked));
        symbol.translate(symbolExtent + 3, 0);
    }
    if (states.testFlag(Cycled))
        paintCycle(painter, symbol);
    painter.restore();
}

bool VNAnimatedOPTabBar::isTabSelectable(int index) const
{
    return !operationStates(index).testFlag(Locked);
}
