#include "app/ui/AppController.h"

#include "RecordingModule.h"
#include "app/ProgramJobs.h"
#include "app/ui/_JKestrelWindow.h"
#include "foundation/UserDefaults.h"
#include "jobs/JobStore.h"
#include "settings/JKestrelSetting.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/ui/LWindowTransitionAnimator.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class AppControllerTest : public testing::Test {
protected:
    template <class Module>
    ModuleFactory factory(const QString &name, const QSize &viewSize)
    {
        return [this, name, viewSize](const ModuleConfigure &configure, ModuleServices &) {
            const auto dispatcher = configure.value(moduleSettingKey.toString());
            m_messages.append(
                u"%1 made with %2 of %3"_s.arg(name).arg(dispatcher->dispatchType()).arg(configure.size()));
            return std::make_unique<Module>(name, viewSize, m_messages);
        };
    }

    std::unique_ptr<AppController> makeHost()
    {
        return std::make_unique<AppController>(AppController::Surroundings{
            .mainWindow = m_window,
            .setting = m_setting,
            .defaults = m_defaults,
            .modules = {{ModuleSettingVideo, factory<test::EagerModule>(u"video"_s, {640, 480})},
                        {ModuleSettingDVD, factory<test::EagerModule>(u"dvd"_s, {900, 600})},
                        {ModuleSettingDownload, factory<test::EagerModule>(u"downloader"_s, {700, 500})},
                        {ModuleSettingRecord, factory<test::EagerModule>(u"recorder"_s, {500, 400})}},
            .services = m_jobs,
            .windows = {.setting = [this](QWidget *over) { m_presentedOver = over; },
                        .about = {},
                        .storeEdits = [this] { m_messages.append(u"storeEdits"_s); }},
            .terminate = [this] { m_messages.append(u"terminate"_s); },
            .stopJobs = [this] { return m_mayStopJobs; }});
    }

    /// What happened since it was last asked.
    QStringList messages() { return std::exchange(m_messages, {}); }
    static bool settled() { return !tarnwell::LWindowTransitionAnimator::sharedAnimator().isRunning(); }

    QTemporaryDir m_folder;
    test::ProductFolder m_product{test::productInformation()};
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
    JKestrelSetting m_setting{m_defaults};
    tarnwell::TitledWindow m_window;
    QStringList m_messages;
    QWidget *m_presentedOver = nullptr;
    bool m_mayStopJobs = true;
    ProgramJobs m_jobs{[] { return nullptr; }, {}};
};

/// A host that has been launched, with its launch messages taken.
class LaunchedHostTest : public AppControllerTest {
protected:
    LaunchedHostTest()
    {
        m_host->applicationWillFinishLaunching();
        m_host->applicationDidFinishLaunching();
        messages();
    }
    tarnwell::TitledWindow &home() { return *m_host->menuController()->window(); }
    void open(void (AppController::*opener)())
    {
        (m_host.get()->*opener)();
        ASSERT_TRUE(test::waitUntil(settled));
    }

    std::unique_ptr<AppController> m_host = makeHost();
};

}  // namespace

TEST_F(AppControllerTest, launch_makes_the_modules_in_order_and_remembers_their_sizes)
{
    const auto host = makeHost();
    host->applicationWillFinishLaunching();
    EXPECT_EQ(messages(), (QStringList{u"video made with 0 of 1"_s, u"dvd made with 1 of 1"_s,
                                       u"downloader made with 2 of 1"_s, u"recorder made with 3 of 1"_s}));
    EXPECT_EQ(host->convertControllerOriginalSize(), (foundation::Size{640, 480}));
    EXPECT_EQ(host->airPlayControllerOriginalSize(), foundation::Size());
    EXPECT_EQ(m_setting.currMode(), u"menu"_s);
    EXPECT_FALSE(host->menuController()->window()->isVisible());

    host->applicationDidFinishLaunching();
    EXPECT_TRUE(host->menuController()->window()->isVisible() && !m_window.isVisible());
    EXPECT_FALSE(host->windowShouldClose());
}

