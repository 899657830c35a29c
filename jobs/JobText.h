#pragma once

#include "JobRecord.h"

namespace kestrel {

/// What a row says of its job's state, localised: "41 %", "Waiting for space on the disk: 2 GB needed", "Done".
QString jobStateText(const JobRecord &record);

/// All that is known of the state, a line each: the time that is left, notes, problems, what was left out, outputs.
QString jobStateHoverText(const JobRecord &record);

/// "1.2 GB", localised.
QString bytesText(qint64 bytes);

}  // namespace kestrel
