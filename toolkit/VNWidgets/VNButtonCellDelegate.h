#pragma once

#include "vnwidgets_export.h"

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

class QStyleOptionButton;

// The base of the delegates that draw push buttons in a cell. The buttons share the cell's width
// (or sit where buttonRect() puts them) and behave like real buttons: a left press draws the
// button sunken, a release over it clicks it; Space or Return clicks the first enabled button of
// the current cell. Cells with VNItemDataRoles::ActiveRole false draw their buttons disabled.
class VNWIDGETS_EXPORT VNButtonCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit VNButtonCellDelegate(QObject* parent = nullptr);

    // Whether the cell shows buttons at all (cells without data for the buttons stay empty).
    virtual bool hasButtons(const QModelIndex& index) const;
    virtual int buttonCount(const QModelIndex& index) const;
    virtual QRect buttonRect(const QRect& cellRect, const QModelIndex& index, int button) const;
    // The button under this point of a cell, -1 for none.
    int buttonAt(const QRect& cellRect, const QModelIndex& index, const QPoint& pos) const;
    // The button drawn pressed, -1 for none.
    int pressedButton(const QModelIndex& index) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

signals:
    void clicked(const QModelIndex& index, int button);

protected:
    // Text, icon and checked state of one button; the base sets rect, state and palette.
    virtual void initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int which) const;
    virtual bool isButtonEnabled(const QModelIndex& index, int button) const;
    // What a click does besides emitting clicked(); the default does nothing.
    virtual void buttonClicked(QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index,
                               int button);
    // Draws what the cell shows besides its buttons (the base draws the item's background).
    virtual void paintCell(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    void click(QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index, int button);

    QPersistentModelIndex m_pressedIndex;
    int m_pressedButton = -1;
};
