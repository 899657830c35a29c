#include "WebTransferSession.h"

#include "WebTransferBody.h"
#include "WebTransferProxy.h"

#include <curl/curl.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using kestrel::foundation::WebTransferRequest;
using kestrel::foundation::WebTransferResult;

namespace {

using namespace std::chrono;

constexpr auto headersTooLong = "the headers are too long"_L1;
constexpr size_t maximumHeaderBytes = 65'536;  // of all responses together: those of a proxy, and interim ones
constexpr qint64 longestOverhead = 65'536;     // of a compressed body over what is in it

struct EasyDeleter {
    void operator()(CURL *easy) const { curl_easy_cleanup(easy); }
};
struct MultiDeleter {
    void operator()(CURLM *multi) const { curl_multi_cleanup(multi); }
};

/// Empty for none; nothing for one that must not be passed by.
std::optional<QString> proxyScheme(QNetworkProxy::ProxyType type)
{
    switch (type) {
        case QNetworkProxy::NoProxy:
            return QString();
        case QNetworkProxy::HttpProxy:
        case QNetworkProxy::HttpCachingProxy:
            return u"http"_s;
        case QNetworkProxy::Socks5Proxy:
            return u"socks5h"_s;
        default:
            return std::nullopt;
    }
}

/// One request, and libcurl's callbacks.
class Session {
public:
    Session(const WebTransferRequest &request, const QByteArray &authorities)
        : m_request(request),
          m_authorities(authorities)
    {
    }

    WebTransferResult run();

private:
    bool prepare(const QNetworkProxy &proxy);
    bool setProxy(const QNetworkProxy &proxy);
    CURLcode perform();
    WebTransferResult conclusion(CURLcode code);
    WebTransferResult document();
    long status() const;
    QByteArrayList headers(const char *name) const;
    QString interruption() const;

    size_t refuse(const QString &reason);
    static size_t headerReceived(char *bytes, size_t, size_t length, void *session);
    static size_t bodyReceived(char *bytes, size_t, size_t length, void *session);

    template <typename Value>
    bool set(CURLoption option, Value value)
    {
        return curl_easy_setopt(m_easy.get(), option, value) == CURLE_OK;
    }

    const WebTransferRequest &m_request;
    const QByteArray m_authorities;
    // In this order: a transfer is taken out of the multi handle before either of them goes.
    std::unique_ptr<CURLM, MultiDeleter> m_multi{curl_multi_init()};
    std::unique_ptr<CURL, EasyDeleter> m_easy{curl_easy_init()};
    QByteArray m_body;
    size_t m_headerBytes = 0;
    bool m_isDecided = false;  ///< by the status: the body does not matter
    QString m_refusal;
};

WebTransferResult Session::run()
{
    const std::optional<QNetworkProxy> proxy = systemProxy(m_request);
    if (!proxy)
        return {{}, {}, interruption()};
    if (!proxyScheme(proxy->type()))
        return {{}, {}, u"the system's settings name a proxy of an unknown kind"_s};
    if (!m_multi || !m_easy || !prepare(*proxy))
        return {{}, {}, u"the transfer cannot be set up"_s};
    return conclusion(perform());
}

bool Session::prepare(const QNetworkProxy &proxy)
{
    const QByteArray address = m_request.address.toEncoded();
    return set(CURLOPT_URL, address.constData()) &&
           // Whatever libcurl makes of the address, the caller has looked at this scheme.
           set(CURLOPT_PROTOCOLS_STR, m_request.address.scheme().toLatin1().constData()) &&
           set(CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_2TLS)) && set(CURLOPT_NOSIGNAL, 1L) &&
           // It would take a compressed body that is cut off for a whole one.
           set(CURLOPT_ACCEPT_ENCODING, acceptedEncodings) && set(CURLOPT_HTTP_CONTENT_DECODING, 0L) &&
           // Or the end would wait for a name server.
           set(CURLOPT_QUICK_EXIT, 1L) && set(CURLOPT_SSL_VERIFYPEER, 1L) && set(CURLOPT_SSL_VERIFYHOST, 2L) &&
           (m_authorities.isEmpty() || set(CURLOPT_CAINFO, m_authorities.constData())) && setProxy(proxy) &&
           set(CURLOPT_HEADERFUNCTION, &Session::headerReceived) && set(CURLOPT_HEADERDATA, this) &&
           set(CURLOPT_WRITEFUNCTION, &Session::bodyReceived) && set(CURLOPT_WRITEDATA, this);
}

bool Session::setProxy(const QNetworkProxy &proxy)
{
    QByteArray address = "";
    if (const QString scheme = proxyScheme(proxy.type()).value_or(QString()); !scheme.isEmpty()) {
        QUrl url;
        url.setScheme(scheme);
        url.setHost(proxy.hostName());
        url.setPort(proxy.port() ? proxy.port() : -1);
        address = url.toEncoded();
    }
    const bool hasLogin = !address.isEmpty() && !proxy.user().isEmpty();
    // Both are set even where they are empty, or libcurl would read the environment for itself.
    return set(CURLOPT_PROXY, address.constData()) && set(CURLOPT_NOPROXY, "") &&
           (!hasLogin || (set(CURLOPT_PROXYUSERNAME, proxy.user().toUtf8().constData()) &&
                          set(CURLOPT_PROXYPASSWORD, proxy.password().toUtf8().constData())));
}

