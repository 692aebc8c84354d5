#include "VNMultiProgressBar.h"

#include "VNStatusPainter_p.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace {
const double segmentGap = 2.0;
const QColor pendingColor(0xe4, 0xe8, 0xec);
const QColor doneColor(0x5b, 0x9a, 0x3c);
const QColor currentColor(0x2f, 0x6f, 0xb0);
const QColor currentBackground(0xdc, 0xeb, 0xff);
const QColor labelColor(0x1f, 0x3a, 0x56);
} // namespace

VNMultiProgressBar::VNMultiProgressBar(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void VNMultiProgressBar::setProgressItems(const QStringList& items)
{
    m_items = items;
    m_operations = QVector<Operation>(items.size());
    m_current = -1;
    update();
}

void VNMultiProgressBar::setCurrent(int index)
{
    if (index < -1 || index >= m_items.size() || index == m_current)
        return;
    m_current = index;
    if (index >= 0)
        m_operations[index].step = m_operations.at(index).minimum;
    update();
    emit currentChanged(index);
}

int VNMultiProgressBar::currentStep() const
{
    return m_current >= 0 ? m_operations.at(m_current).step : 0;
}

void VNMultiProgressBar::stepCurrent(int step)
{
    if (m_current < 0)
        return;
    m_operations[m_current].step = step;
    if (step >= m_operations.at(m_current).maximum && m_current + 1 < m_operations.size())
        setCurrent(m_current + 1);
    update();
}

void VNMultiProgressBar::setRange(int index, int minimum, int maximum)
{
    if (index < 0 || index >= m_operations.size() || maximum < minimum)
        return;
    m_operations[index].minimum = minimum;
    m_operations[index].maximum = maximum;
    update();
}

QPair<int, int> VNMultiProgressBar::getRange(int index) const
{
    if (index < 0 || index >= m_operations.size())
        return {0, 0};
    return {m_operations.at(index).minimum, m_operations.at(index).maximum};
}

void VNMultiProgressBar::setCircular(bool circular)
{
    m_circular = circular;
    updateGeometry();
    update();
}

void VNMultiProgressBar::setStretchMode(int mode)
{
    m_stretchMode = qBound(int(GaussianBell), mode, int(Manual));
    update();
}

void VNMultiProgressBar::setManualWidth(int index, int width)
{
    if (index < 0 || index >= m_operations.size())
        return;
    m_operations[index].manualWidth = qMax(1, width);
    update();
}

double VNMultiProgressBar::completion(int index) const
{
    if (m_current < 0 || index > m_current)
        return 0.0;
    if (index < m_current)
        return 1.0;
    const Operation& operation = m_operations.at(index);
    const int span = qMax(1, operation.maximum - operation.minimum);
    return qBound(0.0, double(operation.step - operation.minimum) / span, 1.0);
}

QVector<double> VNMultiProgressBar::segmentWidths(double available) const
{
    const int n = m_items.size();
    QVector<double> weights(n, 1.0);
    if (m_stretchMode == Manual) {
        for (int i = 0; i < n; ++i)
            weights[i] = m_operations.at(i).manualWidth;
        return weights;
    }
    if (m_stretchMode == GaussianBell) {
        const double centre = m_current >= 0 ? m_current : (n - 1) / 2.0;
        const double sigma = qMax(1.0, n / 4.0);
        for (int i = 0; i < n; ++i)
            weights[i] = 0.35 + qExp(-(i - centre) * (i - centre) / (2 * sigma * sigma));
    } else if (m_stretchMode == Balance) {
        // Every label gets the room it needs; what is left is shared equally.
        // Measured in bold, the look of the current operation's label.
        QFont bold = font();
        bold.setBold(true);
        const QFontMetrics metrics(bold);
        for (int i = 0; i < n; ++i)
            weights[i] = metrics.horizontalAdvance(m_items.at(i)) + 12;
        double needed = 0;
        for (double weight : weights)
            needed += weight;
        const double extra = qMax(0.0, available - needed) / qMax(1, n);
        for (double& weight : weights)
            weight += extra;
        return weights;
    }
    double sum = 0;
    for (double weight : weights)
        sum += weight;
    for (double& weight : weights)
        weight = weight / sum * available;
    return weights;
}

QRectF VNMultiProgressBar::segmentRect(int index) const
{
    if (m_circular || index < 0 || index >= m_items.size())
        return QRectF();
    const double available = width() - segmentGap * (m_items.size() - 1);
    const QVector<double> widths = segmentWidths(available);
    double x = 0;
    for (int i = 0; i < index; ++i)
        x += widths.at(i) + segmentGap;
    return QRectF(x, 0, widths.at(index), height());
}

QSize VNMultiProgressBar::sizeHint() const
{
    return m_circular ? QSize(160, 120) : QSize(300, qMax(24, fontMetrics().height() + 10));
}

QSize VNMultiProgressBar::minimumSizeHint() const
{
    return QSize(40, fontMetrics().height() + 6);
}

void VNMultiProgressBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_circular)
        paintRing(painter);
    else
        paintRow(painter);
    // A status word arrives as the dynamic property of plain widgets; it frames the whole bar.
    VNStatusPainter::paint(painter, rect(), VNWidgetStatus::statusFromProperty(this));
}

