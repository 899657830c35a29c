#include "CueTimes.h"

#include "FilterText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

bool canFollow(const TranscodePlan &plan, bool isBitmap)
{
    if (plan.sources.size() > 1)
        return false;
    if (isBitmap)
        return plan.speedFactor == 1 && plan.pieces.size() <= 1;
    const auto isBehind = [](const TranscodePlan::Piece &piece, const TranscodePlan::Piece &next) {
        return next.start < piece.end;
    };
    return std::ranges::adjacent_find(plan.pieces, isBehind) == plan.pieces.end();
}

std::optional<CueTimes> cueTimes(const TranscodePlan &plan, const QList<SourcePiece> &pieces)
{
    constexpr double noEnd = 1e9;
    if (plan.pieces.isEmpty() && plan.speedFactor == 1)
        return {};
    CueTimes times{.kept = {}, .speed = plan.speedFactor};
    for (const SourcePiece &piece : pieces) {
        const double start = piece.start.value_or(0), end = piece.end.value_or(noEnd);
        const double from = pieces.size() == 1 ? start : 0;
        times.kept.append({start - from, end - from});
    }
    return times;
}

QString cueFilter(const CueTimes &times, bool isBitmap)
{
    if (isBitmap)
        return u"noise=drop='lt(pts,0)+gte(pts*tb,%1)'"_s.arg(numberText(times.kept.first().end));
    // A sum with one part for each stretch, of which a cue is in one at most: where it begins, or the first after that.
    QStringList isKept, start, length;
    double before = 0;
    QString previousEnd = u"-1e9"_s;
    for (const CueTimes::Stretch &stretch : times.kept) {
        const QString from = numberText(stretch.start), to = numberText(stretch.end);
        const QString isHere = u"gte(PTS*TB,%1)*lt(PTS*TB,%2)*gt((PTS+DURATION)*TB,%3)"_s.arg(previousEnd, to, from);
        isKept << isHere;
        start << isHere + u"*(%1+max(PTS*TB-%2,0))"_s.arg(numberText(before), from);
        length << isHere + u"*(min((PTS+DURATION)*TB,%1)-max(PTS*TB,%2))"_s.arg(to, from);
        before += stretch.end - stretch.start;
        previousEnd = to;
    }
    QString drop = isKept.join(u'+');
    drop.replace("PTS"_L1, "pts"_L1).replace("DURATION"_L1, "d"_L1).replace("TB"_L1, "tb"_L1);
    const QString speed = numberText(times.speed), pts = u"(%1)/%2/TB"_s.arg(start.join(u'+'), speed);
    return u"noise=drop='not(%1)',setts=pts='%2':dts='%2':duration='(%3)/%4/TB'"_s.arg(drop, pts, length.join(u'+'),
                                                                                       speed);
}

}  // namespace kestrel
