#include "StandardOutput.h"

#include <cstdio>

namespace StandardOutput {

void printLine(const QByteArray& line)
{
    std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

} // namespace StandardOutput
