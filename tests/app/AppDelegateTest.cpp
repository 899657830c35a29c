#include "app/ui/AppDelegate.h"

#include "RecordingModule.h"
#include "app/LoggerWatcherTask.h"
#include "foundation/NotificationCenter.h"
#include "foundation/StandardFolders.h"
#include "foundation/UserDefaults.h"
#include "settings/JKestrelSetting.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/RecordingMailProgram.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class AppDelegateTest : public testing::Test {
protected:
    AppDelegateTest()
    {
        m_defaults.registerDefaults({{u"kAppCustomizeLanguage"_s, u"Default"_s}});
        const auto converter = [this](const ModuleConfigure &) {
            return std::make_unique<test::EagerModule>(u"video"_s, QSize(300, 200), m_events);
        };
        const auto startProcess = [this](const QString &program, const QStringList &arguments) {
            m_events.append(program.section(u'/', -3) + u' ' + arguments.join(u' '));
            return false;
        };
        m_delegate = std::make_unique<AppDelegate>(
            AppDelegate::Surroundings{.setting = m_setting,
                                      .defaults = m_defaults,
                                      .modules = {.converter = converter},
                                      .windows = {},
                                      .terminate = [this] { m_events.append(u"terminate"_s); },
                                      .startProcess = startProcess,
                                      .updates = {.fetch = [](const auto &) { return foundation::FetchResult(); },
                                                  .today = QDate::currentDate,
                                                  .draw = [] { return 0; }}});
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
    test::ProductFolder m_product{test::productInformation({{u"TWSupportEmail"_s, u"help@kite.example"_s}})};
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
    JKestrelSetting m_setting{m_defaults};
    QStringList m_events;
    test::TestDesktop m_desktop;
    std::unique_ptr<AppDelegate> m_delegate;
};

}  // namespace

