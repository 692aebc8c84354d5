#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Inputs larger than this are not compared with the QRegExp reference, which is quadratic.
constexpr size_t oracleLimit = 1024;

// The bytes as the tool reads a file: UTF-8, NUL bytes included.
inline QString textOf(const uint8_t* data, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
}

#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "check failed: %s (%s:%d)\n", #condition, __FILE__, __LINE__);                        \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)
