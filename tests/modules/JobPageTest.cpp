#include "jobs/ui/JobPage.h"

#include "../jobs/ScriptedJobs.h"
#include "jobs/JobList.h"
#include "jobs/ui/JobListView.h"
#include "modules/ModuleRow.h"
#include "tarnwell/ui/Palette.h"
#include "tests/support/TestEnvironment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace kestrel {

namespace {

using test::scriptedRecord;

class JobPageTest : public testing::Test {
protected:
    JobPageTest()
    {
        queue.setRecipe(test::marlin, &recipe);
        queue.setRecipe(u"heron"_s, &recipe);
        for (const char *title : {"a", "b", "c"})
            ids.append(queue.add(scriptedRecord(QLatin1StringView(title))));
    }

    JobState state(int job) const { return queue.record(ids[job])->state; }
    void end(int job, JobState outcome)
    {
        recipe.jobOf(ids[job])->end({.state = outcome});
        EXPECT_TRUE(test::waitUntil([&] { return state(job) == outcome; }));
    }
    /// Chooses from the menu of the job.
    void choose(int job, const QString &text)
    {
        JobListView &list = *page.list();
        list.setCurrentIndex(list.model()->index(job, 0));
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(), QPoint());
        QApplication::sendEvent(list.viewport(), &event);
        auto *menu = list.findChild<QMenu *>();
        for (QAction *action : menu->actions()) {
            if (action->text() == text && action->isEnabled())
                action->trigger();
        }
        delete menu;
    }

    test::ScriptedRecipe recipe;
    JobQueue queue{nullptr};
    QList<JobId> ids;
    JobList jobs{queue, test::marlin};
    JobPage page{
        queue, jobs, test::marlin, {.title = {}, .emptyHeadline = {}, .emptyText = {}, .emptyButton = {}, .start = {}}};
};

}  // namespace

TEST(ModuleRowTest, JobsLeadToTheirModule)
{
    QList<ModuleSettingKind> kinds;
    for (const QStringView jobs : {u"marlin", u"heron", u"petrel", u"plover"})
        kinds.append(moduleRowOfJobs(jobs)->kind);
    EXPECT_THAT(kinds, ElementsAre(ModuleSettingVideo, ModuleSettingDVD, ModuleSettingDownload, ModuleSettingRecord));
    EXPECT_FALSE(moduleRowOfJobs(u"other"));
}

TEST_F(JobPageTest, CancelsItsOwnJobsAlsoPausedOnes)
{
    JobRecord other = scriptedRecord(u"disc"_s, Lane::Disc);
    other.module = u"heron"_s;
    const JobId disc = queue.add(other);
    queue.start({ids[0], ids[1], disc});
    choose(0, u"Pause"_s);
    EXPECT_EQ(state(0), JobState::Paused);
    choose(0, u"Cancel"_s);
    EXPECT_TRUE(test::waitUntil([&] { return state(0) == JobState::Cancelled && state(1) == JobState::Running; }));
    // Half of one of its two: what the other module has done does not count.
    emit recipe.jobOf(disc)->progressed({.fraction = 0.9});
    emit recipe.jobOf(ids[1])->progressed({.fraction = 0.5});
    const auto *bar = page.findChild<QProgressBar *>(u"progressBar"_s);
    EXPECT_TRUE(test::waitUntil([&] { return bar->value() > 0 && bar->maximum() == 2 * bar->value(); }))
        << bar->value();
    page.findChild<QPushButton *>(u"cancelButton"_s)->click();
    EXPECT_TRUE(test::waitUntil([&] { return state(1) == JobState::Cancelled; }));
    EXPECT_EQ(queue.record(disc)->state, JobState::Running);
}

TEST_F(JobPageTest, WhatHasFailedStaysAndIsTriedAgain)
{
    queue.start({ids[0]});
    end(0, JobState::Failed);
    queue.start({ids[1]});
    end(1, JobState::Done);
    page.list()->removeEnded();
    EXPECT_THAT(queue.order(test::marlin), ElementsAre(ids[0], ids[2]));
    for (const bool isOffered : {false, true}) {
        page.list()->setStartOffered(isOffered);
        choose(0, u"Retry"_s);
        EXPECT_EQ(state(0), isOffered ? JobState::Running : JobState::Failed);
    }
}

TEST_F(JobPageTest, ProblemsLookOtherThanGoodResults)
{
    const auto colours = [this](JobState outcome) {
        queue.start({ids[0]});
        end(0, outcome);
        const QImage row =
            page.list()->viewport()->grab(page.list()->visualRect(page.list()->model()->index(0, 0))).toImage();
        bool isGreen = false, isAmber = false;
        for (int i = 0; i < row.width() * row.height(); ++i) {
            const QRgb pixel = row.pixel(i % row.width(), i / row.width());
            isGreen |= pixel == tarnwell::palette::done;
            isAmber |= pixel == tarnwell::palette::warning;
        }
        return std::pair(isGreen, isAmber);
    };
    page.resize(900, 600);
    page.show();
    EXPECT_EQ(colours(JobState::Done), std::pair(true, false));
    EXPECT_EQ(colours(JobState::DoneWithProblems), std::pair(false, true));
}

TEST_F(JobPageTest, RowsDoNotMovePastHiddenOnes)
{
    JobListView &list = *page.list();
    page.show();
    list.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    for (const QString &filter : {u"c"_s, QString()}) {
        list.setFilterText(filter);
        list.setCurrentIndex(list.model()->index(list.model()->rowCount() - 1, 0));
        QTest::keyClick(&list, Qt::Key_Up, Qt::AltModifier);
        EXPECT_EQ(queue.order(test::marlin).indexOf(ids[2]), filter.isNull() ? 1 : 2);
    }
    QTest::keyClick(&list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(queue.order(test::marlin).last(), ids[2]);
}

}  // namespace kestrel
