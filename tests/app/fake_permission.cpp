#include "helpers/CapturePermission.h"

#include <cstdlib>
#include <thread>

#define EXPORTED extern "C" __attribute__((visibility("default")))

// Answers what the environment says; asks on a thread of its own, as the platform may.

EXPORTED int GetAuthorizationStatus(const char *, const char **error)
{
    const char *text = std::getenv("KESTREL_FAKE_ERROR");
    *error = text && *text ? text : nullptr;
    const char *status = std::getenv("KESTREL_FAKE_STATUS");
    return status ? std::atoi(status) : 3;
}

#ifndef WITHOUT_DEVICE
EXPORTED void AuthorDevice(const char *, void (*completion)(void *, int), void *context)
{
    std::thread(completion, context, 0).detach();
}
#endif
