// A transfer library without a network: every address is redirected to what its query says, and without one is the
// document.

#include "foundation/WebTransfer.h"

using namespace kestrel::foundation;

extern "C" __attribute__((visibility("default"))) void webTransfer(const WebTransferRequest &request,
                                                                   WebTransferResult &result)
{
    if (request.address.hasQuery())
        result.location = QUrl(request.address.query());
    else
        result.body = request.address.toEncoded();
}
