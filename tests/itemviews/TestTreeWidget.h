#pragma once

#include "ui_TestTreeWidget.h"

#include <QDialog>

// A plain tree widget and the toolkit's drag tree widget in five framings; radio buttons switch the
// dynamic properties "fullRightSide", "fullLeftSide" and "fullWidth" of the framing widgets so that
// the style sheet's reaction can be checked.
class TestTreeWidget : public QDialog, private Ui::TestTreeWidget
{
    Q_OBJECT

public:
    explicit TestTreeWidget(QWidget* parent);

private slots:
    void onNoPropertyRBToggled(bool);
    void onFullRightSideRBToggled(bool);
    void onFullLeftSideRBToggled(bool);
    void onFullWidthRBToggled(bool);

private:
    void applyProperties(bool fullRightSide, bool fullLeftSide, bool fullWidth);
};
