#pragma once

#include "VNPanelMenu.h"

// A menu that lists its actions as wide entries with a large icon, the action's text in bold and
// its tool tip as a description below.
class VNWIDGETS_EXPORT VNAdvancedListMenu : public VNPanelMenu
{
    Q_OBJECT

public:
    explicit VNAdvancedListMenu(QWidget* parent = nullptr);

    void setDefaultIconSize(const QSize& size);
    QSize defaultIconSize() const { return m_iconSize; }

    // Adds an entry of the given width (in pixels) that shows and triggers the action.
    void addControl(QAction* action, int width);

private:
    QSize m_iconSize;
};
