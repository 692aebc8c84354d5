#pragma once

#include "vnwidgets_export.h"

#include <QIcon>
#include <QPointer>
#include <QStyledItemDelegate>

// A cell that looks like a combo box showing the item's text (with the matching entry's icon);
// its editor is a combo box of the delegate's entries, given as texts and icons or as a model
// (column 0, display and decoration roles). Choosing an entry writes its text to the cell.
class VNWIDGETS_EXPORT VNComboBoxDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit VNComboBoxDelegate(QObject* parent = nullptr);

    void setItems(const QStringList& texts, const QList<QIcon>& icons = QList<QIcon>());
    void setModel(QAbstractItemModel* model);
    int count() const;
    QString itemText(int row) const;
    QIcon itemIcon(int row) const;
    int findText(const QString& text) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    QStringList m_texts;
    QList<QIcon> m_icons;
    QPointer<QAbstractItemModel> m_model;
};