TEST_F(AppControllerTest, missing_modules_and_views_leave_the_rest_working)
{
    AppController host({.mainWindow = m_window,
                        .setting = m_setting,
                        .defaults = m_defaults,
                        .modules = {{ModuleSettingDVD, [](const auto &, auto &) { return nullptr; }},
                                    {ModuleSettingDownload, factory<test::RecordingModule>(u"downloader"_s, QSize())}},
                        .services = m_jobs,
                        .windows = {},
                        .terminate = [] {},
                        .stopJobs = [] { return true; }});
    host.applicationWillFinishLaunching();
    host.applicationDidFinishLaunching();
    host.onShowMarlin();
    host.onShowHeron();
    EXPECT_EQ(host.currentController(), nullptr);
    EXPECT_EQ(m_setting.currMode(), u"menu"_s);
    host.onShowPetrel();
    EXPECT_EQ(host.currentController(), host.downloaderController());
    EXPECT_EQ(m_window.frame().size.height, 24);
    host.applicationWillTerminate();
}

TEST_F(LaunchedHostTest, opening_swaps_the_view_into_a_window_around_it)
{
    home().setFrame({10, 200, 780, 460});
    open(&AppController::onShowMarlin);
    EXPECT_EQ(messages(), QStringList(u"video markAppear"_s));
    EXPECT_EQ(m_window.frame(), foundation::Rect(80, 190, 640, 504));
    EXPECT_EQ(m_window.windowTitle(), u"Kestrel 4K - video"_s);
    EXPECT_TRUE(m_window.isVisible() && !home().isVisible());
    QWidget *view = m_host->converterController()->view();
    EXPECT_EQ(view->parentWidget(), m_window.contentView());

    view->resize(300, 300);
    open(&AppController::onShowMarlin);
    EXPECT_EQ(messages(), (QStringList{u"video markAppear"_s, u"video onViewDidDisappear"_s}));
    EXPECT_TRUE(view->size() == QSize(640, 480) && view->isVisible());

    open(&AppController::onShowHeron);
    EXPECT_EQ(messages(), (QStringList{u"dvd markAppear"_s, u"video onViewDidDisappear"_s}));
    EXPECT_EQ(view->parentWidget(), nullptr);
}

TEST_F(LaunchedHostTest, a_window_comes_fully_into_view_and_its_content_is_as_large)
{
    ASSERT_EQ(home().screen()->availableGeometry(), QRect(0, 0, 800, 800));
    const struct {
        foundation::Rect home;
        void (AppController::*opener)();
        ModuleController *(AppController::*module)() const;
        foundation::Rect expected;
    } rows[] = {
        {{10, 340, 780, 460},
         &AppController::onShowMarlin,
         &AppController::converterController,
         {80, 296, 640, 504}},  // at the upper edge
        {{-300, -200, 780, 460}, &AppController::onShowMarlin, &AppController::converterController, {0, 0, 640, 504}},
        {{10, 100, 780, 460},
         &AppController::onShowHeron,
         &AppController::ripperController,
         {0, 30, 800, 624}}};  // wider than the screen
    for (const auto &row : rows) {
        home().setFrame(row.home);
        open(row.opener);
        EXPECT_EQ(m_window.frame(), row.expected);
        const QWidget *view = ((*m_host).*row.module)()->view();
        EXPECT_EQ(view->geometry(), m_window.contentView()->rect());
        EXPECT_TRUE(test::waitUntil([&] { return QApplication::focusWidget() == view; })) << "shortcuts need it";
        m_window.setGeometry(0, 0, 700, 700);  // as tiling does
        EXPECT_TRUE(test::waitUntil([&] { return view->size() == QSize(700, 676); }));
        home().show();
    }
}

TEST_F(LaunchedHostTest, each_opener_sets_its_mode_and_leaving_sets_menu)
{
    const struct {
        void (AppController::*opener)();
        QString mode;
        QStringList messages;
    } rows[] = {{&AppController::onShowMarlin, u"video"_s, {}},
                {&AppController::onShowHeron, u"dvd"_s, {}},
                {&AppController::onShowPetrel, u"downloader"_s, {u"downloader checkCoreUpdateInBackground"_s}},
                {&AppController::onShowRecorder, u"recorder"_s, {u"recorder startRecorderSession"_s}}};
    for (const auto &row : rows) {
        SCOPED_TRACE(qPrintable(row.mode));
        open(row.opener);
        EXPECT_EQ(m_setting.currMode(), row.mode);
        QStringList got = messages();
        got.removeIf([](const QString &message) { return message.endsWith(u"onViewDidDisappear"_s); });
        EXPECT_EQ(got, QStringList(row.mode + u" markAppear"_s) + row.messages);
        m_host->closeSubWindowAction();
        EXPECT_TRUE(messages().isEmpty()) << "the action belongs to a later turn";
        ASSERT_TRUE(test::waitUntil([this] { return home().isVisible() && settled(); }));
        EXPECT_EQ(messages(), QStringList(row.mode + u" doBackAction"_s));
        EXPECT_TRUE(!m_window.isVisible() && m_setting.currMode() == u"menu"_s);
    }
}

