#include "foundation/Fetch.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <future>
#include <mutex>
#include <thread>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel::foundation {

namespace {

using Clock = std::chrono::steady_clock;

/// What a client is sent once its request is there, and what happens then.
struct Answer {
    QByteArray bytes;
    enum Then { Close, Stay } then = Close;
    QByteArray repeated = {};  ///< sent again and again until the client has gone
    int pauseMs = 0;           ///< before each of them
};

/// A raw server on a loopback port while it lives: an answer a path, which for a proxy is a whole address.
class LoopbackServer {
public:
    explicit LoopbackServer(const QMap<QByteArray, Answer> &answers) : m_answers(answers)
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(address);
        const auto name = reinterpret_cast<sockaddr *>(&address);
        if (::bind(m_listener, name, length) || ::listen(m_listener, 8) || ::getsockname(m_listener, name, &length))
            qFatal("no loopback server");
        m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] {
            while (!m_isEnding)
                if (pollfd waiting = {m_listener, POLLIN, 0}; ::poll(&waiting, 1, 20) > 0)
                    serve(::accept(m_listener, nullptr, nullptr));
        });
    }
    ~LoopbackServer()
    {
        m_isEnding = true;
        m_thread.join();
        ::close(m_listener);
    }

    QString url(const QString &path = u"/"_s) const { return u"http://127.0.0.1:%1%2"_s.arg(m_port).arg(path); }
    QByteArrayList requests() const  ///< their paths, as they came
    {
        const std::lock_guard lock(m_mutex);
        return m_requests;
    }
    QByteArray lastRequest() const
    {
        const std::lock_guard lock(m_mutex);
        return m_lastRequest;
    }

private:
    void serve(int client)
    {
        char request[4096] = {};
        ::recv(client, request, sizeof(request) - 1, 0);
        const QByteArray path = QByteArray(request).split(' ').value(1);
        {
            const std::lock_guard lock(m_mutex);
            m_requests.append(path);
            m_lastRequest = request;
        }
        const Answer answer = m_answers.value(path);
        bool isThere = isSent(client, answer.bytes);
        while (isThere && !answer.repeated.isEmpty() && !m_isEnding) {
            std::this_thread::sleep_for(std::chrono::milliseconds(answer.pauseMs));
            isThere = isSent(client, answer.repeated);
        }
        if (answer.then == Answer::Stay)
            ::recv(client, request, 1, 0);
        ::close(client);
    }

    static bool isSent(int client, const QByteArray &bytes)
    {
        return ::send(client, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL) == bytes.size();
    }

    const QMap<QByteArray, Answer> m_answers;
    std::atomic<bool> m_isEnding = false;
    int m_listener = ::socket(AF_INET, SOCK_STREAM, 0);
    int m_port = 0;
    mutable std::mutex m_mutex;
    QByteArrayList m_requests;
    QByteArray m_lastRequest;
    std::thread m_thread;
};

class FetchTest : public testing::Test {
protected:
    FetchTest() { setProxy(""); }
    ~FetchTest() override { setProxy(""); }

    static void setProxy(const QByteArray &address, const QByteArray &exceptions = "")
    {
        for (const char *variable : {"HTTP_PROXY", "HTTPS_PROXY", "https_proxy", "ALL_PROXY", "all_proxy", "NO_PROXY"})
            ::unsetenv(variable);
        ::setenv("http_proxy", address.constData(), 1);
        ::setenv("no_proxy", exceptions.constData(), 1);
    }

    Fetcher m_fetcher{QStringLiteral(KESTREL_TRANSFER_PROGRAM)};
};

QByteArray ok(const QByteArray &headers, const QByteArray &body)
{
    return "HTTP/1.1 200 OK\r\n" + headers + "\r\n" + body;
}

