#include "modules/marlin/MediaInformation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(MediaInformationTest, ReadsTheFirstTrackOfEachKind)
{
    const auto information = parseMediaInformation(R"({"media": {"track": [
        {"@type": "General", "Format": "Matroska", "Duration": "2.5"},
        {"@type": "Text", "Duration": "900"},
        {"@type": "Video", "Format": "AVC", "Duration": "2.500", "BitDepth": "10"},
        {"@type": "Video", "Format": "VP9"},
        {"@type": "Audio", "Format": "MPEG Audio", "Format_Profile": "Layer 3", "Duration": "3 / 3"},
        {"@type": "Audio", "Format": "AAC"}]}})");
    ASSERT_TRUE(information);
    EXPECT_EQ(information->summary(), u"Matroska · AVC · MPEG Audio Layer 3");
    EXPECT_EQ(information->duration, 3.0);
    EXPECT_FALSE(information->isPlainVideo);
}

TEST(MediaInformationTest, WhatIsNoReportIsAbsent)
{
    const QByteArray huge = R"({"media": {"track": [{"@type": "Audio", "Format": "AAC"}]}, "x": ")" +
                            QByteArray(maximumReportBytes, 'x') + "\"}";
    const QByteArray tracks = R"({"media": {"track": [5, null, [], {}, {"@type": 3}, {"@type": "Menu"}]}})";
    const QByteArray deep(100'000, '['), noMedia = R"({"media": null})", noTracks = R"({"media": {"track": 5}})";
    const QByteArray reports[] = {"", "x", "[]", "{", noMedia, noTracks, tracks, deep, huge};
    for (const QByteArray &report : reports)
        EXPECT_FALSE(parseMediaInformation(report)) << report.left(60).constData();
}

TEST(MediaInformationTest, NonsenseDurationsAreUnknown)
{
    for (const char *duration : {"\"0\"", "\"-5\"", "\"nan\"", "\"1e300\"", "\"12x\"", "{}"}) {
        const auto information = parseMediaInformation(
            QByteArray(R"({"media": {"track": [{"@type": "Audio", "Duration": )") + duration + "}]}}");
        ASSERT_TRUE(information) << duration;
        EXPECT_FALSE(information->duration) << duration;
    }
}

}  // namespace kestrel
