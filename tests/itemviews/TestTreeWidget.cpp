#include "TestTreeWidget.h"

#include <PropertyChangeFilter.h>

TestTreeWidget::TestTreeWidget(QWidget* parent)
    : QDialog(parent)
{
    setupUi(this);
    connect(m_noPropertyRB, &QRadioButton::toggled, this, &TestTreeWidget::onNoPropertyRBToggled);
    connect(m_fullRightSideRB, &QRadioButton::toggled, this, &TestTreeWidget::onFullRightSideRBToggled);
    connect(m_fullLeftSideRB, &QRadioButton::toggled, this, &TestTreeWidget::onFullLeftSideRBToggled);
    connect(m_fullWidthRB, &QRadioButton::toggled, this, &TestTreeWidget::onFullWidthRBToggled);
}

// The slots ignore their argument: the button switched off runs first, the one switched on last,
// so the new button's properties win.
void TestTreeWidget::onNoPropertyRBToggled(bool)
{
    applyProperties(false, false, false);
}

void TestTreeWidget::onFullRightSideRBToggled(bool)
{
    applyProperties(true, false, false);
}

void TestTreeWidget::onFullLeftSideRBToggled(bool)
{
    applyProperties(false, true, false);
}

void TestTreeWidget::onFullWidthRBToggled(bool)
{
    applyProperties(false, false, true);
}

// The properties go on the framing widgets; the trees inside the frames and the tool bar are only
// repolished.
void TestTreeWidget::applyProperties(bool fullRightSide, bool fullLeftSide, bool fullWidth)
{
    const QList<QWidget*> targets{m_qTreeWidget, m_vnDragTreeWidget, m_frame, m_frame2, m_frame3};
    for (QWidget* target : targets) {
        target->setProperty("fullRightSide", fullRightSide);
        target->setProperty("fullLeftSide", fullLeftSide);
        target->setProperty("fullWidth", fullWidth);
    }
    const QList<QWidget*> repolished{m_qTreeWidget,
                                     m_vnDragTreeWidget,
                                     m_qTreeWidgetWithFrame,
                                     m_frame,
                                     m_toolBar,
                                     m_vnDragTreeWidgetWithFrame,
                                     m_frame2,
                                     m_vnDragTreeWidgetWithFrameNoHeader,
                                     m_frame3};
    for (QWidget* widget : repolished)
        PropertyChangeFilter::repolish(widget, true);
}
