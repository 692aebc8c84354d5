#pragma once

#include "VNButtonCellDelegate.h"

class QMenu;
class VNMenuButtonDelegateData;

// A cell that is a split menu button: the face shows the default entry of the cell's
// VNMenuButtonDelegateData (stored under s_delegateDataRole) and a click on it triggers that
// entry; the narrow arrow part, or the face when there is no default entry, opens the menu of all
// entries (disabled ones greyed, additional texts on the right). Choosing an entry emits
// menuItemTriggered().
class VNWIDGETS_EXPORT VNMenuButtonDelegate : public VNButtonCellDelegate
{
    Q_OBJECT

public:
    static const int s_delegateDataRole;

    explicit VNMenuButtonDelegate(QObject* parent = nullptr);

    static VNMenuButtonDelegateData* delegateData(const QModelIndex& index);
    bool hasButtons(const QModelIndex& index) const override;
    int buttonCount(const QModelIndex& index) const override;
    QRect buttonRect(const QRect& cellRect, const QModelIndex& index, int button) const override;
    // The menu a click on the arrow opens (the caller owns it).
    QMenu* createMenu(const QModelIndex& index, QWidget* parent);

signals:
    void menuItemTriggered(const QModelIndex& index, int item);

protected:
    void initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int which) const override;
    bool isButtonEnabled(const QModelIndex& index, int button) const override;
    void buttonClicked(QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index,
                       int button) override;
};
