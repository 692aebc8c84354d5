#include "VNMenuButtonDelegateData.h"

VNMenuButtonDelegateData::VNMenuButtonDelegateData(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<VNMenuButtonDelegateData*>("VNMenuButtonDelegateData*");
    qRegisterMetaType<QList<VNMenuButtonDelegateData*>>("QList<VNMenuButtonDelegateData*>");
}

int VNMenuButtonDelegateData::addMenuItem(const QString& text, const QString& additionalText)
{
    m_items.append({text, additionalText, true});
    return m_items.size() - 1;
}

void VNMenuButtonDelegateData::removeMenuItem(int item)
{
    if (item < 0 || item >= m_items.size())
        return;
    m_items.remove(item);
    if (m_defaultItem == item)
        m_defaultItem = -1;
    else if (m_defaultItem > item)
        --m_defaultItem;
}

QString VNMenuButtonDelegateData::text(int item) const
{
    return m_items.value(item).text;
}

QString VNMenuButtonDelegateData::additionalText(int item) const
{
    return m_items.value(item).additionalText;
}

void VNMenuButtonDelegateData::setMenuItemEnabled(int item, bool enabled)
{
    if (item >= 0 && item < m_items.size())
        m_items[item].enabled = enabled;
}

bool VNMenuButtonDelegateData::isMenuItemEnabled(int item) const
{
    return item >= 0 && item < m_items.size() && m_items.at(item).enabled;
}

void VNMenuButtonDelegateData::setDefaultItem(int item)
{
    m_defaultItem = (item >= 0 && item < m_items.size()) ? item : -1;
}