void VNMultiProgressBar::paintRow(QPainter& painter)
{
    for (int i = 0; i < m_items.size(); ++i) {
        const QRectF segment = segmentRect(i).adjusted(0, 1, 0, -1);
        painter.fillRect(segment, i == m_current ? currentBackground : pendingColor);
        QRectF filled = segment;
        filled.setWidth(segment.width() * completion(i));
        painter.fillRect(filled, i == m_current ? currentColor : doneColor);
        painter.setPen(i <= m_current ? Qt::white : labelColor);
        if (i == m_current && completion(i) < 0.5)
            painter.setPen(labelColor);
        QFont font = painter.font();
        font.setBold(i == m_current);
        painter.setFont(font);
        painter.drawText(segment, Qt::AlignCenter,
                         QFontMetrics(font).elidedText(m_items.at(i), Qt::ElideRight, int(segment.width()) - 4));
    }
}

// The ring starts at the top and runs clockwise; each operation is an arc, the current one drawn
// thicker, and its name stands in the middle.
void VNMultiProgressBar::paintRing(QPainter& painter)
{
    const int n = m_items.size();
    const double extent = qMin(width(), height()) - 8.0;
    if (n == 0 || extent <= 0)
        return;
    const QRectF ring(QPointF(width() / 2.0 - extent / 2, height() / 2.0 - extent / 2), QSizeF(extent, extent));
    const double thickness = qMax(4.0, extent / 10);
    const double span = 360.0 / n;
    for (int i = 0; i < n; ++i) {
        const double start = 90.0 - i * span - 1.0;
        const double sweep = -(span - 2.0);
        const QRectF arcRect = ring.adjusted(thickness, thickness, -thickness, -thickness);
        painter.setPen(QPen(pendingColor, thickness, Qt::SolidLine, Qt::FlatCap));
        painter.drawArc(arcRect, int(start * 16), int(sweep * 16));
        const double done = completion(i);
        if (done > 0) {
            const QColor color = i == m_current ? currentColor : doneColor;
            painter.setPen(QPen(color, i == m_current ? thickness * 1.6 : thickness, Qt::SolidLine, Qt::FlatCap));
            painter.drawArc(arcRect, int(start * 16), int(sweep * done * 16));
        }
    }
    painter.setPen(labelColor);
    const QString centre = m_current >= 0 ? m_items.at(m_current) : QString();
    const QRectF inner = ring.adjusted(2 * thickness, 2 * thickness, -2 * thickness, -2 * thickness);
    painter.drawText(inner, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(centre, Qt::ElideRight, int(inner.width())));
}
