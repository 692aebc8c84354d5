#include "TextFileIo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QTextCodec>

#include <algorithm>
#include <cstring>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace TextFileIo {
namespace {

struct ByteOrderMark
{
    const char* bytes;
    int size;
    Encoding encoding;
    const char* codecName;
};

// The four-byte marks first: the UTF-32 little-endian mark begins with the UTF-16 one.
const ByteOrderMark byteOrderMarks[] = {
    {"\xFF\xFE\x00\x00", 4, Encoding::Utf32LittleEndian, "UTF-32LE"},
    {"\x00\x00\xFE\xFF", 4, Encoding::Utf32BigEndian, "UTF-32BE"},
    {"\xEF\xBB\xBF", 3, Encoding::Utf8WithBom, "UTF-8"},
    {"\xFF\xFE", 2, Encoding::Utf16LittleEndian, "UTF-16LE"},
    {"\xFE\xFF", 2, Encoding::Utf16BigEndian, "UTF-16BE"},
};

const ByteOrderMark* markOf(Encoding encoding)
{
    for (const ByteOrderMark& mark : byteOrderMarks) {
        if (mark.encoding == encoding)
            return &mark;
    }
    return nullptr;
}

Result failure(Status status, const QString& path, const QString& detail = QString())
{
    Result result;
    result.status = status;
    result.path = path;
    result.detail = detail;
    return result;
}

// Decodes strictly: the text must survive the way back unchanged.
bool decodeWithCodec(const char* codecName, const char* data, int size, QString* text)
{
    QTextCodec* codec = QTextCodec::codecForName(codecName);
    if (!codec)
        return false;
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    *text = codec->toUnicode(data, size, &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool decodeUtf8(const char* data, int size, QString* text)
{
    *text = size > 0 ? QString::fromUtf8(data, size) : QString();
    // Invalid bytes become U+FFFD; only then is the slower, counting decoder needed.
    if (!text->contains(QChar(QChar::ReplacementCharacter)))
        return true;
    return decodeWithCodec("UTF-8", data, size, text);
}

bool isReadOnly(const QString& filePath, bool exists)
{
#ifdef Q_OS_UNIX
    const QByteArray target = QFile::encodeName(exists ? filePath : QFileInfo(filePath).absolutePath());
    return ::access(target.constData(), W_OK) != 0 && (errno == EACCES || errno == EPERM || errno == EROFS);
#else
    return exists ? !QFileInfo(filePath).isWritable() : !QFileInfo(QFileInfo(filePath).absolutePath()).isWritable();
#endif
}

// Writes the bytes [from, to) of data at the given offset; reason says why it failed.
bool writeAt(QFile& file, qint64 offset, const GatheredBytes& data, qint64 from, qint64 to, QString* reason)
{
    return from >= to || data.writeTo(file, offset, from, to, reason);
}

// The whole open file mapped into memory, or null; unmapped when the file closes.
const uchar* mapWhole(QFile& file, qint64 size)
{
    const uchar* mapped = file.map(0, size, QFileDevice::MapPrivateOption);
#if defined(Q_OS_UNIX) && defined(MADV_POPULATE_READ)
    // One system call maps all pages, instead of a page fault for every few of them.
    if (mapped)
        ::madvise(const_cast<uchar*>(mapped), size_t(size), MADV_POPULATE_READ);
#endif
    return mapped;
}

/*
  Whether the open file holds data already, looked at without copying it: a window at a time is
  mapped into memory, so that the file does not add its size to the memory in use.
*/
bool holdsAlready(QFile& file, const GatheredBytes& data)
{
    const qint64 window = 4 * 1024 * 1024;
    if (file.size() != data.size() || data.size() == 0)
        return false;
    for (qint64 from = 0; from < data.size(); from += window) {
        const qint64 size = std::min(window, data.size() - from);
        const uchar* mapped = file.map(from, size, QFileDevice::MapPrivateOption);
        if (!mapped)
            return false;
        const bool same = data.matchesAt(from, reinterpret_cast<const char*>(mapped), size);
        file.unmap(const_cast<uchar*>(mapped));
        if (!same)
            return false;
    }
    return true;
}

// The whole open file, its pages provided at once: one page fault at a time costs more than copying.
QByteArray readWhole(QFile& file)
{
    const qint64 size = file.size();
    if (size <= 0 || size > maxFileSize * 4)
        return file.readAll();
    QByteArray bytes(int(size), Qt::Uninitialized);
#if defined(Q_OS_UNIX) && defined(MADV_POPULATE_WRITE)
    const quintptr page = quintptr(::sysconf(_SC_PAGESIZE));
    const quintptr begin = (quintptr(bytes.data()) + page - 1) & ~(page - 1);
    const quintptr end = (quintptr(bytes.data()) + quintptr(size)) & ~(page - 1);
    if (end > begin)
        ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_POPULATE_WRITE);
#endif
    const qint64 read = file.read(bytes.data(), size);
    bytes.resize(int(std::max(read, qint64(0))));
    if (read == size)
        bytes += file.readAll(); // it may have grown meanwhile
    return bytes;
}

bool writeBack(QFile& file, const QByteArray& old)
{
    QString reason;
    return writeAt(file, 0, GatheredBytes(old), 0, old.size(), &reason) && file.resize(old.size());
}

// Where the earlier content goes when it cannot be written back; empty if nowhere.
QString saveBackup(const QString& filePath, const QByteArray& old)
{
    QTemporaryFile backup(QDir::temp().filePath(QFileInfo(filePath).fileName() + QStringLiteral(".original.XXXXXX")));
    backup.setAutoRemove(false);
    if (!backup.open() || backup.write(old) != old.size() || !backup.flush()) {
        backup.remove();
        return QString();
    }
    return backup.fileName();
}

Result restoreAfterFailure(QFile& file, const QByteArray& old, const QString& reason)
{
    if (writeBack(file, old))
        return failure(Status::WriteFailed, file.fileName(), reason);
    return failure(Status::RestoreFailed, file.fileName(), saveBackup(file.fileName(), old));
}

} // namespace

bool isExcludedByName(const QString& filePath)
{
    const QString baseName = QFileInfo(filePath).baseName();
    return baseName.startsWith(QLatin1String("Rg")) || baseName.startsWith(QLatin1String("rg"));
}

namespace {
// Why the file cannot be read, or Ok.
Result checkReadable(const QString& filePath, const QFileInfo& info)
{
    if (isExcludedByName(filePath))
        return failure(Status::Excluded, filePath);
    if (!info.exists())
        return failure(Status::Missing, filePath);
    // Opening a FIFO or a device would block or never reach the end.
    if (!info.isFile())
        return failure(Status::NotRegularFile, filePath);
    if (info.size() > maxFileSize)
        return failure(Status::TooLarge, filePath);
    return failure(Status::Ok, filePath);
}
} // namespace

Result readBytes(const QString& filePath, QByteArray* bytes)
{
    bytes->clear();
    const QFileInfo info(filePath);
    const Result readable = checkReadable(filePath, info);
    if (!readable.ok())
        return readable;
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return failure(Status::NotReadable, filePath, file.errorString());
    *bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failure(Status::NotReadable, filePath, file.errorString());
    if (bytes->size() != info.size())
        return failure(Status::SizeChanged, filePath);
    return failure(Status::Ok, filePath);
}

Result readText(const QString& filePath, QString* text)
{
    text->clear();
    QByteArray bytes;
    Result result = readBytes(filePath, &bytes);
    if (!result.ok())
        return result;
    Encoding encoding;
    result = decode(bytes, text, &encoding);
    result.path = filePath;
    if (!result.ok())
        text->clear();
    removeCarriageReturns(*text);
    return result;
}

FileContent::FileContent() = default;

FileContent::~FileContent()
{
    m_bytes.clear(); // before the mapping goes
}

bool FileContent::isSameFile(const QString& path) const
{
    if (!m_file)
        return false; // the bytes are a copy
#ifdef Q_OS_UNIX
    struct stat mapped;
    struct stat other;
    return ::fstat(m_file->handle(), &mapped) == 0 && ::stat(QFile::encodeName(path).constData(), &other) == 0 &&
           mapped.st_dev == other.st_dev && mapped.st_ino == other.st_ino;
#else
    Q_UNUSED(path)
    return true; // cannot tell: take the safe way
#endif
}

Result readContent(const QString& filePath, FileContent* content)
{
    content->m_bytes.clear();
    content->m_file.reset();
    const QFileInfo info(filePath);
    const Result readable = checkReadable(filePath, info);
    if (!readable.ok())
        return readable;
    auto file = std::make_unique<QFile>(filePath);
    // A pseudo-file announces no size; its bytes can only be read.
    if (info.size() == 0 || !file->open(QIODevice::ReadOnly) || file->size() != info.size())
        return readBytes(filePath, &content->m_bytes);
    const uchar* mapped = mapWhole(*file, info.size());
    if (!mapped)
        return readBytes(filePath, &content->m_bytes);
    content->m_bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(mapped), int(info.size()));
    content->m_file = std::move(file);
    return failure(Status::Ok, filePath);
}

