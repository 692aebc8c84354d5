#include "VNLabel.h"

#include "QtCompat.h"

#include "VNDoubleSpinBox.h"
#include "VNFormatter.h"
#include "VNValueEdit.h"
#include "VNWidgetStatus.h"

#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr int pixelsPerStep = 4;
} // namespace

const QString VNLabel::unitPlaceholder = QStringLiteral("_UNIT_");

VNLabel::VNLabel(QWidget* parent)
    : QLabel(parent)
{}

VNLabel::VNLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{}

void VNLabel::setIsHeader(bool header)
{
    if (header == m_isHeader)
        return;
    m_isHeader = header;
    // Bold even without the toolkit style sheet, which adds the header colour and rule.
    QFont headerFont = font();
    headerFont.setBold(header);
    setFont(headerFont);
    VNWidgetStatus::repolish(this);
    emit isHeaderChanged(header);
}

void VNLabel::setRuleColor(const QColor& color)
{
    if (color == m_ruleColor)
        return;
    m_ruleColor = color;
    update();
}

// A label's style-sheet border is not drawn for every frame shape, so the header draws its rule
// itself, along the bottom edge over the whole width.
void VNLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!m_isHeader || !m_ruleColor.isValid())
        return;
    QPainter painter(this);
    painter.fillRect(QRect(0, height() - 1, width(), 1), m_ruleColor);
}

void VNLabel::setUnitText(const QString& pattern)
{
    m_unitText = pattern;
    showUnitText();
}

void VNLabel::setUnitValue(double value, const QString& unit)
{
    if (m_unitText.isEmpty())
        m_unitText = text().contains(unitPlaceholder) ? text() : unitPlaceholder;
    m_hasUnitValue = true;
    m_unitValue = value;
    m_unit = unit;
    formatter()->setValueUnit(unit);
    showUnitText();
}

void VNLabel::clearUnitValue()
{
    m_hasUnitValue = false;
    m_unit.clear();
    showUnitText();
}

VNFormatter* VNLabel::formatter()
{
    if (!m_formatter) {
        m_formatter = new VNFormatter(this);
        connect(m_formatter, &VNFormatter::settingsChanged, this, &VNLabel::showUnitText);
    }
    return m_formatter;
}

void VNLabel::showUnitText()
{
    // A label that never showed a unit value keeps its own text.
    if (m_unitText.isEmpty() && !m_hasUnitValue && m_unit.isEmpty())
        return;
    QString valueText;
    if (m_hasUnitValue)
        valueText = formatter()->textFromValue(m_unitValue, true);
    else if (!m_unit.isEmpty())
        valueText = m_unit;
    QString shown = m_unitText.isEmpty() ? unitPlaceholder : m_unitText;
    setText(shown.replace(unitPlaceholder, valueText));
}

void VNLabel::setIcon(const QIcon& icon)
{
    m_icon = icon;
    showIcon();
}

void VNLabel::setIconSize(const QSize& size)
{
    if (size == m_iconSize)
        return;
    m_iconSize = size;
    showIcon();
}

void VNLabel::showIcon()
{
    if (m_icon.isNull()) {
        setPixmap(QPixmap());
        return;
    }
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap = m_icon.pixmap(m_iconSize * ratio);
    pixmap.setDevicePixelRatio(ratio);
    setPixmap(pixmap);
}

bool VNLabel::hasSlidableBuddy() const
{
    QWidget* target = buddy();
    return target && target->isEnabled() &&
           (qobject_cast<VNDoubleSpinBox*>(target) || qobject_cast<VNValueEdit*>(target));
}

bool VNLabel::event(QEvent* event)
{
    // The cursor tells that the label can be dragged.
    if (event->type() == QEvent::Enter) {
        if (hasSlidableBuddy())
            setCursor(Qt::SizeHorCursor);
        else
            unsetCursor();
    }
    return QLabel::event(event);
}

void VNLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && hasSlidableBuddy()) {
        m_sliding = true;
        m_slideStartX = QtCompat::globalPosition(event).x();
        m_slidSteps = 0;
        event->accept();
        return;
    }
    QLabel::mousePressEvent(event);
}

void VNLabel::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_sliding) {
        QLabel::mouseMoveEvent(event);
        return;
    }
    const int steps = (QtCompat::globalPosition(event).x() - m_slideStartX) / pixelsPerStep;
    if (steps != m_slidSteps) {
        stepBuddy(steps - m_slidSteps);
        m_slidSteps = steps;
    }
}

void VNLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_sliding || event->button() != Qt::LeftButton) {
        QLabel::mouseReleaseEvent(event);
        return;
    }
    m_sliding = false;
    if (m_slidSteps != 0)
        finishBuddyEdit();
}

void VNLabel::stepBuddy(int steps)
{
    if (auto* field = qobject_cast<VNDoubleSpinBox*>(buddy()))
        field->stepBy(steps);
    else if (auto* edit = qobject_cast<VNValueEdit*>(buddy()))
        edit->stepBy(steps);
}

void VNLabel::finishBuddyEdit()
{
    // A slide ends an edit of the buddy, as Enter in the buddy itself would.
    if (auto* field = qobject_cast<VNDoubleSpinBox*>(buddy()))
        emit field->editingFinished();
    else if (auto* edit = qobject_cast<VNValueEdit*>(buddy()))
        emit edit->editingFinished();
}
