#pragma once

#include "JobRecord.h"

namespace kestrel {

/// An optional message to a recipe: a job may have to wait for more than its lane and its disk.
class JobObstacle {
public:
    virtual ~JobObstacle() = default;
    /// Why the job cannot run for now, beside those of its module that are active; none where it can. Asked again
    /// whenever something ends, and every ten seconds.
    virtual tarnwell::Sentence obstacle(const JobRecord &record, const QList<const JobRecord *> &active) const = 0;
};

}  // namespace kestrel
