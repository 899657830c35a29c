#include "Encoders.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr const char *mpegRates = "24000/1001 24 25 30000/1001 30 50 60000/1001 60";
constexpr const char *anyYuv = "yuv420p yuv422p yuv444p yuv420p10le yuv422p10le yuv444p10le";

// Where a codec stands twice, the first one is taken that the machine has.
constexpr VideoEncoder videoTable[] = {
    {.codec = "h264",
     .name = "H.264",
     .encoder = "libx264",
     .quality = "-crf",
     .usual = 21,
     .best = 18,
     .finest = 1,
     .least = 51,
     .speeds = {"-preset slower", "-preset slow", "-preset medium", "-preset fast", "-preset veryfast"},
     .pixelFormats = anyYuv,
     .bitsPerPixel = 0.11,
     .hardware = "h264_vaapi",
     .twoPasses = true},
    {.codec = "hevc",
     .name = "H.265",
     .encoder = "libx265",
     .quality = "-crf",
     .usual = 24,
     .best = 21,
     .finest = 1,
     .least = 51,
     .speeds = {"-preset slower", "-preset slow", "-preset medium", "-preset fast", "-preset veryfast"},
     .pixelFormats = anyYuv,
     .bitsPerPixel = 0.07,
     .hardware = "hevc_vaapi",
     .twoPasses = true,
     .holdsHdr = true,
     .writesMastering = true},
    {.codec = "av1",
     .name = "AV1",
     .encoder = "libsvtav1",
     .quality = "-crf",
     .usual = 35,
     .best = 28,
     .finest = 1,
     .least = 63,
     .speeds = {"-preset 4", "-preset 5", "-preset 8", "-preset 10", "-preset 12"},
     .pixelFormats = "yuv420p yuv420p10le",
     .bitsPerPixel = 0.06,
     .holdsHdr = true,
     .writesMastering = true},
    {.codec = "av1",
     .name = "AV1",
     .encoder = "libaom-av1",
     .arguments = "-row-mt 1",
     .quality = "-crf",
     .usual = 33,
     .best = 27,
     .finest = 1,
     .least = 63,
     .speeds = {"-cpu-used 3", "-cpu-used 4", "-cpu-used 6", "-cpu-used 7", "-cpu-used 8"},
     .pixelFormats = "yuv420p yuv420p10le",
     .bitsPerPixel = 0.06,
     .twoPasses = true,
     .holdsHdr = true},
    {.codec = "vp9",
     .name = "VP9",
     .encoder = "libvpx-vp9",
     .arguments = "-row-mt 1",
     .quality = "-crf",
     .usual = 33,
     .best = 28,
     .finest = 1,
     .least = 63,
     .speeds = {"-deadline good -cpu-used 1", "-deadline good -cpu-used 2", "-deadline good -cpu-used 4",
                "-deadline good -cpu-used 5", "-deadline realtime -cpu-used 7"},
     .pixelFormats = "yuv420p yuv422p yuv444p yuv420p10le yuv422p10le yuv444p10le",
     .bitsPerPixel = 0.07,
     .twoPasses = true,
     .holdsHdr = true},
    {.codec = "vp8",
     .name = "VP8",
     .encoder = "libvpx",
     .quality = "-crf",
     .usual = 12,
     .best = 8,
     .finest = 4,
     .least = 63,
     .speeds = {"-deadline good -cpu-used 0", "-deadline good -cpu-used 1", "-deadline good -cpu-used 3",
                "-deadline good -cpu-used 5", "-deadline realtime -cpu-used 8"},
     .bitsPerPixel = 0.12,
     .twoPasses = true},
    {.codec = "mpeg4",
     .name = "MPEG-4",
     .encoder = "mpeg4",
     .quality = "-q:v",
     .usual = 4,
     .best = 2,
     .finest = 2,
     .least = 31,
     .bitsPerPixel = 0.2,
     .twoPasses = true,
     .isSteady = true},
    {.codec = "mpeg2video",
     .name = "MPEG-2",
     .encoder = "mpeg2video",
     .arguments = "-g 15 -bf 2",
     .quality = "-q:v",
     .usual = 4,
     .best = 2,
     .finest = 2,
     .least = 31,
     .pixelFormats = "yuv420p yuv422p",
     .bitsPerPixel = 0.25,
     .twoPasses = true,
     .isSteady = true,
     .rates = mpegRates},
    {.codec = "mpeg1video",
     .name = "MPEG-1",
     .encoder = "mpeg1video",
     .arguments = "-g 15 -bf 2",
     .quality = "-q:v",
     .usual = 4,
     .best = 2,
     .finest = 2,
     .least = 31,
     .bitsPerPixel = 0.25,
     .twoPasses = true,
     .isSteady = true,
     .rates = mpegRates,
     .maximumWidth = 4080,
     .maximumHeight = 4080},
    {.codec = "wmv2",
     .name = "WMV 8",
     .encoder = "wmv2",
     .quality = "-q:v",
     .usual = 4,
     .best = 2,
     .finest = 2,
     .least = 31,
     .bitsPerPixel = 0.22,
     .twoPasses = true,
     .isSteady = true},
    {.codec = "flv1",
     .name = "Sorenson",
     .encoder = "flv",
     .quality = "-q:v",
     .usual = 4,
     .best = 2,
     .finest = 2,
     .least = 31,
     .bitsPerPixel = 0.22,
     .twoPasses = true,
     .isSteady = true},
    {.codec = "h263",
     .name = "H.263",
     .encoder = "h263",
     .quality = "-q:v",
     .usual = 4,
     .best = 2,
     .finest = 2,
     .least = 31,
     .bitsPerPixel = 0.22,
     .twoPasses = true,
     .isSteady = true,
     .sizes = "128x96 176x144 352x288 704x576 1408x1152",
     .sampleAspect = 12.0 / 11,
     .rates = "15 24000/1001 25 30000/1001 30"},
    {.codec = "rv20",
     .name = "RealVideo",
     .encoder = "rv20",
     .quality = "-q:v",
     .usual = 4,
     .best = 2,
     .finest = 2,
     .least = 31,
     .bitsPerPixel = 0.22,
     .twoPasses = true,
     .isSteady = true,
     .multiple = 16,
     .maximumWidth = 1024,
     .maximumHeight = 1024},
    {.codec = "theora",
     .name = "Theora",
     .encoder = "libtheora",
     .quality = "-q:v",
     .usual = 7,
     .best = 9,
     .finest = 10,
     .least = 1,
     .pixelFormats = "yuv420p yuv422p yuv444p",
     .bitsPerPixel = 0.15,
     .twoPasses = true,
     .isSteady = true},
    {.codec = "mjpeg",
     .name = "Motion JPEG",
     .encoder = "mjpeg",
     .quality = "-q:v",
     .usual = 3,
     .best = 2,
     .finest = 2,
     .least = 31,
     .pixelFormats = "yuvj420p yuvj422p yuvj444p",
     .bitsPerPixel = 1.6},
    {.codec = "prores",
     .name = "ProRes",
     .encoder = "prores_ks",
     .arguments = "-vendor apl0",
     .pixelFormats = "yuv422p10le yuv444p10le yuva444p10le",
     .bitsPerPixel = 3,
     .holdsHdr = true},
    {.codec = "dnxhd",
     .name = "DNxHR",
     .encoder = "dnxhd",
     .pixelFormats = "yuv422p yuv422p10le",
     .bitsPerPixel = 3,
     .holdsHdr = true},
    {.codec = "dvvideo",
     .name = "DV",
     .encoder = "dvvideo",
     .pixelFormats = "yuv420p yuv411p",
     .bitsPerPixel = 2.8,
     .isSteady = true,
     .sizes = "720x480 720x576",
     .rates = "25 30000/1001"},
    {.codec = "cinepak", .name = "Cinepak", .encoder = "cinepak", .bitsPerPixel = 1, .multiple = 4},
    {.codec = "ffv1",
     .name = "FFV1",
     .encoder = "ffv1",
     .arguments = "-level 3 -g 1 -slicecrc 1",
     .pixelFormats =
         "yuv420p yuv422p yuv444p yuv420p10le yuv422p10le yuv444p10le yuv420p12le yuv422p12le "
         "yuv444p12le yuv420p16le yuv422p16le yuv444p16le yuva420p yuva422p yuva444p yuva420p10le "
         "yuva422p10le yuva444p10le yuva420p16le yuva422p16le yuva444p16le bgr0 bgra gbrp10le gbrp12le "
         "gbrp16le gbrap10le gbrap12le gbrap16le yuv411p yuv410p yuv440p yuv440p10le yuv440p12le gray gray10le "
         "gray12le gray16le",
     .bitsPerPixel = 6,
     .holdsHdr = true,
     .isLossless = true,
     .multiple = 1},
    {.codec = "huffyuv",
     .name = "HuffYUV",
     .encoder = "huffyuv",
     .pixelFormats = "yuv422p rgb24 bgra",
     .bitsPerPixel = 9,
     .isLossless = true},
    {.codec = "utvideo",
     .name = "Ut Video",
     .encoder = "utvideo",
     .pixelFormats = "yuv420p yuv422p yuv444p gbrp gbrap",
     .bitsPerPixel = 8,
     .isLossless = true},
    {.codec = "png",
     .name = "PNG",
     .encoder = "png",
     .pixelFormats = "rgb24 rgba",
     .bitsPerPixel = 12,
     .isLossless = true,
     .multiple = 1},
    {.codec = "apng",
     .name = "APNG",
     .encoder = "apng",
     .arguments = "-plays 0",
     .pixelFormats = "rgb24 rgba",
     .bitsPerPixel = 10,
     .isLossless = true,
     .multiple = 1},
    {.codec = "gif", .name = "GIF", .encoder = "gif", .pixelFormats = "pal8", .bitsPerPixel = 3, .multiple = 1},
};

