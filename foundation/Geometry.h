#pragma once

#include <QRect>

namespace kestrel::foundation {

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point &) const = default;
};

struct Size {
    double width = 0;
    double height = 0;
    bool operator==(const Size &) const = default;
};

/// A rectangle in points with a bottom-up y axis: `origin` is its lower-left corner. Frames of windows are measured
/// from the lower-left corner of the primary screen, frames of views from the lower-left corner of the view that holds
/// them.
struct Rect {
    Point origin;
    Size size;

    constexpr Rect() = default;
    constexpr Rect(double x, double y, double width, double height) : origin{x, y}, size{width, height} {}
    bool operator==(const Rect &) const = default;

    Point center() const { return {origin.x + 0.5 * size.width, origin.y + 0.5 * size.height}; }
    /// Moves every edge inwards (outwards where negative) and keeps the centre.
    Rect inset(double dx, double dy) const
    {
        return {origin.x + dx, origin.y + dy, size.width - 2 * dx, size.height - 2 * dy};
    }
};

/// Conversion to and from Qt's top-down pixels (one point is one device-independent pixel) inside an area `height`
/// points high.
QRect toTopDown(const Rect &rect, double height);
Rect toBottomUp(const QRect &rect, double height);

}  // namespace kestrel::foundation
