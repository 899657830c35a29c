// The transfer program with the certificate authorities of the file that the environment names.

#include "helpers/WebTransferSession.h"

int main(int argc, char **argv)
{
    kestrel::foundation::runWebTransfer(argc, argv, [](const kestrel::foundation::WebTransferRequest &request) {
        return webTransfer(request, qgetenv("KESTREL_TEST_AUTHORITIES"));
    });
}
