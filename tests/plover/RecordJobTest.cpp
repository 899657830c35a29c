#include "modules/plover/RecordJob.h"

#include "media/OutputCheck.h"
#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// Recordings of a generated camera: neither display nor sound server are needed.
class RecordJobTest : public testing::Test {
protected:
    void SetUp() override
    {
        m_plan.what = RecordPlan::What::Camera;
        m_plan.camera = u"lavfi:testsrc=size=320x240:rate=30"_s;
        m_plan.sound = RecordPlan::Sound::None;
        m_plan.name = u"A talk"_s;
    }

    void begin() { take(std::make_unique<RecordJob>(m_plan, m_folder.path(), m_tools)); }
    void take(std::unique_ptr<RecordJob> job)
    {
        m_job = std::move(job);
        m_seconds = 0;
        m_outcome.reset();
        QObject::connect(m_job.get(), &Job::progressed, m_job.get(),
                         [this](const JobProgress &progress) { m_seconds = progress.seconds; });
        QObject::connect(m_job.get(), &Job::finished, m_job.get(),
                         [this](const JobOutcome &outcome) { m_outcome = outcome; });
        m_job->start();
    }
    bool waitForSeconds(double seconds)
    {
        return test::waitUntil([&] { return m_seconds >= seconds || m_outcome; }, 60000) && !m_outcome;
    }
    bool waitForEnd()
    {
        return test::waitUntil([&] { return m_outcome.has_value(); }, 60000);
    }
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    /// A sound server of the test's own, without a sound.
    void startSoundServer()
    {
        const QString socket = m_sounds.filePath(u"native"_s);
        m_server.start(u"pulseaudio"_s, {u"-n"_s, u"--daemonize=no"_s, u"--exit-idle-time=-1"_s, u"--use-pid-file=no"_s,
                                         u"--load=module-native-protocol-unix auth-anonymous=1 socket="_s + socket,
                                         u"--load=module-null-sink sink_name=out"_s});
        qputenv("PULSE_SERVER", "unix:" + socket.toUtf8());
        ASSERT_TRUE(test::waitUntil([&] { return QFileInfo::exists(socket); }, 30'000));
    }
    ~RecordJobTest() override
    {
        m_job.reset();
        m_server.kill();
        m_server.waitForFinished();
        qunsetenv("PULSE_SERVER");
    }

    /// The seconds of the file's pictures, or of its sound's packets.
    static QList<double> pictures(const QString &path, const QString &track = u"v"_s)
    {
        QProcess prober;
        prober.start(u"ffprobe"_s, {u"-v"_s, u"error"_s, u"-select_streams"_s, track, u"-show_entries"_s,
                                    u"packet=pts_time"_s, u"-of"_s, u"csv=p=0"_s, path});
        prober.waitForFinished();
        QList<double> seconds;
        for (const QByteArray &line : prober.readAllStandardOutput().split('\n')) {
            if (!line.isEmpty())
                seconds.append(line.split(',').first().toDouble());
        }
        return seconds;
    }

    QTemporaryDir m_folder, m_sounds;
    QProcess m_server;
    RecordPlan m_plan;
    RecordTools m_tools{.transcoder = QStandardPaths::findExecutable(u"ffmpeg"_s),
                        .prober = QStandardPaths::findExecutable(u"ffprobe"_s)};
    std::unique_ptr<RecordJob> m_job;
    double m_seconds = 0;
    std::optional<JobOutcome> m_outcome;
};

TEST_F(RecordJobTest, PauseLeavesNoGap)
{
    startSoundServer();
    m_plan.sound = RecordPlan::Sound::System;
    begin();
    ASSERT_TRUE(waitForSeconds(3));  // at first the sound is far behind the pictures
    m_job->setPaused(true);
    // The stretch is whole when its file does not grow any more: the next may begin, and the job has not ended.
    ASSERT_TRUE(test::waitUntil([&] {
        const QString part = m_folder.filePath(files().value(0));
        const QList<double> seconds = pictures(part);
        return seconds.size() > 20 && !m_outcome;
    }));
    m_job->setPaused(false);
    const double before = m_seconds;
    ASSERT_TRUE(waitForSeconds(before + 1));
    m_job->stop();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_outcome->state, JobState::Done) << qPrintable(m_outcome->details);
    ASSERT_EQ(files(), QStringList{u"A talk.mov"_s});
    const QList<double> seconds = pictures(m_outcome->outputs.first());
    ASSERT_GT(seconds.size(), 50);
    for (qsizetype number = 1; number < seconds.size(); ++number)
        ASSERT_NEAR(seconds[number] - seconds[number - 1], 1.0 / 30, 0.012) << number;
    const QList<double> sounds = pictures(m_outcome->outputs.first(), u"a"_s);
    ASSERT_GT(sounds.size(), 80);
    for (qsizetype number = 1; number < sounds.size(); ++number)
        ASSERT_NEAR(sounds[number] - sounds[number - 1], 1024.0 / 48000, 0.002) << number;
    EXPECT_FALSE(m_outcome->facts.contains(u"dropped"_s));
}

TEST_F(RecordJobTest, AMicrophoneThatIsGoneGivesWayToTheUsualOne)
{
    startSoundServer();
    m_plan.sound = RecordPlan::Sound::Both;
    m_plan.microphone = u"gone"_s;
    m_plan.seconds = 1;
    begin();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_outcome->state, JobState::DoneWithProblems);
    ASSERT_EQ(m_outcome->problems.size(), 1) << qPrintable(m_outcome->details);
    EXPECT_TRUE(m_outcome->problems.first().english().contains(u"microphone"));
    EXPECT_GT(pictures(m_outcome->outputs.first(), u"a"_s).size(), 20);
}

