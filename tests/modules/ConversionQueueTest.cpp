#include "ConversionQueue.h"
#include "MediaProber.h"
#include "ModuleSettings.h"
#include "TestEnvironment.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// A list with its queue, over settings of their own, and what the queue reported.
class ConversionQueueTest : public testing::Test {
protected:
    ConversionQueueTest()
    {
        QObject::connect(&m_queue, &ConversionQueue::progressed, &m_list, [this](const ConversionProgress &progress) {
            EXPECT_GE(progress.fraction.value_or(0), m_lastFraction);
            EXPECT_LE(progress.fraction.value_or(0), 1);
            m_lastFraction = progress.fraction.value_or(0);
            m_sawMiddle |= m_lastFraction > 0 && m_lastFraction < 1;
        });
    }

    /// Adds a file as the prober sees it.
    qint64 add(const QString &path)
    {
        const qint64 id = m_list.add(path).value();
        MediaProber prober;
        bool isProbed = false;
        QObject::connect(&prober, &MediaProber::probed, &prober,
                         [&](qint64, const std::optional<MediaInformation> &information, const QString &reason) {
                             m_list.change(id, [&](ConversionItem &item) {
                                 item.state = information ? ConversionState::Ready : ConversionState::Unusable;
                                 item.information = information.value_or(MediaInformation());
                                 item.reason = reason;
                             });
                             isProbed = true;
                         });
        prober.probe(id, m_settings.dispatcher().getMediaInfoPath(), path);
        EXPECT_TRUE(test::waitUntil([&] { return isProbed; }));
        return id;
    }

    qint64 addFake(const QString &name, std::optional<double> duration = 10)
    {
        const qint64 id = m_list.add(m_settings.path(name)).value();
        m_list.change(id, [duration](ConversionItem &item) {
            item.state = ConversionState::Ready;
            item.information = {
                .format = {}, .duration = duration, .hasVideo = true, .videoCodec = {}, .audioCodec = {}};
        });
        return id;
    }

    void start(size_t target = 0, TranscodeOptions options = {})
    {
        m_lastFraction = 0;
        m_sawMiddle = false;
        m_queue.start({.transcoderPath = m_settings.dispatcher().getTranscoderPath(),
                       .target = &conversionTargets()[target],
                       .options = options,
                       .folder = m_settings.folder()});
    }
    bool waitForEnd()
    {
        return test::waitUntil([this] { return !m_queue.isRunning(); }, 30'000);
    }
    ConversionState stateOf(qint64 id) const { return m_list.item(id)->state; }

    test::ModuleSettings m_settings;
    ConversionList m_list;
    ConversionQueue m_queue{m_list};
    double m_lastFraction = 0;
    bool m_sawMiddle = false;
};

}  // namespace

TEST_F(ConversionQueueTest, ConvertsToEveryTarget)
{
    // Odd in size, ten bits, with a subtitle and a name that the tool could take for something else.
    const QString source = m_settings.path(u"-50%d: \"clip\".mkv"_s);
    QFile subtitle(m_settings.path(u"s.srt"_s));
    ASSERT_TRUE(subtitle.open(QIODevice::WriteOnly));
    subtitle.write("1\n00:00:00,000 --> 00:00:01,000\nHello\n");
    subtitle.close();
    m_settings.makeClip(source, QLatin1StringView(test::shortVideo) + u' ' + QLatin1StringView(test::shortTone) +
                                    " -i "_L1 + subtitle.fileName() + " -c:v ffv1 -pix_fmt yuv420p10le -c:s srt"_L1);
    const QString summaries[] = {u"MPEG-4 · AVC · AAC"_s, u"Matroska · AVC · AAC"_s, u"WebM · VP9 · Opus"_s,
                                 u"MPEG Audio Layer 3"_s};
    ASSERT_EQ(std::size(summaries), conversionTargets().size());
    for (size_t target = 0; target < std::size(summaries); ++target) {
        const qint64 id = add(source);
        start(target, {.autoCopy = true});
        ASSERT_TRUE(waitForEnd());
        const ConversionItem item = *m_list.item(id);
        ASSERT_EQ(item.state, ConversionState::Done) << item.reason.toStdString() << item.details.toStdString();
        EXPECT_TRUE(m_sawMiddle);
        const qint64 resultId = add(item.outputPath);
        const ConversionItem result = *m_list.item(resultId);
        EXPECT_EQ(result.information.summary(), summaries[target]);
        EXPECT_TRUE(result.information.isPlainVideo);
        EXPECT_NEAR(result.information.duration.value_or(0), 2, 0.15);
        m_list.removeIds({id, resultId});
    }
    EXPECT_EQ(m_settings.outputs().size(), 4);
}

TEST_F(ConversionQueueTest, EachFileEndsInItsOwnWay)
{
    const QString silent = m_settings.path(u"silent.mp4"_s), sound = m_settings.path(u"sound.wav"_s);
    m_settings.makeClip(silent, QLatin1StringView(test::shortVideo));
    m_settings.makeClip(sound, QLatin1StringView(test::shortTone));
    const qint64 silentId = add(silent), soundId = add(sound);
    EXPECT_FALSE(m_list.add(silent));
    start(3);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_list.item(silentId)->reason, u"This file has no sound to convert.");
    EXPECT_EQ(stateOf(soundId), ConversionState::Done);
    EXPECT_EQ(m_settings.outputs(), QStringList{u"sound.mp3"_s});

    QFile cut(silent);
    ASSERT_TRUE(cut.open(QIODevice::ReadWrite));
    cut.resize(200);
    start(0);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_list.item(silentId)->reason, u"The file is damaged or incomplete.");
    EXPECT_TRUE(m_list.item(silentId)->details.contains("moov atom"_L1))
        << m_list.item(silentId)->details.toStdString();
    EXPECT_EQ(stateOf(soundId), ConversionState::Done);
    EXPECT_EQ(m_settings.outputs().size(), 1);
}

