#include "jobs/JobQueue.h"

#include "ScriptedJobs.h"
#include "jobs/JobStore.h"
#include "tests/support/TestEnvironment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QSignalSpy>

#include <ctime>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace kestrel {

namespace {

using tarnwell::operator""_key;
using test::marlin;
using test::ScriptedJob;
using test::scriptedRecord;
using test::waitUntil;

const JobOutcome done{.state = JobState::Done};

/// Keeps what was stored last, and the order of what happened to it.
class MemoryStore : public JobStore {
public:
    QList<Row> load() override { return loaded; }
    JobId nextId() override { return ++lastId; }
    void put(const JobRecord &record, double position) override { rows[record.id] = {record, position}; }
    void place(JobId id, double position) override { rows[id].position = position; }
    void remove(const QList<JobId> &ids) override
    {
        for (const JobId id : ids)
            rows.erase(id);
    }
    bool flush(std::chrono::milliseconds) override
    {
        ++flushes;
        return true;
    }

    QList<JobId> order() const
    {
        QList<std::pair<double, JobId>> places;
        for (const auto &[id, row] : rows)
            places.append({row.position, id});
        std::sort(places.begin(), places.end());
        QList<JobId> ids;
        for (const auto &place : places)
            ids.append(place.second);
        return ids;
    }

    QList<Row> loaded;
    std::map<JobId, Row> rows;
    JobId lastId = 0;
    int flushes = 0;
};

class JobQueueTest : public testing::Test {
protected:
    JobQueueTest() { queue.setRecipe(marlin, &recipe); }

    JobState state(JobId id) const { return queue.record(id)->state; }
    bool waitForState(JobId id, JobState wanted)
    {
        return waitUntil([&] { return queue.record(id) && state(id) == wanted; });
    }
    QList<JobId> add(int count, Lane lane = Lane::Copy, const QJsonObject &plan = {})
    {
        QList<JobId> ids;
        for (int i = 0; i < count; ++i)
            ids.append(queue.add(scriptedRecord(u"film %1"_s.arg(i), lane, plan)));
        return ids;
    }

    MemoryStore store;
    test::ScriptedRecipe recipe;
    qint64 freeBytes = 1'000'000'000'000, allBytes = 0;
    JobQueue queue{&store, nullptr, [this](const QString &folder) -> std::optional<DiskSpace> {
                       if (folder.startsWith("/unknown"_L1))
                           return std::nullopt;
                       return DiskSpace{folder.toUtf8().left(2), freeBytes, allBytes};
                   }};
};

}  // namespace

TEST_F(JobQueueTest, LanesRunSideBySideAndTakeMoreWhileTheyRun)
{
    queue.setLaneLimit(Lane::Encode, 2);
    const QList<JobId> encodes = add(4, Lane::Encode), copies = add(2, Lane::Copy);
    queue.start(encodes + copies);
    EXPECT_EQ(queue.idsIn({JobState::Running}), (QList{encodes[0], encodes[1], copies[0]}));
    recipe.jobOf(encodes[0])->end(done);
    ASSERT_TRUE(waitForState(encodes[2], JobState::Running));
    const JobId late = add(1, Lane::Sound).first();
    queue.start({late});
    EXPECT_EQ(state(late), JobState::Running);
    queue.setLaneLimit(Lane::Encode, 3);
    EXPECT_EQ(state(encodes[3]), JobState::Running);
    EXPECT_EQ(state(copies[1]), JobState::Waiting);
}

TEST_F(JobQueueTest, TheOrderOfTheListDecidesWhatIsNext)
{
    const QList<JobId> ids = add(4);
    queue.start(ids);
    queue.move({ids[3]}, ids[0]);  // which runs
    recipe.jobOf(ids[0])->end(done);
    ASSERT_TRUE(waitForState(ids[0], JobState::Done));
    EXPECT_EQ(queue.idsIn({JobState::Running}), QList{ids[3]});
    // Of two modules, the one that has waited longest.
    test::ScriptedRecipe other;
    queue.setRecipe(u"heron"_s, &other);
    JobRecord record = scriptedRecord(u"disc"_s, Lane::Copy);
    record.module = u"heron"_s;
    const JobId disc = queue.add(record);
    queue.start({disc});
    recipe.jobOf(ids[3])->end(done);
    ASSERT_TRUE(waitForState(ids[1], JobState::Running));
    EXPECT_EQ(state(disc), JobState::Waiting);
    queue.setRecipe(u"heron"_s, nullptr);
}

