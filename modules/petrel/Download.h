#pragma once

#include "DownloadJob.h"
#include "DownloadPlan.h"
#include "EngineStore.h"

#include "jobs/JobRecord.h"

namespace kestrel {

class JKestrelSettingDispatcher;

inline constexpr QStringView petrelJobs = u"petrel";  ///< what downloads are stored under

/// What the settings ask of a download from `address`.
DownloadPlan downloadPlan(const JKestrelSettingDispatcher &settings, const QString &address);
/// Where it goes: the settings' folder for video, or for music.
QString downloadFolder(const JKestrelSettingDispatcher &settings, const DownloadPlan &plan);
/// With its scheme ("http" where none is given), and the port where `port` is one; null where it makes no sense.
QString proxyAddress(QString address, const QString &port = {});
/// The settings' proxy in the same way; null where none is set, a dead one where it is none that can be used.
QString downloadProxy(const JKestrelSettingDispatcher &settings);
/// How many at once: a lane has no "unlimited".
int downloadsAtOnce(const JKestrelSettingDispatcher &settings);

/// Below the user's data, where the module keeps what is its own.
QString downloadDataFolder();
EngineStore engineStore();
EngineTools engineTools(const JKestrelSettingDispatcher &settings);
DownloadTools downloadTools(const JKestrelSettingDispatcher &settings, int processors);

/// The jobs for what was found: one, or one for each chosen entry (all where `items` is empty) of a list.
QList<JobRecord> downloadJobs(const DownloadPlan &plan, const EngineAnswer &answer, const QString &folder,
                              const QList<int> &items = {});
/// A job whose address has not been looked at.
JobRecord downloadJob(const DownloadPlan &plan, const QString &folder);

}  // namespace kestrel
