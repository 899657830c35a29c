#include "Fetch.h"

#include "RegularFile.h"
#include "WebTransfer.h"

#include <QFile>
#include <QLibrary>
#include <QUrl>

#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

constexpr int maximumRedirects = 5;

FetchResult fetchFailure(const QString &reason)
{
    return {std::nullopt, reason};
}

/// Invalid where the text is no address. A NUL or line break in one is never an accident.
QUrl parsedAddress(const QString &text)
{
    const bool hasControls = std::ranges::any_of(text, [](QChar c) { return c.category() == QChar::Other_Control; });
    const QUrl url = hasControls ? QUrl() : QUrl(text);
    return url.isRelative() ? QUrl() : url;
}

FetchResult readFile(const QUrl &url, qint64 maximumBytes)
{
    const QString path = url.path(QUrl::FullyDecoded);
    if (!url.host().isEmpty() || !path.startsWith(u'/') || path.contains(QChar::Null))
        return fetchFailure(u"the address is malformed"_s);
    const int descriptor = openRegularFile(path);
    if (descriptor < 0 && errno == ENOENT)
        return fetchFailure(u"there is no such file"_s);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        return fetchFailure(u"not a regular file that can be read"_s);
    const QByteArray body = file.read(maximumBytes + 1);
    if (file.error() != QFile::NoError)
        return fetchFailure(u"the file cannot be read"_s);
    if (body.size() > maximumBytes)
        return fetchFailure(u"longer than %1 bytes"_s.arg(maximumBytes));
    return {body, {}};
}

/// Null where a redirect from `from` to `to` may be followed.
QString redirectObstacle(const QUrl &from, const QUrl &to)
{
    if (to.scheme() != "http"_L1 && to.scheme() != "https"_L1)
        return u"a redirect to something other than http and https"_s;
    if (from.scheme() == "https"_L1 && to.scheme() != "https"_L1)
        return u"a redirect from https to http"_s;
    return to.host().isEmpty() ? u"a redirect to a malformed address"_s : QString();
}

FetchResult followedTransfer(WebTransferFunction *transfer, WebTransferRequest &request)
{
    for (int redirects = 0; redirects <= maximumRedirects; ++redirects) {
        WebTransferResult result;
        transfer(request, result);
        if (result.location.isEmpty())
            return {std::move(result.body), std::move(result.reason)};
        if (const QString obstacle = redirectObstacle(request.address, result.location); !obstacle.isNull())
            return fetchFailure(obstacle);
        request.address = result.location;
    }
    return fetchFailure(u"more than %1 redirects"_s.arg(maximumRedirects));
}

}  // namespace

Fetcher::Fetcher(const QString &libraryPath) : m_libraryPath(libraryPath) {}

FetchResult Fetcher::fetch(const FetchRequest &request)
{
    const auto deadline = std::chrono::steady_clock::now() + request.timeLimit;
    if (m_isAbandoned)
        return fetchFailure(u"abandoned"_s);
    const QUrl url = parsedAddress(request.address);
    if (!url.isValid())
        return fetchFailure(u"the address is malformed"_s);
    if (url.scheme() == "file"_L1 && request.schemes == FetchSchemes::WebAndFile)
        return readFile(url, request.maximumBytes);
    if (url.scheme() != "http"_L1 && url.scheme() != "https"_L1)
        return fetchFailure(u"addresses of this kind are not read"_s);
    if (url.host().isEmpty())
        return fetchFailure(u"the address is malformed"_s);

    QLibrary library(m_libraryPath);
    // A thread of the library may still wait for an answer of the system when the program ends.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const auto transfer = reinterpret_cast<WebTransferFunction *>(library.resolve(webTransferSymbol));
    if (!transfer)
        return fetchFailure(u"the transfer library cannot be loaded: %1"_s.arg(library.errorString()));
    WebTransferRequest hop{url, request.maximumBytes, deadline, m_isAbandoned};
    return followedTransfer(transfer, hop);
}

}  // namespace kestrel::foundation
