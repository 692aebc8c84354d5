#pragma once

#include "FileName.h"
#include "vnfilehandling_export.h"

namespace FileUtilities {

// True when the file is missing, unreadable or has no content.
VNFILEHANDLING_EXPORT bool isEmpty(const Varnis::FileName& file);

} // namespace FileUtilities
