#pragma once

#include "KestrelController.h"
#include "foundation/Geometry.h"
#include "modules/Module.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace kestrel::foundation {
class UserDefaults;
}
namespace kestrel::tarnwell {
class TitledWindow;
}

namespace kestrel {

class JKestrelSetting;

/// How the host opens the windows that are presented over its own. An empty one stands for a window that this build
/// does not have.
struct PresentedWindows {
    using Presenter = std::function<void(QWidget *overWindow)>;
    Presenter setting = {};
    Presenter about = {};
    /// Stores what is typed into a window that is open, and would be stored when it closes.
    std::function<void()> storeEdits = {};
};

/// Where the main window stands for a module view of `viewSize`, given the home window's frame: centred by the view,
/// with the title bar on top.
foundation::Rect mainWindowFrame(const foundation::Rect &homeFrame, const foundation::Size &viewSize);

/// The module host: makes the home screen and the four modules, swaps a module's view into the main window and back,
/// opens the settings and about windows, saves at the end. Main thread only.
class AppController : public QObject, public AppMainMenuControllerDelegate {
    Q_OBJECT
public:
    struct Surroundings {
        tarnwell::TitledWindow &mainWindow;
        JKestrelSetting &setting;
        foundation::UserDefaults &defaults;
        ModuleFactories modules;
        ModuleServices &services;
        PresentedWindows windows;
        std::function<void()> terminate;  ///< ends the application
        /// Whether no job runs, and the recorder lets the application end, after the user was asked where need be.
        std::function<bool()> stopJobs;
    };

    /// What is referred to in `surroundings` outlives the host.
    explicit AppController(Surroundings surroundings, QObject *parent = nullptr);
    ~AppController() override;

    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    bool applicationWillTerminate();  ///< false where not all settings could be stored

    void showMenuWindow();
    void showMainMenuWindows() { showMenuWindow(); }
    void switchToMenuWindow() { showMenuWindow(); }

    void onShowModule(ModuleSettingKind kind) override;
    void onShowMarlin() override;
    void onShowHeron() override;
    void onShowPetrel() override;
    void onShowRecorder() override;
    void onShowAirPlay() {}
    void onShowSetting() override;
    void onShowAbout() override;
    void showSetting() { onShowSetting(); }
    /// Opens the conversion module, unless it is on screen, and hands it the files.
    void openFiles(const QStringList &paths);
    /// Opens a module, unless it is on screen, and brings it to the front.
    void bringUpModule(ModuleSettingKind kind);
    /// Brings the window that the user works in to the front.
    void raiseVisibleWindow();

    void showProperTip();
    void closeSubWindowAction();
    bool windowShouldClose();
    void subModeWindowWillCloseNotification(const tarnwell::TitledWindow *window);

    tarnwell::TitledWindow *mainWindow() const { return &m_surroundings.mainWindow; }
    KestrelController *menuController() const { return m_menuController.get(); }
    ModuleController *converterController() const { return m_modules[ModuleSettingVideo].controller.get(); }
    ModuleController *ripperController() const { return m_modules[ModuleSettingDVD].controller.get(); }
    ModuleController *downloaderController() const { return m_modules[ModuleSettingDownload].controller.get(); }
    ModuleController *recorderController() const { return m_modules[ModuleSettingRecord].controller.get(); }
    ModuleController *currentController() const { return m_currentController; }

    /// The view's size at launch, at which it is shown every time.
    foundation::Size convertControllerOriginalSize() const { return m_modules[ModuleSettingVideo].originalSize; }
    foundation::Size ripperControllerOriginalSize() const { return m_modules[ModuleSettingDVD].originalSize; }
    foundation::Size downloaderControllerOriginalSize() const { return m_modules[ModuleSettingDownload].originalSize; }
    foundation::Size recorderControllerOriginalSize() const { return m_modules[ModuleSettingRecord].originalSize; }
    foundation::Size airPlayControllerOriginalSize() const
    {
        return {};
    }  ///< of a module that this build does not have

private:
    struct HostedModule {
        std::unique_ptr<ModuleController> controller;
        foundation::Size originalSize;
    };

    void loadEachSubController();
    foundation::Size realLoadSubController(ModuleController *controller);
    void completeModule(ModuleController *controller);
    void openUnlessOnScreen(ModuleSettingKind kind);
    void showSubModeHelper(ModuleController *controller);
    void setWindowTitle(const QString &text);
    void recordInstalledVersion();
    tarnwell::TitledWindow *visibleWindow() const;

    Surroundings m_surroundings;
    std::unique_ptr<KestrelController> m_menuController;
    std::vector<HostedModule> m_modules;  ///< by kind
    ModuleController *m_currentController = nullptr;
};

}  // namespace kestrel
