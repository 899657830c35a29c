#pragma once

#include "EngineFailure.h"

#include <optional>

namespace kestrel {

/// When to ask again after failures that pass by themselves: soon at first, and not for ever.
class Attempts {
public:
    /// Seconds until the next one; nothing where there is none any more. `asked` is what the server wants, in seconds,
    /// 0 where it does not say. While the machine has no network there is always a next one, for ever; while it has one
    /// that leads nowhere, for half a day.
    std::optional<int> next(EngineFailure::Kind kind, int asked);
    void reset() { m_count = m_offline = 0; }

private:
    int m_count = 0, m_offline = 0;
};

/// What is told of the wait meanwhile.
tarnwell::Sentence waitingSentence(EngineFailure::Kind kind, int seconds);
/// Why there is no next one.
tarnwell::Sentence givenUpSentence(const EngineFailure &failure, int asked);

/// Whether the machine has a network beside its own loopback.
bool hasNetwork();

}  // namespace kestrel
