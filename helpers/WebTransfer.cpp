// WebTransfer ADDRESS BYTES MILLISECONDS: one request in a process of its own, so that the network's libraries cost the
// program nothing, and what a server sends is parsed away from it. The answer is described in foundation/WebTransfer.h.

#include "WebTransferSession.h"

int main(int argc, char **argv)
{
    kestrel::foundation::runWebTransfer(
        argc, argv, [](const kestrel::foundation::WebTransferRequest &request) { return webTransfer(request); });
}
