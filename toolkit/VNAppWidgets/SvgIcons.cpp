#include "SvgIcons.h"

#include <QFileInfo>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace {
QPixmap renderSvg(const QString& path, const QSize& size)
{
    QSvgRenderer renderer(path);
    if (!renderer.isValid())
        return QPixmap();
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}
} // namespace

QIcon createSvgIcon(const QString& resourcePath)
{
    if (!QFileInfo::exists(resourcePath))
        return QIcon();
    return QIcon(resourcePath);
}

QIcon createTwoSizeSvgIcon(const QString& basePath)
{
    QIcon icon;
    const bool single = basePath.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    const struct
    {
        QString path;
        int extent;
    } drawings[] = {{single ? basePath : basePath + QStringLiteral("_16.svg"), 16},
                    {single ? basePath : basePath + QStringLiteral("_24.svg"), 24}};
    for (const auto& drawing : drawings) {
        const QPixmap pixmap = renderSvg(drawing.path, QSize(drawing.extent, drawing.extent));
        if (!pixmap.isNull())
            icon.addPixmap(pixmap);
    }
    return icon;
}
