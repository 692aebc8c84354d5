#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

class QFile;

/*
  Bytes made of pieces of other buffers, in order. A processed file is mostly the input with a few
  changes; keeping references to the unchanged runs instead of copying them together, and writing
  the pieces with gathering system calls, spares a copy of the whole file and the memory for it.

  Referenced bytes must outlive the object and stay unchanged; copied and shared ones are kept by
  the object itself.
*/
class GatheredBytes
{
public:
    GatheredBytes() = default;
    explicit GatheredBytes(const QByteArray& bytes);
    GatheredBytes(GatheredBytes&&) = default;
    GatheredBytes& operator=(GatheredBytes&&) = default;
    GatheredBytes(const GatheredBytes&) = delete;
    GatheredBytes& operator=(const GatheredBytes&) = delete;

    void appendReferenced(const char* data, qint64 size);
    // Keeps a shallow copy of bytes, so that their data stays valid.
    void appendShared(const QByteArray& bytes);
    void appendCopy(const char* data, qint64 size);

    qint64 size() const { return m_size; }
    QByteArray toByteArray() const;
    bool equals(const QByteArray& bytes) const;
    // Whether the bytes from position from on begin with the size bytes at data.
    bool matchesAt(qint64 from, const char* data, qint64 size) const;

    // Writes the bytes [from, to) at offset into the open file; on failure reason says why.
    bool writeTo(QFile& file, qint64 offset, qint64 from, qint64 to, QString* reason) const;

private:
    struct Piece
    {
        const char* data;
        qint64 size;
    };
    struct BlockDeleter
    {
        qint64 size;
        void operator()(char* block) const;
    };
    using Block = std::unique_ptr<char[], BlockDeleter>;

    static Block allocateBlock(qint64 size);
    // The size of the next block: small ones for small contents, larger ones as the content grows.
    static qint64 nextBlockSize(qint64 previous);
    // Calls visit for each piece in order while it returns true.
    template<typename Visit>
    void forEachPiece(Visit visit) const;

    struct PieceBlock
    {
        Block block;
        qint64 capacity;
        qint64 count;
    };

    // The pieces, in blocks that never move.
    std::vector<PieceBlock> m_pieceBlocks;
    Piece* m_lastPiece = nullptr;
    std::vector<Block> m_blocks;
    char* m_free = nullptr;
    qint64 m_freeSize = 0;
    qint64 m_copyBlockSize = 0;
    QList<QByteArray> m_shared;
    qint64 m_size = 0;
};
