#include "VNTwinPushButton.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVariant>

VNTwinPushButton::VNTwinPushButton(QWidget* parent)
    : QFrame(parent)
    , VNWidgetInterface(this)
    , m_left(new QPushButton(this))
    , m_right(new QPushButton(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_left);
    layout->addWidget(m_right);
    // The style sheet joins the halves by these properties.
    m_left->setProperty("twinHalf", QStringLiteral("left"));
    m_right->setProperty("twinHalf", QStringLiteral("right"));
    setFocusProxy(m_left);
    connect(m_left, &QPushButton::clicked, this, &VNTwinPushButton::leftClicked);
    connect(m_right, &QPushButton::clicked, this, &VNTwinPushButton::rightClicked);
}

QString VNTwinPushButton::leftText() const
{
    return m_left->text();
}

void VNTwinPushButton::setLeftText(const QString& text)
{
    m_left->setText(text);
}

QString VNTwinPushButton::rightText() const
{
    return m_right->text();
}

void VNTwinPushButton::setRightText(const QString& text)
{
    m_right->setText(text);
}

void VNTwinPushButton::statusChanged()
{
    VNWidgetStatus::setStatusProperty(m_left, getWidgetStatus());
    // The sigma bar and the compare frame's left edge belong to the left half only.
    VNWidgetStatus::StatusFlags right = getWidgetStatus();
    right &= ~VNWidgetStatus::StatusFlags(VNWidgetStatus::sigmaAvailable | VNWidgetStatus::sigmaOn |
                                          VNWidgetStatus::sigmaError | VNWidgetStatus::sigmaStandardChanged);
    VNWidgetStatus::setStatusProperty(m_right, right);
}
