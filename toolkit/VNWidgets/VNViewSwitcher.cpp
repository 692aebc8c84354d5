#include "VNViewSwitcher.h"

#include "VNStatusPainter_p.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QVariant>

VNViewSwitcher::VNViewSwitcher(QWidget* parent)
    : QFrame(parent)
    , VNWidgetInterface(this)
    , m_layout(new QHBoxLayout(this))
    , m_group(new QButtonGroup(this))
{
    m_layout->setContentsMargins(6, 3, 3, 3); // room for the status frame and sigma bar
    m_layout->setSpacing(0);
    connect(m_group, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            emit currentChanged(id);
    });
}

int VNViewSwitcher::addView(const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setCheckable(true);
    button->setProperty("viewSwitcherSegment", true);
    const int index = count();
    m_group->addButton(button, index);
    m_layout->addWidget(button);
    if (index == 0)
        button->setChecked(true);
    return index;
}

int VNViewSwitcher::count() const
{
    return m_group->buttons().size();
}

QString VNViewSwitcher::viewText(int index) const
{
    QPushButton* button = viewButton(index);
    return button ? button->text() : QString();
}

QPushButton* VNViewSwitcher::viewButton(int index) const
{
    return qobject_cast<QPushButton*>(m_group->button(index));
}

int VNViewSwitcher::currentIndex() const
{
    return m_group->checkedId();
}

void VNViewSwitcher::setCurrentIndex(int index)
{
    if (QPushButton* button = viewButton(index))
        button->setChecked(true);
}

void VNViewSwitcher::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    VNStatusPainter::paint(painter, rect(), getWidgetStatus());
}
