#include "ModuleSettings.h"
#include "modules/marlin/ConversionQueue.h"
#include "modules/marlin/MediaProber.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QFile>
#include <QTextDocument>

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
        const auto change = [this](qint64 id, const std::optional<MediaInformation> &information,
                                   const QString &reason) {
            m_list.change(id, [&](ConversionItem &item) {
                item.state = information ? ConversionState::Ready : ConversionState::Unusable;
                item.information = information.value_or(MediaInformation());
                item.reason = reason;
            });
        };
        QObject::connect(&m_prober, &MediaProber::probed, &m_list, change);
    }

    /// Adds a file as the prober sees it.
    qint64 add(const QString &path)
    {
        const qint64 id = m_list.add(path).value();
        m_prober.probe(id, m_settings.dispatcher().getMediaInfoPath(), path);
        EXPECT_TRUE(test::waitUntil([&] { return stateOf(id) != ConversionState::Probing; }));
        return id;
    }
    qint64 addFake(const QString &name, std::optional<double> duration = 10)
    {
        const qint64 id = m_list.add(m_settings.path(name)).value();
        m_list.change(id, [duration](ConversionItem &item) {
            item.state = ConversionState::Ready;
            item.information.hasVideo = true;
            item.information.duration = duration;
        });
        return id;
    }

    /// Converts everything; false where that takes too long.
    bool convert(size_t target = 0, const TranscodeOptions &options = {})
    {
        start(target, options);
        return test::waitUntil([this] { return !m_queue.isRunning(); }, 30'000);
    }
    void start(size_t target = 0, const TranscodeOptions &options = {})
    {
        m_lastFraction = 0;
        m_sawMiddle = false;
        m_queue.start({.transcoderPath = m_settings.dispatcher().getTranscoderPath(),
                       .target = &conversionTargets()[target],
                       .options = options,
                       .folder = m_settings.folder()});
    }
    ConversionState stateOf(qint64 id) const { return m_list.item(id)->state; }

    test::ModuleSettings m_settings;
    ConversionList m_list;
    ConversionQueue m_queue{m_list};
    MediaProber m_prober;
    double m_lastFraction = 0;
    bool m_sawMiddle = false;
};

}  // namespace

TEST_F(ConversionQueueTest, RowsComeOnceAndGoTogether)
{
    const QAbstractItemModelTester tester(&m_list);
    QList<std::pair<int, int>> removed;
    QObject::connect(&m_list, &ConversionList::rowsRemoved, &m_list, [&](const QModelIndex &, int first, int last) {
        removed.append({first, last});
    });
    QList<qint64> ids;
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"<b>d  &amp;</b>"_s, u"e"_s, u"f"_s})
        ids.append(m_list.add(m_settings.path(name)).value());
    EXPECT_FALSE(m_list.add(m_settings.path(u"b"_s)));
    m_list.removeIds({ids[4], ids[1], ids[2], ids[1], ids[0] - 1});
    EXPECT_EQ(removed, (QList<std::pair<int, int>>{{4, 4}, {1, 2}}));
    EXPECT_EQ(m_list.idsIn({ConversionState::Probing}), QList<qint64>({ids[0], ids[3], ids[5]}));
    EXPECT_TRUE(m_list.add(m_settings.path(u"b"_s)));

    QTextDocument shown;  // as a tooltip shows it
    shown.setHtml(m_list.index(1, ConversionList::NameColumn).data(Qt::ToolTipRole).toString());
    EXPECT_EQ(shown.toPlainText(), m_list.at(1).path);
}