TEST_F(FetchTest, TakesWholeDocumentsAndNothingElse)
{
    const QByteArray as(1000, 'a'), line = "X: " + QByteArray(90, 'x') + "\r\n";
    const QByteArray zipped = QByteArray::fromBase64("H4sIAAAAAAACA0tMHAWjYBQMdwAAA9o4mugDAAA=");  // as
    const QByteArray a = QByteArray::fromBase64("H4sIAAAAAAACA0sEAEO+t+gBAAAA");
    const QString tooLong = u"longer than 1000 bytes"_s, late = u"not complete in time"_s,
                  headersTooLong = u"the headers are too long"_s, cutOff = u"the compressed body is cut off"_s,
                  unasked = u"the body is encoded in a way that was not asked for"_s;
    const struct {
        const char *name;
        Answer answer;
        FetchResult expected;  // the beginning of the reason
    } rows[] = {
        {"length", {ok("Content-Length: 2\r\n", "abcd"), Answer::Stay}, {"ab", {}}},
        {"chunks", {ok("Transfer-Encoding: chunked\r\n", "1\r\na\r\n1\r\nb\r\n0\r\n\r\n"), Answer::Stay}, {"ab", {}}},
        {"empty", {ok("Content-Length: 0\r\n", ""), Answer::Stay}, {"", {}}},
        {"interim", {"HTTP/1.1 100 Continue\r\n\r\n" + ok("", "ab")}, {"ab", {}}},
        {"lasting redirect",
         {"HTTP/1.1 308 Permanent Redirect\r\nLocation: /other\r\n\r\n", Answer::Stay},
         {"other", {}}},
        {"relative redirect", {"HTTP/1.1 302 Found\r\nLocation: other\r\n\r\n", Answer::Stay}, {"other", {}}},
        {"at the limit", {ok("", as)}, {as, {}}},
        {"over the limit", {ok("", as + "a")}, {{}, tooLong}},
        {"gzip at the limit", {ok("Content-Encoding: gzip\r\n", zipped)}, {as, {}}},
        {"two gzips", {ok("Content-Encoding: GZIP\r\n", a + a)}, {"aa", {}}},
        {"deflate over the limit", {ok("Content-Encoding: deflate\r\n", qCompress(as + "a").mid(4))}, {{}, tooLong}},
        {"bare deflate", {ok("Content-Encoding: deflate\r\n", qCompress("ab").mid(6).chopped(4))}, {"ab", {}}},
        {"cut off gzip", {ok("Content-Encoding: gzip\r\n", zipped.chopped(9))}, {{}, cutOff}},
        {"gzip without its trailer", {ok("Content-Encoding: gzip\r\n", zipped.chopped(8))}, {{}, cutOff}},
        {"gzip twice", {ok("Content-Encoding: gzip\r\nContent-Encoding: gzip\r\n", zipped)}, {{}, unasked}},
        {"unknown encoding", {ok("Content-Encoding: br\r\n", as)}, {{}, unasked}},
        {"gzip on the way", {ok("Transfer-Encoding: gzip\r\n", zipped)}, {{}, unasked}},
        {"300", {"HTTP/1.1 300 Multiple\r\nLocation: other\r\n\r\n"}, {{}, u"status 300"_s}},
        {"206",
         {"HTTP/1.1 206 Partial\r\nContent-Length: 2\r\nContent-Range: bytes 0-1/4\r\n\r\nab"},
         {{}, u"status 206"_s}},
        {"404", {"HTTP/1.1 404 Not Found\r\nLocation: other\r\n\r\n", Answer::Close, as}, {{}, u"status 404"_s}},
        {"redirect without a place", {"HTTP/1.1 302 Found\r\n\r\n"}, {{}, u"status 302"_s}},
        {"cut off length", {ok("Content-Length: 3\r\n", "ab")}, {{}, u"Transferred a partial file"_s}},
        {"cut off chunks", {ok("Transfer-Encoding: chunked\r\n", "2\r\nab\r\n")}, {{}, u"Transferred a partial"_s}},
        {"damaged gzip", {ok("Content-Encoding: gzip\r\n", zipped.left(12) + zipped)}, {{}, u"the compressed body"_s}},
        {"nothing", {""}, {{}, u"Server returned nothing"_s}},
        {"noise", {QByteArray("\x7f\0\xff\r\n\r\n\x01", 8)}, {{}, u"the answer is not HTTP"_s}},
        {"endless header", {"HTTP/1.1 200 OK\r\nX: ", Answer::Close, as}, {{}, headersTooLong}},
        {"endless headers", {"HTTP/1.1 200 OK\r\n", Answer::Close, line}, {{}, headersTooLong}},
        {"endless interim", {"", Answer::Close, "HTTP/1.1 103 E\r\n\r\n"}, {{}, headersTooLong}},
        {"stall", {"", Answer::Stay}, {{}, late}},
        {"stall after headers", {ok("Content-Length: 2\r\n", "a"), Answer::Stay}, {{}, late}},
        {"drip", {ok("", ""), Answer::Close, "a", 10}, {{}, late}},
    };
    for (const auto &[name, answer, expected] : rows) {
        SCOPED_TRACE(name);
        const LoopbackServer server({{"/", answer}, {"/other", {ok("", "other")}}});
        const auto start = Clock::now();
        const auto limit = expected.reason == late ? 400ms : 20'000ms;
        const FetchResult result = m_fetcher.fetch({.address = server.url(), .maximumBytes = 1000, .timeLimit = limit});
        EXPECT_LT(Clock::now() - start, 10s) << "these servers would wait for ever";
        EXPECT_EQ(result.body, expected.body);
        EXPECT_EQ(result.reason.left(expected.reason.size()), expected.reason) << qPrintable(result.reason);
        EXPECT_EQ(result.body.has_value(), result.reason.isEmpty());
    }
}

