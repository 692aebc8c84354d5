#include "PixmapFunctions.h"

#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {
QImage readLayer(const QString& path)
{
    if (path.isEmpty())
        return QImage();
    QImageReader reader(path);
    // Icons are small; a header that claims a huge picture is not read.
    const QSize size = reader.size();
    if (size.isValid() && qint64(size.width()) * size.height() > 4096 * 4096)
        return QImage();
    return reader.read();
}

// Applies a per-pixel rule on the straight (not premultiplied) colour values.
QPixmap mapPixels(const QPixmap& pixmap, const std::function<QRgb(QRgb)>& rule)
{
    if (pixmap.isNull())
        return QPixmap();
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = rule(line[x]);
    }
    QPixmap result = QPixmap::fromImage(image);
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    return result;
}

int brighten(int channel, int factor)
{
    if (factor >= 0)
        return int(std::lround(channel + (255 - channel) * factor / 100.0));
    return int(std::lround(channel * (100 + factor) / 100.0));
}
} // namespace

QPixmap composePixmap(const QString& basePath, const QString& overlayPath, const QString& secondOverlayPath)
{
    QList<QImage> layers;
    for (const QString& path : {basePath, overlayPath, secondOverlayPath}) {
        const QImage layer = readLayer(path);
        if (!layer.isNull())
            layers << layer;
    }
    if (layers.isEmpty())
        return QPixmap();
    const QImage base = readLayer(basePath);
    QSize canvasSize = base.size();
    if (base.isNull()) {
        for (const QImage& layer : layers)
            canvasSize = canvasSize.expandedTo(layer.size());
    }
    QImage canvas(canvasSize, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const QImage& layer : layers) {
        QSize size = layer.size();
        if (size.width() > canvasSize.width() || size.height() > canvasSize.height())
            size.scale(canvasSize, Qt::KeepAspectRatio);
        const QRect target(QPoint((canvasSize.width() - size.width()) / 2, (canvasSize.height() - size.height()) / 2),
                           size);
        painter.drawImage(target, layer);
    }
    painter.end();
    return QPixmap::fromImage(canvas);
}

QPixmap disabledPixmap(const QPixmap& pixmap)
{
    return mapPixels(pixmap, [](QRgb pixel) {
        const int grey = (qGray(pixel) + 255) / 2;
        return qRgba(grey, grey, grey, qAlpha(pixel));
    });
}

QPixmap disabledPixmapByTransparency(const QPixmap& pixmap)
{
    return mapPixels(pixmap, [](QRgb pixel) {
        return qRgba(qRed(pixel), qGreen(pixel), qBlue(pixel), int(std::lround(qAlpha(pixel) * 0.4)));
    });
}

QPixmap adjustPixmapBrightness(const QPixmap& pixmap, int factor)
{
    const int percent = std::clamp(factor, -100, 100);
    return mapPixels(pixmap, [percent](QRgb pixel) {
        return qRgba(brighten(qRed(pixel), percent), brighten(qGreen(pixel), percent), brighten(qBlue(pixel), percent),
                     qAlpha(pixel));
    });
}
