#include "VNFileMenuButton.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>

namespace {
// A sheet with a folded corner and three text lines, drawn so that it needs no resource file.
QIcon documentIcon()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath sheet;
    sheet.moveTo(7, 3);
    sheet.lineTo(20, 3);
    sheet.lineTo(26, 9);
    sheet.lineTo(26, 29);
    sheet.lineTo(7, 29);
    sheet.closeSubpath();
    painter.setPen(QPen(QColor(0x4a, 0x5b, 0x6d), 1.6));
    painter.setBrush(Qt::white);
    painter.drawPath(sheet);
    painter.drawPolyline(QPolygonF({QPointF(20, 3), QPointF(20, 9), QPointF(26, 9)}));
    painter.setPen(QPen(QColor(0x2f, 0x6f, 0xb3), 1.6));
    for (int y : {14, 19, 24})
        painter.drawLine(QPointF(11, y), QPointF(22, y));
    return QIcon(pixmap);
}
} // namespace

VNFileMenuButton::VNFileMenuButton(QWidget* parent)
    : QToolButton(parent)
    , VNWidgetInterface(this)
{
    setIcon(documentIcon());
    setIconSize(QSize(24, 24));
    setPopupMode(QToolButton::MenuButtonPopup);
    setToolTip(tr("Open, save or reopen a file"));
    auto* popup = new QMenu(this);
    m_open = popup->addAction(tr("Open..."), this, &VNFileMenuButton::openRequested);
    m_save = popup->addAction(tr("Save"), this, &VNFileMenuButton::saveRequested);
    m_saveAs = popup->addAction(tr("Save As..."), this, &VNFileMenuButton::saveAsRequested);
    popup->addSeparator();
    m_recent = popup->addMenu(tr("Recent Files"));
    setMenu(popup);
    connect(this, &QToolButton::clicked, this, &VNFileMenuButton::openRequested);
    fillRecentMenu();
}

void VNFileMenuButton::addRecentFile(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    m_recentFiles.removeAll(clean);
    m_recentFiles.prepend(clean);
    while (m_recentFiles.size() > maximumRecentFiles)
        m_recentFiles.removeLast();
    fillRecentMenu();
}

void VNFileMenuButton::clearRecentFiles()
{
    m_recentFiles.clear();
    fillRecentMenu();
}

void VNFileMenuButton::fillRecentMenu()
{
    m_recent->clear();
    for (const QString& path : qAsConst(m_recentFiles)) {
        QAction* entry =
            m_recent->addAction(QFileInfo(path).fileName(), this, [this, path] { emit recentFileRequested(path); });
        entry->setToolTip(QDir::toNativeSeparators(path));
    }
    m_recent->setEnabled(!m_recentFiles.isEmpty());
}
