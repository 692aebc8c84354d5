#include "VNInfoArea.h"

#include "VNSvgIcon_p.h"
#include "VNWidgetStatus.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QMetaEnum>
#include <QPainter>
#include <QScreen>
#include <QStyleOption>
#include <QSvgRenderer>
#include <QTextLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
const int padding = 8;
const int spacing = 8;
const int iconExtent = 20;
const int buttonExtent = 22;
// Lines a vertically arranged area asks for; more text is cut.
const int verticalLines = 3;
const int popupWidth = 360;

QString oneLine(const QString& text)
{
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return line;
}

QRect centredSquare(int extent, int x, const QRect& band)
{
    return QRect(x, band.top() + (band.height() - extent) / 2, extent, extent);
}
} // namespace

VNInfoArea::VNInfoArea(QWidget* parent)
    : QWidget(parent)
    , m_infoButton(new QToolButton(this))
{
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_infoButton->setObjectName(QStringLiteral("infoButton"));
    m_infoButton->setAccessibleName(tr("More information"));
    m_infoButton->setIcon(VNSvgIcon::fromFile(QStringLiteral(":/Style/VnWidgets/VNInfoArea/more.svg")));
    m_infoButton->setIconSize(QSize(16, 16));
    m_infoButton->setAutoRaise(true);
    m_infoButton->setCursor(Qt::PointingHandCursor);
    m_infoButton->setFocusPolicy(Qt::TabFocus);
    m_infoButton->hide();
    connect(m_infoButton, &QToolButton::clicked, this, &VNInfoArea::showInfo);
    publishIconTypeName();
    updateParts();
}

VNInfoArea::~VNInfoArea() = default;

void VNInfoArea::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    updateParts();
    emit textChanged(text);
}

void VNInfoArea::setIconType(IconType type)
{
    if (type == m_iconType)
        return;
    m_iconType = type;
    publishIconTypeName();
    VNWidgetStatus::repolish(this);
    updateParts();
    emit iconTypeChanged(type);
}

void VNInfoArea::setIconType(int type)
{
    if (type < NoIcon || type > Help) {
        qWarning("VNInfoArea::setIconType: %d is no icon type (0 to 5); the type stays %d.", type, int(m_iconType));
        return;
    }
    setIconType(IconType(type));
}

void VNInfoArea::setInfoButtonText(const QString& text)
{
    if (text == m_infoButtonText)
        return;
    m_infoButtonText = text;
    updateParts();
    emit infoButtonTextChanged(text);
}

void VNInfoArea::setInfoButtonVisible(bool visible)
{
    if (visible == m_infoButtonVisible)
        return;
    m_infoButtonVisible = visible;
    updateParts();
}

void VNInfoArea::setVerticalArranged(bool vertical)
{
    if (vertical == m_verticalArranged)
        return;
    m_verticalArranged = vertical;
    updateGeometry();
    updateParts();
}

QString VNInfoArea::fullText() const
{
    QStringList parts;
    if (m_parts.elided || m_infoButtonText.isEmpty())
        parts << m_text;
    if (!m_infoButtonText.isEmpty() && m_infoButtonText != m_text)
        parts << m_infoButtonText;
    return parts.join(QStringLiteral("\n\n"));
}

int VNInfoArea::lineHeight() const
{
    return fontMetrics().height();
}

QSize VNInfoArea::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int textWidth = qBound(120, metrics.horizontalAdvance(oneLine(m_text)), 420);
    if (m_verticalArranged) {
        const int height = padding + iconExtent + spacing + verticalLines * lineHeight() + buttonExtent + padding;
        return QSize(2 * padding + textWidth, height);
    }
    const int width = 2 * padding + iconExtent + spacing + textWidth + spacing + buttonExtent;
    return QSize(width, 2 * padding + qMax(qMax(iconExtent, buttonExtent), lineHeight()));
}

QSize VNInfoArea::minimumSizeHint() const
{
    const int minimumText = fontMetrics().horizontalAdvance(QStringLiteral("Mm…"));
    if (m_verticalArranged)
        return QSize(2 * padding + qMax(minimumText, iconExtent),
                     padding + iconExtent + spacing + lineHeight() + padding);
    return QSize(2 * padding + iconExtent + 2 * spacing + minimumText + buttonExtent,
                 2 * padding + qMax(qMax(iconExtent, buttonExtent), lineHeight()));
}

QString VNInfoArea::iconResource(IconType type)
{
    switch (type) {
    case Info:
        return QStringLiteral(":/Style/VnWidgets/VNInfoArea/info.svg");
    case Warning:
        return QStringLiteral(":/Style/VnWidgets/VNInfoArea/warning.svg");
    case Error:
        return QStringLiteral(":/Style/VnWidgets/VNInfoArea/error.svg");
    case Success:
        return QStringLiteral(":/Style/VnWidgets/VNInfoArea/success.svg");
    case Help:
        return QStringLiteral(":/Style/VnWidgets/VNInfoArea/help.svg");
    case NoIcon:
        break;
    }
    return QString();
}

