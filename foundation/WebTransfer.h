#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <optional>

/// What libWebTransfer, which is loaded by path, and its caller have in common.
namespace kestrel::foundation {

struct WebTransferRequest {
    QUrl address;             ///< http or https
    qint64 maximumBytes = 0;  ///< of the body, counted after decompression
    std::chrono::steady_clock::time_point deadline;
    const std::atomic<bool> &isAbandoned;  ///< read throughout
};

/// At most one of body and location is set.
struct WebTransferResult {
    std::optional<QByteArray> body;
    QUrl location;   ///< where the server says that the document is
    QString reason;  ///< where there is neither: why, in English and without the address
};

/// The library's only entry: one request and its answer over the system's proxy; a redirect is reported and not
/// followed. Returns within 100 ms of the deadline or of being abandoned. Any thread.
extern "C" using WebTransferFunction = void(const WebTransferRequest &request, WebTransferResult &result);

inline constexpr char webTransferSymbol[] = "webTransfer";

}  // namespace kestrel::foundation
