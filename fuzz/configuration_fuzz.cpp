// Whatever a server sends for the remote configuration, there is one, with texts of bounded length.

#include "Require.h"
#include "remote/AppRMConfig.h"

using namespace kestrel;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto configuration = AppRMConfig::initWithData(fuzzInput(data, size));
    require(configuration != nullptr);
    const auto &promotions = configuration->adParser();
    if (promotions && promotions->full() && promotions->full()->details())
        require(plainText(*promotions->full()->details()).size() <= 20'000);
    return 0;
}
