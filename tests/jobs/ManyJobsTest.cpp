#include "ScriptedJobs.h"
#include "jobs/JobList.h"
#include "jobs/JobStore.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double limitMs = 320;  // what is looked at there is not the speed
#else
constexpr double limitMs = 16;
#endif

}  // namespace

TEST(ManyJobsTest, NoOperationHoldsTheWindowUp)
{
    constexpr int count = 10'000;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"jobs.sqlite"_s), library = QStringLiteral(KESTREL_JOB_STORE_LIBRARY);
    auto store = openJobStore(path, library);
    ASSERT_TRUE(store);
    test::ScriptedRecipe recipe;
    QList<JobId> ids;
    {
        JobQueue queue(store.get());
        queue.setRecipe(u"marlin"_s, &recipe);
        JobList list(queue, u"marlin"_s);
        QTreeView view;
        view.setUniformRowHeights(true);
        view.setModel(&list);
        view.show();
        const auto measure = [](const char *what, const std::function<void()> &operation) {
            const double before = test::processorMs();
            operation();
            EXPECT_LT(test::processorMs() - before, limitMs) << what;
        };
        for (int i = 0; i < count; ++i)
            measure("add", [&] { ids.append(queue.add(test::scriptedRecord(u"film %1"_s.arg(i), Lane::Copy))); });
        measure("layout", [] { QCoreApplication::processEvents(); });
        for (int i = 0; i < 50; ++i)
            measure("move one", [&] { queue.move({ids[i * 100]}, ids[count - 1 - i]); });
        view.selectionModel()->select(list.index(500, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QList<JobId> every100th;
        for (int i = 0; i < count; i += 100)
            every100th.append(ids[i]);
        measure("move many", [&] { queue.move(every100th, ids[5]); });
        measure("start", [&] { queue.start(ids); });
        while (queue.idsIn({JobState::Ready}).size() > 8000)
            measure("start more", [] { QCoreApplication::processEvents(); });
        queue.setLaneLimit(Lane::Copy, 4);
        const QList<JobId> running = queue.idsIn({JobState::Running});
        ASSERT_EQ(running.size(), 4);
        for (int round = 0; round < 100; ++round) {
            measure("progress", [&] {
                for (const JobId id : running)
                    emit recipe.jobOf(id)->progressed({.fraction = round / 100.0});
                QCoreApplication::processEvents();
            });
        }
        measure("end one", [&] {
            emit recipe.jobOf(running[0])->finished({.state = JobState::Done});
            QCoreApplication::processEvents();
        });
        measure("remove", [&] { queue.remove({ids[count / 2]}); });
        queue.cancel(ids);
        EXPECT_TRUE(test::waitUntil([&] { return !queue.hasWork(); }));
        EXPECT_TRUE(store->flush());
    }
    store.reset();
    store = openJobStore(path, library);
    JobQueue queue(store.get());
    queue.load();
    EXPECT_EQ(queue.order(u"marlin"_s).size(), count - 1);
}

}  // namespace kestrel
