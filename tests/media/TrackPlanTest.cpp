#include "PlanMaterial.h"
#include "media/ChapterFile.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

using namespace test;

TEST(TrackPlanTest, NamesWhatIsLostOfPictureSoundAndTags)
{
    MediaInformation source = film({changed(video(u"prores"_s),
                                            [](auto &t) {
                                                t.pixelFormat = u"yuva444p12le"_s;
                                                t.bitDepth = 12;
                                            }),
                                    changed(sound(1), [](auto &t) { t.channels = 6; })});
    for (const auto &tag : {u"title"_s, u"creation_time"_s, u"location"_s})
        source.tags.insert(tag, u"x"_s);
    const std::pair<QString, const char *> rows[] = {
        {u"mkv-ffv1"_s, ""},
        {u"mp3"_s, "Channels of the sound: English. 6 become 2."},
        {u"mp4-h264"_s,
         "The finer picture. 12 bit 4:4:4 becomes 8 bit 4:2:0.|The transparency of the picture. H.264 "
         "cannot hold it."},
        {u"avi-ffv1"_s,
         "The languages of the tracks. AVI cannot hold them.|The date of recording. AVI cannot hold it.|The place of "
         "recording. AVI cannot hold it."}};
    for (const auto &[preset, told] : rows) {
        QStringList sentences;
        const auto steps = stepsFor(planFor(preset), source);
        for (const auto &sentence : steps->leftOut)
            sentences << sentence.english();
        EXPECT_EQ(sentences.join(u'|').toStdString(), told) << preset.toStdString();
    }
}

TEST(TrackPlanTest, SoundThatLosesNothingStaysSoWhereItCan)
{
    const struct {
        const char *codec;
        int depth;
        QString preset;
        const char *made, *told;
    } rows[] = {
        {"pcm_s24be", 24, u"mka-copy"_s, "-c:a:0 copy", ""},
        {"flac", 16, u"mp4-copy"_s, "-c:a:0 copy", ""},
        {"ape", 24, u"mka-copy"_s, "-c:a:0 flac", "The sound has to be encoded (FLAC)."},
        {"pcm_bluray", 0, u"mov-copy"_s, "-c:a:0 alac", "The sound has to be encoded (ALAC)."},
        {"pcm_s24le", 24, u"voc-pcm_s16le"_s, "-c:a:0 pcm_s16le", "The finer sound: English. 24 bit become 16 bit."},
        {"truehd", 24, u"ts-copy"_s, "-c:a:0 aac",
         "Lossless sound: English. It becomes AAC.|The sound has to be encoded (AAC)."},
        {"", 0, u"mp4-copy"_s, "-c:v:0 copy", "Sound: English. Its format is not known."},
    };
    for (const auto &[codec, depth, preset, made, told] : rows) {
        const auto track =
            changed(sound(1, u"eng"_s, QString::fromLatin1(codec)), [depth = depth](auto &t) { t.bitDepth = depth; });
        const auto steps = stepsFor(planFor(preset), film({video(), track}));
        QStringList sentences;
        for (const auto &sentence : steps->leftOut + steps->notes)
            sentences << sentence.english();
        EXPECT_EQ(sentences.join(u'|').toStdString(), told) << codec;
        EXPECT_NE(lineOf(*steps).find(made), std::string::npos) << codec << ": " << lineOf(*steps);
    }
}

TEST(TrackPlanTest, NamesTheChaptersOfFilmsThatHaveATrackOfNames)
{
    MediaInformation source = film();
    source.chapters = {{.start = 0, .end = 20, .title = {}}, {.start = 20, .end = 60, .title = u"Two"_s}};
    const auto mp4 = stepsFor(planFor(u"mp4-h264"_s), source), mkv = stepsFor(planFor(u"mkv-h264"_s), source);
    ASSERT_TRUE(mp4 && mkv);
    // The track of the names is none of the camera's.
    source.tracks.append(track(2, Kind::Data, u"bin_data"_s));
    EXPECT_TRUE(stepsFor(planFor(u"mp4-h264"_s), source)->leftOut.isEmpty());
    source.tracks.append(track(3, Kind::Data, u"bin_data"_s));
    EXPECT_EQ(stepsFor(planFor(u"mp4-h264"_s), source)->leftOut.size(), 1);
    const QByteArray file = mp4->files.values().value(0);
    EXPECT_TRUE(file.contains("title=Chapter 1\n") && file.contains("title=Two\n")) << file.constData();
    EXPECT_TRUE(mkv->files.isEmpty());
}

