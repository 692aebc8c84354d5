#include "FileName.h"

#include <QDir>
#include <QFileInfo>

namespace Varnis {

FileName::FileName(const QString& path)
    : m_path(path.isEmpty() ? QString() : QDir::cleanPath(QDir::fromNativeSeparators(path)))
{}

QString FileName::fileName() const
{
    return QFileInfo(m_path).fileName();
}

QString FileName::suffix() const
{
    return QFileInfo(m_path).suffix();
}

QString FileName::directory() const
{
    return QFileInfo(m_path).path();
}

bool FileName::exists() const
{
    return !m_path.isEmpty() && QFileInfo::exists(m_path);
}

} // namespace Varnis
