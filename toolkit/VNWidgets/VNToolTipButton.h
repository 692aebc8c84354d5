#pragma once

#include "vnwidgets_export.h"

#include <QToolButton>

// A small round help button: it shows a question mark (or an "i" when used as info) and shows its
// tool tip both on hover and when clicked, so that touch and keyboard users reach the text too.
class VNWIDGETS_EXPORT VNToolTipButton : public QToolButton
{
    Q_OBJECT

public:
    explicit VNToolTipButton(QWidget* parent = nullptr);

    void setUseAsInfo(bool info);
    bool isUsedAsInfo() const { return m_info; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showToolTipNow();

    bool m_info = false;
};
