#include "VNMenuButtonDelegate.h"

#include "VNMenuButtonDelegateData.h"

#include <QAbstractItemView>
#include <QMenu>
#include <QStyleOptionButton>

namespace {
const int arrowWidth = 18;
}

const int VNMenuButtonDelegate::s_delegateDataRole = Qt::UserRole + 70;

VNMenuButtonDelegate::VNMenuButtonDelegate(QObject* parent)
    : VNButtonCellDelegate(parent)
{}

VNMenuButtonDelegateData* VNMenuButtonDelegate::delegateData(const QModelIndex& index)
{
    return index.data(s_delegateDataRole).value<VNMenuButtonDelegateData*>();
}

int VNMenuButtonDelegate::buttonCount(const QModelIndex&) const
{
    return 2;
}

QRect VNMenuButtonDelegate::buttonRect(const QRect& cellRect, const QModelIndex&, int button) const
{
    const QRect inner = cellRect.adjusted(1, 1, -1, -1);
    if (button == 1)
        return QRect(inner.right() - arrowWidth + 1, inner.top(), arrowWidth, inner.height());
    return inner.adjusted(0, 0, -arrowWidth, 0);
}

void VNMenuButtonDelegate::initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int which) const
{
    if (which == 1) {
        button->text = QString(QChar(0x25be)); // the down arrow of a menu button
        return;
    }
    const VNMenuButtonDelegateData* data = delegateData(index);
    button->text =
        (data && data->defaultItem() >= 0) ? data->text(data->defaultItem()) : index.data(Qt::DisplayRole).toString();
}

bool VNMenuButtonDelegate::isButtonEnabled(const QModelIndex& index, int button) const
{
    if (!VNButtonCellDelegate::isButtonEnabled(index, button))
        return false;
    const VNMenuButtonDelegateData* data = delegateData(index);
    if (button == 0 && data && data->defaultItem() >= 0)
        return data->isMenuItemEnabled(data->defaultItem());
    return data && data->count() > 0;
}

QMenu* VNMenuButtonDelegate::createMenu(const QModelIndex& index, QWidget* parent)
{
    auto* menu = new QMenu(parent);
    const VNMenuButtonDelegateData* data = delegateData(index);
    const QPersistentModelIndex cell(index);
    for (int item = 0; data && item < data->count(); ++item) {
        QString text = data->text(item);
        if (!data->additionalText(item).isEmpty())
            text += QLatin1Char('\t') + data->additionalText(item);
        QAction* action = menu->addAction(text);
        action->setEnabled(data->isMenuItemEnabled(item));
        if (item == data->defaultItem()) {
            QFont font = action->font();
            font.setBold(true);
            action->setFont(font);
        }
        connect(action, &QAction::triggered, this, [this, cell, item] { emit menuItemTriggered(cell, item); });
    }
    return menu;
}

void VNMenuButtonDelegate::buttonClicked(QAbstractItemModel*, const QStyleOptionViewItem& option,
                                         const QModelIndex& index, int button)
{
    const VNMenuButtonDelegateData* data = delegateData(index);
    if (button == 0 && data && data->defaultItem() >= 0) {
        emit menuItemTriggered(index, data->defaultItem());
        return;
    }
    auto* view = qobject_cast<QAbstractItemView*>(const_cast<QWidget*>(option.widget));
    QWidget* anchor = view ? view->viewport() : nullptr;
    QMenu* menu = createMenu(index, anchor);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(anchor ? anchor->mapToGlobal(option.rect.bottomLeft()) : QCursor::pos());
}

bool VNMenuButtonDelegate::hasButtons(const QModelIndex& index) const
{
    return delegateData(index) != nullptr;
}
