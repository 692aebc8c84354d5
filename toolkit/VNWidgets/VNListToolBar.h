#pragma once

#include "vnwidgets_export.h"

#include <QFrame>

// The strip of tool buttons under a list or tree. The style sheet joins it to the frame above it
// and lets the button with the dynamic property "isLast" close the strip on the right.
//
// Variants (attachment): AttachedBelow, the default, joins a list above it (a line on top);
// AttachedAbove heads a list below it (a line at the bottom); Standalone is a framed strip of its
// own, for a tool row that belongs to no single list (a log's navigation, a plot's tools).
class VNWIDGETS_EXPORT VNListToolBar : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(Attachment attachment READ attachment WRITE setAttachment)

public:
    enum Attachment
    {
        AttachedBelow,
        AttachedAbove,
        Standalone
    };
    Q_ENUM(Attachment)

    explicit VNListToolBar(QWidget* parent = nullptr);

    Attachment attachment() const { return m_attachment; }
    void setAttachment(Attachment attachment);

private:
    Attachment m_attachment = AttachedBelow;
};
