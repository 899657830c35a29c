#include "CliSession.h"

#include <QEventLoop>

#include <cstdio>

namespace kestrel::cli {

CliSession::CliSession(ModuleSettingKind kind)
    : m_settings(JKestrelSettingDispatcher::SettingDispatcherWithType(kind)),
      m_store(openJobStore(jobStorePath())),
      m_queue(m_store.get())
{
    if (!m_store)
        std::fprintf(stderr, "kestrel-cli: The list of jobs cannot be opened; what is done now is not kept in it.\n");
}

CliSession::~CliSession() = default;

bool CliSession::wait(QEventLoop &loop)
{
    QObject::connect(&m_signals, &foundation::TerminationSignals::received, &loop, [this, &loop] {
        m_isInterrupted = true;
        loop.quit();
    });
    if (!m_isInterrupted)
        loop.exec();
    return !m_isInterrupted;
}

void CliSession::keepJobs()
{
    if (m_store)
        m_store->flush(std::chrono::seconds(5));
}

}  // namespace kestrel::cli
