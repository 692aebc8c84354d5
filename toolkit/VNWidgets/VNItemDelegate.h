#pragma once

#include "vnwidgets_export.h"

#include <QMargins>
#include <QStyledItemDelegate>

class QAbstractItemView;

// The toolkit's cell painter for tables and trees. It reads these item-data roles
// (VNItemDataRoles):
// - ActiveRole (266): false draws the cell inactive (greyed) and refuses edits and check clicks;
// - ReadOnlyRole (269): true gives a muted background and no editor;
// - StatusRole (280): the status fill and a status bar on the cell's left edge;
// - TreeLineRole (292): connection lines to the row's siblings (TreeLine bits);
// - Qt::CheckStateRole: a check indicator placed by the indicator margins and alignment, tristate
//   for user-tristate items; clicking it cycles the state.
// - CheckStyleRole: the check state drawn as a check box, a radio button or a visibility eye;
// - ColorBoxRole, IconRightRole, ElideModeRole: a colour box, an icon on the right, the elide mode;
// - ValueRole/UnitRole/DecimalsRole or a VNDoubleSpinBoxData in Qt::EditRole: a number with a
//   unit, right-aligned in the value field and edited with a VNDoubleSpinBox.
// Every status bit shows, in the colours of VNStatusPalette: the main look gives the fill and the
// bar (faded in inactive cells), user edit, need input, different, compare differs and the
// standard bits each add a mark in the cell's top right corner; with SigmaAvailable the cell shows
// a clickable sigma marker in the colour of the sigma bar (filled when sigma is on, with a dot
// when its standard changed).
// Each kind is painted in its own step of paint() so that the steps combine.
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

    // A white field behind the value of editable cells, the look of input fields.
    void setDrawValueBackground(bool draw);
    bool drawValueBackground() const { return m_drawValueBackground; }
    // The value field's width preset: -1 the whole cell, 0 short, 1 medium, 2 normal, 3 large.
    void setValueFieldWidth(int width);
    int valueFieldWidth() const { return m_valueFieldWidth; }
    // The value field of an editable cell with this rectangle.
    QRect valueFieldRect(const QRect& cellRect) const;
    // The sigma marker of a cell with this rectangle (shown when the status has SigmaAvailable).
    static QRect sigmaRect(const QRect& cellRect);

    // The number shown by a value cell, with its unit; empty for cells without a value.
    static QString valueText(const QModelIndex& index);
    static bool hasValue(const QModelIndex& index);

    // Where the check indicator of a cell with this rectangle goes.
    QRect checkIndicatorRect(const QStyleOptionViewItem& option) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

    // The status look for delegates that draw cells themselves: paintCellBackground() gives the
    // status fill and bar (or the read-only fill), paintStatusMarks() the corner marks.
    static void paintCellBackground(QPainter* painter, const QRect& rect, const QModelIndex& index);
    static void paintStatusMarks(QPainter* painter, const QRect& rect, int status);

    static bool isActive(const QModelIndex& index);
    static bool isReadOnly(const QModelIndex& index);

signals:
    void sigmaClicked(const QModelIndex& index, QAbstractItemView* view);

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    int paintTreeLines(QPainter* painter, const QStyleOptionViewItem& option, int kind) const;
    void paintCheckIndicator(QPainter* painter, const QStyleOptionViewItem& option, Qt::CheckState state,
                             int checkStyle) const;
    void paintSigma(QPainter* painter, const QRect& rect, int status) const;
    void paintDecorations(QPainter* painter, QStyleOptionViewItem& opt, const QModelIndex& index) const;
    bool handleSigmaClick(QEvent* event, const QStyleOptionViewItem& option, const QModelIndex& index);

    bool m_checkIndicator = true;
    bool m_indentForLeftIcon = false;
    bool m_drawValueBackground = false;
    int m_valueFieldWidth = -1;
    QMargins m_checkMargins{3, 0, 3, 0};
    Qt::Alignment m_checkAlignment = Qt::AlignLeft | Qt::AlignVCenter;
};