TEST_F(JobQueueTest, MovesKeepTheOrderAmongThemselvesAndReachTheStore)
{
    const QList<JobId> ids = add(8);
    const struct {
        QList<int> moved;
        int before;  ///< -1 for the end
        QList<int> expected;
    } rows[] = {{{2}, 0, {2, 0, 1, 3, 4, 5, 6, 7}},       {{0, 7}, 4, {2, 1, 3, 0, 7, 4, 5, 6}},
                {{3, 1}, -1, {2, 0, 7, 4, 5, 6, 1, 3}},   {{7, 4, 5}, 4, {2, 0, 7, 4, 5, 6, 1, 3}},
                {{2, 4, 1}, 7, {0, 2, 4, 1, 7, 5, 6, 3}}, {{0, 2, 4, 1, 7, 5, 6, 3}, -1, {0, 2, 4, 1, 7, 5, 6, 3}}};
    for (const auto &row : rows) {
        QList<JobId> moved, expected;
        for (const int i : row.moved)
            moved.append(ids[i]);
        for (const int i : row.expected)
            expected.append(ids[i]);
        queue.move(moved, row.before < 0 ? 0 : ids[row.before]);
        EXPECT_EQ(queue.order(marlin), expected);
        EXPECT_EQ(store.order(), expected);
    }
    // Always to the same place, until there is no room between the neighbours.
    for (int i = 0; i < 200; ++i) {
        queue.move({queue.order(marlin).last()}, queue.order(marlin)[1]);
        ASSERT_EQ(store.order(), queue.order(marlin)) << i;
    }
    for (int row = 0; row < 8; ++row)
        EXPECT_EQ(queue.rowOf(queue.order(marlin)[row]), row);
}

TEST_F(JobQueueTest, AllAreCancelledWithinATenthOfASecond)
{
    queue.setLaneLimit(Lane::Copy, 2);
    const QList<JobId> ids = add(5);
    queue.start(ids);
    recipe.jobOf(ids[1])->isDeaf = true;
    const QPointer<ScriptedJob> deaf = recipe.jobOf(ids[1]);
    QSignalSpy idle(&queue, &JobQueue::idle);
    queue.cancel(ids);
    EXPECT_EQ(queue.idsIn({JobState::Ready}), ids.mid(2));
    ASSERT_TRUE(waitForState(ids[0], JobState::Cancelled));
    EXPECT_TRUE(deaf);
    ASSERT_TRUE(waitForState(ids[1], JobState::Cancelled));
    EXPECT_FALSE(deaf);
    EXPECT_LT(queue.record(ids[1])->started.msecsTo(queue.record(ids[1])->ended), 1000);
    EXPECT_EQ(recipe.made.size(), 2);
    EXPECT_EQ(idle.size(), 1);
    EXPECT_EQ(store.rows[ids[0]].record.state, JobState::Cancelled);
}

TEST_F(JobQueueTest, WhatIsToGetItsNameIsStoredBefore)
{
    const QList<JobId> ids = add(1);
    queue.start(ids);
    ASSERT_TRUE(waitForState(ids[0], JobState::Running));
    bool mayGoOn = false;
    recipe.jobOf(ids[0])->beforePlacing(done, QStringLiteral(KESTREL_TEST_HELPER), [&] { mayGoOn = true; });
    EXPECT_FALSE(mayGoOn);
    EXPECT_TRUE(store.rows[ids[0]].record.placing);
    EXPECT_EQ(store.rows[ids[0]].record.outcome.state, JobState::Done);
    ASSERT_TRUE(waitUntil([&] { return mayGoOn; }));
    recipe.jobOf(ids[0])->end(done);
    ASSERT_TRUE(waitForState(ids[0], JobState::Done));
    EXPECT_FALSE(store.rows[ids[0]].record.placing);
}

TEST_F(JobQueueTest, WhatEndsWellAlthoughItWasCancelledIsDone)
{
    const JobId id = add(1).first();
    queue.start({id});
    recipe.jobOf(id)->end(done);
    queue.cancel({id});
    ASSERT_TRUE(waitForState(id, JobState::Done));
}

