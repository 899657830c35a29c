#pragma once

#include <QImage>

namespace kestrel {

/// The first frame of a PNG, JPEG, GIF or BMP from outside, turned as its Exif orientation says, and scaled down to
/// what a promotion may need on a screen of double density. Null where it is none of these, is damaged, has more than
/// 16,384 pixels in a direction or 16 M in all, or takes longer to read than a picture made to be seen does: whatever
/// the bytes are, this returns in a fraction of a second. Any thread.
QImage promotionPicture(const QByteArray &bytes);

}  // namespace kestrel
