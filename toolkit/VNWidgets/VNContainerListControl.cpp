#include "VNContainerListControl.h"

#include "VNDragTreeWidget.h"

#include <QVBoxLayout>

VNContainerListControl::VNContainerListControl(QWidget* parent)
    : QWidget(parent)
    , m_tree(new VNDragTreeWidget(this))
{
    m_tree->setObjectName(QStringLiteral("vnStackControllerTree"));
    m_tree->setAccessibleName(tr("Containers"));
    m_tree->setColumnCount(1);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tree);
}

void VNContainerListControl::setEditable(bool editable)
{
    m_editable = editable;
    m_tree->setEditTriggers(editable ? QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                                     : QAbstractItemView::NoEditTriggers);
}
