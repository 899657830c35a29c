#include "ToolGuardian.h"

#include "foundation/Bundle.h"
#include "tarnwell/Log.h"

#include <QFile>
#include <QMutexLocker>

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <unistd.h>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// Never waits and never raises a signal.
bool tell(int channel, char sign, pid_t group)
{
    char message[24];
    message[0] = sign;
    const char *end = std::to_chars(message + 1, message + sizeof message, group).ptr;
    return ::send(channel, message, size_t(end - message), MSG_NOSIGNAL | MSG_DONTWAIT) == end - message;
}

/// Starts `program` with `input` as its standard input, in a session of its own and with signals as they are by
/// default. 0 or the error.
int spawn(const QByteArray &program, int input)
{
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
    char *arguments[] = {const_cast<char *>(program.constData()), nullptr};
    pid_t process = 0;
    const int error = posix_spawn(&process, program.constData(), &files, &attributes, arguments, environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return error;
}

}  // namespace

ToolGuardian &ToolGuardian::main()
{
    // Never taken down: its end of the socket goes with the process.
    static auto &guardian = *new ToolGuardian;  // NOLINT(cppcoreguidelines-owning-memory)
    return guardian;
}

void ToolGuardian::setProgram(const QString &path)
{
    const QMutexLocker locker(&m_mutex);
    m_program = path;
    m_isMissing = false;
}

int ToolGuardian::channel()
{
    const QMutexLocker locker(&m_mutex);
    return start() ? m_channel : -1;
}

void ToolGuardian::announce(int channel, pid_t group)
{
    if (channel >= 0)
        tell(channel, '+', group);
}

void ToolGuardian::add(pid_t group)
{
    const QMutexLocker locker(&m_mutex);
    m_groups.insert(group);
    send('+', group);
}

void ToolGuardian::remove(pid_t group)
{
    const QMutexLocker locker(&m_mutex);
    m_groups.erase(group);
    send('-', group);
}

bool ToolGuardian::start()
{
    if (m_channel >= 0 || m_isMissing)
        return m_channel >= 0;
    if (m_program.isEmpty())
        m_program = foundation::Bundle::main().contentsPath(u"Helpers/toolGuardian"_s);
    int ends[2] = {-1, -1};
    int error = socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) == 0 ? 0 : errno;
    if (error == 0) {
        error = spawn(QFile::encodeName(m_program), ends[1]);
        close(ends[1]);
    }
    if (error != 0) {
        tarnwell::DNFootLog(u"Tools run without their guardian, which could not be started: %1"_s,
                            QString::fromLocal8Bit(std::strerror(error)));
        if (ends[0] >= 0)
            close(ends[0]);
        m_isMissing = true;
        return false;
    }
    m_channel = ends[0];
    return true;
}

/// One that does not listen for a while is left alone: closing its socket would have it kill everything.
bool ToolGuardian::send(char sign, pid_t group)
{
    if (!start() || tell(m_channel, sign, group))
        return m_channel >= 0;
    if (errno == EAGAIN || errno == EWOULDBLOCK)
        return false;
    close(m_channel);
    m_channel = -1;
    tarnwell::DNFootLog(u"The guardian of the tools has ended; it is started again"_s);
    if (!start())
        return false;
    for (const pid_t living : m_groups)
        tell(m_channel, '+', living);
    return true;
}

}  // namespace kestrel
