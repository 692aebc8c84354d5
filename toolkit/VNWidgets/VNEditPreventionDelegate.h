#pragma once

#include "VNItemDelegate.h"

// The item delegate for columns whose cells must never be edited in place (names, captions):
// draws like VNItemDelegate, check indicators included, but opens no editor while editing is
// prevented (the default).
class VNWIDGETS_EXPORT VNEditPreventionDelegate : public VNItemDelegate
{
    Q_OBJECT

public:
    explicit VNEditPreventionDelegate(QObject* parent = nullptr);

    void setEditPrevented(bool prevented);
    bool isEditPrevented() const { return m_prevented; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    bool m_prevented = true;
};
