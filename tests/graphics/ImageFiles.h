#pragma once

#include <QPixmap>
#include <QString>

// Writes a pixmap through a QSaveFile, in the format that the file name's suffix names, so that a
// failed write leaves any earlier file untouched. Returns an empty string on success, else the
// reason for the failure.
QString savePixmapSafely(const QPixmap& pixmap, const QString& fileName);
