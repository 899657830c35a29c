#pragma once

#include "jobs/JobRecord.h"
#include "media/MediaInformation.h"
#include "media/TranscodeJob.h"
#include "media/TranscodePlan.h"

namespace kestrel {

class JKestrelSettingDispatcher;
class JobQueue;

inline constexpr QStringView marlinJobs = u"marlin";  ///< what conversions are stored under

/// What the settings ask of a conversion to `preset`, all else as it is sensible. A number of cores beyond `processors`
/// means all, as does one below 1.
TranscodePlan conversionPlan(const JKestrelSettingDispatcher &settings, const Preset &preset, int processors);

/// The settings' switches in a plan, and a plan's in the settings: those that a user sets for all that comes.
void readSwitches(const JKestrelSettingDispatcher &settings, int processors, TranscodePlan &plan);
void writeSwitches(JKestrelSettingDispatcher &settings, int processors, const TranscodePlan &plan);

/// How many conversions, and how many of sound alone, run at once: films take four cores each, songs two. Where the
/// user keeps cores free (`threads` of the plan is not 0), one of each.
void setLanes(JobQueue &queue, int threads, int processors);

/// Where its result goes: the settings' folder for video, or for music, or beside the source.
QString conversionFolder(const JKestrelSettingDispatcher &settings, const TranscodePlan &plan);

/// The tools that carry conversions out, at the settings' paths.
TranscodeTools transcodeTools(const JKestrelSettingDispatcher &settings, int processors);

/// The job that carries the plan out.
JobRecord conversionJob(const TranscodePlan &plan, const QString &folder);
/// Puts another plan into a job and leaves what is known of its source, and its folder.
void setPlan(JobRecord &record, const TranscodePlan &plan);

/// The folder that was chosen for this job alone; null for none.
QString ownFolder(const JobRecord &record);
void setOwnFolder(JobRecord &record, const QString &folder);

/// What a row says of its source; kept with the job, so that it is there at the next start.
struct SourceSummary {
    QString text;  ///< "MPEG-4 · H.264 · AAC"
    std::optional<double> seconds;
};
void setSourceSummary(JobRecord &record, const MediaInformation &information);
SourceSummary sourceSummary(const JobRecord &record);

}  // namespace kestrel
