#pragma once

#include "vnwidgets_export.h"

#include <QPointer>
#include <QTreeWidgetItem>

class QWidget;

// One page of a VNControlledStackWidget: its row in the controller's tree, which holds the page's
// text, icon, check state and drawing roles, and the detail widget it shows.
class VNWIDGETS_EXPORT VNControlledStackItem : public QTreeWidgetItem
{
public:
    // Drawing roles that the controller reads in column 0.
    enum Role
    {
        // int: symmetry marker beside the row (SymmetryMarker); missing means none.
        SymmetryMarkerRole = Qt::UserRole + 34,
        // QColor: a colour box before the text; an invalid variant removes it.
        ColorBoxRole = Qt::UserRole + 39,
        // bool: the row is highlighted.
        HighlightRole = Qt::UserRole + 42
    };
    enum SymmetryMarker
    {
        SingleItem = 0,
        FirstItem = 1,
        LastItem = 2,
        InnerItem = 3
    };

    explicit VNControlledStackItem(QWidget* page);

    QWidget* page() const { return m_page; }

    using QTreeWidgetItem::setData;
    using QTreeWidgetItem::setIcon;
    using QTreeWidgetItem::setText;
    void setText(const QString& text) { setText(0, text); }
    QString text() const { return QTreeWidgetItem::text(0); }
    void setIcon(const QIcon& icon) { setIcon(0, icon); }
    void setData(int role, const QVariant& value) { setData(0, role, value); }
    void setEditable(bool editable);
    void setChecked(bool checked);
    bool isChecked() const { return checkState(0) == Qt::Checked; }

    int itemCount() const { return childCount(); }
    VNControlledStackItem* itemAt(int index) const;
    // The row's position in a depth-first walk of the controller's tree; -1 outside a tree.
    int getDFSIndex() const;

private:
    QPointer<QWidget> m_page;
};
