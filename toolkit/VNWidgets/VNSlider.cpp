#include "VNSlider.h"

#include "VNFocusMark_p.h"
#include "VNStatusPainter_p.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {
const int handleRadius = 7;
const int endMargin = handleRadius + 1;
const int hitTolerance = 5;
const int gaussPeak = 14;

const QColor grooveColor(0xc9, 0xd1, 0xd9);
const QColor fillColor(0x3d, 0x7e, 0xc9);
const QColor relevantColor(0xdc, 0xe9, 0xf7);
const QColor sublimitColor(0x6a, 0x7a, 0x8a);
const QColor gaussColor(0x0b, 0x61, 0xa4);
const QColor bestColor(0x1f, 0x3a, 0x93);
const QColor admissibleColor(0x40, 0x40, 0x40);
const QColor knobBorderColor(0x5a, 0x6b, 0x7b);
const QColor shadeColor(0x80, 0x80, 0x80, 90);

QRectF spanRect(double a, double b, double cross, double thickness)
{
    const double left = std::min(a, b);
    const double right = std::max(a, b);
    // A one-value interval still needs a visible tick.
    const double width = std::max(right - left, 2.0);
    return QRectF(left - (right - left < 2.0 ? 1.0 : 0.0), cross - thickness / 2.0, width, thickness);
}
} // namespace

VNSlider::VNSlider(QWidget* parent)
    : QSlider(parent)
{
    init();
}

