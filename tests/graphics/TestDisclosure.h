#pragma once

#include "ui_TestDisclosure.h"

#include <QDialog>

class VNProgressiveDisclosure;
class VNProgressiveDisclosureGroup;

// Progressive disclosures in several configurations, a resizeable disclosure with a bar chart and
// a settings panel that edits one of three disclosures. The four progressive disclosures form a
// group that can be switched to single mode.
class TestDisclosure : public QDialog
{
    Q_OBJECT

public:
    explicit TestDisclosure(QWidget* parent);
    ~TestDisclosure() override;

    VNProgressiveDisclosureGroup* group() const { return m_group; }

private slots:
    void onCurrentDisclosureChanged(int index);
    void applyChanges();
    void enableWidget(int state);
    void groupSingleMode(int state);
    void onCheckStateChanged(int state);

private:
    VNProgressiveDisclosure* currentDisclosure() const;
    void fillPanel();

    Ui::TestDisclosureClass ui;
    VNProgressiveDisclosureGroup* m_group;
};
