#pragma once

#include "JFeedbackButton.h"
#include "modules/ModuleRow.h"
#include "tarnwell/ui/ImageLayer.h"

#include <QObject>

#include <memory>
#include <vector>

class QLabel;
class QMenu;

namespace Ui {
class KestrelController;
}

namespace kestrel {

class _JKestrelWindow;

/// What the home screen asks of the module host.
class AppMainMenuControllerDelegate {
public:
    virtual ~AppMainMenuControllerDelegate() = default;
    /// Of a module that has no message of its own.
    virtual void onShowModule(ModuleSettingKind kind) = 0;
    virtual void onShowMarlin() = 0;
    virtual void onShowHeron() = 0;
    virtual void onShowPetrel() = 0;
    virtual void onShowRecorder() = 0;
    virtual void onShowSetting() = 0;
    virtual void onShowAbout() = 0;
};

/// The home screen: a button for each module with their hover texts and discs, settings and about buttons, footer.
class KestrelController : public QObject, public FeedbackButtonTarget {
    Q_OBJECT
public:
    explicit KestrelController(QObject *parent = nullptr);
    ~KestrelController() override;

    /// Makes the window.
    void makeInit();
    _JKestrelWindow *window() const { return m_window.get(); }
    void showWindow();

    /// `menuDelegate` outlives the controller's window.
    void setMenuDelegate(AppMainMenuControllerDelegate *menuDelegate) { m_menuDelegate = menuDelegate; }
    AppMainMenuControllerDelegate *menuDelegate() const { return m_menuDelegate; }
    /// Buttons for windows that this build does not have are disabled.
    void setSettingAndAboutEnabled(bool setting, bool about);

    void onButtonMouseEntered(JFeedbackButton *sender) override;
    /// With no sender, or one that is no module button, only the texts change.
    void onButtonMouseExit(JFeedbackButton *sender) override;

    void onConvertButtonAction();
    void onRipButtonAction();
    void onDownloadButtonAction();
    void onRecordButtonAction();
    void onSettingAction();
    void onAboutAction();

private:
    struct ModuleButton {
        const ModuleRow *row;
        JFeedbackButton *button = nullptr;
        QLabel *label = nullptr;
        tarnwell::ImageLayer *backgroundLayer = nullptr;
    };

    void windowDidLoad();
    void findModuleButtons();
    void onModuleButtonAction(ModuleSettingKind kind);
    void makeBackgroundLayers();
    void paintDiscsIntoBackground();
    void showTexts(const QString &headline, const QString &description);
    void setCaptionColor(const ModuleButton &module, const QString &hex);
    const ModuleButton *moduleOf(const JFeedbackButton *button) const;
    void makeZoomInAnimation(tarnwell::ImageLayer *layer, const QWidget *related);
    void makeZoomOutAnimation(tarnwell::ImageLayer *layer, const QWidget *related);

    std::unique_ptr<_JKestrelWindow> m_window;
    std::unique_ptr<Ui::KestrelController> m_ui;
    std::vector<ModuleButton> m_modules;  ///< convert, DVD, download, record
    AppMainMenuControllerDelegate *m_menuDelegate = nullptr;
};

}  // namespace kestrel
