#pragma once

#include <QByteArray>

namespace kestrel::disc {

/// How well a picture stands for a film: 0 for one that is all one colour, little for a dark one or for letters on a
/// plain ground, much for one with many shades and details. `shades`: a byte of luminance for each point, row by row.
double worthOfPicture(const QByteArray &shades, int width);

}  // namespace kestrel::disc
