// What the tests need another process for: to write at the same time, to be killed, to end. The first argument says
// what to do.

#include "Queues.h"
#include "UserDefaults.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThread>

#include <cstdio>
#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;
using kestrel::foundation::UserDefaults;
namespace queue = kestrel::foundation::queue;

namespace {

/// <path> <prefix> <count>: stores that many keys, each in a save of its own.
int storeKeys(const QStringList &arguments)
{
    UserDefaults defaults(arguments.at(0));
    bool isSaved = true;
    for (int i = 0; i < arguments.at(2).toInt(); ++i) {
        defaults.setObject(i, arguments.at(1) + QString::number(i));
        isSaved = defaults.synchronize() && isSaved;
    }
    return isSaved ? 0 : 1;
}

/// <path> <saves>: replaces one large value by another until it is killed, and says when it has done so that often.
int rewrite(const QStringList &arguments)
{
    UserDefaults defaults(arguments.at(0));
    for (int save = 1;; ++save) {
        defaults.setObject(QString(20'000, save % 2 ? u'o' : u'n'), u"large"_s);
        if (!defaults.synchronize())
            return 1;
        if (save == arguments.at(1).toInt()) {
            std::puts("started");
            std::fflush(stdout);
        }
    }
}

/// Changes the standard defaults without an application object and ends.
int changeAndEnd(const QStringList &)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    defaults.setObject(defaults.stringArrayForKey(u"AppleLanguages"_s), u"seen"_s);
    return 0;
}

/// Changes them before the application object is there, and ends without any clean-up.
int changeEarly(const QStringList &)
{
    UserDefaults::standardUserDefaults().setObject(true, u"early"_s);
    int count = 1;
    char *name = nullptr;
    QCoreApplication application(count, &name);
    queue::asyncMain([] { ::_exit(0); });
    return application.exec();
}

/// Changes them after the last turn of the event loop, and ends without static destructors.
int changeLate(const QStringList &)
{
    int count = 1;
    char *name = nullptr;
    auto application = std::make_unique<QCoreApplication>(count, &name);
    UserDefaults::standardUserDefaults().setObject(true, u"late"_s);
    application.reset();
    ::_exit(0);
}

/// Ends the application while a background job waits for the main thread.
int endWhileWaitedFor(const QStringList &)
{
    int count = 1;
    char *name = nullptr;
    QSemaphore isStarted;
    bool ran = true;
    {
        QCoreApplication application(count, &name);
        queue::asyncGlobal([&] {
            isStarted.release();
            ran = queue::syncMain([] {});
        });
        isStarted.acquire();
        QThread::msleep(50);  // so that it is waiting by then
    }
    return ran ? 1 : 0;
}

}  // namespace

int main(int argc, char **argv)
{
    const struct {
        QLatin1String name;
        int (*run)(const QStringList &);
    } tasks[] = {{"store-keys"_L1, storeKeys},        {"rewrite"_L1, rewrite},
                 {"change-and-end"_L1, changeAndEnd}, {"change-early"_L1, changeEarly},
                 {"change-late"_L1, changeLate},      {"end-while-waited-for"_L1, endWhileWaitedFor}};
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    for (const auto &[name, run] : tasks) {
        if (!arguments.isEmpty() && arguments.first() == name)
            return run(arguments.mid(1));
    }
    return 2;
}
