#pragma once

#include "DownloadPlan.h"
#include "EngineFailure.h"

#include "jobs/ToolProcess.h"

#include <functional>
#include <optional>

namespace kestrel {

/// The download engine and what it runs with.
struct EngineTools {
    QString engine;            ///< absolute path of yt-dlp
    QString transcoderFolder;  ///< that ffmpeg and ffprobe stand in
    QString home;              ///< a folder of Kestrel's that stands for the user's home
    QString python = {};       ///< whose sitecustomize.py the engine's Python begins with; null for none
    /// What came of them: how the engine failed, nothing where it has worked. May name another one to try.
    std::function<std::optional<QString>(const EngineTools &, std::optional<EngineFailure::Kind> failure)> tried = {};
    QString failed = {};  ///< the engine before this one; null for none
};

/// A proxy through which nothing gets anywhere.
inline constexpr QStringView deadProxy = u"http://127.0.0.1:9";

/// After a failure: whether there is another engine to try, which is in `tools` then.
bool takeOtherEngine(EngineTools &tools, EngineFailure::Kind failure);

/// Of an answer; longer ones are none.
inline constexpr qint64 maximumAnswerBytes = 32 * 1024 * 1024;
/// What the engine's data is called in its folder, without the ending.
inline constexpr QStringView downloadedName = u"media";

/// What is at the plan's address, as one JSON document on standard output. Nothing is downloaded.
ToolCommand analysisCommand(const DownloadPlan &plan, const EngineTools &tools);

/// Downloads into `folder`, on from what is there. `answer` is the path of what the analysis found; null where the
/// address is to be asked again. Progress comes as lines for EngineProgress.
ToolCommand downloadCommand(const DownloadPlan &plan, const EngineTools &tools, const QString &folder,
                            const QString &answer);

/// Tells its version on standard output.
ToolCommand versionCommand(const EngineTools &tools);

/// Begins each line of progress.
inline constexpr char progressMark[] = "kestrel-progress ";

}  // namespace kestrel
