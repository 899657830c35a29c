#include "TranscodeFailure.h"

#include "jobs/SystemFailure.h"

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::TextKey;
using tarnwell::operator""_key;

namespace {

struct KnownFailure {
    const char *message;
    TextKey sentence;
};

constexpr TextKey damaged = "The file is damaged or incomplete."_key;
constexpr TextKey noTracks = "The file holds neither video nor sound that can be converted."_key;
constexpr TextKey noEncoder = "The converter cannot make this format. Choose another one."_key;

// The first match counts: what a damaged file says all the time comes last.
constexpr KnownFailure knownFailures[] = {
    {"Unknown encoder", noEncoder},
    {"Encoder not found", noEncoder},
    {"Requested output format", noEncoder},
    {"matches no streams", noTracks},
    {"does not contain any stream", noTracks},
    {"moov atom not found", damaged},
    {"Invalid data found", damaged},
    {emptyOutputMessage, damaged},
    {"Truncating packet", damaged},
};

}  // namespace

TranscodeFailure failureIn(const QString &message)
{
    if (const SystemFailure system = systemFailureIn(message); !system.sentence.isEmpty())
        return {system.sentence, system.isHopeless, system.isHopeless ? 0 : 1};
    int rank = 2;
    for (const auto &[known, sentence] : knownFailures) {
        if (message.contains(QLatin1StringView(known), Qt::CaseInsensitive))
            return {sentence, false, rank};
        ++rank;
    }
    return {"The converter could not convert this file."_key, false, rank};
}

}  // namespace kestrel
