#include "GatheredBytes.h"

#include <QFile>

#include <algorithm>
#include <cstring>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <climits>
#include <sys/uio.h>
#endif

namespace {
// Copies go into blocks of this size, so that a copied piece never moves.
const qint64 blockSize = 256 * 1024;
} // namespace

GatheredBytes::GatheredBytes(const QByteArray& bytes)
{
    appendShared(bytes);
}

void GatheredBytes::appendReferenced(const char* data, qint64 size)
{
    if (size <= 0)
        return;
    m_size += size;
    // Neighbouring runs, such as consecutive copies, become one piece.
    if (!m_pieces.empty() && m_pieces.back().data + m_pieces.back().size == data)
        m_pieces.back().size += size;
    else
        m_pieces.push_back({data, size});
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
        const qint64 allocated = std::max(blockSize, size);
        m_blocks.emplace_back(new char[size_t(allocated)]);
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
    if (m_pieces.size() == 1 && m_shared.size() == 1)
        return m_shared.constFirst();
    QByteArray bytes;
    bytes.reserve(int(m_size));
    for (const Piece& piece : m_pieces)
        bytes.append(piece.data, int(piece.size));
    return bytes;
}

bool GatheredBytes::equals(const QByteArray& bytes) const
{
    if (bytes.size() != m_size)
        return false;
    const char* compared = bytes.constData();
    for (const Piece& piece : m_pieces) {
        if (std::memcmp(piece.data, compared, size_t(piece.size)) != 0)
            return false;
        compared += piece.size;
    }
    return true;
}

#ifdef Q_OS_UNIX

bool GatheredBytes::writeTo(QFile& file, qint64 offset, qint64 from, qint64 to, QString* reason) const
{
    // The pieces that hold [from, to), the first and last one cut to size.
    std::vector<iovec> vectors;
    qint64 start = 0;
    for (const Piece& piece : m_pieces) {
        const qint64 begin = std::max(from, start);
        const qint64 end = std::min(to, start + piece.size);
        if (begin < end)
            vectors.push_back({const_cast<char*>(piece.data + (begin - start)), size_t(end - begin)});
        start += piece.size;
        if (start >= to)
            break;
    }
    size_t next = 0;
    while (next < vectors.size()) {
        const int count = int(std::min(vectors.size() - next, size_t(IOV_MAX)));
        const ssize_t written = ::pwritev(file.handle(), vectors.data() + next, count, off_t(offset));
        if (written <= 0) {
            *reason = qt_error_string(written < 0 ? errno : ENOSPC);
            return false;
        }
        offset += written;
        // A short write goes on where it stopped, to learn the reason if it stopped for good.
        for (size_t remaining = size_t(written); remaining > 0;) {
            iovec& vector = vectors[next];
            const size_t taken = std::min(remaining, vector.iov_len);
            vector.iov_base = static_cast<char*>(vector.iov_base) + taken;
            vector.iov_len -= taken;
            remaining -= taken;
            if (vector.iov_len == 0)
                ++next;
        }
    }
    return true;
}

#else

bool GatheredBytes::writeTo(QFile& file, qint64 offset, qint64 from, qint64 to, QString* reason) const
{
    if (!file.seek(offset)) {
        *reason = file.errorString();
        return false;
    }
    qint64 start = 0;
    for (const Piece& piece : m_pieces) {
        const qint64 begin = std::max(from, start);
        const qint64 end = std::min(to, start + piece.size);
        for (qint64 at = begin; at < end;) {
            const qint64 written = file.write(piece.data + (at - start), end - at);
            if (written <= 0) {
                *reason = file.errorString();
                return false;
            }
            at += written;
        }
        start += piece.size;
    }
    return true;
}

#endif
