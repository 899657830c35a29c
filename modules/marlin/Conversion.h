#pragma once

#include "jobs/JobRecord.h"
#include "media/TranscodePlan.h"

namespace kestrel {

class JKestrelSettingDispatcher;

inline constexpr QStringView marlinJobs = u"marlin";  ///< what conversions are stored under

/// What the settings ask of a conversion to `preset`, all else as it is sensible. A number of cores beyond `processors`
/// means all, as does one below 1.
TranscodePlan conversionPlan(const JKestrelSettingDispatcher &settings, const Preset &preset, int processors);

/// Where its result goes: the settings' folder for video, or for music, or beside the source.
QString conversionFolder(const JKestrelSettingDispatcher &settings, const TranscodePlan &plan);

/// The job that carries the plan out.
JobRecord conversionJob(const TranscodePlan &plan, const QString &folder);

}  // namespace kestrel
