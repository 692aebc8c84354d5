#pragma once

#include "ui_TestTreeDelegates.h"

#include <QDialog>
#include <QModelIndex>

class QAbstractItemModel;
class QAbstractItemView;
class QTreeWidgetItem;
class TreeDelegatesDispatcher;
class VNItemDelegate;

// The gallery of the toolkit's item delegates: one tree whose rows each show one delegate, with
// check boxes that switch all value cells between enabled and disabled, editable and read-only,
// and set or clear each status bit, so that every delegate's drawing of every status shows.
class TestTreeDelegates : public QDialog
{
    Q_OBJECT

public:
    explicit TestTreeDelegates(QWidget* parent);

    // The delegate that draws the value cells of a row (the item delegate for rows without one).
    QAbstractItemDelegate* delegateForRow(int row) const;

private slots:
    void on_disableItems_toggled(bool checked);
    void on_readOnlyItems_toggled(bool checked);
    void on_m_needInput_toggled(bool checked);
    void on_m_userEdited_toggled(bool checked);
    void on_m_compareDiffers_toggled(bool checked);
    void on_m_standardEnabled_toggled(bool checked);
    void on_m_standardDeviate_toggled(bool checked);
    void on_m_standardLocked_toggled(bool checked);
    void onItemChanged(QTreeWidgetItem* item, int column);
    void on_m_sigmaAvailable_toggled(bool checked);
    void on_m_sigmaOn_toggled(bool checked);
    void on_m_sigmaError_toggled(bool checked);
    void on_m_sigmaStandardChanged_toggled(bool checked);
    void on_m_showValueBackground_toggled(bool checked);
    void on_m_valueFiledWidth_currentIndexChanged(int index);
    void onSigmaClicked(QModelIndex index, QAbstractItemView* itemView);
    void on_m_headerDifferentFromComparison_toggled(bool checked);

private:
    void setUpHeader();
    void fillRows();
    void fillToggleRows();
    void fillValueRows();
    void fillButtonRows();
    void fillMultiButtonRows();
    QTreeWidgetItem* addRow(const QString& caption, const QStringList& texts, QAbstractItemDelegate* delegate);
    void writeOnValueCells(int role, const QVariant& value);
    void setStatusBit(int flag, bool on);

    Ui::TestTreeDelegatesClass ui;
    QAbstractItemModel* m_model;
    VNItemDelegate* m_delegate;
    TreeDelegatesDispatcher* m_dispatcher = nullptr;
};