TEST_F(LaunchedHostTest, the_recorder_starts_when_the_transition_has_ended)
{
    m_host->onShowRecorder();
    EXPECT_EQ(messages(), QStringList(u"recorder markAppear"_s));
    ASSERT_TRUE(test::waitUntil(settled));
    EXPECT_EQ(messages(), QStringList(u"recorder startRecorderSession"_s));
}

TEST_F(LaunchedHostTest, settings_open_over_the_visible_window_which_closes_as_its_content_allows)
{
    m_host->showSetting();
    EXPECT_EQ(m_presentedOver, &home());
    open(&AppController::onShowHeron);
    m_host->onShowSetting();
    EXPECT_EQ(m_presentedOver, &m_window);
    auto *module = dynamic_cast<test::RecordingModule *>(m_host->ripperController());
    m_window.close();
    EXPECT_TRUE(m_window.isVisible());
    module->m_mayTerminate = true;
    m_mayStopJobs = false;
    m_window.close();
    EXPECT_TRUE(m_window.isVisible());
    m_mayStopJobs = true;
    m_window.close();
    EXPECT_FALSE(m_window.isVisible());
    messages();
    home().show();
    m_mayStopJobs = false;
    home().close();
    EXPECT_TRUE(messages().isEmpty());
    m_mayStopJobs = true;
    home().close();
    EXPECT_EQ(messages(), QStringList(u"terminate"_s));
}

TEST_F(LaunchedHostTest, tips_and_files_reach_the_conversion_module)
{
    m_host->showProperTip();
    EXPECT_TRUE(messages().isEmpty());
    m_host->openFiles({u"/a.mov"_s});
    ASSERT_TRUE(test::waitUntil(settled));
    m_host->openFiles({u"/b.mov"_s, u"/c.mov"_s});
    m_host->showProperTip();
    EXPECT_EQ(messages(), (QStringList{u"video markAppear"_s, u"video openFiles /a.mov"_s,
                                       u"video openFiles /b.mov /c.mov"_s, u"video showFirstOpenAppTip"_s}));
}

TEST_F(LaunchedHostTest, terminating_saves_modules_then_settings)
{
    dynamic_cast<test::EagerModule *>(m_host->ripperController())->m_onSync = [this] {
        m_setting.dvd()->setPrefferLanguage(u"it"_s);
    };
    m_host->applicationWillTerminate();
    EXPECT_EQ(messages(), (QStringList{u"storeEdits"_s, u"video syncSetting"_s, u"dvd syncSetting"_s}));
    foundation::UserDefaults read(m_folder.filePath(u"defaults.plist"_s));
    EXPECT_EQ(JKestrelSetting(read).dvd()->prefferLanguage(), u"it"_s);
}

TEST_F(AppControllerTest, a_new_version_is_recorded_and_announced_once)
{
    const test::TestDesktop desktop;
    m_defaults.setObject(u"6.2.0"_s, u"InstalledVersion"_s);
    for (int launch = 0; launch < 2; ++launch) {
        JKestrelSetting setting(m_defaults);
        AppController host({m_window, setting, m_defaults, {}, m_jobs, {}, [] {}, [] { return true; }});
        host.applicationWillFinishLaunching();
        host.applicationDidFinishLaunching();
        EXPECT_EQ(setting.firstRun(), launch == 0);
        EXPECT_EQ(setting.previousVersion(), launch == 0 ? u"6.2.0"_s : QString());
    }
    EXPECT_EQ(desktop.opened, QList<QUrl>{QUrl(u"https://www.tarnwell.example/welcome/?a=1"_s)});
    EXPECT_EQ(m_defaults.stringForKey(u"InstalledVersion"_s), u"6.2.1"_s);
}

}  // namespace kestrel
