#pragma once

#include "ui_TestFlipWidget.h"

#include <QDialog>

class FlipWidget;

// Two pages in a flip widget, each with a Flip button that turns to the other page. The dialog's
// layouts are drawn over it by a layout visualization filter.
class TestFlipWidget : public QDialog
{
    Q_OBJECT

public:
    explicit TestFlipWidget(QWidget* parent);
    ~TestFlipWidget() override;

    FlipWidget* flipWidget() const { return m_flipWidget; }

private:
    Ui::TestFlipWidgetClass ui;
    FlipWidget* m_flipWidget;
};
