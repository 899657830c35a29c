#include "FrameFit.h"

#include <algorithm>
#include <cstring>

namespace kestrel::frames {

namespace {

constexpr int pixelBytes = 4;
constexpr int64_t one = 256;  // of the fractions between two pixels

/// Between two pixels of the picture: the first and how far it is to the next.
struct Between {
    int first = 0, next = 0, share = 0;
};

Between between(int position, int count, int of)
{
    const int64_t middle = std::max<int64_t>(((2 * position + 1) * one * of / count - one) / 2, 0);
    const int first = std::min(int(middle / one), of - 1);
    return {first, std::min(first + 1, of - 1), int(middle % one)};
}

void scale(const Picture &picture, const Place &place, Size whole, std::vector<uint8_t> &target)
{
    std::vector<Between> columns(size_t(place.size.width));
    for (int x = 0; x < place.size.width; ++x)
        columns[size_t(x)] = between(x, place.size.width, picture.width);
    for (int y = 0; y < place.size.height; ++y) {
        const Between rows = between(y, place.size.height, picture.height);
        const uint8_t *upper = picture.pixels + rows.first * picture.stride;
        const uint8_t *lower = picture.pixels + rows.next * picture.stride;
        uint8_t *out = target.data() + (size_t(place.y + y) * size_t(whole.width) + size_t(place.x)) * pixelBytes;
        for (const Between &column : columns) {
            for (int byte = 0; byte < pixelBytes; ++byte) {
                const int left = column.first * pixelBytes + byte, right = column.next * pixelBytes + byte;
                const int above = upper[left] * (one - column.share) + upper[right] * column.share;
                const int below = lower[left] * (one - column.share) + lower[right] * column.share;
                *out++ = uint8_t((above * (one - rows.share) + below * rows.share) / (one * one));
            }
        }
    }
}

}  // namespace

Size recordableSize(int width, int height)
{
    const Size size{width & ~1, height & ~1};
    const bool isGood = size.width >= 2 && size.height >= 2 && size.width <= maximumSide && size.height <= maximumSide;
    return isGood ? size : Size();
}

Place placeWithin(Size picture, Size whole)
{
    Size size = whole;
    if (int64_t(picture.width) * whole.height > int64_t(whole.width) * picture.height)
        size.height = std::max(1, int(int64_t(picture.height) * whole.width / picture.width));
    else
        size.width = std::max(1, int(int64_t(picture.width) * whole.height / picture.height));
    return {(whole.width - size.width) / 2, (whole.height - size.height) / 2, size};
}

void fit(const Picture &picture, Size whole, std::vector<uint8_t> &target)
{
    const size_t row = size_t(whole.width) * pixelBytes;
    target.resize(row * size_t(whole.height));
    if (recordableSize(picture.width, picture.height) == whole) {
        for (int y = 0; y < whole.height; ++y)
            std::memcpy(target.data() + size_t(y) * row, picture.pixels + y * picture.stride, row);
        return;
    }
    std::fill(target.begin(), target.end(), uint8_t(0));
    scale(picture, placeWithin({picture.width, picture.height}, whole), whole, target);
}

}  // namespace kestrel::frames
