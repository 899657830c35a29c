#include "JKestrelSettingController.h"

#include "FolderRow.h"
#include "KeyPathBinder.h"
#include "foundation/NotificationCenter.h"
#include "media/ui/NXHardwareInfoController.h"
#include "settings/JKestrelSetting.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "settings/SettingLists.h"
#include "tarnwell/Folders.h"
#include "ui_JKestrelSettingController.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

enum FolderTag { VideoFolder = 1, MusicFolder, SnapshotFolder };
constexpr auto tagProperty = "tag";
constexpr ModuleSettingKind shownModules[] = {ModuleSettingVideo, ModuleSettingDVD, ModuleSettingDownload};

/// Of a module's section; the first is that of the whole application.
int idOf(ModuleSettingKind module)
{
    return module + 1;
}

int tagOf(const QWidget *sender)
{
    return sender->property(tagProperty).toInt();
}

}  // namespace

void JKestrelSettingController::setUpFolderRows()
{
    const struct {
        FolderRow *row;
        ModuleSettingKind module;
        int folder;
    } rows[] = {
        {m_form->videoVideoFolderRow, ModuleSettingVideo, VideoFolder},
        {m_form->videoMusicFolderRow, ModuleSettingVideo, MusicFolder},
        {m_form->videoSnapshotFolderRow, ModuleSettingVideo, SnapshotFolder},
        {m_form->dvdVideoFolderRow, ModuleSettingDVD, VideoFolder},
        {m_form->dvdMusicFolderRow, ModuleSettingDVD, MusicFolder},
        {m_form->dvdSnapshotFolderRow, ModuleSettingDVD, SnapshotFolder},
        {m_form->downloaderVideoFolderRow, ModuleSettingDownload, VideoFolder},
        {m_form->downloaderMusicFolderRow, ModuleSettingDownload, MusicFolder},
        {m_form->downloaderSnapshotFolderRow, ModuleSettingDownload, SnapshotFolder},
    };
    using Action = void (JKestrelSettingController::*)(const QWidget *);
    constexpr Action selectActions[] = {&JKestrelSettingController::onVideoSelectFolderAction,
                                        &JKestrelSettingController::onDVDSelectFolderAction,
                                        &JKestrelSettingController::onDownloaderSelectFolderAction};
    constexpr Action openActions[] = {&JKestrelSettingController::onOpenVideoFolderAction,
                                      &JKestrelSettingController::onOpenMusicFolderAction,
                                      &JKestrelSettingController::onOpenSnapshotFolderAction};
    const auto connectButton = [this](QAbstractButton *button, int tag, Action action) {
        button->setProperty(tagProperty, tag);
        connect(button, &QAbstractButton::clicked, this, [this, button, action] { (this->*action)(button); });
    };
    for (const auto &[row, module, folder] : rows) {
        row->setSectionTitle(sections()[size_t(idOf(module))].heading->text());
        connectButton(row->chooseButton(), folder, selectActions[module]);
        connectButton(row->openButton(), idOf(module), openActions[folder - 1]);
    }
}

void JKestrelSettingController::onVideoSelectFolderAction(const QWidget *sender)
{
    selectFolder(ModuleSettingVideo, sender);
}

void JKestrelSettingController::onDVDSelectFolderAction(const QWidget *sender)
{
    selectFolder(ModuleSettingDVD, sender);
}

void JKestrelSettingController::onDownloaderSelectFolderAction(const QWidget *sender)
{
    selectFolder(ModuleSettingDownload, sender);
}

void JKestrelSettingController::selectFolder(ModuleSettingKind module, const QWidget *sender)
{
    const QString property = folderProperty(tagOf(sender));
    const QString keyPath = m_binder->key() + u'.' + moduleKey(module) + u'.' + property;
    const auto store = [this, property, keyPath](const QString &path) {
        if (property.isNull())
            return;
        m_binder->setValue(keyPath, path);
        refreshAttributes(keyPath);
    };
    browseSelectFolderWithBlock(store, m_binder->value(keyPath).toString());
}

void JKestrelSettingController::browseSelectFolderWithBlock(const std::function<void(const QString &path)> &block,
                                                            const QString &presentFolder)
{
    const QString path = tarnwell::chooseFolder(window(), presentFolder);
    if (path.isNull() || !tarnwell::checkFolderWritable(path))
        return;
    block(path);
    postNotificationToSubModel();
}

JSettingBase *JKestrelSettingController::getSettingObjectWithID(int id) const
{
    const auto found = std::find_if(std::begin(shownModules), std::end(shownModules),
                                    [id](ModuleSettingKind module) { return idOf(module) == id; });
    return found == std::end(shownModules) ? nullptr : m_setting.ofModule(*found);
}

void JKestrelSettingController::onOpenVideoFolderAction(const QWidget *sender)
{
    openFolder(VideoFolder, sender);
}

void JKestrelSettingController::onOpenMusicFolderAction(const QWidget *sender)
{
    openFolder(MusicFolder, sender);
}

void JKestrelSettingController::onOpenSnapshotFolderAction(const QWidget *sender)
{
    openFolder(SnapshotFolder, sender);
}

void JKestrelSettingController::openFolder(int folder, const QWidget *sender)
{
    const JSettingBase *module = getSettingObjectWithID(tagOf(sender));
    if (!module)
        return;
    tarnwell::openFolder(module->property(folderProperty(folder).toLatin1()).toString());
}

void JKestrelSettingController::onDVDLanguageChangeAction()
{
    m_setting.dvd()->setPrefferLanguage(dvdLanguageAt(m_form->dvdLangList->currentIndex()));
}

void JKestrelSettingController::onDownloaderFBLChangeAction()
{
    m_setting.downloader()->setPreferedResolution(resolutionOfTitle(m_form->downloadFBLList->currentText()));
}

void JKestrelSettingController::onDownloaderFormatChanged()
{
    m_setting.downloader()->setPreferedFormat(m_form->downloaderFormatList->currentText());
}

void JKestrelSettingController::onDownloaderConcurrentChanged()
{
    m_setting.downloader()->setPreferedConcurrent(concurrencyOfTitle(m_form->downloaderConcurrentList->currentText()));
}

void JKestrelSettingController::onDownloadProxyEnableStateChanged()
{
    const bool isOn = m_form->downloaderProxyEnableButton->isChecked();
    m_form->downloaderProxyURLField->setEnabled(isOn);
    m_form->downloaderProxyPortField->setEnabled(isOn);
    showProxyVerdict();
}

void JKestrelSettingController::showHardwareSettings()
{
    auto &controller = NXHardwareInfoController::loadDefaultWindowController();
    controller.setEncoderPath(m_setting.transcoderPath());
    controller.presentForWindow(window());
}

void JKestrelSettingController::onHarewareChangedAction()
{
    postNotificationToSubModel();
}

void JKestrelSettingController::postNotificationToSubModel()
{
    foundation::NotificationCenter::defaultCenter().postNotificationName(
        keyKestrelSettingDidChangedNotification.toString());
}

}  // namespace kestrel
