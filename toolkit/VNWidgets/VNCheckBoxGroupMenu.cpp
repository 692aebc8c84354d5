#include "VNCheckBoxGroupMenu.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

VNCheckBoxGroupMenu::VNCheckBoxGroupMenu(QWidget* parent)
    : VNPanelMenu(parent)
{
    setObjectName(QStringLiteral("VNCheckBoxGroupMenu"));
}

void VNCheckBoxGroupMenu::setupSelectMenu(SelectActions actions)
{
    delete m_selectBar;
    m_selectBar = nullptr;
    if (!actions)
        return;
    m_selectBar = new QWidget(panel());
    auto* layout = new QHBoxLayout(m_selectBar);
    layout->setContentsMargins(0, 0, 0, 0);
    if (actions.testFlag(SelectAll)) {
        auto* all = new QToolButton(m_selectBar);
        all->setObjectName(QStringLiteral("selectAll"));
        all->setText(tr("Select All"));
        all->setAutoRaise(true);
        connect(all, &QToolButton::clicked, this, &VNCheckBoxGroupMenu::selectAll);
        layout->addWidget(all);
    }
    if (actions.testFlag(SelectNone)) {
        auto* none = new QToolButton(m_selectBar);
        none->setObjectName(QStringLiteral("selectNone"));
        none->setText(tr("Select None"));
        none->setAutoRaise(true);
        connect(none, &QToolButton::clicked, this, &VNCheckBoxGroupMenu::selectNone);
        layout->addWidget(none);
    }
    layout->addStretch(1);
    panelLayout()->insertWidget(0, m_selectBar);
}

void VNCheckBoxGroupMenu::addControlGroup(const QString& title)
{
    if (m_groupLayouts.contains(title))
        return;
    auto* titleLabel = new QLabel(title, panel());
    titleLabel->setObjectName(QStringLiteral("groupTitle"));
    titleLabel->setProperty("isHeader", true);
    panelLayout()->addWidget(titleLabel);
    auto* body = new QWidget(panel());
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(8, 0, 0, 4);
    layout->setSpacing(2);
    panelLayout()->addWidget(body);
    m_order.append(title);
    m_groupLayouts.insert(title, layout);
}

bool VNCheckBoxGroupMenu::addCheckBoxToGroup(QCheckBox* checkBox, const QString& group)
{
    QVBoxLayout* layout = m_groupLayouts.value(group);
    if (!checkBox || !layout)
        return false;
    layout->addWidget(checkBox);
    m_checkBoxes[group].append(checkBox);
    return true;
}

QList<QCheckBox*> VNCheckBoxGroupMenu::checkBoxes(const QString& group) const
{
    return m_checkBoxes.value(group);
}

void VNCheckBoxGroupMenu::selectAll()
{
    setAllChecked(true);
}

void VNCheckBoxGroupMenu::selectNone()
{
    setAllChecked(false);
}

void VNCheckBoxGroupMenu::setAllChecked(bool checked)
{
    for (const QList<QCheckBox*>& group : qAsConst(m_checkBoxes)) {
        for (QCheckBox* checkBox : group) {
            if (checkBox->isEnabled())
                checkBox->setChecked(checked);
        }
    }
}
