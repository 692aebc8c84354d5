#include "ItemViewPayloads.h"

#include <QDataStream>
#include <QIODevice>
#include <QPoint>

namespace ItemViewPayloads {

namespace {
// The smallest serialised QString is its 4-byte length; a count larger than the bytes left could
// not be honest and would only make us allocate.
const int minimumStringSize = 4;

bool readCount(QDataStream& stream, int itemSize, qint32& count)
{
    stream >> count;
    if (stream.status() != QDataStream::Ok || count < 0)
        return false;
    const qint64 left = stream.device()->bytesAvailable();
    return qint64(count) * itemSize <= left;
}
} // namespace

QByteArray writeText(const QString& text)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << text;
    return data;
}

bool readText(const QByteArray& data, QString& text)
{
    QDataStream stream(data);
    QString read;
    stream >> read;
    if (stream.status() != QDataStream::Ok)
        return false;
    text = read;
    return true;
}

QByteArray writeDragContent(int firstIndex, const QStringList& texts)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << qint32(firstIndex) << qint32(texts.size()) << QPoint();
    for (const QString& text : texts)
        stream << text;
    return data;
}

DragContent readDragContent(const QByteArray& data)
{
    QDataStream stream(data);
    qint32 index = -1;
    stream >> index;
    qint32 count = 0;
    if (stream.status() != QDataStream::Ok || !readCount(stream, minimumStringSize, count))
        return {};
    QPoint point;
    stream >> point;
    DragContent content;
    content.index = index;
    for (qint32 i = 0; i < count; ++i) {
        QString text;
        stream >> text;
        if (stream.status() != QDataStream::Ok)
            return {};
        content.texts.append(text);
    }
    if (stream.status() != QDataStream::Ok)
        return {};
    return content;
}

QByteArray writeComponents(const QList<int>& indices)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << qint32(indices.size());
    for (int index : indices)
        stream << qint32(index);
    return data;
}

int readFirstComponent(const QByteArray& data)
{
    QDataStream stream(data);
    qint32 count = 0;
    if (!readCount(stream, int(sizeof(qint32)), count) || count == 0)
        return -1;
    qint32 first = -1;
    stream >> first;
    return stream.status() == QDataStream::Ok && first >= 0 ? first : -1;
}

} // namespace ItemViewPayloads
