#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// The chapters of the result, where they differ from those of the source: cut, joined, slowed or hastened.
QList<MediaChapter> resultChapters(const TranscodePlan &plan, const QList<MediaInformation> &sources,
                                   const QList<SourcePiece> &pieces);

/// As ffmpeg reads them from a file; those without a name are numbered.
QByteArray chapterFile(const QList<MediaChapter> &chapters);

}  // namespace kestrel
