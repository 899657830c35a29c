#include "WebTransferProxy.h"

#include <atomic>
#include <cstdlib>
#include <future>
#include <memory>
#include <thread>

namespace {

std::atomic<int> unansweredQuestions = 0;

/// At the program's end the system's proxy reader waits for its own thread, which may be at a script that never comes:
/// ends the process without it. Called after the first question, so that it is asked before that reader.
void leaveUnansweredBehind()
{
    [[maybe_unused]] static const int isRegistered = on_exit(
        [](int status, void *) {
            if (unansweredQuestions > 0)
                std::_Exit(status);
        },
        nullptr);
}

}  // namespace

std::optional<QNetworkProxy> systemProxy(const kestrel::foundation::WebTransferRequest &request)
{
    // A thread that is left to itself: where the settings name a script, the system fetches that first, however long
    // it takes.
    const auto answer = std::make_shared<std::promise<QNetworkProxy>>();
    std::future<QNetworkProxy> proxy = answer->get_future();
    ++unansweredQuestions;
    std::thread([answer, query = QNetworkProxyQuery(request.address.adjusted(QUrl::RemoveUserInfo))] {
        // The first one only: the others are for when it does not answer, and the last of them is none.
        answer->set_value(QNetworkProxyFactory::systemProxyForQuery(query).value(0, QNetworkProxy::NoProxy));
        --unansweredQuestions;
    }).detach();
    while (proxy.wait_for(std::chrono::milliseconds(20)) != std::future_status::ready) {
        if (request.isAbandoned || std::chrono::steady_clock::now() >= request.deadline) {
            leaveUnansweredBehind();
            return std::nullopt;
        }
    }
    return proxy.get();
}
