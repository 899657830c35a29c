#include "TerminationSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace kestrel {

namespace {

constexpr int terminationSignals[] = {SIGTERM, SIGINT, SIGHUP};
int terminationPipe[2] = {-1, -1};

void setHandlers(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : terminationSignals)
        sigaction(number, &action, nullptr);
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
    setHandlers([](int number) {
        const char byte = char(number);
        [[maybe_unused]] const auto written = write(terminationPipe[1], &byte, 1);
    });
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    setHandlers(SIG_DFL);
    m_notifier.reset();
    close(terminationPipe[0]);
    close(terminationPipe[1]);
}

}  // namespace kestrel
