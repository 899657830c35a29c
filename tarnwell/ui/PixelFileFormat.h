#pragma once

#include <QtGlobal>

/// A file of pictures as plain pixels, in the byte order of the machine that built it: a header, an entry a picture,
/// and at each entry's offset its rows, 32 bits a pixel, blue first, multiplied with alpha.
namespace kestrel::tarnwell::pixelfile {

inline constexpr quint32 magic = 0x3158504b;  // "KPX1"
inline constexpr quint32 longestSide = 16'384;
inline constexpr quint32 alignment = 64;

struct Header {
    quint32 magic;
    quint32 count;
};

struct Entry {
    char name[40];  ///< ends with a NUL
    quint32 width;
    quint32 height;
    quint32 hasAlpha;
    quint32 offset;  ///< from the file's beginning, a multiple of `alignment`
};

}  // namespace kestrel::tarnwell::pixelfile
