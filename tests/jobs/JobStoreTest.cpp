#include "jobs/JobStore.h"

#include "ScriptedJobs.h"
#include "jobs/JobQueue.h"
#include "tests/support/TestEnvironment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/file.h>
#include <sys/resource.h>
#include <csignal>
#include <set>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::Optional;

namespace kestrel {

namespace {

using test::scriptedRecord;

class JobStoreTest : public testing::Test {
protected:
    std::unique_ptr<JobStore> open() const { return openJobStore(path, QStringLiteral(KESTREL_JOB_STORE_LIBRARY)); }

    static JobRecord stored(JobStore &store, double position, JobState state = JobState::Ready)
    {
        JobRecord record = scriptedRecord(u"film"_s);
        record.id = store.nextId();
        record.state = state;
        store.put(record, position);
        return record;
    }

    /// By id.
    static std::map<JobId, JobRecord> loaded(JobStore &store)
    {
        std::map<JobId, JobRecord> records;
        for (const JobStore::Row &row : store.load())
            records[row.record.id] = row.record;
        return records;
    }

    std::unique_ptr<QProcess> helper(const QStringList &arguments) const
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->start(
            QStringLiteral(KESTREL_TEST_HELPER),
            QStringList{arguments.first(), path, QStringLiteral(KESTREL_JOB_STORE_LIBRARY)} + arguments.mid(1));
        return process;
    }

    QStringList asideFiles() const { return QDir(folder.path()).entryList({u"jobs.sqlite.damaged-*"_s}); }

    void write(const QByteArray &bytes, const QString &ending = {}) const
    {
        QFile file(path + ending);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"jobs.sqlite"_s);
};

}  // namespace

