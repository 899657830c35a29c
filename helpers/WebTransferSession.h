#pragma once

#include "foundation/WebTransfer.h"

/// The request and its answer over libcurl. Certificates are checked against the system's authorities, or against those
/// of the file `authorities` where that is given.
kestrel::foundation::WebTransferResult webTransfer(const kestrel::foundation::WebTransferRequest &request,
                                                   const QByteArray &authorities = {});
