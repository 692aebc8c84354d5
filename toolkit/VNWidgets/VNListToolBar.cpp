#include "VNListToolBar.h"

#include <QStyle>

VNListToolBar::VNListToolBar(QWidget* parent)
    : QFrame(parent)
{
    setAttribute(Qt::WA_StyledBackground, true);
    setMinimumHeight(24);
}

void VNListToolBar::setAttachment(Attachment attachment)
{
    if (attachment == m_attachment)
        return;
    m_attachment = attachment;
    // The style sheet selects on the property: re-apply it.
    style()->unpolish(this);
    style()->polish(this);
    update();
}
