#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>

/// What the program that fetches from the network, and ends with its answer, has in common with who starts it: the
/// request is its arguments, the answer comes over its standard output.
namespace kestrel::foundation {

struct WebTransferRequest {
    QUrl address;             ///< http or https
    qint64 maximumBytes = 0;  ///< of the body, counted after decompression
    std::chrono::steady_clock::time_point deadline;
};

/// At most one of body and location is set.
struct WebTransferResult {
    std::optional<QByteArray> body;
    QUrl location;   ///< where the server says that the document is
    QString reason;  ///< where there is neither: why, in English and without the address
};

/// One request and its answer over the system's proxy; a redirect is reported and not followed. Returns within 100 ms
/// of the deadline.
using WebTransfer = std::function<WebTransferResult(const WebTransferRequest &request)>;

QStringList webTransferArguments(const WebTransferRequest &request);
/// Nothing where they are not the arguments of a request. Without the program's name.
std::optional<WebTransferRequest> webTransferRequest(const QStringList &arguments);

/// A letter, and behind it a body, location or reason.
QByteArray webTransferAnswer(const WebTransferResult &result);
/// Whatever the bytes are: what is no answer reads as a failure.
WebTransferResult webTransferResult(const QByteArray &answer);
constexpr qint64 longestWebTransferAnswer(qint64 maximumBytes)
{
    return maximumBytes + 65'536;
}

/// The whole of such a program: answers the request of the command line and ends the process, whatever threads of it
/// still wait for the system.
[[noreturn]] void runWebTransfer(int argc, char **argv, const WebTransfer &transfer);

}  // namespace kestrel::foundation
