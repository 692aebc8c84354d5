#pragma once

#include "VNWidgetStatus.h"
#include "vnwidgets_export.h"

// Implemented by toolkit widgets made of items (combo boxes, tab bars, switchers) whose items
// carry a status of their own.
class VNWIDGETS_EXPORT VNContainerWidgetInterface
{
public:
    virtual ~VNContainerWidgetInterface();

    virtual int containerItemCount() const = 0;
    virtual VNWidgetStatus::StatusFlags itemWidgetStatus(int index) const = 0;
    virtual void setItemWidgetStatus(const int& index, const VNWidgetStatus::StatusFlags& status) = 0;
};
