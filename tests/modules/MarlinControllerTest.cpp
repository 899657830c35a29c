#include "modules/marlin/ui/MarlinController.h"

#include "ModuleSettings.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "jobs/JobList.h"
#include "jobs/JobQueue.h"
#include "jobs/ui/JobListView.h"
#include "media/SubtitleFile.h"
#include "modules/marlin/Conversion.h"
#include "modules/marlin/Conversions.h"
#include "modules/marlin/ui/TrackOptions.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using test::waitUntil;

const QString module = u"marlin"_s;

class MarlinControllerTest : public testing::Test, public ModuleServices {
protected:
    MarlinControllerTest() { start(); }
    ~MarlinControllerTest() override { controller.reset(); }

    JobQueue &queue() override { return *m_queue; }
    void openInConverter(const QStringList &) override {}

    /// As the program does; what is stored is there again, jobs are not.
    void start()
    {
        controller.reset();
        m_queue = std::make_unique<JobQueue>(nullptr);
        controller = std::make_unique<MarlinController>(settings.configure(), *this, defaults);
        controller->showFirstOpenAppTip(false);
    }

    template <class Widget>
    Widget *find(const QString &name)
    {
        return controller->view()->findChild<Widget *>(name);
    }
    void choose(const QString &preset)
    {
        auto *box = find<QComboBox>(u"targetComboBox"_s);
        box->setCurrentIndex(box->findData(preset));
        emit box->activated(box->currentIndex());
    }
    JobId idAt(int row) { return queue().order(module).value(row); }
    const JobRecord &recordAt(int row) { return *queue().record(idAt(row)); }
    TranscodePlan planAt(int row) { return *TranscodePlan::fromJson(recordAt(row).plan); }
    bool isIn(int row, JobState state)
    {
        return waitUntil([&] { return idAt(row) > 0 && recordAt(row).state == state; }, 100'000);
    }
    void open(const QStringList &paths)
    {
        controller->openFiles(paths);
        wait();
    }
    /// For what is looked for in the background, and what comes of it.
    static void wait()
    {
        foundation::queue::finishGlobal();
        QCoreApplication::processEvents();
    }
    void convert()
    {
        auto *button = find<QPushButton>(u"startButton"_s);
        ASSERT_TRUE(waitUntil([button] { return button->isEnabled(); }));
        button->click();
    }
    QVariant shown(int row, int role, int column = 0)
    {
        const auto *list = find<JobListView>(u"jobList"_s);
        return list->model()->index(row, column).data(role);
    }
    QString clip(const QString &name)
    {
        const QString path = settings.path(name);
        settings.makeClip(path, QLatin1StringView(test::shortVideo));
        return path;
    }

    test::ModuleSettings settings;
    foundation::UserDefaults defaults{settings.path(u"module.plist"_s)};
    std::unique_ptr<MarlinController> controller;

private:
    std::unique_ptr<JobQueue> m_queue;
};

}  // namespace

