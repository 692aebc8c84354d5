#pragma once

#include "ui_TestAlignment.h"

#include <QDialog>

class QWidget;

// A grid of toolkit labels, line edits, double spin boxes and buttons in several states, three of
// the buttons with menus, for checking with the loupe that the controls share edges and baselines.
// Thin guide lines drawn over the grid run along the edges of the line edits (rows) and of the
// first row's controls (columns), so a control that is off by one pixel stands out.
class TestAlignment : public QDialog
{
    Q_OBJECT

public:
    explicit TestAlignment(QWidget* parent);
    ~TestAlignment() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createMenus();
    void paintGuides();

    Ui::TestAlignment ui;
    QWidget* m_guideOverlay;
};
