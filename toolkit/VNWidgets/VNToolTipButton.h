#pragma once

#include "vnwidgets_export.h"

#include <QToolButton>

// A small round help button: it shows a question mark (or an "i" when used as info) and shows its
// tool tip both on hover and when clicked, so that touch and keyboard users reach the text too.
//
// Variants: as warning it is an amber disc with "!" (the tool tip explains a risk); as header it
// sits in a section header, larger and in the header's dark blue (with "?" or, as info, "i"); with
// a custom image it shows that image at the given size instead of the disc (a sketch that opens
// its explanation), framed while hovered.
class VNWIDGETS_EXPORT VNToolTipButton : public QToolButton
{
    Q_OBJECT

public:
    explicit VNToolTipButton(QWidget* parent = nullptr);

    void setUseAsInfo(bool info);
    bool isUsedAsInfo() const { return m_info; }
    void setUseAsWarning(bool warning);
    bool isUsedAsWarning() const { return m_warning; }
    void setUseAsHeader(bool header);
    bool isUsedAsHeader() const { return m_header; }
    // An empty icon returns to the disc.
    void setCustomImage(const QIcon& image, const QSize& size);
    QIcon customImage() const { return m_customImage; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showToolTipNow();
    void paintCustomImage(QPainter& painter);
    void paintDisc(QPainter& painter);
    QColor discColor() const;

    bool m_info = false;
    bool m_warning = false;
    bool m_header = false;
    QIcon m_customImage;
    QSize m_customImageSize;
};
