#include "ImageFiles.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

QString savePixmapSafely(const QPixmap& pixmap, const QString& fileName)
{
    const QByteArray format = QFileInfo(fileName).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format))
        return QCoreApplication::translate("ImageFiles", "The file name has no known image suffix.");
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    if (!pixmap.save(&file, format.constData())) {
        file.cancelWriting();
        return file.error() != QFileDevice::NoError
                   ? file.errorString()
                   : QCoreApplication::translate("ImageFiles", "The image could not be encoded.");
    }
    if (!file.commit())
        return file.errorString();
    return QString();
}
