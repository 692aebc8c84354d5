#include "TestFlipWidget.h"

#include <FlipWidget.h>
#include <LayoutVisualizationFilter.h>

TestFlipWidget::TestFlipWidget(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    ui.setupUi(this);
    m_flipWidget = new FlipWidget(ui.frame1, ui.frame2, this);
    ui.m_mainLayout->addWidget(m_flipWidget);
    connect(ui.flip1, &QPushButton::clicked, m_flipWidget, &FlipWidget::flip);
    connect(ui.flip2, &QPushButton::clicked, m_flipWidget, &FlipWidget::flip);
    installEventFilter(new LayoutVisualizationFilter(this));
}

TestFlipWidget::~TestFlipWidget() = default;
