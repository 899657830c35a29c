#include "ToolRun.h"

#include <QJsonDocument>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>
#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <new>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

int s_linesOfHandler = -1;

// Only what a signal handler may call.
void endWith(DiscError error)
{
    const char *name = nameOf(error);
    char text[64] = "{\"error\":\"";
    std::strcat(std::strcat(text, name), "\"}\n");
    if (write(s_linesOfHandler, text, std::strlen(text)) < 0)
        _exit(static_cast<int>(DiscError::Write));
    _exit(static_cast<int>(error));
}

void onSignal(int signal)
{
    const bool isLimit = signal == SIGALRM || signal == SIGXCPU || signal == SIGPROF;
    endWith(isLimit ? DiscError::TooSlow : DiscError::Damaged);
}

void onNoMemory()
{
    endWith(DiscError::NoMemory);
}

int keptDescriptor(int descriptor)
{
    return fcntl(descriptor, F_DUPFD_CLOEXEC, 3);
}

}  // namespace

ToolRun::ToolRun(Output output)
{
    // A stream that was closed at the start must not become the next file that is opened.
    for (int descriptor = 0; descriptor <= 2; ++descriptor)
        if (fcntl(descriptor, F_GETFD) < 0 && open("/dev/null", O_RDWR) < 0)
            std::abort();
    if (output == Output::Lines) {
        m_lines = keptDescriptor(STDOUT_FILENO);
        dup2(STDERR_FILENO, STDOUT_FILENO);
    } else {
        m_film = keptDescriptor(STDOUT_FILENO);
        m_lines = keptDescriptor(STDERR_FILENO);
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
    }
    s_linesOfHandler = m_lines;
    std::set_new_handler(onNoMemory);
    static char stack[64 * 1024];
    const stack_t own{.ss_sp = stack, .ss_flags = 0, .ss_size = sizeof stack};
    sigaltstack(&own, nullptr);
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_ONSTACK;
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM, SIGXCPU, SIGPROF})
        sigaction(signal, &action, nullptr);
    signal(SIGPIPE, SIG_IGN);
}

void ToolRun::limit(const Limits &limits)
{
    if (limits.seconds) {
        const itimerval timer{.it_interval = {}, .it_value = {.tv_sec = limits.seconds, .tv_usec = 0}};
        setitimer(ITIMER_REAL, &timer, nullptr);
    }
    if (limits.processorSeconds) {
        const itimerval timer{.it_interval = {}, .it_value = {.tv_sec = limits.processorSeconds, .tv_usec = 0}};
        setitimer(ITIMER_PROF, &timer, nullptr);
    }
#ifndef __SANITIZE_ADDRESS__  // which maps terabytes for itself
    if (limits.memory) {
        rlimit memory = {};
        getrlimit(RLIMIT_AS, &memory);  // a tool that this one starts may take the whole again
        memory.rlim_cur = std::min(memory.rlim_max, static_cast<rlim_t>(limits.memory));
        setrlimit(RLIMIT_AS, &memory);
    }
#endif
}

void ToolRun::line(const QJsonObject &object)
{
    const QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    const char *at = text.constData();
    qsizetype left = text.size();
    while (left > 0) {
        const ssize_t written = write(m_lines, at, left);
        if (written < 0 && errno != EINTR)
            return;  // nobody listens any more
        if (written > 0) {
            at += written;
            left -= written;
        }
    }
}

int ToolRun::fail(DiscError error, const QString &detail)
{
    QJsonObject object{{u"error"_s, QString::fromLatin1(nameOf(error))}};
    if (!detail.isEmpty())
        object.insert(u"detail"_s, detail);
    line(object);
    return static_cast<int>(error);
}

}  // namespace kestrel::disc
