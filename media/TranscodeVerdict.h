#pragma once

#include "OutputCheck.h"
#include "ToolMessages.h"

#include "jobs/JobRecord.h"
#include "jobs/ToolProcess.h"

namespace kestrel {

/// All that is known of a conversion when its tool has ended and its output was looked at.
struct TranscodeFacts {
    ToolEnding ending;      ///< of the last run of the tool
    ToolMessages messages;  ///< of all runs
    OutputExpectation expected;
    bool copiesTracks = false;  ///< packets went over undecoded, with their faults
    /// Nothing where the output could not be read back, or where the tool failed before.
    std::optional<OutputFindings> findings;
    int readingFaults = 0;  ///< of the output, as it was read back and decoded
};

/// How the conversion ended, without the name of the output. Done only where nothing speaks against it. What was saved
/// from a damaged source is kept as DoneWithProblems; an output that is itself damaged or not what was wanted is
/// Failed.
JobOutcome transcodeVerdict(const TranscodeFacts &facts);

}  // namespace kestrel
