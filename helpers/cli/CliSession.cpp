#include "CliSession.h"

namespace kestrel::cli {

CliSession::CliSession(ModuleSettingKind kind)
    : m_settings(JKestrelSettingDispatcher::SettingDispatcherWithType(kind)),
      m_store(openJobStore(jobStorePath())),
      m_queue(m_store.get())
{
    m_queue.load();
}

CliSession::~CliSession() = default;

}  // namespace kestrel::cli
