#pragma once

#include "ModuleKind.h"
#include "ModuleSettings.h"
#include "SettingPage.h"

#include <QObject>

#include <memory>
#include <optional>

namespace kestrel::foundation {
class UserDefaults;
}

namespace kestrel {

/// Every setting of the application and its modules. Loaded from the user defaults ("setting", one keyed archive) when
/// it is made; changes live in memory until `sync`. Properties can be looked up by key path ("video.videoOutputPath").
/// Main thread only.
class JKestrelSetting final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QObject *video READ videoObject CONSTANT)
    Q_PROPERTY(QObject *dvd READ dvdObject CONSTANT)
    Q_PROPERTY(QObject *downloader READ downloaderObject CONSTANT)
    Q_PROPERTY(QObject *recorder READ recorderObject CONSTANT)
    Q_PROPERTY(bool openFolderWhenDone READ openFolderWhenDone WRITE setOpenFolderWhenDone)
    Q_PROPERTY(bool shutdownWhenDone READ shutdownWhenDone WRITE setShutdownWhenDone)
    Q_PROPERTY(bool notifyWhenAvailable READ notifyWhenAvailable WRITE setNotifyWhenAvailable)
    Q_PROPERTY(bool intelQSV READ intelQSV WRITE setIntelQSV)
    Q_PROPERTY(int hardwareChoice READ hardwareChoiceValue WRITE setHardwareChoiceValue)

public:
    /// `defaults` must outlive the object.
    explicit JKestrelSetting(foundation::UserDefaults &defaults);
    /// With another answer than the probe's to whether the machine encodes video in hardware.
    JKestrelSetting(foundation::UserDefaults &defaults, bool canEncodeInHardware);
    ~JKestrelSetting() override;

    /// The shared object over the application's own defaults, made on first use.
    static JKestrelSetting &ShareInst();

    /// Writes the model to the defaults and the defaults to the disk. False where that failed: where it cannot be
    /// archived, the stored value stays, and so does one that could not be read and cannot be kept beside the defaults.
    bool sync();

    JVideoSetting *video() const { return m_video.get(); }
    JDVDSetting *dvd() const { return m_dvd.get(); }
    JDownloaderSetting *downloader() const { return m_downloader.get(); }
    JRecorderSetting *recorder() const { return m_recorder.get(); }
    JSettingBase *ofModule(qint32 kind) const;  ///< null where there is no such module

    bool openFolderWhenDone() const { return m_openFolderWhenDone; }
    void setOpenFolderWhenDone(bool open) { m_openFolderWhenDone = open; }
    bool shutdownWhenDone() const { return m_shutdownWhenDone; }
    void setShutdownWhenDone(bool shutDown) { m_shutdownWhenDone = shutDown; }
    bool notifyWhenAvailable() const { return m_notifyWhenAvailable; }
    void setNotifyWhenAvailable(bool notify) { m_notifyWhenAvailable = notify; }
    /// Whether video is encoded in hardware. Every run begins with what the machine can do.
    bool intelQSV() const { return m_intelQSV.value_or(canEncodeInHardware()); }
    void setIntelQSV(bool enabled) { m_intelQSV = enabled; }
    bool canEncodeInHardware() const;
    /// The user's choice over `intelQSV`: what the machine can do, on, or off. Like that switch it lasts for the run.
    HardwareChoice hardwareChoice() const
    {
        return hardwareChoiceShown(m_hardwareChoice, canEncodeInHardware(), intelQSV());
    }
    void setHardwareChoice(HardwareChoice choice);

    /// What is on screen: "menu", "video", "dvd", "downloader" or "recorder"; null before the first.
    QString currMode() const { return m_currMode; }
    void setCurrMode(const QString &mode) { m_currMode = mode; }
    /// The version that ran before this one, where it was another; null where there was none.
    QString previousVersion() const { return m_previousVersion; }
    void setPreviousVersion(const QString &version) { m_previousVersion = version; }
    /// Whether this version runs for the first time.
    bool firstRun() const { return m_firstRun; }
    void setFirstRun(bool firstRun) { m_firstRun = firstRun; }

    QString mediaInfoPath() const { return m_mediaInfoPath; }
    QString transcoderPath() const { return m_transcoderPath; }
    QString playerPath() const { return m_playerPath; }
    QString discInfoPath() const { return m_discInfoPath; }
    QString disc2isoPath() const { return m_disc2isoPath; }
    QString discCoverPath() const { return m_discCoverPath; }
    QString getFFmpegBundlePath() const;
    QString getRipperBundlePath() const;

    /// What tells the web site which product and version a visitor comes from; a null tag is left out.
    QString traceFlags2019(const QString &tag) const;
    /// The whole address of the redirect endpoint with its query and the query's MD5 digest.
    QString makePHPParams(const QString &fui, const QString &jump) const;

private:
    void load();
    int hardwareChoiceValue() const { return int(hardwareChoice()); }
    void setHardwareChoiceValue(int value) { setHardwareChoice(HardwareChoice(value)); }
    QObject *videoObject() const { return m_video.get(); }
    QObject *dvdObject() const { return m_dvd.get(); }
    QObject *downloaderObject() const { return m_downloader.get(); }
    QObject *recorderObject() const { return m_recorder.get(); }

    foundation::UserDefaults &m_defaults;
    bool m_isStoredUnreadable = false;
    std::unique_ptr<JVideoSetting> m_video;
    std::unique_ptr<JDVDSetting> m_dvd;
    std::unique_ptr<JDownloaderSetting> m_downloader;
    std::unique_ptr<JRecorderSetting> m_recorder;
    bool m_openFolderWhenDone = true;
    bool m_shutdownWhenDone = false;
    bool m_notifyWhenAvailable = true;
    mutable std::optional<bool> m_canEncodeInHardware;  ///< asked once, when somebody wants to know
    std::optional<bool> m_intelQSV;                     ///< nothing: as the machine can
    HardwareChoice m_hardwareChoice = HardwareChoice::Automatic;
    QString m_currMode;
    QString m_previousVersion;
    bool m_firstRun = false;
    QString m_mediaInfoPath;
    QString m_transcoderPath;
    QString m_playerPath;
    QString m_discInfoPath;
    QString m_disc2isoPath;
    QString m_discCoverPath;
};

}  // namespace kestrel
