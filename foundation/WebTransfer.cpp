#include "WebTransfer.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

using namespace std::chrono;

constexpr char bodyLetter = 'B', locationLetter = 'L', reasonLetter = 'R';

}  // namespace

QStringList webTransferArguments(const WebTransferRequest &request)
{
    const qint64 left = duration_cast<milliseconds>(request.deadline - steady_clock::now()).count();
    return {QString::fromLatin1(request.address.toEncoded()), QString::number(request.maximumBytes),
            QString::number(std::max<qint64>(left, 0))};
}

std::optional<WebTransferRequest> webTransferRequest(const QStringList &arguments)
{
    bool isSize = false, isTime = false;
    const QUrl address = QUrl::fromEncoded(arguments.value(0).toLatin1());
    const qint64 maximumBytes = arguments.value(1).toLongLong(&isSize);
    const qint64 left = arguments.value(2).toLongLong(&isTime);
    const bool isWeb = address.scheme() == "http"_L1 || address.scheme() == "https"_L1;
    if (arguments.size() != 3 || !isWeb || !isSize || !isTime)
        return {};
    return WebTransferRequest{address, maximumBytes, steady_clock::now() + milliseconds(left)};
}

QByteArray webTransferAnswer(const WebTransferResult &result)
{
    if (result.body)
        return bodyLetter + *result.body;
    return result.location.isEmpty() ? reasonLetter + result.reason.toUtf8()
                                     : locationLetter + result.location.toEncoded();
}

WebTransferResult webTransferResult(const QByteArray &answer)
{
    const QByteArray content = answer.mid(1);
    if (answer.startsWith(bodyLetter))
        return {content, {}, {}};
    if (answer.startsWith(locationLetter) && !content.isEmpty())
        return {{}, QUrl::fromEncoded(content), {}};
    if (answer.startsWith(reasonLetter) && !content.isEmpty())
        return {{}, {}, QString::fromUtf8(content)};
    return {{}, {}, u"the transfer program failed"_s};
}

void runWebTransfer(int argc, char **argv, const WebTransfer &transfer)
{
    const QCoreApplication application(argc, argv);
    const std::optional<WebTransferRequest> request = webTransferRequest(QCoreApplication::arguments().mid(1));
    if (!request)
        std::_Exit(EXIT_FAILURE);
    const QByteArray answer = webTransferAnswer(transfer(*request));
    const bool isWritten = std::fwrite(answer.constData(), 1, size_t(answer.size()), stdout) == size_t(answer.size()) &&
                           std::fflush(stdout) == 0;
    std::_Exit(isWritten ? EXIT_SUCCESS : EXIT_FAILURE);
}

}  // namespace kestrel::foundation
