// A transfer program without a network: every address is redirected to what its query says, and without one is the
// document. A host of these names stands for a program that does not keep to its part.

#include "foundation/WebTransfer.h"

#include <csignal>
#include <cstdlib>
#include <string>

#include <unistd.h>

using namespace kestrel::foundation;

static WebTransferResult answer(const WebTransferRequest &request)
{
    const QString host = request.address.host();
    if (host == QLatin1StringView("crashes"))
        std::raise(SIGKILL);
    if (host == QLatin1StringView("fails"))
        std::_Exit(1);
    if (host == QLatin1StringView("says-nothing"))
        std::_Exit(0);
    if (host == QLatin1StringView("stays"))
        ::pause();
    while (host == QLatin1StringView("never-ends"))
        if (::write(1, std::string(65'536, 'B').data(), 65'536) < 0)
            std::_Exit(1);
    if (request.address.hasQuery())
        return {{}, QUrl(request.address.query()), {}};
    return {request.address.toEncoded(), {}, {}};
}

int main(int argc, char **argv)
{
    runWebTransfer(argc, argv, answer);
}
