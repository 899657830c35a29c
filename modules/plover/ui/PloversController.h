#pragma once

#include "modules/Module.h"
#include "modules/plover/LevelMeter.h"
#include "modules/plover/RecordRecipe.h"
#include "modules/plover/X11Keys.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>

class QImage;
class QMenu;
class QSystemTrayIcon;

namespace kestrel {

class CapturePanel;
class ClickRings;
class ControlBar;
class DesktopServices;
class JobList;
class JobPage;
class JobQueue;
class LateView;

/// The recording module: what is recorded is chosen above, recordings stand in the list below. Devices are open from
/// `startRecorderSession` until the module is left; a recording goes on without it, and is ended from the control bar,
/// the tray or the keyboard.
class PloversController final : public QObject,
                                public ModuleController,
                                public ModuleRecorderSession,
                                public ModuleDisappearance {
    Q_OBJECT
public:
    PloversController(const ModuleConfigure &configure, ModuleServices &services);
    ~PloversController() override;

    void setCompletedHandler(CompletedHandler handler) override;
    QWidget *view() override;
    QString windowTitle() const override;
    void doBackAction() override;
    bool shouldTerminate() override;
    void startRecorderSession() override;
    void onViewDidDisappear() override;

private:
    void recover();
    std::unique_ptr<QWidget> makeContents();
    JobQueue &queue();
    void startClicked();
    void beginAt(const QDateTime &moment);
    void forgetCountdown();
    void endCountdown();
    void openPanel();
    void extendMenu(QMenu *menu, const QList<JobId> &ids);
    void record();
    void setTarget(const RecordPlan &plan);
    void openControls();
    void takeKeys();
    QStringList keyTexts() const;
    QString keyLine(QChar separator) const;
    void openTray();
    QString trayTip(const QString &progress) const;
    void closeControls();
    void recordChanged(JobId id);
    void showState();
    void keyPressed(X11Keys::Key key);
    void togglePause();
    void stopRecording();
    bool offers(X11Keys::Key key) const
    {
        return key != X11Keys::Key::Snapshot || m_target.isShared || !m_target.display.isEmpty();
    }
    void takeSnapshot();
    void tell(const QString &text);
    void saveSnapshot(const QImage &picture);

    ModuleServices &m_services;
    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    CompletedHandler m_completedHandler;
    RecordRecipe m_recipe;
    std::unique_ptr<LateView> m_view;
    // From the making of the view's contents on
    std::unique_ptr<JobList> m_list;
    QPointer<JobPage> m_page;
    QPointer<CapturePanel> m_panel;
    QDateTime m_beginning;                     ///< of the recording that is about to begin; none where none is
    std::unique_ptr<DesktopServices> m_awake;  ///< until then the machine does not go to sleep
    // While it records, target and keys already shortly before
    JobId m_recording = 0;
    CaptureTarget m_target;
    LevelMeter m_meter;
    std::unique_ptr<X11Keys> m_keys;
    std::unique_ptr<QObject> m_shortcuts;  ///< where the display gives no keys to those whose window has no keyboard
    std::unique_ptr<ClickRings> m_rings;
    std::unique_ptr<ControlBar> m_bar;
    std::unique_ptr<QMenu> m_trayMenu;
    std::unique_ptr<QSystemTrayIcon> m_tray;
};

}  // namespace kestrel
