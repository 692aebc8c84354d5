#include "SvgIcons.h"

#include <QFileInfo>
#include <QHash>

QIcon createSvgIcon(const QString& resourcePath)
{
    if (!QFileInfo::exists(resourcePath))
        return QIcon();
    return QIcon(resourcePath);
}

// The drawings are handed to the SVG icon engine, which renders each size only when it is first
// painted, and an icon once made is shared by every later caller: menus that list the same
// actions many times stay cheap to build.
QIcon createTwoSizeSvgIcon(const QString& basePath)
{
    static QHash<QString, QIcon> made;
    const auto found = made.constFind(basePath);
    if (found != made.constEnd())
        return *found;
    QIcon icon;
    const bool single = basePath.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    const struct
    {
        QString path;
        int extent;
    } drawings[] = {{single ? basePath : basePath + QStringLiteral("_16.svg"), 16},
                    {single ? basePath : basePath + QStringLiteral("_24.svg"), 24}};
    for (const auto& drawing : drawings) {
        if (QFileInfo::exists(drawing.path))
            icon.addFile(drawing.path, QSize(drawing.extent, drawing.extent));
    }
    made.insert(basePath, icon);
    return icon;
}
