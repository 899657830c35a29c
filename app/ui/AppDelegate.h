#pragma once

#include "AppController.h"
#include "MainMenu.h"
#include "foundation/Fetch.h"
#include "tarnwell/AppWndTRButtonConfig.h"
#include "tarnwell/WebPages.h"

#include <QDate>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace kestrel {

/// Broadcast, without an object, when the user has confirmed to reset the conversion profiles; the modules own them.
inline constexpr QStringView keyResetProfilesNotification = u"keyResetProfilesNotification";

class LoggerWatcherTask;
class UPParser;
class UpgradeWindowController;
struct UpdateContext;

/// The application's delegate: owns main window, menus and module host, adds the shell's own menu entries, and carries
/// launch and termination. Main thread only.
class AppDelegate : public QObject, public tarnwell::WebLinkDelegate {
    Q_OBJECT
public:
    /// What the update check gets from outside. `fetch` is called on background threads.
    struct UpdateSources {
        foundation::Fetch fetch;
        std::function<QDate()> today;
        std::function<quint32()> draw;  ///< a random number, uniform over its 32 bits
    };

    struct Surroundings {
        JKestrelSetting &setting;
        foundation::UserDefaults &defaults;
        ModuleFactories modules;
        PresentedWindows windows;
        std::function<void()> terminate;  ///< ends the application after the present event
        /// Starts a program that lives on by itself; false where it cannot be started.
        std::function<bool(const QString &program, const QStringList &arguments)> startProcess;
        UpdateSources updates;
    };

    /// What is referred to in `surroundings` outlives the delegate. The delegate itself outlives its background jobs:
    /// whoever takes it down after a launch waits for them first (`queue::finishGlobal`).
    explicit AppDelegate(Surroundings surroundings);
    ~AppDelegate() override;

    tarnwell::TitledWindow *window() const { return m_window.get(); }
    AppController *appController() const { return m_appController.get(); }
    MainMenu &mainMenu() { return m_mainMenu; }
    /// The update descriptor of this run; null until it has been fetched, and where that failed.
    const std::shared_ptr<const UPParser> &upConfigure() const { return m_upConfigure; }
    void setUpConfigure(std::shared_ptr<const UPParser> descriptor) { m_upConfigure = std::move(descriptor); }

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

    /// Shows this run's log in the log viewer, unless one is open already.
    void showApplicationLog();
    /// Null unless the log viewer runs, or is being started.
    std::shared_ptr<LoggerWatcherTask> loggerWatcherTask() const;
    /// Opens a message to the support with a copy of the previous run's log.
    void sendBugTypeEmail();
    /// Offers that after a run that did not end in order, and marks this one as under way.
    void checkBugReportFlagWhenLaunch();

    QString traceSuffix(const QString &tag) const override;
    QString phpRedirectLink(const QString &fui, const QString &jump) const override;

    /// Fetches the descriptor and shows the update window, a promotion, or nothing. Called once a launch, on a
    /// background thread.
    void checkUpgradesAutomatically();
    /// Opens the update window, which makes a check of its own.
    void onCheckUpdateAction();

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
    void save();
    void setNotSafeTerminate(bool isNotSafe);
    UpdateContext updateContext() const;
    void showWhatIsDue(const std::shared_ptr<const UPParser> &descriptor, const QString &url);
    void runUpgradeWindow(const QString &url, const std::function<void(UpgradeWindowController &)> &show);
    void fetchPromotion(const std::shared_ptr<const UPParser> &descriptor, const QString &today);

    Surroundings m_surroundings;
    std::unique_ptr<tarnwell::TitledWindow> m_window;
    MainMenu m_mainMenu;
    std::unique_ptr<AppController> m_appController;
    std::shared_ptr<const UPParser> m_upConfigure;
    UpgradeWindowController *m_upgradeWindow = nullptr;      ///< the one that is shown
    std::shared_ptr<LoggerWatcherTask> m_loggerWatcherTask;  ///< the latest
    bool m_hasTerminated = false;
    QTimer m_sessionEnd;  ///< active from the announcement of the session's end until that is overdue
};

}  // namespace kestrel
