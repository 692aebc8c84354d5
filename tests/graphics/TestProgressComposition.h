#pragma once

#include "ui_TestProgressComposition.h"

#include <QDialog>

// Drives a multi-step progress bar: builds its operation list, moves the current operation by
// hand or by a timer animation, and switches the stretch mode and the circular look.
class TestProgressComposition : public QDialog, private Ui::TestProgressComposition
{
    Q_OBJECT

public:
    explicit TestProgressComposition(QWidget* parent);
    ~TestProgressComposition() override;

    int animationTimerId() const { return m_timerId; }

private slots:
    void on_m_ops_valueChanged(int value);
    void on_m_prefix_editingFinished();
    void on_setup_clicked(bool checked);
    void on_startAnimation_clicked();
    void on_stopAnimation_clicked();
    void on_m_current_valueChanged(int value);
    void on_step_clicked();
    void on_resizeDefault_clicked();
    void on_m_circular_toggled(bool on);
    void on_stepSingle_clicked();
    void on_stretchMode_currentIndexChanged(int index);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void setupOperations();
    void refresh();
    void stopTimer();
    void animationStep();

    int m_timerId = 0;
};
