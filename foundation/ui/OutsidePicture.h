#pragma once

#include <QImage>

namespace kestrel::foundation {

/// The first frame of a PNG, JPEG, GIF or BMP from outside, turned as its Exif orientation says, and scaled down to
/// 1280 pixels in both directions. Null where it is none of these, is damaged, has more than
/// 16,384 pixels in a direction or 16 M in all, or takes longer to read than a picture made to be seen does: whatever
/// the bytes are, this returns in a fraction of a second. Any thread.
QImage pictureFromOutside(const QByteArray &bytes);

}  // namespace kestrel::foundation
