#include "LoggerWatcherTask.h"

#include "jobs/ToolProcess.h"

#include <QEventLoop>
#include <QMutexLocker>

#include <cstdio>

using namespace std::chrono_literals;

namespace kestrel {

void LoggerWatcherTask::run(const QString &program, const QStringList &arguments)
{
    ToolProcess viewer(
        {.program = program, .arguments = arguments, .politeEnd = ToolCommand::PoliteEnd::Terminate, .patience = 1s});
    QEventLoop untilExit;
    QObject::connect(&viewer, &ToolProcess::ended, &untilExit, &QEventLoop::quit);
    // Not to the log: it would grow by what the viewer says of its growing.
    QObject::connect(&viewer, &ToolProcess::errorLine, &viewer,
                     [](const QByteArray &line) { std::fprintf(stderr, "%s\n", line.constData()); });
    bool isWanted = false;
    {
        const QMutexLocker locker(&m_mutex);
        isWanted = !m_isTerminated;
        m_viewer = &viewer;
    }
    if (isWanted) {
        viewer.start();  // one that is terminated from here on ends once the loop runs
        untilExit.exec();
    }
    const QMutexLocker locker(&m_mutex);
    m_viewer = nullptr;
    m_hasEnded = true;
}

void LoggerWatcherTask::terminate()
{
    const QMutexLocker locker(&m_mutex);
    m_isTerminated = true;
    if (m_viewer)
        QMetaObject::invokeMethod(m_viewer, &ToolProcess::stop, Qt::QueuedConnection);
}

}  // namespace kestrel