TEST_F(JobQueueTest, StopPauseAndRetry)
{
    const QList<JobId> ids = add(1);
    QSignalSpy ended(&queue, &JobQueue::ended);
    queue.start(ids);
    queue.setPaused(ids, true);
    EXPECT_EQ(state(ids[0]), JobState::Paused);
    EXPECT_TRUE(recipe.jobOf(ids[0])->isPaused);
    queue.stop(ids);  // goes on first, or it could not end
    EXPECT_FALSE(recipe.jobOf(ids[0])->isPaused);
    EXPECT_EQ(store.rows[ids[0]].record.state, JobState::Stopping);
    ASSERT_TRUE(waitForState(ids[0], JobState::Done));
    EXPECT_EQ(queue.record(ids[0])->outcome.details, u"stopped");
    EXPECT_EQ(ended.size(), 1);
    const QPointer<ScriptedJob> former = recipe.made.first();
    queue.change(ids[0], [](JobRecord &record) { record.note = tarnwell::Sentence("in software"_key); });
    queue.start(ids);
    EXPECT_TRUE(queue.record(ids[0])->note.isEmpty());
    EXPECT_EQ(state(ids[0]), JobState::Running);
    EXPECT_EQ(queue.record(ids[0])->outcome, JobOutcome());
    EXPECT_FALSE(queue.record(ids[0])->ended.isValid());
    ASSERT_TRUE(waitUntil([&] { return !former; }));
    EXPECT_EQ(state(ids[0]), JobState::Running);
}

TEST_F(JobQueueTest, ActiveOnesEndBeforeTheyAreRemoved)
{
    const QList<JobId> ids = add(3);
    queue.start(ids);
    QSignalSpy removed(&queue, &JobQueue::aboutToRemove);
    queue.remove(ids);
    EXPECT_EQ(queue.order(marlin), QList{ids[0]});
    ASSERT_TRUE(waitUntil([&] { return queue.order(marlin).isEmpty(); }));
    EXPECT_EQ(removed.size(), 2);
    EXPECT_TRUE(store.rows.empty());
    EXPECT_EQ(recipe.made.size(), 1);
    EXPECT_FALSE(queue.hasWork());
}

