#pragma once

#include "ui_TestStringReducer.h"

#include <QDialog>

// Feeds a long file path to the toolkit's path shortener and shows the result in a field whose
// width can be fixed, so that the shortening can be watched at different widths and on resizing.
class TestStringReducer : public QDialog
{
    Q_OBJECT

public:
    explicit TestStringReducer(QWidget* parent);
    ~TestStringReducer() override;

private slots:
    void on_pushButton_clicked();
    void on_checkBox_stateChanged(int state);
    void on_m_fixedWidth_stateChanged(int);
    void on_m_width_valueChanged(int value);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fixFieldWidth(int width);

    Ui::TestStringReducerClass ui;
    bool m_adjustOnResize;
};
