#include "Containers.h"
#include "Encoders.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::TextKey;
using tarnwell::operator""_key;

struct BuiltIn {
    const char *id;
    TextKey name;
    const char *group;
    const char *container;  ///< id of the container's row
    const char *video;
    const char *sound;
    int maximumWidth = 0, maximumHeight = 0;
    double maximumFrameRate = 0;
    int channels = 0;
    bool isPlain = false;
    double quality = 0, bestQuality = 0;
};

// The first one is what a newcomer gets.
constexpr BuiltIn builtIns[] = {
    {.id = "mp4-h264",
     .name = "MP4 Video (H.264, AAC)"_key,
     .group = "everywhere",
     .container = "mp4",
     .video = "h264",
     .sound = "aac",
     .isPlain = true},
    {.id = "mkv-h264",
     .name = "MKV Video (H.264, AAC)"_key,
     .group = "everywhere",
     .container = "mkv",
     .video = "h264",
     .sound = "aac"},
    {.id = "mov-h264",
     .name = "MOV Video (H.264, AAC)"_key,
     .group = "everywhere",
     .container = "mov",
     .video = "h264",
     .sound = "aac",
     .isPlain = true},
    {.id = "avi-mpeg4",
     .name = "AVI Video (MPEG-4, MP3)"_key,
     .group = "everywhere",
     .container = "avi",
     .video = "mpeg4",
     .sound = "mp3",
     .isPlain = true},
    {.id = "wmv",
     .name = "WMV Video"_key,
     .group = "everywhere",
     .container = "wmv",
     .video = "wmv2",
     .sound = "wmav2",
     .isPlain = true},
    {.id = "mpg-mpeg2",
     .name = "MPEG Video (MPEG-2, MP2)"_key,
     .group = "everywhere",
     .container = "mpg",
     .video = "mpeg2video",
     .sound = "mp2",
     .isPlain = true},

    {.id = "mp4-h265",
     .name = "MP4 Video (H.265, AAC)"_key,
     .group = "small",
     .container = "mp4",
     .video = "hevc",
     .sound = "aac"},
    {.id = "mp4-av1",
     .name = "MP4 Video (AV1, Opus)"_key,
     .group = "small",
     .container = "mp4",
     .video = "av1",
     .sound = "opus"},
    {.id = "mkv-h265",
     .name = "MKV Video (H.265, AAC)"_key,
     .group = "small",
     .container = "mkv",
     .video = "hevc",
     .sound = "aac"},
    {.id = "mkv-av1",
     .name = "MKV Video (AV1, Opus)"_key,
     .group = "small",
     .container = "mkv",
     .video = "av1",
     .sound = "opus"},
    {.id = "mkv-vp9",
     .name = "MKV Video (VP9, Opus)"_key,
     .group = "small",
     .container = "mkv",
     .video = "vp9",
     .sound = "opus"},
    {.id = "mp4-720p",
     .name = "Small MP4 Video (720p)"_key,
     .group = "small",
     .container = "mp4",
     .video = "h264",
     .sound = "aac",
     .maximumWidth = 1280,
     .maximumHeight = 720,
     .channels = 2,
     .isPlain = true,
     .quality = 24,
     .bestQuality = 22},
    {.id = "mp4-480p",
     .name = "Very Small MP4 Video (480p)"_key,
     .group = "small",
     .container = "mp4",
     .video = "h264",
     .sound = "aac",
     .maximumWidth = 854,
     .maximumHeight = 480,
     .maximumFrameRate = 30,
     .channels = 2,
     .isPlain = true,
     .quality = 26,
     .bestQuality = 24},

    {.id = "mkv-copy",
     .name = "Original, in an MKV File"_key,
     .group = "archive",
     .container = "mkv",
     .video = "copy",
     .sound = "copy"},
    {.id = "mp4-copy",
     .name = "Original, in an MP4 File"_key,
     .group = "archive",
     .container = "mp4",
     .video = "copy",
     .sound = "copy"},
    {.id = "mov-copy",
     .name = "Original, in a MOV File"_key,
     .group = "archive",
     .container = "mov",
     .video = "copy",
     .sound = "copy"},
    {.id = "ts-copy",
     .name = "Original, in a TS File"_key,
     .group = "archive",
     .container = "ts",
     .video = "copy",
     .sound = "copy"},
    {.id = "mka-copy",
     .name = "Original Sound, in an MKA File"_key,
     .group = "archive",
     .container = "mka",
     .video = nullptr,
     .sound = "copy"},
    {.id = "mkv-ffv1",
     .name = "MKV Video, Lossless (FFV1, FLAC)"_key,
     .group = "archive",
     .container = "mkv",
     .video = "ffv1",
     .sound = "flac"},
    {.id = "mkv-h265-best",
     .name = "MKV Video, High Quality (H.265, FLAC)"_key,
     .group = "archive",
     .container = "mkv",
     .video = "hevc",
     .sound = "flac",
     .quality = 18,
     .bestQuality = 15},

    {.id = "webm-vp9",
     .name = "WebM Video (VP9, Opus)"_key,
     .group = "web",
     .container = "webm",
     .video = "vp9",
     .sound = "opus"},
    {.id = "webm-av1",
     .name = "WebM Video (AV1, Opus)"_key,
     .group = "web",
     .container = "webm",
     .video = "av1",
     .sound = "opus"},
    {.id = "webm-vp8",
     .name = "WebM Video (VP8, Vorbis)"_key,
     .group = "web",
     .container = "webm",
     .video = "vp8",
     .sound = "vorbis",
     .isPlain = true},
    {.id = "mp4-web-1080p",
     .name = "MP4 Video for Web Pages (1080p)"_key,
     .group = "web",
     .container = "mp4",
     .video = "h264",
     .sound = "aac",
     .maximumWidth = 1920,
     .maximumHeight = 1080,
     .maximumFrameRate = 60,
     .channels = 2,
     .isPlain = true,
     .quality = 22},
    {.id = "ogv",
     .name = "OGV Video (Theora, Vorbis)"_key,
     .group = "web",
     .container = "ogv",
     .video = "theora",
     .sound = "vorbis",
     .isPlain = true},
    {.id = "flv",
     .name = "FLV Video (H.264, AAC)"_key,
     .group = "web",
     .container = "flv",
     .video = "h264",
     .sound = "aac",
     .isPlain = true},
    {.id = "gif",
     .name = "GIF Animation"_key,
     .group = "web",
     .container = "gif",
     .video = "gif",
     .sound = nullptr,
     .maximumWidth = 640,
     .maximumHeight = 640,
     .maximumFrameRate = 15,
     .isPlain = true},
    {.id = "apng",
     .name = "APNG Animation"_key,
     .group = "web",
     .container = "apng",
     .video = "apng",
     .sound = nullptr,
     .maximumWidth = 640,
     .maximumHeight = 640,
     .maximumFrameRate = 15,
     .isPlain = true},

    {.id = "mov-prores",
     .name = "MOV Video (ProRes, PCM)"_key,
     .group = "editing",
     .container = "mov",
     .video = "prores",
     .sound = "pcm_s16le"},
    {.id = "mov-dnxhr",
     .name = "MOV Video (DNxHR, PCM)"_key,
     .group = "editing",
     .container = "mov",
     .video = "dnxhd",
     .sound = "pcm_s16le"},
    {.id = "mxf-mpeg2",
     .name = "MXF Video (MPEG-2, PCM)"_key,
     .group = "editing",
     .container = "mxf",
     .video = "mpeg2video",
     .sound = "pcm_s16le"},
    {.id = "mxf-dnxhr",
     .name = "MXF Video (DNxHR, PCM)"_key,
     .group = "editing",
     .container = "mxf",
     .video = "dnxhd",
     .sound = "pcm_s16le"},
    {.id = "avi-mjpeg",
     .name = "AVI Video (Motion JPEG, PCM)"_key,
     .group = "editing",
     .container = "avi",
     .video = "mjpeg",
     .sound = "pcm_s16le"},
    {.id = "dv",
     .name = "DV Video"_key,
     .group = "editing",
     .container = "dv",
     .video = "dvvideo",
     .sound = "pcm_s16le",
     .isPlain = true},

    {.id = "phone",
     .name = "Phone"_key,
     .group = "devices",
     .container = "mp4",
     .video = "h264",
     .sound = "aac",
     .maximumWidth = 1280,
     .maximumHeight = 1280,
     .maximumFrameRate = 60,
     .channels = 2,
     .isPlain = true,
     .quality = 23},
    {.id = "phone-h265",
     .name = "Phone (H.265)"_key,
     .group = "devices",
     .container = "mp4",
     .video = "hevc",
     .sound = "aac",
     .maximumWidth = 1920,
     .maximumHeight = 1920,
     .maximumFrameRate = 60,
     .channels = 2,
     .isPlain = true},
    {.id = "old-phone",
     .name = "Old Phone (3GP)"_key,
     .group = "devices",
     .container = "3gp",
     .video = "mpeg4",
     .sound = "aac",
     .maximumWidth = 320,
     .maximumHeight = 240,
     .maximumFrameRate = 25,
     .channels = 2,
     .isPlain = true},
    {.id = "tablet",
     .name = "Tablet"_key,
     .group = "devices",
     .container = "mp4",
     .video = "h264",
     .sound = "aac",
     .maximumWidth = 1920,
     .maximumHeight = 1920,
     .maximumFrameRate = 60,
     .channels = 2,
     .isPlain = true},
    {.id = "tv-1080p",
     .name = "TV (1080p)"_key,
     .group = "devices",
     .container = "mp4",
     .video = "h264",
     .sound = "ac3",
     .maximumWidth = 1920,
     .maximumHeight = 1080,
     .maximumFrameRate = 60,
     .channels = 6,
     .isPlain = true},
    {.id = "tv-2160p",
     .name = "TV (4K, HDR)"_key,
     .group = "devices",
     .container = "mkv",
     .video = "hevc",
     .sound = "eac3",
     .maximumWidth = 3840,
     .maximumHeight = 2160,
     .maximumFrameRate = 60,
     .channels = 6},
    {.id = "console",
     .name = "Game Console"_key,
     .group = "devices",
     .container = "mp4",
     .video = "h264",
     .sound = "aac",
     .maximumWidth = 1920,
     .maximumHeight = 1080,
     .maximumFrameRate = 60,
     .channels = 6,
     .isPlain = true},
    {.id = "disc-player",
     .name = "Disc Player (VOB)"_key,
     .group = "devices",
     .container = "vob",
     .video = "mpeg2video",
     .sound = "ac3",
     .maximumWidth = 720,
     .maximumHeight = 576,
     .maximumFrameRate = 30,
     .channels = 6,
     .isPlain = true},
    {.id = "ts-h264",
     .name = "TS Video (H.264, AC-3)"_key,
     .group = "devices",
     .container = "ts",
     .video = "h264",
     .sound = "ac3",
     .isPlain = true},

    {.id = "mp3", .name = "MP3 Audio"_key, .group = "sound", .container = "mp3", .video = nullptr, .sound = "mp3"},
    {.id = "m4a-aac",
     .name = "M4A Audio (AAC)"_key,
     .group = "sound",
     .container = "m4a",
     .video = nullptr,
     .sound = "aac"},
    {.id = "m4a-alac",
     .name = "M4A Audio, Lossless (ALAC)"_key,
     .group = "sound",
     .container = "m4a",
     .video = nullptr,
     .sound = "alac"},
    {.id = "flac", .name = "FLAC Audio"_key, .group = "sound", .container = "flac", .video = nullptr, .sound = "flac"},
    {.id = "wav",
     .name = "WAV Audio"_key,
     .group = "sound",
     .container = "wav",
     .video = nullptr,
     .sound = "pcm_s16le"},
    {.id = "aiff",
     .name = "AIFF Audio"_key,
     .group = "sound",
     .container = "aiff",
     .video = nullptr,
     .sound = "pcm_s16be"},
    {.id = "ogg-vorbis",
     .name = "OGG Audio (Vorbis)"_key,
     .group = "sound",
     .container = "ogg",
     .video = nullptr,
     .sound = "vorbis"},
    {.id = "opus", .name = "Opus Audio"_key, .group = "sound", .container = "opus", .video = nullptr, .sound = "opus"},
    {.id = "wma", .name = "WMA Audio"_key, .group = "sound", .container = "wma", .video = nullptr, .sound = "wmav2"},
    {.id = "ac3", .name = "AC-3 Audio"_key, .group = "sound", .container = "ac3", .video = nullptr, .sound = "ac3"},
    {.id = "eac3",
     .name = "E-AC-3 Audio"_key,
     .group = "sound",
     .container = "eac3",
     .video = nullptr,
     .sound = "eac3"},
    {.id = "mka-opus",
     .name = "MKA Audio (Opus)"_key,
     .group = "sound",
     .container = "mka",
     .video = nullptr,
     .sound = "opus"},
    {.id = "caf",
     .name = "CAF Audio (ALAC)"_key,
     .group = "sound",
     .container = "caf",
     .video = nullptr,
     .sound = "alac"},
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
            .maximumWidth = row.maximumWidth,
            .maximumHeight = row.maximumHeight,
            .maximumFrameRate = row.maximumFrameRate,
            .audioChannels = row.channels,
            .plainVideo = row.isPlain,
            .quality = row.quality,
            .bestQuality = row.bestQuality};
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
        {"prores", "pcm_s16le"}, {"dnxhd", "pcm_s16le"},   {"dvvideo", "pcm_s16le"}, {"ffv1", "flac"},
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
