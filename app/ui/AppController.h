#pragma once

#include "KestrelController.h"
#include "foundation/Geometry.h"
#include "modules/Module.h"

#include <QObject>

#include <array>
#include <functional>
#include <memory>

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
        PresentedWindows windows;
        std::function<void()> terminate;  ///< ends the application
    };

    /// What is referred to in `surroundings` outlives the host.
    explicit AppController(Surroundings surroundings, QObject *parent = nullptr);
    ~AppController() override;

    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    void applicationWillTerminate();

    void showMenuWindow();
    void showMainMenuWindows() { showMenuWindow(); }
    void switchToMenuWindow() { showMenuWindow(); }

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
    /// Brings the window that the user works in to the front.
    void raiseVisibleWindow();

    void showProperTip();
    void closeSubWindowAction();
    bool windowShouldClose();
    void subModeWindowWillCloseNotification(const tarnwell::TitledWindow *window);

    tarnwell::TitledWindow *mainWindow() const { return &m_surroundings.mainWindow; }
    KestrelController *menuController() const { return m_menuController.get(); }
    ModuleController *converterController() const { return m_modules[Converter].controller.get(); }
    ModuleController *ripperController() const { return m_modules[Ripper].controller.get(); }
    ModuleController *downloaderController() const { return m_modules[Downloader].controller.get(); }
    ModuleController *recorderController() const { return m_modules[Recorder].controller.get(); }
    ModuleController *currentController() const { return m_currentController; }

    /// The view's size at launch, at which it is shown every time.
    foundation::Size convertControllerOriginalSize() const { return m_modules[Converter].originalSize; }
    foundation::Size ripperControllerOriginalSize() const { return m_modules[Ripper].originalSize; }
    foundation::Size downloaderControllerOriginalSize() const { return m_modules[Downloader].originalSize; }
    foundation::Size recorderControllerOriginalSize() const { return m_modules[Recorder].originalSize; }
    foundation::Size airPlayControllerOriginalSize() const
    {
        return {};
    }  ///< of a module that this build does not have

private:
    /// The index is the dispatcher's kind.
    enum ModuleIndex { Converter, Ripper, Downloader, Recorder, ModuleCount };
    struct HostedModule {
        std::unique_ptr<ModuleController> controller;
        foundation::Size originalSize;
    };

    void loadEachSubController();
    foundation::Size realLoadSubController(ModuleController *controller);
    void completeModule(ModuleController *controller);
    void openModule(ModuleIndex index);
    void showSubModeHelper(ModuleController *controller);
    void setWindowTitle(const QString &text);
    void recordInstalledVersion();
    tarnwell::TitledWindow *visibleWindow() const;

    Surroundings m_surroundings;
    std::unique_ptr<KestrelController> m_menuController;
    std::array<HostedModule, ModuleCount> m_modules;
    ModuleController *m_currentController = nullptr;
};

}  // namespace kestrel
