#include "media/OutputCheck.h"
#include "media/TranscodeVerdict.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;
using kestrel::tarnwell::operator""_key;

namespace kestrel {

namespace {

using Kind = MediaTrack::Kind;

MediaTrack track(Kind kind, const QString &codec)
{
    MediaTrack result;
    result.kind = kind;
    result.codec = codec;
    return result;
}

/// A minute of film in Matroska, as it was planned, told and found.
struct Case {
    OutputExpectation expected{
        .tracks = {{Kind::Video, u"h264"_s}, {Kind::Audio, u"aac"_s}, {Kind::Subtitle, u"ass"_s}},
        .seconds = 60,
        .secondsAreTold = true,
        .chapters = 2};
    ToldOutput told{
        .bytes = 1000, .seconds = 60, .tracks = {{u"video"_s, 1500}, {u"audio"_s, 2813}, {u"subtitle"_s, 7}}};
    FoundOutput found;

    Case()
    {
        found.information.format = u"matroska,webm"_s;
        found.information.duration = 60;
        found.information.chapters.resize(2);
        found.information.tracks = {track(Kind::Video, u"h264"_s), track(Kind::Audio, u"aac"_s),
                                    track(Kind::Subtitle, u"ass"_s)};
        found.packets = {1500, 2813, 9};  // players see more packets of text than were written
        found.bytes = 1000;
    }
    OutputFindings findings() const { return compareOutput(expected, told, found); }
};

TEST(OutputCheckTest, WhatIsWrongWithAnOutput)
{
    enum class Expected { Good, Damage, Mismatch, Empty, Short, Long, TooLarge, Chapters };
    using enum Expected;
    const struct {
        const char *name;
        std::function<void(Case &)> change;
        Expected expected;
    } rows[] = {
        {"good", [](Case &) {}, Good},
        {"smaller than told", [](Case &c) { c.found.bytes = 999; }, Damage},
        {"larger than told", [](Case &c) { c.found.bytes = 1001; }, Damage},
        {"size not told", [](Case &c) { c.told.bytes.reset(); }, Good},
        {"a picture too few", [](Case &c) { c.found.packets[0] = 1499; }, Damage},
        {"sound lost", [](Case &c) { c.found.packets[1] = 2000; }, Damage},
        {"packets not told", [](Case &c) { c.told.tracks.clear(), c.found.packets[0] = 3; }, Good},
        {"uncompressed sound",
         [](Case &c) {
             c.found.information.tracks[1].codec = c.expected.tracks[1].codec = u"pcm_s16le"_s;
             c.found.packets[1] = 5;
         },
         Good},
        {"WAV of what nobody parses",
         [](Case &c) {
             c.found.information.format = u"wav"_s;
             c.found.information.tracks[1].codec = c.expected.tracks[1].codec = u"wmav2"_s;
             c.found.packets[1] = 5;
         },
         Good},
        {"FLAC's header",
         [](Case &c) {
             c.found.information.tracks[1].codec = c.expected.tracks[1].codec = u"flac"_s;
             c.found.packets[1] = 2812;
         },
         Good},
        {"kinds in another order", [](Case &c) { c.told.tracks.swapItemsAt(0, 1); }, Good},
        {"a track is missing",
         [](Case &c) {
             c.found.information.tracks.removeAt(1);
             c.found.packets.removeAt(1);
         },
         Mismatch},
        {"a track too many", [](Case &c) { c.expected.tracks.removeAt(2); }, Mismatch},
        {"another codec", [](Case &c) { c.expected.tracks[0].codec = u"hevc"_s; }, Mismatch},
        {"lies on its side", [](Case &c) { c.found.information.tracks[0].rotation = 90; }, Mismatch},
        {"a cover more than planned",
         [](Case &c) {
             c.found.information.tracks.append(track(Kind::Cover, u"mjpeg"_s));
             c.found.packets.append(1);
         },
         Good},
        {"its cover is missing",
         [](Case &c) {
             c.expected.tracks.append({Kind::Cover, u"mjpeg"_s});
         },
         Mismatch},
        {"no bytes", [](Case &c) { c.found.bytes = 0, c.told.bytes = 0; }, Empty},
        {"no packets",
         [](Case &c) {
             c.found.packets = {0, 0, 0}, c.told.tracks.clear();
         },
         Empty},
        {"short", [](Case &c) { c.found.information.duration = 58.9; }, Short},
        {"nearly as long", [](Case &c) { c.found.information.duration = 59.1; }, Good},
        {"an hour less 30 s", [](Case &c) { c.expected.seconds = 3600, c.found.information.duration = 3570; }, Good},
        {"an hour less 40 s", [](Case &c) { c.expected.seconds = 3600, c.found.information.duration = 3560; }, Short},
        {"half speed", [](Case &c) { c.found.information.duration = 120; }, Long},
        {"cut at a keyframe",
         [](Case &c) {
             c.found.information.duration = 66;
             c.expected.mayBeLonger = true;
         },
         Good},
        {"length not planned", [](Case &c) { c.expected.seconds.reset(), c.found.information.duration = 5; }, Good},
        {"the reader guesses",
         [](Case &c) {
             c.found.information.format = u"aac"_s;
             c.found.information.duration = 30;
         },
         Good},
        {"the reader guesses, the writer knows",
         [](Case &c) {
             c.found.information.format = u"aac"_s;
             c.told.seconds = 30;
         },
         Short},
        {"within its limit", [](Case &c) { c.expected.maximumBytes = 1000; }, Good},
        {"over its limit", [](Case &c) { c.expected.maximumBytes = 999; }, TooLarge},
        {"a chapter is missing", [](Case &c) { c.found.information.chapters.removeLast(); }, Chapters},
    };
    for (const auto &[name, change, expected] : rows) {
        Case row;
        change(row);
        const OutputFindings findings = row.findings();
        EXPECT_EQ(!findings.damage.isEmpty(), expected == Damage) << name;
        EXPECT_EQ(!findings.mismatch.isEmpty(), expected == Mismatch) << name;
        EXPECT_EQ(findings.isEmpty, expected == Empty) << name;
        EXPECT_EQ(findings.isShort, expected == Short) << name;
        EXPECT_EQ(findings.isLong, expected == Long) << name;
        EXPECT_EQ(findings.isTooLarge, expected == TooLarge) << name;
        EXPECT_EQ(findings.lacksChapters, expected == Chapters) << name;
    }
}

TEST(OutputCheckTest, PacketsOfAReport)
{
    const auto found = parseOutputReport(R"({"streams": [{"codec_type": "video", "nb_read_packets": "75"},
        {"codec_type": "audio"}, {"codec_type": "audio", "nb_read_packets": "x"}], "format": {"format_name": "avi"}})",
                                         5);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->packets, (QList<qint64>{75, 0, 0}));
    EXPECT_EQ(found->bytes, 5);
    EXPECT_FALSE(parseOutputReport("{}", 5));
    EXPECT_EQ(outputReportCommand({}, {}, 5).timeLimit, std::chrono::minutes(15));
    EXPECT_EQ(outputReportCommand({}, {}, 36'000'000'000).timeLimit, std::chrono::hours(2)) << "all of it is read";
}

TEST(OutputCheckTest, KeptTracksMayBeShorterThanTheFile)
{
    const Case film;
    MediaInformation source = film.found.information;
    EXPECT_EQ(secondsOfKept(film.expected, source), 60) << "the tracks tell nothing";
    source.tracks[0].duration = 60;
    EXPECT_EQ(secondsOfKept(film.expected, source), 60) << "one of them tells nothing";
    source.tracks[1].duration = 41;
    EXPECT_EQ(secondsOfKept(film.expected, source), 60);
    const OutputExpectation sound{.tracks = {{Kind::Audio, u"mp3"_s}}, .seconds = 60};
    EXPECT_EQ(secondsOfKept(sound, source), 41);
    EXPECT_EQ(secondsOfKept({.tracks = sound.tracks, .seconds = 30}, source), 30) << "less was wanted";
}

TEST(OutputCheckTest, AnotherAttemptAllowsForWhatTheLastOneMissed)
{
    const std::tuple<qint64, qint64, qint64> rows[] = {{1000, 1001, 26}, {1000, 1000, 0},   {1000, 950, 0},
                                                       {1000, 949, -26}, {1000, 501, -474}, {1000, 500, 0},
                                                       {0, 500, 0}};
    for (const auto &[wanted, found, correction] : rows)
        EXPECT_EQ(sizeCorrection(wanted, found), correction) << found;
}

/// Of a good conversion from a source with a length.
TranscodeFacts goodFacts()
{
    const Case good;
    return {.ending = {},
            .messages = ToolMessages(),
            .expected = good.expected,
            .copiesTracks = false,
            .findings = good.findings(),
            .readingFaults = 0};
}

TEST(TranscodeVerdictTest, WhatMayBeCalledDone)
{
    using Cause = ToolEnding::Cause;
    const tarnwell::Sentence damage("damage"_key);
    const struct {
        const char *name;
        std::function<void(TranscodeFacts &)> change;
        JobState state;
        const char *sentence;
    } rows[] = {
        {"good", [](TranscodeFacts &) {}, JobState::Done, ""},
        {"a fault of the source", [](TranscodeFacts &f) { f.messages.readLine("[error] no frame!"); },
         JobState::DoneWithProblems, "60 of 60 s could be read, 1 fault"},
        {"a fault of a source without a length",
         [](TranscodeFacts &f) {
             f.messages.readLine("[error] no frame!");
             f.expected.secondsAreTold = false;
         },
         JobState::DoneWithProblems, "60 s could be read, 1 fault"},
        {"short",
         [](TranscodeFacts &f) {
             f.findings->isShort = true;
             f.findings->seconds = 35.4;
         },
         JobState::DoneWithProblems, "35 of 60 s could be read, 0 faults"},
        {"short by a guess",
         [](TranscodeFacts &f) {
             f.findings->isShort = true;
             f.expected.secondsAreTold = false;
         },
         JobState::Done, ""},
        {"long", [](TranscodeFacts &f) { f.findings->isLong = true; }, JobState::DoneWithProblems,
         "The finished file is 60 s"},
        {"chapters gone", [](TranscodeFacts &f) { f.findings->lacksChapters = true; }, JobState::DoneWithProblems,
         "Chapters"},
        {"too large", [](TranscodeFacts &f) { f.findings->isTooLarge = true; }, JobState::DoneWithProblems,
         "The finished file is larger"},
        {"empty", [](TranscodeFacts &f) { f.findings->isEmpty = true; }, JobState::Failed, "Nothing of the file"},
        {"unreadable", [](TranscodeFacts &f) { f.findings.reset(); }, JobState::Failed, "The finished file could not"},
        {"damaged, whatever the source",
         [&](TranscodeFacts &f) {
             f.findings->damage = damage;
             f.messages.readLine("[error] no frame!");
         },
         JobState::Failed, "damage"},
        {"not what was wanted", [&](TranscodeFacts &f) { f.findings->mismatch = damage; }, JobState::Failed, "damage"},
        {"not what was wanted, of a damaged source",
         [&](TranscodeFacts &f) {
             f.findings->mismatch = damage;
             f.messages.readLine("[error] no frame!");
         },
         JobState::DoneWithProblems, "60 of 60 s"},
        {"encoded pictures that do not decode", [](TranscodeFacts &f) { f.readingFaults = 3; }, JobState::Failed,
         "The finished file is damaged: 3 faults."},
        {"copied pictures that do not decode",
         [](TranscodeFacts &f) {
             f.readingFaults = 3;
             f.copiesTracks = true;
         },
         JobState::DoneWithProblems, "60 of 60 s could be read, 3 faults"},
        {"nothing was there, and the tool is content",
         [](TranscodeFacts &f) { f.messages.readLine("[warning] Output file is empty, nothing was encoded"); },
         JobState::Failed, "The file is damaged or incomplete."},
        {"the disk was full, and the tool is content",
         [](TranscodeFacts &f) { f.messages.readLine("[error] Error writing trailer: No space left on device"); },
         JobState::Failed, "There is no space left"},
        {"exit status", [](TranscodeFacts &f) { f.ending.exitCode = 1; }, JobState::Failed,
         "The converter could not convert"},
        {"crash", [](TranscodeFacts &f) { f.ending.cause = Cause::Crashed; }, JobState::Failed,
         "The converter could not convert"},
        {"hung", [](TranscodeFacts &f) { f.ending.cause = Cause::Silence; }, JobState::Failed,
         "The converter did not answer"},
        {"missing", [](TranscodeFacts &f) { f.ending.cause = Cause::CouldNotStart; }, JobState::Failed,
         "The converter could not be started"},
        {"stopped by the user",
         [](TranscodeFacts &f) {
             f.ending.cause = Cause::Stopped;
             f.ending.exitCode = 255;
         },
         JobState::DoneWithProblems, "The conversion was stopped"},
    };
    for (const auto &[name, change, state, sentence] : rows) {
        TranscodeFacts facts = goodFacts();
        change(facts);
        const JobOutcome outcome = transcodeVerdict(facts);
        EXPECT_EQ(int(outcome.state), int(state)) << name;
        const QString text = outcome.sentence.english();
        EXPECT_TRUE(*sentence ? text.startsWith(QLatin1StringView(sentence)) : text.isEmpty())
            << name << ": " << text.toStdString();
        EXPECT_EQ(outcome.problems.isEmpty(), state != JobState::DoneWithProblems) << name;
    }
}

}  // namespace

}  // namespace kestrel