VNSlider::VNSlider(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
{
    init();
}

void VNSlider::init()
{
    m_brush = QBrush(QColor(61, 126, 201, 200));
    setMouseTracking(false);
}

QBrush VNSlider::redBrush()
{
    return QBrush(QColor(0xd3, 0x2f, 0x2f));
}

QBrush VNSlider::greenBrush()
{
    return QBrush(QColor(0x2e, 0xa0, 0x43));
}

void VNSlider::setBrushColor(const QColor& color)
{
    m_brush.setColor(color);
    for (Marker& marker : m_markers) {
        if (marker.usesSliderBrush)
            marker.brush.setColor(color);
    }
    update();
}

void VNSlider::mark(int from, int to, const QBrush& brush)
{
    m_markers.append({from, to, brush, brush == m_brush});
    update();
}

void VNSlider::clearMarkers()
{
    m_markers.clear();
    update();
}

void VNSlider::markBest(int value)
{
    m_best = value;
    m_hasBest = true;
    update();
}

void VNSlider::setAdmissibleRange(int minimum, int maximum, bool userAdjustable)
{
    m_admissible = {minimum, maximum};
    m_hasAdmissible = true;
    m_admissibleAdjustable = userAdjustable;
    update();
}

void VNSlider::setCurrentSublimit(SliderInterval sublimit)
{
    m_sublimit = sublimit;
    m_hasSublimit = true;
    update();
}

void VNSlider::setUserRelevantRange(double minimum, double maximum)
{
    m_relevantMin = minimum;
    m_relevantMax = maximum;
    m_hasRelevant = true;
    update();
}

void VNSlider::setShowGaussianCurve(bool show)
{
    m_showGauss = show;
    update();
}

void VNSlider::setInputEnabled(bool enabled)
{
    m_inputEnabled = enabled;
    setFocusPolicy(enabled ? Qt::StrongFocus : Qt::NoFocus);
    update();
}

void VNSlider::setIsDVValueSlider(bool dvSlider)
{
    m_dvSlider = dvSlider;
    update();
}

void VNSlider::setExtended(bool extended)
{
    m_extended = extended;
    update();
}

void VNSlider::setSubPageFilled(bool filled)
{
    m_subPageFilled = filled;
    update();
}

void VNSlider::setUseAsSpanSlider(bool span)
{
    m_span = span;
    if (span && !m_hasAdmissible)
        setAdmissibleRange(minimum(), maximum(), true);
    update();
}

int VNSlider::length() const
{
    return orientation() == Qt::Horizontal ? width() : height();
}

int VNSlider::crossLength() const
{
    return orientation() == Qt::Horizontal ? height() : width();
}

int VNSlider::grooveThickness() const
{
    return m_extended ? 10 : 4;
}

// The groove sits a little below the middle: the space above holds the best mark and the
// Gaussian curve, the space below the admissible range handles.
int VNSlider::grooveCross() const
{
    return crossLength() / 2 + 4;
}

double VNSlider::axisPosition(double value) const
{
    const double span = std::max(1, maximum() - minimum());
    const double usable = std::max(1, length() - 2 * endMargin);
    const double pos = endMargin + (value - minimum()) / span * usable;
    return invertedAppearance() ? length() - pos : pos;
}

int VNSlider::pixelPosition(double value) const
{
    const int axis = qRound(axisPosition(value));
    return orientation() == Qt::Horizontal ? axis : height() - axis;
}

QRect VNSlider::grooveRect() const
{
    const int t = grooveThickness();
    const QRect axisRect(endMargin, grooveCross() - t / 2, length() - 2 * endMargin, t);
    if (orientation() == Qt::Horizontal)
        return axisRect;
    return QRect(axisRect.top(), height() - axisRect.right() - 1, axisRect.height(), axisRect.width());
}

int VNSlider::axisOf(const QPoint& point) const
{
    return orientation() == Qt::Horizontal ? point.x() : height() - point.y();
}

int VNSlider::valueAt(int axis) const
{
    const double usable = std::max(1, length() - 2 * endMargin);
    double pos = invertedAppearance() ? length() - axis : axis;
    const double value = minimum() + (pos - endMargin) / usable * (maximum() - minimum());
    return qBound(minimum(), int(std::lround(value)), maximum());
}

VNSlider::DragTarget VNSlider::hitTarget(int axis) const
{
    if (m_hasAdmissible && m_admissibleAdjustable) {
        const double toMin = std::abs(axis - axisPosition(m_admissible.minimum));
        const double toMax = std::abs(axis - axisPosition(m_admissible.maximum));
        if (std::min(toMin, toMax) <= hitTolerance)
            return toMin <= toMax ? DragAdmissibleMinimum : DragAdmissibleMaximum;
    }
    return m_inputEnabled ? DragValue : NoDrag;
}

void VNSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !isEnabled()) {
        event->ignore();
        return;
    }
    const int axis = axisOf(event->pos());
    const int cross = orientation() == Qt::Horizontal ? event->pos().y() : event->pos().x();
    const bool onValueKnob = m_inputEnabled && !m_span && cross <= grooveCross() + grooveThickness() / 2 &&
                             std::abs(axis - axisPosition(sliderPosition())) <= handleRadius;
    m_drag = onValueKnob ? DragValue : hitTarget(axis);
    if (m_drag == DragValue) {
        setSliderDown(true);
        int value = valueAt(axis);
        if (m_hasSublimit)
            value = qBound(std::min(m_sublimit.minimum, m_sublimit.maximum), value,
                           std::max(m_sublimit.minimum, m_sublimit.maximum));
        setSliderPosition(value);
    } else if (m_drag != NoDrag) {
        dragAdmissibleTo(m_drag, valueAt(axis));
    }
    event->accept();
}

void VNSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drag == NoDrag) {
        event->ignore();
        return;
    }
    const int value = valueAt(axisOf(event->pos()));
    if (m_drag == DragValue) {
        int bounded = value;
        if (m_hasSublimit)
            bounded = qBound(std::min(m_sublimit.minimum, m_sublimit.maximum), value,
                             std::max(m_sublimit.minimum, m_sublimit.maximum));
        setSliderPosition(bounded);
    } else {
        dragAdmissibleTo(m_drag, value);
    }
    event->accept();
}

void VNSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_drag == DragValue)
        setSliderDown(false);
    m_drag = NoDrag;
    event->accept();
}

void VNSlider::keyPressEvent(QKeyEvent* event)
{
    if (!m_inputEnabled) {
        event->ignore();
        return;
    }
    QSlider::keyPressEvent(event);
}

void VNSlider::wheelEvent(QWheelEvent* event)
{
    if (!m_inputEnabled) {
        event->ignore();
        return;
    }
    QSlider::wheelEvent(event);
}

