#include "modules/marlin/Conversion.h"

#include "ModuleSettings.h"
#include "modules/marlin/Cropping.h"
#include "modules/marlin/Pieces.h"
#include "modules/marlin/PlanOptions.h"
#include "settings/JSettingBase.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

using Plan = TranscodePlan;

TEST(ConversionTest, SwitchesComeFromTheSettingsAndGoBack)
{
    test::ModuleSettings settings;
    JKestrelSettingDispatcher &dispatcher = settings.dispatcher();
    dispatcher.setHQE(true);
    dispatcher.setAutoCopy(false);
    dispatcher.setSafeMode(true);
    dispatcher.setMergeMKV(true);
    dispatcher.setDeinterlacing(true);
    dispatcher.setCpuCore(2);
    Plan plan = conversionPlan(dispatcher, builtInPresets().first(), 4);
    EXPECT_TRUE(plan.best && !plan.copies && plan.safeMode && plan.chapterPerSource && !plan.hardware);
    EXPECT_EQ(plan.deinterlace, Plan::Deinterlace::On);
    EXPECT_EQ(plan.threads, 2);

    plan.best = plan.safeMode = plan.chapterPerSource = false;
    plan.copies = true;
    plan.threads = 0;
    plan.deinterlace = Plan::Deinterlace::Off;
    writeSwitches(dispatcher, 4, plan);
    EXPECT_TRUE(!dispatcher.getHQE() && dispatcher.autoCopy() && !dispatcher.getSafeMode() && !dispatcher.mergeMKV());
    EXPECT_FALSE(dispatcher.getDeinterlacing());
    EXPECT_EQ(dispatcher.getCpuCore(), 4);
    // What says more than the switch stays where the switch agrees.
    readSwitches(dispatcher, 4, plan);
    EXPECT_EQ(plan.deinterlace, Plan::Deinterlace::Off);
    plan.deinterlace = Plan::Deinterlace::DoubleRate;
    writeSwitches(dispatcher, 4, plan);
    readSwitches(dispatcher, 4, plan);
    EXPECT_EQ(plan.deinterlace, Plan::Deinterlace::DoubleRate);
}

TEST(ConversionTest, CoresBeyondTheProcessorsMeanAll)
{
    test::ModuleSettings settings;
    const std::pair<qint64, int> rows[] = {{-1, 0}, {0, 0}, {1, 1}, {3, 3}, {4, 0}, {99, 0}};
    for (const auto &[cores, threads] : rows) {
        settings.dispatcher().setCpuCore(cores);
        EXPECT_EQ(conversionPlan(settings.dispatcher(), builtInPresets().first(), 4).threads, threads) << cores;
    }
}

TEST(ConversionTest, FoldersForFilmMusicAndBesideTheSource)
{
    test::ModuleSettings settings;
    Plan plan;
    plan.sources = {u"/films/a.mkv"_s};
    plan.preset = *presetOfId(u"mkv-h264"_s);
    EXPECT_EQ(conversionFolder(settings.dispatcher(), plan), settings.folder());
    plan.preset.videoCodec = QString();
    EXPECT_EQ(conversionFolder(settings.dispatcher(), plan), settings.folder());
    settings.dispatcher().currentSetting()->setMusicOutputPath(u"/music"_s);
    EXPECT_EQ(conversionFolder(settings.dispatcher(), plan), u"/music");
    plan.besideSource = true;
    EXPECT_EQ(conversionFolder(settings.dispatcher(), plan), u"/films");
}

TEST(ConversionTest, AnotherPlanLeavesWhatIsKnownOfTheJob)
{
    Plan plan;
    plan.sources = {u"/films/a.mkv"_s};
    plan.preset = builtInPresets().first();
    JobRecord record = conversionJob(plan, u"/out"_s);
    MediaInformation information;
    information.duration = 12;
    setSourceSummary(record, information);
    setOwnFolder(record, u"/own"_s);
    plan.mirrored = true;
    setPlan(record, plan);
    EXPECT_TRUE(Plan::fromJson(record.plan)->mirrored);
    EXPECT_EQ(sourceSummary(record).seconds, 12);
    EXPECT_EQ(ownFolder(record), u"/own");
    setOwnFolder(record, {});
    EXPECT_TRUE(ownFolder(record).isNull());
}

