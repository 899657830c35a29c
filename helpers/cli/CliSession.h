#pragma once

#include "jobs/JobQueue.h"
#include "jobs/JobStore.h"
#include "settings/JKestrelSettingDispatcher.h"

#include <memory>

namespace kestrel::cli {

/// What a command that runs jobs works with: the user's settings and the store of all jobs, as in the window.
class CliSession {
public:
    explicit CliSession(ModuleSettingKind kind);
    ~CliSession();

    const JKestrelSettingDispatcher &settings() const { return *m_settings; }
    JobQueue &queue() { return m_queue; }

private:
    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    std::unique_ptr<JobStore> m_store;
    JobQueue m_queue;
};

}  // namespace kestrel::cli
