#pragma once

#include "ui_TestLayoutHelper.h"

#include <QDialog>

class LayoutVisualizationFilter;
class VNLayoutHelper;

// Several separate grid layouts of an engineering input form whose label columns the layout helper
// lines up; the layouts can be drawn over the form for inspection.
class TestLayoutHelper : public QDialog
{
    Q_OBJECT

public:
    explicit TestLayoutHelper(QWidget* parent);
    ~TestLayoutHelper() override;

    VNLayoutHelper* layoutHelper() const { return m_layoutHelper; }

private slots:
    void on_m_displayLayouts_clicked(bool checked);
    void on_m_removeAndAddAllAgain_clicked();

private:
    void registerLayouts();

    Ui::TestLayoutHelper ui;
    VNLayoutHelper* m_layoutHelper;
    LayoutVisualizationFilter* m_visualization;
};
