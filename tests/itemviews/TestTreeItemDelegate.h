#pragma once

#include "ui_TestTreeItemDelegate.h"

#include <QDialog>

// A small two-column tree drawn by the toolkit's item delegate: tristate check boxes in column 0,
// a check box in the header, and tree connection lines from the delegate's tree-line role.
class TestTreeItemDelegate : public QDialog, private Ui::TestTreeItemDelegate
{
    Q_OBJECT

public:
    explicit TestTreeItemDelegate(QWidget* parent);

    VNDragTreeWidget* tree() const { return m_tree; }

private:
    void addParent(int number);
};
