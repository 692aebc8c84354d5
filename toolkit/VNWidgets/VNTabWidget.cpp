#include "VNTabWidget.h"

#include "VNStatusPainter_p.h"

#include <QPainter>
#include <QStackedWidget>
#include <QTabBar>

VNTabWidget::VNTabWidget(QWidget* parent)
    : QTabWidget(parent)
    , VNWidgetInterface(this)
{
    setDocumentMode(false);
}

void VNTabWidget::paintEvent(QPaintEvent* event)
{
    QTabWidget::paintEvent(event);
    QPainter painter(this);
    // The pane is everything below the tab bar; the page itself is painted over its inner part,
    // so the frame lies in the pane's own margin.
    const QRect pane = rect().adjusted(0, tabBar()->isVisible() ? tabBar()->height() : 0, 0, 0);
    VNStatusPainter::paint(painter, pane, getWidgetStatus());
}
