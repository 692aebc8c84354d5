#include "VNLabel.h"

#include "VNFormatter.h"
#include "VNWidgetStatus.h"

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
    VNWidgetStatus::repolish(this);
    emit isHeaderChanged(header);
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
    if (m_unitText.isEmpty())
        return;
    QString valueText;
    if (m_hasUnitValue)
        valueText = formatter()->textFromValue(m_unitValue, true);
    else if (!m_unit.isEmpty())
        valueText = m_unit;
    QString shown = m_unitText;
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
