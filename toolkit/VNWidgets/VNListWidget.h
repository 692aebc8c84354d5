#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QListWidget>

// A list in the toolkit's look that shows a status: the frame colour, the sigma bar and the
// compare frame are painted over the list's edges, so a list that still needs a choice stands
// out like a field.
class VNWIDGETS_EXPORT VNListWidget : public QListWidget, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNListWidget(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void statusChanged() override { viewport()->update(); }
};
