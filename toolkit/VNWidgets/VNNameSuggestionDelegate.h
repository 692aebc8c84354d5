#pragma once

#include "vnwidgets_export.h"

#include <QStyledItemDelegate>

// A name cell with a suggested name: the item's name (Qt::DisplayRole) followed by the suggestion
// (s_suggestionRole) in a muted italic. The editor is a line edit that offers the suggestion as
// its placeholder and completion; an empty entry keeps the old name.
class VNWIDGETS_EXPORT VNNameSuggestionDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static const int s_suggestionRole;

    explicit VNNameSuggestionDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
};
