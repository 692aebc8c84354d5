#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <limits>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>

// Inputs larger than this are not compared with the QRegExp reference, which is quadratic.
constexpr size_t oracleLimit = 1024;

// The bytes as the tool reads a file: UTF-8, NUL bytes included.
inline QString textOf(const uint8_t* data, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
}

inline QString textOf(const QByteArray& bytes)
{
    return textOf(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
}

#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "check failed: %s (%s:%d)\n", #condition, __FILE__, __LINE__);                        \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

/*
  Inputs large enough to notice superlinear time: a seed repeated to 2 Mi and to 16 Mi characters.
  A linear operation takes about eight times as long on the larger one; a quadratic one (such as a
  replace loop that moves the rest of the text for each change) takes far longer. Processor time
  is measured, as other programs share the machine; the larger input must also take more than
  2 s, since small timings are dominated by memory allocation.
*/
void checkGrowth(const QByteArray& seed);

template<typename Operation>
void checkLinearGrowth(const QString& unit, Operation operation, const QString& prefix = QString(),
                       const QString& suffix = QString())
{
    if (unit.isEmpty())
        return;
    const auto millisecondsFor = [&](int characters) {
        const QString input = prefix + unit.repeated(std::max(1, characters / int(unit.size()))) + suffix;
        const std::clock_t start = std::clock();
        operation(input);
        return std::max(1.0, double(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC);
    };
    const auto superlinear = [](double small, double large) { return large > 16 * small && large > 2000; };
    double small = millisecondsFor(2 << 20);
    double large = millisecondsFor(16 << 20);
    if (superlinear(small, large)) { // measured again: the first run may have been disturbed
        small = std::max(small, millisecondsFor(2 << 20));
        large = std::min(large, millisecondsFor(16 << 20));
    }
    if (superlinear(small, large))
        std::fprintf(stderr, "superlinear: %.0f ms for 2 Mi characters, %.0f ms for 16 Mi\n", small, large);
    FUZZ_CHECK(!superlinear(small, large));
}
