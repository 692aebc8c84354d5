#pragma once

#include "vnwidgets_export.h"

#include <QObject>

class QWidget;

// An event filter for inspecting layouts. While it is installed on a widget, every layout inside
// that widget is drawn over it: the margins as a red band, the space between the items in yellow,
// each item's cell outlined in blue and spacer items hatched in green. Removing the filter (and
// updating the widget) takes the drawing away.
class VNWIDGETS_EXPORT LayoutVisualizationFilter : public QObject
{
    Q_OBJECT

public:
    explicit LayoutVisualizationFilter(QObject* parent = nullptr);
    ~LayoutVisualizationFilter() override;

    // Whether the filter is installed on the widget right now.
    bool isInstalledOn(QWidget* widget) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ensureOverlay(QWidget* widget);
};
