#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

// The toolkit's own SVG drawings as icons, one icon per drawing for the whole program. Qt's SVG icon
// engine reads and parses a drawing completely just to check it whenever an icon is made from the
// file, and many widgets of a window show the same drawing (every disclosure its info button). Only
// drawings compiled into the program are kept: a file on disk may change.
namespace VNSvgIcon {
inline QIcon fromFile(const QString& path)
{
    if (!path.startsWith(QLatin1Char(':')))
        return QIcon(path);
    static QHash<QString, QIcon> made;
    const auto found = made.constFind(path);
    if (found != made.constEnd())
        return *found;
    return *made.insert(path, QIcon(path));
}
} // namespace VNSvgIcon