TEST_F(ConversionQueueTest, ConvertsToEveryTarget)
{
    // Odd in size, ten bits, with a subtitle and a name that the tool could take for something else.
    const QString source = m_settings.path(u"-50%d: \"clip\".mkv"_s);
    const QString subtitle = m_settings.path(u"s.srt"_s);
    test::writeFile(subtitle, "1\n00:00:00,000 --> 00:00:01,000\nHello\n");
    m_settings.makeClip(source, QLatin1StringView(test::shortVideo) + u' ' + QLatin1StringView(test::shortTone) +
                                    " -i "_L1 + subtitle + " -c:v ffv1 -pix_fmt yuv420p10le -c:s srt"_L1);
    const QString summaries[] = {u"MPEG-4 · AVC · AAC"_s, u"Matroska · AVC · AAC"_s, u"WebM · VP9 · Opus"_s,
                                 u"MPEG Audio Layer 3"_s};
    ASSERT_EQ(std::size(summaries), conversionTargets().size());
    for (size_t target = 0; target < std::size(summaries); ++target) {
        const qint64 id = add(source);
        ASSERT_TRUE(convert(target, {.autoCopy = true}));
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
    const QString silent = m_settings.path(u"Permission denied.mp4"_s), sound = m_settings.path(u"sound.wav"_s);
    m_settings.makeClip(silent, QLatin1StringView(test::shortVideo));
    m_settings.makeClip(sound, QLatin1StringView(test::shortTone));
    test::writeFile(m_settings.folder() + "/.sound.kestrel-part.mp3"_L1, "of an application that was killed");
    const qint64 silentId = add(silent), soundId = add(sound);
    ASSERT_TRUE(convert(3));
    EXPECT_EQ(m_list.item(silentId)->reason, u"This file has no sound to convert.");
    EXPECT_EQ(stateOf(soundId), ConversionState::Done);
    EXPECT_EQ(m_settings.outputs(), QStringList{u"sound.mp3"_s});

    QFile::resize(silent, 200);
    ASSERT_TRUE(convert());
    const ConversionItem damaged = *m_list.item(silentId);
    EXPECT_EQ(damaged.reason, u"The file is damaged or incomplete.");
    EXPECT_TRUE(damaged.details.contains("moov atom"_L1) && damaged.details.contains(silent))
        << damaged.details.toStdString();
    EXPECT_EQ(stateOf(soundId), ConversionState::Done);
    EXPECT_EQ(m_settings.outputs().size(), 1);
}

TEST_F(ConversionQueueTest, ProberSaysWhatIsNoMedia)
{
    const QString text = m_settings.path(u"a.txt"_s);
    test::writeFile(text, "hello");
    EXPECT_EQ(m_list.item(add(text))->reason, u"This is no video or sound file.");
    EXPECT_EQ(m_list.item(add(m_settings.folder()))->reason, u"This is no video or sound file.");

    m_settings.replaceTranscoder("sleep 60");
    MediaProber prober(std::chrono::milliseconds(200));
    QString reason;
    QObject::connect(&prober, &MediaProber::probed, &prober, [&](auto, auto &, const QString &why) { reason = why; });
    prober.probe(1, m_settings.dispatcher().getTranscoderPath(), text);
    EXPECT_TRUE(test::waitUntil([&] { return reason == "This file could not be read."_L1; }));
}

TEST_F(ConversionQueueTest, FailuresOfTheToolAreExplained)
{
    const struct {
        const char *script;
        const char *reason;
        int runs;  // a second one in software, unless that meets the same end
    } rows[] = {{"echo 'x: No space left on device' >&2; exit 1", "There is no space left", 1},
                {"echo half > \"$output\"; kill -9 $$", "The converter could not", 2},
                {"echo 'Output file is empty, nothing was encoded' >&2", "The file is damaged", 2},
                {"case \"$*\" in *card*) exit 1; esac; rm -f \"$output\"", "The file is no longer", 2}};
    const qint64 id = addFake(u"a.mov"_s);
    const QString runs = m_settings.dispatcher().getTranscoderPath() + "-runs"_L1;
    for (const auto &[script, reason, runCount] : rows) {
        test::writeFile(runs, {});
        m_settings.replaceTranscoder("echo >> \"$0-runs\"\n" + QByteArray(script));
        ASSERT_TRUE(convert(0, {.hardwareDevice = u"/dev/card"_s}));
        EXPECT_TRUE(m_list.item(id)->reason.startsWith(QLatin1StringView(reason)))
            << m_list.item(id)->reason.toStdString();
        EXPECT_EQ(QFileInfo(runs).size(), runCount) << script;
        EXPECT_EQ(m_settings.outputs(), QStringList());
    }
}

TEST_F(ConversionQueueTest, AShortcutThatFailsIsFollowedBySoftware)
{
    m_settings.replaceTranscoder(
        "echo out_time_us=8000000; echo progress=continue\n"
        "case \"$*\" in *vaapi*) echo 'Device creation failed: -22' >&2; exit 1;; esac\n"
        "echo out_time_us=3000000; echo \"$*\" > \"$output\"");
    const qint64 id = addFake(u"a.mov"_s);
    ASSERT_TRUE(convert(0, {.hardwareDevice = u"/dev/card"_s}));
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
    ASSERT_TRUE(test::waitUntil([this] { return !m_queue.isRunning(); }));
    EXPECT_LT(elapsed.elapsed(), 1000);
    EXPECT_TRUE(stateOf(first) == ConversionState::Stopped && stateOf(second) == ConversionState::Stopped);
    EXPECT_EQ(stateOf(added), ConversionState::Ready);
    EXPECT_EQ(m_settings.outputs(), QStringList());
}

TEST_F(ConversionQueueTest, TheEndOfTheApplicationRemovesThePart)
{
    m_settings.replaceTranscoder("echo $$ > \"$output\"; exec sleep 60");
    addFake(u"a.mov"_s, std::nullopt);
    {
        ConversionQueue queue(m_list);
        queue.start({m_settings.dispatcher().getTranscoderPath(), &conversionTargets()[0], {}, m_settings.folder()});
        const QString part = m_settings.folder() + u'/' + m_settings.outputs().value(0);
        ASSERT_TRUE(test::waitUntil([&] { return QFileInfo(part).size() > 1; }));
    }
    EXPECT_EQ(m_settings.outputs(), QStringList());
}

}  // namespace kestrel