void VNInfoArea::showInfo()
{
    if (!m_popup) {
        m_popup = new QFrame(this, Qt::Popup);
        m_popup->setObjectName(QStringLiteral("infoPopup"));
        m_popup->setAttribute(Qt::WA_StyledBackground);
        auto* layout = new QVBoxLayout(m_popup);
        layout->setContentsMargins(10, 8, 10, 8);
        m_popupText = new QLabel(m_popup);
        m_popupText->setObjectName(QStringLiteral("infoPopupText"));
        m_popupText->setWordWrap(true);
        m_popupText->setTextFormat(Qt::PlainText);
        m_popupText->setTextInteractionFlags(Qt::TextSelectableByMouse);
        m_popupText->setFixedWidth(popupWidth);
        layout->addWidget(m_popupText);
    }
    m_popupText->setText(fullText());
    m_popup->adjustSize();
    // Below the button, right-aligned with it, and kept on the screen.
    const QWidget* anchor = m_infoButton->isVisible() ? static_cast<QWidget*>(m_infoButton) : this;
    QPoint topLeft = anchor->mapToGlobal(QPoint(anchor->width() - m_popup->width(), anchor->height() + 2));
    if (const QScreen* screen = this->screen()) {
        const QRect available = screen->availableGeometry();
        topLeft.setX(
            qBound(available.left(), topLeft.x(), qMax(available.left(), available.right() - m_popup->width())));
        if (topLeft.y() + m_popup->height() > available.bottom())
            topLeft.setY(anchor->mapToGlobal(QPoint(0, 0)).y() - m_popup->height() - 2);
    }
    m_popup->move(topLeft);
    m_popup->show();
}

void VNInfoArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    if (!m_parts.icon.isEmpty())
        painter.drawPixmap(m_parts.icon, iconPixmap());
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    QRect line = m_parts.text;
    line.setHeight(lineHeight());
    for (const QString& text : m_parts.lines) {
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
        line.translate(0, lineHeight());
    }
}

void VNInfoArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    updateParts();
}

void VNInfoArea::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
        updateParts();
    }
}

VNInfoArea::Parts VNInfoArea::arrange(bool withButton) const
{
    const QRect area = rect().adjusted(padding, padding / 2, -padding, -padding / 2);
    return m_verticalArranged ? arrangeVertically(area, withButton) : arrangeHorizontally(area, withButton);
}

VNInfoArea::Parts VNInfoArea::arrangeHorizontally(const QRect& area, bool withButton) const
{
    Parts parts;
    int left = area.left();
    if (m_iconType != NoIcon) {
        parts.icon = centredSquare(iconExtent, left, area);
        left += iconExtent + spacing;
    }
    int right = area.right();
    if (withButton) {
        parts.button = centredSquare(buttonExtent, right - buttonExtent + 1, area);
        right -= buttonExtent + spacing;
    }
    const int width = qMax(0, right - left + 1);
    parts.lines = fitText(width, 1, &parts.elided);
    parts.text = QRect(left, area.top() + (area.height() - lineHeight()) / 2, width, lineHeight());
    return parts;
}

VNInfoArea::Parts VNInfoArea::arrangeVertically(const QRect& area, bool withButton) const
{
    Parts parts;
    int top = area.top() + padding / 2;
    if (m_iconType != NoIcon) {
        parts.icon = QRect(area.left(), top, iconExtent, iconExtent);
        top += iconExtent + spacing / 2;
    }
    int bottom = area.bottom();
    if (withButton) {
        parts.button = QRect(area.right() - buttonExtent + 1, bottom - buttonExtent + 1, buttonExtent, buttonExtent);
        bottom -= buttonExtent;
    }
    const int maxLines = qMax(1, (bottom - top + 1) / lineHeight());
    parts.lines = fitText(area.width(), maxLines, &parts.elided);
    parts.text = QRect(area.left(), top, area.width(), parts.lines.size() * lineHeight());
    return parts;
}

// Word-wraps the text into at most maxLines lines of the given width; the last line ends with an
// ellipsis when text is left over.
QStringList VNInfoArea::fitText(int width, int maxLines, bool* elided) const
{
    const QFontMetrics metrics = fontMetrics();
    const QString text = oneLine(m_text);
    *elided = false;
    if (text.isEmpty())
        return QStringList();
    if (maxLines == 1) {
        const QString shown = metrics.elidedText(text, Qt::ElideRight, width);
        *elided = shown != text;
        return {shown};
    }
    QStringList lines;
    QTextLayout layout(text, font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() == maxLines - 1) {
            const QString rest = text.mid(line.textStart());
            const QString shown = metrics.elidedText(rest, Qt::ElideRight, width);
            *elided = shown != rest;
            lines << shown;
            break;
        }
        lines << text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

void VNInfoArea::updateParts()
{
    m_parts = arrange(m_infoButtonVisible);
    // The button takes room from the text, so a text that is cut is arranged again around it.
    if (!m_infoButtonVisible && m_parts.elided)
        m_parts = arrange(true);
    const bool showButton = !m_parts.button.isEmpty();
    m_infoButton->setGeometry(m_parts.button);
    m_infoButton->setVisible(showButton);
    m_infoButton->setToolTip(showButton ? fullText() : QString());
    update();
}

// Style sheets match an enum property by its number; the key reads better there.
void VNInfoArea::publishIconTypeName()
{
    setProperty("iconTypeName", QLatin1String(QMetaEnum::fromType<IconType>().valueToKey(m_iconType)));
}

QPixmap VNInfoArea::iconPixmap() const
{
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap(QSize(iconExtent, iconExtent) * ratio);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(iconResource(m_iconType));
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}
