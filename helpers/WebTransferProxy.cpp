#include "WebTransferProxy.h"

#include <future>
#include <memory>
#include <thread>

std::optional<QNetworkProxy> systemProxy(const kestrel::foundation::WebTransferRequest &request)
{
    // A thread that is left to itself: where the settings name a script, the system fetches that first, however long
    // it takes.
    const auto answer = std::make_shared<std::promise<QNetworkProxy>>();
    std::future<QNetworkProxy> proxy = answer->get_future();
    std::thread([answer, query = QNetworkProxyQuery(request.address.adjusted(QUrl::RemoveUserInfo))] {
        // The first one only: the others are for when it does not answer, and the last of them is none.
        answer->set_value(QNetworkProxyFactory::systemProxyForQuery(query).value(0, QNetworkProxy::NoProxy));
    }).detach();
    while (proxy.wait_for(std::chrono::milliseconds(20)) != std::future_status::ready) {
        if (std::chrono::steady_clock::now() >= request.deadline)
            return std::nullopt;
    }
    return proxy.get();
}
