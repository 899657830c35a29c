#include "ScreenBuffer_linux.h"

#include <spa/buffer/meta.h>

#include <ctime>

namespace kestrel::frames {

int64_t monotonic()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * second + now.tv_nsec;
}

int64_t wallClock()
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    return int64_t(now.tv_sec) * 1'000'000 + now.tv_nsec / 1000;
}

int64_t timeOf(const spa_buffer *buffer)
{
    const auto *header =
        static_cast<spa_meta_header *>(spa_buffer_find_meta_data(buffer, SPA_META_Header, sizeof(spa_meta_header)));
    const int64_t age = header && header->pts > 0 ? monotonic() - header->pts : 0;
    return wallClock() - (age > 0 && age < second ? age / 1000 : 0);
}

Picture pictureOf(const spa_buffer *buffer, const spa_video_info_raw &format)
{
    const auto *header =
        static_cast<spa_meta_header *>(spa_buffer_find_meta_data(buffer, SPA_META_Header, sizeof(spa_meta_header)));
    const spa_data &data = buffer->datas[0];
    if (!data.data || !data.chunk || data.chunk->size == 0 || (data.chunk->flags & SPA_CHUNK_FLAG_CORRUPTED) != 0 ||
        (header && (header->flags & SPA_META_HEADER_FLAG_CORRUPTED) != 0))
        return {};
    Picture picture{static_cast<const uint8_t *>(data.data) + data.chunk->offset, int(format.size.width),
                    int(format.size.height), data.chunk->stride};
    if (picture.stride == 0)
        picture.stride = ptrdiff_t(picture.width) * 4;
    const bool isWhole =
        picture.stride >= ptrdiff_t(picture.width) * 4 &&
        uint64_t(data.chunk->offset) + uint64_t(picture.stride) * uint64_t(picture.height) <= uint64_t(data.maxsize);
    if (!isWhole)
        return {};
    const auto *crop =
        static_cast<spa_meta_region *>(spa_buffer_find_meta_data(buffer, SPA_META_VideoCrop, sizeof(spa_meta_region)));
    if (crop && spa_meta_region_is_valid(crop)) {
        const spa_region &region = crop->region;
        if (region.position.x < 0 || region.position.y < 0 ||
            uint64_t(region.position.x) + region.size.width > format.size.width ||
            uint64_t(region.position.y) + region.size.height > format.size.height)
            return {};
        picture.pixels += region.position.y * picture.stride + ptrdiff_t(region.position.x) * 4;
        picture.width = int(region.size.width);
        picture.height = int(region.size.height);
    }
    return picture;
}

}  // namespace kestrel::frames
