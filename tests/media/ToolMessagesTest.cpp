#include "media/ToolMessages.h"
#include "media/TranscodeProgress.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

TEST(ToolMessagesTest, CountsWhatTheToolCallsAnError)
{
    const std::pair<const char *, bool> rows[] = {
        {"[h264 @ 0x55e7] [error] no frame!", true},
        {"[error] Error while decoding stream #0:0: Invalid data found", true},
        {"[mov,mp4,m4a @ 0x1] [matroska @ 0x2] [fatal] moov", true},
        {"[warning] file:a.ts: corrupt input packet in stream 0", true},
        {"[warning] file:a.ts: corrupt decoded frame in stream 0", true},
        {"[warning] deprecated pixel format", false},
        {"[null @ 0x55bd] [error] Application provided invalid, non monotonically increasing dts to muxer", false},
        {"[info]     title           : [error] nothing", false},
        {"[verbose] [error]", false},
        {"error", false},
        {"[unfinished @ 0x", false},
        {"", false}};
    for (const auto &[line, isFault] : rows) {
        ToolMessages messages;
        messages.readLine(line);
        EXPECT_EQ(messages.faults(), isFault ? 1 : 0) << line;
    }
}

TEST(ToolMessagesTest, KeepsBothEndsAndThePackets)
{
    ToolMessages messages;
    messages.readLine("[verbose]   Output stream #0:0 (video): 75 frames encoded; 75 packets muxed (257402 bytes); ");
    messages.readLine("[verbose]   Output stream #0:1 (audio): 131 packets muxed (26296 bytes); ");
    messages.readLine("[verbose]   Input stream #0:7 (audio): 5 packets read (26296 bytes); ");
    EXPECT_EQ(messages.muxedTracks(), (QList<MuxedTrack>{{u"video"_s, 75}, {u"audio"_s, 131}}));
    messages.readLine("[warning] a word of warning");
    EXPECT_EQ(messages.text(), u"[warning] a word of warning");
    EXPECT_FALSE(messages.saysEmptyOutput());
    for (int line = 1; line <= 1000; ++line)
        messages.readLine("[error] line " + QByteArray::number(line) + QByteArray(100'000, 'x'));
    messages.readLine("[warning] Output file is empty, nothing was encoded");
    EXPECT_TRUE(messages.saysEmptyOutput());
    const QStringList lines = messages.text().split(u'\n');
    ASSERT_EQ(lines.size(), 41);
    EXPECT_TRUE(lines[0].startsWith("[error] line 1x"_L1) && lines[19].startsWith("[error] line 20x"_L1));
    EXPECT_EQ(lines[20], u"…");
    EXPECT_TRUE(lines[21].startsWith("[error] line 981x"_L1) && lines[40].startsWith("[error] line 1000x"_L1));
    EXPECT_LT(messages.text().size(), 50'000);
}

TEST(ToolMessagesTest, TheCauseComesBeforeItsNoise)
{
    const struct {
        const char *messages, *sentence;
        bool isHopeless;
    } rows[] = {
        {"[error] Invalid data found when processing input\n[error] av_interleaved_write_frame(): No space left on "
         "device\n"
         "[error] moov atom not found",
         "There is no space left", true},
        {"[error] /out/a.mp4: Permission denied", "Reading the file or writing", false},
        {"[fatal] Unknown encoder 'libx264'", "The converter cannot make this format", false},
        {"[error] file:/home/No space left on device.mkv: Input/output error", "The disk could not be read", false},
        {"[error] av_interleaved_write_frame(): Stale file handle", "The disk could not be read", false},
        {"[error] something new", "The converter could not", false}};
    for (const auto &[text, beginning, isHopeless] : rows) {
        ToolMessages messages({u"/home/No space left on device.mkv"_s});
        for (const QByteArray &line : QByteArray(text).split('\n'))
            messages.readLine(line);
        EXPECT_TRUE(messages.failure().sentence.english().startsWith(QLatin1StringView(beginning))) << text;
        EXPECT_EQ(messages.failure().isHopeless, isHopeless) << text;
    }
}

TEST(TranscodeProgressTest, FollowsAReport)
{
    TranscodeProgress progress;
    const auto read = [&progress](const QByteArray &report) {
        for (const QByteArray &line : report.split('\n'))
            progress.readLine(line);
    };
    read("frame=N/A\nout_time_us=N/A\nout_time_us=-21333\ntotal_size=N/A\nprogress=continue");
    EXPECT_TRUE(progress.seconds() == 0 && progress.bytes() == 0 && !progress.finalBytes() && progress.isAtReportEnd());
    read("frame=  31\nout_time_us=1500000\r\ntotal_size=900\n=\nspeed=1x");
    EXPECT_TRUE(progress.seconds() == 1.5 && progress.frames() == 31 && !progress.isAtReportEnd());
    read("out_time_us=1200000\ntotal_size=1000\nprogress=end");
    EXPECT_TRUE(progress.seconds() == 1.5 && progress.finalBytes() == 1000);
}

}  // namespace

}  // namespace kestrel
