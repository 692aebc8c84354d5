#include "VNElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>

VNElidedLabel::VNElidedLabel(QWidget* parent)
    : VNElidedLabel(QString(), parent)
{}

VNElidedLabel::VNElidedLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setSizePolicy(QSizePolicy::Ignored, sizePolicy().verticalPolicy());
}

void VNElidedLabel::setElideMode(Qt::TextElideMode mode)
{
    m_elideMode = mode;
    update();
}

QString VNElidedLabel::displayedText() const
{
    return fontMetrics().elidedText(text(), m_elideMode, contentsRect().width() - 2 * margin());
}

QSize VNElidedLabel::minimumSizeHint() const
{
    return QSize(fontMetrics().horizontalAdvance(QStringLiteral("\u2026")) * 3, QLabel::minimumSizeHint().height());
}

void VNElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    drawFrame(&painter);
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    style()->drawItemText(&painter, area, QStyle::visualAlignment(layoutDirection(), alignment()), palette(),
                          isEnabled(), displayedText(), foregroundRole());
}

bool VNElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        auto* help = static_cast<QHelpEvent*>(event);
        if (isElided())
            QToolTip::showText(help->globalPos(), text(), this);
        else
            QToolTip::hideText();
        return true;
    }
    return QLabel::event(event);
}
