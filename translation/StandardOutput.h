#pragma once

#include <QByteArray>

// The progress lines of the translation tool, which go to standard output as they happen.
namespace StandardOutput {

// Writes the line and a newline, and flushes at once: the lines interleave with the output of
// whatever else writes to standard output.
void printLine(const QByteArray& line);

} // namespace StandardOutput
