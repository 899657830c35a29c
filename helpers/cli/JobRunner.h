#pragma once

#include "Command.h"
#include "jobs/JobRecord.h"

namespace kestrel::cli {

class CliSession;

/// What SIGINT and SIGTERM mean: the end of the work, or, where the work lasts until it is ended, its success.
enum class SignalMeaning { Cancel, Stop };

/// Runs these jobs of the session's queue and reports them, until all have ended or a signal ends them: each has a
/// result then, also what only waited. Jobs that the queue is not given to run, because their source is unusable, are
/// reported as they are; `begun` are those that were started already. Needs an application object.
ExitStatus runJobs(CliSession &session, const QList<JobId> &ids, const Surroundings &surroundings,
                   SignalMeaning meaning = SignalMeaning::Cancel, const QList<JobId> &begun = {});

}  // namespace kestrel::cli
