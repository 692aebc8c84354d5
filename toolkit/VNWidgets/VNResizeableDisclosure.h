#pragma once

#include "VNProgressiveDisclosure.h"
#include "vnwidgets_export.h"

#include <QPointer>

// A progressive disclosure whose content height the user drags with the grip under the content.
class VNWIDGETS_EXPORT VNResizeableDisclosure : public VNProgressiveDisclosure
{
    Q_OBJECT

public:
    explicit VNResizeableDisclosure(QWidget* parent = nullptr);
    ~VNResizeableDisclosure() override;

    // Puts the widget into the content container (or makes it the content when there is none).
    // With takeOwnership the widget is deleted with the disclosure, else it is handed back
    // parentless when the disclosure goes.
    void setWidget(QWidget* widget, bool takeOwnership);
    QWidget* widget() const { return m_widget; }

private:
    QPointer<QWidget> m_widget;
    bool m_ownsWidget = true;
};
