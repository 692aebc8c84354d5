#include "VNActionsBar.h"

#include <QAction>
#include <QActionEvent>
#include <QGridLayout>
#include <QToolButton>

VNActionsBar::VNActionsBar(QWidget* parent)
    : QWidget(parent)
    , VNWidgetInterface(this)
    , m_layout(new QGridLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(4);
}

void VNActionsBar::setActionsPerRow(int count)
{
    m_actionsPerRow = qMax(0, count);
    relayout();
}

QToolButton* VNActionsBar::buttonFor(QAction* action) const
{
    for (QToolButton* button : m_buttons)
        if (button->defaultAction() == action)
            return button;
    return nullptr;
}

void VNActionsBar::actionEvent(QActionEvent* event)
{
    if (event->type() == QEvent::ActionAdded) {
        auto* button = new QToolButton(this);
        QAction* action = event->action();
        button->setDefaultAction(action);
        // A command block shows the whole text ("Input..."), not the shortened icon text.
        const auto showFullText = [button, action] { button->setText(action->text()); };
        showFullText();
        connect(action, &QAction::changed, button, showFullText);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        VNWidgetStatus::setStatusProperty(button, getWidgetStatus());
        const int at = event->before() ? m_buttons.indexOf(buttonFor(event->before())) : -1;
        m_buttons.insert(at < 0 ? m_buttons.size() : at, button);
        relayout();
    } else if (event->type() == QEvent::ActionRemoved) {
        QToolButton* button = buttonFor(event->action());
        m_buttons.removeOne(button);
        delete button;
        relayout();
    }
    QWidget::actionEvent(event);
}

void VNActionsBar::relayout()
{
    for (QToolButton* button : qAsConst(m_buttons))
        m_layout->removeWidget(button);
    const int perRow = m_actionsPerRow > 0 ? m_actionsPerRow : qMax(1, m_buttons.size());
    for (int i = 0; i < m_buttons.size(); ++i)
        m_layout->addWidget(m_buttons.at(i), i / perRow, i % perRow);
}

void VNActionsBar::statusChanged()
{
    for (QToolButton* button : qAsConst(m_buttons))
        VNWidgetStatus::setStatusProperty(button, getWidgetStatus());
}
