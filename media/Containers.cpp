#include "Containers.h"

#include "Encoders.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using enum Container::Trait;

constexpr unsigned filmTraits =
    VariableRate | Upright | Chapters | Covers | ManySounds | TrackNames | HandlerNames | TellsLength;
constexpr unsigned matroskaTraits =
    VariableRate | Chapters | AttachedCovers | Attachments | ManySounds | TrackNames | TellsLength;
constexpr const char *fastStart = "-movflags +faststart";
constexpr const char *broadcastRates = "24000/1001 24 25 30000/1001 30 50 60000/1001 60";
constexpr const char *plainText = "subrip ass ssa webvtt text";
constexpr const char *discPictures = "hdmv_pgs_subtitle dvd_subtitle dvb_subtitle";

constexpr Container containerTable[] = {
    {.id = "mp4",
     .name = "MP4",
     .muxer = "mp4",
     .extension = "mp4",
     .traits = filmTraits,
     .video = "h264 hevc av1 vp9 mpeg4 mpeg2video mpeg1video mjpeg png",
     .sound = "aac ac3 alac dts eac3 mp3 opus truehd vorbis",
     .text = "mov_text",
     .keptText = "mov_text",
     .bitmaps = "dvd_subtitle",
     // TrueHD is young here.
     .arguments = "-movflags +faststart -strict experimental"},
    {.id = "mkv",
     .name = "MKV",
     .muxer = "matroska",
     .extension = "mkv",
     .traits = matroskaTraits,
     .video = "h264 hevc av1 vp9 vp8 mpeg4 mpeg2video mpeg1video ffv1 mjpeg theora prores dnxhd dvvideo flv1 h263 "
              "huffyuv png utvideo wmv2",
     .sound = "aac ac3 adpcm_ima_wav alac dts eac3 flac mp2 mp3 opus pcm_s16be pcm_s16le speex truehd vorbis "
              "wavpack wmav2",
     .keptVideo = "vc1 wmv1 wmv3 msmpeg4v2 msmpeg4v3 rv30 rv40",
     .keptSound = "pcm_s24le pcm_s32le pcm_f32le pcm_u8 mlp wmav1 wmapro",
     .text = "srt",
     .keptText = plainText,
     .bitmaps = discPictures,
     .arguments = "-default_mode passthrough"},
    {.id = "mov",
     .name = "MOV",
     .muxer = "mov",
     .extension = "mov",
     .traits = filmTraits,
     .video = "h264 hevc prores dnxhd mjpeg mpeg4 mpeg2video mpeg1video dvvideo cinepak ffv1 flv1 h263 huffyuv png "
              "theora utvideo wmv2",
     .sound = "aac ac3 adpcm_ima_wav alac dts eac3 mp2 mp3 pcm_s16be pcm_s16le speex vorbis",
     .keptSound = "pcm_s24le pcm_s24be pcm_s32le pcm_f32le",
     .text = "mov_text",
     .keptText = "mov_text",
     .arguments = fastStart},
    {.id = "webm",
     .name = "WebM",
     .muxer = "webm",
     .extension = "webm",
     .traits = VariableRate | Chapters | ManySounds | TrackNames | TellsLength,
     .video = "vp9 av1 vp8",
     .sound = "opus vorbis",
     .text = "webvtt",
     .keptText = "webvtt",
     .arguments = "-default_mode passthrough"},
    {.id = "avi",
     .name = "AVI",
     .muxer = "avi",
     .extension = "avi",
     .traits = ManySounds,
     .video = "mpeg4 h264 mjpeg mpeg2video mpeg1video dvvideo ffv1 huffyuv utvideo av1 cinepak dnxhd flv1 h263 png "
              "prores theora vp8 vp9 wmv2",
     .sound = "mp3 aac ac3 adpcm_ima_wav dts eac3 mp2 pcm_s16le speex vorbis wmav2",
     .keptVideo = "msmpeg4v2 msmpeg4v3 wmv1",
     .keptSound = "pcm_u8 pcm_s24le wmav1"},
    {.id = "wmv",
     .name = "WMV",
     .muxer = "asf",
     .extension = "wmv",
     .traits = Chapters | ManySounds | TrackNames | TellsLength,
     .video = "wmv2 h264 mpeg4 mpeg2video mpeg1video mjpeg av1 cinepak dvvideo ffv1 flv1 h263 huffyuv png theora "
              "utvideo vp8 vp9",
     .sound = "wmav2 aac ac3 adpcm_ima_wav dts eac3 mp2 mp3 pcm_s16le speex vorbis",
     .keptVideo = "wmv1 wmv3 vc1",
     .keptSound = "wmav1 wmapro"},
    {.id = "mpg",
     .name = "MPG",
     .muxer = "mpeg",
     .extension = "mpg",
     .traits = ManySounds,
     .video = "mpeg2video mpeg1video",
     .sound = "mp2 ac3 dts mp3",
     .sampleRate = 48000},
    {.id = "vob",
     .name = "VOB",
     .muxer = "vob",
     .extension = "vob",
     .traits = ManySounds,
     .video = "mpeg2video mpeg1video",
     .sound = "ac3 dts mp2 mp3",
     .bitmaps = "dvd_subtitle",
     .sampleRate = 48000},
    {.id = "ts",
     .name = "TS",
     .muxer = "mpegts",
     .extension = "ts",
     .traits = VariableRate | ManySounds | TrackNames,
     .video = "h264 hevc mpeg2video mpeg1video mpeg4",
     .sound = "aac ac3 dts eac3 mp2 mp3 opus",
     .bitmaps = "dvb_subtitle"},
    {.id = "m2ts",
     .name = "M2TS",
     .muxer = "mpegts",
     .extension = "m2ts",
     .traits = VariableRate | ManySounds | TrackNames,
     .video = "h264 hevc mpeg2video mpeg1video mpeg4",
     .sound = "ac3 aac dts eac3 mp2 mp3 opus truehd",
     .bitmaps = "hdmv_pgs_subtitle",
     .arguments = "-mpegts_m2ts_mode 1"},
    {.id = "flv",
     .name = "FLV",
     .muxer = "flv",
     .extension = "flv",
     .traits = TellsLength,
     .video = "h264 flv1",
     .sound = "aac mp3",
     .sampleRate = 44100,
     .channels = 2},
    {.id = "f4v",
     .name = "F4V",
     .muxer = "f4v",
     .extension = "f4v",
     .traits = VariableRate | TellsLength,
     .video = "h264",
     .sound = "aac mp3",
     .arguments = fastStart},
    {.id = "3gp",
     .name = "3GP",
     .muxer = "3gp",
     .extension = "3gp",
     .traits = VariableRate | Upright | TellsLength,
     .video = "h264 mpeg4 h263",
     .sound = "aac"},
    {.id = "3g2",
     .name = "3G2",
     .muxer = "3g2",
     .extension = "3g2",
     .traits = VariableRate | Upright | TellsLength,
     .video = "h264 mpeg4 h263",
     .sound = "aac"},
    {.id = "m4v",
     .name = "M4V",
     .muxer = "ipod",
     .extension = "m4v",
     .traits = filmTraits,
     .video = "h264 mpeg4",
     .sound = "aac ac3 alac",
     .text = "mov_text",
     .keptText = "mov_text",
     .arguments = fastStart},
    {.id = "ogv",
     .name = "OGV",
     .muxer = "ogv",
     .extension = "ogv",
     .traits = ManySounds | TrackNames,
     .video = "theora vp8",
     .sound = "vorbis opus flac speex"},
    {.id = "mxf",
     .name = "MXF",
     .muxer = "mxf",
     .extension = "mxf",
     .traits = ManySounds | TellsLength,
     .video = "mpeg2video dnxhd dvvideo",
     .sound = "pcm_s16le",
     .keptSound = "pcm_s24le",
     .rates = broadcastRates,
     .sampleRate = 48000},
    {.id = "gif", .name = "GIF", .muxer = "gif", .extension = "gif", .traits = VariableRate, .video = "gif"},
    {.id = "apng", .name = "APNG", .muxer = "apng", .extension = "png", .traits = VariableRate, .video = "apng"},
    {.id = "nut",
     .name = "NUT",
     .muxer = "nut",
     .extension = "nut",
     .traits = VariableRate | Chapters | ManySounds | TrackNames,
     .video = "h264 hevc av1 cinepak dnxhd dvvideo ffv1 flv1 h263 huffyuv mjpeg mpeg1video mpeg2video mpeg4 png "
              "prores theora utvideo vp8 vp9 wmv2",
     .sound = "aac ac3 adpcm_ima_wav dts mp2 mp3 opus pcm_s16be pcm_s16le speex vorbis wavpack"},
    {.id = "wtv",
     .name = "WTV",
     .muxer = "wtv",
     .extension = "wtv",
     .traits = 0,
     .video = "mpeg2video h264 av1 cinepak dvvideo flv1 h263 huffyuv mpeg1video mpeg4 png vp8 vp9",
     .sound = "mp2 ac3 adpcm_ima_wav dts eac3 mp3 pcm_s16le speex vorbis wmav2"},
    {.id = "ivf", .name = "IVF", .muxer = "ivf", .extension = "ivf", .traits = VariableRate, .video = "av1 vp8 vp9"},
    {.id = "dv",
     .name = "DV",
     .muxer = "dv",
     .extension = "dv",
     .traits = StereoOnly,
     .video = "dvvideo",
     .sound = "pcm_s16le",
     .sampleRate = 48000,
     .channels = 2},
    {.id = "rm", .name = "RM", .muxer = "rm", .extension = "rm", .video = "rv20", .sound = "ac3"},

    {.id = "mp3",
     .name = "MP3",
     .muxer = "mp3",
     .extension = "mp3",
     .traits = Covers | Chapters,
     .sound = "mp3",
     .arguments = "-id3v2_version 3"},
    {.id = "m4a",
     .name = "M4A",
     .muxer = "ipod",
     .extension = "m4a",
     .traits = Chapters | Covers | ManySounds | TrackNames | HandlerNames | TellsLength,
     .sound = "aac ac3 alac",
     .arguments = fastStart},
    {.id = "flac",
     .name = "FLAC",
     .muxer = "flac",
     .extension = "flac",
     .traits = Covers | TellsLength,
     .sound = "flac"},
    {.id = "wav",
     .name = "WAV",
     .muxer = "wav",
     .extension = "wav",
     .traits = TellsLength,
     .sound = "pcm_s16le ac3 adpcm_ima_wav dts eac3 flac mp2 mp3 wmav2",
     .keptSound = "pcm_u8 pcm_s24le pcm_s32le pcm_f32le",
     .arguments = "-rf64 auto"},
    {.id = "aiff",
     .name = "AIFF",
     .muxer = "aiff",
     .extension = "aiff",
     .traits = Covers | Chapters | TellsLength,
     .sound = "pcm_s16be pcm_s16le",
     .keptSound = "pcm_s24be",
     .arguments = "-write_id3v2 1"},
    {.id = "ogg", .name = "OGG", .muxer = "ogg", .extension = "ogg", .traits = 0, .sound = "vorbis opus flac speex"},
    {.id = "opus", .name = "Opus", .muxer = "opus", .extension = "opus", .traits = Chapters, .sound = "opus"},
    {.id = "spx", .name = "SPX", .muxer = "spx", .extension = "spx", .traits = 0, .sound = "speex"},
    {.id = "wma",
     .name = "WMA",
     .muxer = "asf",
     .extension = "wma",
     .traits = Chapters | TellsLength,
     .sound = "wmav2 aac ac3 adpcm_ima_wav dts eac3 mp2 mp3 pcm_s16le speex vorbis",
     .keptSound = "wmav1 wmapro"},
    {.id = "mka",
     .name = "MKA",
     .muxer = "matroska",
     .extension = "mka",
     .traits = matroskaTraits & ~VariableRate,
     .sound = "aac ac3 adpcm_ima_wav alac dts eac3 flac mp2 mp3 opus pcm_s16be pcm_s16le speex truehd vorbis "
              "wavpack wmav2",
     .keptSound = "pcm_s24le pcm_s32le pcm_f32le pcm_u8 mlp wmav1 wmapro",
     .arguments = "-default_mode passthrough"},
    {.id = "caf",
     .name = "CAF",
     .muxer = "caf",
     .extension = "caf",
     .traits = TellsLength,
     .sound = "alac ac3 adpcm_ima_wav mp2 mp3 opus pcm_s16be pcm_s16le"},
    {.id = "w64",
     .name = "W64",
     .muxer = "w64",
     .extension = "w64",
     .traits = TellsLength,
     .sound = "pcm_s16le ac3 adpcm_ima_wav dts eac3 flac mp2 mp3 wmav2",
     .keptSound = "pcm_s24le pcm_s32le pcm_f32le"},
    {.id = "ac3", .name = "AC-3", .muxer = "ac3", .extension = "ac3", .sound = "ac3"},
    {.id = "eac3", .name = "E-AC-3", .muxer = "eac3", .extension = "eac3", .sound = "eac3"},
    {.id = "dts", .name = "DTS", .muxer = "dts", .extension = "dts", .sound = "dts"},
    {.id = "thd", .name = "TrueHD", .muxer = "truehd", .extension = "thd", .sound = "truehd"},
    {.id = "mp2", .name = "MP2", .muxer = "mp2", .extension = "mp2", .sound = "mp2"},
    {.id = "aac", .name = "AAC", .muxer = "adts", .extension = "aac", .sound = "aac"},
    {.id = "wv", .name = "WV", .muxer = "wv", .extension = "wv", .traits = TellsLength, .sound = "wavpack"},
    {.id = "tta", .name = "TTA", .muxer = "tta", .extension = "tta", .traits = TellsLength, .sound = "tta"},
    {.id = "au", .name = "AU", .muxer = "au", .extension = "au", .traits = TellsLength, .sound = "pcm_s16be"},
    {.id = "voc", .name = "VOC", .muxer = "voc", .extension = "voc", .sound = "pcm_s16le"},
    {.id = "ra", .name = "RA", .muxer = "rm", .extension = "ra", .sound = "ac3"},
};

bool stands(const char *list, const QString &word)
{
    return !word.isEmpty() && tableWords(list).contains(word);
}

}  // namespace

bool Container::holdsVideo(const QString &codec) const
{
    return stands(video, codec) || stands(keptVideo, codec);
}

bool Container::holdsSound(const QString &codec) const
{
    return stands(sound, codec) || stands(keptSound, codec);
}

std::span<const Container> containers()
{
    return containerTable;
}

const Container *containerOf(const QString &muxer, const QString &extension)
{
    const auto row = std::ranges::find_if(containerTable, [&](const Container &each) {
        return muxer == QLatin1StringView(each.muxer) && extension == QLatin1StringView(each.extension);
    });
    return row == std::end(containerTable) ? nullptr : row;
}

const Container *containerOf(const Preset &preset)
{
    return containerOf(preset.container, preset.extension);
}

}  // namespace kestrel