CURLcode Session::perform()
{
    if (curl_multi_add_handle(m_multi.get(), m_easy.get()) != CURLM_OK)
        return CURLE_FAILED_INIT;
    int running = 1;
    while (m_refusal.isNull() && running > 0) {
        m_refusal = interruption();
        if (!m_refusal.isNull() || curl_multi_perform(m_multi.get(), &running) != CURLM_OK)
            break;
        const auto left = duration_cast<milliseconds>(m_request.deadline - steady_clock::now());
        if (running > 0)
            curl_multi_poll(m_multi.get(), nullptr, 0, int(std::clamp<qint64>(left.count(), 0, 20)), nullptr);
    }
    int waiting = 0;
    const CURLMsg *message = curl_multi_info_read(m_multi.get(), &waiting);
    const CURLcode code = message ? message->data.result : CURLE_ABORTED_BY_CALLBACK;
    curl_multi_remove_handle(m_multi.get(), m_easy.get());
    return code;
}

WebTransferResult Session::conclusion(CURLcode code)
{
    if (!m_refusal.isNull())
        return {{}, {}, m_refusal};
    if (code == CURLE_UNSUPPORTED_PROTOCOL || code == CURLE_WEIRD_SERVER_REPLY)
        return {{}, {}, u"the answer is not HTTP"_s};
    if (code == CURLE_OUT_OF_MEMORY)  // how it calls a line that is longer than it cares to hold
        return {{}, {}, headersTooLong};
    if (code != CURLE_OK && !m_isDecided)
        return {{}, {}, QString::fromUtf8(curl_easy_strerror(code))};
    // Nobody asks for a part of a document.
    constexpr long partialContent = 206;
    if (status() / 100 == 2 && status() != partialContent)
        return document();
    const QByteArray location = headers("Location").value(0);
    const long redirects[] = {301, 302, 303, 307, 308};
    if (std::ranges::count(redirects, status()) == 0 || location.isNull())
        return {{}, {}, u"status %1"_s.arg(status())};
    const QUrl target(QString::fromUtf8(location).trimmed());
    if (!target.isValid())
        return {{}, {}, u"a redirect to a malformed address"_s};
    return {{}, m_request.address.resolved(target), {}};
}

WebTransferResult Session::document()
{
    const QByteArray transfer = headers("Transfer-Encoding").join(", ").toLower();
    const auto encoding = webTransferEncoding(headers("Content-Encoding").join(", "));
    if (!encoding || (!transfer.isEmpty() && transfer != "chunked"))
        return {{}, {}, u"the body is encoded in a way that was not asked for"_s};
    if (const QString reason = uncompress(m_body, *encoding, m_request.maximumBytes); !reason.isNull())
        return {{}, {}, reason};
    return {m_body, {}, {}};
}

long Session::status() const
{
    long status = 0;
    curl_easy_getinfo(m_easy.get(), CURLINFO_RESPONSE_CODE, &status);
    return status;
}

/// Of the last response.
QByteArrayList Session::headers(const char *name) const
{
    QByteArrayList values;
    curl_header *found = nullptr;
    while (curl_easy_header(m_easy.get(), name, size_t(values.size()), CURLH_HEADER, -1, &found) == CURLHE_OK)
        values += found->value;
    return values;
}

/// Null where the transfer may go on.
QString Session::interruption() const
{
    return steady_clock::now() >= m_request.deadline ? u"not complete in time"_s : QString();
}

/// As the answer of a callback it ends the transfer.
size_t Session::refuse(const QString &reason)
{
    m_refusal = reason;
    return 0;
}

size_t Session::headerReceived(char *bytes, size_t, size_t length, void *session)
{
    auto &self = *static_cast<Session *>(session);
    self.m_headerBytes += length;
    if (self.m_headerBytes > maximumHeaderBytes)
        return self.refuse(headersTooLong);
    const bool isEnd = QByteArrayView(bytes, qsizetype(length)).trimmed().isEmpty();
    self.m_isDecided = isEnd && self.status() >= 300;
    return self.m_isDecided ? 0 : length;
}

size_t Session::bodyReceived(char *bytes, size_t, size_t length, void *session)
{
    auto &self = *static_cast<Session *>(session);
    const qint64 overhead = self.headers("Content-Encoding").isEmpty() ? 0 : longestOverhead;
    if (qint64(length) > self.m_request.maximumBytes + overhead - self.m_body.size())
        return self.refuse(bodyTooLong(self.m_request.maximumBytes));
    self.m_body.append(bytes, qsizetype(length));
    return length;
}

}  // namespace

WebTransferResult webTransfer(const WebTransferRequest &request, const QByteArray &authorities)
{
    static const CURLcode initialisation = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (initialisation == CURLE_OK)
        return Session(request, authorities).run();
    return {{}, {}, QString::fromUtf8(curl_easy_strerror(initialisation))};
}
