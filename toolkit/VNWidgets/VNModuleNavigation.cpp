#include "VNModuleNavigation.h"

#include "VNSvgIcon_p.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QToolButton>
#include <QVariant>

namespace {
const char* const lockIcon = ":/Style/VnWidgets/VNModuleNavigation/lock.svg";

void discard(QWidget* widget)
{
    widget->hide();
    widget->setObjectName(QString());
    // The button may be the sender of the click being handled.
    widget->deleteLater();
}
} // namespace

VNModuleNavigation::VNModuleNavigation(QWidget* parent)
    : QWidget(parent)
    , m_exclusive(new QButtonGroup(this))
    , m_layout(new QGridLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(m_exclusive, &QButtonGroup::idClicked, this, [this](int) { emit currentChanged(currentIndex()); });
}

int VNModuleNavigation::addButton(const QString& text, const QString& toolTip)
{
    const int index = insertButton(text, m_modules.size());
    m_modules.at(index)->setToolTip(toolTip);
    return index;
}

int VNModuleNavigation::insertButton(const QString& text, int index)
{
    index = qBound(0, index, m_modules.size());
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("moduleButton"));
    button->setText(text);
    button->setCheckable(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_exclusive->addButton(button);
    m_modules.insert(index, button);
    rebuild();
    return index;
}

void VNModuleNavigation::removeButton(int index)
{
    if (index < 0 || index >= m_modules.size())
        return;
    QToolButton* button = m_modules.takeAt(index);
    m_exclusive->removeButton(button);
    discard(button);
    rebuild();
}

QString VNModuleNavigation::buttonText(int index) const
{
    QToolButton* module = button(index);
    return module ? module->text() : QString();
}

QToolButton* VNModuleNavigation::button(int index) const
{
    return index >= 0 && index < m_modules.size() ? m_modules.at(index) : nullptr;
}

int VNModuleNavigation::currentIndex() const
{
    return m_modules.indexOf(qobject_cast<QToolButton*>(m_exclusive->checkedButton()));
}

void VNModuleNavigation::setCurrentIndex(int index)
{
    QToolButton* module = button(index);
    if (!module || module->isChecked() || isModuleLocked(index))
        return;
    module->setChecked(true);
    emit currentChanged(index);
}

void VNModuleNavigation::setModuleLocked(int index, bool locked)
{
    QToolButton* module = button(index);
    if (!module)
        return;
    module->setProperty("locked", locked);
    module->setEnabled(!locked);
    module->setIcon(locked ? VNSvgIcon::fromFile(QLatin1String(lockIcon)) : QIcon());
}

bool VNModuleNavigation::isModuleLocked(int index) const
{
    QToolButton* module = button(index);
    return module && module->property("locked").toBool();
}

QToolButton* VNModuleNavigation::addGroupButton(int row, int firstModule, int lastModule, const QIcon& icon,
                                                const QString& text, bool checked)
{
    removeGroupButton(row);
    GroupButton group;
    group.first = qMin(firstModule, lastModule);
    group.last = qMax(firstModule, lastModule);
    group.button = new QToolButton(this);
    group.button->setObjectName(QStringLiteral("groupButton"));
    group.button->setIcon(icon);
    group.button->setText(text);
    group.button->setCheckable(true);
    group.button->setChecked(checked);
    group.button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    group.button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(group.button, &QToolButton::clicked, this, [this, row] { emit groupButtonClicked(row); });
    m_groups.insert(row, group);
    rebuild();
    return group.button;
}

void VNModuleNavigation::removeGroupButton(int row)
{
    const auto found = m_groups.find(row);
    if (found == m_groups.end())
        return;
    discard(found->button);
    m_groups.erase(found);
    rebuild();
}

QToolButton* VNModuleNavigation::groupButton(int row) const
{
    return m_groups.value(row).button;
}

QPair<int, int> VNModuleNavigation::groupButtonRange(int row) const
{
    const GroupButton group = m_groups.value(row);
    return group.button ? qMakePair(group.first, group.last) : qMakePair(-1, -1);
}

// Modules fill the first grid row; each group row lies below and spans its modules' columns.
void VNModuleNavigation::rebuild()
{
    while (m_layout->count() > 0)
        delete m_layout->takeAt(0);
    for (int i = 0; i < m_modules.size(); ++i)
        m_layout->addWidget(m_modules.at(i), 0, i);
    for (auto it = m_groups.cbegin(); it != m_groups.cend(); ++it) {
        const int first = qBound(0, it->first, qMax(0, m_modules.size() - 1));
        const int last = qBound(first, it->last, qMax(0, m_modules.size() - 1));
        m_layout->addWidget(it->button, 1 + it.key(), first, 1, last - first + 1);
    }
}
