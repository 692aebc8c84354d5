#pragma once

#include "vnwidgets_export.h"

#include <QColor>
#include <QSize>
#include <QStyledItemDelegate>

// A cell that is only a toggle, drawn at the icon size in the "on" or the "off" colour from the
// cell's Qt::CheckStateRole. A click on the cell flips it and emits toggled(). The delegate
// mirrors the state into Qt::EditRole as a bool, so that code reading the cell's value (header
// clicks, selections) sees the toggle; the mirror follows every change it paints.
// Cells with VNItemDataRoles::ActiveRole false are drawn dimmed and do not toggle.
class VNWIDGETS_EXPORT IconToggleDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    enum Type
    {
        Check = 0,     // a rounded square with a tick
        Radio = 1,     // a round dot, filled when on
        Visibility = 2 // an eye, open when on
    };
    Q_ENUM(Type)

    explicit IconToggleDelegate(Type type, QObject* parent = nullptr);

    Type type() const { return m_type; }
    void setBaseColorOn(const QColor& color);
    QColor baseColorOn() const { return m_colorOn; }
    void setBaseColorOff(const QColor& color);
    QColor baseColorOff() const { return m_colorOff; }
    void setIconSize(QSize size);
    QSize iconSize() const { return m_iconSize; }

    // Where the toggle of a cell with this rectangle is drawn.
    QRect toggleRect(const QRect& cellRect) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

signals:
    void toggled(const QModelIndex& index, const bool on);

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    void mirrorToEditRole(const QModelIndex& index, bool on) const;
    void paintToggle(QPainter* painter, const QRect& rect, bool on, bool enabled) const;

    Type m_type;
    QColor m_colorOn;
    QColor m_colorOff;
    QSize m_iconSize{12, 12};
};