// The handles cannot pass each other; the range stays within the slider's range.
void VNSlider::dragAdmissibleTo(DragTarget target, int value)
{
    SliderInterval range = m_admissible;
    if (target == DragAdmissibleMinimum)
        range.minimum = std::min(value, range.maximum);
    else
        range.maximum = std::max(value, range.minimum);
    if (range.minimum == m_admissible.minimum && range.maximum == m_admissible.maximum)
        return;
    m_admissible = range;
    update();
    emit admissibleRangeChanged(range.minimum, range.maximum);
}

QSize VNSlider::sizeHint() const
{
    const QSize hint(160, 40);
    return orientation() == Qt::Horizontal ? hint : hint.transposed();
}

QSize VNSlider::minimumSizeHint() const
{
    const QSize hint(2 * endMargin + 24, 40);
    return orientation() == Qt::Horizontal ? hint : hint.transposed();
}

QColor VNSlider::shown(const QColor& color) const
{
    if (isEnabled())
        return color;
    const int grey = 150 + qGray(color.rgb()) / 3;
    return QColor(grey, grey, grey, color.alpha());
}

void VNSlider::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (orientation() == Qt::Vertical)
        painter.setTransform(QTransform(0, -1, 1, 0, 0, height()));
    paintRelevantRange(painter);
    paintGroove(painter);
    paintMarkers(painter);
    paintOutsideAdmissible(painter);
    paintSublimit(painter);
    paintGaussianCurve(painter);
    paintBestMark(painter);
    if (m_span)
        paintSpanHandles(painter);
    else
        paintAdmissibleHandles(painter);
    paintValueHandle(painter);
    // The status word arrives as the dynamic property that plain widgets carry; it frames the
    // whole slider like the status look of a field.
    painter.resetTransform();
    VNStatusPainter::paint(painter, rect(), VNWidgetStatus::statusFromProperty(this));
    // A span or dv slider's handles are bars with no border to thicken, so the focus shows as a
    // dotted line inside the status frame instead.
    if (hasFocus() && (m_span || m_dvSlider))
        VNFocusMark::paint(painter, rect().adjusted(2, 2, -2, -2));
}

void VNSlider::paintRelevantRange(QPainter& painter) const
{
    if (!m_hasRelevant)
        return;
    const QRectF band =
        spanRect(axisPosition(m_relevantMin), axisPosition(m_relevantMax), grooveCross(), grooveThickness() + 6);
    painter.fillRect(band, shown(relevantColor));
}

void VNSlider::paintGroove(QPainter& painter) const
{
    const double cross = grooveCross();
    const double t = grooveThickness();
    painter.fillRect(spanRect(axisPosition(minimum()), axisPosition(maximum()), cross, t), shown(grooveColor));
    if (m_subPageFilled)
        painter.fillRect(spanRect(axisPosition(minimum()), axisPosition(sliderPosition()), cross, t), shown(fillColor));
}

void VNSlider::paintMarkers(QPainter& painter) const
{
    const double thickness = m_extended ? grooveThickness() : grooveThickness() + 2;
    for (const Marker& marker : m_markers) {
        QBrush brush = marker.brush;
        brush.setColor(shown(brush.color()));
        painter.fillRect(spanRect(axisPosition(marker.from), axisPosition(marker.to), grooveCross(), thickness), brush);
    }
}

void VNSlider::paintOutsideAdmissible(QPainter& painter) const
{
    if (!shadeOutsideAdmissibleRange || !m_hasAdmissible)
        return;
    const double cross = grooveCross();
    const double t = grooveThickness() + 2;
    painter.fillRect(spanRect(axisPosition(minimum()), axisPosition(m_admissible.minimum), cross, t), shadeColor);
    painter.fillRect(spanRect(axisPosition(m_admissible.maximum), axisPosition(maximum()), cross, t), shadeColor);
}

// A bracket above the groove spanning the current sublimit.
void VNSlider::paintSublimit(QPainter& painter) const
{
    if (!m_hasSublimit)
        return;
    const int y = grooveCross() - grooveThickness() / 2 - 4;
    const int a = qRound(axisPosition(m_sublimit.minimum));
    const int b = qRound(axisPosition(m_sublimit.maximum));
    painter.setPen(QPen(shown(sublimitColor), 1));
    painter.drawLine(a, y, b, y);
    painter.drawLine(a, y, a, y + 2);
    painter.drawLine(b, y, b, y + 2);
}

