#pragma once

#include "foundation/TerminationSignals.h"
#include "jobs/JobQueue.h"
#include "jobs/JobStore.h"
#include "settings/JKestrelSettingDispatcher.h"

#include <memory>

class QEventLoop;

namespace kestrel::cli {

/// What a command that runs jobs works with: the user's settings and the store of all jobs, as in the window, and
/// SIGINT, SIGTERM and SIGHUP, which wait for an event loop while it lives.
class CliSession {
public:
    explicit CliSession(ModuleSettingKind kind);
    ~CliSession();

    const JKestrelSettingDispatcher &settings() const { return *m_settings; }
    JobQueue &queue() { return m_queue; }
    const foundation::TerminationSignals &terminationSignals() const { return m_signals; }

    /// Runs the loop until something quits it. False where that was a signal; the command has to end then.
    bool wait(QEventLoop &loop);
    bool isInterrupted() const { return m_isInterrupted; }

    /// Waits until the jobs that were added are on the disk: what is told of one must outlive a kill.
    void keepJobs();

private:
    foundation::TerminationSignals m_signals;
    bool m_isInterrupted = false;
    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    std::unique_ptr<JobStore> m_store;
    JobQueue m_queue;
};

}  // namespace kestrel::cli
