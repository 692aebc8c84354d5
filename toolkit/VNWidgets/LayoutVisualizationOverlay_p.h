#pragma once

#include <QPointer>
#include <QWidget>

class LayoutVisualizationFilter;
class QLayout;
class QPainter;

// Lies over the inspected widget and paints its layouts as long as the filter is installed there.
class LayoutVisualizationOverlay : public QWidget
{
    Q_OBJECT

public:
    LayoutVisualizationOverlay(LayoutVisualizationFilter* filter, QWidget* inspected);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintLayout(QPainter& painter, QLayout* layout) const;
    QRect mapped(QLayout* layout, const QRect& rect) const;

    QPointer<LayoutVisualizationFilter> m_filter;
};