TEST(ConversionTest, EveryOptionComesBackAsItWasSet)
{
    for (const PlanOption &option : planOptions()) {
        QList<double> values{0, 1};
        if (option.kind == PlanOption::Kind::Number)
            values = {option.least, option.least + option.step, option.most};
        if (option.kind == PlanOption::Kind::Choice) {
            values.clear();
            for (const OptionChoice &choice : option.choices)
                values.append(choice.value);
        }
        for (const double value : std::as_const(values)) {
            Plan plan;
            plan.sources = {u"/films/a.mkv"_s};
            plan.preset = builtInPresets().first();
            option.set(plan, value);
            EXPECT_NEAR(option.get(plan), value, 1e-9) << option.id;
            const auto stored = Plan::fromJson(plan.toJson());
            ASSERT_TRUE(stored) << option.id;
            EXPECT_NEAR(option.get(*stored), value, 1e-9) << option.id << " stored";
            if (QLatin1StringView(option.id) == "rateControl"_L1)  // which gives the others their beginning
                continue;
            for (const PlanOption &other : planOptions())
                EXPECT_TRUE(&other == &option || other.get(plan) == other.get(Plan())) << option.id << ' ' << other.id;
        }
    }
    Plan plan;
    planOption("maximumBytes"_L1)->set(plan, 25);
    EXPECT_EQ(plan.maximumBytes, 25'000'000);
}

TEST(ConversionTest, TimesAreReadAsTheyAreWritten)
{
    const std::pair<const char16_t *, std::optional<double>> rows[] = {
        {u"63.5", 63.5},  {u"1:03,5", 63.5}, {u" 1:00:00 ", 3600}, {u"0:00:00.04", 0.04}, {u"", {}},
        {u"1:2:3:4", {}}, {u"-1", {}},       {u"1.5:00", {}},      {u"nan", {}},          {u"a", {}}};
    for (const auto &[text, seconds] : rows)
        EXPECT_EQ(secondsOfTime(QString::fromUtf16(text)), seconds) << QString::fromUtf16(text).toStdString();
    for (const double seconds : {0.0, 59.999, 3723.5, 36000.0})
        EXPECT_EQ(secondsOfTime(timeText(seconds)), seconds);
}

TEST(ConversionTest, TheRestOfAFilm)
{
    const auto text = [](const QList<Plan::Piece> &pieces) {
        QStringList parts;
        for (const Plan::Piece &piece : pieces)
            parts.append(u"%1-%2"_s.arg(piece.start).arg(piece.end));
        return parts.join(u' ').toStdString();
    };
    EXPECT_EQ(text(otherPieces({{5, 6}, {1, 3}}, 10)), "0-1 3-5 6-10");
    EXPECT_EQ(text(otherPieces({{0, 4}, {2, 10}}, 10)), "");
    EXPECT_EQ(text(otherPieces({{2, 3}}, 10)), "0-2 3-10");
    EXPECT_EQ(text(soundPieces({{-1, 4}, {4, 4}, {8, 99}}, 10)), "0-4 8-10");
    EXPECT_EQ(text(soundPieces({{0, 10}}, 10)), "");
}

TEST(ConversionTest, BlackBarsAreCutOffTheUprightPicture)
{
    MediaTrack video;
    video.width = 200;
    video.height = 100;
    const QRect part(20, 10, 140, 70);  // bars: left 20, top 10, right 40, bottom 20
    const std::pair<int, QRectF> rows[] = {{0, {0.1, 0.1, 0.7, 0.7}},
                                           {90, {0.2, 0.1, 0.7, 0.7}},
                                           {180, {0.2, 0.2, 0.7, 0.7}},
                                           {270, {0.1, 0.2, 0.7, 0.7}}};
    for (const auto &[rotation, crop] : rows) {
        video.rotation = rotation;
        const QRectF found = cropOf(part, video);
        EXPECT_NEAR(found.x(), crop.x(), 1e-9) << rotation;
        EXPECT_NEAR(found.y(), crop.y(), 1e-9) << rotation;
        EXPECT_NEAR(found.width(), crop.width(), 1e-9) << rotation;
        EXPECT_NEAR(found.height(), crop.height(), 1e-9) << rotation;
    }
    EXPECT_TRUE(cropOf({2, 2, 196, 96}, video).isEmpty());
    EXPECT_TRUE(cropOf({}, video).isEmpty());
}

}  // namespace kestrel
