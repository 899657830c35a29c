#include "MediaSamples.h"

#include "foundation/FileNames.h"
#include "foundation/Queues.h"
#include "jobs/OutputFile.h"
#include "media/Placing.h"
#include "media/TranscodeRecipe.h"
#include "tests/support/TestEnvironment.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using test::makeScript;

/// What a job told, from its start to its end.
struct Told {
    JobOutcome outcome;
    QStringList notes;
    QList<double> fractions;
};

class TranscodeJobTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_samples = new QTemporaryDir;
        ASSERT_TRUE(test::makeSample(film(u"mp4"_s), {u"-c:v"_s, u"libx264"_s, u"-preset"_s, u"ultrafast"_s, u"-g"_s,
                                                      u"25"_s, u"-c:a"_s, u"aac"_s}));
        ASSERT_TRUE(test::makeSample(film(u"ts"_s), {u"-c:v"_s, u"libx264"_s, u"-g"_s, u"25"_s, u"-c:a"_s, u"aac"_s}));
        ASSERT_TRUE(
            test::makeSample(film(u"mkv"_s), {u"-c:v"_s, u"mpeg4"_s, u"-g"_s, u"10"_s, u"-c:a"_s, u"libmp3lame"_s}));
    }
    static void TearDownTestSuite() { delete s_samples; }

    static QString film(const QString &extension) { return s_samples->filePath("film."_L1 + extension); }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString outputFolder() const { return path(u"out"_s); }
    QStringList outputs() const
    {
        return QDir(outputFolder()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

    void SetUp() override { ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"out"_s)); }

    /// A stand-in for ffmpeg, in whose lines $real is the real one and $part the output.
    void useTool(const QByteArray &lines)
    {
        m_tools.transcoder = makeScript(path(u"ffmpeg"_s), "real='" + test::toolPath(u"ffmpeg"_s).toUtf8() +
                                                               "'; for part; do :; done; part=\"${part#file:}\"\n"
                                                               "echo run >> '" +
                                                               path(u"runs"_s).toUtf8() + "'\n" + lines);
    }
    qsizetype runs() const { return test::readBytes(path(u"runs"_s)).count('\n'); }

    static TranscodePlan planFor(const QStringList &sources, const QString &preset)
    {
        TranscodePlan plan;
        plan.sources = sources;
        plan.preset = presetOfId(preset) ? *presetOfId(preset) : Preset();
        EXPECT_FALSE(plan.preset.id.isEmpty()) << preset.toStdString();
        plan.speed = 2;
        return plan;
    }

    Told run(const TranscodePlan &plan)
    {
        Told result;
        const auto job = std::make_unique<TranscodeJob>(
            TranscodeRequest{.plan = plan, .information = {}, .folder = outputFolder(), .tools = m_tools});
        bool hasFinished = false;
        QObject::connect(job.get(), &Job::progressed, job.get(), [&result](const JobProgress &progress) {
            if (progress.fraction)
                result.fractions.append(*progress.fraction);
        });
        QObject::connect(job.get(), &Job::noted, job.get(),
                         [&result](const tarnwell::Sentence &note) { result.notes.append(note.english()); });
        QObject::connect(job.get(), &Job::finished, job.get(), [&](const JobOutcome &outcome) {
            EXPECT_FALSE(hasFinished);
            hasFinished = true;
            result.outcome = outcome;
        });
        job->start();
        EXPECT_FALSE(hasFinished) << "later than it returns";
        if (!m_stopSign.isEmpty()) {
            EXPECT_TRUE(test::waitUntil([this] { return QFile::exists(m_stopSign); }, 100'000));
            job->stop();
        }
        EXPECT_TRUE(test::waitUntil([&] { return hasFinished; }, 100'000));
        EXPECT_TRUE(std::is_sorted(result.fractions.begin(), result.fractions.end()));
        return result;
    }

    QTemporaryDir m_folder;
    QString m_stopSign;  ///< the job is stopped once this file is there
    TranscodeTools m_tools{.transcoder = test::toolPath(u"ffmpeg"_s),
                           .prober = test::toolPath(u"ffprobe"_s),
                           .machine = {.processors = 2}};

private:
    static inline QTemporaryDir *s_samples = nullptr;
};

TEST_F(TranscodeJobTest, ToolsThatDoNotDoAsTheySay)
{
    constexpr const char *finish = "\"$real\" \"$@\"; status=$?\n";
    const struct {
        const char *name;
        QByteArray lines;
        JobState state;
        const char *sentence;
        int runs = 1;
    } rows[] = {
        {"does as it says", "exec \"$real\" \"$@\"", JobState::Done, ""},
        {"success and nothing", "exit 0", JobState::Failed, "The finished file could not be read back."},
        {"half of the film", "exec \"$real\" -t 0.5 \"$@\"", JobState::DoneWithProblems,
         " of 2.0 s could be read, 0 faults"},
        {"the end is missing", QByteArray(finish) + "truncate -s -2000 \"$part\"; exit $status", JobState::Failed,
         "The finished file"},
        {"hang", "sleep 60", JobState::Failed, "The converter did not answer any more."},
        {"2 MB of messages", "yes '[h264 @ 0x1] [error] Invalid data found' | head -c 2000000 >&2; exit 1",
         JobState::Failed, "The file is damaged or incomplete."},
    };
    for (const auto &[name, lines, state, sentence, expectedRuns] : rows) {
        SCOPED_TRACE(name);
        QFile::remove(path(u"runs"_s));
        useTool(lines);
        m_tools.stallLimit = std::chrono::milliseconds(QByteArray(name) == "hang" ? 300 : 60'000);
        const JobOutcome outcome = run(planFor({film(u"mkv"_s)}, u"mp4-h264"_s)).outcome;
        EXPECT_EQ(int(outcome.state), int(state)) << outcome.details.toStdString();
        EXPECT_TRUE(outcome.sentence.english().contains(QString::fromLatin1(sentence)))
            << outcome.sentence.english().toStdString();
        EXPECT_EQ(outcome.sentence.isEmpty(), state == JobState::Done);
        EXPECT_EQ(outcome.outputs.size(), state == JobState::Failed ? 0 : 1);
        EXPECT_EQ(outputs().size(), outcome.outputs.size()) << "nothing else stays in the folder";
        EXPECT_EQ(runs(), expectedRuns);
        EXPECT_LT(outcome.details.size(), 100'000);
        for (const QString &output : outcome.outputs)
            EXPECT_TRUE(QFile::remove(output));
    }
}

TEST_F(TranscodeJobTest, ShortcutsThatLeadToNothing)
{
    // The first run fails, the second does its work.
    const QByteArray failingOnce = "if [ \"$(wc -l < '" + path(u"runs"_s).toUtf8() +
                                   "')\" = 1 ]; then echo '[error] cannot' >&2; exit 1; fi\n"
                                   "exec \"$real\" \"$@\"";
    useTool(failingOnce);
    const Told second = run(planFor({film(u"mp4"_s)}, u"mkv-h264"_s));
    EXPECT_EQ(int(second.outcome.state), int(JobState::Done)) << second.outcome.details.toStdString();
    EXPECT_EQ(second.notes, QStringList{u"Encoding, because the tracks could not be copied"_s});
    EXPECT_EQ(runs(), 2);
    EXPECT_EQ(outputs(), QStringList{u"film.mkv"_s});

    QFile::remove(path(u"runs"_s));
    useTool("echo '[error] No space left on device' >&2; exit 1");
    EXPECT_EQ(int(run(planFor({film(u"mp4"_s)}, u"mkv-h264"_s)).outcome.state), int(JobState::Failed));
    EXPECT_EQ(runs(), 1) << "a full disk stays full";
}

TEST_F(TranscodeJobTest, StoppedWhileItsOutputIsLookedAt)
{
    m_stopSign = path(u"looking"_s);
    const QByteArray sign = '\'' + m_stopSign.toUtf8() + '\'', prober = m_tools.prober.toUtf8();
    m_tools.prober = makeScript(path(u"ffprobe"_s), "case \"$*\" in *-count_packets*) [ -e " + sign + " ] || { > " +
                                                        sign + "; sleep 60; };; esac\nexec '" + prober + "' \"$@\"");
    const JobOutcome outcome = run(planFor({film(u"mkv"_s)}, u"mp4-h264"_s)).outcome;
    EXPECT_EQ(int(outcome.state), int(JobState::Done)) << outcome.sentence.english().toStdString();
    EXPECT_EQ(outputs(), QStringList{u"film.mp4"_s});
}

TEST_F(TranscodeJobTest, RealOnes)
{
    const QByteArray oddName = path(u"caf"_s).toUtf8() + "\xe9.mkv";
    ASSERT_EQ(link(film(u"mkv"_s).toUtf8().constData(), oddName.constData()), 0);
    const QString song = path(u"song.mp3"_s), damaged = path(u"damaged.mkv"_s);
    ASSERT_TRUE(test::makeSample(song, {u"-c:v"_s, u"mjpeg"_s, u"-frames:v"_s, u"1"_s}));
    QByteArray bytes = test::readBytes(film(u"mkv"_s));
    test::writeBytes(damaged, bytes.replace(bytes.size() / 2, 3000, QByteArray(3000, 'x')));
    const auto with = [](TranscodePlan plan, const std::function<void(TranscodePlan &)> &change) {
        change(plan);
        return plan;
    };
    const struct {
        const char *name;
        TranscodePlan plan;
        JobState state;
        QString output;
    } rows[] = {
        {"copied", planFor({film(u"mp4"_s)}, u"mkv-copy"_s), JobState::Done, u"film.mkv"_s},
        {"encoded, decoded again, dated",
         with(planFor({film(u"mkv"_s)}, u"mp4-h264"_s),
              [](TranscodePlan &plan) { plan.safeMode = plan.keepsDate = true; }),
         JobState::Done, u"film.mp4"_s},
        {"two passes, called by a pattern",
         with(planFor({film(u"mkv"_s)}, u"mp4-h264"_s),
              [](TranscodePlan &plan) {
                  plan.rateControl = TranscodePlan::RateControl::Size;
                  plan.maximumBytes = 200'000;
                  plan.namePattern = u"{name} as {preset} {nothing}"_s;
              }),
         JobState::Done, u"film as MP4 Video (H.264, AAC) {nothing}.mp4"_s},
        {"a name that is not UTF-8", planFor({foundation::decodedFileName(oddName)}, u"mp4-h264"_s), JobState::Done,
         u"caf\uFFFD.mp4"_s},
        {"joined", planFor({film(u"mp4"_s), film(u"mkv"_s)}, u"mkv-h264"_s), JobState::Done, u"film (1).mkv"_s},
        {"a cover among the tags", planFor({song}, u"opus"_s), JobState::Done, u"song.opus"_s},
        {"a damaged source", planFor({damaged}, u"mp4-h264"_s), JobState::DoneWithProblems, u"damaged.mp4"_s},
    };
    const QDateTime date(QDate(2001, 2, 3), QTime(4, 5, 6));
    QFile source(film(u"mkv"_s));
    ASSERT_TRUE(source.open(QIODevice::ReadWrite) && source.setFileTime(date, QFileDevice::FileModificationTime));
    source.close();
    for (const auto &[name, plan, state, output] : rows) {
        const Told result = run(plan);
        EXPECT_EQ(int(result.outcome.state), int(state))
            << name << ": " << result.outcome.sentence.english().toStdString() << result.outcome.details.toStdString();
        EXPECT_EQ(result.outcome.outputs, QStringList{outputFolder() + u'/' + output}) << name;
        EXPECT_EQ(QFileInfo(result.outcome.outputs.value(0)).lastModified() == date, plan.keepsDate) << name;
        if (plan.maximumBytes > 0) {
            EXPECT_GT(result.fractions.value(result.fractions.size() - 1), 0.9) << "both passes count";
        }
    }
    EXPECT_EQ(outputs().size(), qsizetype(std::size(rows))) << "no part is left";
    unlink(oddName.constData());
}

TEST_F(TranscodeJobTest, ACopyIsDecodedAndBeginsBeforeTheCut)
{
    useTool("case \"$*\" in *'-f null'*) echo \"$*\" > '" + path(u"decoding"_s).toUtf8() +
            "';; esac\nexec \"$real\" \"$@\"");
    TranscodePlan plan = planFor({film(u"ts"_s)}, u"mkv-copy"_s);
    plan.pieces = {{.start = 0.6, .end = 2}};
    plan.exactCuts = false;
    const JobOutcome outcome = run(plan).outcome;
    EXPECT_EQ(int(outcome.state), int(JobState::Done)) << outcome.sentence.english().toStdString();
    EXPECT_GT(outcome.facts[u"seconds"_s].toDouble(), 1.9) << "nothing that was wanted is lost";
    EXPECT_TRUE(QFile::exists(path(u"decoding"_s)) && !test::readBytes(path(u"decoding"_s)).contains("nokey"));
}

TEST_F(TranscodeJobTest, SubtitlesFollowThePieces)
{
    const QString cues = path(u"cues.srt"_s), source = path(u"source.mkv"_s), told = path(u"told.srt"_s);
    test::writeBytes(cues,
                     "1\n00:00:00,200 --> 00:00:00,600\none\n\n2\n00:00:00,700 --> 00:00:00,900\ntwo\n\n"
                     "3\n00:00:01,000 --> 00:00:01,400\nthree\n\n4\n00:00:01,600 --> 00:00:01,800\nfour\n\n");
    const auto transcode = [&](const QStringList &arguments) {
        return QProcess::execute(m_tools.transcoder, QStringList{u"-v"_s, u"error"_s, u"-y"_s} + arguments) == 0;
    };
    ASSERT_TRUE(transcode({u"-i"_s, film(u"mp4"_s), u"-i"_s, cues, u"-an"_s, u"-c"_s, u"copy"_s, source}));
    TranscodePlan plan = planFor({source}, u"mkv-h264"_s);
    plan.externalSubtitles = {{.path = cues, .language = u"de"_s}};
    plan.copies = plan.exactCuts = false;
    plan.pieces = {{.start = 0.4, .end = 0.8}, {.start = 1.2, .end = 2}};
    const QByteArray atOnce =
        "1\n00:00:00,000 --> 00:00:00,200\none\n\n2\n00:00:00,300 --> 00:00:00,400\ntwo\n\n"
        "3\n00:00:00,400 --> 00:00:00,600\nthree\n\n4\n00:00:00,800 --> 00:00:01,000\nfour\n\n";
    const QByteArray slowed =
        "1\n00:00:00,000 --> 00:00:00,400\none\n\n2\n00:00:00,600 --> 00:00:00,800\ntwo\n\n"
        "3\n00:00:00,800 --> 00:00:01,200\nthree\n\n4\n00:00:01,600 --> 00:00:02,000\nfour\n\n";
    for (const auto &[preset, speed, wanted] : {std::tuple(u"mkv-h264"_s, 1.0, atOnce), {u"mp4-h264"_s, 0.5, slowed}}) {
        plan.preset = *presetOfId(preset);
        plan.speedFactor = speed;
        const JobOutcome outcome = run(plan).outcome;
        ASSERT_EQ(int(outcome.state), int(JobState::Done)) << outcome.sentence.english().toStdString();
        EXPECT_TRUE(outcome.leftOut.isEmpty()) << outcome.leftOut.value(0).english().toStdString();
        for (const QString &track : {u"0:s:0"_s, u"0:s:1"_s}) {
            ASSERT_TRUE(transcode({u"-i"_s, outcome.outputs.value(0), u"-map"_s, track, told}));
            EXPECT_EQ(test::readBytes(told), wanted) << preset.toStdString() << ' ' << track.toStdString();
        }
    }
}

TEST_F(TranscodeJobTest, WhatGetsNoNameIsNotDone)
{
    useTool("case \"$*\" in *'-f null'*) mv '" + outputFolder().toUtf8() + "' '" + path(u"away"_s).toUtf8() +
            "'; exit 0;; esac\nexec \"$real\" \"$@\"");
    TranscodePlan plan = planFor({film(u"mkv"_s)}, u"mkv-copy"_s);
    plan.safeMode = true;
    const JobOutcome outcome = run(plan).outcome;
    EXPECT_EQ(int(outcome.state), int(JobState::Failed));
    EXPECT_TRUE(outcome.outputs.isEmpty() && outcome.problems.isEmpty() && !outcome.sentence.isEmpty());
}

TEST_F(TranscodeJobTest, TakenBackAtTheLastMoment)
{
    auto output = std::make_shared<OutputFile>(outputFolder(), u"film"_s, u"mkv"_s);
    ASSERT_TRUE(output->isValid());
    test::writeBytes(output->partPath(), "film");
    const auto placing = std::make_shared<Placing>(std::move(output), std::nullopt);
    bool isTold = false;
    placing->start(QCoreApplication::instance(), [&isTold](const auto &) { isTold = true; });
    foundation::queue::finishGlobal();
    ASSERT_EQ(outputs(), QStringList{u"film.mkv"_s}) << "it has its name, and nobody was told";
    placing->takeBack();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isTold);
    EXPECT_TRUE(outputs().isEmpty());
}

TEST_F(TranscodeJobTest, TheRecipeKnowsWhatAJobNeeds)
{
    TranscodeRecipe recipe([this] { return m_tools; });
    const auto recordOf = [](JobId id, const TranscodePlan &plan) {
        JobRecord record;
        record.id = id;
        record.plan = plan.toJson();
        return record;
    };
    const JobRecord encoding = recordOf(1, planFor({film(u"mp4"_s)}, u"mp4-h264"_s));
    EXPECT_EQ(int(recipe.needs(encoding).lane), int(Lane::Encode)) << "it may be anything";
    MediaInformation information;
    information.format = u"mov,mp4,m4a,3gp,3g2,mj2"_s;
    information.duration = 60;
    information.bytes = 5'000'000;
    MediaTrack video;
    video.kind = MediaTrack::Kind::Video;
    video.codec = u"h264"_s;
    video.pixelFormat = u"yuv420p"_s;
    video.width = 640;
    video.height = 360;
    information.tracks = {video};
    recipe.setInformation(1, {information});
    const JobNeeds copying = recipe.needs(encoding);
    EXPECT_EQ(int(copying.lane), int(Lane::Copy)) << "it is what is wanted already";
    EXPECT_GE(copying.bytes, 5'000'000);
    EXPECT_DOUBLE_EQ(copying.weight, 60 / 20.0);
    const JobNeeds unknown = recipe.needs(recordOf(2, planFor({film(u"mp4"_s)}, u"mp3"_s)));
    EXPECT_EQ(int(unknown.lane), int(Lane::Sound));
    EXPECT_EQ(unknown.bytes, QFileInfo(film(u"mp4"_s)).size());
    EXPECT_DOUBLE_EQ(unknown.weight, double(unknown.bytes) / 500'000 / 5);
    EXPECT_EQ(int(recipe.needs(recordOf(3, planFor({film(u"mp4"_s)}, u"mkv-copy"_s))).lane), int(Lane::Copy));
    JobRecord foreign;
    foreign.plan = {{u"version"_s, 99}};
    const auto job = recipe.makeJob(foreign);
    std::optional<JobOutcome> outcome;
    QObject::connect(job.get(), &Job::finished, job.get(), [&outcome](const JobOutcome &told) { outcome = told; });
    job->start();
    ASSERT_TRUE(test::waitUntil([&outcome] { return outcome.has_value(); }));
    EXPECT_TRUE(outcome->state == JobState::Failed && !outcome->sentence.isEmpty());
}

}  // namespace

}  // namespace kestrel
