#pragma once

#include "vnwidgets_export.h"

#include <QList>
#include <QStackedWidget>
#include <QVector>

class VNControlledStackItem;
class VNStackControllerWidget;
class QTreeWidgetItem;

// The detail side of a master-detail pair: a stack of pages, one per row of its controller's
// tree. Selecting a row shows its page; pages can be nested three levels deep and are found by
// position or by depth-first index. The stack owns its pages.
class VNWIDGETS_EXPORT VNControlledStackWidget : public QStackedWidget
{
    Q_OBJECT

public:
    enum CheckableItems
    {
        NoItem = 0,
        TopLevelItems = 1,
        SubItems = 2,
        AllItem = 5
    };
    Q_ENUM(CheckableItems)

    VNControlledStackWidget(VNStackControllerWidget* controller, QWidget* parent);

    VNStackControllerWidget* controller() const { return m_controller; }

    // index -1 appends. New pages get a check box according to the checkable-items setting.
    VNControlledStackItem* addItem(QWidget* page, int index = -1);
    VNControlledStackItem* addItem(QWidget* page, VNControlledStackItem* parent, int index = -1);

    // Top-level pages.
    int itemCount() const;
    VNControlledStackItem* itemAt(int index) const;
    // Null outside 0 .. total page count - 1.
    VNControlledStackItem* itemAtDFSIndex(int index) const;
    VNControlledStackItem* currentItem() const;

    // Removes and deletes every page.
    void clear();

    void setHeaderLabel(const QString& label, bool visible);

    // Applies to pages added afterwards; existing pages keep their check boxes.
    void setCheckableItems(CheckableItems checkable);
    CheckableItems isCheckableItems() const { return m_checkable; }

    // Selects the pages at these depth-first indices; the first becomes current.
    void setSelectedElementsByDfsIndex(QList<int> indices);
    void setShowTopLevelItemsAsGroupHeader(bool show);

signals:
    void currentChanged(VNControlledStackItem* current, VNControlledStackItem* previous);

private:
    VNControlledStackItem* createItem(QWidget* page, int depth);
    void onCurrentItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);

    VNStackControllerWidget* m_controller;
    CheckableItems m_checkable = NoItem;
};