TEST_F(RecordJobTest, HardwareThatFailsGivesWayToSoftware)
{
    m_tools.hardwareDevice = [](QSize) { return u"/dev/null"_s; };
    m_plan.seconds = 1;
    take(std::make_unique<RecordJob>(m_plan, m_folder.path(), m_tools));
    QStringList notes;
    QObject::connect(m_job.get(), &Job::noted, m_job.get(),
                     [&](const tarnwell::Sentence &note) { notes.append(note.english()); });
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(notes, QStringList{u"Encoding in software"_s});
    EXPECT_EQ(m_outcome->state, JobState::Done) << qPrintable(m_outcome->details);
}

TEST_F(RecordJobTest, StopsWhilePaused)
{
    begin();
    ASSERT_TRUE(waitForSeconds(1));
    m_job->setPaused(true);
    m_job->stop();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_outcome->state, JobState::Done);
    EXPECT_EQ(files(), QStringList{u"A talk.mov"_s});
}

TEST_F(RecordJobTest, EndsWholeWhenTheDiskIsNearlyFull)
{
    qint64 available = 10'000'000'000;
    m_tools.diskSpace = [&](const QString &) { return DiskSpace{.device = "disk", .available = available}; };
    begin();
    ASSERT_TRUE(waitForSeconds(1));
    available = m_tools.reservedBytes;
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_outcome->state, JobState::DoneWithProblems);
    EXPECT_EQ(files(), QStringList{u"A talk.mov"_s});

    // With no room for a second file it keeps the first.
    available = 10'000'000'000;
    begin();
    ASSERT_TRUE(waitForSeconds(1));
    available = 1000;
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_outcome->state, JobState::DoneWithProblems);
    EXPECT_TRUE(m_outcome->problems.last().english().endsWith(u"a Matroska file."));
    EXPECT_EQ(files(), (QStringList{u"A talk.mkv"_s, u"A talk.mov"_s}));
    EXPECT_GT(pictures(m_folder.filePath(u"A talk.mkv"_s)).size(), 25);

    available = 10'000'000'000;
    begin();
    ASSERT_TRUE(waitForSeconds(1));
    for (const bool isPaused : {true, false})
        m_job->setPaused(isPaused);
    ASSERT_TRUE(waitForSeconds(m_seconds + 1));
    available = 1000;
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(m_outcome->problems.last().english().endsWith(u"in 2 Matroska files."));
    EXPECT_EQ(m_outcome->outputs.size(), 2);

    available = 1000;
    begin();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_outcome->state, JobState::Failed);
    EXPECT_EQ(files().size(), 4);
}

TEST_F(RecordJobTest, CancellingLeavesNothing)
{
    begin();
    ASSERT_TRUE(waitForSeconds(0.5));
    m_job->cancel();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_outcome->state, JobState::Cancelled);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(RecordJobTest, WhatAnEndOfTheProgramLeavesIsFinished)
{
    begin();
    ASSERT_TRUE(waitForSeconds(2));
    const double recorded = m_seconds;
    m_job.reset();
    ASSERT_EQ(files().size(), 1);
    UnfinishedRecording left{.plan = m_plan,
                             .folder = m_folder.path(),
                             .stretches = {m_folder.filePath(files().first()), m_folder.filePath(u"gone.mkv"_s)}};
    ASSERT_TRUE(left.write());
    EXPECT_TRUE(UnfinishedRecording::findAll().isEmpty());  // this process lives
    const auto read = UnfinishedRecording::read(left.note);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->stretches.size(), 1);

    take(std::make_unique<RecordJob>(*read, m_tools));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(m_outcome->state, JobState::Done);
    EXPECT_EQ(files(), QStringList{u"A talk.mov"_s});
    EXPECT_GT(double(pictures(m_outcome->outputs.first()).size()) / 30, recorded - 1);
    EXPECT_FALSE(QFileInfo::exists(left.note));
}

}  // namespace

}  // namespace kestrel
