#include "Attempts.h"

#include <ifaddrs.h>
#include <net/if.h>

#include <algorithm>
#include <iterator>

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;
using Kind = EngineFailure::Kind;

namespace {

/// Seconds between attempts; after the last one it has failed.
constexpr int waits[] = {5, 15, 45, 120, 300};
constexpr int lastWait = int(std::size(waits)) - 1;
constexpr int deadLineWaits = 150;  ///< half a day of the last one, while the machine's own network is up
constexpr int serverWaits = 2;      ///< one that breaks off without a byte more is not asked for minutes
constexpr int longestWait = 600;    ///< seconds that others wait for this one's place

}  // namespace

std::optional<int> Attempts::next(Kind kind, int asked)
{
    if (kind == Kind::TooMany && asked > longestWait)
        return std::nullopt;
    // A night without a network is no attempt.
    if (kind == Kind::NoNetwork && !hasNetwork())
        m_offline = std::min(m_offline, lastWait);
    if (kind == Kind::NoNetwork)
        return m_offline < deadLineWaits ? std::optional(waits[std::min(m_offline++, lastWait)]) : std::nullopt;
    m_offline = 0;
    if (m_count >= (kind == Kind::Server ? serverWaits : lastWait + 1))
        return std::nullopt;
    const int usual = waits[m_count++];
    return kind == Kind::TooMany && asked > 0 ? asked : usual;
}

Sentence waitingSentence(Kind kind, int seconds)
{
    const QString number = QString::number(seconds);
    switch (kind) {
        case Kind::TooMany:
            return {"Too many requests: the server is asked again in %1 s"_key, {number}};
        case Kind::NoNetwork:
            return {"Waiting for the network, next attempt in %1 s"_key, {number}};
        default:
            return {"The server broke off, next attempt in %1 s"_key, {number}};
    }
}

Sentence givenUpSentence(const EngineFailure &failure, int asked)
{
    if (failure.kind != Kind::TooMany || asked <= longestWait)
        return failure.sentence;
    return {"The server takes no more requests for now. Try again in %1 minutes."_key,
            {QString::number((asked + 59) / 60)}};
}

bool hasNetwork()
{
    ifaddrs *first = nullptr;
    if (getifaddrs(&first) != 0)
        return true;  // let the engine find out
    bool isThere = false;
    for (const ifaddrs *entry = first; entry; entry = entry->ifa_next) {
        const bool isUp = (entry->ifa_flags & IFF_UP) && (entry->ifa_flags & IFF_RUNNING);
        const int family = entry->ifa_addr ? entry->ifa_addr->sa_family : AF_UNSPEC;
        isThere |= isUp && !(entry->ifa_flags & IFF_LOOPBACK) && (family == AF_INET || family == AF_INET6);
    }
    freeifaddrs(first);
    return isThere;
}

}  // namespace kestrel
