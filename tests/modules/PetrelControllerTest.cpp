#include "modules/petrel/ui/PetrelController.h"

#include "ModuleSettings.h"
#include "jobs/JobList.h"
#include "jobs/JobQueue.h"
#include "jobs/ui/JobListView.h"
#include "jobs/ui/JobPage.h"
#include "modules/common/LateView.h"
#include "modules/petrel/DownloadList.h"
#include "modules/petrel/ui/FilmListDialog.h"
#include "settings/ModuleSettings.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using test::waitUntil;

const QString petrel = u"petrel"_s;

/// Stands in for the engine: what it finds depends on the address, which is its last argument.
constexpr char engineScript[] = R"(#!/bin/sh
for address; do :; done
case "$address" in
*film*) echo '{"title": "A <b>film</b>", "duration": 65, "subtitles": {"de": [{}]}, "formats": [
    {"ext": "mp4", "vcodec": "h264", "acodec": "aac", "height": 1080, "filesize": 5000000},
    {"ext": "mp4", "vcodec": "h264", "acodec": "aac", "height": 480, "filesize": 1000000}], "filesize": 5000000}' ;;
*list*) echo '{"_type": "playlist", "title": "All", "entries": [
    {"_type": "url", "url": "https://a.example/1", "title": "One", "duration": 5},
    {"_type": "url", "url": "https://a.example/film2", "title": "Two"}]}' ;;
*slow*) sleep 100 ;;
*) echo "ERROR: [site] x: Sign in to confirm your age" >&2; exit 1 ;;
esac
)";

class PetrelControllerTest : public testing::Test, public ModuleServices {
protected:
    PetrelControllerTest()
    {
        const QString folder = settings.path(u"Test.app/Contents/Resources/petrel.bundle/Contents/Resources"_s);
        QDir().mkpath(folder);
        test::writeFile(folder + u"/yt-dlp"_s, engineScript);
        QFile::setPermissions(folder + u"/yt-dlp"_s, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        controller = std::make_unique<PetrelController>(settings.configure(), *this);
        static_cast<LateView *>(controller->view())->makeContents();
    }
    ~PetrelControllerTest() override { controller.reset(); }

    JobQueue &queue() override { return m_queue; }
    void openInConverter(const QStringList &) override {}

    template <class Widget>
    Widget *find(const QString &name)
    {
        return controller->view()->findChild<Widget *>(name);
    }
    void paste(const QString &text) { emit controller->view()->findChild<JobPage *>()->textDropped(text); }
    JobId idAt(int row) { return queue().order(petrel).value(row); }
    const JobRecord &recordAt(int row) { return *queue().record(idAt(row)); }
    bool isIn(int row, JobState state)
    {
        return waitUntil([&] { return idAt(row) > 0 && recordAt(row).state == state; }, 30'000);
    }
    QString shown(int row, int column)
    {
        return find<JobListView>(u"jobList"_s)->model()->index(row, column).data().toString();
    }

    test::ModuleSettings settings{ModuleSettingDownload};
    std::unique_ptr<PetrelController> controller;

private:
    JobQueue m_queue{nullptr};
};

TEST_F(PetrelControllerTest, WhatIsFoundStandsInTheRowAndFollowsTheChoices)
{
    paste(u"https://a.example/film\nhttps://a.example/old and words"_s);
    ASSERT_EQ(queue().order(petrel).size(), 2);
    ASSERT_TRUE(isIn(0, JobState::Ready) && isIn(1, JobState::Unusable));
    EXPECT_EQ(shown(0, JobList::TitleColumn), u"A <b>film</b>");
    EXPECT_TRUE(shown(0, JobList::DetailColumn).contains(u"1:05"));
    EXPECT_TRUE(shown(0, JobList::DetailColumn).contains(u"5.0 MB"));
    EXPECT_TRUE(shown(1, JobList::StateColumn).contains(u"age"));
    auto *resolutions = find<QComboBox>(u"resolutionComboBox"_s);
    resolutions->setCurrentIndex(resolutions->findData(720));
    EXPECT_TRUE(shown(0, JobList::DetailColumn).contains(u"1.0 MB"));
    auto *formats = find<QComboBox>(u"formatComboBox"_s);
    formats->setCurrentIndex(formats->findData(u"mp3"_s));
    EXPECT_EQ(recordAt(0).folder, settings.dispatcher().getMusicDir());
    resolutions->setCurrentIndex(0);
    EXPECT_EQ(DownloadPlan::fromJson(recordAt(0).plan)->extension, u"mp3");
    EXPECT_EQ(filmFacts(recordAt(0)).subtitles, QStringList{u"de"_s});
}

TEST_F(PetrelControllerTest, AListIsChosenFrom)
{
    find<QLineEdit>(u"addressField"_s)->setText(u"https://a.example/list"_s);
    find<QPushButton>(u"addButton"_s)->click();
    EXPECT_TRUE(find<QLineEdit>(u"addressField"_s)->text().isEmpty());
    FilmListDialog *dialog = nullptr;
    ASSERT_TRUE(waitUntil([&] { return (dialog = controller->view()->findChild<FilmListDialog *>()); }, 30'000));
    auto *tree = dialog->findChild<QTreeWidget *>();
    ASSERT_EQ(tree->topLevelItemCount(), 2);
    EXPECT_EQ(tree->topLevelItem(0)->text(1), u"0:05");
    tree->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    dialog->accept();
    ASSERT_EQ(queue().order(petrel).size(), 1);
    EXPECT_EQ(recordAt(0).source, u"https://a.example/film2");
    EXPECT_EQ(recordAt(0).title, u"Two");
    EXPECT_TRUE(waitUntil([&] { return !filmFacts(recordAt(0)).resolutions.isEmpty(); }, 30'000));
}

TEST_F(PetrelControllerTest, OneThatIsBeingLookedAtMakesRoomWhereItIsNot)
{
    paste(u"https://a.example/slow1 https://a.example/slow2 https://a.example/film https://a.example/film3"_s);
    ASSERT_EQ(recordAt(3).state, JobState::Checking);
    queue().remove({idAt(0)});
    EXPECT_TRUE(isIn(1, JobState::Ready) && isIn(2, JobState::Ready));
    emit find<JobListView>(u"jobList"_s)->stopLookingRequested({idAt(0)});
    EXPECT_EQ(recordAt(0).state, JobState::Ready);
    emit find<JobListView>(u"jobList"_s)->lookAgainRequested({idAt(0)});
    EXPECT_EQ(recordAt(0).state, JobState::Checking);
}

TEST_F(PetrelControllerTest, OneThatBeginsFollowsTheSettingsOfThatTime)
{
    paste(u"https://a.example/film"_s);
    ASSERT_TRUE(isIn(0, JobState::Ready));
    QDir().mkpath(settings.path(u"elsewhere"_s));
    settings.dispatcher().setVideoDir(settings.path(u"elsewhere"_s));
    settings.setting().downloader()->setProxyEnabled(true);
    settings.setting().downloader()->setProxyURL(u"p.example"_s);
    queue().start({idAt(0)});
    EXPECT_EQ(recordAt(0).folder, settings.path(u"elsewhere"_s));
    EXPECT_EQ(DownloadPlan::fromJson(recordAt(0).plan)->proxy, u"http://p.example");
}

}  // namespace

}  // namespace kestrel
