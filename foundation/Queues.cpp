#include "Queues.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

#ifdef __SANITIZE_THREAD__
#include <sanitizer/tsan_interface.h>
#endif

namespace kestrel::foundation::queue {

namespace {

constexpr int endCheckIntervalMs = 20;
constexpr int maximumThreads = 16;  ///< most of the jobs wait, for the network or another program

/// `job`, with the hand-over between the threads told to the thread sanitizer, which does not see into Qt's queues.
Job announced(Job job)
{
#ifdef __SANITIZE_THREAD__
    auto handedOver = std::make_shared<Job>(std::move(job));
    __tsan_release(handedOver.get());
    return [handedOver] {
        __tsan_acquire(handedOver.get());
        (*handedOver)();
    };
#else
    return job;
#endif
}

/// Not Qt's global pool: painting takes its threads from that, and would wait for jobs that wait for the network.
QThreadPool &backgroundThreads()
{
    static QThreadPool pool;
    [[maybe_unused]] static const bool isSetUp = [] {
        pool.setMaxThreadCount(maximumThreads);
        return true;
    }();
    return pool;
}

}  // namespace

void asyncMain(Job job)
{
    if (QCoreApplication *application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, announced(std::move(job)), Qt::QueuedConnection);
}

void afterMain(std::chrono::milliseconds delay, Job job)
{
    // A timer belongs to the thread that starts it, hence the hop.
    asyncMain([delay, job = std::move(job)]() mutable {
        // A coarse timer, the default from two seconds on, may come early.
        QTimer::singleShot(delay, Qt::PreciseTimer, QCoreApplication::instance(), std::move(job));
    });
}

bool syncMain(const Job &job)
{
    const QCoreApplication *application = QCoreApplication::instance();
    if (application && QThread::currentThread() == application->thread()) {
        job();
        return true;
    }
    // Whoever claims the call decides: the main thread to run it, or this one to give it up, because the application's
    // end waits for this thread before it drops what is queued.
    struct Call {
        std::atomic<bool> isClaimed = false;
        QSemaphore done;
    };
    const auto call = std::make_shared<Call>();
    asyncMain([call, &job] {
        if (call->isClaimed.exchange(true))
            return;
        job();
        call->done.release();
    });
    while (!call->done.tryAcquire(1, endCheckIntervalMs)) {
        if (!QCoreApplication::instance() && !call->isClaimed.exchange(true))
            return false;
    }
    return true;
}

void asyncGlobal(Job job)
{
    backgroundThreads().start(announced(std::move(job)));
}

void asyncDetached(Job job)
{
    try {
        std::thread(std::move(job)).detach();
    } catch (const std::system_error &) {
        // No thread is to be had: the look is not made.
    }
}

void finishGlobal()
{
    while (!backgroundThreads().waitForDone(endCheckIntervalMs))
        QCoreApplication::sendPostedEvents();
}

}  // namespace kestrel::foundation::queue
