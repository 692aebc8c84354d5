#include "VNCustomMenuButton.h"

#include <QMenu>
#include <QWidgetAction>

VNCustomMenuButton::VNCustomMenuButton(QWidget* parent)
    : QToolButton(parent)
    , VNWidgetInterface(this)
{
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

void VNCustomMenuButton::setMenuWidget(QWidget* widget)
{
    QMenu* old = menu();
    setMenu(nullptr);
    delete old; // with its widget action and the previous widget
    if (!widget)
        return;
    auto* popup = new QMenu(this);
    auto* holder = new QWidgetAction(popup);
    holder->setDefaultWidget(widget);
    popup->addAction(holder);
    setMenu(popup);
}

QWidget* VNCustomMenuButton::menuWidget() const
{
    if (!menu() || menu()->actions().isEmpty())
        return nullptr;
    auto* holder = qobject_cast<QWidgetAction*>(menu()->actions().constFirst());
    return holder ? holder->defaultWidget() : nullptr;
}