Result decode(const QByteArray& bytes, QString* text, Encoding* encoding)
{
    const char* data = bytes.constData();
    int size = bytes.size();
    const char* codecName = nullptr;
    *encoding = Encoding::Utf8;
    for (const ByteOrderMark& mark : byteOrderMarks) {
        if (size >= mark.size && std::equal(mark.bytes, mark.bytes + mark.size, data)) {
            *encoding = mark.encoding;
            codecName = mark.codecName;
            data += mark.size;
            size -= mark.size;
            break;
        }
    }
    const bool valid = *encoding == Encoding::Utf8 || *encoding == Encoding::Utf8WithBom
                           ? decodeUtf8(data, size, text)
                           : decodeWithCodec(codecName, data, size, text);
    if (!valid)
        return failure(Status::Undecodable, QString(), encodingName(*encoding));
    return Result();
}

QByteArray encode(const QString& text, Encoding encoding)
{
    if (encoding == Encoding::Utf8)
        return text.toUtf8();
    const ByteOrderMark* mark = markOf(encoding);
    QByteArray bytes(mark->bytes, mark->size);
    if (encoding == Encoding::Utf8WithBom)
        return bytes + text.toUtf8();
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return bytes + QTextCodec::codecForName(mark->codecName)->fromUnicode(text.constData(), text.size(), &state);
}

