#include "VNPanelMenu.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <QVBoxLayout>

VNPanelMenu::VNPanelMenu(QWidget* parent)
    : QMenu(parent)
    , m_panel(new QWidget(this))
    , m_layout(new QVBoxLayout(m_panel))
{
    m_panel->setObjectName(QStringLiteral("menuPanel"));
    m_layout->setContentsMargins(6, 6, 6, 6);
    m_layout->setSpacing(4);
    m_layout->setSizeConstraint(QLayout::SetMinimumSize);
}

void VNPanelMenu::ensurePanel()
{
    if (m_built)
        return;
    m_built = true;
    buildPanel();
}

QSize VNPanelMenu::sizeHint() const
{
    const_cast<VNPanelMenu*>(this)->ensurePanel();
    return m_layout->totalSizeHint().expandedTo(m_layout->totalMinimumSize()) + QSize(2, 2);
}

void VNPanelMenu::activate(QAction* action)
{
    emit triggered(action);
    if (!action->isCheckable())
        close();
}

void VNPanelMenu::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void VNPanelMenu::resizeEvent(QResizeEvent* event)
{
    QMenu::resizeEvent(event);
    m_panel->setGeometry(rect().adjusted(1, 1, -1, -1));
}

// The menu's own item geometry is unused: only clicks outside the panel (which close the menu)
// are left to QMenu.
void VNPanelMenu::mousePressEvent(QMouseEvent* event)
{
    if (!rect().contains(event->pos()))
        QMenu::mousePressEvent(event);
}

void VNPanelMenu::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void VNPanelMenu::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
}

void VNPanelMenu::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        event->accept();
}
