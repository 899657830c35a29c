#include "app/ui/AppDelegate.h"

#include "../jobs/ScriptedJobs.h"
#include "RecordingModule.h"
#include "app/ProgramJobs.h"
#include "app/ui/_JKestrelWindow.h"
#include "foundation/NotificationCenter.h"
#include "foundation/StandardFolders.h"
#include "foundation/UserDefaults.h"
#include "jobs/JobStore.h"
#include "settings/JKestrelSetting.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/AlertPanel.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"
#include "update/UPParser.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

class AppDelegateTest : public testing::Test {
protected:
    AppDelegateTest()
    {
        m_defaults.registerDefaults({{u"kAppCustomizeLanguage"_s, u"Default"_s}});
        const auto converter = [this](const ModuleConfigure &, ModuleServices &) {
            return std::make_unique<test::EagerModule>(u"video"_s, QSize(300, 200), m_events);
        };
        const auto recorder = [this](const ModuleConfigure &, ModuleServices &) {
            auto module = std::make_unique<test::RecordingModule>(u"recorder"_s, QSize(), m_events);
            m_recorder = module.get();
            m_recorder->m_mayTerminate = true;
            return module;
        };
        const auto startProcess = [this](const QString &program, const QStringList &arguments) {
            m_events.append(program.section(u'/', -3) + u' ' + arguments.join(u' '));
            return false;
        };
        m_delegate = std::make_unique<AppDelegate>(
            AppDelegate::Surroundings{.setting = m_setting,
                                      .defaults = m_defaults,
                                      .jobs = m_jobs,
                                      .modules = {{ModuleSettingVideo, converter}, {ModuleSettingRecord, recorder}},
                                      .windows = {},
                                      .terminate = [this] { m_events.append(u"terminate"_s); },
                                      .startProcess = startProcess,
                                      .updates = {.fetch =
                                                      [this](const auto &) {
                                                          ++m_fetches;
                                                          return foundation::FetchResult();
                                                      },
                                                  .today = QDate::currentDate,
                                                  .draw = [] { return 0; }},
                                      .later = [this](auto delay, const auto &job) { m_later[delay] = job; }});
    }
    JobId startJob()
    {
        m_jobs.queue().setRecipe(u"marlin"_s, &m_recipe);
        const JobId job = m_jobs.queue().add(test::scriptedRecord(u"film.mov"_s));
        m_jobs.queue().start({job});
        return job;
    }
    QMenu *help() { return m_delegate->mainMenu().helpMenu(); }
    QStringList helpTitles()
    {
        QStringList titles;
        for (const QAction *item : help()->actions())
            titles.append(item->isSeparator() ? u"-"_s : item->text());
        return titles;
    }
    QMenu *languageMenu() { return help()->actions().constLast()->menu(); }

    QTemporaryDir m_folder;
    test::ProductFolder m_product{test::productInformation(
        {{u"TWUpdateXMLLink"_s, u"http://127.0.0.1/a"_s}, {u"TWHelpLink"_s, u"https://kite.example/?a=1"_s}})};
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
    JKestrelSetting m_setting{m_defaults};
    QStringList m_events;
    test::RecordingModule *m_recorder = nullptr;
    std::atomic<int> m_fetches = 0;
    std::map<std::chrono::milliseconds, std::function<void()>> m_later;
    test::TestDesktop m_desktop;
    test::ScriptedRecipe m_recipe;
    ProgramJobs m_jobs{[] { return nullptr; }, [](const QString &) { return AfterRun::Wishes(); }};
    std::unique_ptr<AppDelegate> m_delegate;
};

}  // namespace

TEST_F(AppDelegateTest, launch_adds_the_help_entries_and_the_data_folder)
{
    const qsizetype before = help()->actions().size();
    m_defaults.setObject(u"ja"_s, u"kAppCustomizeLanguage"_s);
    m_delegate->applicationWillFinishLaunching();
    EXPECT_EQ(helpTitles().mid(before),
              (QStringList{u"-"_s, u"App Log"_s, u"Report Bug"_s, u"Reset Profiles"_s, u"Language"_s}));
    EXPECT_TRUE(QDir(qEnvironmentVariable("XDG_DATA_HOME") + u"/Kestrel Converter 4K"_s).exists());

    const QList<QAction *> languages = languageMenu()->actions();
    ASSERT_EQ(languages.size(), 10);
    EXPECT_EQ(languages.at(2)->text(), u"日本語"_s);
    for (qsizetype i = 0; i < languages.size(); ++i)
        EXPECT_EQ(languages.at(i)->isChecked(), i == 2) << i;
}

