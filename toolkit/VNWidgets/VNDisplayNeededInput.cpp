#include "VNDisplayNeededInput.h"

#include <QPainter>

#include <algorithm>

namespace {
const int margin = 4;
const int textFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;

// Optional points use the accent colour half way to the background, so they read as "may be".
QColor lighter(const QColor& color, const QColor& background)
{
    return QColor((color.red() + background.red()) / 2, (color.green() + background.green()) / 2,
                  (color.blue() + background.blue()) / 2);
}
} // namespace

// How the points fit into the row: the circles drawn, the points summed up as "+n" behind them,
// and the width of it all.
struct VNDisplayNeededInput::Row
{
    int shown = 0;
    int hidden = 0;
    int width = 0;
};

VNDisplayNeededInput::VNDisplayNeededInput(QWidget* parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

VNDisplayNeededInput::~VNDisplayNeededInput() = default;

void VNDisplayNeededInput::setNeeded(int count)
{
    count = std::max(0, count);
    if (count == m_needed)
        return;
    const int optionalBefore = optional();
    m_needed = count;
    emit neededChanged(count);
    updateOptional(optionalBefore);
    changed();
}

int VNDisplayNeededInput::optional() const
{
    return m_useOptional ? std::max(0, m_needed - 1) : m_manualOptional;
}

void VNDisplayNeededInput::setOptional(int count)
{
    count = std::max(0, count);
    if (count == m_manualOptional)
        return;
    const int optionalBefore = optional();
    m_manualOptional = count;
    updateOptional(optionalBefore);
    changed();
}

void VNDisplayNeededInput::setChecked(int count)
{
    count = std::max(0, count);
    if (count == m_checked)
        return;
    m_checked = count;
    emit checkedChanged(count);
    update();
}

void VNDisplayNeededInput::setUseOptional(bool use)
{
    if (use == m_useOptional)
        return;
    const int optionalBefore = optional();
    // Switched off, the display keeps showing the count it derived until one is set by hand.
    if (!use)
        m_manualOptional = optionalBefore;
    m_useOptional = use;
    emit useOptionalChanged(use);
    updateOptional(optionalBefore);
    changed();
}

void VNDisplayNeededInput::setInfoText(const QString& text)
{
    if (text == m_infoText)
        return;
    m_infoText = text;
    emit infoTextChanged(text);
    changed();
}

void VNDisplayNeededInput::updateOptional(int before)
{
    if (optional() != before)
        emit optionalChanged(optional());
}

void VNDisplayNeededInput::changed()
{
    updateGeometry();
    update();
}

int VNDisplayNeededInput::diameter() const
{
    return std::max(8, fontMetrics().height() - 4);
}

// The points take at most three fifths of the width when there is a text beside them; points
// that do not fit are summed up as "+n" behind the last circle.
VNDisplayNeededInput::Row VNDisplayNeededInput::row(int width) const
{
    Row row;
    const int total = pointCount();
    if (total == 0)
        return row;
    const int size = diameter();
    const int step = size + size / 2;
    const int available = m_infoText.isEmpty() ? width : width * 3 / 5;
    const int full = total * step - size / 2;
    if (full <= available) {
        row.shown = total;
        row.width = full;
        return row;
    }
    const int overflowWidth = fontMetrics().horizontalAdvance(QLatin1Char('+') + QString::number(total));
    row.shown = std::clamp((available - overflowWidth) / step, 0, total - 1);
    row.hidden = total - row.shown;
    row.width = row.shown * step + fontMetrics().horizontalAdvance(QLatin1Char('+') + QString::number(row.hidden));
    return row;
}

QRect VNDisplayNeededInput::pointRect(int index) const
{
    const QRect contents = contentsRect().adjusted(margin, margin, -margin, -margin);
    if (index < 0 || index >= row(contents.width()).shown)
        return QRect();
    const int size = diameter();
    const int step = size + size / 2;
    return QRect(contents.left() + index * step, contents.center().y() - size / 2, size, size);
}

QRect VNDisplayNeededInput::textRect(const QRect& contents, const Row& row) const
{
    const int left = row.width > 0 ? contents.left() + row.width + diameter() : contents.left();
    return QRect(left, contents.top(), std::max(0, contents.right() - left + 1), contents.height());
}

QSize VNDisplayNeededInput::sizeHint() const
{
    const int size = diameter();
    const int total = pointCount();
    int width = 2 * margin + std::max(0, total * (size + size / 2) - size / 2);
    if (!m_infoText.isEmpty())
        width += size + std::min(fontMetrics().horizontalAdvance(m_infoText), 360);
    return QSize(width, heightForWidth(width));
}

QSize VNDisplayNeededInput::minimumSizeHint() const
{
    const int size = diameter();
    return QSize(2 * margin + size, 2 * margin + std::max(size, fontMetrics().height()));
}

int VNDisplayNeededInput::heightForWidth(int width) const
{
    const QRect contents(margin, margin, std::max(0, width - 2 * margin), QWIDGETSIZE_MAX / 2);
    const QRect text = textRect(contents, row(contents.width()));
    int textHeight = fontMetrics().height();
    if (!m_infoText.isEmpty() && text.width() > 0)
        textHeight = fontMetrics().boundingRect(text, textFlags, m_infoText).height();
    return 2 * margin + std::max(diameter(), textHeight);
}

void VNDisplayNeededInput::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect contents = contentsRect().adjusted(margin, margin, -margin, -margin);
    const Row points = row(contents.width());
    const QColor accent = palette().color(QPalette::Highlight);
    const QColor optionalColor = lighter(accent, palette().color(QPalette::Window));
    const qreal penWidth = 2.0;
    for (int index = 0; index < points.shown; ++index) {
        const QColor color = index < m_needed ? accent : optionalColor;
        QPen pen(color, penWidth);
        if (index >= m_needed)
            pen.setDashPattern({1.5, 1.5});
        const bool given = index < m_checked;
        painter.setPen(given ? QPen(color, penWidth) : pen);
        painter.setBrush(given ? QBrush(color) : Qt::NoBrush);
        const qreal inset = penWidth / 2;
        painter.drawEllipse(QRectF(pointRect(index)).adjusted(inset, inset, -inset, -inset));
    }
    painter.setPen(palette().color(QPalette::WindowText));
    if (points.hidden > 0) {
        const int left = contents.left() + points.shown * (diameter() + diameter() / 2);
        painter.drawText(QRect(left, contents.top(), contents.right() - left + 1, contents.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, QLatin1Char('+') + QString::number(points.hidden));
    }
    drawInfoText(painter, textRect(contents, points));
}

// Wrapped lines that do not fit the height would be cut off; one elided line shows more.
void VNDisplayNeededInput::drawInfoText(QPainter& painter, const QRect& area) const
{
    if (fontMetrics().boundingRect(area, textFlags, m_infoText).height() <= area.height()) {
        painter.drawText(area, textFlags, m_infoText);
        return;
    }
    const QString line = fontMetrics().elidedText(m_infoText, Qt::ElideRight, area.width());
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, line);
}
