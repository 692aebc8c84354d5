#include "SVGImageConfiguration.h"

#include <QBuffer>
#include <QByteArray>

QString SVGImageConfiguration::pixmapToEmbeddedHtmlImageString(const QPixmap& pixmap)
{
    if (pixmap.isNull())
        return QString();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    pixmap.save(&buffer, "PNG");
    const QSize size = pixmap.size() / pixmap.devicePixelRatio();
    return QStringLiteral("<img src=\"data:image/png;base64,%1\" width=\"%2\" height=\"%3\">")
        .arg(QString::fromLatin1(png.toBase64()))
        .arg(size.width())
        .arg(size.height());
}
