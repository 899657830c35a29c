#pragma once

#include "Palette.h"

#include <QWidget>

namespace kestrel::tarnwell {

/// Gives a label its place in the hierarchy of texts: size in points, weight and one of the palette's colours.
inline void setTextStyle(QWidget *label, int size, QFont::Weight weight, QRgb color)
{
    QFont font = label->font();
    font.setPixelSize(size);
    font.setWeight(weight);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(label->foregroundRole(), QColor(color));
    label->setPalette(palette);
}

}  // namespace kestrel::tarnwell
