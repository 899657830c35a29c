#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kestrel::frames {

/// Pixels of four bytes, uppermost row first.
struct Picture {
    const uint8_t *pixels = nullptr;
    int width = 0, height = 0;
    ptrdiff_t stride = 0;  ///< bytes from a row to the next
};

struct Size {
    int width = 0, height = 0;
    bool operator==(const Size &) const = default;
};

/// What a picture's size is made for an encoder: even sides, nothing where less than two pixels are left or more than
/// `maximumSide`.
inline constexpr int maximumSide = 16384;
Size recordableSize(int width, int height);

/// Where a picture of another shape goes, undistorted and in the middle: `size` at `x`, `y`.
struct Place {
    int x = 0, y = 0;
    Size size = {};
};
Place placeWithin(Size picture, Size whole);

/// Copies the picture into `target`, which becomes `whole` without gaps between its rows. One of that size (or a pixel
/// more) is copied as it is, any other is scaled into the middle, between black bars.
void fit(const Picture &picture, Size whole, std::vector<uint8_t> &target);

}  // namespace kestrel::frames
