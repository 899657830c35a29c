#include "Containers.h"
#include "Encoders.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::TextKey;
using tarnwell::operator""_key;

struct Limits {
    int maximumWidth = 0, maximumHeight = 0;
    double maximumFrameRate = 0;
    int channels = 0;
    bool isPlain = false;
    double quality = 0, bestQuality = 0;
};

struct BuiltIn {
    const char *id;
    TextKey name;
    const char *group;
    const char *container;  ///< id of the container's row
    const char *video;
    const char *sound;
    Limits limits = {};
};

// The first one is the default.
constexpr BuiltIn builtIns[] = {
    {"mp4-h264", "MP4 Video (H.264, AAC)"_key, "everywhere", "mp4", "h264", "aac", {.isPlain = true}},
    {"mkv-h264", "MKV Video (H.264, AAC)"_key, "everywhere", "mkv", "h264", "aac"},
    {"mov-h264", "MOV Video (H.264, AAC)"_key, "everywhere", "mov", "h264", "aac", {.isPlain = true}},
    {"avi-mpeg4", "AVI Video (MPEG-4, MP3)"_key, "everywhere", "avi", "mpeg4", "mp3", {.isPlain = true}},
    {"wmv", "WMV Video"_key, "everywhere", "wmv", "wmv2", "wmav2", {.isPlain = true}},
    {"mpg-mpeg2", "MPEG Video (MPEG-2, MP2)"_key, "everywhere", "mpg", "mpeg2video", "mp2", {.isPlain = true}},

    {"mp4-h265", "MP4 Video (H.265, AAC)"_key, "small", "mp4", "hevc", "aac"},
    {"mp4-av1", "MP4 Video (AV1, Opus)"_key, "small", "mp4", "av1", "opus"},
    {"mkv-h265", "MKV Video (H.265, AAC)"_key, "small", "mkv", "hevc", "aac"},
    {"mkv-av1", "MKV Video (AV1, Opus)"_key, "small", "mkv", "av1", "opus"},
    {"mkv-vp9", "MKV Video (VP9, Opus)"_key, "small", "mkv", "vp9", "opus"},
    {"mp4-720p",
     "Small MP4 Video (720p)"_key,
     "small",
     "mp4",
     "h264",
     "aac",
     {.maximumWidth = 1280, .maximumHeight = 720, .channels = 2, .isPlain = true, .quality = 24, .bestQuality = 22}},
    {"mp4-480p",
     "Very Small MP4 Video (480p)"_key,
     "small",
     "mp4",
     "h264",
     "aac",
     {.maximumWidth = 854,
      .maximumHeight = 480,
      .maximumFrameRate = 30,
      .channels = 2,
      .isPlain = true,
      .quality = 26,
      .bestQuality = 24}},

    {"mkv-copy", "Original, in an MKV File"_key, "archive", "mkv", "copy", "copy"},
    {"mp4-copy", "Original, in an MP4 File"_key, "archive", "mp4", "copy", "copy"},
    {"mov-copy", "Original, in a MOV File"_key, "archive", "mov", "copy", "copy"},
    {"ts-copy", "Original, in a TS File"_key, "archive", "ts", "copy", "copy"},
    {"mka-copy", "Original Sound, in an MKA File"_key, "archive", "mka", nullptr, "copy"},
    {"mkv-ffv1", "MKV Video, Lossless (FFV1, FLAC)"_key, "archive", "mkv", "ffv1", "flac"},
    {"mkv-h265-best",
     "MKV Video, High Quality (H.265, FLAC)"_key,
     "archive",
     "mkv",
     "hevc",
     "flac",
     {.quality = 18, .bestQuality = 15}},

    {"webm-vp9", "WebM Video (VP9, Opus)"_key, "web", "webm", "vp9", "opus"},
    {"webm-av1", "WebM Video (AV1, Opus)"_key, "web", "webm", "av1", "opus"},
    {"webm-vp8", "WebM Video (VP8, Vorbis)"_key, "web", "webm", "vp8", "vorbis", {.isPlain = true}},
    {"mp4-web-1080p",
     "MP4 Video for Web Pages (1080p)"_key,
     "web",
     "mp4",
     "h264",
     "aac",
     {.maximumWidth = 1920,
      .maximumHeight = 1080,
      .maximumFrameRate = 60,
      .channels = 2,
      .isPlain = true,
      .quality = 22}},
    {"ogv", "OGV Video (Theora, Vorbis)"_key, "web", "ogv", "theora", "vorbis", {.isPlain = true}},
    {"flv", "FLV Video (H.264, AAC)"_key, "web", "flv", "h264", "aac", {.isPlain = true}},
    {"gif",
     "GIF Animation"_key,
     "web",
     "gif",
     "gif",
     nullptr,
     {.maximumWidth = 640, .maximumHeight = 640, .maximumFrameRate = 15, .isPlain = true}},
    {"apng",
     "APNG Animation"_key,
     "web",
     "apng",
     "apng",
     nullptr,
     {.maximumWidth = 640, .maximumHeight = 640, .maximumFrameRate = 15, .isPlain = true}},

    {"mov-prores", "MOV Video (ProRes, PCM)"_key, "editing", "mov", "prores", "pcm_s16le"},
    {"mov-dnxhr", "MOV Video (DNxHR, PCM)"_key, "editing", "mov", "dnxhd", "pcm_s16le"},
    {"mxf-mpeg2", "MXF Video (MPEG-2, PCM)"_key, "editing", "mxf", "mpeg2video", "pcm_s16le"},
    {"mxf-dnxhr", "MXF Video (DNxHR, PCM)"_key, "editing", "mxf", "dnxhd", "pcm_s16le"},
    {"avi-mjpeg", "AVI Video (Motion JPEG, PCM)"_key, "editing", "avi", "mjpeg", "pcm_s16le"},
    {"dv", "DV Video"_key, "editing", "dv", "dvvideo", "pcm_s16le", {.isPlain = true}},

    {"phone",
     "Phone"_key,
     "devices",
     "mp4",
     "h264",
     "aac",
     {.maximumWidth = 1280,
      .maximumHeight = 1280,
      .maximumFrameRate = 60,
      .channels = 2,
      .isPlain = true,
      .quality = 23}},
    {"phone-h265",
     "Phone (H.265)"_key,
     "devices",
     "mp4",
     "hevc",
     "aac",
     {.maximumWidth = 1920, .maximumHeight = 1920, .maximumFrameRate = 60, .channels = 2, .isPlain = true}},
    {"old-phone",
     "Old Phone (3GP)"_key,
     "devices",
     "3gp",
     "mpeg4",
     "aac",
     {.maximumWidth = 320, .maximumHeight = 240, .maximumFrameRate = 25, .channels = 2, .isPlain = true}},
    {"tablet",
     "Tablet"_key,
     "devices",
     "mp4",
     "h264",
     "aac",
     {.maximumWidth = 1920, .maximumHeight = 1920, .maximumFrameRate = 60, .channels = 2, .isPlain = true}},
    {"tv-1080p",
     "TV (1080p)"_key,
     "devices",
     "mp4",
     "h264",
     "ac3",
     {.maximumWidth = 1920, .maximumHeight = 1080, .maximumFrameRate = 60, .channels = 6, .isPlain = true}},
    {"tv-2160p",
     "TV (4K, HDR)"_key,
     "devices",
     "mkv",
     "hevc",
     "eac3",
     {.maximumWidth = 3840, .maximumHeight = 2160, .maximumFrameRate = 60, .channels = 6}},
    {"console",
     "Game Console"_key,
     "devices",
     "mp4",
     "h264",
     "aac",
     {.maximumWidth = 1920, .maximumHeight = 1080, .maximumFrameRate = 60, .channels = 6, .isPlain = true}},
    {"disc-player",
     "Disc Player (VOB)"_key,
     "devices",
     "vob",
     "mpeg2video",
     "ac3",
     {.maximumWidth = 720, .maximumHeight = 576, .maximumFrameRate = 30, .channels = 6, .isPlain = true}},
    {"ts-h264", "TS Video (H.264, AC-3)"_key, "devices", "ts", "h264", "ac3", {.isPlain = true}},

    {"mp3", "MP3 Audio"_key, "sound", "mp3", nullptr, "mp3"},
    {"m4a-aac", "M4A Audio (AAC)"_key, "sound", "m4a", nullptr, "aac"},
    {"m4a-alac", "M4A Audio, Lossless (ALAC)"_key, "sound", "m4a", nullptr, "alac"},
    {"flac", "FLAC Audio"_key, "sound", "flac", nullptr, "flac"},
    {"wav", "WAV Audio"_key, "sound", "wav", nullptr, "pcm_s16le"},
    {"aiff", "AIFF Audio"_key, "sound", "aiff", nullptr, "pcm_s16be"},
    {"ogg-vorbis", "OGG Audio (Vorbis)"_key, "sound", "ogg", nullptr, "vorbis"},
    {"opus", "Opus Audio"_key, "sound", "opus", nullptr, "opus"},
    {"wma", "WMA Audio"_key, "sound", "wma", nullptr, "wmav2"},
    {"ac3", "AC-3 Audio"_key, "sound", "ac3", nullptr, "ac3"},
    {"eac3", "E-AC-3 Audio"_key, "sound", "eac3", nullptr, "eac3"},
    {"mka-opus", "MKA Audio (Opus)"_key, "sound", "mka", nullptr, "opus"},
    {"caf", "CAF Audio (ALAC)"_key, "sound", "caf", nullptr, "alac"},
};

