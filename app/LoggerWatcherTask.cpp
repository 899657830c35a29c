#include "LoggerWatcherTask.h"

#include "foundation/Processes.h"
#include "tarnwell/Log.h"

#include <QEventLoop>
#include <QMutexLocker>
#include <QProcess>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

void LoggerWatcherTask::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QEventLoop untilExit;
    QObject::connect(&process, &QProcess::finished, &untilExit, &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &untilExit, [&](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        tarnwell::DNFootLog(u"The log viewer could not be started: %1"_s, process.errorString());
        untilExit.quit();
    });
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setChildProcessModifier(foundation::endWithParent());
    bool isWanted = false;
    {
        const QMutexLocker locker(&m_mutex);
        isWanted = !m_isTerminated;
        m_process = &process;
    }
    if (isWanted)
        process.start(program, arguments);  // one that is terminated from here on ends once the loop runs
    if (process.state() != QProcess::NotRunning)
        untilExit.exec();
    const QMutexLocker locker(&m_mutex);
    m_process = nullptr;
    m_hasEnded = true;
}

void LoggerWatcherTask::raise()
{
    const QMutexLocker locker(&m_mutex);
    if (m_process)
        QMetaObject::invokeMethod(
            m_process, [process = m_process] { process->write("raise\n"); }, Qt::QueuedConnection);
}

void LoggerWatcherTask::terminate()
{
    const QMutexLocker locker(&m_mutex);
    m_isTerminated = true;
    if (!m_process)
        return;
    QMetaObject::invokeMethod(
        m_process,
        [process = m_process] {
            process->terminate();
            QTimer::singleShot(1s, process, &QProcess::kill);
        },
        Qt::QueuedConnection);
}

}  // namespace kestrel
