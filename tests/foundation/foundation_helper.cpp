// What the tests need another process for: to write at the same time, to be killed, to end. The first argument names
// the task.

#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QTextStream>
#include <QThread>

#include <atomic>
#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;
using kestrel::foundation::UserDefaults;
namespace queue = kestrel::foundation::queue;

namespace {

/// <path> <prefix> <count>: stores that many keys, each in a save of its own.
int store(const QStringList &arguments)
{
    UserDefaults defaults(arguments.at(2));
    for (int i = 0; i < arguments.at(4).toInt(); ++i) {
        defaults.setObject(i, arguments.at(3) + QString::number(i));
        if (!defaults.synchronize())
            return 1;
        QThread::msleep(2);  // the lock is not a fair one: without a pause the other process may never get it
    }
    return 0;
}

/// <path> <saves>: replaces one large value by another until it is killed, and says when it has done so that often.
int rewrite(const QStringList &arguments)
{
    UserDefaults defaults(arguments.at(2));
    for (int save = 1;; ++save) {
        defaults.setObject(QString(20'000, save % 2 ? u'o' : u'n'), u"large"_s);
        if (!defaults.synchronize())
            return 1;
        if (save == arguments.at(3).toInt())
            QTextStream(stdout) << "started" << Qt::endl;
    }
}

/// Changes the standard defaults without an application, or after the last turn of its event loop.
int change(std::unique_ptr<QCoreApplication> application)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    defaults.setObject(defaults.stringArrayForKey(u"AppleLanguages"_s), u"seen"_s);
    if (!application)
        return 0;
    application.reset();
    ::_exit(0);
}

/// Ends the application while a background job waits for the main thread.
int endWhileWaitedFor(std::unique_ptr<QCoreApplication> application)
{
    QSemaphore isStarted;
    std::atomic<bool> ran = true;
    queue::asyncGlobal([&] {
        isStarted.release();
        ran = queue::syncMain([] {});
    });
    isStarted.acquire();
    QThread::msleep(50);  // so that it is waiting by then
    application.reset();
    queue::finishGlobal();
    return ran ? 1 : 0;
}

}  // namespace

int main(int argc, char **argv)
{
    const QString task = QString::fromLocal8Bit(argv[1]);
    auto application = task == "change-early"_L1 ? nullptr : std::make_unique<QCoreApplication>(argc, argv);
    if (task.startsWith("change"_L1))
        return change(std::move(application));
    if (task == "end"_L1)
        return endWhileWaitedFor(std::move(application));
    const QStringList arguments = application->arguments();
    return task == "store"_L1 ? store(arguments) : rewrite(arguments);
}
