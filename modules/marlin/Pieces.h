#pragma once

#include "media/TranscodePlan.h"

namespace kestrel {

/// "1:02:03.5": no more places than it needs.
QString timeText(double seconds);
/// What a user writes for a time: "63.5", "1:03.5", "0:01:03,5". Nothing where it is none.
std::optional<double> secondsOfTime(const QString &text);

/// Pieces as a film can have them: within it, none of them empty, in their order.
QList<TranscodePlan::Piece> soundPieces(const QList<TranscodePlan::Piece> &pieces, double duration);
/// What is left of the film without these. Empty where that is all of it, or nothing.
QList<TranscodePlan::Piece> otherPieces(QList<TranscodePlan::Piece> pieces, double duration);

}  // namespace kestrel
