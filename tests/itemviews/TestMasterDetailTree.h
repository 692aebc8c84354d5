#pragma once

#include "ui_TestMasterDetailTree.h"

#include <QDialog>

class QTreeWidgetItem;
class VNControlledStackItem;
class VNControlledStackWidget;
class VNStackControllerWidget;

// Master-detail navigation: a stack controller tree of pages on three levels drives a stack of
// detail pages; two plain trees mirror every page for comparison, and switches drive the
// controller's options (checkable items, icons, colour boxes, group headers, multi-selection,
// highlighting, symmetry markers).
class TestMasterDetailTree : public QDialog, private Ui::TestMasterDetailTreeClass
{
    Q_OBJECT

public:
    explicit TestMasterDetailTree(QWidget* parent);

    VNControlledStackWidget* stackWidget() const { return m_stackWidget; }
    VNStackControllerWidget* controller() const { return m_controller; }

private slots:
    void on_m_deleteAllBtn_clicked();
    void on_m_initialSetup_clicked();
    void on_m_symmetrySetup_clicked();
    void on_m_addTopBtn_clicked();
    void on_m_addSubBtn_clicked();
    void on_m_addSubSubBtn_clicked();
    void on_m_checkableStateCB_stateChanged(int state);
    void on_m_symBtn_clicked();
    void on_m_selectBtn_clicked();
    void on_m_iconCB_stateChanged(int);
    void on_m_includeTopLevelItemsCB_stateChanged(int);
    void on_m_colorBoxCB_stateChanged(int);
    void on_m_multiselectionEnabled_stateChanged(int);
    void on_m_showGroupHeader_stateChanged(int);
    void on_m_alignmentCB_currentIndexChanged(int index);
    void on_m_leftIconInIndentationCB_stateChanged(int);
    void currentChanged(VNControlledStackItem* current, VNControlledStackItem* previous);

private:
    void setUpController();
    VNControlledStackItem* addPage(const QString& text, VNControlledStackItem* parent = nullptr);
    void mirrorPage(QTreeWidget* tree, const QString& text, bool hasParent);
    void addInitialContents();
    void clearAll();
    void updateIcons();
    VNControlledStackItem* lastTopLevelItem() const;

    VNControlledStackWidget* m_stackWidget;
    VNStackControllerWidget* m_controller;
    bool m_thirdLevel;
};
