#include "CoverChoice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace kestrel::disc {

namespace {

constexpr int levels = 32;
constexpr double darkMean = 40;     // of 255
constexpr double plainShare = 0.5;  // of the points that have nearly the same shade
constexpr double penalty = 0.05;

}  // namespace

double worthOfPicture(const QByteArray &shades, int width)
{
    if (width <= 0 || shades.size() < width)
        return 0;
    const auto *points = reinterpret_cast<const uchar *>(shades.constData());
    std::array<double, levels> histogram = {};
    double sum = 0, steps = 0;
    for (qsizetype i = 0; i < shades.size(); ++i) {
        histogram[points[i] * levels / 256] += 1;
        sum += points[i];
        if (i % width)
            steps += std::min(48, std::abs(points[i] - points[i - 1]));
    }
    const double count = static_cast<double>(shades.size());
    double entropy = 0, plain = 0;
    for (int i = 0; i < levels; ++i) {
        const double share = histogram[i] / count;
        const double withNeighbour = (histogram[i] + (i + 1 < levels ? histogram[i + 1] : 0)) / count;
        entropy -= share > 0 ? share * std::log2(share) : 0;
        plain = std::max(plain, withNeighbour);
    }
    const double worth = entropy * (1 + steps / count / 16);
    const bool isDark = sum / count < darkMean;
    return worth * (isDark ? penalty : 1) * (plain > plainShare ? penalty : 1);
}

}  // namespace kestrel::disc