TEST_F(JobQueueTest, SpaceIsCheckedLessWhatRunningJobsNeed)
{
    queue.setLaneLimit(Lane::Copy, 3);
    freeBytes = 1'000'000'000;
    QList<JobId> ids;
    for (const auto &[folder, bytes] : {std::pair{u"/a/x"_s, 500'000'000},
                                        {u"/a/y"_s, 400'000'000},
                                        {u"/unknown"_s, 2'000'000'000},
                                        {u"/b"_s, 700'000'000}}) {
        JobRecord record = scriptedRecord(folder, Lane::Copy, {{u"bytes"_s, bytes}});
        record.folder = folder;
        ids.append(queue.add(record));
    }
    queue.start(ids);
    EXPECT_EQ(queue.idsIn({JobState::Running}), (QList{ids[0], ids[2], ids[3]}));
    EXPECT_EQ(queue.record(ids[1])->blocked.english(), u"Waiting for space on the disk: 600.0 MB needed");
    // The first has written most of its own; another end looks again.
    emit recipe.jobOf(ids[0])->progressed({.fraction = 0.9});
    freeBytes = 700'000'000;
    recipe.jobOf(ids[3])->end(done);
    ASSERT_TRUE(waitForState(ids[1], JobState::Running));
    EXPECT_TRUE(queue.record(ids[1])->blocked.isEmpty());
}

TEST_F(JobQueueTest, OnASmallDiskLessIsLeftFree)
{
    freeBytes = 40'000'000;
    allBytes = 100'000'000;
    JobRecord record = scriptedRecord(u"film"_s, Lane::Copy);
    record.folder = u"/a"_s;
    for (const auto &[bytes, expected] : {std::pair{36'000'000, JobState::Waiting}, {34'000'000, JobState::Running}}) {
        record.plan[u"bytes"_s] = bytes;
        const JobId id = queue.add(record);
        queue.start({id});
        EXPECT_EQ(state(id), expected) << bytes;
    }
}

TEST_F(JobQueueTest, SpaceIsLookedForAgainAfterAWhile)
{
    freeBytes = 0;
    JobQueue hasty(
        nullptr, nullptr,
        [this](const QString &) {
            return DiskSpace{"/a", freeBytes};
        },
        20ms);
    hasty.setRecipe(marlin, &recipe);
    JobRecord record = scriptedRecord(u"film"_s);
    record.folder = u"/a"_s;
    const JobId id = hasty.add(record);
    hasty.start({id});
    EXPECT_EQ(hasty.record(id)->state, JobState::Waiting);
    freeBytes = 1'000'000'000;
    EXPECT_TRUE(waitUntil([&] { return hasty.record(id)->state == JobState::Running; }));
}

TEST_F(JobQueueTest, ProgressOnlyGrowsAndIsTold10TimesASecond)
{
    const JobId id = add(1).first();
    queue.start({id});
    QSignalSpy changed(&queue, &JobQueue::changed);
    for (int i = 0; i <= 1000; ++i)
        emit recipe.jobOf(id)->progressed({.fraction = i / 2000.0});
    EXPECT_EQ(changed.size(), 1);
    for (const std::optional<double> fraction :
         {std::optional(0.2), std::optional(std::nan("")), std::optional<double>()})
        emit recipe.jobOf(id)->progressed({.fraction = fraction});
    EXPECT_EQ(queue.record(id)->progress.fraction, 0.5);
    ASSERT_TRUE(waitUntil([&] { return changed.size() == 2; }));
    emit recipe.jobOf(id)->progressed({.fraction = 7});
    EXPECT_EQ(queue.record(id)->progress.fraction, 1.0);
}

TEST_F(JobQueueTest, TheWholeIsWeighed)
{
    queue.setLaneLimit(Lane::Copy, 2);
    QList<JobId> ids = add(1, Lane::Copy, {{u"weight"_s, 30}});
    ids += add(2, Lane::Copy, {{u"weight"_s, 10}});
    EXPECT_FALSE(queue.hasWork());
    queue.start(ids);
    EXPECT_FALSE(queue.overallProgress().fraction);
    emit recipe.jobOf(ids[0])->progressed({.fraction = 0.5, .bytesPerSecond = 3});
    EXPECT_DOUBLE_EQ(queue.overallProgress(marlin).fraction.value_or(0), 0.3);
    EXPECT_EQ(queue.overallProgress().bytesPerSecond, 3);
    recipe.jobOf(ids[1])->end({.state = JobState::Failed});
    ASSERT_TRUE(waitForState(ids[2], JobState::Running));
    EXPECT_DOUBLE_EQ(queue.overallProgress(marlin).fraction.value_or(0), 0.5);
    queue.cancel({ids[2]});
    ASSERT_TRUE(waitForState(ids[2], JobState::Cancelled));
    EXPECT_DOUBLE_EQ(queue.overallProgress(marlin).fraction.value_or(0), 0.625);
    recipe.jobOf(ids[0])->end(done);
    ASSERT_TRUE(waitForState(ids[0], JobState::Done));
    EXPECT_FALSE(queue.overallProgress().fraction);
}

TEST_F(JobQueueTest, TheProgramsEndInterruptsWhatRuns)
{
    const QList<JobId> ids = add(3);
    queue.start(ids);
    queue.setPaused({ids[0]}, true);
    QSignalSpy idle(&queue, &JobQueue::idle);
    queue.interruptAll();
    EXPECT_EQ(store.rows[ids[0]].record.state, JobState::Interrupted);
    EXPECT_EQ(store.rows[ids[1]].record.state, JobState::Waiting);
    EXPECT_EQ(store.flushes, 1);
    EXPECT_FALSE(recipe.jobOf(ids[0]));
    queue.setLaneLimit(Lane::Copy, 5);
    EXPECT_EQ(queue.idsIn({JobState::Running}), QList<JobId>());
    EXPECT_EQ(idle.size(), 0);
}

TEST_F(JobQueueTest, OnlyWhatDoesNotRunIsChanged)
{
    const QList<JobId> ids = add(2);
    queue.start({ids[0]});
    for (const JobId id : ids) {
        queue.change(id, [](JobRecord &record) {
            record.title = u"new"_s;
            record.id = 99;
            record.state = JobState::Done;
        });
    }
    EXPECT_EQ(queue.record(ids[0])->title, u"film 0");
    EXPECT_EQ(queue.record(ids[1])->title, u"new");
    EXPECT_EQ(state(ids[1]), JobState::Ready);
    EXPECT_EQ(store.rows[ids[1]].record.title, u"new");
    queue.start({ids[1]});
    queue.change(ids[1], [](JobRecord &record) { record.plan[u"lane"_s] = int(Lane::Sound); });
    EXPECT_EQ(state(ids[1]), JobState::Running);
}

TEST_F(JobQueueTest, LoadedJobsKeepTheirOrderAndDoNotStart)
{
    for (const JobId id : {7, 3, 5}) {
        JobRecord record = scriptedRecord(QString::number(id));
        record.id = id;
        store.loaded.append({record, 1000.0 * double(store.loaded.size())});
    }
    store.lastId = 7;
    queue.load();
    EXPECT_THAT(queue.order(marlin), ElementsAre(7, 3, 5));
    queue.change(5, [](JobRecord &record) { record.title = u"changed"_s; });
    EXPECT_EQ(store.rows[5].position, 2000);  // where it stood, whatever its number
    EXPECT_EQ(queue.add(scriptedRecord(u"new"_s)), 8);
    queue.move({8}, 3);
    EXPECT_EQ(store.rows.size(), 2);
    EXPECT_THAT(queue.order(marlin), ElementsAre(7, 8, 3, 5));
    EXPECT_TRUE(recipe.made.isEmpty());
}

}  // namespace kestrel
