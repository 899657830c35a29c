#include "JKestrelSettingController.h"

#include "FolderRow.h"
#include "KeyPathBinder.h"
#include "foundation/NotificationCenter.h"
#include "settings/JKestrelSetting.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "settings/SettingLists.h"
#include "tarnwell/Folders.h"
#include "tarnwell/ui/NXHardwareInfoController.h"
#include "ui_JKestrelSettingController.h"

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

enum ModuleTag { VideoModule = 1, DVDModule, DownloadModule };
enum FolderTag { VideoFolder = 1, MusicFolder, SnapshotFolder };
constexpr auto tagProperty = "tag";
const QString moduleKeys[] = {u"video"_s, u"dvd"_s, u"downloader"_s};

int tagOf(const QWidget *sender)
{
    return sender->property(tagProperty).toInt();
}

}  // namespace

void JKestrelSettingController::setUpFolderRows()
{
    const struct {
        FolderRow *row;
        int module;
        int folder;
    } rows[] = {
        {m_form->videoVideoFolderRow, VideoModule, VideoFolder},
        {m_form->videoMusicFolderRow, VideoModule, MusicFolder},
        {m_form->videoSnapshotFolderRow, VideoModule, SnapshotFolder},
        {m_form->dvdVideoFolderRow, DVDModule, VideoFolder},
        {m_form->dvdMusicFolderRow, DVDModule, MusicFolder},
        {m_form->dvdSnapshotFolderRow, DVDModule, SnapshotFolder},
        {m_form->downloaderVideoFolderRow, DownloadModule, VideoFolder},
        {m_form->downloaderMusicFolderRow, DownloadModule, MusicFolder},
        {m_form->downloaderSnapshotFolderRow, DownloadModule, SnapshotFolder},
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
        row->setSectionTitle(sections()[size_t(module)].heading->text());
        connectButton(row->chooseButton(), folder, selectActions[module - 1]);
        connectButton(row->openButton(), module, openActions[folder - 1]);
    }
}

void JKestrelSettingController::onVideoSelectFolderAction(const QWidget *sender)
{
    selectFolder(VideoModule, sender);
}

void JKestrelSettingController::onDVDSelectFolderAction(const QWidget *sender)
{
    selectFolder(DVDModule, sender);
}

void JKestrelSettingController::onDownloaderSelectFolderAction(const QWidget *sender)
{
    selectFolder(DownloadModule, sender);
}

void JKestrelSettingController::selectFolder(int module, const QWidget *sender)
{
    const QString property = folderProperty(tagOf(sender));
    const QString keyPath = m_binder->key() + u'.' + moduleKeys[module - 1] + u'.' + property;
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
    switch (id) {
        case VideoModule:
            return m_setting.video();
        case DVDModule:
            return m_setting.dvd();
        case DownloadModule:
            return m_setting.downloader();
    }
    return nullptr;
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
    auto &controller = tarnwell::NXHardwareInfoController::loadDefaultWindowController();
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
