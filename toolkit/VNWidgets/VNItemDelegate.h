#pragma once

#include "vnwidgets_export.h"

#include <QMargins>
#include <QStyledItemDelegate>

// The toolkit's cell painter for tables and trees. It reads these item-data roles
// (VNItemDataRoles):
// - ActiveRole (266): false draws the cell inactive (greyed) and refuses edits and check clicks;
// - ReadOnlyRole (269): true gives a muted background and no editor;
// - StatusRole (280): the status fill and a status bar on the cell's left edge;
// - TreeLineRole (292): connection lines to the row's siblings (TreeLine bits);
// - Qt::CheckStateRole: a check indicator placed by the indicator margins and alignment, tristate
//   for user-tristate items; clicking it cycles the state.
// Further cell kinds (value fields, icons, colour boxes, ...) are added as more roles; each is
// painted in its own step of paint() so that the steps combine.
class VNWIDGETS_EXPORT VNItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // Bits of TreeLineRole: Connected draws the lines, LastSibling ends the vertical line at the
    // row's middle, Nested indents the lines one level and keeps the outer level's line running.
    enum TreeLine
    {
        NoTreeLine = 0x0,
        LastSibling = 0x1,
        Connected = 0x2,
        Nested = 0x4
    };

    explicit VNItemDelegate(QObject* parent = nullptr);

    // Thin vertical lines between the cells of a row (the look of dense tables).
    bool m_drawColumnSeparators = false;
    // Where the text of cells without their own Qt::TextAlignmentRole goes.
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignVCenter;

    // From now on a cell without an icon keeps the room of one, so that its text lines up with
    // the texts of rows that show a left icon.
    void updateLeftIconIndentationUpdateHandler();
    bool indentsForLeftIcon() const { return m_indentForLeftIcon; }

    void setCheckIndicator(bool visible);
    bool hasCheckIndicator() const { return m_checkIndicator; }
    void setCheckIndicatorMargins(int left, int top, int right, int bottom);
    QMargins checkIndicatorMargins() const { return m_checkMargins; }
    void setCheckIndicatorAlignment(Qt::Alignment alignment);
    Qt::Alignment checkIndicatorAlignment() const { return m_checkAlignment; }

    // Where the check indicator of a cell with this rectangle goes.
    QRect checkIndicatorRect(const QStyleOptionViewItem& option) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    static bool isActive(const QModelIndex& index);
    static bool isReadOnly(const QModelIndex& index);

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    void paintStatus(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    int paintTreeLines(QPainter* painter, const QStyleOptionViewItem& option, int kind) const;
    void paintCheckIndicator(QPainter* painter, const QStyleOptionViewItem& option, Qt::CheckState state) const;

    bool m_checkIndicator = true;
    bool m_indentForLeftIcon = false;
    QMargins m_checkMargins{3, 0, 3, 0};
    Qt::Alignment m_checkAlignment = Qt::AlignLeft | Qt::AlignVCenter;
};
