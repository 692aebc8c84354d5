#pragma once

#include "QtCompat.h"
#include "ui_TestLayoutExample.h"

#include <QDialog>

#include <memory>
#include <vector>

class QLayout;
class QPushButton;
class QSpacerItem;
class QTextEdit;

// Teaches and checks layout behaviour: a text edit, a line edit and a button in a frame whose
// layout kind can be switched at run time. The options set the button's text, sizes and size
// policies, add or remove a stretch and swap the button for MyButton, whose size hints follow a
// rule of this dialog; read-only fields show the button's size hints and size.
class TestLayoutExample : public QDialog, private Ui::TestLayoutExample
{
    Q_OBJECT

public:
    explicit TestLayoutExample(QWidget* parent);
    ~TestLayoutExample() override;

    // 0 horizontal box, 1 vertical box, 2 grid, -1 anything else (the items of comboLayout).
    static int layoutKind(QLayout* layout);
    static QString myButtonSource(int extraWidth);

    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void on_comboLayout_currentIndexChanged(int index);
    void on_buttonText_textChanged(const QString& text);
    void on_resetBtn_clicked(bool checked = false);
    void on_minSizeW_valueChanged(int value);
    void on_minSizeH_valueChanged(int value);
    void on_maxSizeW_valueChanged(int value);
    void on_maxSizeH_valueChanged(int value);
    void on_m_mySize_valueChanged(int value);
    void on_addStretch_clicked(bool checked);
    void on_useMyButton_clicked(bool checked);

private
    TWC_INDEX_TEXT_SLOTS : void on_comboHSizePolicy_currentIndexChanged(const QString& text);
    void on_comboVSizePolicy_currentIndexChanged(const QString& text);

private:
    void setStartState();
    void refreshSizeDisplay();
    void moveItems(QLayout* from, QLayout* to);

    QTextEdit* m_codeView;
    QPushButton* m_button;
    QLayout* m_layout;
    // Stretches taken out of the layout are not deleted then; the dialog keeps them until it goes.
    std::vector<std::unique_ptr<QSpacerItem>> m_removedStretches;
};
