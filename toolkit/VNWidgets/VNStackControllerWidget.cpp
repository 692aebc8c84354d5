#include "VNStackControllerWidget.h"

#include "VNContainerListControl.h"
#include "VNControlledStackItem.h"
#include "VNDragTreeWidget.h"
#include "VNStackContextHandler.h"
#include "VNStackItemDelegate_p.h"

#include <QMenu>
#include <QVBoxLayout>

VNStackControllerWidget::VNStackControllerWidget(QWidget* parent, QWidget* toolBar, int minimumTreeWidth)
    : QWidget(parent)
    , m_listControl(new VNContainerListControl(this))
    , m_delegate(new VNStackItemDelegate(this))
{
    setObjectName(QStringLiteral("vnStackControllerWidget"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (toolBar)
        layout->addWidget(toolBar);
    layout->addWidget(m_listControl);
    VNDragTreeWidget* tree = m_listControl->treeWidget();
    if (minimumTreeWidth > 0)
        tree->setMinimumWidth(minimumTreeWidth);
    tree->setItemDelegate(m_delegate);
    tree->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(tree, &QWidget::customContextMenuRequested, this, &VNStackControllerWidget::onContextMenuRequested);
}

VNStackControllerWidget::~VNStackControllerWidget() = default;

void VNStackControllerWidget::createCustomContextMenu(int iconSize, bool standardActions, int handlerPosition)
{
    m_menuIconSize = iconSize;
    m_standardMenuActions = standardActions;
    m_handlerPosition = handlerPosition;
    m_listControl->treeWidget()->setContextMenuPolicy(Qt::CustomContextMenu);
}

void VNStackControllerWidget::setCustomContextMenuHandler(VNStackContextHandler* handler)
{
    m_contextHandler.reset(handler);
}

QMenu* VNStackControllerWidget::createContextMenuAt(const QPoint& position)
{
    VNDragTreeWidget* tree = m_listControl->treeWidget();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("vnStackControllerMenu"));
    menu->setStyleSheet(QStringLiteral("QMenu { icon-size: %1px; }").arg(m_menuIconSize));
    if (m_standardMenuActions) {
        menu->addAction(tr("Expand All"), tree, &QTreeView::expandAll);
        menu->addAction(tr("Collapse All"), tree, &QTreeView::collapseAll);
    }
    if (m_contextHandler) {
        auto* item = static_cast<VNControlledStackItem*>(tree->itemAt(position));
        const QList<QAction*> before = menu->actions();
        QMenu handlerMenu;
        m_contextHandler->addContextMenuActions(&handlerMenu, item);
        const QList<QAction*> added = handlerMenu.actions();
        QAction* anchor =
            m_handlerPosition >= 0 && m_handlerPosition < before.size() ? before.at(m_handlerPosition) : nullptr;
        for (QAction* action : added) {
            if (action->parent() == &handlerMenu)
                action->setParent(menu);
            menu->insertAction(anchor, action);
        }
    }
    return menu;
}

void VNStackControllerWidget::onContextMenuRequested(const QPoint& position)
{
    QMenu* menu = createContextMenuAt(position);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (menu->isEmpty()) {
        delete menu;
        return;
    }
    menu->popup(m_listControl->treeWidget()->viewport()->mapToGlobal(position));
}

void VNStackControllerWidget::enableMultiSelection(bool enable)
{
    m_listControl->treeWidget()->setSelectionMode(enable ? QAbstractItemView::ExtendedSelection
                                                         : QAbstractItemView::SingleSelection);
}

bool VNStackControllerWidget::isMultiSelectionEnabled() const
{
    return m_listControl->treeWidget()->selectionMode() == QAbstractItemView::ExtendedSelection;
}

void VNStackControllerWidget::setDecorationAlignment(Qt::AlignmentFlag alignment)
{
    m_decorationAlignment = alignment;
    refresh();
}

void VNStackControllerWidget::setPaintLeftIconInIndentation(const bool& paint)
{
    m_leftIconInIndentation = paint;
    refresh();
}

void VNStackControllerWidget::useCheckStateHeader()
{
    m_listControl->treeWidget()->useCheckStateHeader(0, Qt::AlignLeft | Qt::AlignVCenter);
}

void VNStackControllerWidget::setShowTopLevelItemsAsGroupHeader(bool show)
{
    m_groupHeaders = show;
    refresh();
}

void VNStackControllerWidget::refresh()
{
    m_listControl->treeWidget()->viewport()->update();
}
