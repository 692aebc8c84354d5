#include "VNAdvancedListMenu.h"
#include "VNAdvancedListMenu_p.h"

#include <QAction>
#include <QPainter>
#include <QVBoxLayout>

VNListMenuEntry::VNListMenuEntry(QAction* action, const QSize& iconSize, int width, QWidget* parent)
    : QAbstractButton(parent)
    , m_action(action)
    , m_iconSize(iconSize)
    , m_width(width)
{
    setObjectName(QStringLiteral("listMenuEntry"));
    setFixedWidth(width);
    connect(action, &QAction::changed, this, &VNListMenuEntry::followAction);
    connect(this, &QAbstractButton::clicked, action, &QAction::trigger);
    followAction();
}

void VNListMenuEntry::followAction()
{
    if (!m_action)
        return;
    setEnabled(m_action->isEnabled());
    setText(m_action->text());
    setToolTip(m_action->toolTip());
    update();
}

QSize VNListMenuEntry::sizeHint() const
{
    const int textHeight = 2 * fontMetrics().height() + 4;
    return QSize(m_width, qMax(m_iconSize.height(), textHeight) + 8);
}

void VNListMenuEntry::enterEvent(QtCompat::EnterEvent*)
{
    m_hovered = true;
    update();
}

void VNListMenuEntry::leaveEvent(QEvent*)
{
    m_hovered = false;
    update();
}

void VNListMenuEntry::paintEvent(QPaintEvent*)
{
    if (!m_action)
        return;
    QPainter painter(this);
    if (m_hovered && isEnabled())
        painter.fillRect(rect(), QColor(0xdc, 0xeb, 0xff));
    const QRect iconRect(QPoint(4, (height() - m_iconSize.height()) / 2), m_iconSize);
    m_action->icon().paint(&painter, iconRect, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);

    const QRect textRect = rect().adjusted(iconRect.right() + 10, 4, -4, -4);
    QFont bold = font();
    bold.setBold(true);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.setFont(bold);
    const QFontMetrics boldMetrics(bold);
    painter.drawText(textRect, Qt::AlignLeft | Qt::AlignTop,
                     boldMetrics.elidedText(m_action->text(), Qt::ElideRight, textRect.width()));
    painter.setFont(font());
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Mid).darker(150));
    painter.drawText(textRect.adjusted(0, boldMetrics.height() + 2, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                     fontMetrics().elidedText(m_action->toolTip(), Qt::ElideRight, textRect.width()));
}

VNAdvancedListMenu::VNAdvancedListMenu(QWidget* parent)
    : VNPanelMenu(parent)
    , m_iconSize(32, 32)
{
    setObjectName(QStringLiteral("VNAdvancedListMenu"));
    panelLayout()->setSpacing(1);
}

void VNAdvancedListMenu::setDefaultIconSize(const QSize& size)
{
    m_iconSize = size;
}

void VNAdvancedListMenu::addControl(QAction* action, int width)
{
    if (!action)
        return;
    addAction(action);
    auto* entry = new VNListMenuEntry(action, m_iconSize, width, panel());
    connect(entry, &QAbstractButton::clicked, this, [this, action] { activate(action); });
    panelLayout()->addWidget(entry);
}
