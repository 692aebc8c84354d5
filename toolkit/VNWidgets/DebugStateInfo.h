#pragma once

#include "vnwidgets_export.h"

#include <QColor>
#include <QPair>
#include <QPointer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;

// An inspection window: it follows the widget under the mouse, or one picked from the tree of
// windows, and shows its class, name, geometry, state, toolkit status and dynamic properties,
// the colour of the pixel under the mouse, and copies the widget's image to the clipboard. F8
// freezes and resumes following the mouse from any window of the application.
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

    // The colour of the pixel under the mouse when it was last followed; invalid when that was
    // outside every screen.
    QColor pixelColor() const { return m_pixelColor; }
    // "#rrggbb  RGB(r, g, b)".
    static QString colorText(const QColor& color);

    // The rows shown for a widget, as (name, value) pairs.
    static QList<QPair<QString, QString>> describe(const QWidget* widget);

public slots:
    void refresh();
    void rebuildWindowTree();
    // Follows the mouse once, as the inspector does several times a second.
    void poll();
    void toggleFollowingMouse();
    // Copies the image of the inspected widget to the clipboard.
    void copyInspectedImage();

private:
    void followMouse();
    void samplePixel(const QPoint& globalPosition);
    void showPixel();
    void onTreeItemActivated(QTreeWidgetItem* item);
    void addWidgetItems(QTreeWidgetItem* parentItem, QWidget* widget);
    bool belongsToInspector(const QWidget* widget) const;

    QPointer<QWidget> m_inspected;
    QCheckBox* m_follow = nullptr;
    QTreeWidget* m_windowTree = nullptr;
    QTreeWidget* m_stateView = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_pixelSwatch = nullptr;
    QLabel* m_pixelText = nullptr;
    QLabel* m_copyStatus = nullptr;
    QColor m_pixelColor;
    QTimer* m_timer = nullptr;
};
