#pragma once

#include "vnwidgets_export.h"

#include <QLabel>

// A one-line label that shortens its text with an ellipsis when it is narrower than the text,
// at the end, the start or the middle (elideMode). While the text is shortened, the full text is
// the label's tool tip; a tool tip set by the caller is kept.
class VNWIDGETS_EXPORT VNElidedLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)

public:
    explicit VNElidedLabel(QWidget* parent = nullptr);
    explicit VNElidedLabel(const QString& text, QWidget* parent = nullptr);

    Qt::TextElideMode elideMode() const { return m_elideMode; }
    void setElideMode(Qt::TextElideMode mode);

    // The text as painted now.
    QString displayedText() const;
    bool isElided() const { return displayedText() != text(); }

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
};
