#pragma once

#include "vnwidgets_export.h"

#include <QStyledItemDelegate>

// A cell that shows a colour: a framed box filled with the QColor of Qt::EditRole and the
// colour's name. The editor is a combo box of the toolkit's colours, each with its swatch.
class VNWIDGETS_EXPORT ColorBoxDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ColorBoxDelegate(QObject* parent = nullptr);

    static QRect colorBoxRect(const QRect& cellRect);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
};
