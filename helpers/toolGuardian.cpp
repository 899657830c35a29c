// toolGuardian: ends what Kestrel's tools leave behind where Kestrel itself is killed. Kestrel starts it with one end
// of a socket as standard input and says there which process groups live: "+1234", and "-1234" once a group has ended.
// When the other end goes, the groups that are left are killed.

#include "foundation/ProcessStart.h"

#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <map>

using kestrel::foundation::processStart;

namespace {

/// By the group's number: when its first process was started, 0 where that was not to be seen any more.
using Groups = std::map<pid_t, std::uint64_t>;

void take(const char *message, const char *end, Groups &groups)
{
    pid_t group = 0;
    if (end - message < 2 || std::from_chars(message + 1, end, group).ptr != end || group <= 1)
        return;
    if (*message == '+')
        groups.try_emplace(group, processStart(group));
    else if (*message == '-')
        groups.erase(group);
}

/// While a group has members its number is nobody else's. So a process of that number that was not started with the
/// group says that the group has gone and its number was given away.
void killWhatIsLeft(const Groups &groups)
{
    for (const auto &[group, start] : groups) {
        const std::uint64_t presentStart = processStart(group);
        if (presentStart == 0 || presentStart == start)
            kill(-group, SIGKILL);
    }
}

}  // namespace

int main()
{
    for (const int number : {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGTSTP, SIGTTIN, SIGTTOU, SIGUSR1, SIGUSR2})
        std::signal(number, SIG_IGN);
    setsid();
    if (chdir("/") != 0)  // no disk is kept from being unmounted
        std::perror("toolGuardian");
    syscall(SYS_close_range, 3U, ~0U, 0U);

    Groups groups;
    for (;;) {
        char message[32];
        const ssize_t length = recv(STDIN_FILENO, message, sizeof message, 0);
        if (length < 0 && errno == EINTR)
            continue;
        if (length < 0 && errno == ENOTSOCK) {
            std::fputs("toolGuardian is started by Kestrel.\n", stderr);
            return 2;
        }
        if (length <= 0)
            break;
        take(message, message + length, groups);
    }
    killWhatIsLeft(groups);
    return 0;
}
