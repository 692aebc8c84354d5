#include "PropertyChangeFilter.h"

#include <QEvent>
#include <QStyle>
#include <QWidget>

PropertyChangeFilter::PropertyChangeFilter(QObject* parent)
    : QObject(parent)
{}

void PropertyChangeFilter::repolish(QWidget* widget, bool alsoChildren)
{
    if (!widget)
        return;
    QStyle* style = widget->style();
    style->unpolish(widget);
    style->polish(widget);
    if (alsoChildren) {
        const QList<QWidget*> children = widget->findChildren<QWidget*>();
        for (QWidget* child : children) {
            child->style()->unpolish(child);
            child->style()->polish(child);
        }
    }
    widget->updateGeometry();
    widget->update();
}

bool PropertyChangeFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DynamicPropertyChange && watched->isWidgetType())
        repolish(static_cast<QWidget*>(watched), false);
    return QObject::eventFilter(watched, event);
}
