#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QWidget>

class QGridLayout;
class QToolButton;

// A block of command buttons, one per action added with QWidget::addAction(), each showing the
// action's icon and text and following its enabled, checked and visible state. The buttons fill
// rows of actionsPerRow (0: all in one row), left to right, top to bottom; removing an action
// removes its button. The status shows on every button.
class VNWIDGETS_EXPORT VNActionsBar : public QWidget, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(int actionsPerRow READ actionsPerRow WRITE setActionsPerRow)

public:
    explicit VNActionsBar(QWidget* parent = nullptr);

    int actionsPerRow() const { return m_actionsPerRow; }
    void setActionsPerRow(int count);

    QToolButton* buttonFor(QAction* action) const;

protected:
    void actionEvent(QActionEvent* event) override;
    void statusChanged() override;

private:
    void relayout();

    QGridLayout* m_layout;
    QList<QToolButton*> m_buttons;
    int m_actionsPerRow = 0;
};
