#include "GatheredBytes.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <new>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <climits>
#include <sys/mman.h>
#include <sys/uio.h>
#endif

namespace {
// Copies and pieces go into blocks, so that they never move; the blocks grow up to this size.
const qint64 largestBlockSize = 2 * 1024 * 1024;
// Smaller blocks come from the heap.
const qint64 smallestMappedBlock = 256 * 1024;
} // namespace

#if defined(Q_OS_UNIX) && defined(MAP_POPULATE)

// All pages of a block at once: one page fault at a time costs more than the copying.
GatheredBytes::Block GatheredBytes::allocateBlock(qint64 size)
{
    if (size < smallestMappedBlock)
        return Block(new char[size_t(size)], BlockDeleter{0});
    void* block =
        ::mmap(nullptr, size_t(size), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
    if (block == MAP_FAILED)
        throw std::bad_alloc();
    return Block(static_cast<char*>(block), BlockDeleter{size});
}

void GatheredBytes::BlockDeleter::operator()(char* block) const
{
    if (size == 0)
        delete[] block;
    else
        ::munmap(block, size_t(size));
}

#else

GatheredBytes::Block GatheredBytes::allocateBlock(qint64 size)
{
    return Block(new char[size_t(size)], BlockDeleter{size});
}

void GatheredBytes::BlockDeleter::operator()(char* block) const
{
    delete[] block;
}

#endif

qint64 GatheredBytes::nextBlockSize(qint64 previous)
{
    return std::min(largestBlockSize, std::max(qint64(4096), previous * 2));
}

GatheredBytes::GatheredBytes(const QByteArray& bytes)
{
    appendShared(bytes);
}

template<typename Visit>
void GatheredBytes::forEachPiece(Visit visit) const
{
    for (const PieceBlock& block : m_pieceBlocks) {
        const Piece* pieces = reinterpret_cast<const Piece*>(block.block.get());
        for (qint64 index = 0; index < block.count; ++index) {
            if (!visit(pieces[index]))
                return;
        }
    }
}

void GatheredBytes::appendReferenced(const char* data, qint64 size)
{
    if (size <= 0)
        return;
    m_size += size;
    // Neighbouring runs, such as consecutive copies, become one piece.
    if (m_lastPiece && m_lastPiece->data + m_lastPiece->size == data) {
        m_lastPiece->size += size;
        return;
    }
    if (m_pieceBlocks.empty() || m_pieceBlocks.back().count == m_pieceBlocks.back().capacity) {
        const qint64 bytes =
            nextBlockSize(m_pieceBlocks.empty() ? 0 : m_pieceBlocks.back().capacity * qint64(sizeof(Piece)));
        m_pieceBlocks.push_back({allocateBlock(bytes), bytes / qint64(sizeof(Piece)), 0});
    }
    PieceBlock& block = m_pieceBlocks.back();
    m_lastPiece = reinterpret_cast<Piece*>(block.block.get()) + block.count++;
    *m_lastPiece = {data, size};
}

void GatheredBytes::appendShared(const QByteArray& bytes)
{
    if (bytes.isEmpty())
        return;
    m_shared.append(bytes);
    appendReferenced(m_shared.constLast().constData(), bytes.size());
}

void GatheredBytes::appendCopy(const char* data, qint64 size)
{
    if (size <= 0)
        return;
    if (size > m_freeSize) {
        m_copyBlockSize = nextBlockSize(m_copyBlockSize);
        const qint64 allocated = std::max(m_copyBlockSize, size);
        m_blocks.push_back(allocateBlock(allocated));
        m_free = m_blocks.back().get();
        m_freeSize = allocated;
    }
    std::memcpy(m_free, data, size_t(size));
    appendReferenced(m_free, size);
    m_free += size;
    m_freeSize -= size;
}

QByteArray GatheredBytes::toByteArray() const
{
    if (m_pieceBlocks.size() == 1 && m_pieceBlocks.front().count == 1 && m_shared.size() == 1)
        return m_shared.constFirst();
    QByteArray bytes;
    bytes.reserve(int(m_size));
    forEachPiece([&bytes](const Piece& piece) {
        bytes.append(piece.data, int(piece.size));
        return true;
    });
    return bytes;
}

bool GatheredBytes::equals(const QByteArray& bytes) const
{
    return bytes.size() == m_size && matchesAt(0, bytes.constData(), bytes.size());
}

bool GatheredBytes::matchesAt(qint64 from, const char* data, qint64 size) const
{
    if (from < 0 || size < 0 || from + size > m_size)
        return false;
    const qint64 to = from + size;
    qint64 start = 0;
    bool equal = true;
    forEachPiece([&](const Piece& piece) {
        const qint64 begin = std::max(from, start);
        const qint64 end = std::min(to, start + piece.size);
        if (begin < end)
            equal = std::memcmp(piece.data + (begin - start), data + (begin - from), size_t(end - begin)) == 0;
        start += piece.size;
        return equal && start < to;
    });
    return equal;
}

#ifdef Q_OS_UNIX

namespace {
// Writes all vectors at offset, which moves on; a short write goes on where it stopped, to learn
// the reason if it stopped for good.
bool writeVectors(int handle, iovec* vectors, int count, qint64& offset, QString* reason)
{
    while (count > 0) {
        const ssize_t written = ::pwritev(handle, vectors, count, off_t(offset));
        if (written <= 0) {
            *reason = qt_error_string(written < 0 ? errno : ENOSPC);
            return false;
        }
        offset += written;
        for (size_t remaining = size_t(written); remaining > 0;) {
            const size_t taken = std::min(remaining, vectors->iov_len);
            vectors->iov_base = static_cast<char*>(vectors->iov_base) + taken;
            vectors->iov_len -= taken;
            remaining -= taken;
            if (vectors->iov_len == 0) {
                ++vectors;
                --count;
            }
        }
    }
    return true;
}
} // namespace

bool GatheredBytes::writeTo(QFile& file, qint64 offset, qint64 from, qint64 to, QString* reason) const
{
    // The pieces that hold [from, to), the first and last one cut to size, a system call's worth
    // at a time.
    iovec vectors[IOV_MAX];
    int count = 0;
    qint64 start = 0;
    bool written = true;
    forEachPiece([&](const Piece& piece) {
        const qint64 begin = std::max(from, start);
        const qint64 end = std::min(to, start + piece.size);
        if (begin < end)
            vectors[count++] = {const_cast<char*>(piece.data + (begin - start)), size_t(end - begin)};
        start += piece.size;
        if (count == IOV_MAX || (start >= to && count > 0)) {
            written = writeVectors(file.handle(), vectors, count, offset, reason);
            count = 0;
        }
        return written && start < to;
    });
    return written && (count == 0 || writeVectors(file.handle(), vectors, count, offset, reason));
}

#else

bool GatheredBytes::writeTo(QFile& file, qint64 offset, qint64 from, qint64 to, QString* reason) const
{
    if (!file.seek(offset)) {
        *reason = file.errorString();
        return false;
    }
    qint64 start = 0;
    bool written = true;
    forEachPiece([&](const Piece& piece) {
        const qint64 begin = std::max(from, start);
        const qint64 end = std::min(to, start + piece.size);
        for (qint64 at = begin; written && at < end;) {
            const qint64 count = file.write(piece.data + (at - start), end - at);
            written = count > 0;
            at += count;
        }
        start += piece.size;
        return written && start < to;
    });
    if (!written)
        *reason = file.errorString();
    return written;
}

#endif
