#pragma once

#include "vnwidgets_export.h"

#include <QWidget>

#include <memory>

class QMenu;
class VNContainerListControl;
class VNControlledStackWidget;
class VNStackContextHandler;
class VNStackItemDelegate;

// The master of a master-detail pair: the tree of pages that a VNControlledStackWidget shows.
// It draws the pages' icons (right or left of the text, or for sub pages in the indentation),
// colour boxes, highlights and symmetry brackets (VNControlledStackItem roles), top-level pages
// as group headers on request, and offers a context menu that a VNStackContextHandler extends.
class VNWIDGETS_EXPORT VNStackControllerWidget : public QWidget
{
    Q_OBJECT

public:
    // toolBar, when given, is shown above the tree; minimumTreeWidth 0 keeps the tree's own.
    VNStackControllerWidget(QWidget* parent, QWidget* toolBar = nullptr, int minimumTreeWidth = 0);
    ~VNStackControllerWidget() override;

    VNContainerListControl* getListControl() const { return m_listControl; }
    VNControlledStackWidget* stackWidget() const { return m_stack; }

    // Right click on the tree opens a menu with icons of iconSize; with standardActions it offers
    // "Expand All" and "Collapse All"; the handler's entries go to handlerPosition (-1: the end).
    void createCustomContextMenu(int iconSize, bool standardActions, int handlerPosition);
    // Takes ownership.
    void setCustomContextMenuHandler(VNStackContextHandler* handler);
    // The menu the right click at the tree viewport position opens; the caller owns it.
    QMenu* createContextMenuAt(const QPoint& position);

    void enableMultiSelection(bool enable);
    bool isMultiSelectionEnabled() const;

    Qt::AlignmentFlag getDecorationAlignment() const { return m_decorationAlignment; }
    void setDecorationAlignment(Qt::AlignmentFlag alignment);
    void setPaintLeftIconInIndentation(const bool& paint);
    bool paintsLeftIconInIndentation() const { return m_leftIconInIndentation; }
    // The header gets a check box that shows and sets the check state of all top-level pages.
    void useCheckStateHeader();

    bool showsTopLevelItemsAsGroupHeader() const { return m_groupHeaders; }

private:
    friend class VNControlledStackWidget;
    friend class VNStackItemDelegate;
    void setStackWidget(VNControlledStackWidget* stack) { m_stack = stack; }
    void setShowTopLevelItemsAsGroupHeader(bool show);
    void onContextMenuRequested(const QPoint& position);
    void refresh();

    VNContainerListControl* m_listControl;
    VNControlledStackWidget* m_stack = nullptr;
    VNStackItemDelegate* m_delegate;
    std::unique_ptr<VNStackContextHandler> m_contextHandler;
    int m_menuIconSize = 16;
    bool m_standardMenuActions = false;
    int m_handlerPosition = -1;
    Qt::AlignmentFlag m_decorationAlignment = Qt::AlignLeft;
    bool m_leftIconInIndentation = false;
    bool m_groupHeaders = false;
};