TEST_F(ConversionQueueTest, ProberSaysWhatIsNoMedia)
{
    QFile text(m_settings.path(u"a.txt"_s));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("hello");
    text.close();
    EXPECT_EQ(m_list.item(add(text.fileName()))->reason, u"This is no video or sound file.");
    EXPECT_EQ(m_list.item(add(m_settings.path(u"gone"_s)))->reason, u"There is no such file.");
    EXPECT_EQ(m_list.item(add(m_settings.folder()))->reason, u"This is no video or sound file.");

    m_settings.replaceTranscoder("sleep 60");
    MediaProber prober(std::chrono::milliseconds(200));
    QString reason;
    QObject::connect(&prober, &MediaProber::probed, &prober,
                     [&](qint64, const auto &, const QString &why) { reason = why; });
    prober.probe(1, m_settings.dispatcher().getTranscoderPath(), text.fileName());
    EXPECT_TRUE(test::waitUntil([&] { return reason == "This file could not be read."_L1; }));
    prober.probe(2, m_settings.path(u"no tool"_s), text.fileName());
    EXPECT_TRUE(test::waitUntil([&] { return reason.contains("is missing"_L1); }));
}

TEST_F(ConversionQueueTest, FailuresOfTheToolAreExplained)
{
    const struct {
        const char *script;
        const char *reason;
    } rows[] = {{"echo 'x: No space left on device' >&2; exit 1", "There is no space left"},
                {"echo half > \"$output\"; kill -9 $$", "The converter could not"},
                {"echo 'Output file is empty, nothing was encoded' >&2", "The file is damaged"},
                {"rm -f \"$output\"", "The file is no longer"}};
    const qint64 id = addFake(u"a.mov"_s);
    for (const auto &[script, reason] : rows) {
        m_settings.replaceTranscoder(script);
        start();
        ASSERT_TRUE(waitForEnd());
        EXPECT_TRUE(m_list.item(id)->reason.startsWith(QLatin1StringView(reason)))
            << m_list.item(id)->reason.toStdString();
        EXPECT_EQ(m_settings.outputs(), QStringList());
    }
    QFile::remove(m_settings.dispatcher().getTranscoderPath());
    start();
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(m_list.item(id)->reason.contains("could not be started"_L1));
    EXPECT_EQ(m_settings.outputs(), QStringList());
}

TEST_F(ConversionQueueTest, AShortcutThatFailsIsFollowedBySoftware)
{
    m_settings.replaceTranscoder(
        "echo out_time_us=8000000; echo progress=continue\n"
        "case \"$*\" in *vaapi*) echo 'Device creation failed: -22' >&2; exit 1;; esac\n"
        "echo out_time_us=3000000; echo \"$*\" > \"$output\"");
    const qint64 id = addFake(u"a.mov"_s);
    start(0, {.hardware = true});
    ASSERT_TRUE(waitForEnd());
    ASSERT_EQ(stateOf(id), ConversionState::Done) << m_list.item(id)->details.toStdString();
    EXPECT_EQ(m_list.item(id)->fraction, 0.8);
    EXPECT_EQ(m_settings.outputs(), QStringList{u"a.mp4"_s});
}

TEST_F(ConversionQueueTest, CancelEndsAToolThatHangsAndRemovesThePart)
{
    m_settings.replaceTranscoder(
        "trap '' TERM\necho half > \"$output\"; echo out_time_us=4000000; echo progress=continue\n"
        "while :; do sleep 0.1; done");
    const qint64 first = addFake(u"a.mov"_s), second = addFake(u"b.mov"_s, std::nullopt);
    start();
    ASSERT_TRUE(test::waitUntil([this] { return m_lastFraction > 0.1; }));
    EXPECT_EQ(m_settings.outputs().size(), 1);
    EXPECT_EQ(stateOf(second), ConversionState::Waiting);
    const qint64 added = addFake(u"c.mov"_s);
    QElapsedTimer elapsed;
    elapsed.start();
    m_queue.cancel();
    ASSERT_TRUE(waitForEnd());
    EXPECT_LT(elapsed.elapsed(), 1000);
    EXPECT_EQ(stateOf(first), ConversionState::Stopped);
    EXPECT_EQ(stateOf(second), ConversionState::Stopped);
    EXPECT_EQ(stateOf(added), ConversionState::Ready);
    EXPECT_EQ(m_settings.outputs(), QStringList());
}

TEST_F(ConversionQueueTest, TheEndOfTheApplicationRemovesThePart)
{
    m_settings.replaceTranscoder("echo $$ > \"$output\"; exec sleep 60");
    addFake(u"a.mov"_s, std::nullopt);
    QString part;
    {
        ConversionQueue queue(m_list);
        queue.start({m_settings.dispatcher().getTranscoderPath(), &conversionTargets()[0], {}, m_settings.folder()});
        part = m_settings.folder() + u'/' + m_settings.outputs().value(0);
        ASSERT_TRUE(test::waitUntil([&] { return QFileInfo(part).size() > 1; }));
    }
    EXPECT_EQ(m_settings.outputs(), QStringList());
}

}  // namespace kestrel
