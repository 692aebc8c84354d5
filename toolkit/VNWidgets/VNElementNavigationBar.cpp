#include "VNElementNavigationBar.h"

#include "VNStatusPainter_p.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>
#include <QVariant>

VNElementNavigationBar::VNElementNavigationBar(QWidget* parent)
    : QFrame(parent)
    , VNWidgetInterface(this)
    , m_layout(new QHBoxLayout(this))
    , m_group(new QButtonGroup(this))
{
    m_layout->setContentsMargins(6, 3, 3, 3); // room for the status frame and sigma bar
    m_layout->setSpacing(2);
    m_layout->addStretch();
    connect(m_group, QOverload<QAbstractButton*, bool>::of(&QButtonGroup::buttonToggled), this,
            [this](QAbstractButton* button, bool checked) {
                if (checked)
                    emit currentChanged(m_buttons.indexOf(static_cast<QToolButton*>(button)));
            });
}

int VNElementNavigationBar::addButton(const QString& text, const QString& toolTip, const QIcon& icon)
{
    auto* button = new QToolButton(this);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setIcon(icon);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setProperty("elementNavigationItem", true);
    m_group->addButton(button);
    m_layout->insertWidget(m_buttons.size(), button);
    m_buttons.append(button);
    if (m_buttons.size() == 1)
        button->setChecked(true);
    return m_buttons.size() - 1;
}

void VNElementNavigationBar::removeButton(int index)
{
    QToolButton* gone = button(index);
    if (!gone)
        return;
    const bool wasCurrent = gone->isChecked();
    m_buttons.removeAt(index);
    m_group->removeButton(gone);
    delete gone;
    if (!wasCurrent)
        return;
    // The selection moves to the nearest element that can take it, preferring the one before.
    for (int i = qMin(index, m_buttons.size() - 1); i >= 0; --i)
        if (!isButtonLocked(i))
            return setCurrentIndex(i);
    for (int i = index; i < m_buttons.size(); ++i)
        if (!isButtonLocked(i))
            return setCurrentIndex(i);
}

int VNElementNavigationBar::buttonCount() const
{
    return m_buttons.size();
}

QToolButton* VNElementNavigationBar::button(int index) const
{
    return m_buttons.value(index);
}

void VNElementNavigationBar::setButtonIcon(int index, const QIcon& icon)
{
    if (QToolButton* b = button(index))
        b->setIcon(icon);
}

void VNElementNavigationBar::setButtonLocked(int index, bool locked)
{
    QToolButton* b = button(index);
    if (!b)
        return;
    b->setProperty("locked", locked);
    // A locked element keeps its place and its icon but can no longer be selected.
    b->setCheckable(!locked);
    b->setEnabled(!locked);
}

bool VNElementNavigationBar::isButtonLocked(int index) const
{
    QToolButton* b = button(index);
    return b && b->property("locked").toBool();
}

int VNElementNavigationBar::currentIndex() const
{
    return m_buttons.indexOf(static_cast<QToolButton*>(m_group->checkedButton()));
}

void VNElementNavigationBar::setCurrentIndex(int index)
{
    QToolButton* b = button(index);
    if (b && !isButtonLocked(index))
        b->setChecked(true);
}

void VNElementNavigationBar::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    VNStatusPainter::paint(painter, rect(), getWidgetStatus());
}
