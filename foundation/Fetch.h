#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <chrono>
#include <functional>
#include <optional>

namespace kestrel::foundation {

/// Which addresses may be read. A file address is for those that come with the program, never for one read out of a
/// document that was itself fetched.
enum class FetchSchemes { Web, WebAndFile };

struct FetchRequest {
    QString address;                  ///< http, https, or file where `schemes` has it
    qint64 maximumBytes = 1'048'576;  ///< of the body, counted after decompression
    FetchSchemes schemes = FetchSchemes::Web;
    std::chrono::milliseconds timeLimit{20'000};  ///< for everything, redirects included
};

struct FetchResult {
    std::optional<QByteArray> body;  ///< the whole document; nothing where it could not be had
    QString reason;                  ///< what went wrong, in English, for the log; without the address
};

/// How code that reads a remote document gets at its bytes: `Fetcher::fetch`, or a test's own answer.
using Fetch = std::function<FetchResult(const FetchRequest &)>;

/// Fetches documents with the bundle's transfer program, a process a request. At most five redirects are
/// followed, none from https to http and none to a file; a status other than 2xx,
/// a part that nobody asked for and a body that is shorter than
/// announced are failures. A proxy of the system's settings is used. Files are read with the same limit of bytes:
/// regular ones only. Any thread but the main one, which would wait.
class Fetcher {
public:
    explicit Fetcher(const QString &programPath);

    FetchResult fetch(const FetchRequest &request);

    /// Gives up the fetches under way within 100 ms and refuses those to come; for the program's end.
    void abandon() { m_isAbandoned = true; }

private:
    QString m_programPath;
    std::atomic<bool> m_isAbandoned = false;
};

}  // namespace kestrel::foundation