const Container &containerOfId(QLatin1StringView id)
{
    return *std::ranges::find_if(containers(), [&](const Container &row) { return id == QLatin1StringView(row.id); });
}

Preset presetOf(const BuiltIn &row)
{
    const Container &container = containerOfId(QLatin1StringView(row.container));
    return {.id = QString::fromLatin1(row.id),
            .name = row.name.localized(),
            .group = QString::fromLatin1(row.group),
            .extension = QString::fromLatin1(container.extension),
            .container = QString::fromLatin1(container.muxer),
            .videoCodec = QString::fromLatin1(row.video),
            .audioCodec = QString::fromLatin1(row.sound),
            .maximumWidth = row.limits.maximumWidth,
            .maximumHeight = row.limits.maximumHeight,
            .maximumFrameRate = row.limits.maximumFrameRate,
            .audioChannels = row.limits.channels,
            .plainVideo = row.limits.isPlain,
            .quality = row.limits.quality,
            .bestQuality = row.limits.bestQuality};
}

/// Sound that goes with a codec of pictures where the container's usual one does not.
QString soundFor(const Container &container, const QString &video)
{
    const QStringList sounds = tableWords(container.sound);
    struct Companion {
        const char *video;
        const char *sound;
    };
    static constexpr Companion companions[] = {
        {"av1", "opus"},         {"vp9", "opus"},          {"vp8", "vorbis"},        {"theora", "vorbis"},
        {"prores", "pcm_s16le"}, {"dnxhd", "pcm_s16le"},   {"dvvideo", "pcm_s16le"}, {"ffv1", "pcm_s16le"},
        {"flv1", "mp3"},         {"huffyuv", "pcm_s16le"}, {"utvideo", "pcm_s16le"}};
    for (const Companion &row : companions) {
        if (video == QLatin1StringView(row.video) && sounds.contains(QLatin1StringView(row.sound)))
            return QString::fromLatin1(row.sound);
    }
    return sounds.isEmpty() ? QString() : sounds.first();
}

