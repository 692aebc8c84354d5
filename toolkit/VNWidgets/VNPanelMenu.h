#pragma once

#include "vnwidgets_export.h"

#include <QMenu>

class QVBoxLayout;

// A pop-up menu whose content is a panel of widgets instead of a column of items. The actions a
// subclass adds with addAction() stay reachable through actions() (so buttons and dialogs can
// enable, check or trigger them), but they are shown by the panel's widgets only.
class VNWIDGETS_EXPORT VNPanelMenu : public QMenu
{
    Q_OBJECT

public:
    explicit VNPanelMenu(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QWidget* panel() const { return m_panel; }
    // Creates the panel's widgets if they do not exist yet; menus build them when first shown.
    void ensurePanel();

protected:
    QVBoxLayout* panelLayout() const { return m_layout; }
    // Emits triggered() as a plain menu does and closes the menu unless the action is checkable.
    void activate(QAction* action);
    bool isPanelBuilt() const { return m_built; }
    virtual void buildPanel() {}

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* m_panel;
    QVBoxLayout* m_layout;
    bool m_built = false;
};
