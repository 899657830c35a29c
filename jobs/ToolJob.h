#pragma once

#include "Job.h"
#include "ToolProcess.h"

#include <functional>

namespace kestrel {

/// A job that is a chain of tools. The subclass starts one after another with `run` and ends with `finish`; that
/// cancelling, stopping and pausing reach the tool of the moment, and that nothing of the chain goes on after a cancel,
/// is done here.
class ToolJob : public Job {
    Q_OBJECT
public:
    explicit ToolJob(QObject *parent = nullptr);
    ~ToolJob() override;

    void stop() override;
    void cancel() override;
    bool canPause() const override { return true; }
    void setPaused(bool paused) override;

protected:
    using Continuation = std::function<void(const ToolEnding &ending)>;

    /// Starts the tool, while paused as soon as that ends; `then` is called when it has ended, unless the job was
    /// cancelled. Connect to the process for its lines; it lives until `then` returns. One at a time.
    ToolProcess &run(const ToolCommand &command, Continuation then);
    bool isStopping() const { return m_isStopping; }
    bool isPaused() const { return m_isPaused; }
    /// Nothing goes on any more: for what comes from the background.
    bool isOver() const { return m_isOver; }
    /// For the destructors of those who own what the tool writes: ends it before that is removed.
    void endTool();
    /// `finished` follows, later than this returns.
    void finish(const JobOutcome &outcome);
    /// Removes what was written; called on a cancel, before `finished`.
    virtual void discard() = 0;

private:
    void toolEnded(const ToolEnding &ending, const Continuation &then);
    void tellLater(const JobOutcome &outcome);

    std::unique_ptr<ToolProcess> m_tool;
    bool m_isStopping = false;
    bool m_isCancelled = false;
    bool m_isOver = false;
    bool m_isPaused = false;
    bool m_isHeld = false;  ///< the tool came while paused and was not started
};

}  // namespace kestrel
