#include "media/OutputCheck.h"
#include "modules/heron/DiscCheck.h"
#include "modules/heron/DiscPlan.h"
#include "modules/heron/DiscTexts.h"
#include "modules/heron/FilmStreams.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

disc::DiscTitle film()
{
    disc::DiscTitle title;
    title.number = 2;
    title.isMain = true;
    title.seconds = 100;
    title.bytes = 1000;
    title.chapters = {0, 20, 50, 90};
    title.audio = {{.language = u"en"_s, .codec = u"ac3"_s, .purpose = {}, .streamId = 0x80},
                   {.language = u"de"_s, .codec = u"ac3"_s, .purpose = u"commentary"_s, .streamId = 0x81},
                   {.language = u"de"_s, .codec = u"lpcm"_s, .purpose = {}, .streamId = 0xa2}};
    title.subtitles.resize(3);
    return title;
}

}  // namespace

TEST(DiscPlanTest, SurvivesItsJsonAndRefusesWhatIsNone)
{
    DiscPlan plan{.source = u"/dev/sr0"_s, .way = DiscWay::Rip, .title = 3, .angle = 2};
    plan.firstChapter = 2;
    plan.soundTracks = QList<int>{2, 1};
    plan.language = u"de"_s;
    plan.transcode.preset = builtInPresets().first();
    const auto read = DiscPlan::fromJson(plan.toJson());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->toJson(), plan.toJson());
    EXPECT_FALSE(read->subtitleTracks);

    const struct {
        const char *name;
        QString key;
        QJsonValue value;
    } rows[] = {{"newer", u"version"_s, 2}, {"way", u"way"_s, u"steal"_s}, {"source", u"source"_s, 7}};
    for (const auto &[name, key, value] : rows) {
        QJsonObject json = plan.toJson();
        json[key] = value;
        EXPECT_FALSE(DiscPlan::fromJson(json)) << name;
    }
    QJsonObject json = plan.toJson();
    json[u"title"_s] = 1e9;
    EXPECT_EQ(DiscPlan::fromJson(json)->title, 0);
}

TEST(DiscPlanTest, ChoosesTracksAndChapters)
{
    DiscPlan plan;
    EXPECT_EQ(chosenSound(plan, film()), (QList<int>{0, 1, 2}));
    plan.language = u"de"_s;
    EXPECT_EQ(chosenSound(plan, film()), (QList<int>{2, 0, 1})) << "a commentary is not what is meant";
    plan.soundTracks = QList<int>{9, 2, 2};
    EXPECT_EQ(chosenSound(plan, film()), QList<int>{1});
    plan.subtitleTracks = QList<int>{};
    plan.burnedSubtitle = 3;
    EXPECT_EQ(chosenSubtitles(plan, film()), QList<int>{2});

    EXPECT_EQ(chosenSeconds(plan, film()), 100);
    plan.firstChapter = 2;
    plan.lastChapter = 3;
    EXPECT_EQ(chosenSeconds(plan, film()), 70);
    EXPECT_EQ(chosenChapters(plan, film()), (QList<double>{0, 30}));
}

TEST(DiscPlanTest, NeedsSpaceForResultsAndTheLargestWork)
{
    disc::DiscContents contents;
    contents.bytes = 9000;
    contents.titles = {film(), film()};
    contents.titles[1].number = 3;
    contents.titles[1].bytes = 2000;
    const struct {
        DiscWay way;
        QList<int> titles;
        qint64 bytes;
    } rows[] = {{DiscWay::Image, {0}, 9000}, {DiscWay::Mkv, {2}, 2050}, {DiscWay::Mkv, {2, 3}, 3000 + 2100}};
    for (const auto &[way, titles, bytes] : rows) {
        QList<DiscPlan> plans;
        for (const int title : titles) {
            plans.append({.way = way, .title = title});
            describeDisc(contents, plans.last());
        }
        EXPECT_EQ(neededBytes(plans, contents), bytes) << titles.size();
    }
}

