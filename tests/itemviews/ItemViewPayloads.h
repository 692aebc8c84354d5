#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The private drag formats of the item-view dialogs. Drag data can come from any application, so
// every reader checks the stream after each read, bounds counts by the bytes present and returns
// "nothing" for anything malformed; the writers produce exactly what the readers take.
namespace ItemViewPayloads {

// "myMimeData": one QString.
QByteArray writeText(const QString& text);
// False (and text untouched) unless the data holds one complete string.
bool readText(const QByteArray& data, QString& text);

// "application/dragContent": qint32 first depth-first index, qint32 count N, QPoint, N QStrings.
struct DragContent
{
    int index = -1;
    QStringList texts;
};
QByteArray writeDragContent(int firstIndex, const QStringList& texts);
// An empty record (index -1, no texts) for malformed data.
DragContent readDragContent(const QByteArray& data);

// "application/ap-component": qint32 count N, then N qint32 depth-first indices.
QByteArray writeComponents(const QList<int>& indices);
// The first index, or -1 when the data is malformed or holds no index.
int readFirstComponent(const QByteArray& data);

} // namespace ItemViewPayloads
