#pragma once

#include "ui_TestVirtualSlider.h"

#include <QDialog>

// Double spin boxes that can be dragged with the mouse, paired as buddies with radio buttons and
// check boxes: a spin box is enabled only while its button is checked. A label reports where the
// mouse is while a button is held over the dialog.
class TestVirtualSlider : public QDialog
{
    Q_OBJECT

public:
    explicit TestVirtualSlider(QWidget* parent);
    ~TestVirtualSlider() override;

protected:
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void updateRadioBuddies();
    void updateCheckBoxBuddies(bool checked);

    Ui::TestVirtualSliderClass ui;
};
