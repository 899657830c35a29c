#pragma once

#include <fcntl.h>
#include <unistd.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kestrel::foundation {

/// When a process was started, in the kernel's ticks since the machine was: with the identifier this names a process,
/// for identifiers are used again. 0 where there is none of that identifier. Needs no library, for small helpers.
inline std::uint64_t processStart(std::int64_t processIdentifier)
{
    constexpr int fieldsBehindTheName = 20;  // proc(5): the state is the third field, the start the 22nd
    char path[40];
    std::snprintf(path, sizeof path, "/proc/%lld/stat", static_cast<long long>(processIdentifier));
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return 0;
    char text[1024];
    const ssize_t length = read(file, text, sizeof text - 1);
    close(file);
    text[length > 0 ? length : 0] = '\0';
    const char *field = std::strrchr(text, ')');  // the name may hold blanks and brackets
    for (int i = 0; field && i < fieldsBehindTheName; ++i)
        field = std::strchr(field + 1, ' ');
    return field ? std::strtoull(field, nullptr, 10) : 0;
}

}  // namespace kestrel::foundation
