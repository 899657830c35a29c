#include "Fetch.h"

#include "Processes.h"
#include "RegularFile.h"
#include "WebTransfer.h"

#include <QFile>
#include <QProcess>
#include <QUrl>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

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

/// Starts the program for one request and takes its answer.
WebTransferResult transferInProgram(const QString &program, const WebTransferRequest &request,
                                    const std::atomic<bool> &isAbandoned)
{
    // The program keeps to the deadline itself: this is for one that does not.
    const auto end = request.deadline + std::chrono::milliseconds(80);
    QProcess process;
    process.setChildProcessModifier(endWithParent());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, webTransferArguments(request), QIODevice::ReadOnly);
    QByteArray answer;
    QString interruption;
    while (interruption.isNull() && process.state() != QProcess::NotRunning) {
        process.waitForReadyRead(20);
        answer += process.readAllStandardOutput();
        if (isAbandoned)
            interruption = u"abandoned"_s;
        else if (std::chrono::steady_clock::now() >= end)
            interruption = u"not complete in time"_s;
        else if (answer.size() > longestWebTransferAnswer(request.maximumBytes))
            interruption = u"the transfer program failed"_s;
    }
    if (!interruption.isNull()) {
        process.kill();
        process.waitForFinished();
        return {{}, {}, interruption};
    }
    if (process.error() == QProcess::FailedToStart)
        return {{}, {}, u"the transfer program cannot be started: %1"_s.arg(process.errorString())};
    const bool hasEndedWell = process.exitStatus() == QProcess::NormalExit && process.exitCode() == EXIT_SUCCESS;
    return webTransferResult(hasEndedWell ? answer + process.readAllStandardOutput() : QByteArray());
}

FetchResult followedTransfer(const QString &program, WebTransferRequest request, const std::atomic<bool> &isAbandoned)
{
    for (int redirects = 0; redirects <= maximumRedirects; ++redirects) {
        WebTransferResult result = transferInProgram(program, request, isAbandoned);
        if (result.location.isEmpty())
            return {std::move(result.body), std::move(result.reason)};
        if (const QString obstacle = redirectObstacle(request.address, result.location); !obstacle.isNull())
            return fetchFailure(obstacle);
        request.address = result.location;
    }
    return fetchFailure(u"more than %1 redirects"_s.arg(maximumRedirects));
}

}  // namespace

Fetcher::Fetcher(const QString &programPath) : m_programPath(programPath) {}

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

    return followedTransfer(m_programPath, {url, request.maximumBytes, deadline}, m_isAbandoned);
}

}  // namespace kestrel::foundation
