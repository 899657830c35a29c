#include "modules/petrel/AnswerStore.h"
#include "modules/petrel/DownloadPlan.h"
#include "modules/petrel/EngineAnswer.h"
#include "modules/petrel/EngineCommand.h"
#include "modules/petrel/EngineFailure.h"
#include "modules/petrel/EngineProgress.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Kind = EngineFailure::Kind;
using Promise = EngineAnswer::Promise;

struct FailureCase {
    const char *words;
    Kind kind;
};

constexpr FailureCase failureCases[] = {
    {"ERROR: Unsupported URL: https://a.example/x", Kind::UnknownSite},
    {"ERROR: [site] x: Video unavailable. This video has been removed by the uploader", Kind::Gone},
    {"ERROR: [generic] Unable to download webpage: HTTP Error 404: Not Found (caused by <HTTPError 404>)", Kind::Gone},
    {"ERROR: [site] x: Private video. Sign in if you've been granted access to this video", Kind::Private},
    {"ERROR: [site] x: Join this channel to get access to members-only content", Kind::Private},
    {"ERROR: [site] x: This video is only available for registered users. Use --cookies", Kind::LogIn},
    {"ERROR: [site] x: Sign in to confirm your age. This video may be inappropriate for some users.", Kind::Age},
    {"ERROR: [site] x: The uploader has not made this video available in your country", Kind::Country},
    {"ERROR: [site] x: This live event will begin in 3 hours.", Kind::NotBegun},
    {"ERROR: [site] x: Track unavailable in your country due to licensing restrictions", Kind::Country},
    {"ERROR: [site] x: We're sorry, this video needs a premium account. It's not free.", Kind::Private},
    {"ERROR: [site] x: This video is DRM protected", Kind::Protected},
    {"ERROR: unable to download video data: HTTP Error 429: Too Many Requests", Kind::TooMany},
    {"ERROR: [x] Unable to download webpage: <urlopen error [Errno -3] Temporary failure in name resolution>",
     Kind::NoNetwork},
    {"ERROR: [x] Unable to download webpage: <urlopen error [Errno -2] Name or service not known>", Kind::NotThere},
    {"ERROR: Unable to download webpage: <urlopen error Tunnel connection failed: 403 Forbidden>", Kind::Proxy},
    {"ERROR: unable to download video data: HTTP Error 403: Forbidden", Kind::Refused},
    {"ERROR: unable to download video data: HTTP Error 400: Bad Request", Kind::Refused},
    {"ERROR: unable to download video data: HTTP Error 416: Requested Range Not Satisfiable", Kind::Server},
    {"ERROR: unable to download video data: <urlopen error timed out>", Kind::Server},
    {"ERROR: [Errno 28] No space left on device", Kind::Disk},
    {"ERROR: [site] x: Unable to extract title; please report this issue on https://x.example", Kind::EngineOld},
    {"Traceback (most recent call last):\n  File \"yt-dlp\"\nImportError: x", Kind::EngineBroken},
    {"ERROR: [site] x: Requested format is not available. Use --list-formats", Kind::NoSuchForm},
    // What stands in an address or a name tells nothing, nor does a mere warning.
    {"ERROR: Unsupported URL: https://a.example/private-video-HTTP-Error-429", Kind::UnknownSite},
    {"WARNING: HTTP Error 429: retrying\nERROR: Unsupported URL: x", Kind::UnknownSite},
    {"ERROR: something nobody has seen", Kind::Unknown},
};

TEST(EngineFailureTest, WordsBecomeOneSentence)
{
    for (const FailureCase &row : failureCases) {
        const EngineFailure failure = engineFailure(
            {.cause = ToolEnding::Cause::Exited, .exitCode = 1, .lastWords = QString::fromUtf8(row.words)});
        EXPECT_EQ(failure.kind, row.kind) << row.words;
        EXPECT_FALSE(failure.sentence.isEmpty()) << row.words;
    }
    const ToolEnding refused{.exitCode = 1, .lastWords = u"ERROR: <urlopen error [Errno 111] Connection refused>"_s};
    EXPECT_EQ(engineFailure(refused).kind, Kind::NotThere);
    EXPECT_EQ(engineFailure(refused, u"http://p.example:1"_s).kind, Kind::Proxy);
    EXPECT_EQ(engineFailure({.cause = ToolEnding::Cause::CouldNotStart}).kind, Kind::EngineBroken);
    EXPECT_EQ(engineFailure({.cause = ToolEnding::Cause::Silence}).kind, Kind::Server);
    EXPECT_EQ(engineFailure({.cause = ToolEnding::Cause::OutputLimit}).kind, Kind::TooLong);
}

