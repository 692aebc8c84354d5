#include "MyButton.h"

MyButton::MyButton(QWidget* parent)
    : QPushButton(parent)
    , m_extraSize(120, 20)
{}

MyButton::~MyButton() = default;

QSize MyButton::sizeHint() const
{
    return minimumSizeHint() + m_extraSize;
}

QSize MyButton::minimumSizeHint() const
{
    const QRect bounds = fontMetrics().boundingRect(text()).adjusted(0, 0, 20, 0);
    return bounds.size();
}

void MyButton::setExtraWidth(int width)
{
    m_extraSize.setWidth(width);
    updateGeometry();
}
