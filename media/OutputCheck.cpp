#include "OutputCheck.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

template <typename Track>
QStringList codecsOf(const QList<Track> &tracks, MediaTrack::Kind kind)
{
    QStringList codecs;
    for (const Track &track : tracks) {
        if (track.kind == kind)
            codecs.append(track.codec);
    }
    return codecs;
}

/// Not where the reader takes portions of its own: uncompressed sound, and WAV of what nobody parses. A picture of
/// Theora that repeats the last is an empty packet, which readers skip. The last packet of FLAC is for the header.
bool canBeCounted(const QString &codec, const QString &format)
{
    const bool isInPortions = codec == "wmav2"_L1 && (format == "wav"_L1 || format == "w64"_L1);
    return !isInPortions && codec != "theora"_L1 && !codec.startsWith("pcm_"_L1) && !codec.startsWith("adpcm_"_L1);
}

/// Whether there are as many packets of the kind as were written, track by track.
bool hasAllPackets(const ToldOutput &told, const FoundOutput &found, MediaTrack::Kind kind, const QString &toldKind)
{
    QList<qint64> written;
    for (const MuxedTrack &track : told.tracks) {
        if (track.kind == toldKind)
            written.append(track.packets);
    }
    qsizetype number = 0;
    for (qsizetype index = 0; index < found.information.tracks.size(); ++index) {
        const MediaTrack &track = found.information.tracks[index];
        if (track.kind != kind)
            continue;
        if (number == written.size())
            return false;
        const qint64 expected = written[number++];
        const qint64 packets = found.packets.value(index);
        const bool isRight = packets == expected || (track.codec == "flac"_L1 && packets == expected - 1);
        if (canBeCounted(track.codec, found.information.format) && !isRight)
            return false;
    }
    return true;
}

Sentence damageIn(const ToldOutput &told, const FoundOutput &found)
{
    if (told.bytes && *told.bytes != found.bytes)
        return {"The finished file has %1 bytes instead of %2."_key,
                {QString::number(found.bytes), QString::number(*told.bytes)}};
    const bool isWhole = told.tracks.isEmpty() || (hasAllPackets(told, found, MediaTrack::Kind::Video, u"video"_s) &&
                                                   hasAllPackets(told, found, MediaTrack::Kind::Audio, u"audio"_s));
    return isWhole ? Sentence() : Sentence("Parts of the finished file are missing."_key);
}

Sentence mismatchIn(const OutputExpectation &expected, const MediaInformation &found)
{
    using enum MediaTrack::Kind;
    for (const auto kind : {Video, Audio, Subtitle, Cover, Attachment}) {
        const QStringList wanted = codecsOf(expected.tracks, kind);
        // Matroska's attached pictures come back as covers, and fonts without a codec.
        const bool isCompanion = kind == Cover || kind == Attachment;
        const QStringList there = codecsOf(found.tracks, kind);
        if (isCompanion ? there.size() < wanted.size() : there != wanted)
            return {"The finished file holds other tracks than were wanted: %1 instead of %2."_key,
                    {there.isEmpty() ? u"–"_s : there.join(u", "_s), wanted.isEmpty() ? u"–"_s : wanted.join(u", "_s)}};
    }
    const MediaTrack *video = found.firstOf(Video);
    return !video || video->rotation == expected.rotation
               ? Sentence()
               : Sentence("The picture of the finished file does not stand upright."_key);
}

bool hasAllSubtitles(const OutputExpectation &expected, const FoundOutput &found)
{
    QList<qint64> packets;
    for (qsizetype index = 0; index < found.information.tracks.size(); ++index) {
        if (found.information.tracks[index].kind == MediaTrack::Kind::Subtitle)
            packets.append(found.packets.value(index));
    }
    qsizetype number = 0;
    return std::all_of(expected.tracks.begin(), expected.tracks.end(), [&](const OutputExpectation::Track &track) {
        return track.kind != MediaTrack::Kind::Subtitle || packets.value(number++) >= track.packets;
    });
}

}  // namespace

