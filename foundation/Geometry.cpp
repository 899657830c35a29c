#include "Geometry.h"

namespace kestrel::foundation {

QRect toTopDown(const Rect &rect, double height)
{
    return {qRound(rect.origin.x), qRound(height - rect.origin.y - rect.size.height), qRound(rect.size.width),
            qRound(rect.size.height)};
}

Rect toBottomUp(const QRect &rect, double height)
{
    return {double(rect.x()), height - rect.y() - rect.height(), double(rect.width()), double(rect.height())};
}

}  // namespace kestrel::foundation
