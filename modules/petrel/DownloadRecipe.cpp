#include "DownloadRecipe.h"

#include "Attempts.h"

#include <QUrl>

#include <algorithm>

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

DownloadPlan planOf(const JobRecord &record)
{
    return DownloadPlan::fromJson(record.plan).value_or(DownloadPlan());
}

bool isOnThisMachine(const QString &address)
{
    const QString host = QUrl(address).host();
    return host == QLatin1StringView("localhost") || host.startsWith(QLatin1StringView("127.")) ||
           host == QLatin1StringView("::1");
}

}  // namespace

/// Films that do not tell their bytes count as middling ones.
JobNeeds DownloadRecipe::needs(const JobRecord &record) const
{
    constexpr double middling = 100e6;
    const qint64 bytes = planOf(record).bytes;
    return {.lane = Lane::Net, .bytes = bytes, .weight = bytes > 0 ? double(bytes) : middling};
}

Sentence DownloadRecipe::obstacle(const JobRecord &record, const QList<const JobRecord *> &active) const
{
    const DownloadPlan plan = planOf(record);
    if (!plan.manyFromServer) {
        const QString server = plan.server();
        const auto count = std::count_if(active.begin(), active.end(),
                                         [&](const JobRecord *other) { return planOf(*other).server() == server; });
        if (count >= maximumFromServer)
            return {"Waiting: %1 downloads from this server are under way"_key, {QString::number(count)}};
    }
    if (plan.proxy.isEmpty() && !isOnThisMachine(plan.address) && !hasNetwork())
        return "Waiting for a network connection"_key;
    return {};
}

std::unique_ptr<Job> DownloadRecipe::makeJob(const JobRecord &record)
{
    // Without a plan it says so and fails.
    return std::make_unique<DownloadJob>(planOf(record), record.folder, m_tools());
}

}  // namespace kestrel
