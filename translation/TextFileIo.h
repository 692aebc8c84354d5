#pragma once

#include "GatheredBytes.h"

#include <QByteArray>
#include <QString>

#include <memory>

class QFile;

// Reading, decoding and writing the text files of the translation tool, with every failure named.
namespace TextFileIo {

// Decided by the byte-order mark, as a text stream decides; UTF-8 without one.
enum class Encoding
{
    Utf8,
    Utf8WithBom,
    Utf16LittleEndian,
    Utf16BigEndian,
    Utf32LittleEndian,
    Utf32BigEndian
};

enum class Status
{
    Ok,
    Excluded,       // the base name starts with "Rg" or "rg": never read
    Missing,        // the file does not exist
    NotRegularFile, // a directory, device, pipe or socket
    NotReadable,    // no read permission or a read error
    TooLarge,       // larger than maxFileSize
    SizeChanged,    // fewer or more bytes than its size announced (a pseudo-file, or it changed while read)
    Empty,          // nothing to process
    UnknownMode,    // no such processing mode
    Undecodable,    // not valid text in its encoding
    ReadOnly,       // the file or its folder cannot be written to
    WriteFailed,    // a write failed; the earlier content is kept (or a new file removed)
    RestoreFailed   // a write failed and the earlier content could not be put back
};

struct Result
{
    Status status = Status::Ok;
    QString path;         // the file concerned
    QString detail;       // the system's reason, the encoding's name, or where a backup was saved
    bool changed = false; // whether a file was written

    bool ok() const { return status == Status::Ok; }
};

// Files beyond this size are not read: the mock translation can triple a file, and the result must
// still fit into one QString.
constexpr qint64 maxFileSize = qint64(128) * 1024 * 1024;

bool isExcludedByName(const QString& filePath);

// The bytes of a regular file.
Result readBytes(const QString& filePath, QByteArray* bytes);

// The whole file as text, read as a text-mode stream reads it (carriage returns dropped); empty
// when the file cannot be read or decoded.
Result readText(const QString& filePath, QString* text);

/*
  The bytes of a regular file read for processing once: where the system allows it, the file is
  mapped into memory instead of being copied, which spares the time and the memory of a copy. The
  bytes stay valid while the object lives.
*/
class FileContent
{
public:
    FileContent();
    ~FileContent();
    FileContent(const FileContent&) = delete;
    FileContent& operator=(const FileContent&) = delete;

    // Unchanged while the object lives, unless changed through this reference (which copies them).
    QByteArray& bytes() { return m_bytes; }
    // Whether path names this very file (through a hard or symbolic link, for example).
    bool isSameFile(const QString& path) const;

private:
    friend Result readContent(const QString& filePath, FileContent* content);

    std::unique_ptr<QFile> m_file;
    QByteArray m_bytes;
};

// The bytes of a regular file, as readBytes() gives them, but mapped into memory where possible.
Result readContent(const QString& filePath, FileContent* content);

// Decodes bytes in the encoding their byte-order mark names (without the mark); Undecodable when
// they are not valid in that encoding.
Result decode(const QByteArray& bytes, QString* text, Encoding* encoding);
QByteArray encode(const QString& text, Encoding encoding);
// Whether bytes are valid UTF-8 as the decoder reads them: no stray continuation bytes, cut-off or
// overlong sequences, encoded surrogates or code points beyond U+10FFFF.
bool isValidUtf8(const char* data, int size);
// A text-mode read drops every carriage return.
void removeCarriageReturns(QString& text);
QString encodingName(Encoding encoding);

/*
  Writes data into the file itself, as a truncating open does, so that it keeps its hard links,
  owner and permissions and can be written in a folder that is read-only. Nothing is lost when the
  disk fills: the part beyond the old end is written first (the old bytes stay untouched if that
  fails, and the file is cut back to its old size), and only then is the old part overwritten. Any
  later failure writes the earlier bytes back; if even that fails they are saved to a file in the
  temporary folder, named in the result. A new file that cannot be written completely is removed.
  A file that already holds data is not touched.
*/
Result writeInPlace(const QString& filePath, const QByteArray& data);
Result writeInPlace(const QString& filePath, const GatheredBytes& data);

} // namespace TextFileIo
