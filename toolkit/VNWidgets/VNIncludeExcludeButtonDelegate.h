#pragma once

#include "VNButtonCellDelegate.h"

// A cell that says whether its row is included: a button showing "Include" (a plus) or
// "Exclude" (a minus) from the bool in Qt::EditRole (missing means included). A click flips the
// value and emits includeChanged().
class VNWIDGETS_EXPORT VNIncludeExcludeButtonDelegate : public VNButtonCellDelegate
{
    Q_OBJECT

public:
    explicit VNIncludeExcludeButtonDelegate(QObject* parent = nullptr);

    static bool isIncluded(const QModelIndex& index);

signals:
    void includeChanged(const QModelIndex& index, bool included);

protected:
    void initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int which) const override;
    void buttonClicked(QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index,
                       int button) override;
};
