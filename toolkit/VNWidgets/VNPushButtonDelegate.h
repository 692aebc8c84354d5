#pragma once

#include "VNButtonCellDelegate.h"

// A cell that is one push button with the item's text and icon (Qt::DisplayRole,
// Qt::DecorationRole). Items with a Qt::CheckStateRole value make it checkable: a click flips
// the check state, and the button is drawn pressed while checked.
class VNWIDGETS_EXPORT VNPushButtonDelegate : public VNButtonCellDelegate
{
    Q_OBJECT

public:
    explicit VNPushButtonDelegate(QObject* parent = nullptr);

    bool hasButtons(const QModelIndex& index) const override;

protected:
    void initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int which) const override;
    void buttonClicked(QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index,
                       int button) override;
};