TEST_F(AppDelegateTest, launch_adds_the_help_entries_and_the_data_folder)
{
    const qsizetype before = help()->actions().size();
    m_delegate->applicationWillFinishLaunching();
    EXPECT_EQ(helpTitles().mid(before),
              (QStringList{u"-"_s, u"App Log"_s, u"Report Bug"_s, u"Reset Profiles"_s, u"Language"_s}));
    EXPECT_TRUE(QDir(qEnvironmentVariable("XDG_DATA_HOME") + u"/Kestrel Converter 4K"_s).exists());

    const QList<QAction *> languages = languageMenu()->actions();
    ASSERT_EQ(languages.size(), 10);
    EXPECT_EQ(languages.at(2)->text(), u"日本語"_s);
    for (qsizetype i = 0; i < languages.size(); ++i)
        EXPECT_EQ(languages.at(i)->isChecked(), i == 0) << i;
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

TEST_F(AppDelegateTest, the_unclean_exit_flag_is_armed_after_launch_and_cleared_at_the_end)
{
    const QString flag = u"KestrelNotSafeTerminate"_s;
    m_delegate->applicationWillFinishLaunching();
    m_delegate->applicationDidFinishLaunching();
    EXPECT_FALSE(m_defaults.boolForKey(flag));
    EXPECT_TRUE(test::waitUntil([&] { return m_defaults.boolForKey(flag); }));
    m_delegate->applicationWillTerminate();
    foundation::UserDefaults read(m_folder.filePath(u"defaults.plist"_s));
    EXPECT_EQ(read.objectForKey(flag), QVariant(false));
    EXPECT_TRUE(m_events.contains(u"video syncSetting"_s));
}

TEST_F(AppDelegateTest, a_report_is_offered_after_an_unclean_exit_only)
{
    const QString flag = u"KestrelNotSafeTerminate"_s;
    const QByteArray formerFolder = qgetenv("TMPDIR");
    const auto restored =
        qScopeGuard([&] { formerFolder.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", formerFolder); });
    qputenv("TMPDIR", m_folder.path().toUtf8());
    QFile precious(m_folder.filePath(u"precious"_s));
    ASSERT_TRUE(precious.open(QIODevice::WriteOnly));
    const QString copy = m_folder.filePath(u"kestrel-previous.log"_s);
    const struct {
        const char *name;
        bool wasUnclean;
        tarnwell::AlertAnswer answer;
        qsizetype alerts;
        bool sends, keepsLog;
    } rows[] = {{"orderly", false, tarnwell::AlertAnswer::Default, 0, false, true},
                {"send", true, tarnwell::AlertAnswer::Default, 1, true, true},
                {"cancel", true, tarnwell::AlertAnswer::Alternate, 1, false, false},
                {"end of the application", true, tarnwell::AlertAnswer::None, 1, false, true}};
    for (const auto &[name, wasUnclean, answer, alerts, sends, keepsLog] : rows) {
        SCOPED_TRACE(name);
        const QTemporaryDir logs;
        tarnwell::Log(logs.path()).append(u"the run before"_s);
        tarnwell::Log log(logs.path());
        const tarnwell::Installed<tarnwell::Log> installed(log);
        QFile::remove(copy);
        QFile::link(precious.fileName(), copy);
        test::RecordingMailProgram mail;
        m_desktop.alerts.clear();
        m_desktop.answer = answer;
        m_defaults.setObject(wasUnclean, flag);
        m_delegate->checkBugReportFlagWhenLaunch();
        EXPECT_EQ(m_desktop.alerts.size(), alerts);
        EXPECT_TRUE(m_defaults.boolForKey(flag));
        EXPECT_EQ(QFile::exists(log.previousPath()), keepsLog);
        EXPECT_EQ(QFileInfo(copy).isSymLink(), !sends);
        if (!sends)
            continue;
        EXPECT_EQ(m_desktop.alerts[0],
                  (tarnwell::Alert{u"Problem detected in last conversion."_s, u"Send Report"_s, u"Cancel"_s,
                                   u"Would you please send us the Log File to help us fix the issue?"_s}));
        EXPECT_EQ(mail.arguments(), (QStringList{u"--utf8"_s, u"--subject"_s, u"Kestrel Converter 4K (6.2.1)"_s,
                                                 u"--attach"_s, copy, u"help@kite.example"_s}));
        QFile sent(copy);
        EXPECT_TRUE(sent.open(QIODevice::ReadOnly) && sent.readAll().endsWith("the run before\n"));
    }
    EXPECT_EQ(precious.size(), 0) << "a link in the temporary folder was followed";

    // Without a log nothing is attached, and the temporary folder stays as it is.
    test::RecordingMailProgram mail;
    m_delegate->sendBugTypeEmail();
    EXPECT_FALSE(mail.arguments().contains(u"--attach"_s));
    EXPECT_TRUE(precious.exists());
    // A copy that cannot be replaced is somebody else's.
    const QTemporaryDir logs;
    tarnwell::Log(logs.path()).append(u"the run before"_s);
    tarnwell::Log log(logs.path());
    const tarnwell::Installed<tarnwell::Log> installed(log);
    QFile::remove(copy);
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(copy + u"/kept"_s));
    m_delegate->sendBugTypeEmail();
    EXPECT_TRUE(mail.arguments().contains(log.previousPath()));
    EXPECT_TRUE(QFile::exists(copy + u"/kept"_s));

    m_delegate->sessionWillEnd();
    m_defaults.setObject(true, flag);
    m_desktop.answer = tarnwell::AlertAnswer::Alternate;
    m_delegate->checkBugReportFlagWhenLaunch();
    EXPECT_TRUE(QFile::exists(log.previousPath())) << "taken for an answer of the user";
    EXPECT_FALSE(m_defaults.boolForKey(flag)) << "armed while the session ends";
}

TEST_F(AppDelegateTest, an_end_that_could_not_save_is_told_and_is_no_crash)
{
    const QString flag = u"KestrelNotSafeTerminate"_s;
    const QString obstacle = m_folder.filePath(u"defaults.plist"_s);
    ASSERT_TRUE(QDir().mkpath(obstacle));
    m_defaults.setObject(true, flag);
    QDir().mkpath(foundation::stateDirectory() + u'/' + tarnwell::GetApplicationName());
    m_delegate->applicationWillTerminate();
    QDir().rmdir(obstacle);

    m_defaults.setObject(true, flag);  // as the file still has it
    m_delegate->checkBugReportFlagWhenLaunch();
    ASSERT_EQ(m_desktop.alerts.size(), 1);
    EXPECT_EQ(m_desktop.alerts[0].message, u"Your settings could not be saved when Kestrel was last quit."_s);
    EXPECT_TRUE(m_defaults.boolForKey(flag));
    m_delegate->checkBugReportFlagWhenLaunch();
    ASSERT_EQ(m_desktop.alerts.size(), 2) << "told once";
    EXPECT_EQ(m_desktop.alerts[1].message, u"Problem detected in last conversion."_s);
}

TEST_F(AppDelegateTest, one_log_viewer_at_a_time_until_the_end)
{
    const auto isOver = [this] { return !m_delegate->loggerWatcherTask(); };
    m_delegate->showApplicationLog();
    EXPECT_TRUE(test::waitUntil(isOver)) << "a viewer that is not there";

    QFile viewer(m_product.contentsPath(u"Resources/KestrelLogWatcher.app/Contents/MacOS/KestrelLogWatcher"_s));
    ASSERT_TRUE(viewer.open(QIODevice::WriteOnly));
    viewer.write(
        "#!/bin/sh\ntrap '' TERM\necho started >>\"$0.log\"\nexec 3<&0\n"
        "cat <&3 >>\"$0.asked\" &\nwhile :; do sleep 0.1; done\n");
    viewer.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    viewer.close();
    const auto starts = [&viewer] {
        return QFileInfo(viewer.fileName() + u".log"_s).size() / qint64(sizeof "started");
    };
    m_delegate->showApplicationLog();
    m_delegate->showApplicationLog();
    ASSERT_TRUE(test::waitUntil([&] { return starts() == 1; }));
    m_delegate->showApplicationLog();
    EXPECT_FALSE(isOver());
    EXPECT_TRUE(test::waitUntil([&] { return QFileInfo(viewer.fileName() + u".asked"_s).size() > 0; }))
        << "the one that runs was not asked to the front";
    m_delegate->applicationWillTerminate();
    EXPECT_TRUE(test::waitUntil(isOver)) << "a viewer that does not heed SIGTERM holds the end";
    m_delegate->showApplicationLog();
    EXPECT_TRUE(isOver());
    EXPECT_EQ(starts(), 1);

    LoggerWatcherTask early;
    early.terminate();
    early.run(viewer.fileName(), {});
    EXPECT_TRUE(early.hasEnded());
    EXPECT_EQ(starts(), 1) << "started after the end";
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

}  // namespace kestrel
