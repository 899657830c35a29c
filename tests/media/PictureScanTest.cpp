#include "media/KeyPictures.h"
#include "media/PictureScan.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using FieldOrder = MediaTrack::FieldOrder;

TEST(PictureScanTest, InterlacedOnlyWhereNearlyAllPicturesAgree)
{
    const struct {
        int topFirst, bottomFirst, progressive, undetermined;
        FieldOrder order;
    } rows[] = {{101, 0, 0, 0, FieldOrder::TopFirst},   {0, 97, 1, 3, FieldOrder::BottomFirst},
                {86, 0, 15, 0, FieldOrder::Unknown},    {95, 1, 5, 0, FieldOrder::Unknown},
                {0, 0, 99, 2, FieldOrder::Progressive}, {0, 0, 0, 101, FieldOrder::Unknown},
                {0, 0, 0, 0, FieldOrder::Unknown}};
    for (const auto &[topFirst, bottomFirst, progressive, undetermined, order] : rows) {
        PictureScan scan;
        scan.readLine(
            "[Parsed_idet_0 @ 0x1] [info] Single frame detection: TFF:  1 BFF: 2 Progressive: 3 Undetermined: 4");
        scan.readLine(
            u"[Parsed_idet_0 @ 0x1] [info] Multi frame detection: TFF: %1 BFF: %2 Progressive: %3 Undetermined: %4"_s
                .arg(topFirst, 5)
                .arg(bottomFirst, 5)
                .arg(progressive, 5)
                .arg(undetermined, 5)
                .toLatin1());
        EXPECT_EQ(scan.fieldOrder(), order) << topFirst << ' ' << bottomFirst << ' ' << progressive;
    }
}

TEST(PictureScanTest, LooksWherePicturesOfTelevisionDoNotTell)
{
    MediaTrack track;
    track.kind = MediaTrack::Kind::Video;
    track.frameRate = 25;
    using enum FieldOrder;
    const std::tuple<QString, FieldOrder, int, bool> rows[] = {
        {u"h264"_s, Unknown, 480, true},        {u"h264"_s, Unknown, 576, true},
        {u"h264"_s, Unknown, 1080, true},       {u"h264"_s, Unknown, 1088, true},
        {u"h264"_s, Unknown, 720, false},       {u"h264"_s, Unknown, 2160, false},
        {u"h264"_s, Progressive, 576, false},   {u"mpeg2video"_s, Progressive, 576, true},
        {u"mpeg2video"_s, TopFirst, 576, false}};
    for (const auto &[codec, order, height, isWorthwhile] : rows) {
        track.codec = codec;
        track.fieldOrder = order;
        track.height = height;
        EXPECT_EQ(PictureScan::isWorthwhile(track), isWorthwhile) << codec.toStdString() << ' ' << height;
    }
}

TEST(PictureScanTest, BlackBarsOfTheLastPicture)
{
    PictureScan scan;
    scan.readLine(
        "[Parsed_cropdetect_1 @ 0x1] [info] x1:0 x2:319 y1:30 y2:200 w:320 h:160 x:0 y:34 pts:1 t:0.1 "
        "crop=320:160:0:34");
    scan.readLine(
        "[Parsed_cropdetect_1 @ 0x1] [info] x1:0 x2:319 y1:24 y2:263 w:320 h:240 x:0 y:24 pts:2 t:0.2 "
        "crop=320:240:0:24");
    scan.readLine("[Parsed_cropdetect_1 @ 0x1] [info] black: crop=-318:-238:320:240");
    EXPECT_EQ(scan.picture(), QRect(0, 24, 320, 240));
}

TEST(KeyPicturesTest, OnAFilmsOwnClockAsFarAsItWasRead)
{
    MediaInformation film;
    film.start = 1.4;
    film.tracks.emplaceBack();
    film.tracks[0].kind = MediaTrack::Kind::Video;
    film.tracks[0].isReordered = true;
    KeyPictures keys(film);
    for (const char *line : {"1.400000,1.320000,K__", "1.480000,1.360000,___", "5.400000,5.320000,K__",
                             "N/A,9.400000,K__", "10.4,10.3,___", "side data", ""})
        keys.readLine(line);
    const std::tuple<double, double, double> rows[] = {
        {0, 0, 4}, {3.999, 4, 8}, {7.5, 4, 8}, {9, 8, -1}, {9.5, -1, -1}};
    for (const auto &[seconds, before, after] : rows) {
        EXPECT_NEAR(keys.atOrBefore(seconds).value_or(-1), before, 1e-6) << seconds;
        EXPECT_NEAR(keys.after(seconds).value_or(-1), after, 1e-6) << seconds;
    }
    keys.finish();
    EXPECT_NEAR(keys.atOrBefore(99).value_or(-1), 8, 1e-6);

    EXPECT_TRUE(KeyPictures::command({}, {}, film, 40).arguments.contains(u"11.400%42.400"_s));
    EXPECT_GT(copyStart(film, 4), 4.13);
    film.format = u"mpegts"_s;
    EXPECT_TRUE(copyStart(film, 4) < 4 && copyStart(film, 0) == 0);
}

}  // namespace

}  // namespace kestrel
