#include "VNListWidget.h"

#include "VNStatusPainter_p.h"

VNListWidget::VNListWidget(QWidget* parent)
    : QListWidget(parent)
    , VNWidgetInterface(this)
{}

void VNListWidget::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    // The items fill the viewport, so the status is painted on top of its edges.
    QPainter painter(viewport());
    VNStatusPainter::paint(painter, viewport()->rect(), getWidgetStatus());
}
