#pragma once

#include "foundation/WebTransfer.h"

#include <QNetworkProxy>

/// The proxy that the system's settings have for the request's address, exceptions included; of type NoProxy where it
/// is to be reached directly. Nothing where the deadline came first: the question
/// then stays behind in a thread, for the process to end with it.
std::optional<QNetworkProxy> systemProxy(const kestrel::foundation::WebTransferRequest &request);