TEST(DiscPlanTest, NamesTheResult)
{
    disc::DiscContents contents;
    contents.volume = u"HOLIDAY"_s;
    contents.titles = {film()};
    DiscPlan plan{.way = DiscWay::Main, .title = 2};
    EXPECT_EQ(discOutputName(plan, contents), u"HOLIDAY");
    plan.way = DiscWay::Mkv;
    EXPECT_EQ(discOutputName(plan, contents), u"HOLIDAY - Title 2");
    contents.titles.first().isMain = false;
    plan.way = DiscWay::Main;
    EXPECT_EQ(discOutputName(plan, contents), u"HOLIDAY - Title 2");
}

TEST(FilmStreamsTest, TakesWhatTheFilmHas)
{
    const QByteArray report = R"({"streams":[{"id":"0x1e0","codec_type":"video","codec_name":"mpeg2video"},
        {"id":"0xa2","codec_type":"audio","codec_name":"pcm_dvd","sample_rate":"48000","bits_per_sample":24},
        {"id":"0x80","codec_type":"audio","codec_name":"ac3","sample_rate":"48000"},
        {"id":"0x81","codec_type":"audio","codec_name":"ac3","sample_rate":"0"}]})";
    DiscPlan plan;
    plan.language = u"de"_s;
    const FilmPlan planned = planFilm(plan, film(), readFilmStreams(report), true);
    ASSERT_EQ(planned.sound.size(), 2);
    EXPECT_EQ(planned.sound.first().id, 0xa2);
    EXPECT_EQ(planned.missing, QList<int>{1}) << "0x81 is announced and never comes";
    const QStringList arguments = filmArguments(planned, film(), {.film = u"/film"_s}, usualLook);
    EXPECT_EQ(arguments[arguments.indexOf(u"-c:a:0"_s) + 1], u"pcm_s24le");
    EXPECT_EQ(arguments[arguments.indexOf(u"-c:a:1"_s) + 1], u"copy");
    EXPECT_EQ(fileLanguage(u"nb"_s) + fileLanguage(u"de"_s), u"nobger");

    // Readers of an index do not see its empty tracks.
    const QList<int> counts =
        countSubtitles("id: fr, index: 0\n\nid: en, index: 1\ntimestamp: 1\ntimestamp: 2\nid: de\ntimestamp: 3\n");
    EXPECT_EQ(counts, (QList<int>{0, 2, 1}));
    plan.subtitleTracks = QList<int>{1, 3};
    const FilmSubtitles found = foundSubtitles(plan, film(), counts);
    EXPECT_EQ(found.places, QList<int>{2});
    EXPECT_EQ(found.indexPlaces, QList<int>{1});
    FoundOutput written{.information = {}, .packets = {1}, .bytes = 1};
    written.information.tracks.resize(1);
    written.information.tracks[0].kind = MediaTrack::Kind::Subtitle;
    EXPECT_FALSE(compareOutput(expectedFile({}, found, 1, 0), {}, written).lacksSubtitles);
    written.packets = {0};
    EXPECT_TRUE(compareOutput(expectedFile({}, found, 1, 0), {}, written).lacksSubtitles);
    EXPECT_EQ(found.leftOut.size(), 1) << "the first is announced and never comes";
    plan.burnedSubtitle = 1;
    EXPECT_TRUE(foundSubtitles(plan, film(), counts).lacksBurned);
}

TEST(DiscCheckTest, NoticesWhatACopyLacks)
{
    disc::DiscContents disc;
    disc.titles = {film()};
    EXPECT_TRUE(discMismatch(disc, disc).isEmpty());
    const struct {
        const char *name;
        void (*change)(disc::DiscTitle &title);
    } rows[] = {{"length", [](disc::DiscTitle &title) { title.seconds -= 1.1; }},
                {"chapter", [](disc::DiscTitle &title) { title.chapters.removeLast(); }},
                {"sound", [](disc::DiscTitle &title) { title.audio.removeLast(); }},
                {"subtitles", [](disc::DiscTitle &title) { title.subtitles.removeLast(); }}};
    for (const auto &[name, change] : rows) {
        disc::DiscContents copy = disc;
        change(copy.titles.first());
        EXPECT_FALSE(discMismatch(disc, copy).isEmpty()) << name;
    }
    EXPECT_FALSE(discMismatch(disc, {}).isEmpty());
}

}  // namespace kestrel