TEST_F(AppDelegateTest, a_language_is_stored_whatever_the_answer_and_restarts_on_ok)
{
    m_delegate->applicationWillFinishLaunching();
    m_desktop.answer = tarnwell::AlertAnswer::Alternate;
    languageMenu()->actions().at(4)->trigger();
    EXPECT_EQ(m_desktop.alerts.constLast(),
              (tarnwell::Alert{u"Are you sure you want to restart the application now?"_s, u"OK"_s, u"Cancel"_s,
                               u"Changes to the languages take effect upon relaunch."_s}));
    EXPECT_EQ(m_defaults.stringForKey(u"kAppCustomizeLanguage"_s), u"fr"_s);
    EXPECT_TRUE(m_events.isEmpty());

    m_desktop.answer = tarnwell::AlertAnswer::Default;
    languageMenu()->actions().at(9)->trigger();
    EXPECT_EQ(m_defaults.stringForKey(u"kAppCustomizeLanguage"_s), u"zh-Hant"_s);
    ASSERT_EQ(m_events.size(), 2) << "a helper that does not start must not keep the application from ending";
    EXPECT_TRUE(m_events.at(0).startsWith(u"Contents/Frameworks/appRelauncher /"_s));
    EXPECT_TRUE(m_events.at(0).endsWith(u' ' + QString::number(QCoreApplication::applicationPid())));
    EXPECT_EQ(m_events.at(1), u"terminate"_s);
}

TEST_F(AppDelegateTest, profiles_are_reset_on_ok_only)
{
    int resets = 0;
    foundation::NotificationCenter::defaultCenter().addObserver(
        m_delegate.get(), keyResetProfilesNotification.toString(), [&resets](const QObject *) { ++resets; });
    m_delegate->resetProfiles();
    m_desktop.answer = tarnwell::AlertAnswer::Alternate;
    m_delegate->resetProfiles();
    EXPECT_EQ(resets, 1);
}

TEST_F(AppDelegateTest, the_help_page_is_asked_for_by_its_tag)
{
    const tarnwell::Installed<tarnwell::WebLinkDelegate> links(*m_delegate);
    help()->actions().constFirst()->trigger();
    EXPECT_EQ(m_desktop.opened, QList{QUrl(u"https://kite.example/?a=1&ttsoft=kt4kmac-6.2.1-help"_s)});
}

TEST_F(AppDelegateTest, after_the_launch_the_flag_is_armed_and_the_server_asked)
{
    const QString flag = u"KestrelNotSafeTerminate"_s;
    m_delegate->applicationWillFinishLaunching();
    m_delegate->applicationDidFinishLaunching();
    EXPECT_EQ(m_later.size(), 2);
    EXPECT_FALSE(m_defaults.boolForKey(flag));
    m_later.at(250ms)();
    EXPECT_TRUE(m_defaults.boolForKey(flag) && m_fetches == 0);
    m_later.at(500ms)();
    foundation::queue::finishGlobal();
    EXPECT_EQ(m_fetches, 1);
    m_delegate->applicationWillTerminate();
    const QString path = m_folder.filePath(u"defaults.plist"_s);
    EXPECT_EQ(foundation::UserDefaults(path).objectForKey(flag), QVariant(false));
    EXPECT_TRUE(m_events.contains(u"video syncSetting"_s));

    ASSERT_TRUE(QFile::remove(path) && QDir().mkpath(path)) << "nothing can be saved there";
    QDir().mkpath(foundation::stateDirectory() + u'/' + tarnwell::GetApplicationName());
    m_defaults.setObject(u"new"_s, u"key"_s);
    m_delegate->applicationWillTerminate();
    ProblemReports(m_defaults).checkAtLaunch();
    EXPECT_EQ(m_desktop.alerts.constLast().message, u"Your settings could not be saved when Kestrel was last quit."_s);
}

TEST_F(AppDelegateTest, running_jobs_are_asked_about_once_whatever_ends_the_program)
{
    m_delegate->applicationWillFinishLaunching();
    m_delegate->applicationDidFinishLaunching();
    const struct {
        const char *name, *stopTitle;
        std::function<void()> end;
    } rows[] = {
        {"quit", "Stop and Quit", [this] { m_delegate->onQuitAction(); }},
        {"close", "Stop and Quit", [this] { m_delegate->appController()->menuController()->window()->close(); }},
        {"language", "Stop and Restart", [this] { m_delegate->onAppLanguageChanged(1); }}};
    for (const auto &[name, stopTitle, end] : rows) {
        SCOPED_TRACE(name);
        const JobId job = startJob();
        m_desktop.alerts.clear();
        m_desktop.answer = tarnwell::AlertAnswer::Default;
        end();
        const tarnwell::Alert alert = m_desktop.alerts.constLast();
        EXPECT_EQ(alert.alternateButton, QString::fromLatin1(stopTitle));
        EXPECT_EQ(alert.answerToEscape, tarnwell::AlertAnswer::Default);
        EXPECT_FALSE(m_events.contains(u"terminate"_s));
        EXPECT_TRUE(m_jobs.hasWork());

        // "OK" to the language's own question, then "Stop …", and the recorder last, before anything is stopped
        for (const bool mayTerminate : {false, true}) {
            m_recorder->m_mayTerminate = mayTerminate;
            m_desktop.answers = {tarnwell::AlertAnswer::Alternate};
            if (QByteArrayView(name) == "language")
                m_desktop.answers.prepend(tarnwell::AlertAnswer::Default);
            m_desktop.alerts.clear();
            end();
            EXPECT_EQ(m_events.contains(u"terminate"_s), mayTerminate);
            EXPECT_TRUE(m_desktop.answers.isEmpty());
        }
        EXPECT_TRUE(test::waitUntil([&] { return m_jobs.queue().record(job)->state == JobState::Interrupted; }));
        m_events.clear();
    }
}