bool isValidUtf8(const char* data, int size)
{
    const uchar* it = reinterpret_cast<const uchar*>(data);
    const uchar* end = it + size;
    while (it != end) {
        quint64 eightBytes = 0;
        if (end - it >= 8 && (std::memcpy(&eightBytes, it, 8), (eightBytes & 0x8080808080808080ull) == 0)) {
            it += 8; // all ASCII
            continue;
        }
        if (*it < 0x80) {
            ++it;
            continue;
        }
        int length = 0;
        uint minimum = 0;
        uint codePoint = 0;
        if ((*it & 0xE0) == 0xC0) {
            length = 2, minimum = 0x80, codePoint = *it & 0x1F;
        } else if ((*it & 0xF0) == 0xE0) {
            length = 3, minimum = 0x800, codePoint = *it & 0x0F;
        } else if ((*it & 0xF8) == 0xF0) {
            length = 4, minimum = 0x10000, codePoint = *it & 0x07;
        } else {
            return false;
        }
        if (end - it < length)
            return false;
        for (int index = 1; index < length; ++index) {
            if ((it[index] & 0xC0) != 0x80)
                return false;
            codePoint = (codePoint << 6) | (it[index] & 0x3F);
        }
        if (codePoint < minimum || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
            return false;
        it += length;
    }
    return true;
}

void removeCarriageReturns(QString& text)
{
    if (text.contains(QLatin1Char('\r')))
        text.remove(QLatin1Char('\r'));
}

QString encodingName(Encoding encoding)
{
    const ByteOrderMark* mark = markOf(encoding);
    return mark ? QString::fromLatin1(mark->codecName) : QStringLiteral("UTF-8");
}

Result writeInPlace(const QString& filePath, const QByteArray& data)
{
    return writeInPlace(filePath, GatheredBytes(data));
}

Result writeInPlace(const QString& filePath, const GatheredBytes& data)
{
    QFile file(filePath);
    const bool existed = file.exists();
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        const Status status = isReadOnly(filePath, existed) ? Status::ReadOnly : Status::WriteFailed;
        return failure(status, filePath, file.errorString());
    }
    // Running the tool again usually gives the same output, which need not be copied to be compared.
    if (holdsAlready(file, data))
        return failure(Status::Ok, filePath);
    const QByteArray old = readWhole(file);
    if (file.error() != QFileDevice::NoError)
        return failure(Status::NotReadable, filePath, file.errorString());
    Result result = failure(Status::Ok, filePath);
    if (data.equals(old))
        return result;
    result.changed = true;

    // Growing first: a full disk stops the write before any old byte is overwritten.
    const qint64 common = std::min(qint64(old.size()), data.size());
    QString reason;
    if (!writeAt(file, old.size(), data, common, data.size(), &reason)) {
        if (!existed) {
            file.remove();
            return failure(Status::WriteFailed, filePath, reason);
        }
        return file.resize(old.size()) ? failure(Status::WriteFailed, filePath, reason)
                                       : restoreAfterFailure(file, old, reason);
    }
    if (!writeAt(file, 0, data, 0, common, &reason))
        return restoreAfterFailure(file, old, reason);
    if (!file.resize(data.size()) || !file.flush())
        return restoreAfterFailure(file, old, file.errorString());
    file.close();
    if (file.error() == QFileDevice::NoError)
        return result;
    reason = file.errorString();
    file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    return restoreAfterFailure(file, old, reason);
}

} // namespace TextFileIo