TEST(EngineFailureTest, AServerTellsHowLongItWantsToBeLeftAlone)
{
    const std::pair<QByteArray, int> cases[] = {
        {"header: Retry-After: 2", 2},
        {"header: retry-after: 5\nheader: Retry-After: 70 \nnull", 70},
        {"header: Retry-After: 99999999999", 86400},
        {"header: Retry-After: Sat, 22 Nov 2014 22:24:42 GMT", 0},
        {"header: Retry-After: Sat, 21 Nov 2099 22:24:42 GMT", 86400},
        {"header: Server: x", 0},
    };
    for (const auto &[output, seconds] : cases)
        EXPECT_EQ(retryAfterIn(output), seconds) << output.constData();
}

const QString page = u"https://a.example/page"_s;

TEST(EngineAnswerTest, PictureAndSoundApartAreOnePromise)
{
    auto answer = parseEngineAnswer(R"({"title": " A\nfilm ", "duration": 60.5, "thumbnail": "file:///etc/passwd",
        "formats": [{"ext": "m4a", "vcodec": "none", "acodec": "aac", "filesize": 10},
                    {"ext": "mp4", "vcodec": "h264", "acodec": "none", "width": 720, "height": 1280, "filesize": 100},
                    {"ext": "mp4", "vcodec": "h264", "acodec": "none", "height": 1080, "filesize_approx": 200.7},
                    {"ext": "mp4", "vcodec": null, "height": -3}, 17],
        "requested_formats": [{"vcodec": "h264", "acodec": "none", "filesize": 100}, {"vcodec": "none", "acodec": "aac", "filesize": 10}],
        "subtitles": {"en": [], "live_chat": []}, "live_status": "not_live", "_has_drm": true, "age_limit": "old"})",
                                    page);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->title, u"A film"_s);
    EXPECT_EQ(answer->seconds, 60.5);
    EXPECT_EQ(answer->picture, QString());
    EXPECT_EQ(answer->bytes, 110);
    EXPECT_FALSE(answer->isProtected);  // there are free forms
    EXPECT_EQ(answer->video, Promise::Yes);
    EXPECT_EQ(answer->sound, Promise::Yes);
    EXPECT_EQ(answer->subtitles, QStringList{u"en"_s});
    const QList<std::pair<int, qint64>> resolutions{{1080, 210}, {720, 110}};
    EXPECT_EQ(answer->resolutions(), resolutions);
    answer->forgetChoice();
    EXPECT_EQ(answer->sound, Promise::Yes);
}

TEST(EngineAnswerTest, ListsKeepHowTheirFilmsAreFound)
{
    const auto answer = parseEngineAnswer(
        "header: X: {}\n"
        R"({"_type": "playlist", "title": "All", "entries": [
        {"_type": "url", "url": "https://a.example/1", "title": "One", "duration": 5}, null,
        {"title": "Two", "formats": []}, {"_type": "url", "url": "file:///etc/passwd"}]})"
        "\nsend: b'GET {'\nheader: Y: {}\n",
        page);
    ASSERT_TRUE(answer);
    ASSERT_EQ(answer->entries.size(), 3);
    EXPECT_EQ(answer->entries[0].address, u"https://a.example/1"_s);
    EXPECT_FALSE(answer->entries[0].isOfPage);
    EXPECT_EQ(answer->entries[1].address, page);
    EXPECT_EQ(answer->entries[1].item, 3);
    EXPECT_EQ(answer->entries[2].address, page);
    const QTemporaryDir folder;
    const AnswerStore store(folder.path());
    DownloadPlan plan{.address = page};
    store.keep(plan, *answer);
    plan.item = 3;
    EXPECT_EQ(store.answer(plan).value_or(EngineAnswer()).title, u"Two");
    plan.item = 1;
    EXPECT_FALSE(store.answer(plan)) << "each film is one by itself";
    // A list of one is that one.
    const auto single =
        parseEngineAnswer(R"({"_type": "playlist", "entries": [{"title": "One", "vcodec": "none"}]})", page);
    ASSERT_TRUE(single);
    EXPECT_TRUE(single->entries.isEmpty());
    EXPECT_EQ(single->video, Promise::No);
}