TEST_F(FetchTest, FollowsFewRedirectsAndOnlyToSafety)
{
    Fetcher fetcher(QStringLiteral(KESTREL_SCRIPTED_TRANSFER));
    const QString failed = u"the transfer program failed"_s;
    const QString notWeb = u"a redirect to something other than http and https"_s;
    const struct {
        QString address;
        FetchResult expected;
    } rows[] = {
        {u"http://a/?https://b/"_s, {"https://b/", {}}},
        {u"http://a/?http://b/?http://c/?http://d/?https://e/?https://f/"_s, {"https://f/", {}}},
        {u"http://a/?http://b/?http://c/?http://d/?http://e/?http://f/?http://g/"_s, {{}, u"more than 5 redirects"_s}},
        {u"http://a/?https://b/?http://c/"_s, {{}, u"a redirect from https to http"_s}},
        {u"https://a/?FILE:///etc/passwd"_s, {{}, notWeb}},
        {u"http://a/?ftp://b/"_s, {{}, notWeb}},
        {u"http://a/?https:/b"_s, {{}, u"a redirect to a malformed address"_s}},
        {u"http://crashes/"_s, {{}, failed}},
        {u"http://fails/"_s, {{}, failed}},
        {u"http://says-nothing/"_s, {{}, failed}},
        {u"http://never-ends/"_s, {{}, failed}},
    };
    for (const auto &[address, expected] : rows) {
        const FetchResult result = fetcher.fetch({.address = address});
        EXPECT_EQ(result.body, expected.body) << qPrintable(address);
        EXPECT_EQ(result.reason, expected.reason) << qPrintable(address);
    }
    EXPECT_EQ(fetcher.fetch({.address = u"http://stays/"_s, .timeLimit = 300ms}).reason, u"not complete in time"_s);
}

