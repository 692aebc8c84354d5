#include "TestDisclosure.h"

#include <VNBarChart.h>
#include <VNProgressiveDisclosure.h>
#include <VNProgressiveDisclosureGroup.h>
#include <VNResizeableDisclosure.h>

#include <QCheckBox>

TestDisclosure::TestDisclosure(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    ui.setupUi(this);
    m_group = new VNProgressiveDisclosureGroup(this);
    m_group->add(ui.progressiveDisclosure0);
    m_group->add(ui.progressiveDisclosure1);
    m_group->add(ui.progressiveDisclosure2);
    m_group->add(ui.progressiveDisclosure3);
    fillPanel();

    connect(ui.m_progressiveDisclosure, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &TestDisclosure::onCurrentDisclosureChanged);
    connect(ui.m_applyBtn, &QPushButton::pressed, this, &TestDisclosure::applyChanges);
    connect(ui.m_enabled, &QCheckBox::stateChanged, this, &TestDisclosure::enableWidget);
    connect(ui.m_groupSingleMode, &QCheckBox::stateChanged, this, &TestDisclosure::groupSingleMode);
    connect(ui.progressiveDisclosure3->getOptionalCheckBox(), &QCheckBox::stateChanged, this,
            &TestDisclosure::onCheckStateChanged);

    ui.progressiveDisclosure3->setOptionalCheckForVisibilitySwitch(false);
    ui.progressiveDisclosure3->getOptionalCheckBox()->setText(tr("Calculate"));
    ui.progressiveDisclosure3->getOptionalCheckBox()->setChecked(true);

    auto* chart = new VNBarChart;
    chart->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    chart->setHeaderLabel(tr("Force Calculations"));
    chart->setMinimumWidth(588);
    ui.resizeableDisclosure->setWidget(chart, true);
}

TestDisclosure::~TestDisclosure() = default;

VNProgressiveDisclosure* TestDisclosure::currentDisclosure() const
{
    switch (ui.m_progressiveDisclosure->currentIndex()) {
    case 1:
        return ui.progressiveDisclosure1;
    case 2:
        return ui.progressiveDisclosure2;
    default:
        return ui.progressiveDisclosure0;
    }
}

void TestDisclosure::fillPanel()
{
    ui.m_progressiveDisclosure->setItemText(0, ui.progressiveDisclosure0->getWidgetCaption());
    ui.m_progressiveDisclosure->setItemText(1, ui.progressiveDisclosure1->getWidgetCaption());
    ui.m_progressiveDisclosure->setItemText(2, ui.progressiveDisclosure2->getWidgetCaption());

    const VNProgressiveDisclosure* disclosure = currentDisclosure();
    ui.m_widgetCaption->setText(disclosure->getWidgetCaption());
    ui.m_stateLabel->setText(disclosure->getStateLabelText());
    ui.m_showStateLabel->setCurrentIndex(disclosure->getShowStateLabel());
    ui.m_infoButtonText->setText(disclosure->getInfoButtonText());
    ui.m_showInfoButton->setCurrentIndex(disclosure->getShowInfoButton());
    ui.m_showBottomLine->setCurrentIndex(disclosure->getShowBottomLine());
    ui.m_showTopLine->setCurrentIndex(disclosure->getShowTopLine());
    ui.m_optionalCheck->setChecked(disclosure->isOptionalCheckVisible());
    ui.m_enabled->setChecked(disclosure->isWidgetEnabled());
}

void TestDisclosure::onCurrentDisclosureChanged(int)
{
    fillPanel();
}

void TestDisclosure::applyChanges()
{
    VNProgressiveDisclosure* disclosure = currentDisclosure();
    disclosure->setWidgetCaption(ui.m_widgetCaption->text());
    disclosure->setStateLabelText(ui.m_stateLabel->text());
    disclosure->setShowStateLabel(ui.m_showStateLabel->currentIndex());
    disclosure->setInfoButtonText(ui.m_infoButtonText->text());
    disclosure->setShowInfoButton(ui.m_showInfoButton->currentIndex());
    disclosure->setShowBottomLine(ui.m_showBottomLine->currentIndex());
    disclosure->setShowTopLine(ui.m_showTopLine->currentIndex());
    disclosure->setOptionalCheckVisible(ui.m_optionalCheck->checkState() == Qt::Checked);
    fillPanel();
}

void TestDisclosure::enableWidget(int state)
{
    currentDisclosure()->setWidgetEnabled(state == Qt::Checked);
}

void TestDisclosure::groupSingleMode(int state)
{
    m_group->setGlobalSingleMode(state == Qt::Checked);
}

void TestDisclosure::onCheckStateChanged(int state)
{
    ui.progressiveDisclosure3->setWidgetEnabled(state == Qt::Checked);
}
