#include "Cropping.h"

namespace kestrel {

QRectF cropOf(const QRect &part, const MediaTrack &video)
{
    constexpr int least = 8;  // a few lines at the edge are no bars
    const QRect whole(0, 0, video.width, video.height), picture = part.intersected(whole);
    if (picture.isEmpty() || (whole.width() - picture.width() < least && whole.height() - picture.height() < least))
        return {};
    const double width = video.width, height = video.height;
    const QRectF coded(picture.x() / width, picture.y() / height, picture.width() / width, picture.height() / height);
    switch (video.rotation) {
        case 90:
            return {1 - coded.bottom(), coded.x(), coded.height(), coded.width()};
        case 180:
            return {1 - coded.right(), 1 - coded.bottom(), coded.width(), coded.height()};
        case 270:
            return {coded.y(), 1 - coded.right(), coded.height(), coded.width()};
        default:
            return coded;
    }
}

}  // namespace kestrel
