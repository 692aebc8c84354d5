#pragma once

#include "VNButtonCellDelegate.h"

#include <QStringList>

// A cell with two push buttons side by side, with the texts given to the delegate; a click emits
// clicked(index, 0) for the left and clicked(index, 1) for the right button.
class VNWIDGETS_EXPORT VNTwinPushButtonDelegate : public VNButtonCellDelegate
{
    Q_OBJECT

public:
    explicit VNTwinPushButtonDelegate(const QString& leftText, const QString& rightText, QObject* parent = nullptr);

    QStringList texts() const { return m_texts; }
    int buttonCount(const QModelIndex& index) const override;

protected:
    void initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int which) const override;

private:
    QStringList m_texts;
};
