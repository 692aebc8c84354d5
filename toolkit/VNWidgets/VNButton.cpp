#include "VNButton.h"

#include <QMenu>

VNButton::VNButton(QWidget* parent)
    : QToolButton(parent)
    , VNWidgetInterface(this)
{
    setAutoRaise(false);
    connect(this, &QToolButton::clicked, this, &VNButton::onClicked);
}

void VNButton::setMenu(QMenu* menu)
{
    disconnect(m_menuConnection);
    QToolButton::setMenu(menu);
    if (menu)
        m_menuConnection = connect(menu, &QMenu::triggered, this, &VNButton::onMenuTriggered);
}

QList<QAction*> VNButton::actions() const
{
    QList<QAction*> own = QWidget::actions();
    // QToolButton keeps the menu's own action among its actions; it stands for the menu itself.
    if (menu())
        own.removeAll(menu()->menuAction());
    return own + menuActions();
}

QList<QAction*> VNButton::menuActions() const
{
    QList<QAction*> result;
    if (!menu())
        return result;
    const QList<QAction*> all = menu()->actions();
    for (QAction* action : all) {
        if (!action->isSeparator())
            result.append(action);
    }
    return result;
}

QAction* VNButton::mainAction() const
{
    return m_mainAction;
}

void VNButton::setMainAction(QAction* action)
{
    if (m_mainAction == action)
        return;
    disconnect(m_mainActionConnection);
    m_mainAction = action;
    if (action)
        m_mainActionConnection = connect(action, &QAction::changed, this, &VNButton::onMainActionChanged);
    showMainAction();
    emit mainActionChanged(action);
}

void VNButton::makeFirstEnabledActionMain()
{
    const QList<QAction*> candidates = menuActions();
    for (QAction* action : candidates) {
        if (action->isEnabled()) {
            setMainAction(action);
            return;
        }
    }
}

void VNButton::enableAutomaticMainActionUpdate(bool triggeredActionBecomesMain, bool alsoForDisabledActions)
{
    m_triggeredBecomesMain = triggeredActionBecomesMain;
    m_updateForDisabled = alsoForDisabledActions;
    if (m_updateForDisabled && m_mainAction && !m_mainAction->isEnabled())
        makeFirstEnabledActionMain();
}

void VNButton::onMenuTriggered(QAction* action)
{
    if (m_triggeredBecomesMain && menuActions().contains(action))
        setMainAction(action);
}

void VNButton::onMainActionChanged()
{
    if (m_updateForDisabled && m_mainAction && !m_mainAction->isEnabled()) {
        const QList<QAction*> candidates = menuActions();
        for (QAction* action : candidates) {
            if (action->isEnabled()) {
                setMainAction(action);
                return;
            }
        }
    }
    showMainAction();
}

void VNButton::onClicked()
{
    if (m_mainAction && m_mainAction->isEnabled())
        m_mainAction->trigger();
}

// A disabled main action keeps its place but is drawn greyed, so the user sees that the button's
// click does nothing until the action is enabled again.
void VNButton::showMainAction()
{
    if (!m_mainAction)
        return;
    const QIcon icon = m_mainAction->icon();
    if (m_mainAction->isEnabled() || icon.isNull()) {
        setIcon(icon);
    } else {
        QIcon greyed;
        const QList<QSize> sizes = icon.availableSizes();
        for (const QSize& size : sizes)
            greyed.addPixmap(icon.pixmap(size, QIcon::Disabled));
        setIcon(greyed);
    }
    setText(m_mainAction->iconText());
    setToolTip(m_mainAction->toolTip());
    setProperty("mainActionEnabled", m_mainAction->isEnabled());
    VNWidgetStatus::repolish(this);
}
