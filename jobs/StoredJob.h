#pragma once

#include "JobDatabase.h"
#include "JobStore.h"

namespace kestrel {

/// A job as a row of the store, and back. Whoever waits or runs is held by its process, so that another one leaves it
/// alone.
JobRow storedJob(const JobRecord &record, double position);

struct LoadedJob {
    JobStore::Row row;
    bool isToBeStored = false;  ///< it is not what was stored any more
    qint64 holder = 0;          ///< the living process that has it running or waiting; 0 for none
};

/// The job as it is now: interrupted where the process that ran it has ended, or done where its output had just got its
/// name, Ready where it waited in such a one. Nothing for rows that are no job.
std::optional<LoadedJob> loadedJob(const JobRow &row);

/// False for a job that is done where a file that it made is not there any more. Asks the disk.
bool outputsAreThere(const JobRecord &record);
/// It is DoneWithProblems, `outputIsGone`, until they are there again: the disk may be back.
bool saysOutputsGone(const JobRecord &record);
void setOutputsGone(JobRecord &record);
void setOutputsThere(JobRecord &record);

}  // namespace kestrel
