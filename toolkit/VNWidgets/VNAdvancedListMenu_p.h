#pragma once

#include "QtCompat.h"

#include <QAbstractButton>
#include <QPointer>

class QAction;

// One entry of an advanced list menu: it draws its action (icon, text, tool tip as description)
// and triggers it when clicked.
class VNListMenuEntry : public QAbstractButton
{
    Q_OBJECT

public:
    VNListMenuEntry(QAction* action, const QSize& iconSize, int width, QWidget* parent);

    QAction* action() const { return m_action; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QtCompat::EnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void followAction();

    QPointer<QAction> m_action;
    QSize m_iconSize;
    int m_width;
    bool m_hovered = false;
};
