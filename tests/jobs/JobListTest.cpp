#include "jobs/JobList.h"

#include "ScriptedJobs.h"
#include "jobs/JobText.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

using test::marlin;
using test::scriptedRecord;
using test::waitUntil;

class JobListTest : public testing::Test {
protected:
    JobListTest() { queue.setRecipe(marlin, &recipe); }

    QList<JobId> add(int count, const QString &module = marlin)
    {
        QList<JobId> ids;
        for (int i = 0; i < count; ++i) {
            JobRecord record = scriptedRecord(u"film %1"_s.arg(i), Lane::Copy);
            record.module = module;
            ids.append(queue.add(record));
        }
        return ids;
    }

    /// Whether each of them still stands for the job that it stood for.
    void expectSame(const QList<JobId> &ids, const QList<QPersistentModelIndex> &indexes)
    {
        for (qsizetype i = 0; i < ids.size(); ++i) {
            EXPECT_EQ(list.idAt(indexes[i].row()), ids[i]);
            EXPECT_EQ(list.rowOf(ids[i]), indexes[i].row());
        }
    }

    test::ScriptedRecipe recipe;
    JobQueue queue{nullptr};
    JobList list{queue, marlin};
    QAbstractItemModelTester tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

}  // namespace

TEST_F(JobListTest, RowsComeAndGoWithoutAReset)
{
    QSignalSpy resets(&list, &QAbstractItemModel::modelReset);
    QList<JobId> ids = add(60);
    const JobId other = add(1, u"heron"_s).first();
    EXPECT_EQ(list.rowCount(), 60);
    EXPECT_EQ(list.rowOf(other), -1);
    QList<QPersistentModelIndex> indexes;
    for (int row = 0; row < 60; ++row)
        indexes.append(list.index(row, row % 3));
    queue.move({ids[3], ids[4], ids[10]}, ids[7]);
    expectSame(ids, indexes);
    QList<JobId> every2nd;
    for (int i = 1; i < 60; i += 2)
        every2nd.append(ids[i]);
    QSignalSpy moves(&list, &QAbstractItemModel::rowsMoved);
    queue.move(every2nd, ids[20]);
    EXPECT_EQ(moves.size(), 0);
    expectSame(ids, indexes);
    QSignalSpy removals(&list, &QAbstractItemModel::rowsRemoved);
    queue.remove({ids[7], ids[0], ids[59], other, 12345});
    EXPECT_EQ(list.rowCount(), 57);
    EXPECT_FALSE(indexes[7].isValid());
    EXPECT_LE(removals.size(), 3);
    for (const int i : {59, 7, 0}) {
        ids.removeAt(i);
        indexes.removeAt(i);
    }
    expectSame(ids, indexes);
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(JobListTest, AChangeIsToldForItsRowAlone)
{
    const QList<JobId> ids = add(3);
    QSignalSpy changes(&list, &QAbstractItemModel::dataChanged);
    queue.start({ids[1]});
    ASSERT_EQ(changes.size(), 2);  // it waits, it runs
    for (const QList<QVariant> &change : changes) {
        EXPECT_EQ(change[0].toModelIndex(), list.index(1, 0));
        EXPECT_EQ(change[1].toModelIndex(), list.index(1, JobList::ColumnCount - 1));
    }
    emit recipe.jobOf(ids[1])->progressed({.fraction = 0.417, .remainingSeconds = 130});
    EXPECT_EQ(list.index(1, 0).data(JobList::FractionRole), 0.417);
    emit recipe.jobOf(ids[1])->noted("Encoding in software"_key);
    const QString tip = list.index(1, JobList::StateColumn).data(Qt::ToolTipRole).toString();
    for (const QString &part : {u"41 %"_s, u"about 2 minutes left"_s, u"Encoding in software"_s})
        EXPECT_TRUE(tip.contains(part)) << tip.toStdString();
    EXPECT_FALSE(list.index(0, 0).data(JobList::FractionRole).isValid());
}

TEST(JobStateTextTest, SaysTheMost)
{
    const tarnwell::Sentence why("Why: %1"_key, {u"<x>"_s}), problem("A problem"_key);
    const struct {
        JobRecord record;
        QString text;
    } rows[] = {
        {{.state = JobState::Waiting}, u"Waiting"_s},
        {{.state = JobState::Waiting, .blocked = why}, u"Why: <x>"_s},
        {{.state = JobState::Ready, .outcome = {.sentence = why}}, u"Ready"_s},
        {{.state = JobState::Unusable, .outcome = {.sentence = why}}, u"Why: <x>"_s},
        {{.state = JobState::Running}, u"Running"_s},
        {{.state = JobState::Running, .progress = {.fraction = 0.999}}, u"99 %"_s},
        {{.state = JobState::Running, .progress = {.seconds = 62}}, u"1:02"_s},
        {{.state = JobState::Running, .progress = {.bytes = 1'500'000}}, u"1.5 MB"_s},
        {{.state = JobState::Running, .progress = {.fraction = 1, .stage = problem}}, u"A problem"_s},
        {{.state = JobState::Paused, .progress = {.fraction = 0.5}}, u"Paused"_s},
        {{.state = JobState::Failed, .outcome = {.sentence = why}}, u"Why: <x>"_s},
        {{.state = JobState::DoneWithProblems, .outcome = {.problems = {problem}}}, u"A problem"_s},
        {{.state = JobState::DoneWithProblems, .outcome = {.sentence = why, .problems = {problem, outputIsGone}}},
         u"The file is no longer where it was."_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(jobStateText(row.record), row.text);
}

TEST_F(JobListTest, RowsAreDraggedToReorderAndResultsOut)
{
    const QList<JobId> ids = add(4);
    queue.start({ids[0]});
    recipe.jobOf(ids[0])->end({.state = JobState::Done, .outputs = {u"/out/a b.mp4"_s}});
    ASSERT_TRUE(waitUntil([&] { return queue.record(ids[0])->state == JobState::Done; }));
    const auto drag = [](const JobList &from, std::initializer_list<int> rows) {
        QModelIndexList indexes;
        for (const int row : rows)
            indexes << from.index(row, 0) << from.index(row, 1);
        return std::unique_ptr<QMimeData>(from.mimeData(indexes));
    };
    EXPECT_EQ(drag(list, {0, 1})->urls(), QList{QUrl::fromLocalFile(u"/out/a b.mp4"_s)});
    EXPECT_FALSE(drag(list, {2})->hasUrls());
    const auto drop = [&](const QMimeData &data, int row, const QModelIndex &onto = {}) {
        return list.canDropMimeData(&data, Qt::CopyAction, row, 0, onto) &&
               list.dropMimeData(&data, Qt::CopyAction, row, 0, onto);
    };
    EXPECT_TRUE(drop(*drag(list, {3, 1}), 0));
    EXPECT_EQ(queue.order(marlin), (QList{ids[1], ids[3], ids[0], ids[2]}));
    EXPECT_TRUE(drop(*drag(list, {0}), -1));  // below the last row
    EXPECT_TRUE(drop(*drag(list, {2}), -1, list.index(1, 0)));
    EXPECT_EQ(queue.order(marlin), (QList{ids[3], ids[2], ids[0], ids[1]}));
    add(2, u"heron"_s);
    JobList other(queue, u"heron"_s);
    EXPECT_FALSE(drop(*drag(other, {1}), 0));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(u"/films/a.mkv"_s)});
    EXPECT_FALSE(drop(files, 0));
    // Whoever takes a result must not take it away.
    EXPECT_FALSE(list.supportedDragActions() & Qt::MoveAction);
}

}  // namespace kestrel
