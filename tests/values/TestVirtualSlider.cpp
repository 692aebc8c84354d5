#include "TestVirtualSlider.h"

#include <VNCheckBox.h>
#include <VNDoubleSpinBox.h>
#include <VNRadioButton.h>

#include <QMouseEvent>

TestVirtualSlider::TestVirtualSlider(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    ui.setupUi(this);
    ui.m_vnRadioButton->setBuddy(ui.m_vnDSpinBox);
    ui.m_vnRadioButton_1->setBuddy(ui.m_vnDSpinBox_1);
    ui.m_vnRadioButton_2->setBuddy(ui.m_vnDSpinBox_2);
    ui.m_vnCheckBox->setBuddy(ui.m_vnDSpinBox_4);
    ui.m_vnCheckBox_1->setBuddy(ui.m_vnDSpinBox_8);
    ui.m_vnCheckBox_2->setBuddy(ui.m_vnDSpinBox_9);
    ui.m_vnRadioButton_3->setBuddy(ui.m_vnDSpinBox_6);

    updateRadioBuddies();
    updateCheckBoxBuddies(false);
    if (!ui.m_vnCheckBox_2->isEnabled())
        ui.m_vnDSpinBox_9->setEnabled(false);

    for (VNRadioButton* button : {ui.m_vnRadioButton, ui.m_vnRadioButton_1, ui.m_vnRadioButton_2, ui.m_vnRadioButton_3})
        connect(button, &QAbstractButton::clicked, this, &TestVirtualSlider::updateRadioBuddies);
    for (VNCheckBox* box : {ui.m_vnCheckBox, ui.m_vnCheckBox_1})
        connect(box, &QAbstractButton::clicked, this, &TestVirtualSlider::updateCheckBoxBuddies);
}

TestVirtualSlider::~TestVirtualSlider() = default;

void TestVirtualSlider::updateRadioBuddies()
{
    for (VNRadioButton* button : findChildren<VNRadioButton*>()) {
        if (VNDoubleSpinBox* buddy = button->buddy())
            buddy->setEnabled(button->isChecked());
    }
}

void TestVirtualSlider::updateCheckBoxBuddies(bool checked)
{
    auto* box = qobject_cast<VNCheckBox*>(sender());
    if (!box) {
        // Called directly: bring every check box's buddy in line with its box.
        for (VNCheckBox* child : findChildren<VNCheckBox*>()) {
            if (VNDoubleSpinBox* buddy = child->buddy())
                buddy->setEnabled(child->isChecked());
        }
        return;
    }
    if (VNDoubleSpinBox* buddy = box->buddy())
        buddy->setEnabled(checked);
}

void TestVirtualSlider::mouseMoveEvent(QMouseEvent* event)
{
    ui.vnLabel_5->setText(QStringLiteral("Cursor pos: %1/%2").arg(event->pos().x()).arg(event->pos().y()));
}
