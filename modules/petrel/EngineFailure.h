#pragma once

#include "jobs/ToolProcess.h"
#include "tarnwell/TextKey.h"

namespace kestrel {

/// Why the engine could not do it.
struct EngineFailure {
    enum class Kind {
        UnknownSite,
        Gone,
        Private,
        LogIn,
        Age,
        Country,
        NotBegun,
        Protected,
        TooMany,    ///< requests: the server wants to be left alone for a while
        NoNetwork,  ///< passes by itself
        Proxy,
        Refused,   ///< 403 and the like: also what an address answers that has expired
        Server,    ///< it breaks off, answers nonsense or is overloaded: another attempt may do
        NotThere,  ///< nobody answers at that place, or the place has no such name
        Certificate,
        NoFilm,
        TooLong,  ///< an answer that nobody reads to its end
        NoSuchForm,
        Disk,
        EngineOld,
        EngineBroken,  ///< could not be started, or fell over
        Unknown,
    };
    Kind kind = Kind::Unknown;
    tarnwell::Sentence sentence = {};  ///< what happened and what to do
};

/// By the engine's own words. Names and addresses in them are not taken for messages where they stand in quotes.
/// Who goes through a proxy reaches nothing but that: `proxy` is its address, null for none.
EngineFailure engineFailure(const ToolEnding &ending, const QString &proxy = {});

/// Seconds that a server wants to be left alone, from what the engine tells of its answers; 0 where it does not say, a
/// day at most.
int retryAfterIn(const QByteArray &output);

EngineFailure engineFailureOf(EngineFailure::Kind kind);  ///< with its sentence

/// Whether the same may do after a while.
bool passesByItself(EngineFailure::Kind kind);
/// Whether another engine might do better.
bool mayBeTheEngine(EngineFailure::Kind kind);

}  // namespace kestrel
