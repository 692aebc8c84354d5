#pragma once

#include "ui_TestComboBox.h"

#include <QDialog>

class QComboBox;
class VNComboBox;
class VNFilterComboBox;

// The toolkit's combo boxes beside plain ones. The buttons add, remove and restore entries on
// every combo box of the dialog at once (the number combo box excepted); the radio buttons switch
// the combo style of every toolkit combo box.
class TestComboBox : public QDialog
{
    Q_OBJECT

public:
    explicit TestComboBox(QWidget* parent);
    ~TestComboBox() override;

private slots:
    void on_add_clicked();
    void on_deleteCurrent_clicked();
    void on_deleteAll_clicked();
    void on_restore_clicked();
    void on_radioIcon_toggled(bool checked);
    void on_radioText_toggled(bool checked);
    void on_radioIconText_toggled(bool checked);
    void on_addSeparator_clicked();
    void onValueChanged(double value);
    void onTextChanged(const QString& text);
    void onDegValueChanged(double value);
    void onDegIndexChanged(int index);
    void onCollapsibleComboChanged(int index);
    void onCollapsibleGroupComboChanged(int topLevelRow, int childRow);

private:
    QList<QComboBox*> bulkComboBoxes() const;
    QList<VNComboBox*> styledComboBoxes() const;
    void setComboStyle(int style);
    void fillStatusList();
    void fillGroups();
    static void fillStandardItems(QComboBox* combo);

    Ui_TestComboBoxClass ui;
    VNFilterComboBox* m_filterComboBox;
};
