#pragma once

#include "AppController.h"
#include "MainMenu.h"
#include "WebPages.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace kestrel {

/// Broadcast, without an object, when the user has confirmed to reset the conversion profiles; the modules own them.
inline constexpr QStringView keyResetProfilesNotification = u"keyResetProfilesNotification";

/// Titles and addresses of the Help menu's support entries, as the update descriptor names them.
struct SupportLinks {
    QString dlSupportLinkTitleReg;
    QString dlSupportLinkURLReg;
    QString dl300PlusTitleReg;
    QString dl300PlusURLReg;
};

/// The application's delegate: owns main window, menus and module host, adds the shell's own menu entries, and carries
/// launch and termination. Main thread only.
class AppDelegate : public QObject, public tarnwell::WebLinkDelegate {
    Q_OBJECT
public:
    struct Surroundings {
        JKestrelSetting &setting;
        foundation::UserDefaults &defaults;
        ModuleFactories modules;
        PresentedWindows windows;
        std::function<void()> terminate;  ///< ends the application after the present event
        /// Starts a program that lives on by itself; false where it cannot be started.
        std::function<bool(const QString &program, const QStringList &arguments)> startProcess;
    };

    /// What is referred to in `surroundings` outlives the delegate.
    explicit AppDelegate(Surroundings surroundings);
    ~AppDelegate() override;

    tarnwell::JTitledWindow *window() const { return m_window.get(); }
    AppController *appController() const { return m_appController.get(); }
    MainMenu &mainMenu() { return m_mainMenu; }
    void setUpConfigure(const SupportLinks &links) { m_upConfigure = links; }

    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    /// Saves everything; may come more than once.
    void applicationWillTerminate();
    /// The desktop's session is about to end. Where it is not after all, the run goes on.
    void sessionWillEnd();
    /// Another process was started with these files and has handed them over.
    void startedAgain(const QStringList &files);

    void onQuitAction();
    void onAppLanguageChanged(int tag);
    void setupTipMenu();
    void showApplicationTip();
    void resetProfiles();
    void onPreferencesAction();
    void showHelp();
    void checkBugReportFlagWhenLaunch();

    QString traceSuffix(const QString &tag) const override;
    QString phpRedirectLink(const QString &fui, const QString &jump) const override;

    // Null until the update descriptor has been read.
    QString titleOfSupportField() const { return supportLink(&SupportLinks::dlSupportLinkTitleReg); }
    QString URLOfSupportField() const { return supportLink(&SupportLinks::dlSupportLinkURLReg); }
    QString titleOf300PlusSupportField() const { return supportLink(&SupportLinks::dl300PlusTitleReg); }
    QString URLOf300PlusSupportField() const { return supportLink(&SupportLinks::dl300PlusURLReg); }

private:
    void makeStandardMenus();
    void appendNewMenuItems();
    void setupLanuageMenu();
    void restartApplication();
    void save();
    QString supportLink(QString SupportLinks::*field) const;

    Surroundings m_surroundings;
    std::unique_ptr<tarnwell::JTitledWindow> m_window;
    MainMenu m_mainMenu;
    std::unique_ptr<AppController> m_appController;
    std::optional<SupportLinks> m_upConfigure;
};

}  // namespace kestrel
