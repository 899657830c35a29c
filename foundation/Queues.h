#pragma once

#include <chrono>
#include <functional>

/// Work for another thread or for later. The main queue belongs to the thread that runs the application's event loop
/// and runs its jobs in the order in which they came; background jobs run on a pool and in no order.
namespace kestrel::foundation::queue {

using Job = std::function<void()>;

/// Runs `job` on the main thread in a later turn of its event loop. Jobs still queued when the application ends are
/// dropped.
void asyncMain(Job job);

/// As `asyncMain`, no sooner than `delay` from now.
void afterMain(std::chrono::milliseconds delay, Job job);

/// Runs `job` on the main thread and waits for it; at once when called there. False where the application ended before
/// it ran.
bool syncMain(const Job &job);

/// Runs `job` on a background thread. The process waits for running jobs at its end, so a job must be bounded in time,
/// and one that lasts as long as something else must be ended by whoever asked for it.
void asyncGlobal(Job job);

/// Runs `job` on a thread of its own, for what may not end, such as a look at a disk that does not answer: nobody waits
/// for it at the process's end, so it works with nothing but what it brings along, and hands nothing to these queues.
void asyncDetached(Job job);

/// Waits on the main thread until all background jobs have ended, and runs what they wait for there meanwhile. For the
/// application's end, after its event loop: jobs use what goes from then on.
void finishGlobal();

}  // namespace kestrel::foundation::queue
