#pragma once

#include <QStyledItemDelegate>

class VNStackControllerWidget;

// Paints the rows of a VNStackControllerWidget's tree: highlight, group header, colour box, icon
// placement and the symmetry bracket beside the row.
class VNStackItemDelegate : public QStyledItemDelegate
{
public:
    explicit VNStackItemDelegate(VNStackControllerWidget* controller);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    static const int colorBoxSize = 10;
    static const int markerWidth = 8;

private:
    void paintSymmetryMarker(QPainter* painter, const QRect& rect, int marker) const;

    VNStackControllerWidget* m_controller;
};
