#include "VNLabel.h"

#include "VNWidgetStatus.h"

#include <QLocale>

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
    m_hasUnitValue = true;
    m_unitValue = value;
    m_unit = unit;
    showUnitText();
}

void VNLabel::clearUnitValue()
{
    m_hasUnitValue = false;
    m_unit.clear();
    showUnitText();
}

void VNLabel::showUnitText()
{
    if (m_unitText.isEmpty())
        return;
    QString valueText;
    if (m_hasUnitValue)
        valueText = QLocale().toString(m_unitValue, 'g', 10);
    if (!m_unit.isEmpty())
        valueText = valueText.isEmpty() ? m_unit : valueText + QLatin1Char(' ') + m_unit;
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