TEST_F(FetchTest, ReadsRegularFilesWithinTheLimit)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a b"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("abc") == 3 && file.flush());
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.filePath(u"fifo"_s)).constData(), 0600), 0);
    const QString url = u"file://"_s + folder.path(), malformed = u"the address is malformed"_s,
                  irregular = u"not a regular file that can be read"_s;
    const struct {
        QString address;
        FetchResult expected;
        qint64 limit = 3;
        FetchSchemes schemes = FetchSchemes::WebAndFile;
    } rows[] = {
        {url + "/a%20b"_L1, {"abc", {}}},
        {url + "/a%20b"_L1, {{}, u"longer than 2 bytes"_s}, 2},
        {url + "/a%20b"_L1, {{}, u"addresses of this kind are not read"_s}, 3, FetchSchemes::Web},
        {url + "/none"_L1, {{}, u"there is no such file"_s}},
        {url, {{}, irregular}},
        {url + "/fifo"_L1, {{}, irregular}},
        {u"file:///dev/zero"_s, {{}, irregular}},
        {url + "/a%20b%00c"_L1, {{}, malformed}},
        {"file://host"_L1 + file.fileName(), {{}, malformed}},
        {u"ftp://127.0.0.1/"_s, {{}, u"addresses of this kind are not read"_s}},
        {u"http://127.0.0.1\0.b/"_s, {{}, malformed}},
        {u"http://127.0.0.1/\r\nX: y"_s, {{}, malformed}},
        {u"http://a:65536/"_s, {{}, malformed}},
        {u"a b"_s, {{}, malformed}},
        {QString(), {{}, malformed}},
    };
    for (const auto &[address, expected, limit, schemes] : rows) {
        const FetchResult result = m_fetcher.fetch({.address = address, .maximumBytes = limit, .schemes = schemes});
        EXPECT_EQ(result.body, expected.body) << qPrintable(address);
        EXPECT_EQ(result.reason, expected.reason) << qPrintable(address);
    }
    EXPECT_TRUE(Fetcher(u"/none"_s)
                    .fetch({.address = u"http://a/"_s})
                    .reason.startsWith("the transfer program cannot be started"_L1));
}

TEST_F(FetchTest, IsAbandonedAtOnce)
{
    const Answer stalls[] = {{"", Answer::Stay}, {ok("", ""), Answer::Close, "a", 1}};
    for (const Answer &stall : stalls) {
        const LoopbackServer server({{"/", stall}});
        Fetcher fetcher(QStringLiteral(KESTREL_TRANSFER_PROGRAM));
        auto result = std::async(std::launch::async, [&] { return fetcher.fetch({.address = server.url()}); });
        EXPECT_EQ(result.wait_for(200ms), std::future_status::timeout);
        const auto start = Clock::now();
        fetcher.abandon();
        EXPECT_EQ(result.get().reason, u"abandoned"_s);
        EXPECT_LT(Clock::now() - start, 5s) << "of the 20 that the server would have";
        EXPECT_EQ(fetcher.fetch({.address = server.url()}).reason, u"abandoned"_s);
    }
}

TEST_F(FetchTest, AsksTheProxyOfTheSystemForEveryHop)
{
    const QByteArray away = "http://elsewhere.invalid/";
    const LoopbackServer proxy({{away, {ok("", "by proxy")}}});
    const LoopbackServer server({{"/", {"HTTP/1.1 302 Found\r\nLocation: " + away + "\r\n\r\n"}}});
    setProxy(proxy.url().toLatin1(), "127.0.0.1");
    EXPECT_EQ(m_fetcher.fetch({.address = server.url()}).body, "by proxy");
    EXPECT_EQ(server.requests(), QByteArrayList({"/"}));
    EXPECT_EQ(proxy.requests(), QByteArrayList({away}));
    setProxy(proxy.url().replace(u"//"_s, u"//a%20user:p%40ss@"_s).toLatin1());
    EXPECT_EQ(m_fetcher.fetch({.address = server.url()}).body, std::nullopt);
    EXPECT_EQ(proxy.requests().value(1), server.url().toLatin1());
    EXPECT_TRUE(proxy.lastRequest().contains("Proxy-Authorization: Basic " + QByteArray("a user:p@ss").toBase64()));
}

}  // namespace

}  // namespace kestrel::foundation