TEST_F(MarlinControllerTest, AddsEachFileOnceLooksAtItAndConverts)
{
    const QString film = clip(u"film.mkv"_s), letter = settings.path(u"letter.mp4"_s);
    test::writeFile(letter, "no film at all");
    open({film, letter});
    open({film});
    ASSERT_EQ(queue().order(module).size(), 2);
    ASSERT_TRUE(isIn(0, JobState::Ready) && isIn(1, JobState::Unusable));
    EXPECT_TRUE(shown(0, Qt::DisplayRole, JobList::DetailColumn).toString().startsWith(u"0:02"));
    EXPECT_TRUE(shown(0, Qt::AccessibleTextRole).toString().contains(u"Ready"));
    EXPECT_TRUE(waitUntil([&] { return !shown(0, Qt::DecorationRole).value<QPixmap>().isNull(); }, 60'000));

    convert();
    ASSERT_TRUE(isIn(0, JobState::Done)) << recordAt(0).outcome.details.toStdString();
    EXPECT_EQ(settings.outputs(), QStringList{u"film.mp4"_s});
    // What is done does not stand in the way of doing it again.
    open({film});
    EXPECT_EQ(queue().order(module).size(), 3);
}

TEST_F(MarlinControllerTest, FilesCanBeDroppedOnTheRows)
{
    const QString film = clip(u"film.mkv"_s);
    open({film});
    controller->view()->show();
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(film), QUrl::fromLocalFile(clip(u"part 10.mkv"_s)),
                   QUrl::fromLocalFile(clip(u"part 9.mkv"_s))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(find<JobListView>(u"jobList"_s)->viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(find<JobListView>(u"jobList"_s)->viewport(), &drop);
    wait();
    ASSERT_EQ(queue().order(module).size(), 3);
    EXPECT_EQ(recordAt(1).title, u"part 9.mkv");
}

TEST_F(MarlinControllerTest, WhatIsLeftOutStandsInTheRowBeforeTheStart)
{
    const QString film = settings.path(u"two.mkv"_s);
    settings.makeClip(film, QLatin1StringView(test::shortVideo) +
                                " -f lavfi -i sine=duration=2 -f lavfi -i sine=duration=2 -map 0 -map 1 -map 2 "
                                "-metadata:s:a:1 language=jpn"_L1);
    open({film});
    ASSERT_TRUE(isIn(0, JobState::Ready));
    choose(u"mkv-h264"_s);
    EXPECT_EQ(shown(0, JobList::WarningRole).toString(), QString());
    choose(u"mp3"_s);
    EXPECT_TRUE(shown(0, JobList::WarningRole).toString().contains(u"Japanese"));

    settings.replaceTranscoder("ffmpeg \"$@\" | grep -v libx264");
    start();
    controller->openFiles({film});
    choose(u"mp4-h264"_s);
    EXPECT_TRUE(waitUntil([&] { return shown(0, JobList::WarningRole).toString().contains(u"not installed"); }));
}

TEST_F(MarlinControllerTest, PresetIsForTheSelectedOrForAllAndIsRemembered)
{
    open({clip(u"a.mkv"_s), clip(u"b.mkv"_s)});
    ASSERT_TRUE(isIn(0, JobState::Ready) && isIn(1, JobState::Ready));
    choose(u"mkv-h265"_s);
    EXPECT_EQ(planAt(0).preset.id, u"mkv-h265");
    EXPECT_EQ(planAt(1).preset.id, u"mkv-h265");
    find<JobListView>(u"jobList"_s)->select(idAt(1));
    emit find<QComboBox>(u"rateControl"_s)->activated(1);
    EXPECT_EQ(planAt(1).rateControl, TranscodePlan::RateControl::Quality);
    choose(u"mkv-vp9"_s);
    EXPECT_EQ(planAt(0).preset.id, u"mkv-h265");
    EXPECT_EQ(planAt(1).preset.id, u"mkv-vp9");
    EXPECT_EQ(planAt(1).rateControl, TranscodePlan::RateControl::Preset) << "a number for another encoder";
    start();
    EXPECT_EQ(find<QComboBox>(u"targetComboBox"_s)->currentData(), u"mkv-h265"_s);

    OwnPresets own(defaults, u"marlinPresets"_s);
    TranscodePlan plan;
    plan.preset = builtInPresets().first();
    plan.speedFactor = 2;
    const auto mine = own.save(u"mine"_s, plan);
    ASSERT_TRUE(mine);
    start();
    EXPECT_GT(find<QComboBox>(u"targetComboBox"_s)->findText(u"  mine"_s), 0);
    open({clip(u"a.mkv"_s)});
    choose(*mine);
    EXPECT_EQ(planAt(0).speedFactor, 2);
    choose(u"mkv-h265"_s);
    EXPECT_EQ(planAt(0).speedFactor, 1) << "an own preset's options are its own";
    foundation::NotificationCenter::defaultCenter().postNotificationName(keyResetProfilesNotification.toString());
    EXPECT_EQ(find<QComboBox>(u"targetComboBox"_s)->currentData(), builtInPresets().first().id);
    EXPECT_EQ(find<QComboBox>(u"targetComboBox"_s)->findText(u"  mine"_s), -1);
    EXPECT_FALSE(defaults.objectForKey(u"marlinPreset"_s).isValid());
}

TEST_F(MarlinControllerTest, OptionsChangeThePlansAndTheSwitches)
{
    open({clip(u"a.mkv"_s), clip(u"b.mkv"_s)});
    ASSERT_TRUE(isIn(0, JobState::Ready) && isIn(1, JobState::Ready));
    find<QCheckBox>(u"safeMode"_s)->click();
    EXPECT_TRUE(planAt(0).safeMode && planAt(1).safeMode && settings.dispatcher().getSafeMode());
    find<JobListView>(u"jobList"_s)->select(idAt(0));
    find<QCheckBox>(u"mirrored"_s)->click();
    find<QCheckBox>(u"best"_s)->click();
    EXPECT_TRUE(planAt(0).mirrored && planAt(0).best && !planAt(1).mirrored && !planAt(1).best);
    EXPECT_FALSE(settings.dispatcher().getHQE());
    auto *folder = find<QComboBox>(u"folderBox"_s);
    emit folder->activated(1);
    EXPECT_EQ(recordAt(0).folder, QFileInfo(planAt(0).sources.first()).absolutePath());
    EXPECT_EQ(recordAt(1).folder, settings.folder());
    queue().change(idAt(0), [](JobRecord &record) { setOwnFolder(record, u"/own"_s); });
    emit folder->activated(0);
    EXPECT_EQ(recordAt(0).folder, settings.folder()) << "of the settings again";
    auto *rate = find<QComboBox>(u"frameRate"_s);
    for (int row = 0; row < rate->count(); ++row) {
        emit rate->activated(row);
        wait();
        EXPECT_EQ(rate->currentIndex(), row) << rate->itemText(row).toStdString();
    }
    find<QCheckBox>(u"mergeMedia"_s)->click();
    EXPECT_TRUE(settings.dispatcher().mergeMedia());
}

TEST_F(MarlinControllerTest, AnAddedSubtitleFileHasALanguage)
{
    QWidget sounds, subtitles;
    TrackOptions options(new QVBoxLayout(&sounds), new QVBoxLayout(&subtitles));
    TranscodePlan plan;
    plan.sources = {u"/a/film.mp4"_s};
    plan.externalSubtitles = {subtitleFile(u"/a/film.ger.srt"_s)};
    options.show(plan, {MediaInformation()}, u"en"_s);
    auto *box = subtitles.findChild<QComboBox *>(u"subtitleFileLanguage0"_s);
    ASSERT_TRUE(box);
    EXPECT_EQ(box->currentText(), u"German"_s);
    QObject::connect(&options, &TrackOptions::changed, box, [&](const auto &change) { change(plan); });
    emit box->activated(box->findText(u"French"_s));
    EXPECT_EQ(plan.externalSubtitles.first().language, u"fr"_s);
}

TEST_F(MarlinControllerTest, WhatIsChosenForAllIsThereAgain)
{
    QLineEdit *name = find<QLineEdit>(u"namePattern"_s);
    name->setText(u"{name} small"_s);
    emit name->textEdited(name->text());
    const std::pair<QString, double> ofFilms[] = {
        {u"speedFactor"_s, 2}, {u"volume"_s, 6}, {u"brightness"_s, 0.5}, {u"fadeIn"_s, 3}};
    QList<double> usual;
    for (const auto &[option, value] : ofFilms) {
        usual.append(find<QDoubleSpinBox>(option)->value());
        find<QDoubleSpinBox>(option)->setValue(value);
    }
    emit find<QComboBox>(u"folderBox"_s)->activated(1);
    start();
    EXPECT_EQ(find<QLineEdit>(u"namePattern"_s)->text(), u"{name} small");
    EXPECT_EQ(find<QComboBox>(u"folderBox"_s)->currentIndex(), 1);
    for (qsizetype i = 0; i < usual.size(); ++i)
        EXPECT_EQ(find<QDoubleSpinBox>(ofFilms[i].first)->value(), usual[i]) << "changes the film";
    foundation::NotificationCenter::defaultCenter().postNotificationName(keyResetProfilesNotification.toString());
    start();
    EXPECT_EQ(find<QLineEdit>(u"namePattern"_s)->text(), u"");
}

TEST_F(MarlinControllerTest, OneTrackOfSubtitlesIsBurntIn)
{
    const QString film = settings.path(u"film.mkv"_s), text = settings.path(u"a.srt"_s);
    test::writeFile(text, "1\n00:00:00,100 --> 00:00:01,000\na\n\n");
    settings.makeClip(film, QLatin1StringView(test::shortVideo) + " -i %1 -i %1 -map 0 -map 1 -map 2 "_L1.arg(text) +
                                "-metadata:s:s:0 language=ger -metadata:s:s:1 language=jpn"_L1);
    open({film});
    ASSERT_TRUE(isIn(0, JobState::Ready));
    find<JobListView>(u"jobList"_s)->select(idAt(0));
    wait();
    for (const auto language : {"German"_L1, "Japanese"_L1}) {
        for (QComboBox *box : controller->view()->findChildren<QComboBox *>()) {
            if (box->accessibleName().contains(language))
                emit box->activated(int(TranscodePlan::SubtitleUse::Burn));
        }
        wait();
    }
    using enum TranscodePlan::SubtitleUse;
    EXPECT_EQ(planAt(0).subtitles, (QHash<int, TranscodePlan::SubtitleUse>{{2, Burn}})) << "the other is a track again";
}

TEST_F(MarlinControllerTest, FilesAreJoinedWhereTheSettingsWantIt)
{
    open({clip(u"a.mkv"_s), clip(u"b.mkv"_s)});
    ASSERT_TRUE(isIn(0, JobState::Ready) && isIn(1, JobState::Ready));
    settings.dispatcher().setMergeMedia(true);
    choose(u"mkv-copy"_s);
    TranscodePlan cut = planAt(0);
    cut.pieces = {{.start = 0, .end = 0.5}};
    queue().change(idAt(0), [&](JobRecord &record) { setPlan(record, cut); });
    Conversions conversions(queue(), settings.configure().value(moduleSettingKey.toString()), defaults);
    QString obstacle;
    EXPECT_FALSE(conversions.start(&obstacle));
    EXPECT_TRUE(obstacle.contains(u"cut")) << "no piece is lost without a word";
    cut.pieces.clear();
    queue().change(idAt(0), [&](JobRecord &record) { setPlan(record, cut); });
    convert();
    ASSERT_EQ(queue().order(module).size(), 1);
    ASSERT_TRUE(isIn(0, JobState::Done)) << recordAt(0).outcome.details.toStdString();
    EXPECT_EQ(planAt(0).sources.size(), 2);
    EXPECT_EQ(settings.outputs(), QStringList{u"a.mkv"_s});
}

TEST_F(MarlinControllerTest, AMissingFolderStartsNothing)
{
    open({clip(u"a.mkv"_s)});
    ASSERT_TRUE(isIn(0, JobState::Ready));
    QDir(settings.folder()).removeRecursively();
    Conversions conversions(queue(), settings.configure().value(moduleSettingKey.toString()), defaults);
    QString obstacle;
    EXPECT_FALSE(conversions.start(&obstacle));
    EXPECT_FALSE(obstacle.isEmpty());
    EXPECT_EQ(recordAt(0).state, JobState::Ready);
}

}  // namespace kestrel
