// Preloaded into a tool: reads of FAILING_FILE that touch the sectors FAILING_FIRST to FAILING_LAST fail as those of a
// scratched disc do. With FAILING_TIMES they do so that often only; with FAILING_ERROR they fail
// for another reason. With KILLED_AT the process is killed when it reads
// that sector.

#include <dlfcn.h>
#include <sys/types.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr long long sectorBytes = 2048;

long long number(const char *name, long long otherwise)
{
    const char *text = std::getenv(name);
    return text ? std::atoll(text) : otherwise;
}

bool isTheFile(int descriptor)
{
    static const std::string wanted = std::getenv("FAILING_FILE") ? std::getenv("FAILING_FILE") : "";
    char path[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = readlink(link.c_str(), path, sizeof path);
    return length > 0 && !wanted.empty() && std::string(path, static_cast<size_t>(length)) == wanted;
}

// How much of a read is allowed; -1 where it fails.
ssize_t allowed(int descriptor, size_t size, long long offset)
{
    static const long long first = number("FAILING_FIRST", -1), last = number("FAILING_LAST", -1);
    static const long long killedAt = number("KILLED_AT", -1);
    static long long left = number("FAILING_TIMES", 1LL << 40);
    if (!isTheFile(descriptor))
        return static_cast<ssize_t>(size);
    const long long end = offset + static_cast<long long>(size);
    if (killedAt >= 0 && end > killedAt * sectorBytes)
        raise(SIGKILL);
    if (left <= 0 || end <= first * sectorBytes || offset >= (last + 1) * sectorBytes)
        return static_cast<ssize_t>(size);
    if (offset < first * sectorBytes)
        return static_cast<ssize_t>(first * sectorBytes - offset);
    --left;
    return -1;
}

int failure()
{
    return static_cast<int>(number("FAILING_ERROR", EIO));
}

template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" __attribute__((visibility("default"))) ssize_t pread64(int descriptor, void *into, size_t size,
                                                                  off64_t offset)
{
    static const auto original = next<ssize_t (*)(int, void *, size_t, off64_t)>("pread64");
    const ssize_t length = allowed(descriptor, size, offset);
    errno = failure();
    return length < 0 ? -1 : original(descriptor, into, static_cast<size_t>(length), offset);
}

extern "C" __attribute__((visibility("default"))) ssize_t read(int descriptor, void *into, size_t size)
{
    static const auto original = next<ssize_t (*)(int, void *, size_t)>("read");
    const ssize_t length = allowed(descriptor, size, lseek64(descriptor, 0, SEEK_CUR));
    errno = failure();
    return length < 0 ? -1 : original(descriptor, into, static_cast<size_t>(length));
}