TEST(EngineAnswerTest, NonsenseIsRefusedOrReadsAsAbsent)
{
    for (const QByteArray json : {"", "[]", "null", "{", "{\"_type\": \"playlist\", \"entries\": []}"})
        EXPECT_FALSE(parseEngineAnswer(json, page)) << json.constData();
    const auto odd = parseEngineAnswer(R"({"title": 5, "duration": "long", "formats": {}, "is_live": "no"})", page);
    ASSERT_TRUE(odd);
    EXPECT_EQ(odd->title, page);
    EXPECT_EQ(odd->seconds, 0);
    EXPECT_FALSE(odd->isLive);
}

QByteArray report(const char *file, int done, int total, const char *status = "downloading")
{
    return QByteArray(progressMark) + R"(["22", {"filename": ")" + file + R"(", "downloaded_bytes": )" +
           QByteArray::number(done) + R"(, "total_bytes": )" + QByteArray::number(total) + R"(, "status": ")" + status +
           R"(", "speed": 5.5}])";
}

TEST(EngineProgressTest, TwoFilesAreOneBarThatOnlyGrows)
{
    EngineProgress progress(0, true);
    EXPECT_FALSE(progress.readLine(report("media.en.vtt", 5, 5, "finished")));
    EXPECT_TRUE(progress.readLine(report("media.f1.mp4", 50, 100)));
    EXPECT_EQ(progress.resumedAt(), 50);
    EXPECT_EQ(progress.whole(), u"22 0 100"_s);
    EXPECT_DOUBLE_EQ(*progress.progress().fraction, 0.25);
    EXPECT_DOUBLE_EQ(progress.progress().bytesPerSecond, 5.5);
    progress.readLine(report("media.f1.mp4", 100, 100, "finished"));
    EXPECT_DOUBLE_EQ(*progress.progress().fraction, 0.5);
    progress.readLine(report("media.f2.m4a", 5, 10));
    EXPECT_DOUBLE_EQ(*progress.progress().fraction, 0.75);
    EXPECT_EQ(progress.progress().bytes, 105);
    EXPECT_DOUBLE_EQ(*progress.progress().remainingSeconds, 5 / 5.5);
    EXPECT_TRUE(progress.readLine("[Merger] Merging formats into \"media.mp4\""));
    EXPECT_FALSE(progress.progress().stage.isEmpty());
    for (const QByteArray line : {"[download] Destination: media.mp4", "kestrel-progress nonsense", ""})
        EXPECT_FALSE(progress.readLine(line)) << line.constData();
}

TEST(EngineProgressTest, AnEstimateThatIsTooLowDoesNotPassTheEnd)
{
    EngineProgress progress(100);
    progress.readLine(report("media.mp4", 300, 0));
    EXPECT_LT(*progress.progress().fraction, 1);
}

TEST(EngineCommandTest, TheAddressIsNeverTakenForAnOption)
{
    DownloadPlan plan{.address = u"https://a.example/--exec=x"_s, .height = 720, .extension = u"mp4"_s};
    const EngineTools tools{u"/engine"_s, u"/tools"_s, u"/home-of-its-own"_s};
    for (const ToolCommand &command : {analysisCommand(plan, tools), downloadCommand(plan, tools, u"/part"_s, {})}) {
        ASSERT_GE(command.arguments.size(), 2);
        EXPECT_EQ(command.arguments.last(), plan.address);
        EXPECT_EQ(command.arguments[command.arguments.size() - 2], u"--"_s);
        EXPECT_TRUE(command.arguments.contains(u"--ignore-config"_s));
        EXPECT_EQ(command.environment.value(u"HOME"_s), u"/home-of-its-own"_s);
    }
    const ToolCommand known = downloadCommand(plan, tools, u"/part"_s, u"/answer.json"_s);
    EXPECT_FALSE(known.arguments.contains(plan.address));
    EXPECT_TRUE(known.arguments.contains(u"/answer.json"_s));
    plan.bytesPerSecond = 5000;
    EXPECT_TRUE(downloadCommand(plan, tools, u"/part"_s, {}).arguments.join(u' ').contains(u"--limit-rate 5000 "_s));
}

}  // namespace

}  // namespace kestrel
