#pragma once

#include <QRgb>
#include <QStringView>

#include <optional>

namespace kestrel::foundation {

/// What an element's style attribute says of what is understood: colour, weight, style, size, decoration, alignment.
/// What it does not say, or says in a way that makes no sense, is unset; of several declarations the last counts.
struct HtmlStyle {
    std::optional<QRgb> color;
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> underline;
    std::optional<bool> strikeOut;
    std::optional<bool> centered;
    int pixelSize = 0;  ///< points; 0 where unset
};

/// `surroundingSize` in points is what relative sizes refer to.
HtmlStyle htmlStyle(QStringView attribute, int surroundingSize);

/// As close to `points` as a text from outside may be.
int htmlBoundedPoints(double points);

}  // namespace kestrel::foundation