constexpr const char *anyLayout = "mono stereo 3.0 4.0 5.0 5.1 6.1 7.1";
constexpr const char *fewLayouts = "mono stereo";
constexpr const char *upTo51 = "mono stereo 3.0 4.0 5.0 5.1";
constexpr const char *mp3BitRates = "32 40 48 56 64 80 96 112 128 160 192 224 256 320";
constexpr const char *mp2BitRates = "32 48 56 64 80 96 112 128 160 192 224 256 320 384";
constexpr const char *ac3BitRates = "64 80 96 112 128 160 192 224 256 320 384 448 512 576 640";

constexpr SoundEncoder soundTable[] = {
    {.codec = "aac", .name = "AAC", .encoder = "aac", .usual = 80, .best = 128, .layouts = anyLayout, .most = 1024},
    {.codec = "mp3",
     .name = "MP3",
     .encoder = "libmp3lame",
     .usual = 96,
     .best = 128,
     .usualQuality = "2",
     .bestQuality = "0",
     .layouts = fewLayouts,
     .bitRates = mp3BitRates},
    {.codec = "opus",
     .name = "Opus",
     .encoder = "libopus",
     .usual = 64,
     .best = 96,
     .layouts = "mono stereo 3.0 quad 5.0 5.1 6.1 7.1",
     .most = 1024},
    {.codec = "vorbis",
     .name = "Vorbis",
     .encoder = "libvorbis",
     .usual = 80,
     .best = 112,
     .usualQuality = "5",
     .bestQuality = "7",
     .layouts = "mono stereo 3.0 quad 5.0 5.1 6.1 7.1"},
    {.codec = "ac3",
     .name = "AC-3",
     .encoder = "ac3",
     .usual = 93,
     .best = 128,
     .layouts = upTo51,
     .bitRates = ac3BitRates},
    {.codec = "eac3", .name = "E-AC-3", .encoder = "eac3", .usual = 80, .best = 112, .layouts = upTo51, .most = 1024},
    {.codec = "dts",
     .name = "DTS",
     .encoder = "dca",
     .arguments = "-strict experimental",
     .usual = 384,
     .best = 384,
     .layouts = "mono stereo quad 5.0 5.1",
     .bitRates = "384 768 1536"},
    {.codec = "truehd",
     .name = "TrueHD",
     .encoder = "truehd",
     .arguments = "-strict experimental",
     .layouts = "stereo 5.0 5.1",
     .sampleRates = "44100 48000 96000"},
    {.codec = "mp2",
     .name = "MP2",
     .encoder = "mp2",
     .usual = 112,
     .best = 160,
     .layouts = fewLayouts,
     .bitRates = mp2BitRates,
     .sampleRates = "32000 44100 48000"},
    {.codec = "wmav2",
     .name = "WMA",
     .encoder = "wmav2",
     .usual = 80,
     .best = 112,
     .layouts = fewLayouts,
     .sampleRates = "22050 32000 44100 48000",
     .most = 320},
    {.codec = "flac", .name = "FLAC", .encoder = "flac", .layouts = anyLayout},
    {.codec = "alac", .name = "ALAC", .encoder = "alac", .layouts = "mono stereo 3.0 4.0 5.0 5.1 6.1(back) 7.1(wide)"},
    {.codec = "wavpack", .name = "WavPack", .encoder = "wavpack", .layouts = anyLayout},
    {.codec = "tta", .name = "TTA", .encoder = "tta", .layouts = anyLayout},
    {.codec = "speex",
     .name = "Speex",
     .encoder = "libspeex",
     .usual = 32,
     .best = 42,
     .layouts = fewLayouts,
     .sampleRates = "8000 16000 32000",
     .most = 44},
    {.codec = "adpcm_ima_wav", .name = "ADPCM", .encoder = "adpcm_ima_wav", .layouts = fewLayouts},
    {.codec = "pcm_s16le", .name = "PCM", .encoder = "pcm_s16le", .layouts = anyLayout},
    {.codec = "pcm_s16be", .name = "PCM", .encoder = "pcm_s16be", .layouts = anyLayout},
    {.codec = "pcm_s24le", .name = "PCM", .encoder = "pcm_s24le", .layouts = anyLayout},
    {.codec = "pcm_s24be", .name = "PCM", .encoder = "pcm_s24be", .layouts = anyLayout},
};