TEST(TrackPlanTest, JoinsUnequalFilesByEncodingThem)
{
    Plan plan = planFor(u"mkv-copy"_s, [](Plan &p) {
        p.sources += u"/films/it's.mp4"_s;
        p.chapterPerSource = true;
    });
    const auto alike = transcodeSteps(plan, {film(), film()}, {}, paths);
    ASSERT_TRUE(alike);
    EXPECT_EQ(alike->work, TranscodeSteps::Work::Copy);
    EXPECT_TRUE(alike->expected.decodesAll && alike->expected.secondsAreTold);
    EXPECT_EQ(alike->expected.seconds, 120);
    QList<SourcePiece> pieces(3);
    for (const auto &[number, source, seconds] : {std::tuple(0, 0, 10), std::tuple(1, 0, 20), std::tuple(2, 1, 5)}) {
        pieces[number].source = source;
        pieces[number].seconds = seconds;
    }
    QList<double> starts;
    for (const MediaChapter &chapter : resultChapters(plan, {film(), film()}, pieces))
        starts.append(chapter.start);
    EXPECT_EQ(starts, (QList<double>{0, 10, 30}));
    MediaInformation stream = film({video(u"hevc"_s), sound(1)});
    stream.format = u"mpegts"_s;
    EXPECT_FALSE(transcodeSteps(plan, {film(), stream}, {}, paths)->expected.secondsAreTold) << "one only guesses";

    const std::function<void(MediaTrack &)> differences[] = {[](auto &t) { t.width = 1280; },
                                                             [](auto &t) { t.frameRate = 30; },
                                                             [](auto &t) { t.pixelFormat = u"yuv422p"_s; },
                                                             [](auto &t) { t.profile = u"High 10"_s; },
                                                             [](auto &t) { t.codec = u"hevc"_s; },
                                                             [](auto &t) { t.sampleRate = 44100; }};
    for (qsizetype number = 0; number < qsizetype(std::size(differences)); ++number) {
        const MediaInformation other = film({number == 5 ? video() : changed(video(), differences[number]),
                                             number == 5 ? changed(sound(1), differences[5]) : sound(1)});
        const auto unlike = transcodeSteps(plan, {film(), other}, {}, paths);
        ASSERT_TRUE(unlike);
        EXPECT_EQ(unlike->work, TranscodeSteps::Work::Encode) << number;
        EXPECT_NE(lineOf(*unlike).find("concat=n=2:v=1:a=1"), std::string::npos) << number;
    }
}

TEST(TrackPlanTest, AJoinKeepsSoundThatSomeFilesLack)
{
    const MediaInformation silent = film({video()}), two = film({video(), sound(1), sound(2, u"ger"_s)}),
                           german = film({video(), sound(1, u"ger"_s), subtitle(2, u"subrip"_s)});
    const struct {
        const char *name;
        QList<MediaInformation> sources;
        const char *sounds;
        qsizetype leftOut;
    } cases[] = {
        {"none behind some", {film(), silent}, "[0:1] silence", 1},
        {"some behind none", {silent, film()}, "silence [1:1]", 1},
        {"no track twice, each behind its language", {two, german}, "[0:1] [0:2] silence [1:1]", 2},
        {"more than the first", {german, two}, "[0:1] [1:2]", 2},
        {"a picture in some alone", {film(), film({sound(0)})}, "", 0},
    };
    for (const auto &each : cases) {
        const Plan plan = planFor(u"mp4-h264"_s, [](Plan &p) { p.sources += u"/films/b.mp4"_s; });
        const auto steps = transcodeSteps(plan, each.sources, {}, paths);
        QStringList sounds;
        const QString line = steps ? steps->runs.last().arguments.join(u' ') : QString();
        for (const QString &chain : line.split(u';')) {
            if (chain.contains("]aformat"_L1) || chain.contains(",aformat"_L1))
                sounds += chain.contains("anullsrc"_L1) ? u"silence"_s : chain.section(u"aformat"_s, 0, 0);
        }
        EXPECT_EQ(sounds.join(u' ').toStdString(), each.sounds) << each.name << ": " << line.toStdString();
        EXPECT_EQ(steps ? steps->leftOut.size() : 0, each.leftOut) << each.name;
    }
}

}  // namespace kestrel
