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
{
    m_layout->setContentsMargins(6, 3, 3, 3); // room for the status frame and sigma bar
    m_layout->setSpacing(0);
}

QButtonGroup* VNViewSwitcher::groupFor(int group)
{
    while (m_groups.size() <= group) {
        auto* buttons = new QButtonGroup(this);
        connect(buttons, QOverload<QAbstractButton*, bool>::of(&QButtonGroup::buttonToggled), this,
                [this](QAbstractButton* button, bool checked) {
                    if (checked)
                        emit currentChanged(m_buttons.indexOf(static_cast<QPushButton*>(button)));
                });
        m_groups.append(buttons);
    }
    return m_groups.at(group);
}

int VNViewSwitcher::addView(const QString& text, int group)
{
    QButtonGroup* buttons = groupFor(qMax(0, group));
    auto* button = new QPushButton(text, this);
    button->setCheckable(true);
    button->setProperty("viewSwitcherSegment", true);
    const bool firstOfGroup = buttons->buttons().isEmpty();
    if (firstOfGroup && !m_buttons.isEmpty())
        m_layout->addSpacing(groupGap);
    buttons->addButton(button);
    m_layout->addWidget(button);
    m_buttons.append(button);
    if (firstOfGroup)
        button->setChecked(true);
    return m_buttons.size() - 1;
}

int VNViewSwitcher::groupOf(int index) const
{
    QPushButton* button = viewButton(index);
    for (int group = 0; button && group < m_groups.size(); ++group)
        if (m_groups.at(group)->buttons().contains(button))
            return group;
    return -1;
}

int VNViewSwitcher::count() const
{
    return m_buttons.size();
}

QString VNViewSwitcher::viewText(int index) const
{
    QPushButton* button = viewButton(index);
    return button ? button->text() : QString();
}

QPushButton* VNViewSwitcher::viewButton(int index) const
{
    return m_buttons.value(index);
}

int VNViewSwitcher::currentIndex(int group) const
{
    if (group < 0 || group >= m_groups.size())
        return -1;
    return m_buttons.indexOf(static_cast<QPushButton*>(m_groups.at(group)->checkedButton()));
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
