#include "JModuleSettings.h"
#include "ModuleSettings.h"
#include "TranscodeCommand.h"

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

const ConversionTarget &targetOf(const char *extension)
{
    for (const ConversionTarget &target : conversionTargets()) {
        if (qstrcmp(target.extension, extension) == 0)
            return target;
    }
    ADD_FAILURE() << extension;
    return conversionTargets()[0];
}

constexpr TranscodeOptions plain;
constexpr TranscodeOptions copying{.autoCopy = true};

}  // namespace

TEST(TranscodeCommandTest, Table)
{
    MediaInformation tenBit = mediaOf(u"AVC"_s, u"AAC"_s);
    tenBit.isPlainVideo = false;
    const MediaInformation avc = mediaOf(u"AVC"_s, u"AAC"_s);
    const MediaInformation silent = mediaOf(u"AVC"_s, {});
    const MediaInformation mp3 = mediaOf({}, u"MPEG Audio Layer 3"_s);
    const struct {
        const char *name;
        MediaInformation information;
        const char *target;
        TranscodeOptions options;
        QStringList wanted;  // in the blank-separated command
        QStringList unwanted;
        bool takesShortcut;
    } rows[] = {
        {"encodes",
         avc,
         "mp4",
         plain,
         {u"-map 0:V:0? -vf scale=ceil(iw/2)*2:ceil(ih/2)*2,format=yuv420p -c:v libx264"_s, u"-map 0:a:0? -c:a aac"_s,
          u"-sn -dn"_s, u"-f mp4"_s, u"-nostdin"_s, u"-progress pipe:1"_s, u"-i file:/in/-a: 100%d.mov"_s,
          u" file:/out/.p.mp4"_s},
         {u"vaapi"_s, u"copy"_s, u"bwdif"_s},
         false},
        {"copies what fits", avc, "mp4", copying, {u"-c:v copy"_s, u"-c:a copy"_s}, {u"-vf"_s}, true},
        {"copies half", mediaOf(u"HEVC"_s, u"AAC"_s), "mkv", copying, {u"-c:v libx264"_s, u"-c:a copy"_s}, {}, true},
        {"copies nothing that does not fit", avc, "webm", copying, {u"libvpx-vp9"_s, u"libopus"_s}, {u"copy"_s}, false},
        {"does not copy ten bits", tenBit, "mp4", copying, {u"libx264"_s, u"-c:a copy"_s}, {}, true},
        {"does not copy what it deinterlaces",
         avc,
         "mp4",
         {.deinterlace = true, .autoCopy = true},
         {u"-vf bwdif,scale"_s, u"libx264"_s, u"-c:a copy"_s},
         {},
         true},
        {"hardware",
         avc,
         "mkv",
         {.hardware = true, .deinterlace = true},
         {u"-vaapi_device"_s, u"-c:v h264_vaapi"_s, u"bwdif,scale"_s, u"format=nv12,hwupload -c:v"_s},
         {u"libx264"_s, u"crf"_s},
         true},
        {"no hardware for another codec", avc, "webm", {.hardware = true}, {u"libvpx"_s}, {u"vaapi"_s}, false},
        {"no hardware for a copy",
         avc,
         "mp4",
         {.hardware = true, .autoCopy = true},
         {u"-c:v copy"_s},
         {u"vaapi"_s},
         true},
        {"high quality",
         avc,
         "mp4",
         {.highQuality = true},
         {u"-preset slow"_s, u"lanczos"_s, u"-b:a 256k"_s},
         {u"medium"_s},
         false},
        {"threads", avc, "mp4", {.threads = 3}, {u"-threads 3 -i"_s, u"-threads 3 -f"_s}, {u"-threads 0"_s}, false},
        {"sound of a video",
         avc,
         "mp3",
         copying,
         {u"-map 0:a:0? -c:a libmp3lame"_s, u"-f mp3"_s},
         {u"0:V"_s, u"-vf"_s},
         false},
        {"MP3 to MP3", mp3, "mp3", copying, {u"-c:a copy"_s}, {u"lame"_s}, true},
        {"sound to a video format", mp3, "mp4", {.hardware = true}, {u"-c:a aac"_s}, {u"0:V"_s, u"vaapi"_s}, false},
        {"silent video", silent, "mkv", plain, {u"-c:v libx264"_s}, {u"0:a"_s, u"-c:a"_s}, false},
    };
    for (const auto &row : rows) {
        const QString output = "/out/.p."_L1 + QLatin1StringView(row.target);
        const TranscodeCommand command =
            transcodeCommand(u"/in/-a: 100%d.mov"_s, row.information, targetOf(row.target), row.options, output);
        const QString line = command.arguments.join(u' ');
        for (const QString &wanted : row.wanted)
            EXPECT_TRUE(line.contains(wanted))
                << row.name << ": " << wanted.toStdString() << " in " << line.toStdString();
        for (const QString &unwanted : row.unwanted)
            EXPECT_FALSE(line.contains(unwanted)) << row.name << ": " << unwanted.toStdString();
        EXPECT_EQ(command.takesShortcut, row.takesShortcut) << row.name;
        EXPECT_EQ(command.arguments.last(), "file:"_L1 + output) << row.name;
    }
}

TEST(TranscodeCommandTest, OnlySoundNeedsSound)
{
    for (const ConversionTarget &target : conversionTargets()) {
        EXPECT_TRUE(unsuitableReason(mediaOf({}, u"AAC"_s), target).isNull()) << target.name;
        EXPECT_EQ(unsuitableReason(mediaOf(u"AVC"_s, {}), target).isNull(), target.video != nullptr) << target.name;
    }
}

TEST(TranscodeCommandTest, OptionsComeFromTheModulesOwnSettings)
{
    test::ModuleSettings settings;
    JKestrelSettingDispatcher &dispatcher = settings.dispatcher();
    EXPECT_EQ(transcodeOptions(dispatcher, 1), (TranscodeOptions{.autoCopy = true}));
    dispatcher.setQSV(true);
    dispatcher.setDeinterlacing(true);
    dispatcher.setAutoCopy(false);
    dispatcher.setHQE(true);
    settings.setting().dvd()->setCpuCore(7);
    dispatcher.setCpuCore(3);
    EXPECT_EQ(transcodeOptions(dispatcher, 8),
              (TranscodeOptions{
                  .hardware = true, .deinterlace = true, .autoCopy = false, .highQuality = true, .threads = 3}));
    for (const qint64 cores : {qint64(0), qint64(-4), qint64(8), qint64(1) << 40}) {
        dispatcher.setCpuCore(cores);
        EXPECT_EQ(transcodeOptions(dispatcher, 8).threads, 0) << cores;
    }
}

}  // namespace kestrel
