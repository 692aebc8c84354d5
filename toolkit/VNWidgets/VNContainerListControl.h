#pragma once

#include "vnwidgets_export.h"

#include <QWidget>

class VNDragTreeWidget;

// The list part of a VNStackControllerWidget: the tree of pages, whose names can be edited in
// place when the control is editable (double click or F2).
class VNWIDGETS_EXPORT VNContainerListControl : public QWidget
{
    Q_OBJECT

public:
    explicit VNContainerListControl(QWidget* parent = nullptr);

    VNDragTreeWidget* treeWidget() const { return m_tree; }

    void setEditable(bool editable);
    bool isEditable() const { return m_editable; }

private:
    VNDragTreeWidget* m_tree;
    bool m_editable = false;
};