TEST_F(JobStoreTest, OrderOptionsAndOutcomeComeBack)
{
    JobRecord first = scriptedRecord(u"Übung 1.mkv"_s, Lane::Copy, {{u"version"_s, 1}, {u"crf"_s, 21.5}});
    first.source = u"/films/Übung 1.mkv"_s;
    first.folder = u"/out"_s;
    first.added = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123, Qt::UTC);
    first.started = first.added.addSecs(1);
    first.ended = first.added.addSecs(2);
    first.state = JobState::Failed;
    first.outcome = {.state = JobState::Failed,
                     .sentence = {outputIsGone, {u"a"_s}},
                     .details = QString(64 * 1024 - 4, u'x') + u"\nend"_s,
                     .outputs = {u"/out/a"_s},
                     .problems = {{outputIsGone}},
                     .leftOut = {{outputIsGone, {u"b"_s}}},
                     .facts = {{u"dropped"_s, 3}}};
    QList<JobId> order;
    {
        const auto store = open();
        ASSERT_TRUE(store);
        first.id = store->nextId();
        JobRecord longer = first;
        longer.outcome.details.prepend(u"what was said long before"_s);
        store->put(longer, 5);
        order = {stored(*store, 4.5).id, first.id, stored(*store, 7).id};
        const JobRecord removed = stored(*store, 1);
        store->remove({removed.id});
        EXPECT_TRUE(store->flush());
    }
    const auto store = open();
    const QList<JobStore::Row> rows = store->load();
    ASSERT_EQ(rows.size(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(rows[i].record.id, order[i]);
    const JobRecord &record = rows[1].record;
    EXPECT_EQ(record.title, first.title);
    EXPECT_EQ(record.source, first.source);
    EXPECT_EQ(record.folder, first.folder);
    EXPECT_EQ(record.plan, first.plan);
    EXPECT_EQ(record.state, first.state);
    EXPECT_EQ(record.outcome, first.outcome);
    EXPECT_EQ(record.added, first.added);
    EXPECT_EQ(record.started, first.started);
    EXPECT_EQ(record.ended, first.ended);
    EXPECT_EQ(rows[1].position, 5);
    EXPECT_EQ(QFileInfo(folder.path()).permissions() & (QFile::ReadGroup | QFile::ExeOther), QFile::Permissions());
}

TEST_F(JobStoreTest, WhatHadAnOwnerIsOfferedAgain)
{
    const std::pair<JobState, JobState> rows[] = {
        {JobState::Running, JobState::Interrupted},  {JobState::Paused, JobState::Interrupted},
        {JobState::Stopping, JobState::Interrupted}, {JobState::Waiting, JobState::Ready},
        {JobState::Ready, JobState::Ready},          {JobState::Checking, JobState::Checking},
        {JobState::Cancelled, JobState::Cancelled},  {JobState::Unusable, JobState::Unusable}};
    std::map<JobId, JobState> expected;
    {
        const auto store = open();
        for (const auto &[before, after] : rows)
            expected[stored(*store, 1, before).id] = after;
    }
    for (int round = 0; round < 2; ++round) {
        const auto store = open();
        for (const auto &[id, record] : loaded(*store))
            EXPECT_EQ(record.state, expected[id]) << int(record.state);
        EXPECT_EQ(loaded(*store).size(), expected.size());
    }
}

TEST_F(JobStoreTest, WhatAnotherProcessHoldsIsLeftOutUntilItEnds)
{
    const auto process = helper({u"hold"_s});
    ASSERT_TRUE(process->waitForReadyRead(20'000));
    ASSERT_EQ(process->readAll().trimmed(), "held");
    const auto listed = [this] {
        QList<std::tuple<JobState, qint64, bool>> rows;
        const auto jobs = listJobs(path, QStringLiteral(KESTREL_JOB_STORE_LIBRARY));
        for (const ListedJob &job : jobs ? *jobs : QList<ListedJob>())
            rows.append({job.record.state, job.holder, job.hasLostOwner});
        return rows;
    };
    const qint64 holder = process->processId();
    EXPECT_THAT(listed(),
                ElementsAre(std::tuple(JobState::Running, holder, false), std::tuple(JobState::Waiting, holder, false),
                            std::tuple(JobState::Ready, 0, false)));
    const auto store = open();
    auto records = loaded(*store);
    ASSERT_EQ(records.size(), 1);
    EXPECT_EQ(records.begin()->second.state, JobState::Ready);
    process->kill();
    process->waitForFinished();
    for (int round = 0; round < 2; ++round)  // it changes nothing
        EXPECT_THAT(listed(), ElementsAre(std::tuple(JobState::Interrupted, 0, true),
                                          std::tuple(JobState::Ready, 0, true), std::tuple(JobState::Ready, 0, false)));
    records = loaded(*store);
    ASSERT_EQ(records.size(), 3);
    EXPECT_EQ(records.begin()->second.state, JobState::Interrupted);
}

TEST_F(JobStoreTest, DoneIsWhatIsThere)
{
    const QString output = folder.filePath(u"film.mp4"_s), other = folder.filePath(u"disc"_s);
    QDir().mkpath(other);
    const auto store = open();
    JobRecord record = scriptedRecord(u"film"_s);
    record.id = store->nextId();
    record.state = JobState::Done;
    record.outcome = {.state = JobState::Done, .outputs = {other, output}};
    store->put(record, 1);
    EXPECT_TRUE(store->flush());
    const auto listed = [this] { return listJobs(path, QStringLiteral(KESTREL_JOB_STORE_LIBRARY))->first().record; };
    JobRecord gone = listed();
    EXPECT_EQ(gone.state, JobState::DoneWithProblems);
    EXPECT_EQ(gone.outcome.problems, QList{tarnwell::Sentence(outputIsGone)});
    JobQueue queue(store.get());
    queue.load();
    EXPECT_TRUE(test::waitUntil([&] { return queue.record(record.id)->state == JobState::DoneWithProblems; }));
    EXPECT_EQ(queue.record(record.id)->outcome, gone.outcome);
    store->put(gone, 2);  // whyever; the file comes back
    QFile(output).open(QIODevice::WriteOnly);
    EXPECT_EQ(loaded(*store).at(record.id).state, JobState::Done);
    EXPECT_TRUE(loaded(*store).at(record.id).outcome.problems.isEmpty());
}

TEST_F(JobStoreTest, AMoveLeavesWhatAnotherProcessHasWritten)
{
    const auto mine = open(), other = open();
    JobRecord record = stored(*mine, 5);
    ASSERT_TRUE(mine->flush());
    record.state = JobState::Cancelled;
    other->put(record, 5);
    ASSERT_TRUE(other->flush());
    mine->place(record.id, 7);
    const QList<JobStore::Row> rows = mine->load();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0].record.state, JobState::Cancelled);
    EXPECT_EQ(rows[0].position, 7);
}

TEST_F(JobStoreTest, OfWhatHasEndedTheNewestStay)
{
    const JobId oldest = stored(*open(), 1).id;
    QProcess sqlite;
    sqlite.start(u"sqlite3"_s,
                 {path,
                  u"WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < 20119) INSERT INTO "
                  "jobs SELECT i, 'marlin', i, 'done', '', '{\"title\":\"a\",\"plan\":{}}' FROM n"_s});
    ASSERT_TRUE(sqlite.waitForFinished());
    const auto records = loaded(*open());
    EXPECT_EQ(records.size(), 1 + 20'000);
    EXPECT_TRUE(records.contains(oldest) && records.contains(120) && !records.contains(119));
}

TEST_F(JobStoreTest, WhatHadJustGotItsNameIsNotInterrupted)
{
    const QString part = folder.filePath(u".film.part.mp4"_s), whole = folder.filePath(u"film (1).mp4"_s);
    const struct {
        const char *name;
        std::function<void()> change;
        JobState state;
    } rows[] = {
        {"not yet", [] {}, JobState::Interrupted},
        {"placed", [&] { QFile::rename(part, whole); }, JobState::DoneWithProblems},
        {"swept, and another made", [&] { QFile::copy(part, whole), QFile::remove(part); }, JobState::Interrupted},
        {"placed and cut", [&] { QFile::rename(part, whole), QFile::resize(whole, 3); }, JobState::Interrupted}};
    for (const auto &[name, change, state] : rows) {
        QFile::remove(whole);
        QFile file(part);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("a film") > 0);
        file.close();
        const auto store = open();
        JobRecord record = scriptedRecord(u"film"_s);
        record.id = store->nextId();
        record.state = JobState::Running;
        record.placing = PlacedPart::of(part);
        record.outcome = {.state = JobState::DoneWithProblems, .problems = {{outputIsGone, {u"x"_s}}}};
        store->put(record, 1);
        change();
        const JobRecord found = loaded(*store).at(record.id);
        EXPECT_EQ(found.state, state) << name;
        const bool isMade = state == JobState::DoneWithProblems;
        EXPECT_EQ(found.outcome.outputs, isMade ? QStringList(whole) : QStringList()) << name;
        EXPECT_EQ(found.outcome.problems, isMade ? record.outcome.problems : QList<tarnwell::Sentence>()) << name;
    }
}

TEST_F(JobStoreTest, TwoProcessesShareTheFile)
{
    constexpr int count = 300;
    const std::unique_ptr<QProcess> others[] = {helper({u"add"_s, QString::number(count)}),
                                                helper({u"add"_s, QString::number(count)})};
    const auto store = open();
    ASSERT_TRUE(store);
    std::set<JobId> ids;
    for (int i = 0; i < count; ++i)
        ids.insert(stored(*store, i).id);
    EXPECT_TRUE(store->flush());
    for (const auto &process : others) {
        ASSERT_TRUE(process->waitForFinished(60'000));
        EXPECT_EQ(process->exitCode(), 0);
        for (const QByteArray &line : process->readAll().trimmed().split('\n'))
            ids.insert(line.toLongLong());
    }
    EXPECT_EQ(ids.size(), 3 * count);
    EXPECT_EQ(loaded(*store).size(), 3 * count);
    // Nor those of jobs that are gone.
    store->remove(QList<JobId>(ids.begin(), ids.end()));
    EXPECT_TRUE(store->flush());
    EXPECT_GT(open()->nextId(), *ids.rbegin());
}

TEST_F(JobStoreTest, WhatIsNoStoreIsMovedAside)
{
    QByteArray good;
    {
        const auto store = open();
        for (int i = 0; i < 200; ++i)
            stored(*store, i);
    }
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        good = file.readAll();
    }
    ASSERT_GT(good.size(), 20'000);
    QByteArray newer = good, foreign = good, holed = good, shape = good;
    newer[63] = 2;    // the lowest byte of user_version
    foreign[71] = 1;  // that of application_id
    std::fill(holed.begin() + 4096 + 8, holed.begin() + 9000, '\0');
    shape.replace("position REAL", "posution REAL");
    const struct {
        const char *name;
        QByteArray bytes;
        bool isMoved;
    } rows[] = {{"text", "This is no database, whatever it is called, and long enough to be looked at.", true},
                {"newer", newer, true},
                {"of another program", foreign, true},
                {"truncated", good.first(good.size() / 2), true},
                {"with a hole", holed, true},
                {"other columns", shape, true},
                {"half a header", good.first(50), true},
                {"empty", {}, false},
                {"good", good, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        for (const QString &name : QDir(folder.path()).entryList(QDir::Files))
            QFile::remove(folder.filePath(name));
        write(row.bytes);
        const auto listed = listJobs(path, QStringLiteral(KESTREL_JOB_STORE_LIBRARY));
        EXPECT_EQ(bool(listed), !row.isMoved);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(u"jobs.sqlite"_s));
        {
            const auto store = open();
            ASSERT_TRUE(store);
            EXPECT_EQ(store->load().size(), row.bytes == good ? 200 : 0);
            stored(*store, 1);
            EXPECT_TRUE(store->flush());
        }
        ASSERT_EQ(asideFiles().size(), row.isMoved ? 1 : 0);
        if (row.isMoved) {
            QFile aside(folder.filePath(asideFiles().first()));
            ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
            EXPECT_EQ(aside.readAll(), row.bytes);
        }
        EXPECT_EQ(open()->load().size(), row.bytes == good ? 201 : 1);
    }
}

TEST_F(JobStoreTest, NonsenseInARowCostsThatRow)
{
    const auto store = open();
    const JobRecord good = stored(*store, 1);
    JobRecord large = scriptedRecord(u"large"_s, Lane::Copy, {{u"text"_s, QString(1024 * 1024, u'x')}});
    large.id = store->nextId();
    store->put(large, 2);
    EXPECT_TRUE(store->flush());
    const QString rows[] = {
        u"(1001, 'marlin', 1, 'dreaming', '', '{\"title\":\"a\",\"plan\":{}}')"_s,
        u"(1002, 'marlin', 1, 'ready', '', '{\"title\":7,\"plan\":{}}')"_s,
        u"(1003, 'marlin', 1, 'ready', '', 'nonsense')"_s,
        u"(1004, '', 1, 'ready', '', '{\"title\":\"a\",\"plan\":{}}')"_s,
        u"(-5, 'marlin', 1, 'ready', '', '{\"title\":\"a\",\"plan\":{}}')"_s,
        u"(1005, 'marlin', 9e999, 'ready', '', '{\"title\":\"a\",\"plan\":{}}')"_s,
        u"(1006, 'marlin', 'left', 'ready', '', x'ff00')"_s,
        u"(1007, 'marlin', 1, 'done', '', '{\"title\":\"kept\",\"plan\":{},\"outcome\":[],\"folder\":{}}')"_s};
    for (const QString &row : rows) {
        QProcess sqlite;
        sqlite.start(u"sqlite3"_s,
                     {path, u"INSERT INTO jobs (id, module, position, state, owner, value) VALUES "_s + row});
        ASSERT_TRUE(sqlite.waitForFinished());
        ASSERT_EQ(sqlite.exitCode(), 0) << row.toStdString();
    }
    const auto records = loaded(*store);
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(records.begin()->first, good.id);
    EXPECT_EQ(records.rbegin()->second.title, u"kept");
    EXPECT_GT(open()->nextId(), 1007);
}

TEST_F(JobStoreTest, AFullDiskIsTriedAgain)
{
    const auto store = open();
    const JobRecord first = stored(*store, 1);
    ASSERT_TRUE(store->flush());
    const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit former;
    getrlimit(RLIMIT_FSIZE, &former);
    const rlimit small{1, former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const JobRecord second = stored(*store, 2);
    const bool isFlushed = store->flush();
    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, formerHandler);
    EXPECT_FALSE(isFlushed);
    EXPECT_EQ(loaded(*store).size(), 2);  // reading writes first what is to be written
    stored(*store, 3);
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(loaded(*open()).size(), 3);
}

TEST_F(JobStoreTest, ALockedFileIsNeitherMovedNorWaitedForForLong)
{
    const JobId known = stored(*open(), 1).id;
    QProcess sqlite;
    sqlite.start(u"sqlite3"_s, {u"-batch"_s, path});
    sqlite.write("PRAGMA locking_mode = EXCLUSIVE;\nBEGIN EXCLUSIVE;\nSELECT 'held';\n");
    ASSERT_TRUE(sqlite.waitForReadyRead(10'000));
    while (!sqlite.readAll().contains("held"))
        ASSERT_TRUE(sqlite.waitForReadyRead(10'000));
    EXPECT_FALSE(open());
    EXPECT_TRUE(asideFiles().isEmpty());
    sqlite.kill();
    sqlite.waitForFinished();
    EXPECT_TRUE(loaded(*open()).contains(known));
}

TEST_F(JobStoreTest, WithoutItsLibraryOrAFolderThereIsNone)
{
    EXPECT_FALSE(openJobStore(path, folder.filePath(u"none.dylib"_s)));
    write("a file");
    EXPECT_FALSE(openJobStore(path + u"/below/jobs.sqlite"_s, QStringLiteral(KESTREL_JOB_STORE_LIBRARY)));
}

}  // namespace kestrel
