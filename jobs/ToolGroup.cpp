#include "ToolGroup.h"

#include "ToolGuardian.h"
#include "ToolProcess.h"
#include "foundation/Processes.h"

#include <QPointer>
#include <QProcess>

#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <functional>
#include <utility>

using namespace std::chrono_literals;

namespace kestrel {

namespace {

constexpr auto deathPatience = 100ms;

/// What the child does before its program, where only what is safe after a fork may be done. Signals are as a shell
/// would have them: a tool that was started with SIGINT ignored could not be asked to end.
std::function<void()> beforeTool(int guardianChannel, int descriptor)
{
    return [guardianChannel, descriptor, endWithParent = foundation::endWithParent()] {
        setpgid(0, 0);
        if (descriptor >= 0)
            fcntl(descriptor, F_SETFD, 0);
        endWithParent();
        ToolGuardian::announce(guardianChannel, getpid());
        for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT})
            std::signal(number, SIG_DFL);
        std::signal(SIGXFSZ, SIG_IGN);  // a file too large is a failure to be told, not a crash
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
    };
}

/// Waits without taking the end from QProcess. A process in the midst of a read from a dying disk may not end in time.
void waitForDeath(pid_t process)
{
    const int handle = int(syscall(SYS_pidfd_open, process, 0));
    if (handle < 0)
        return;
    pollfd end = {handle, POLLIN, 0};
    poll(&end, 1, int(deathPatience.count()));
    close(handle);
}

}  // namespace

ToolGroup::ToolGroup(const ToolCommand &command)
    : m_process(std::make_unique<QProcess>()),
      m_descriptor(command.descriptor)
{
    QProcess *process = m_process.get();
    process->setProgram(command.program);
    process->setArguments(command.arguments);
    process->setProcessEnvironment(command.environment);
    process->setWorkingDirectory(command.workingFolder);
    process->setStandardInputFile(QProcess::nullDevice());
    connect(process, &QProcess::readyReadStandardOutput, this, &ToolGroup::readAll);
    connect(process, &QProcess::readyReadStandardError, this, &ToolGroup::readAll);
    connect(process, &QProcess::finished, this, &ToolGroup::leaderEnded);
    connect(process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        m_hasStarted = false;
        leaderEnded();
    });
}

ToolGroup::~ToolGroup()
{
    m_process->disconnect(this);
    if (m_process->state() != QProcess::NotRunning) {
        const pid_t leader = pid_t(m_process->processId());
        send(SIGKILL);
        if (m_group > 0)
            ToolGuardian::main().remove(pid_t(m_group));
        if (m_depth == 0)
            m_process->waitForFinished(int(deathPatience.count()));
        else
            waitForDeath(leader);
    }
    if (m_depth == 0 && m_process->state() == QProcess::NotRunning)
        return;
    // To delete a QProcess within its own signal crashes, and while its program runs it waits for that.
    QProcess *process = m_process.release();
    if (process->state() == QProcess::NotRunning)
        process->deleteLater();
    else
        connect(process, &QProcess::finished, process, &QObject::deleteLater);
}

void ToolGroup::feed(ToolGroup &reader)
{
    m_process->setStandardOutputProcess(reader.m_process.get());
}

void ToolGroup::start()
{
    m_process->setChildProcessModifier(beforeTool(ToolGuardian::main().channel(), m_descriptor));
    m_process->start();
    m_group = m_process->processId();
    if (m_group <= 0)
        return;
    // Here as well: whichever comes first, a signal to the group arrives.
    setpgid(pid_t(m_group), pid_t(m_group));
    ToolGuardian::main().add(pid_t(m_group));
}

void ToolGroup::send(int signal)
{
    if (m_group > 0)
        kill(pid_t(-m_group), signal);
}

bool ToolGroup::hasCrashed() const
{
    return m_hasStarted && m_process->exitStatus() == QProcess::CrashExit;
}

int ToolGroup::exitCode() const
{
    constexpr int signalBase = 128;
    return m_process->exitCode() + (hasCrashed() ? signalBase : 0);
}

QString ToolGroup::startFailure() const
{
    return m_process->program() + QLatin1StringView(": ") + m_process->errorString();
}

void ToolGroup::readAll()
{
    const QPointer<ToolGroup> alive(this);
    ++m_depth;
    if (const QByteArray piece = m_process->readAllStandardOutput(); !piece.isEmpty())
        emit outputRead(piece);
    if (!alive)
        return;
    if (const QByteArray piece = m_process->readAllStandardError(); !piece.isEmpty())
        emit errorRead(piece);
    if (alive)
        --m_depth;
}

void ToolGroup::leaderEnded()
{
    if (const auto group = pid_t(std::exchange(m_group, 0)); group > 0) {
        // The first process was waited for. While others of the group live, its number is not given to a process again:
        // where there is one of that number, the group has gone and the number is a stranger's.
        if (kill(group, 0) != 0 && errno == ESRCH)
            kill(-group, SIGKILL);
        ToolGuardian::main().remove(group);
    }
    const QPointer<ToolGroup> alive(this);
    readAll();
    if (!alive)
        return;
    ++m_depth;
    emit ended();
    if (alive)
        --m_depth;
}

}  // namespace kestrel
