#pragma once

#include "vnwidgets_export.h"

#include <QPair>
#include <QPointer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;

// An inspection window: it follows the widget under the mouse, or one picked from the tree of
// windows, and shows its class, name, geometry, state, toolkit status and dynamic properties.
class VNWIDGETS_EXPORT DebugStateInfo : public QWidget
{
    Q_OBJECT

public:
    explicit DebugStateInfo(QWidget* parent = nullptr);
    ~DebugStateInfo() override;

    QWidget* inspectedWidget() const { return m_inspected; }
    void inspect(QWidget* widget);
    bool isFollowingMouse() const;
    void setFollowingMouse(bool follow);

    // The rows shown for a widget, as (name, value) pairs.
    static QList<QPair<QString, QString>> describe(const QWidget* widget);

public slots:
    void refresh();
    void rebuildWindowTree();

private:
    void followMouse();
    void onTreeItemActivated(QTreeWidgetItem* item);
    void addWidgetItems(QTreeWidgetItem* parentItem, QWidget* widget);
    bool belongsToInspector(const QWidget* widget) const;

    QPointer<QWidget> m_inspected;
    QCheckBox* m_follow = nullptr;
    QTreeWidget* m_windowTree = nullptr;
    QTreeWidget* m_stateView = nullptr;
    QLabel* m_title = nullptr;
    QTimer* m_timer = nullptr;
};
