#include "modules/plover/RecordCommand.h"

#include "foundation/UserDefaults.h"
#include "helpers/plover/FrameFit.h"
#include "helpers/plover/FramePace.h"
#include "modules/plover/LevelMeter.h"
#include "settings/JKestrelSetting.h"
#include "settings/JKestrelSettingDispatcher.h"

#include <gtest/gtest.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

TEST(RecordPlanTest, SurvivesStorageAndNonsense)
{
    const RecordPlan plan{.what = RecordPlan::What::Area,
                          .screen = u"HDMI-1"_s,
                          .window = 0xfe00003,
                          .area = {10, 20, 300, 200},
                          .camera = u"/dev/video1"_s,
                          .again = true,
                          .inset = RecordPlan::Inset{0.125, 0.5, 0.25},
                          .sound = RecordPlan::Sound::Both,
                          .microphone = u"mic"_s,
                          .separateTracks = true,
                          .quality = RecordPlan::Quality::Best,
                          .rate = 12.5,
                          .container = RecordPlan::Container::Mp4,
                          .pointer = false,
                          .seconds = 90,
                          .name = u"A talk"_s};
    EXPECT_EQ(RecordPlan::fromJson(plan.toJson()), plan);

    QJsonObject json = plan.toJson();
    json[u"sound"_s] = u"loud"_s;
    json[u"rate"_s] = 1e9;
    json[u"area"_s] = u"all"_s;
    json[u"inset"_s] = QJsonArray{0.9, -3, 0.25};
    const auto read = RecordPlan::fromJson(json);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->sound, RecordPlan::Sound::System);
    EXPECT_EQ(read->rate, RecordPlan::maximumRate);
    EXPECT_EQ(read->area, QRect());
    EXPECT_EQ(read->inset, (RecordPlan::Inset{0.75, 0, 0.25}));
    json[u"version"_s] = 2;
    EXPECT_FALSE(RecordPlan::fromJson(json));
    EXPECT_FALSE(RecordPlan::fromJson({}));
}

TEST(RecordPlanTest, TakesTheSettingsDevices)
{
    foundation::UserDefaults defaults(u"/nowhere/defaults.plist"_s);
    JKestrelSetting setting(defaults);
    JKestrelSettingDispatcher settings(ModuleSettingRecord, setting);
    settings.setVideoDeviceID(u"/dev/video1"_s);
    settings.setAudioDeviceID(u"mic"_s);
    EXPECT_EQ(recordPlan(settings).camera, u"/dev/video1");
    EXPECT_EQ(recordPlan(settings).microphone, u"mic");
}

TEST(FrameFitTest, RowsMayBePaddedAndAPixelTooWide)
{
    std::vector<uint8_t> pixels(56, 9), target;  // two rows of five pixels and eight bytes that are none
    std::fill_n(pixels.begin(), 20, uint8_t(1));
    std::fill_n(pixels.begin() + 28, 20, uint8_t(2));
    frames::fit({.pixels = pixels.data(), .width = 5, .height = 2, .stride = 28}, {4, 2}, target);
    std::vector<uint8_t> wanted(32, 1);
    std::fill_n(wanted.begin() + 16, 16, uint8_t(2));
    EXPECT_EQ(target, wanted);
}

TEST(CaptureTargetTest, AreasAreEvenAndOnTheDesktop)
{
    const QRect desktop(0, 0, 1280, 720);
    const struct {
        QRect wanted, recorded;
    } cases[] = {
        {{10, 20, 101, 51}, {10, 20, 100, 50}},
        {{1200, 700, 200, 200}, {1200, 700, 80, 20}},
        {{-10, -10, 30, 30}, {0, 0, 20, 20}},
        {{1279, 0, 10, 10}, {}},
        {{2000, 2000, 10, 10}, {}},
    };
    for (const auto &[wanted, recorded] : cases)
        EXPECT_EQ(recordableArea(wanted, desktop), recorded) << wanted.x();
}

