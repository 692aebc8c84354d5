#pragma once

#include "vnfilehandling_export.h"

#include <QString>

namespace Varnis {

// A file path as a value; compares and prints as the cleaned path.
class VNFILEHANDLING_EXPORT FileName
{
public:
    FileName() = default;
    explicit FileName(const QString& path);

    bool isEmpty() const { return m_path.isEmpty(); }
    QString toString() const { return m_path; }
    QString fileName() const;
    QString suffix() const;
    QString directory() const;
    bool exists() const;

    bool operator==(const FileName& other) const { return m_path == other.m_path; }
    bool operator!=(const FileName& other) const { return !(*this == other); }

private:
    QString m_path;
};

} // namespace Varnis
