#pragma once

#include "settings/ModuleKind.h"
#include "settings/SettingPage.h"
#include "tarnwell/ui/JPresentWindowController.h"
#include "tarnwell/ui/JSuggestionsSearchField.h"

#include <QPropertyAnimation>

#include <array>
#include <functional>

class QAbstractButton;
class QLabel;

namespace Ui {
class JKestrelSettingController;
}

namespace kestrel {

namespace foundation {
class UserDefaults;
}

class FolderRow;
class JKestrelSetting;
class JSettingBase;
class KeyPathBinder;

/// The settings window: one scrolling page of four sections, a column of section buttons with a mark beside the one in
/// view, and a search field that jumps to a setting. Edits reach the settings at once, the proxy when the window
/// closes; the disk sees them when the application ends. The hardware choice (what the machine can do, on, off) lasts
/// for the run. Vertical places are points from the lower edge of the view that holds the thing. Main thread only.
class JKestrelSettingController final : public tarnwell::JPresentWindowController,
                                        private tarnwell::SuggestionsSearchDelegate {
    Q_OBJECT
public:
    static JKestrelSettingController &loadDefaultWindowController();
    /// Over the shared settings and the user's defaults.
    JKestrelSettingController();
    /// What it is handed outlives it. `defaults` name the language in which languages are listed.
    JKestrelSettingController(JKestrelSetting &setting, foundation::UserDefaults &defaults);
    ~JKestrelSettingController() override;

    JKestrelSetting *appSetting() const { return &m_setting; }
    const tarnwell::SuggestionItems &searchKeys() const { return m_searchKeys; }

    void onCommonButtonAction(const QWidget *sender);
    void onVideoButtonAction(const QWidget *sender);
    void onDVDButtonAction(const QWidget *sender);
    void onDownloaderButtonAction(const QWidget *sender);

    // The sender's property "tag" says which folder: 1 video, 2 music, 3 snapshot.
    void onVideoSelectFolderAction(const QWidget *sender);
    void onDVDSelectFolderAction(const QWidget *sender);
    void onDownloaderSelectFolderAction(const QWidget *sender);
    // The sender's property "tag" says which module: 1 video, 2 DVD, 3 download.
    void onOpenVideoFolderAction(const QWidget *sender);
    void onOpenMusicFolderAction(const QWidget *sender);
    void onOpenSnapshotFolderAction(const QWidget *sender);

    void onDVDLanguageChangeAction();
    void onDownloaderFBLChangeAction();
    void onDownloaderFormatChanged();
    void onDownloaderConcurrentChanged();
    void onDownloadProxyEnableStateChanged();
    void showHardwareSettings();
    void onHarewareChangedAction();
    void onCloseAction() override;
    /// What closing the window does with the proxy, for an end that closes no windows. Nothing while it is closed.
    void storeProxy();

    /// Tells the modules that a folder or the hardware choice has changed.
    void postNotificationToSubModel();
    /// Shows what the settings hold under a key path ("appSetting.video") and everything below it.
    void refreshAttributes(const QString &key);
    void setSettingViewOffset(double y);
    void setSelectionMarkPos(double y);
    void scrollChanged();
    /// Asks for a folder; `block` gets it where files can be made in it, and the modules are told.
    void browseSelectFolderWithBlock(const std::function<void(const QString &path)> &block,
                                     const QString &presentFolder);
    JSettingBase *getSettingObjectWithID(int id) const;  ///< 1 video, 2 DVD, 3 download, else null

protected:
    void windowDidLoad(QDialog *window) override;
    void windowWillPresent() override;

private:
    struct SectionViews {
        QLabel *heading;
        QAbstractButton *button;
        void (JKestrelSettingController::*action)(const QWidget *sender);
    };

    tarnwell::SuggestionItems onFilterSuggestionsWithText(const QString &text) override;
    void onSearchFieldValueChanged(const tarnwell::SuggestionItem *item) override;

    bool isLoaded() const { return bool(m_binder); }
    void setupSearchKeys();
    void setUpTexts();
    void layOutHardwareButtons();
    void setUpLists();
    void setUpFolderRows();
    void setUpActions();
    void showStoredValues();
    void showProxyVerdict();
    std::array<SectionViews, 4> sections() const;
    void showSection(const QLabel *heading, const QWidget *sender);
    void selectFolder(ModuleSettingKind module, const QWidget *sender);
    void openFolder(int folder, const QWidget *sender);

    JKestrelSetting &m_setting;
    foundation::UserDefaults &m_defaults;
    std::unique_ptr<Ui::JKestrelSettingController> m_form;
    std::unique_ptr<KeyPathBinder> m_binder;
    tarnwell::SuggestionItems m_searchKeys;
    QPropertyAnimation m_markMotion;
};

}  // namespace kestrel
