#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QFrame>

class QPushButton;

// Two push buttons joined into one control for a command and its variant ("Apply" and
// "Apply All"): each half has its own text and emits its own signal; they share one frame, so
// the status (fill, frame, sigma bar, compare frame) shows on both halves at once.
class VNWIDGETS_EXPORT VNTwinPushButton : public QFrame, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(QString leftText READ leftText WRITE setLeftText)
    Q_PROPERTY(QString rightText READ rightText WRITE setRightText)

public:
    explicit VNTwinPushButton(QWidget* parent = nullptr);

    QString leftText() const;
    void setLeftText(const QString& text);
    QString rightText() const;
    void setRightText(const QString& text);

    QPushButton* leftButton() const { return m_left; }
    QPushButton* rightButton() const { return m_right; }

signals:
    void leftClicked();
    void rightClicked();

protected:
    void statusChanged() override;

private:
    QPushButton* m_left;
    QPushButton* m_right;
};
