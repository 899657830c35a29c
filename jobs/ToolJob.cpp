#include "ToolJob.h"

#include <utility>

namespace kestrel {

ToolJob::ToolJob(QObject *parent) : Job(parent) {}

ToolJob::~ToolJob() = default;

ToolProcess &ToolJob::run(const ToolCommand &command, Continuation then)
{
    if (m_isOver)  // nothing goes on: one that never starts
        return *new ToolProcess(command, this);
    m_tool = std::make_unique<ToolProcess>(command);
    connect(m_tool.get(), &ToolProcess::ended, this,
            [this, then = std::move(then)](const ToolEnding &ending) { toolEnded(ending, then); });
    m_isHeld = m_isPaused;
    if (!m_isHeld)
        m_tool->start();
    return *m_tool;
}

void ToolJob::toolEnded(const ToolEnding &ending, const Continuation &then)
{
    // It stays until the continuation returns, which may run the next one; this is called by it, so it goes later.
    const auto goLater = [](ToolProcess *tool) { tool->deleteLater(); };
    const std::unique_ptr<ToolProcess, decltype(goLater)> tool(m_tool.release(), goLater);
    if (m_isCancelled) {
        discard();
        tellLater({.state = JobState::Cancelled});
    } else if (!m_isOver) {
        then(ending);
    }
}

void ToolJob::stop()
{
    if (m_isOver)
        return;
    m_isStopping = true;
    if (m_tool)
        m_tool->stop();  // before what follows would start one that was held
    setPaused(false);
}

void ToolJob::cancel()
{
    if (m_isOver)
        return;
    m_isOver = true;
    m_isCancelled = true;
    if (m_tool) {
        m_tool->cancel();
        if (std::exchange(m_isHeld, false))
            m_tool->start();  // which tells the end
        return;
    }
    discard();
    tellLater({.state = JobState::Cancelled});
}

void ToolJob::setPaused(bool paused)
{
    if (m_isPaused == paused || m_isOver || (paused && m_isStopping))
        return;
    m_isPaused = paused;
    if (!m_tool)
        return;
    if (std::exchange(m_isHeld, false))
        m_tool->start();
    else
        m_tool->setPaused(paused);
}

void ToolJob::endTool()
{
    m_isOver = true;
    m_tool.reset();
}

void ToolJob::finish(const JobOutcome &outcome)
{
    if (std::exchange(m_isOver, true))
        return;
    if (m_tool)
        m_tool->cancel();
    tellLater(outcome);
}

void ToolJob::tellLater(const JobOutcome &outcome)
{
    QMetaObject::invokeMethod(
        this, [this, outcome] { emit finished(outcome); }, Qt::QueuedConnection);
}

}  // namespace kestrel
