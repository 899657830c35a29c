#pragma once

#include "DiscJob.h"

namespace kestrel {

/// A job whose output is a disc again: it is read as one, and pictures of its film are decoded, before it counts as
/// made.
class WholeDiscJob : public DiscJob {
    Q_OBJECT
public:
    using DiscJob::DiscJob;

protected:
    /// Looks at the copy; `wanted` is what it must hold. Then `copyIsGood`, or the job has failed.
    void checkCopy(const QString &copy, const disc::DiscContents &wanted);
    virtual void copyIsGood() = 0;

private:
    void lookAtPictures(const QString &copy);
};

}  // namespace kestrel