Preset furtherPreset(const Container &container, const QString &video, const QString &sound)
{
    const QString name = QString::fromLatin1(container.name);
    const QString codec = codecLabel(video.isNull() ? sound : video);
    return {.id = QLatin1StringView(container.id) + u'-' + (video.isNull() ? sound : video),
            .name = name == codec ? name : u"%1 (%2)"_s.arg(name, codec),
            .group = u"all"_s,
            .extension = QString::fromLatin1(container.extension),
            .container = QString::fromLatin1(container.muxer),
            .videoCodec = video,
            .audioCodec = sound};
}

}  // namespace

const QList<Preset> &builtInPresets()
{
    static const QList<Preset> presets = [] {
        QList<Preset> list;
        for (const BuiltIn &row : builtIns)
            list.append(presetOf(row));
        return list;
    }();
    return presets;
}

const QList<Preset> &allPresets()
{
    static const QList<Preset> presets = [] {
        QList<Preset> list = builtInPresets();
        const auto append = [&](const Preset &preset) {
            const bool isThere = std::ranges::any_of(list, [&](const Preset &other) {
                return other.id == preset.id ||
                       (other.container == preset.container && other.extension == preset.extension &&
                        other.videoCodec == preset.videoCodec &&
                        (preset.takesVideo() || other.audioCodec == preset.audioCodec) && other.maximumWidth == 0);
            });
            if (!isThere)
                list.append(preset);
        };
        for (const Container &container : containers()) {
            for (const QString &video : tableWords(container.video))
                append(furtherPreset(container, video, soundFor(container, video)));
            for (const QString &sound : container.video ? QStringList() : tableWords(container.sound))
                append(furtherPreset(container, {}, sound));
        }
        return list;
    }();
    return presets;
}

}  // namespace kestrel
