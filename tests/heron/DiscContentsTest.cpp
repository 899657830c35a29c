#include "helpers/heron/CopyMap.h"
#include "helpers/heron/CoverChoice.h"
#include "helpers/heron/DiscContents.h"
#include "helpers/heron/MainTitle.h"
#include "helpers/heron/tools/PictureSearch.h"
#include "helpers/heron/tools/Protection.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::disc;

namespace {

using Cells = QList<TitleShape::Cell>;

TEST(MainTitle, IsTheFilmAndNotTheLongest)
{
    const TitleShape film{.cells = {{1, 0, 3000}, {1, 500, 3000}}, .chapters = 20, .tracks = 4};
    const TitleShape loop{.cells = Cells(200, {2, 0, 60}), .chapters = 200, .tracks = 1};
    const TitleShape trailer{.cells = {{3, 0, 120}}, .chapters = 1, .tracks = 1};
    const TitleShape backwards{.cells = {{1, 500, 3000}, {1, 0, 3000}, {3, 0, 100}}, .chapters = 20, .tracks = 4};
    const TitleShape fewerTracks{.cells = {{4, 0, 6010}}, .chapters = 20, .tracks = 2};
    struct {
        const char *name;
        QList<TitleShape> titles;
        int main;
        QList<int> duplicateOf;
    } const rows[] = {
        {"no titles", {}, -1, {}},
        {"a repeated cell counts once", {loop, trailer, film}, 2, {-1, -1, -1}},
        {"the first of duplicates", {trailer, film, film}, 1, {-1, -1, 1}},
        {"the one that goes forwards", {backwards, film}, 1, {-1, -1}},
        {"the one with more tracks", {fewerTracks, film}, 1, {-1, -1}},
        {"titles without cells are no duplicates", {{}, {}, trailer}, 2, {-1, -1, -1}},
    };
    for (const auto &row : rows) {
        const MainTitleChoice choice = chooseMainTitle(row.titles);
        EXPECT_EQ(choice.main, row.main) << row.name;
        EXPECT_EQ(choice.duplicateOf, row.duplicateOf) << row.name;
    }
}

TEST(DiscContents, ComesBackFromItsJson)
{
    DiscTitle title;
    title.number = 3;
    title.isMain = true;
    title.seconds = 60.5;
    title.aspect = u"16:9"_s;
    title.standard = u"NTSC"_s;
    title.width = 720;
    title.height = 480;
    title.chapters = {0, 15.25};
    title.stills = {{15, 5}};
    title.angles = 2;
    title.duplicateOf = 1;
    title.bytes = qint64(5) << 30;
    title.audio = {{u"en"_s, u"ac3"_s, 6, u"commentary"_s, 0x81}};
    title.subtitles = {{u"fr"_s, u"forced"_s, {0xff0000, 0x00ff7f}, 0x21}};
    const DiscContents contents{u"V"_s, qint64(8) << 30, true, true, {title}};
    const QJsonObject object = toJson(contents);
    const auto back = discContentsFromJson(object);
    ASSERT_TRUE(back);
    EXPECT_EQ(toJson(*back), object);
    EXPECT_EQ(back->titles[0].subtitles[0].palette[1], 0x00ff7fu);
    EXPECT_EQ(back->mainTitle()->number, 3);
}

TEST(DiscContents, ReadsNonsenseAsAbsent)
{
    EXPECT_FALSE(discContentsFromJson({{u"error"_s, u"damaged"_s}}));
    const auto contents =
        discContentsFromJson(QJsonDocument::fromJson(R"({"bytes":-5,"titles":[7,{"title":0},{"title":1e9},
            {"title":2,"seconds":"x","width":1e99,"angles":-1,"audio":[{"channels":900}],"subtitles":[{"palette":"q"}]}]})")
                                 .object());
    ASSERT_TRUE(contents);
    ASSERT_EQ(contents->titles.size(), 1);
    const DiscTitle &title = contents->titles[0];
    EXPECT_EQ(contents->bytes, 0);
    EXPECT_EQ(title.seconds, 0);
    EXPECT_EQ(title.width, 0);
    EXPECT_EQ(title.angles, 1);
    EXPECT_EQ(title.audio[0].channels, 0);
    EXPECT_EQ(title.subtitles.size(), 1);
}

