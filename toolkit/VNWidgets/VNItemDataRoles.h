#pragma once

#include <Qt>

// Item-data roles that the toolkit's views, headers and delegates read. Models write them on cells
// or, through setHeaderData / header items, on header sections.
namespace VNItemDataRoles {
enum Role
{
    // bool, cells: false draws the cell inactive (greyed, toggles dimmed). Missing means active.
    ActiveRole = Qt::UserRole + 10,
    // bool, cells: true makes the cell read-only (no editor, muted background).
    // bool, header sections: a fixed section: never drawn selected, title in the muted colour.
    ReadOnlyRole = Qt::UserRole + 13,
    // int (VNWidgetStatus bits): the status word; cells get the status fill and a bar on the left,
    // header sections a colour band (colour coding).
    StatusRole = Qt::UserRole + 24,
    // int, cells: how the row connects to its siblings (VNItemDelegate::TreeLine bits).
    TreeLineRole = Qt::UserRole + 36,
    // QColor, cells: a colour box in front of the text (the stack controller's colour-box role).
    ColorBoxRole = Qt::UserRole + 39,
    // bool, cells: the icon (Qt::DecorationRole) goes on the right of the text instead of the left.
    IconRightRole = Qt::UserRole + 60,
    // int (Qt::TextElideMode), cells: how a text too long for the cell is shortened.
    ElideModeRole = Qt::UserRole + 61,
    // int, cells: how the check state is drawn: 0 check box, 1 radio button, 2 visibility eye.
    CheckStyleRole = Qt::UserRole + 62,
    // double, cells: a value with a unit, shown and edited as a number field (with UnitRole and
    // DecimalsRole); a VNDoubleSpinBoxData in Qt::EditRole carries all three at once.
    ValueRole = Qt::UserRole + 63,
    UnitRole = Qt::UserRole + 64,
    DecimalsRole = Qt::UserRole + 65,
    // bool, header sections: the title is rich text ("Column<sub>0</sub>" draws a subscript).
    RichTextRole = Qt::UserRole + 205
};
} // namespace VNItemDataRoles
