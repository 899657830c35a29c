#pragma once

#include "AppController.h"
#include "LaunchCheck.h"
#include "MainMenu.h"
#include "ShutdownPanel.h"
#include "app/ProblemReports.h"
#include "foundation/Queues.h"
#include "tarnwell/AppWndTRButtonConfig.h"
#include "tarnwell/WebPages.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace kestrel {

/// The application's delegate: owns main window, menus and module host, adds the shell's own menu entries, and carries
/// launch and termination. Main thread only.
class AppDelegate : public QObject, public tarnwell::WebLinkDelegate {
    Q_OBJECT
public:
    struct Surroundings {
        JKestrelSetting &setting;
        foundation::UserDefaults &defaults;
        ProgramJobs &jobs;
        ModuleFactories modules;
        PresentedWindows windows;
        std::function<void()> terminate;  ///< ends the application after the present event
        /// Starts a program that lives on by itself; false where it cannot be started.
        std::function<bool(const QString &program, const QStringList &arguments)> startProcess;
        LaunchCheck::Sources updates;
        /// Runs a job on the main thread, no sooner than the delay from now.
        std::function<void(std::chrono::milliseconds, std::function<void()>)> later = foundation::queue::afterMain;
    };

    /// What is referred to in `surroundings` outlives the delegate. The delegate itself outlives its background jobs:
    /// whoever takes it down after a launch waits for them first (`queue::finishGlobal`).
    explicit AppDelegate(Surroundings surroundings);
    ~AppDelegate() override;

    tarnwell::TitledWindow *window() const { return m_window.get(); }
    AppController *appController() const { return m_appController.get(); }
    MainMenu &mainMenu() { return m_mainMenu; }
    const ShutdownPanel &shutdownPanel() const { return m_shutdownPanel; }
    /// The update descriptor of this run; null until it has been fetched, and where that failed.
    const std::shared_ptr<const UPParser> &upConfigure() const { return m_launchCheck.descriptor(); }
    void setUpConfigure(std::shared_ptr<const UPParser> descriptor)
    {
        m_launchCheck.setDescriptor(std::move(descriptor));
    }

    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    /// Saves everything; may come more than once.
    void applicationWillTerminate();
    /// The desktop's session is about to end. Where it is not after all, the run goes on.
    void sessionWillEnd();
    /// The process ends at once and with its display: saves everything that needs no window.
    void displayWasLost();
    /// Another process was started with these files and has handed them over.
    void startedAgain(const QStringList &files);

    void onQuitAction();
    void onAppLanguageChanged(int tag);
    void setupTipMenu();
    void showApplicationTip();
    void resetProfiles();
    void onPreferencesAction();
    void showHelp();

    void showApplicationLog() { m_reports.showLog(); }
    std::shared_ptr<LoggerWatcherTask> loggerWatcherTask() const { return m_reports.viewer(); }
    void sendBugTypeEmail() { m_reports.sendPreviousLog(); }
    void checkBugReportFlagWhenLaunch() { m_reports.checkAtLaunch(); }

    QString traceSuffix(const QString &tag) const override;
    QString phpRedirectLink(const QString &fui, const QString &jump) const override;

    void checkUpgradesAutomatically() { m_launchCheck.run(); }  ///< on a background thread
    void onCheckUpdateAction() { m_launchCheck.showUpdateWindow(); }

    // Null while there is no descriptor.
    QString titleOfSupportField() const;
    QString URLOfSupportField() const;
    QString titleOf300PlusSupportField() const;
    QString URLOf300PlusSupportField() const;
    std::optional<tarnwell::AppWndTRButtonConfig> topRightWndBtnConfig() const;

private:
    void makeStandardMenus();
    void appendNewMenuItems();
    void setupLanuageMenu();
    void restartApplication();
    bool stopJobs(const QString &stopTitle);
    void showModuleOfJobs(const QString &jobs);
    void save();

    Surroundings m_surroundings;
    std::unique_ptr<tarnwell::TitledWindow> m_window;
    MainMenu m_mainMenu;
    std::unique_ptr<AppController> m_appController;
    ProblemReports m_reports;
    LaunchCheck m_launchCheck;
    ShutdownPanel m_shutdownPanel;
    bool m_hasTerminated = false;
};

}  // namespace kestrel