struct CodecName {
    const char *codec;
    const char *name;
};

// Codecs that are read and kept but not made
constexpr CodecName furtherNames[] = {
    {"vc1", "VC-1"},
    {"wmv3", "WMV 9"},
    {"msmpeg4v3", "MPEG-4 v3"},
    {"rawvideo", "RGB/YUV"},
    {"subrip", "SRT"},
    {"mov_text", "MP4 text"},
    {"webvtt", "WebVTT"},
    {"ass", "ASS"},
    {"hdmv_pgs_subtitle", "PGS"},
    {"dvd_subtitle", "VobSub"},
    {"dvb_subtitle", "DVB"},
};

template <typename Encoder>
bool makes(const Encoder &row, QStringView codec, const QStringList &missing)
{
    return codec == QLatin1StringView(row.codec) && !missing.contains(QLatin1StringView(row.encoder));
}

}  // namespace

std::span<const VideoEncoder> videoEncoders()
{
    return videoTable;
}

std::span<const SoundEncoder> soundEncoders()
{
    return soundTable;
}

const VideoEncoder *videoEncoderOf(QStringView codec, const QStringList &missing)
{
    const auto row = std::ranges::find_if(videoTable, [&](const auto &each) { return makes(each, codec, missing); });
    return row == std::end(videoTable) ? nullptr : row;
}

const SoundEncoder *soundEncoderOf(QStringView codec, const QStringList &missing)
{
    const auto row = std::ranges::find_if(soundTable, [&](const auto &each) { return makes(each, codec, missing); });
    return row == std::end(soundTable) ? nullptr : row;
}

QStringList missingEncoders(const QStringList &there)
{
    QStringList missing;
    const auto look = [&](const auto &rows) {
        for (const auto &row : rows) {
            if (const QString name = QString::fromLatin1(row.encoder); !there.contains(name))
                missing.append(name);
        }
    };
    look(videoTable);
    look(soundTable);
    return missing;
}

QString codecLabel(const QString &codec)
{
    if (const VideoEncoder *video = videoEncoderOf(codec))
        return QString::fromLatin1(video->name);
    if (const SoundEncoder *sound = soundEncoderOf(codec))
        return QString::fromLatin1(sound->name);
    for (const CodecName &row : furtherNames) {
        if (codec == QLatin1StringView(row.codec))
            return QString::fromLatin1(row.name);
    }
    return codec;
}

QStringList tableWords(const char *words)
{
    return QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts);
}

}  // namespace kestrel
