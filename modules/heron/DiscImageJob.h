#pragma once

#include "WholeDiscJob.h"

#include <QLockFile>

namespace kestrel {

/// Copies a disc sector for sector into an image. One that is broken off, by the end of the program or because the disc
/// gave out, stays as a hidden file beside its target and is gone on with when the same disc is copied there again.
class DiscImageJob final : public WholeDiscJob {
    Q_OBJECT
public:
    using WholeDiscJob::WholeDiscJob;
    ~DiscImageJob() override;

    void cancel() override;

protected:
    void carryOut() override;
    void discard() override;
    void copyIsGood() override;
    void placed(const QString &path) override;

private:
    void copy();
    void copied(const ToolEnding &ending);
    void removeCopy();

    QString m_copy;  ///< of a name that the next run finds; null before there is one
    std::unique_ptr<QLockFile> m_lock;
    qint64 m_badSectors = 0;
    bool m_staysForLater = false;
    bool m_hasBegunAnew = false;
};

/// The hidden file that a run of the job left, or may have left; null for a job that leaves none.
QString brokenOffImage(const JobRecord &record);
/// What it takes on its disk already.
qint64 brokenOffBytes(const JobRecord &record);
/// Unless somebody is at it.
void removeBrokenOffImage(const QString &path);

}  // namespace kestrel
