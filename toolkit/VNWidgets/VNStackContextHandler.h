#pragma once

#include "vnwidgets_export.h"

class QMenu;
class VNControlledStackItem;

// Lets an application add its own entries to the context menu of a VNStackControllerWidget.
class VNWIDGETS_EXPORT VNStackContextHandler
{
public:
    virtual ~VNStackContextHandler();

    // Called each time the menu opens; item is the page under the mouse, null over empty space.
    virtual void addContextMenuActions(QMenu* menu, VNControlledStackItem* item) = 0;
};
