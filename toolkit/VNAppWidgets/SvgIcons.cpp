#include "SvgIcons.h"

#include <QFileInfo>
#include <QHash>

// Qt's SVG icon engine reads and parses the whole drawing just to check it when an icon is made
// from a file, so each drawing is made into an icon once and that icon shared by every later caller.
QIcon createSvgIcon(const QString& resourcePath)
{
    static QHash<QString, QIcon> made;
    const auto found = made.constFind(resourcePath);
    if (found != made.constEnd())
        return *found;
    if (!QFileInfo::exists(resourcePath))
        return QIcon();
    return *made.insert(resourcePath, QIcon(resourcePath));
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
