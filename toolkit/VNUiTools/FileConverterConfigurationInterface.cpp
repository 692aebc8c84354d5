#include "FileConverterConfigurationInterface.h"

namespace Varnis {

FileConverterConfigurationInterface::~FileConverterConfigurationInterface() = default;

PathProvider* FileConverterConfigurationInterface::getPathProvider() const
{
    return nullptr;
}

} // namespace Varnis