ToolCommand outputReportCommand(const QString &proberPath, const QString &argument, qint64 fileBytes)
{
    constexpr qint64 slowBytesPerSecond = 5'000'000;  // of a disk behind a network
    constexpr std::chrono::seconds leastLimit = std::chrono::minutes(15);
    return {.program = proberPath,
            .arguments = {u"-v"_s, u"repeat+level+error"_s, u"-protocol_whitelist"_s, u"file"_s, u"-count_packets"_s,
                          u"-show_format"_s, u"-show_streams"_s, u"-show_chapters"_s, u"-of"_s, u"json"_s, u"-i"_s,
                          argument},
            // It says nothing before it has read everything.
            .timeLimit = std::max(leastLimit, std::chrono::seconds(fileBytes / slowBytesPerSecond)),
            .outputLimit = maximumReportBytes,
            .collectsOutput = true};
}

ToolCommand decodingCommand(const QString &transcoderPath, const QString &argument, Decoding decoding)
{
    QStringList arguments = {
        u"-hide_banner"_s, u"-nostdin"_s, u"-nostats"_s,      u"-loglevel"_s, u"repeat+level+warning"_s,
        u"-progress"_s,    u"pipe:1"_s,   u"-stats_period"_s, u"0.5"_s,       u"-protocol_whitelist"_s,
        u"file"_s};
    if (decoding == Decoding::KeyPictures)
        arguments += {u"-skip_frame:v"_s, u"nokey"_s};
    // Passed through, or the null muxer complains about the times of pictures.
    arguments += {u"-i"_s,        argument,         u"-map"_s, u"0:V?"_s, u"-map"_s, u"0:a?"_s,
                  u"-fps_mode"_s, u"passthrough"_s, u"-f"_s,   u"null"_s, u"-"_s};
    return {.program = transcoderPath, .arguments = arguments, .silenceLimit = std::chrono::minutes(2)};
}

std::optional<double> secondsOfKept(const OutputExpectation &expected, const MediaInformation &source)
{
    std::optional<double> longest;
    for (const auto kind : {MediaTrack::Kind::Video, MediaTrack::Kind::Audio}) {
        if (codecsOf(expected.tracks, kind).isEmpty())
            continue;
        for (const MediaTrack &track : source.tracksOf(kind)) {
            if (!track.duration)
                return expected.seconds;
            longest = std::max(longest, track.duration);  // none is less than any
        }
    }
    return expected.seconds && longest ? std::min(expected.seconds, longest) : expected.seconds;
}

std::optional<FoundOutput> parseOutputReport(const QByteArray &json, qint64 fileBytes)
{
    auto information = parseMediaInformation(json);
    if (!information)
        return std::nullopt;
    const QJsonArray streams = QJsonDocument::fromJson(json).object()["streams"_L1].toArray();
    FoundOutput found{.information = *std::move(information), .packets = {}, .bytes = fileBytes};
    for (qsizetype index = 0; index < found.information.tracks.size(); ++index)
        found.packets.append(streams.at(index).toObject()["nb_read_packets"_L1].toString().toLongLong());
    return found;
}

qint64 sizeCorrection(qint64 wanted, qint64 found)
{
    constexpr double aim = 0.975, least = 0.95, full = 0.5;
    const double part = wanted > 0 ? double(found) / double(wanted) : aim;
    return part > 1 || (part < least && part > full) ? found - qint64(double(wanted) * aim) : 0;
}

OutputFindings compareOutput(const OutputExpectation &expected, const ToldOutput &told, const FoundOutput &found)
{
    const MediaInformation &information = found.information;
    OutputFindings findings;
    findings.damage = damageIn(told, found);
    findings.mismatch = mismatchIn(expected, information);
    findings.isEmpty = found.bytes == 0 || std::none_of(found.packets.begin(), found.packets.end(),
                                                        [](qint64 packets) { return packets > 0; });
    // Without a header ffprobe estimates the length; what ffmpeg told is exact.
    findings.seconds =
        information.headerTellsDuration() || told.seconds <= 0 ? information.duration.value_or(0) : told.seconds;
    if (expected.seconds && !findings.isEmpty) {
        const double tolerance = std::max(1.0, *expected.seconds / 100);
        findings.isShort = findings.seconds < *expected.seconds - tolerance;
        findings.isLong = !expected.mayBeLonger && findings.seconds > *expected.seconds + tolerance;
    }
    findings.isTooLarge = expected.maximumBytes > 0 && found.bytes > expected.maximumBytes;
    findings.lacksChapters = information.chapters.size() < expected.chapters;
    findings.lacksSubtitles = !hasAllSubtitles(expected, found);
    return findings;
}

}  // namespace kestrel
