#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QTabWidget>

// A tab widget in the toolkit's look. Its status frames the page area and colours the band under
// the tabs, so a page whose input is missing or edited stands out while its tab is shown.
class VNWIDGETS_EXPORT VNTabWidget : public QTabWidget, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNTabWidget(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void statusChanged() override { update(); }
};
