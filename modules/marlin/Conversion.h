#pragma once

#include "jobs/JobRecord.h"
#include "media/MediaInformation.h"
#include "media/TranscodeJob.h"
#include "media/TranscodePlan.h"

namespace kestrel {

class JKestrelSettingDispatcher;

inline constexpr QStringView marlinJobs = u"marlin";  ///< what conversions are stored under

/// What the settings ask of a conversion to `preset`, all else as it is sensible. A number of cores beyond `processors`
/// means all, as does one below 1.
TranscodePlan conversionPlan(const JKestrelSettingDispatcher &settings, const Preset &preset, int processors);

/// Where its result goes: the settings' folder for video, or for music, or beside the source.
QString conversionFolder(const JKestrelSettingDispatcher &settings, const TranscodePlan &plan);

/// The tools that carry conversions out, at the settings' paths.
TranscodeTools transcodeTools(const JKestrelSettingDispatcher &settings, int processors);

/// The job that carries the plan out.
JobRecord conversionJob(const TranscodePlan &plan, const QString &folder);
/// Puts another plan into a job and leaves what is known of its source.
void setPlan(JobRecord &record, const TranscodePlan &plan);

/// What a row says of its source; kept with the job, so that it is there at the next start.
struct SourceSummary {
    QString text;  ///< "MPEG-4 · H.264 · AAC"
    std::optional<double> seconds;
};
void setSourceSummary(JobRecord &record, const MediaInformation &information);
SourceSummary sourceSummary(const JobRecord &record);

}  // namespace kestrel
