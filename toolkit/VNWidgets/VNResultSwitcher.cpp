#include "VNResultSwitcher.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVariant>

namespace {
const char* const partProperty = "resultSwitcherPart";
const QSize buttonIconSize(24, 24);
} // namespace

VNResultSwitcher::VNResultSwitcher(QWidget* parent)
    : QWidget(parent)
    , m_group(new QButtonGroup(this))
    , m_layout(new QHBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(1);
    m_group->setExclusive(true);
    connect(m_group, &QButtonGroup::idToggled, this, [this](int, bool checked) {
        if (checked)
            emit currentChanged(checkedIndex());
    });
}

QToolButton* VNResultSwitcher::insertButton(const QIcon& icon, const QString& text, int index, int part)
{
    auto* button = new QToolButton(this);
    button->setIcon(icon);
    button->setText(text);
    button->setToolTip(text);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    return insertButton(button, index, part);
}

QToolButton* VNResultSwitcher::insertButton(QToolButton* button, int index, int part)
{
    if (!button)
        return nullptr;
    button->setParent(this);
    button->setObjectName(QStringLiteral("resultButton"));
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setIconSize(buttonIconSize);
    button->setProperty(partProperty, part);
    // An icon-only button is announced by its tool tip, as sighted users read it.
    if (button->text().isEmpty() && button->accessibleName().isEmpty())
        button->setAccessibleName(button->toolTip().isEmpty() ? tr("Result") : button->toolTip());
    if (index < 0 || index > m_buttons.size())
        index = m_buttons.size();
    m_buttons.insert(index, button);
    m_group->addButton(button);
    if (!m_group->checkedButton())
        button->setChecked(true);
    relayout();
    return button;
}

void VNResultSwitcher::removeButton(int index)
{
    if (index < 0 || index >= m_buttons.size())
        return;
    QToolButton* button = m_buttons.takeAt(index);
    m_group->removeButton(button);
    delete button;
    if (!m_group->checkedButton() && !m_buttons.isEmpty())
        m_buttons.first()->setChecked(true);
    relayout();
}

void VNResultSwitcher::beginModifyButtons()
{
    ++m_modifying;
    setUpdatesEnabled(false);
}

void VNResultSwitcher::endModifyButtons()
{
    if (m_modifying == 0)
        return;
    if (--m_modifying == 0) {
        relayout();
        setUpdatesEnabled(true);
    }
}

QToolButton* VNResultSwitcher::button(int index) const
{
    return index >= 0 && index < m_buttons.size() ? m_buttons.at(index) : nullptr;
}

int VNResultSwitcher::part(int index) const
{
    QToolButton* found = button(index);
    return found ? found->property(partProperty).toInt() : -1;
}

void VNResultSwitcher::setAllButtonsEnabled(bool enabled)
{
    for (QToolButton* button : qAsConst(m_buttons))
        button->setEnabled(enabled);
}

void VNResultSwitcher::setChecked(int index, bool checked)
{
    if (QToolButton* found = button(index))
        found->setChecked(checked);
}

int VNResultSwitcher::checkedIndex() const
{
    return m_buttons.indexOf(qobject_cast<QToolButton*>(m_group->checkedButton()));
}

VNWidgetStatus::StatusFlags VNResultSwitcher::itemWidgetStatus(int index) const
{
    QToolButton* found = button(index);
    return found ? VNWidgetStatus::statusFromProperty(found) : VNWidgetStatus::StatusFlags();
}

void VNResultSwitcher::setItemWidgetStatus(const int& index, const VNWidgetStatus::StatusFlags& status)
{
    if (QToolButton* found = button(index))
        VNWidgetStatus::setStatusProperty(found, status);
}

void VNResultSwitcher::relayout()
{
    if (m_modifying > 0)
        return;
    while (m_layout->count() > 0)
        delete m_layout->takeAt(0);
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (i > 0 && part(i) != part(i - 1))
            m_layout->addSpacing(partGap);
        m_layout->addWidget(m_buttons.at(i));
    }
    m_layout->addStretch(1);
}
