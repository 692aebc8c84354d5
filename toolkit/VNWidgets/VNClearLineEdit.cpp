#include "VNClearLineEdit.h"

#include <QAction>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>

namespace {
// A grey disc with a white cross, drawn so that it needs no resource file.
QIcon clearIcon()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x9a, 0xa6, 0xb2));
    painter.drawEllipse(QRectF(3, 3, 26, 26));
    painter.setPen(QPen(Qt::white, 3.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(11, 11), QPointF(21, 21));
    painter.drawLine(QPointF(21, 11), QPointF(11, 21));
    return QIcon(pixmap);
}
} // namespace

VNClearLineEdit::VNClearLineEdit(QWidget* parent)
    : VNClearLineEdit(QString(), parent)
{}

VNClearLineEdit::VNClearLineEdit(const QString& text, QWidget* parent)
    : VNLineEdit(text, parent)
    , m_clearAction(new QAction(clearIcon(), tr("Clear"), this))
{
    m_clearAction->setObjectName(QStringLiteral("clearAction"));
    addAction(m_clearAction, QLineEdit::TrailingPosition);
    connect(m_clearAction, &QAction::triggered, this, &VNClearLineEdit::clearByUser);
    connect(this, &QLineEdit::textChanged, this, &VNClearLineEdit::updateClearAction);
    updateClearAction();
}

void VNClearLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty() && !isReadOnly()) {
        clearByUser();
        return;
    }
    VNLineEdit::keyPressEvent(event);
}

void VNClearLineEdit::changeEvent(QEvent* event)
{
    VNLineEdit::changeEvent(event);
    if (event->type() == QEvent::ReadOnlyChange)
        updateClearAction();
}

void VNClearLineEdit::clearByUser()
{
    if (isReadOnly())
        return;
    clear();
    emit cleared();
    // Editing signals, so that listeners treat the clearing like typed input.
    emit textEdited(QString());
    emit editingFinished();
}

void VNClearLineEdit::updateClearAction()
{
    m_clearAction->setVisible(!text().isEmpty() && !isReadOnly());
}
