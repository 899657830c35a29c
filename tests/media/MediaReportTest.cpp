#include "media/MediaInformation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Kind = MediaTrack::Kind;

MediaInformation informationOf(const QByteArray &streams,
                               const QByteArray &format = R"("format_name": "matroska,webm")")
{
    const auto information = parseMediaInformation(R"({"streams": [)" + streams + R"(], "format": {)" + format + "}}");
    return information.value_or(MediaInformation());
}

MediaTrack videoOf(const QByteArray &members)
{
    return informationOf(R"({"codec_type": "video", )" + members + "}").tracks.value(0);
}

TEST(MediaReportTest, ATrackOfEachKind)
{
    const auto information = parseMediaInformation(R"json({"streams": [
        {"index": 0, "codec_name": "hevc", "profile": "Main 10", "codec_type": "video", "width": 1920, "height": 1080,
         "sample_aspect_ratio": "4:3", "pix_fmt": "yuv420p10le", "field_order": "progressive", "avg_frame_rate": "24000/1001",
         "r_frame_rate": "24000/1001", "start_time": "-0.021", "color_range": "tv", "color_transfer": "smpte2084",
         "color_space": "unknown", "disposition": {"default": 0}, "tags": {"BPS": "5000000", "DURATION": "00:01:02.500000000"}},
        {"index": 1, "codec_name": "mjpeg", "codec_type": "video", "disposition": {"attached_pic": 1}},
        {"index": 2, "codec_name": "eac3", "codec_type": "audio", "channels": 6, "channel_layout": "5.1(side)",
         "sample_rate": "48000", "bit_rate": "640000", "duration": "62.1", "disposition": {"default": 0},
         "tags": {"LANGUAGE": "ger", "title": " Two\n words ", "BPS-eng": "5"}},
        {"index": 3, "codec_name": "aac", "codec_type": "audio", "disposition": {"default": 1},
         "tags": {"language": "und", "handler_name": "SoundHandler", "DURATION-eng": "00:00:30.000"}},
        {"index": 4, "codec_name": "hdmv_pgs_subtitle", "codec_type": "subtitle", "disposition": {"forced": 1, "comment": 1, "timed_thumbnails": 1}},
        {"index": 5, "codec_name": "mov_text", "codec_type": "subtitle", "tags": {"handler_name": "Signs"}},
        {"index": 6, "codec_type": "attachment", "tags": {"filename": "a.ttf", "mimetype": "font/ttf"}},
        {"index": 7, "codec_type": "data"}],
      "chapters": [{"start_time": "0.0", "end_time": "31.25", "tags": {"title": "One"}}, {"start_time": "31.25"}],
      "format": {"format_name": "matroska,webm", "start_time": "0.5", "duration": "63.000000", "size": "123456", "bit_rate": "15802",
                 "tags": {"TITLE": "A film", "creation_time": "2024-01-01"}}})json");
    ASSERT_TRUE(information);
    const QList<MediaTrack> &tracks = information->tracks;
    const Kind kinds[] = {Kind::Video,    Kind::Cover,    Kind::Audio,      Kind::Audio,
                          Kind::Subtitle, Kind::Subtitle, Kind::Attachment, Kind::Data};
    ASSERT_EQ(tracks.size(), qsizetype(std::size(kinds)));
    for (qsizetype index = 0; index < tracks.size(); ++index)
        EXPECT_TRUE(tracks[index].kind == kinds[index] && tracks[index].index == index) << index;
    const MediaTrack &video = tracks[0];
    EXPECT_TRUE(video.width == 1920 && video.height == 1080 && video.bitDepth == 10 && video.bitRate == 5'000'000);
    EXPECT_TRUE(video.isHdr() && !video.isInterlaced() && !video.isVariableRate && !video.isDefault);
    EXPECT_NEAR(video.sampleAspect, 4.0 / 3, 1e-9);
    EXPECT_TRUE(qAbs(video.frameRate - 23.976) < 0.001 && video.baseRate == video.frameRate);
    EXPECT_TRUE(video.duration == 62.5 && video.start == -0.021);
    EXPECT_TRUE(video.colorSpace.isNull() && video.colorRange == u"tv" && video.profile == u"Main 10");
    const MediaTrack &sound = tracks[2];
    EXPECT_TRUE(sound.channels == 6 && sound.channelLayout == u"5.1(side)" && sound.sampleRate == 48'000);
    EXPECT_TRUE(sound.language == u"ger" && sound.title == u"Two words" && sound.bitRate == 640'000);
    EXPECT_TRUE(tracks[3].language.isNull() && tracks[3].title.isNull() && tracks[3].duration == 30.0);
    EXPECT_EQ(information->firstOf(Kind::Audio)->index, 3) << "the default one";
    EXPECT_TRUE(tracks[4].isBitmap && tracks[4].isForced && tracks[4].roles == QStringList(u"comment"_s) &&
                !tracks[5].isBitmap && tracks[5].title == u"Signs");
    EXPECT_TRUE(tracks[6].fileName == u"a.ttf" && tracks[6].mimeType == u"font/ttf");
    EXPECT_TRUE(information->bytes == 123'456 && information->duration == 62.5 && information->headerTellsDuration());
    EXPECT_EQ(information->tags.value(u"title"_s), u"A film");
    ASSERT_EQ(information->chapters.size(), 2);
    EXPECT_TRUE(information->chapters[0].end == 31.25 && information->chapters[0].title == u"One");
    EXPECT_EQ(information->summary(), u"Matroska · H.265 · AAC");
}

TEST(MediaReportTest, PicturesStandUpright)
{
    const std::pair<const char *, int> rows[] = {
        {R"("side_data_list": [{"side_data_type": "Display Matrix", "rotation": -90}])", 90},
        {R"("side_data_list": [{"side_data_type": "Display Matrix", "rotation": 90}], "tags": {"rotate": "270"})", 270},
        {R"("side_data_list": [{"side_data_type": "Display Matrix", "rotation": -180}])", 180},
        {R"("side_data_list": [{"side_data_type": "Display Matrix", "rotation": -89.9}])", 90},
        {R"("side_data_list": [{"side_data_type": "Display Matrix", "rotation": 0}], "tags": {"rotate": "90"})", 0},
        {R"("side_data_list": [{"side_data_type": "Display Matrix", "rotation": 1e300}])", 0},
        {R"("tags": {"rotate": "90"})", 90},
        {R"("side_data_list": 5)", 0}};
    for (const auto &[members, rotation] : rows) {
        const int turned = videoOf(members).rotation;
        EXPECT_TRUE(turned == rotation || QByteArray(members).contains("1e300")) << members << " -> " << turned;
        EXPECT_TRUE(turned % 90 == 0 && turned >= 0 && turned < 360) << members;
    }
}

TEST(MediaReportTest, RatesAndDepths)
{
    const struct {
        const char *average, *base;
        double rate;
        bool isVariable;
    } rates[] = {{"25/1", "25/1", 25, false},
                 {"25/1", "50/1", 25, false},
                 {"359/12", "30/1", 29.917, true},
                 {"0/0", "90000/1", 0, false},
                 {"0/0", "25/1", 25, false},
                 {"10/1", "100/1", 10, true},
                 {"2997/100", "30000/1001", 29.97, false},
                 {"x", "1/0", 0, false}};
    for (const auto &[average, base, rate, isVariable] : rates) {
        const MediaTrack track =
            videoOf(QByteArray(R"("avg_frame_rate": ")") + average + R"(", "r_frame_rate": ")" + base + '"');
        EXPECT_NEAR(track.frameRate, rate, 0.001) << average << ' ' << base;
        EXPECT_EQ(track.isVariableRate, isVariable) << average << ' ' << base;
    }
    const std::pair<const char *, int> depths[] = {{"yuv420p", 8},  {"yuv422p12be", 12}, {"p010le", 10},
                                                   {"rgb48le", 16}, {"y210le", 10},      {"rgb565le", 8},
                                                   {"nv12", 8},     {"gray16le", 16}};
    for (const auto &[format, depth] : depths)
        EXPECT_EQ(videoOf(QByteArray(R"("pix_fmt": ")") + format + '"').bitDepth, depth) << format;
}

const QByteArray masteringData = R"("side_data_list": [
    {"side_data_type": "Mastering display metadata", "red_x": "34000/50000", "red_y": "16000/50000", "green_x": "13250/50000",
     "green_y": "34500/50000", "blue_x": "7500/50000", "blue_y": "3000/50000", "white_point_x": "15635/50000",
     "white_point_y": "16450/50000", "min_luminance": "1/10000", "max_luminance": "1000/1"},
    {"side_data_type": "Content light level metadata", "max_content": 1000, "max_average": 400}])";

TEST(MediaReportTest, MasteringDataOfTracksAndPictures)
{
    const QString display = u"G(13250,34500)B(7500,3000)R(34000,16000)WP(15635,16450)L(10000000,1)"_s;
    const MediaTrack track = videoOf(masteringData);
    EXPECT_EQ(track.masteringDisplay, display);
    EXPECT_EQ(track.lightLevel, u"1000,400");
    MediaInformation film = informationOf(R"({"codec_type": "video", "tags": {"rotate": "90"}})");
    addPictureData(R"({"frames": [{)" + masteringData + "}]}", film);
    const MediaTrack &bare = film.tracks[0];
    EXPECT_TRUE(bare.masteringDisplay == display && bare.lightLevel == u"1000,400" && bare.rotation == 90);
    EXPECT_TRUE(
        videoOf(R"("side_data_list": [{"side_data_type": "Mastering display metadata"}])").masteringDisplay.isNull());
}

TEST(MediaReportTest, WhichFilesAreFilms)
{
    const struct {
        const char *format, *codec, *type;
        bool canBeConverted, headerTellsDuration;
    } rows[] = {{"gif", "gif", "video", true, false},
                {"apng", "apng", "video", true, false},
                {"png_pipe", "png", "video", false, false},
                {"tty", "ansi", "video", false, false},
                {"image2", "mjpeg", "video", false, false},
                {"srt", "subrip", "subtitle", false, false},
                {"mp3", "mp3", "audio", true, false},
                {"mpegts", "h264", "video", true, false},
                {"avi", "h264", "video", true, false},
                {"flac", "flac", "audio", true, true},
                {"mov,mp4,m4a,3gp,3g2,mj2", "h264", "video", true, true}};
    for (const auto &[format, codec, type, canBeConverted, headerTellsDuration] : rows) {
        const MediaInformation information =
            informationOf(QByteArray(R"({"codec_name": ")") + codec + R"(", "codec_type": ")" + type + "\"}",
                          QByteArray(R"("duration": "5", "format_name": ")") + format + '"');
        EXPECT_EQ(information.canBeConverted(), canBeConverted) << format;
        EXPECT_EQ(information.headerTellsDuration(), headerTellsDuration) << format;
    }
}

TEST(MediaReportTest, NonsenseIsAbsent)
{
    const QByteArray huge =
        R"({"format": {"format_name": "avi"}, "x": ")" + QByteArray(maximumReportBytes, 'x') + "\"}";
    for (const QByteArray &report : {QByteArray(), QByteArray("x"), QByteArray("[]"), QByteArray("{"),
                                     QByteArray(R"({"format": {}})"), QByteArray(100'000, '['), huge})
        EXPECT_FALSE(parseMediaInformation(report)) << report.left(60).constData();
    for (const char *duration : {"\"0\"", "\"-5\"", "\"nan\"", "\"1e300\"", "\"12x\"", "{}", "\"N/A\""})
        EXPECT_FALSE(informationOf("", QByteArray(R"("format_name": "avi", "duration": )") + duration).duration)
            << duration;
    const MediaTrack track = videoOf(R"("index": 1e99, "width": -5, "height": "7e9", "channels": "many", "tags": [1],
        "disposition": 3, "bit_rate": -1, "sample_aspect_ratio": "0:1", "title": 5)");
    EXPECT_TRUE(track.index == 0 && track.width == 0 && track.height == 0 && track.channels == 0 && track.bitRate == 0);
    EXPECT_EQ(track.sampleAspect, 1);
    const MediaInformation many = informationOf(QByteArray("{},").repeated(1000) + "{}", R"("format_name": "avi",
        "tags": {"a": ")" + QByteArray(1000, 'x') + "\"}");
    EXPECT_EQ(many.tracks.size(), 256);
    EXPECT_EQ(many.tags.value(u"a"_s).size(), 200);
    EXPECT_EQ(informationOf(R"({"duration": "3"}, {"duration": "4.5"}, {})").duration, 4.5) << "the longest track";
}

}  // namespace

}  // namespace kestrel