// A bell over the groove, centred on the best mark (else the admissible or whole range), six
// standard deviations wide across the admissible range.
void VNSlider::paintGaussianCurve(QPainter& painter) const
{
    if (!m_showGauss)
        return;
    const double low = m_hasAdmissible ? std::min(m_admissible.minimum, m_admissible.maximum) : minimum();
    const double high = m_hasAdmissible ? std::max(m_admissible.minimum, m_admissible.maximum) : maximum();
    const double mean = m_hasBest ? m_best : (low + high) / 2.0;
    const double sigma = std::max(0.5, (high - low) / 6.0);
    const double base = grooveCross() - grooveThickness() / 2.0 - 1.0;
    QPainterPath path;
    const int first = qRound(std::min(axisPosition(minimum()), axisPosition(maximum())));
    const int last = qRound(std::max(axisPosition(minimum()), axisPosition(maximum())));
    for (int axis = first; axis <= last; ++axis) {
        const double value = minimum() + (maximum() - minimum()) * double(axis - first) / std::max(1, last - first);
        const double v = invertedAppearance() ? maximum() + minimum() - value : value;
        const double y = base - gaussPeak * std::exp(-0.5 * std::pow((v - mean) / sigma, 2));
        if (axis == first)
            path.moveTo(axis, y);
        else
            path.lineTo(axis, y);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(shown(gaussColor), 1.5));
    painter.drawPath(path);
    painter.restore();
}

// A line through the groove with a small downward triangle above it.
void VNSlider::paintBestMark(QPainter& painter) const
{
    if (!m_hasBest)
        return;
    const int x = qRound(axisPosition(m_best));
    const int top = grooveCross() - grooveThickness() / 2 - 9;
    const int bottom = grooveCross() + grooveThickness() / 2 + 1;
    const QColor color = shown(bestColor);
    painter.fillRect(QRect(x - 1, top, 2, bottom - top), color);
    const QPolygon triangle({QPoint(x - 4, top - 5), QPoint(x + 4, top - 5), QPoint(x, top)});
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(triangle);
}

// Two upward triangles under the groove; the user drags them.
void VNSlider::paintAdmissibleHandles(QPainter& painter) const
{
    if (!m_hasAdmissible)
        return;
    const int top = grooveCross() + grooveThickness() / 2 + 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(shown(admissibleColor));
    for (int value : {m_admissible.minimum, m_admissible.maximum}) {
        const int x = qRound(axisPosition(value));
        painter.drawPolygon(QPolygon({QPoint(x, top), QPoint(x - 5, top + 8), QPoint(x + 5, top + 8)}));
        painter.fillRect(QRect(x - 1, top - grooveThickness() - 3, 2, grooveThickness() + 3), shown(admissibleColor));
    }
}

void VNSlider::paintSpanHandles(QPainter& painter) const
{
    if (!m_hasAdmissible)
        return;
    const double cross = grooveCross();
    painter.fillRect(
        spanRect(axisPosition(m_admissible.minimum), axisPosition(m_admissible.maximum), cross, grooveThickness()),
        shown(fillColor));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(shown(knobBorderColor), 1));
    painter.setBrush(shown(QColor(Qt::white)));
    for (int value : {m_admissible.minimum, m_admissible.maximum})
        painter.drawEllipse(QPointF(axisPosition(value), cross), handleRadius - 1, handleRadius - 1);
    painter.restore();
}

void VNSlider::paintValueHandle(QPainter& painter) const
{
    const double x = axisPosition(sliderPosition());
    const double cross = grooveCross();
    const QColor border = shown(knobBorderColor);
    if (m_dvSlider || m_span) {
        const QRectF line(x - 2, cross - 9, 4, 18);
        if (m_inputEnabled)
            painter.fillRect(line, shown(QColor(0x2d, 0x3e, 0x50)));
        else {
            painter.setPen(QPen(border, 1));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(line);
        }
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(border, hasFocus() ? 2 : 1));
    painter.setBrush(m_inputEnabled ? shown(QColor(Qt::white)) : QBrush(Qt::NoBrush));
    painter.drawEllipse(QPointF(x, cross), handleRadius, handleRadius);
    painter.restore();
}
