// Preloaded into a program: names below "invalid" take a minute to be not found, as with a name server that is down.
#include <dlfcn.h>
#include <netdb.h>
#include <unistd.h>

#include <string_view>

extern "C" __attribute__((visibility("default"))) int getaddrinfo(const char *node, const char *service,
                                                                  const addrinfo *hints, addrinfo **result)
{
    if (node && std::string_view(node).ends_with(".invalid")) {
        sleep(60);
        return EAI_AGAIN;
    }
    const auto next = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return next(node, service, hints, result);
}
