#pragma once

#include "VNButtonCellDelegate.h"

// A text cell with a small information button on its right; a click on the button shows the
// item's Qt::ToolTipRole text at once as a tool tip under the button.
class VNWIDGETS_EXPORT VNToolTipButtonDelegate : public VNButtonCellDelegate
{
    Q_OBJECT

public:
    explicit VNToolTipButtonDelegate(QObject* parent = nullptr);

    QRect buttonRect(const QRect& cellRect, const QModelIndex& index, int button) const override;

signals:
    void toolTipShown(const QModelIndex& index, const QString& text);

protected:
    void initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int which) const override;
    bool isButtonEnabled(const QModelIndex& index, int button) const override;
    void paintCell(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void buttonClicked(QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index,
                       int button) override;
};
