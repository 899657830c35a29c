#include "AppDelegate.h"

#include "Alerts.h"
#include "JKestrelSetting.h"
#include "JTitledWindow.h"
#include "NotificationCenter.h"
#include "ProductFolder.h"
#include "RecordingModule.h"
#include "TestEnvironment.h"
#include "UserDefaults.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

struct ScriptedPresenter final : tarnwell::AlertPresenter {
    tarnwell::AlertAnswer runModal(const tarnwell::Alert &alert) override
    {
        shown.append(alert);
        return answer;
    }
    QList<tarnwell::Alert> shown;
    tarnwell::AlertAnswer answer = tarnwell::AlertAnswer::Default;
};

class AppDelegateTest : public testing::Test {
protected:
    AppDelegateTest()
    {
        m_defaults.registerDefaults({{u"kAppCustomizeLanguage"_s, u"Default"_s}});
        m_delegate = std::make_unique<AppDelegate>(AppDelegate::Surroundings{
            .setting = m_setting,
            .defaults = m_defaults,
            .modules = {.converter =
                            [this](const ModuleConfigure &) {
                                return std::make_unique<test::EagerModule>(u"video"_s, QSize(300, 200), m_events);
                            }},
            .windows = {},
            .terminate = [this] { m_events.append(u"terminate"_s); },
            .startProcess =
                [this](const QString &program, const QStringList &arguments) {
                    m_events.append(program.section(u'/', -3) + u' ' + arguments.join(u' '));
                    return false;
                }});
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
    test::ProductFolder m_product{test::productInformation()};
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
    JKestrelSetting m_setting{m_defaults};
    QStringList m_events;
    ScriptedPresenter m_alerts;
    tarnwell::Installed<tarnwell::AlertPresenter> m_installedAlerts{m_alerts};
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
    EXPECT_EQ(languages.at(0)->text(), u"Default"_s);
    EXPECT_EQ(languages.at(2)->text(), u"日本語"_s);
    EXPECT_EQ(languages.at(3)->text(), u"Deutsch"_s);
    for (qsizetype i = 0; i < languages.size(); ++i)
        EXPECT_EQ(languages.at(i)->isChecked(), i == 0) << i;
}

TEST_F(AppDelegateTest, an_unknown_stored_language_carries_no_mark)
{
    m_defaults.setObject(u"tlh"_s, u"kAppCustomizeLanguage"_s);
    m_delegate->applicationWillFinishLaunching();
    for (const QAction *item : languageMenu()->actions())
        EXPECT_FALSE(item->isChecked());
}

TEST_F(AppDelegateTest, a_language_is_stored_whatever_the_answer_and_restarts_on_ok)
{
    m_delegate->applicationWillFinishLaunching();
    m_alerts.answer = tarnwell::AlertAnswer::Alternate;
    languageMenu()->actions().at(4)->trigger();
    EXPECT_EQ(m_alerts.shown.constLast(),
              (tarnwell::Alert{u"Are you sure you want to restart the application now?"_s, u"OK"_s, u"Cancel"_s,
                               u"Changes to the languages take effect upon relaunch."_s}));
    EXPECT_EQ(m_defaults.stringForKey(u"kAppCustomizeLanguage"_s), u"fr"_s);
    EXPECT_TRUE(m_events.isEmpty());

    m_alerts.answer = tarnwell::AlertAnswer::Default;
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
        m_delegate.get(), keyResetProfilesNotification.toString(), [&resets](QObject *) { ++resets; });
    m_delegate->resetProfiles();
    m_alerts.answer = tarnwell::AlertAnswer::Alternate;
    m_delegate->resetProfiles();
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(m_alerts.shown.constFirst().message, u"Are you sure you want to reset profile?"_s);
}

TEST_F(AppDelegateTest, the_tip_entry_changes_its_title_each_time)
{
    m_delegate->applicationWillFinishLaunching();
    m_delegate->setupTipMenu();
    for (const QString &expected : {u"closetip"_s, u"showtip"_s, u"closetip"_s}) {
        m_delegate->showApplicationTip();
        EXPECT_EQ(helpTitles().constLast(), expected);
    }
    EXPECT_TRUE(m_events.isEmpty()) << "the tip belongs to the conversion module on screen";
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

TEST_F(AppDelegateTest, support_links_are_empty_until_the_descriptor_is_known)
{
    EXPECT_TRUE(m_delegate->titleOfSupportField().isNull() && m_delegate->URLOf300PlusSupportField().isNull());
    m_delegate->setUpConfigure({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    EXPECT_EQ(m_delegate->titleOfSupportField() + m_delegate->URLOfSupportField() +
                  m_delegate->titleOf300PlusSupportField() + m_delegate->URLOf300PlusSupportField(),
              u"abcd"_s);
}

}  // namespace kestrel
