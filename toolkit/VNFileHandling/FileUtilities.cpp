#include "FileUtilities.h"

#include <QFileInfo>

namespace FileUtilities {

bool isEmpty(const Varnis::FileName& file)
{
    const QFileInfo info(file.toString());
    return file.isEmpty() || !info.isFile() || !info.isReadable() || info.size() == 0;
}

} // namespace FileUtilities
