#pragma once

#include "vnwidgets_export.h"

#include <QAbstractButton>
#include <QColor>

// The clickable head of a progressive disclosure: an arrow that points right while the section is
// closed and down while it is open, followed by the caption. Checked means open.
class VNWIDGETS_EXPORT VNProgressiveDisclosureBtn : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QColor hoverColor READ hoverColor WRITE setHoverColor)
    Q_PROPERTY(QColor arrowColor READ arrowColor WRITE setArrowColor)

public:
    explicit VNProgressiveDisclosureBtn(QWidget* parent = nullptr);

    QColor hoverColor() const { return m_hoverColor; }
    void setHoverColor(const QColor& color);
    QColor arrowColor() const { return m_arrowColor; }
    void setArrowColor(const QColor& color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    // Enter through event(): the type of enterEvent()'s argument differs between Qt 5 and Qt 6.
    bool event(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    static constexpr int arrowBox = 14;

    QColor m_hoverColor = QColor(0xdc, 0xeb, 0xff);
    QColor m_arrowColor = QColor(0x44, 0x4c, 0x56);
};
