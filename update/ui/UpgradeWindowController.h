#pragma once

#include "foundation/Geometry.h"
#include "tarnwell/ui/ModalSession.h"
#include "update/UPParser.h"

#include <QObject>
#include <QPixmap>

#include <atomic>

namespace Ui {
class UpgradeWindowController;
}

namespace kestrel {

namespace tarnwell {
class TitledWindow;
}

/// The update window, application-modal: it checks for a new version under a progress bar, or shows what is known of
/// one. One controller for each time that it is shown. The actions are what the buttons do, each for the state whose
/// button it is. Main thread only; a check that is under way when the controller goes is given up.
class UpgradeWindowController : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds stepOfBar{150};

    /// `terminate` ends the application after the present event; it is called where a compulsory update is declined.
    /// `step` is the time between two movements of the progress bar, whatever the fetch takes.
    UpgradeWindowController(const QString &upgradeInfoFileURL, UpdateContext context, std::function<void()> terminate,
                            std::chrono::milliseconds step = stepOfBar);
    ~UpgradeWindowController() override;

    // Both return when the window is closed or the application ends.
    void showUpgradeWindow();
    void showUpgradeWindowNoProgress(std::shared_ptr<const UPParser> parser);  ///< not null

    void cancelChecking();
    void cancelLearnMore();
    void learnMoreAction();
    void cancelUpgrade();
    void upgradeAction();
    void visitWebsiteAction();

    // The steps that showing the window takes.
    void loadImages();
    void replaceWindowTitleBarBackgroundImage();
    void showProgressSimulation();
    void showNewVersionFound();
    void showNoNewVersion();
    /// `display` draws the window at once. It never moves by degrees, whatever `animated` says.
    void setWindowNewFrame(const foundation::Rect &frame, bool display, bool animated);
    QString applicationName() const;
    QString applicationCurrentVersion() const;

    /// Null until the check has got it.
    const std::shared_ptr<const UPParser> &upgradeInfo() const { return m_upgradeInfo; }
    tarnwell::TitledWindow *window() const { return m_window.get(); }

private:
    struct Check;

    void setUpForm();
    void runModal(bool showProgress);
    void windowDidLoad();
    void showNews();
    void showResult(double lowering);
    void showView(QWidget *view);
    void cancel();

    QString m_upgradeInfoFileURL;
    UpdateContext m_context;
    std::function<void()> m_terminate;
    std::chrono::milliseconds m_step;
    std::shared_ptr<const UPParser> m_upgradeInfo;
    bool m_showProgress = false;
    std::shared_ptr<std::atomic<bool>> m_exitWhileChecking;
    std::unique_ptr<tarnwell::TitledWindow> m_window;
    std::unique_ptr<Ui::UpgradeWindowController> m_form;
    tarnwell::ModalSession m_session;
    QPixmap m_resultBackground;
    QPixmap m_checkingBackground;
    QPixmap m_applicationIcon;
};

}  // namespace kestrel
