// Preloaded into a tool: a disk that is full, or that cannot be read any more, for files whose path has $DISK_PATH in
// it. From the byte $DISK_FULL_AT on nothing can be written, from the read number $DISK_BROKEN_AT on nothing read.
#include <dlfcn.h>
#include <unistd.h>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

template <typename Function>
Function *systemFunction(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

long long numberIn(const char *variable)
{
    const char *text = std::getenv(variable);
    return text ? std::atoll(text) : LLONG_MAX;
}

bool isOnTheDisk(int file)
{
    const char *part = std::getenv("DISK_PATH");
    std::array<char, PATH_MAX> path = {};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    return part && readlink(link.c_str(), path.data(), path.size() - 1) > 0 && std::strstr(path.data(), part);
}

}  // namespace

extern "C" ssize_t write(int file, const void *bytes, size_t count)
{
    static auto *systemWrite = systemFunction<ssize_t(int, const void *, size_t)>("write");
    static const long long end = numberIn("DISK_FULL_AT");
    if (end == LLONG_MAX || !isOnTheDisk(file))
        return systemWrite(file, bytes, count);
    const long long room = end - lseek(file, 0, SEEK_CUR);
    if (room <= 0 && count > 0) {
        errno = ENOSPC;
        return -1;
    }
    return systemWrite(file, bytes, static_cast<long long>(count) > room ? static_cast<size_t>(room) : count);
}

extern "C" ssize_t read(int file, void *bytes, size_t count)
{
    static auto *systemRead = systemFunction<ssize_t(int, void *, size_t)>("read");
    static const long long broken = numberIn("DISK_BROKEN_AT");
    static long long reads = 0;
    if (broken == LLONG_MAX || !isOnTheDisk(file) || ++reads < broken)
        return systemRead(file, bytes, count);
    errno = EIO;
    return -1;
}
