#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QPointer>
#include <QToolButton>

class QMenu;

// The toolkit's tool button. It shows a status and, when it has a menu, pops it up from its arrow.
// One action of its menu can be its main action: the button then shows that action's icon, text
// and tool tip, and a click on the button (not on the arrow) triggers it.
class VNWIDGETS_EXPORT VNButton : public QToolButton, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNButton(QWidget* parent = nullptr);

    // Installs the menu and follows the actions triggered in it.
    void setMenu(QMenu* menu);

    // The button's own actions followed by the actions of its menu.
    QList<QAction*> actions() const;

    QAction* mainAction() const;
    void setMainAction(QAction* action);
    void makeFirstEnabledActionMain();

    // triggeredActionBecomesMain: an action triggered from the menu becomes the main action.
    // alsoForDisabledActions: a main action that gets disabled hands over to the first enabled one.
    void enableAutomaticMainActionUpdate(bool triggeredActionBecomesMain, bool alsoForDisabledActions);
    bool triggeredActionBecomesMain() const { return m_triggeredBecomesMain; }
    bool updatesForDisabledActions() const { return m_updateForDisabled; }

signals:
    void mainActionChanged(QAction* action);

private:
    void onMenuTriggered(QAction* action);
    void onMainActionChanged();
    void onClicked();
    void showMainAction();
    QList<QAction*> menuActions() const;

    QPointer<QAction> m_mainAction;
    QMetaObject::Connection m_mainActionConnection;
    QMetaObject::Connection m_menuConnection;
    bool m_triggeredBecomesMain = false;
    bool m_updateForDisabled = false;
};