TEST(RecordCommandTest, TracksFollowTheSound)
{
    using enum RecordPlan::Sound;
    const struct {
        RecordPlan::Sound sound;
        bool separate;
        qsizetype inputs, tracks;
    } cases[] = {
        {None, false, 0, 0}, {System, false, 1, 1}, {Microphone, true, 1, 1}, {Both, false, 2, 1}, {Both, true, 2, 2}};
    for (const auto &[sound, separate, inputs, tracks] : cases) {
        const RecordPlan plan{.sound = sound, .separateTracks = separate};
        const QStringList arguments =
            recordArguments(plan, {.target = {.display = u":5"_s, .area = {0, 0, 640, 360}}, .output = u"/part.mkv"_s});
        EXPECT_EQ(arguments.count(u"pulse"_s), inputs);
        EXPECT_EQ(arguments.count(u"-map"_s), 1 + tracks);
        EXPECT_EQ(recordedTracks(plan).size(), 1 + tracks);
    }
}

TEST(RecordCommandTest, AWindowOfAnotherSizeIsFittedIntoTheFirst)
{
    RecordStretch stretch{.target = {.display = u":5"_s, .window = 7, .area = {0, 0, 300, 200}},
                          .size = {640, 360},
                          .output = u"/part.mkv"_s};
    const auto fits = [&] { return recordArguments({}, stretch).filter(u"pad=640:360"_s).size() == 1; };
    EXPECT_TRUE(fits());
    stretch.size = {300, 200};
    EXPECT_FALSE(fits());
}

TEST(RecordCommandTest, MicrophonesAreReadFromTheListOfSources)
{
    const QByteArray told =
        "Auto-detected sources for pulse:\n"
        "* out.monitor [Monitor of Null Output] (none)\n"
        "  alsa_input.usb-1 [Head[set] (left)] (none)\n";
    EXPECT_EQ(usualDeviceIn(told), u"out.monitor");
    const QList<Microphone> found = microphonesIn(told);
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].name, u"alsa_input.usb-1");
    EXPECT_EQ(found[0].title, u"Head[set] (left)");
}

TEST(RecordCommandTest, HardwareGetsItsPicturesUploaded)
{
    for (const auto &inset : {std::optional<RecordPlan::Inset>(), std::optional(RecordPlan::Inset())}) {
        const RecordStretch stretch{
            .target = {.display = u":5"_s, .area = {0, 0, 640, 360}, .camera = u"/dev/video0"_s},
            .hardwareDevice = u"/dev/dri/renderD128"_s};
        const QString line = recordArguments({.inset = inset}, stretch).join(u' ');
        EXPECT_TRUE(line.contains(u" -vaapi_device /dev/dri/renderD128 "));
        EXPECT_TRUE(line.contains(u",format=nv12,hwupload[v]")) << qPrintable(line);
        EXPECT_TRUE(line.contains(u" -c:v h264_vaapi -qp 23 "));
        EXPECT_FALSE(line.contains(u"libx264"));
    }
}

TEST(FramePaceTest, HandsOnNoMoreThanTheRateAndNoLess)
{
    const struct {
        const char *name;
        int64_t interval;  // milliseconds between the screen's pictures, every other one as much late
        int64_t late;
        int handedOn;  // of ten seconds, at thirty a second
    } cases[] = {{"as fast", 33, 0, 300},
                 {"shaky", 33, 7, 300},
                 {"twice as fast", 17, 0, 300},
                 {"a little faster", 20, 0, 300},
                 {"slower", 100, 0, 100}};
    for (const auto &[name, interval, late, expected] : cases) {
        frames::FramePace pace(30);
        int count = 0;
        for (int64_t now = 1000, number = 0; now < 11'000; now += interval)
            count += pace.take((now + late * (number++ % 2)) * 1'000'000);
        EXPECT_NEAR(count, expected, 5) << name;
    }
}

TEST(LevelMeterTest, ReadsDecibels)
{
    EXPECT_DOUBLE_EQ(LevelMeter::levelIn("lavfi.astats.Overall.Peak_level=-30.000000"), 0.5);
    EXPECT_DOUBLE_EQ(LevelMeter::levelIn("lavfi.astats.Overall.Peak_level=-inf"), 0);
    EXPECT_DOUBLE_EQ(LevelMeter::levelIn("lavfi.astats.Overall.Peak_level=3"), 1);
    EXPECT_LT(LevelMeter::levelIn("frame:12   pts:57600   pts_time:1.2"), 0);
}

}  // namespace

}  // namespace kestrel