TEST_F(AppDelegateTest, ends_that_come_from_outside_stop_jobs_unasked)
{
    m_delegate->applicationWillFinishLaunching();
    for (const auto end :
         {&AppDelegate::sessionWillEnd, &AppDelegate::displayWasLost, &AppDelegate::applicationWillTerminate}) {
        const JobId job = startJob();
        ((*m_delegate).*end)();
        EXPECT_TRUE(test::waitUntil([&] { return m_jobs.queue().record(job)->state == JobState::Interrupted; }));
    }
    EXPECT_TRUE(m_desktop.alerts.isEmpty());
}

TEST_F(AppDelegateTest, what_follows_the_jobs_is_read_from_the_settings)
{
    m_setting.setOpenFolderWhenDone(false);
    EXPECT_FALSE(wishesOf(m_setting).openFolder || wishesOf(m_setting).shutDown);
    EXPECT_TRUE(wishesOf(m_setting).notify);
    m_setting.setShutdownWhenDone(true);
    m_setting.setNotifyWhenAvailable(false);
    EXPECT_TRUE(wishesOf(m_setting).shutDown);
    EXPECT_FALSE(wishesOf(m_setting).openFolder || wishesOf(m_setting).notify);
}

TEST_F(AppDelegateTest, the_countdown_to_the_end_of_the_machine_is_shown_and_stopped_by_its_button)
{
    m_jobs.queue();
    emit m_jobs.shutdownIn(60);
    const auto *shutdown = m_delegate->shutdownPanel().panel();
    ASSERT_TRUE(shutdown && shutdown->isVisible() && !shutdown->isModal());
    emit m_jobs.shutdownIn(59);
    EXPECT_EQ(shutdown->accessibleName(), u"The computer will shut down in 59 seconds."_s);
    auto *button = shutdown->findChild<QPushButton *>(u"defaultButton"_s);
    EXPECT_TRUE(button->isDefault() && button->text() == u"Don't Shut Down"_s);
    emit m_jobs.shutdownIn(-1);
    EXPECT_EQ(m_delegate->shutdownPanel().panel(), nullptr);
}

TEST_F(AppDelegateTest, quit_waits_while_the_main_window_is_modal)
{
    m_delegate->window()->setWindowModality(Qt::ApplicationModal);
    m_delegate->window()->show();
    m_delegate->onQuitAction();
    EXPECT_TRUE(m_events.isEmpty());
    m_delegate->window()->hide();
    m_delegate->onQuitAction();
    EXPECT_EQ(m_events, QStringList(u"terminate"_s));
}

TEST_F(AppDelegateTest, the_descriptor_is_handed_on)
{
    EXPECT_TRUE(m_delegate->titleOfSupportField().isNull() && !m_delegate->topRightWndBtnConfig());
    const auto link = [](const QString &title) {
        return QVariantMap{{u"en"_s, QVariantMap{{u"Title"_s, title}, {u"URL"_s, u"http://"_s + title}}}};
    };
    const std::pair<QByteArray, QString> rows[] = {
        {R"({"top-right-button": {"name": "plain"}, "top-right-button-v2": {"full": {"name": "full"}}})", u"full"_s},
        {R"({"top-right-button": {"name": "plain"}})", u"plain"_s}};
    for (const auto &[configuration, button] : rows) {
        auto parser = std::make_shared<UPParser>(UpdateReading{u"en"_s, u"1.0"_s});
        parser->parseUpgradeConfig({{u"ADConfigURL"_s, u"http://x"_s},
                                    {u"DownloaderUISupportURLTop"_s, link(u"top"_s)},
                                    {u"DownloaderUISupportURLBottom"_s, link(u"bottom"_s)}},
                                   [&](const QString &) { return AppRMConfig::initWithData(configuration); });
        m_delegate->setUpConfigure(parser);
        EXPECT_EQ(QStringList({m_delegate->titleOfSupportField(), m_delegate->URLOfSupportField(),
                               m_delegate->titleOf300PlusSupportField(), m_delegate->URLOf300PlusSupportField()}),
                  QStringList({u"top"_s, u"http://top"_s, u"bottom"_s, u"http://bottom"_s}));
        ASSERT_TRUE(m_delegate->topRightWndBtnConfig());
        EXPECT_EQ(m_delegate->topRightWndBtnConfig()->dictionary().value(u"name"_s).toString(), button);
    }
}

}  // namespace kestrel
