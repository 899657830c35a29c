#include "TranscodeCommand.h"

#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/SystemInformation.h"

#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr ConversionTarget targetTable[] = {
    {.name = QT_TRANSLATE_NOOP("TarnwellPublic", "MP4 Video (H.264, AAC)"),
     .extension = "mp4",
     .container = "-f mp4 -movflags +faststart",
     .video = "-c:v libx264",
     .videoQuality = "-preset medium -crf 21",
     .videoBest = "-preset slow -crf 18",
     .audio = "-c:a aac",
     .audioQuality = "-b:a 160k",
     .audioBest = "-b:a 256k",
     .keptVideo = "AVC",
     .keptAudio = "AAC",
     .hardwareVideo = true},
    {.name = QT_TRANSLATE_NOOP("TarnwellPublic", "MKV Video (H.264, AAC)"),
     .extension = "mkv",
     .container = "-f matroska",
     .video = "-c:v libx264",
     .videoQuality = "-preset medium -crf 21",
     .videoBest = "-preset slow -crf 18",
     .audio = "-c:a aac",
     .audioQuality = "-b:a 160k",
     .audioBest = "-b:a 256k",
     .keptVideo = "AVC",
     .keptAudio = "AAC",
     .hardwareVideo = true},
    {.name = QT_TRANSLATE_NOOP("TarnwellPublic", "WebM Video (VP9, Opus)"),
     .extension = "webm",
     .container = "-f webm",
     .video = "-c:v libvpx-vp9 -b:v 0 -row-mt 1 -deadline good",
     .videoQuality = "-cpu-used 4 -crf 33",
     .videoBest = "-cpu-used 1 -crf 28",
     // The encoder refuses some surround layouts under their broadcast names.
     .audio = "-c:a libopus -af aformat=channel_layouts=7.1|5.1|stereo|mono",
     .audioQuality = "-b:a 128k",
     .audioBest = "-b:a 192k",
     .keptVideo = "VP9",
     .keptAudio = "Opus",
     .hardwareVideo = false},
    {.name = QT_TRANSLATE_NOOP("TarnwellPublic", "MP3 Audio"),
     .extension = "mp3",
     .container = "-f mp3",
     .video = nullptr,
     .videoQuality = nullptr,
     .videoBest = nullptr,
     .audio = "-c:a libmp3lame",
     .audioQuality = "-q:a 2",
     .audioBest = "-q:a 0",
     .keptVideo = nullptr,
     .keptAudio = "MPEG Audio Layer 3",
     .hardwareVideo = false},
};

QStringList splitArguments(const char *arguments)
{
    return QString::fromLatin1(arguments).split(u' ', Qt::SkipEmptyParts);
}

bool isKept(const char *codecs, const QString &codec)
{
    return !codec.isEmpty() && QString::fromLatin1(codecs).split(u'|').contains(codec);
}

/// The encoder works on pictures of even size with 8 bits and 4:2:0.
QString videoFilters(const TranscodeOptions &options, bool hardware)
{
    QStringList filters;
    if (options.deinterlace)
        filters.append(u"bwdif"_s);
    filters.append(u"scale=ceil(iw/2)*2:ceil(ih/2)*2"_s +
                   (options.highQuality ? u":flags=lanczos+accurate_rnd"_s : QString()));
    filters.append(QString::fromLatin1(hardware ? tarnwell::hardwareEncoderArguments.filter : "format=yuv420p"));
    return filters.join(u',');
}

}  // namespace

std::span<const ConversionTarget> conversionTargets()
{
    return targetTable;
}

QString unsuitableReason(const MediaInformation &information, const ConversionTarget &target)
{
    if (!target.video && !information.hasAudio)
        return QString::fromLatin1(QT_TRANSLATE_NOOP("TarnwellPublic", "This file has no sound to convert."));
    return {};
}

TranscodeOptions transcodeOptions(const JKestrelSettingDispatcher &settings, int processors)
{
    const qint64 cores = settings.getCpuCore();
    constexpr quint32 avc1 = 0x61766331;
    return {.hardwareDevice = settings.getQSV() ? tarnwell::hardwareEncoderDevice(avc1, 1280, 720) : QString(),
            .deinterlace = settings.getDeinterlacing(),
            .autoCopy = settings.autoCopy(),
            .highQuality = settings.getHQE(),
            .threads = cores < 1 || cores >= processors ? 0 : int(cores)};
}

TranscodeCommand transcodeCommand(const QString &source, const MediaInformation &information,
                                  const ConversionTarget &target, const TranscodeOptions &options,
                                  const QString &output)
{
    const bool hasVideo = target.video && information.hasVideo;
    const bool keepsVideo = hasVideo && options.autoCopy && !options.deinterlace && information.isPlainVideo &&
                            isKept(target.keptVideo, information.videoCodec);
    const bool keepsAudio =
        information.hasAudio && options.autoCopy && isKept(target.keptAudio, information.audioCodec);
    const bool hardware = hasVideo && !keepsVideo && target.hardwareVideo && !options.hardwareDevice.isEmpty();
    const tarnwell::HardwareEncoderArguments &encoder = tarnwell::hardwareEncoderArguments;
    const QString threads = QString::number(options.threads);

    QStringList arguments = splitArguments("-hide_banner -nostdin -nostats -loglevel warning -progress pipe:1 -y");
    if (hardware)
        arguments << splitArguments(encoder.device) << options.hardwareDevice;
    // "file:" keeps names with a colon or a leading dash from being taken for something else, and play lists of other
    // places out.
    arguments << u"-protocol_whitelist"_s << u"file"_s << u"-threads"_s << threads << u"-i"_s << "file:"_L1 + source;

    if (hasVideo) {
        // A capital V leaves covers and thumbnails out.
        arguments << u"-map"_s << u"0:V:0?"_s;
        if (keepsVideo) {
            arguments << u"-c:v"_s << u"copy"_s;
        } else {
            arguments << u"-vf"_s << videoFilters(options, hardware);
            arguments += splitArguments(hardware ? encoder.encoder : target.video);
            arguments += hardware ? splitArguments(options.highQuality ? encoder.best : encoder.quality)
                                  : splitArguments(options.highQuality ? target.videoBest : target.videoQuality);
        }
    }
    if (information.hasAudio) {
        arguments << u"-map"_s << u"0:a:0?"_s;
        arguments += keepsAudio ? splitArguments("-c:a copy")
                                : splitArguments(target.audio) +
                                      splitArguments(options.highQuality ? target.audioBest : target.audioQuality);
    }
    arguments << u"-sn"_s << u"-dn"_s << u"-max_muxing_queue_size"_s << u"4096"_s << u"-threads"_s << threads;
    arguments += splitArguments(target.container);
    arguments << "file:"_L1 + output;
    return {arguments, hardware || keepsVideo || keepsAudio};
}

}  // namespace kestrel
