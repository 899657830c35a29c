#pragma once

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

inline void require(bool condition)
{
    if (!condition)
        std::abort();
}

inline QByteArray fuzzInput(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
}