TEST(Protection, IsMarkedFilmOrADriveThatRefusesAll)
{
    using Kind = DiscSource::Kind;
    struct {
        FilmSamples samples;
        Kind kind;
        bool isProtected;
    } const rows[] = {
        {{.scrambled = 0, .readable = 8, .unreadable = 0}, Kind::Drive, false},
        {{.scrambled = 1, .readable = 8, .unreadable = 0}, Kind::Image, false},  // a flipped bit
        {{.scrambled = 9, .readable = 8, .unreadable = 0}, Kind::Image, true},
        {{.scrambled = 0, .readable = 0, .unreadable = 8}, Kind::Drive, true},
        {{.scrambled = 0, .readable = 1, .unreadable = 7}, Kind::Drive, false},  // scratches
        {{.scrambled = 0, .readable = 0, .unreadable = 8}, Kind::Image, false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(isProtectedBy(row.samples, row.kind), row.isProtected)
            << row.samples.scrambled << ' ' << row.samples.readable << ' ' << static_cast<int>(row.kind);
}

TEST(PictureFlags, TellPulledDownFilmFromVideo)
{
    const auto pictures = [](int count, bool repeatsEverySecond, bool isProgressive) {
        QByteArray video;
        for (int i = 0; i < count; ++i) {
            QByteArray extension("\0\0\1\xb5\x80\0\3\0\0", 9);
            extension[7] = static_cast<char>(repeatsEverySecond && i % 2 ? 2 : 0);
            extension[8] = static_cast<char>(isProgressive ? 0x80 : 0);
            video += QByteArray("\0\0\1\0", 4) + "picture" + extension;
        }
        return video;
    };
    PictureFlags film, video, few;
    film.count(pictures(48, true, true));
    video.count(pictures(48, false, false));
    few.count(pictures(4, true, true));
    EXPECT_TRUE(film.isPulledDown() && film.isProgressive());
    EXPECT_FALSE(video.isPulledDown() || video.isProgressive());
    EXPECT_FALSE(few.isPulledDown() || few.isProgressive());
}

TEST(CoverChoice, PrefersAScene)
{
    constexpr int width = 64, points = 64 * 36;
    QByteArray scene(points, '\0'), letters(points, '\x10');
    quint32 state = 1;
    for (char &point : scene)
        point = static_cast<char>((state = state * 1664525 + 1013904223) >> 25);
    for (int i = 0; i < points; i += 9)
        letters[i] = '\xf0';
    EXPECT_EQ(worthOfPicture(QByteArray(points, '\0'), width), 0);
    EXPECT_EQ(worthOfPicture({}, width), 0);
    EXPECT_LT(worthOfPicture(letters, width), worthOfPicture(scene, width));
}

TEST(CopyMap, IsKeptAndDistrustsItself)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"map"_s);
    CopyMap map{.bytes = 2048 * 1000, .fingerprint = u"f"_s, .position = 500, .untried = {}, .bad = {}};
    append(map.untried, {10, 16});
    append(map.untried, {26, 4});
    append(map.untried, {40, 1});
    EXPECT_EQ(map.untried, (QList<SectorRange>{{10, 20}, {40, 1}}));
    ASSERT_TRUE(map.save(path));
    const auto back = CopyMap::load(path);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->untried, map.untried);
    EXPECT_EQ(back->position, 500);
    cutAt(map.untried, 15);
    EXPECT_EQ(map.untried, (QList<SectorRange>{{10, 5}}));

    map.untried = {{990, 11}};  // beyond the end of the disc
    ASSERT_TRUE(map.save(path));
    EXPECT_FALSE(CopyMap::load(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"version\":1");
    file.close();
    EXPECT_FALSE(CopyMap::load(path));
}

}  // namespace
