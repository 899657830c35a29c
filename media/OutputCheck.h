#pragma once

#include "MediaInformation.h"
#include "ToolMessages.h"
#include "TranscodeCommand.h"

#include "jobs/ToolProcess.h"

namespace kestrel {

/// What ffmpeg said of the output as it wrote it.
struct ToldOutput {
    std::optional<qint64> bytes;
    double seconds = 0;
    QList<MuxedTrack> tracks;  ///< empty where it did not say
};

/// What is there.
struct FoundOutput {
    MediaInformation information;
    QList<qint64> packets;  ///< of each track
    qint64 bytes = 0;       ///< of the file
};

struct OutputFindings {
    /// What was written is not what is there: the disk, or whoever else, has damaged it.
    tarnwell::Sentence damage;
    /// It is whole, but not what was planned: tracks, codecs, the way up.
    tarnwell::Sentence mismatch;
    bool isEmpty = false;
    double seconds = 0;
    bool isShort = false, isLong = false;  ///< than expected, by more than a second and one in a hundred
    bool isTooLarge = false;               ///< for the limit of the plan
    bool lacksChapters = false, lacksSubtitles = false;
};

/// Reads a written file back, all of its `fileBytes`; what it says of packets that are none is for ToolMessages.
/// `argument` as ToolPath has it.
ToolCommand outputReportCommand(const QString &proberPath, const QString &argument, qint64 fileBytes);
/// Nothing where the report is none.
std::optional<FoundOutput> parseOutputReport(const QByteArray &json, qint64 fileBytes);

/// How much of an output is decoded. Sound and the pictures that stand for themselves take a fraction of the time and
/// show all but small damage.
enum class Decoding { None, KeyPictures, All };
/// Decodes it; each of its faults is a message with a level, for ToolMessages.
ToolCommand decodingCommand(const QString &transcoderPath, const QString &argument, Decoding decoding);

/// What is expected where only some of the source's tracks are kept: those may be shorter than the file. `seconds` of
/// the whole where the file does not tell.
std::optional<double> secondsOfKept(const OutputExpectation &expected, const MediaInformation &source);

/// By how many bytes less another attempt at a size has to aim, after one of `wanted` bytes came out as `found`: where
/// it is too large, or more than 5 % too small. 0 where it is near enough, or where a film has no more to fill it with.
qint64 sizeCorrection(qint64 wanted, qint64 found);

OutputFindings compareOutput(const OutputExpectation &expected, const ToldOutput &told, const FoundOutput &found);

}  // namespace kestrel
