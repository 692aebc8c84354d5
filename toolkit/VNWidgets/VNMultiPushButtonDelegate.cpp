#include "VNMultiPushButtonDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyleOptionButton>
#include <QToolTip>

namespace {
const int enabledRole = Qt::UserRole + 72;
const int checkedRole = Qt::UserRole + 73;
const int iconExtent = 16;
} // namespace

VNMultiPushButtonDelegate::VNMultiPushButtonDelegate(QObject* parent)
    : VNButtonCellDelegate(parent)
{}

int VNMultiPushButtonDelegate::getMultiPushButtonEnabledRole()
{
    return enabledRole;
}

int VNMultiPushButtonDelegate::getMultiPushButtonCheckedRole()
{
    return checkedRole;
}

int VNMultiPushButtonDelegate::addButton(const QString& text, const QIcon& icon, const QIcon& disabledIcon,
                                         const QIcon& checkedIcon)
{
    // One QIcon per button whose modes and states carry the variants, so that the style picks the
    // disabled and the checked look itself.
    QIcon combined;
    for (const QSize& size : icon.availableSizes())
        combined.addPixmap(icon.pixmap(size), QIcon::Normal, QIcon::Off);
    if (icon.availableSizes().isEmpty() && !icon.isNull())
        combined.addPixmap(icon.pixmap(iconExtent), QIcon::Normal, QIcon::Off);
    if (!disabledIcon.isNull())
        combined.addPixmap(disabledIcon.pixmap(iconExtent), QIcon::Disabled, QIcon::Off);
    if (!checkedIcon.isNull())
        combined.addPixmap(checkedIcon.pixmap(iconExtent), QIcon::Normal, QIcon::On);
    else if (!icon.isNull())
        combined.addPixmap(icon.pixmap(iconExtent), QIcon::Normal, QIcon::On);
    m_buttons.append({text, combined, {}});
    return m_buttons.size() - 1;
}

void VNMultiPushButtonDelegate::setButtonToolTips(int button, const QString& enabled, const QString& disabled,
                                                  const QString& checked)
{
    if (button < 0 || button >= m_buttons.size())
        return;
    m_buttons[button].toolTips[0] = enabled;
    m_buttons[button].toolTips[1] = disabled;
    m_buttons[button].toolTips[2] = checked;
}

QIcon VNMultiPushButtonDelegate::buttonIcon(int button) const
{
    return m_buttons.value(button).icon;
}

QString VNMultiPushButtonDelegate::buttonToolTip(const QModelIndex& index, int button) const
{
    if (button < 0 || button >= m_buttons.size())
        return {};
    const Button& b = m_buttons.at(button);
    if (!isButtonEnabled(index, button))
        return b.toolTips[1];
    return isButtonChecked(index, button) ? b.toolTips[2] : b.toolTips[0];
}

int VNMultiPushButtonDelegate::buttonCount(const QModelIndex&) const
{
    return m_buttons.size();
}

bool VNMultiPushButtonDelegate::isButtonChecked(const QModelIndex& index, int button) const
{
    return index.data(checkedRole).toInt() & (1 << button);
}

bool VNMultiPushButtonDelegate::isButtonEnabled(const QModelIndex& index, int button) const
{
    if (!VNButtonCellDelegate::isButtonEnabled(index, button))
        return false;
    const QVariant enabled = index.data(enabledRole);
    if (enabled.userType() == QMetaType::QVariantList)
        return enabled.toList().value(button, true).toBool();
    return !enabled.isValid() || enabled.toBool();
}

void VNMultiPushButtonDelegate::initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int which) const
{
    const Button& b = m_buttons.at(which);
    button->text = b.text;
    button->icon = b.icon;
    button->iconSize = QSize(iconExtent, iconExtent);
    if (isButtonChecked(index, which))
        button->state |= QStyle::State_On | QStyle::State_Sunken;
}

void VNMultiPushButtonDelegate::buttonClicked(QAbstractItemModel* model, const QStyleOptionViewItem&,
                                              const QModelIndex& index, int button)
{
    const int mask = index.data(checkedRole).toInt() ^ (1 << button);
    model->setData(index, mask, checkedRole);
    emit buttonToggled(index, button, mask & (1 << button));
}

bool VNMultiPushButtonDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                          const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip)
        return VNButtonCellDelegate::helpEvent(event, view, option, index);
    const QString text = buttonToolTip(index, buttonAt(option.rect, index, event->pos()));
    if (text.isEmpty())
        return VNButtonCellDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), text, view);
    return true;
}

bool VNMultiPushButtonDelegate::hasButtons(const QModelIndex& index) const
{
    return index.data(checkedRole).isValid();
}
