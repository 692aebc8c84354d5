#pragma once

#include <QStyledItemDelegate>

class VNComboBox;

// Paints the popup items of a VNComboBox in its combo style, with a status bar in front of items
// that carry a status, and separators as lines.
class VNComboBoxPopupDelegate : public QStyledItemDelegate
{
public:
    explicit VNComboBoxPopupDelegate(VNComboBox* combo);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    static bool isSeparator(const QModelIndex& index);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    VNComboBox* m_combo;
};
