#include "CapturePermission.h"

#include <type_traits>

// The desktop asks for access to microphone and screen by itself, when a recording begins: for the shell it is always
// decided.

extern "C" __attribute__((visibility("default"))) int GetAuthorizationStatus(const char *, const char **)
{
    constexpr int authorized = 3;
    return authorized;
}

extern "C" __attribute__((visibility("default"))) void AuthorDevice(const char *, void (*completion)(void *, int),
                                                                    void *context)
{
    completion(context, 1);
}

static_assert(std::is_same_v<decltype(GetAuthorizationStatus), GetAuthorizationStatusFunction>);
static_assert(std::is_same_v<decltype(AuthorDevice), AuthorDeviceFunction>);
