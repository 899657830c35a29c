#include "modules/marlin/TranscodeFailure.h"
#include "modules/marlin/TranscodeProgress.h"
#include "jobs/RemainingTime.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(TranscodeProgressTest, FollowsAReportInPieces)
{
    const QByteArray report =
        "out_time_us=N/A\nout_time_us=-21333\nout_time_us=1500000\r\nprogress=continue\n"
        "out_time_us=1200000\nspeed=1x\n=\n\nout_time_us=2000000\nprogress=end\n";
    for (const qsizetype pieceLength : {1, 7, 1000}) {
        TranscodeProgress progress;
        double last = 0;
        for (qsizetype start = 0; start < report.size(); start += pieceLength) {
            progress.read(report.mid(start, pieceLength));
            EXPECT_GE(progress.processed(), last);
            last = progress.processed();
        }
        EXPECT_EQ(last, 2.0) << pieceLength;
    }
}

TEST(RemainingTimeTest, GuessesFromASmoothedSpeed)
{
    RemainingTime remaining;
    remaining.update(0.005, 1);
    EXPECT_FALSE(remaining.seconds());
    for (int second = 2; second <= 20; ++second)
        remaining.update(0.005 * second, second);
    EXPECT_NEAR(remaining.seconds().value_or(0), 180, 1);
    remaining.update(0.1, 21);  // a second without progress hardly counts
    EXPECT_NEAR(remaining.seconds().value_or(0), 180, 25);
    remaining.update(1, 25);
    EXPECT_NEAR(remaining.seconds().value_or(-1), 0, 0.001);
}

TEST(RemainingTimeTest, Texts)
{
    const std::pair<double, QString> rows[] = {{55, u"about a minute left"_s},
                                               {5300, u"about 88 minutes left"_s},
                                               {5400, u"about 2 hours left"_s},
                                               {0, u"less than a minute left"_s},
                                               {1e12, u"about 999 hours left"_s}};
    for (const auto &[seconds, text] : rows)
        EXPECT_EQ(remainingTimeText(seconds), text);
    EXPECT_EQ(durationText(3723), u"1:02:03");
    EXPECT_EQ(durationText(59.6), u"1:00");
}

TEST(TranscodeFailureTest, TheCauseComesBeforeItsNoise)
{
    const std::pair<const char *, const char *> rows[] = {
        {"[h264] Invalid data found when processing input\nav_interleaved_write_frame(): No space left on device",
         "There is no space left"},
        {"/out/a.mp4: Permission denied", "Reading the file or writing"},
        {"a.mp4: No such file or directory", "The file is no longer"},
        {"Unknown encoder 'libx264'", "The converter cannot make this format"},
        {"Stream map '' matches no streams.", "The file holds neither"},
        {"something new", "The converter could not"}};
    for (const auto &[messages, beginning] : rows) {
        const QString sentence = failureIn(QString::fromLatin1(messages)).sentence;
        EXPECT_TRUE(sentence.startsWith(QLatin1StringView(beginning))) << messages << " -> " << sentence.toStdString();
    }
}

TEST(MessageTailTest, KeepsTheLastLinesWithinBounds)
{
    MessageTail tail;
    for (int line = 1; line <= 1000; ++line)
        tail.read("line " + QByteArray::number(line) + (line % 2 ? "\r\n" : "\n\n"));
    tail.read(QByteArray(1'000'000, 'x'));
    const QStringList lines = tail.text().split(u'\n');
    ASSERT_EQ(lines.size(), MessageTail::maximumLines + 1);
    EXPECT_EQ(lines.first(), u"line 981");
    EXPECT_EQ(lines[19], u"line 1000");
    EXPECT_EQ(lines.last().size(), MessageTail::maximumLineLength);
}

}  // namespace kestrel
