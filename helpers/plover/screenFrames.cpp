// screenFrames --fd N --node ID [--rate R] [--size WxH] [--snapshot FILE]: what a PipeWire node shows, as a Matroska
// stream on standard output. N is an open connection to PipeWire, as the desktop's portal gives one.

#include "ScreenStream_linux.h"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace kestrel::frames;

namespace {

template <typename Number>
bool readAll(const char *text, const char *end, Number &number)
{
    const auto [rest, error] = std::from_chars(text, end, number);
    return error == std::errc() && rest == end;
}

bool readSize(const char *text, Size &size)
{
    const char *cross = std::strchr(text, 'x');
    Size read;
    if (!cross || !readAll(text, cross, read.width) || !readAll(cross + 1, text + std::strlen(text), read.height))
        return false;
    size = recordableSize(read.width, read.height);
    return size == read && size != Size();
}

bool readOption(const char *name, const char *value, ScreenRequest &request)
{
    const char *end = value + std::strlen(value);
    if (std::strcmp(name, "--fd") == 0)
        return readAll(value, end, request.descriptor) && request.descriptor > STDERR_FILENO;
    if (std::strcmp(name, "--node") == 0)
        return readAll(value, end, request.node);
    if (std::strcmp(name, "--snapshot") == 0) {
        request.snapshot = value;
        return *value != '\0';
    }
    if (std::strcmp(name, "--rate") == 0)
        return readAll(value, end, request.rate) && request.rate >= 1 && request.rate <= 1000;
    return std::strcmp(name, "--size") == 0 && readSize(value, request.size);
}

}  // namespace

int main(int count, char **arguments)
{
    ScreenRequest request;
    bool isGood = count % 2 == 1;
    for (int at = 1; isGood && at < count; at += 2)
        isGood = readOption(arguments[at], arguments[at + 1], request);
    if (!isGood || request.descriptor < 0) {
        std::fputs("{\"error\":\"usage\"}\n", stderr);
        return 2;
    }
    std::signal(SIGPIPE, SIG_IGN);
    // PipeWire's own threads must not be the ones that get them.
    sigset_t orders;
    sigemptyset(&orders);
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGUSR1})
        sigaddset(&orders, number);
    sigprocmask(SIG_BLOCK, &orders, nullptr);
    setenv("PIPEWIRE_DEBUG", "0", 1);  // its words are not ours
    pw_init(nullptr, nullptr);
    const int status = ScreenStream(request).run();
    pw_deinit();
    return status;
}
