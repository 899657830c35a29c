#pragma once

#include "FilterGraph.h"
#include "SubtitleInputs.h"
#include "TrackPlan.h"

namespace kestrel {

/// What the last runs read, and the runs and files that make some of it before.
struct CommandInputs {
    QStringList arguments;           ///< "-i …"
    QStringList firstPassArguments;  ///< without what only the last run needs
    GraphInputs graph;
    SubtitleInputs subtitles;
    QString coverPath;       ///< of the cover to be attached; null for none
    int coverInput = -1;     ///< that has the cover as a tag; -1 for none
    int chapterInput = 0;    ///< -1 for none
    qsizetype chapters = 0;  ///< in the result
    QList<TranscodeRun> runs;
    QHash<QString, QByteArray> files;
};

/// `tracks` are told which of their subtitles are made before.
CommandInputs commandInputs(const TranscodePlan &plan, const QList<MediaInformation> &sources, TrackPlan &tracks,
                            const QList<SourcePiece> &pieces, const TranscodePaths &paths);

QStringList threadArguments(const TranscodePlan &plan);

}  // namespace kestrel
