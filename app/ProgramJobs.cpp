#include "ProgramJobs.h"

#include "jobs/JobQueue.h"
#include "jobs/JobStore.h"
#include "settings/JKestrelSetting.h"

namespace kestrel {

AfterRun::Wishes wishesOf(const JKestrelSetting &setting)
{
    return {.openFolder = setting.openFolderWhenDone(),
            .notify = setting.notifyWhenAvailable(),
            .shutDown = setting.shutdownWhenDone()};
}

struct ProgramJobs::Parts {
    Parts(std::unique_ptr<JobStore> opened, std::function<AfterRun::Wishes(const QString &module)> wishes)
        : store(std::move(opened)),
          queue(store.get()),
          afterRun(queue, std::move(wishes))
    {
        queue.load();
    }

    std::unique_ptr<JobStore> store;
    JobQueue queue;
    AfterRun afterRun;
};

ProgramJobs::ProgramJobs(std::function<std::unique_ptr<JobStore>()> openStore,
                         std::function<AfterRun::Wishes(const QString &module)> wishes)
    : m_openStore(std::move(openStore)),
      m_wishes(std::move(wishes))
{
}

ProgramJobs::~ProgramJobs() = default;

JobQueue &ProgramJobs::queue()
{
    if (!m_parts) {
        m_parts = std::make_unique<Parts>(m_openStore(), m_wishes);
        connect(&m_parts->afterRun, &AfterRun::shutdownIn, this, &ProgramJobs::shutdownIn);
        connect(&m_parts->afterRun, &AfterRun::showRequested, this, &ProgramJobs::showRequested);
    }
    return m_parts->queue;
}

bool ProgramJobs::hasWork() const
{
    return m_parts && m_parts->queue.hasWork();
}

void ProgramJobs::interrupt()
{
    if (m_parts)
        m_parts->queue.interruptAll();
}

void ProgramJobs::stopShutdown()
{
    if (m_parts)
        m_parts->afterRun.stopShutdown();
}

}  // namespace kestrel
