#pragma once

#include "QtCompat.h"
#include "ui_TestNewAssemblyImport.h"

#include <QDialog>
#include <QStringList>

class QLineEdit;
class QSortFilterProxyModel;
class QStandardItem;
class QStandardItemModel;
class VNButton;
class VNTreeView;

// A searchable two-column tree of imported assembly objects (name and comment). The search field
// filters all columns case-insensitively and keeps the parents of matching rows; the context
// menu moves a row into a new "Group" or removes it.
class TestNewAssemblyImport : public QDialog, private Ui::TestNewAssemblyImport
{
    Q_OBJECT

public:
    explicit TestNewAssemblyImport(QWidget* parent);

    VNTreeView* tree() const { return m_tree; }
    QStandardItemModel* sourceModel() const { return m_model; }
    QSortFilterProxyModel* proxyModel() const { return m_proxy; }
    QLineEdit* searchField() const { return m_searchField; }

private slots:
    void onSearchTextChanged(const QString& text);
    void onResetSearchBtn();
    void onCommentUpdated(QStandardItem* item);
    void onCustomContextMenuRequested(const QPoint& position);

private:
    QWidget* createSearchBar();
    void setUpTree();
    void fillModel();
    void addToGroup(QStandardItem* item);
    void removeFromGroup(QStandardItem* item);

    VNTreeView* m_tree;
    QStandardItemModel* m_model;
    QtCompat::RegExpFilterProxyModel* m_proxy;
    QLineEdit* m_searchField;
    VNButton* m_resetButton;
    QStringList m_headerLabels;
};
