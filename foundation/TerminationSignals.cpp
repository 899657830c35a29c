#include "TerminationSignals.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <iterator>

namespace kestrel::foundation {

namespace {

constexpr int terminationSignals[] = {SIGTERM, SIGINT, SIGHUP};
int terminationPipe[2] = {-1, -1};
struct sigaction formerActions[std::size(terminationSignals)];

void writeToPipe(int number)
{
    const int savedError = errno;
    const char byte = char(number);
    [[maybe_unused]] const auto written = write(terminationPipe[1], &byte, 1);
    errno = savedError;
}

/// A signal that this process was started to ignore (nohup) stays ignored.
void setHandlers()
{
    struct sigaction action = {};
    action.sa_handler = writeToPipe;
    action.sa_flags = SA_RESTART;
    for (size_t i = 0; i < std::size(terminationSignals); ++i) {
        sigaction(terminationSignals[i], nullptr, &formerActions[i]);
        if (formerActions[i].sa_handler != SIG_IGN)
            sigaction(terminationSignals[i], &action, nullptr);
    }
}

}  // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    if (pipe(terminationPipe) != 0)
        return;
    for (const int end : terminationPipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    m_notifier = std::make_unique<QSocketNotifier>(terminationPipe[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        char number = 0;
        while (read(terminationPipe[0], &number, 1) == 1)
            continue;
        emit received();
    });
    setHandlers();
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    for (size_t i = 0; i < std::size(terminationSignals); ++i)
        sigaction(terminationSignals[i], &formerActions[i], nullptr);
    m_notifier.reset();
    close(terminationPipe[0]);
    close(terminationPipe[1]);
}

}  // namespace kestrel::foundation
