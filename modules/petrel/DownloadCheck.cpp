#include "DownloadCheck.h"

#include "media/OutputCheck.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;
using Finding = DownloadCheck::Finding;

constexpr tarnwell::TextKey notAFilm =
    "What the server sent is no film. Open the address in a browser to see what it is."_key;

namespace {

struct Target {
    const char *extension;
    const char *format;      ///< among ffprobe's names of the file's
    const char *preset;      ///< that converts into it, tracks that fit as they are
    const char *copyPreset;  ///< that moves all that are `copyCodecs`; null where there is none
    const char *copyCodecs;  ///< that it holds as they are
};

constexpr Target targets[] = {
    {"mp4", "mp4", "mp4-h264", "mp4-copy", "h264 hevc av1 vp9 mpeg4 aac mp3 ac3 eac3 opus mov_text subrip webvtt"},
    {"webm", "webm", "webm-vp9", nullptr, ""},
    {"flv", "flv", "flv", nullptr, ""},
    {"3gp", "3gp", "3gp-h264", "3gp-mpeg4", "mpeg4 aac"},
    {"mkv", "matroska", "mkv-h264", "mkv-copy",
     "h264 hevc av1 vp9 vp8 mpeg4 mpeg2video theora aac mp3 ac3 eac3 opus vorbis flac dts mov_text subrip webvtt ass"},
    {"m4a", "m4a", "m4a-aac", nullptr, ""},
    {"mp3", "mp3", "mp3", nullptr, ""},
};

const Target &targetOf(const QString &extension)
{
    const auto found = std::find_if(std::begin(targets), std::end(targets), [&](const Target &target) {
        return extension == QLatin1StringView(target.extension);
    });
    return found == std::end(targets) ? targets[0] : *found;
}

QString presetFor(const Target &target, const MediaInformation &information)
{
    const QStringList holds = QString::fromLatin1(target.copyCodecs).split(u' ');
    const bool fits = target.copyPreset &&
                      std::all_of(information.tracks.begin(), information.tracks.end(), [&](const MediaTrack &track) {
                          const bool isPlayed =
                              track.kind == MediaTrack::Kind::Video || track.kind == MediaTrack::Kind::Audio;
                          return !isPlayed || holds.contains(track.codec);
                      });
    return QString::fromLatin1(fits ? target.copyPreset : target.preset);
}

QString secondsText(double seconds)
{
    return QLocale().toString(seconds, 'f', seconds < 10 ? 1 : 0);
}

/// Of tracks that lack more than a few of the packets that the header tells.
bool lacksPackets(const FoundOutput &found, const QList<qint64> &told)
{
    for (qsizetype index = 0; index < found.packets.size(); ++index) {
        const qint64 expected = told.value(index);
        if (expected > 0 && found.packets[index] < expected - std::max<qint64>(2, expected / 100))
            return true;
    }
    return false;
}

/// Of those that were asked for and are there.
bool lacksSubtitles(const DownloadPlan &plan, const EngineAnswer &answer, const MediaInformation &information)
{
    const auto isThere = [&](const QString &language) { return answer.subtitles.contains(language); };
    const auto wanted = std::ranges::count_if(plan.subtitles, isThere);
    return !plan.soundOnly && information.tracksOf(MediaTrack::Kind::Subtitle).size() < wanted;
}

/// What speaks against the file's being whole; none where nothing does.
Sentence incompleteness(const DownloadPlan &plan, const EngineAnswer &answer, const FoundOutput &found,
                        const QList<qint64> &packets, const QString &toolWords)
{
    const MediaInformation &information = found.information;
    const bool wantsVideo = !plan.soundOnly;
    if (wantsVideo && answer.video == EngineAnswer::Promise::Yes && !information.hasVideo())
        return "The picture is missing: the site handed out the sound alone."_key;
    if (answer.sound == EngineAnswer::Promise::Yes && !information.hasAudio())
        return "The sound is missing: the site handed out the picture alone."_key;
    if (answer.seconds > 0 && information.duration && !answer.isLive &&
        *information.duration < answer.seconds - std::max(2.0, answer.seconds / 50))
        return {"Only %1 of %2 s have come."_key, {secondsText(*information.duration), secondsText(answer.seconds)}};
    const bool isCutOff = toolWords.contains("ended prematurely"_L1) || toolWords.contains("partial file"_L1);
    if (isCutOff || lacksPackets(found, packets))
        return "The server has sent only part of the film."_key;
    if (lacksSubtitles(plan, answer, information))
        return "The subtitles are missing: the site did not hand them out."_key;
    return {};
}

}  // namespace

QList<qint64> toldPackets(const QByteArray &report)
{
    QList<qint64> packets;
    for (const QJsonValue &stream : QJsonDocument::fromJson(report).object()["streams"_L1].toArray())
        packets.append(stream.toObject()["nb_frames"_L1].toString().toLongLong());
    return packets;
}

DownloadCheck checkDownload(const DownloadPlan &plan, const EngineAnswer &answer, const FoundOutput &found,
                            const QList<qint64> &packets, const QString &extension, const QString &toolWords)
{
    const MediaInformation &information = found.information;
    const bool isEmpty =
        std::none_of(found.packets.begin(), found.packets.end(), [](qint64 count) { return count > 0; });
    if (isEmpty || !information.canBeConverted())
        return {Finding::Useless, notAFilm};
    if (plan.soundOnly && !information.hasAudio())
        return {Finding::Useless, "This film has no sound. Choose a format with a picture for it."_key};
    const Target &target = targetOf(plan.extension);
    const bool isInForm = extension == QLatin1StringView(target.extension) &&
                          information.format.split(u',').contains(QLatin1StringView(target.format)) &&
                          (!plan.soundOnly || !information.hasVideo());
    DownloadCheck check{.sentence = incompleteness(plan, answer, found, packets, toolWords),
                        .presetId = isInForm ? QString() : presetFor(target, information)};
    if (!isInForm)
        check.finding = Finding::NeedsConversion;
    else if (!check.sentence.isEmpty())
        check.finding = Finding::Incomplete;
    return check;
}

}  // namespace kestrel
