#include "Processes.h"

#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>

namespace kestrel::foundation {

bool waitForProcessEnd(qint64 processIdentifier)
{
    // By number: C libraries older than the kernel call have no function for it.
    const int process = int(syscall(SYS_pidfd_open, pid_t(processIdentifier), 0));
    if (process < 0)
        return errno == ESRCH;
    pollfd ended = {process, POLLIN, 0};
    int result = 0;
    do {
        result = poll(&ended, 1, -1);
    } while (result < 0 && errno == EINTR);
    close(process);
    return result == 1;
}

std::function<void()> endWithParent()
{
    return [parent = getpid()] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent)  // it ended in between
            _exit(1);
    };
}

}  // namespace kestrel::foundation
