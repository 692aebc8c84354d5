#include "VNResizeableDisclosure.h"

#include <QVBoxLayout>

VNResizeableDisclosure::VNResizeableDisclosure(QWidget* parent)
    : VNProgressiveDisclosure(parent)
{
    setResizable(true);
}

VNResizeableDisclosure::~VNResizeableDisclosure()
{
    if (m_widget && !m_ownsWidget) {
        m_widget->hide();
        m_widget->setParent(nullptr);
    }
}

void VNResizeableDisclosure::setWidget(QWidget* widget, bool takeOwnership)
{
    m_widget = widget;
    m_ownsWidget = takeOwnership;
    QWidget* container = contentWidget();
    if (!container || !widget) {
        setContentWidget(widget);
        return;
    }
    if (!container->layout()) {
        auto* layout = new QVBoxLayout(container);
        layout->setContentsMargins(0, 0, 0, 0);
    }
    container->layout()->addWidget(widget);
    widget->show();
}
