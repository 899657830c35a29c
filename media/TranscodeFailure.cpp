#include "TranscodeFailure.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::TextKey;
using tarnwell::operator""_key;

namespace {

struct KnownFailure {
    const char *message;
    TextKey sentence;
    bool isHopeless = false;
};

constexpr TextKey diskFull = "There is no space left on the disk. Free some space and convert again."_key;
constexpr TextKey notAllowed =
    "Reading the file or writing to the output folder is not allowed. Check their permissions."_key;
constexpr TextKey damaged = "The file is damaged or incomplete."_key;
constexpr TextKey noTracks = "The file holds neither video nor sound that can be converted."_key;
constexpr TextKey noEncoder = "The converter cannot make this format. Choose another one."_key;

// The first match counts: what stops the writing comes before what a damaged file says all the time.
constexpr KnownFailure knownFailures[] = {
    {"No space left on device", diskFull, true},
    {"Disk quota exceeded", diskFull, true},
    {"File too large", "The disk of the output folder cannot hold a file of this size."_key, true},
    {"Read-only file system", "The output folder is read-only. Choose another one in the settings."_key, true},
    {"Unknown encoder", noEncoder},
    {"Encoder not found", noEncoder},
    {"Requested output format", noEncoder},
    {"Permission denied", notAllowed},
    {"Operation not permitted", notAllowed},
    {"Cannot allocate memory", "There is not enough memory to convert this file."_key},
    {"No such file or directory", "The file is no longer where it was."_key},
    {"Input/output error", "The disk could not be read or written."_key},
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
    int rank = 0;
    for (const auto &[known, sentence, isHopeless] : knownFailures) {
        if (message.contains(QLatin1StringView(known), Qt::CaseInsensitive))
            return {sentence, isHopeless, rank};
        ++rank;
    }
    return {"The converter could not convert this file."_key, false, rank};
}

}  // namespace kestrel
