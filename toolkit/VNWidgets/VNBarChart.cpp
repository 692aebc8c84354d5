#include "VNBarChart.h"

#include "VNStatusPainter_p.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {
constexpr int margin = 6;
constexpr int barHeight = 16;
constexpr int barGap = 6;
} // namespace

VNBarChart::VNBarChart(QWidget* parent)
    : QWidget(parent)
{}

void VNBarChart::setHeaderLabel(const QString& header)
{
    m_header = header;
    updateGeometry();
    update();
}

void VNBarChart::addBar(const QString& label, double value, const QColor& color)
{
    m_bars.append({label, value, color});
    updateGeometry();
    update();
}

void VNBarChart::clear()
{
    m_bars.clear();
    updateGeometry();
    update();
}

int VNBarChart::headerHeight() const
{
    QFont bold = font();
    bold.setBold(true);
    return QFontMetrics(bold).height() + margin;
}

int VNBarChart::labelWidth() const
{
    int width = 0;
    for (const Bar& bar : m_bars)
        width = qMax(width, fontMetrics().horizontalAdvance(bar.label));
    return width;
}

QString VNBarChart::valueText(double value) const
{
    return locale().toString(value, 'f', 1);
}

int VNBarChart::valueWidth() const
{
    int width = 0;
    for (const Bar& bar : m_bars)
        width = qMax(width, fontMetrics().horizontalAdvance(valueText(bar.value)));
    return width;
}

QRect VNBarChart::barRect(int index) const
{
    double maximum = 0.0;
    for (const Bar& bar : m_bars)
        maximum = qMax(maximum, bar.value);
    const int left = margin + labelWidth() + margin;
    const int available = qMax(0, width() - left - margin - valueWidth() - margin);
    const double share = maximum > 0.0 ? qMax(0.0, m_bars.at(index).value) / maximum : 0.0;
    const int top = margin + headerHeight() + index * (barHeight + barGap);
    return QRect(left, top, qRound(available * share), barHeight);
}

QSize VNBarChart::sizeHint() const
{
    const int bars = m_bars.size();
    return QSize(qMax(200, labelWidth() + valueWidth() + 160),
                 margin + headerHeight() + bars * (barHeight + barGap) + margin + 1);
}

QSize VNBarChart::minimumSizeHint() const
{
    return QSize(labelWidth() + valueWidth() + 4 * margin + 20, headerHeight() + 2 * margin + 1);
}

void VNBarChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(margin, margin, width() - 2 * margin, headerHeight() - margin),
                     Qt::AlignLeft | Qt::AlignVCenter, m_header);
    painter.setFont(font());

    const int axisX = margin + labelWidth() + margin;
    const int top = margin + headerHeight();
    const int bottom = qMax(top + barHeight, height() - margin);
    for (int index = 0; index < m_bars.size(); ++index) {
        const Bar& bar = m_bars.at(index);
        const QRect rect = barRect(index);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(margin, rect.top(), labelWidth(), barHeight), Qt::AlignRight | Qt::AlignVCenter,
                         bar.label);
        painter.fillRect(rect, bar.color);
        painter.drawText(QRect(rect.right() + margin, rect.top(), valueWidth() + margin, barHeight),
                         Qt::AlignLeft | Qt::AlignVCenter, valueText(bar.value));
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(axisX - 1, top, axisX - 1, bottom);
    // A status word arrives as the dynamic property of plain widgets; it frames the whole chart.
    VNStatusPainter::paint(painter, rect(), VNWidgetStatus::statusFromProperty(this));
}
