#include "ModuleSettings.h"
#include "modules/marlin/TranscodeCommand.h"
#include "tarnwell/SystemInformation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

MediaInformation mediaOf(const QString &videoCodec, const QString &audioCodec)
{
    MediaInformation information;
    information.hasVideo = !videoCodec.isNull();
    information.hasAudio = !audioCodec.isNull();
    information.videoCodec = videoCodec;
    information.audioCodec = audioCodec;
    return information;
}

/// Their places in the table.
enum Target { Mp4, Mkv, WebM, Mp3 };

}  // namespace

TEST(TranscodeCommandTest, Table)
{
    MediaInformation tenBit = mediaOf(u"AVC"_s, u"AAC"_s);
    tenBit.isPlainVideo = false;
    const MediaInformation avc = mediaOf(u"AVC"_s, u"AAC"_s);
    const MediaInformation hevc = mediaOf(u"HEVC"_s, u"AAC"_s);
    const MediaInformation mp3 = mediaOf({}, u"MPEG Audio Layer 3"_s);
    const QString card = u"/dev/card7"_s;
    const TranscodeOptions plain, copying{.autoCopy = true};
    const TranscodeOptions threads{.threads = 3};
    const TranscodeOptions hardware{.hardwareDevice = card}, hardwareCopying{.hardwareDevice = card, .autoCopy = true};
    const TranscodeOptions hardwareBest{.hardwareDevice = card, .deinterlace = true, .highQuality = true};
    const struct {
        const char *name;
        MediaInformation information;
        Target target;
        TranscodeOptions options;
        const char *wanted;  // in the blank-separated command, separated by semicolons
        const char *unwanted;
        bool takesShortcut;
    } rows[] = {
        {"picture", avc, Mp4, plain,
         "-map 0:V:0? -vf scale=ceil(iw/2)*2:ceil(ih/2)*2,format=yuv420p -c:v libx264;-sn -dn;-f mp4",
         "vaapi;copy;bwdif", false},
        {"files", avc, Mp4, plain, "-nostdin;-progress pipe:1;-i file:/in/-a: 100%d.mov; file:/out/.p.mp4", "", false},
        {"copies what fits", avc, Mp4, copying, "-c:v copy;-c:a copy", "-vf", true},
        {"copies half", hevc, Mkv, copying, "-c:v libx264;-c:a copy", "", true},
        {"copies nothing that does not fit", avc, WebM, copying, "libvpx-vp9;libopus", "copy", false},
        {"does not copy ten bits", tenBit, Mp4, copying, "libx264;-c:a copy", "", true},
        {"hardware", avc, Mkv, hardware, "/dev/card7 ;-c:v h264_vaapi;format=nv12,hwupload -c:v", "libx264;crf", true},
        {"best hardware", avc, Mp4, hardwareBest, "-vf bwdif,scale;lanczos;-qp 19;-b:a 256k", "-qp 23;crf", true},
        {"no hardware for another codec", avc, WebM, hardware, "libvpx", "vaapi;card7", false},
        {"no hardware for a copy", avc, Mp4, hardwareCopying, "-c:v copy", "vaapi;card7", true},
        {"threads", avc, Mp4, threads, "-threads 3 -i;-threads 3 -f", "-threads 0", false},
        {"MP3 to MP3", mp3, Mp3, copying, "-c:a copy", "lame", true},
        {"sound to a video format", mp3, Mp4, hardware, "-c:a aac", "0:V;vaapi", false},
    };
    const auto parts = [](const char *list) { return QString::fromLatin1(list).split(u';', Qt::SkipEmptyParts); };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const ConversionTarget &target = conversionTargets()[row.target];
        const QString output = "/out/.p."_L1 + QLatin1StringView(target.extension);
        const TranscodeCommand command =
            transcodeCommand(u"/in/-a: 100%d.mov"_s, row.information, target, row.options, output);
        const QString line = command.arguments.join(u' ');
        for (const QString &wanted : parts(row.wanted))
            EXPECT_TRUE(line.contains(wanted)) << wanted.toStdString() << " in " << line.toStdString();
        for (const QString &unwanted : parts(row.unwanted))
            EXPECT_FALSE(line.contains(unwanted)) << unwanted.toStdString() << " in " << line.toStdString();
        EXPECT_TRUE(unsuitableReason(row.information, target).isNull());
        EXPECT_EQ(command.takesShortcut, row.takesShortcut);
        EXPECT_EQ(command.arguments.last(), "file:"_L1 + output);
    }
}

TEST(TranscodeCommandTest, OptionsComeFromTheModulesOwnSettings)
{
    test::ModuleSettings settings;
    JKestrelSettingDispatcher &dispatcher = settings.dispatcher();
    EXPECT_EQ(transcodeOptions(dispatcher, 1), (TranscodeOptions{.autoCopy = true}));
    dispatcher.setQSV(true);
    const QString device = tarnwell::hardwareEncoderDevice(0x61766331, 1280, 720);  // of this machine, if any
    dispatcher.setDeinterlacing(true);
    dispatcher.setAutoCopy(false);
    dispatcher.setHQE(true);
    settings.setting().dvd()->setCpuCore(7);
    dispatcher.setCpuCore(3);
    EXPECT_EQ(
        transcodeOptions(dispatcher, 8),
        (TranscodeOptions{
            .hardwareDevice = device, .deinterlace = true, .autoCopy = false, .highQuality = true, .threads = 3}));
    for (const qint64 cores : {qint64(0), qint64(-4), qint64(8), qint64(1) << 40}) {
        dispatcher.setCpuCore(cores);
        EXPECT_EQ(transcodeOptions(dispatcher, 8).threads, 0) << cores;
    }
}

}  // namespace kestrel
