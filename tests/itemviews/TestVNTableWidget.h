#pragma once

#include "ui_TestVNTableWidget.h"

#include <QDialog>

class QStandardItemModel;

// The toolkit's table view and table widget one above the other, each with custom headers; rows
// and columns are added and removed in both at once so that the two header implementations can
// be compared (plain or HTML titles, colour-coded sections).
class TestVNTableWidget : public QDialog, private Ui::TestVNTableWidget
{
    Q_OBJECT

public:
    explicit TestVNTableWidget(QWidget* parent);
    ~TestVNTableWidget() override;

    QStandardItemModel* viewModel() const { return m_model; }

private:
    void addColumn();
    void removeColumn();
    void addRow();
    void removeRow();
    QString headerText(const QString& baseWord, int index) const;
    int colorCoding(Qt::Orientation orientation) const;

    QStandardItemModel* m_model;
};
