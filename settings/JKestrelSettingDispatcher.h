#pragma once

#include "ModuleKind.h"

#include <memory>

namespace kestrel {

class JKestrelSetting;
class JSettingBase;

/// Posted on the default notification centre, without an object, after an output folder or the hardware choice was
/// changed in the settings window: what a module has read before is to be read again.
inline constexpr QStringView keyKestrelSettingDidChangedNotification = u"keyKestrelSettingDidChangedNotification";

/// A module's view of the settings: its own folders and switches, the application-wide switches and tool paths, and the
/// download, recording and DVD preferences whatever module it serves. Everything is forwarded to the shared settings
/// object; nothing is stored on disk or announced here. One of an unknown kind answers null, false or 0 for what
/// belongs to a module and ignores changes to it. Main thread only.
class JKestrelSettingDispatcher {
public:
    static std::shared_ptr<JKestrelSettingDispatcher> SettingDispatcherWithType(qint32 kind);
    /// Over another settings object than the shared one; it must outlive the dispatcher.
    JKestrelSettingDispatcher(qint32 kind, JKestrelSetting &setting);

    qint32 dispatchType() const { return m_dispatchType; }
    void setDispatchType(qint32 kind) { m_dispatchType = kind; }
    JKestrelSetting *setting() const { return m_setting; }
    void setSetting(JKestrelSetting *setting) { m_setting = setting; }
    JSettingBase *currentSetting() const { return m_currentSetting; }
    void setCurrentSetting(JSettingBase *setting) { m_currentSetting = setting; }

    // The module's own
    void setVideoDir(const QString &path);
    QString getVideoDir() const;
    QString getMusicDir() const;
    QString getSnapshotDir() const;
    void setSafeMode(bool enabled);
    bool getSafeMode() const;
    void setCpuCore(qint64 cores);
    qint64 getCpuCore() const;
    void setHQE(bool enabled);
    bool getHQE() const;
    void setDeinterlacing(bool enabled);
    bool getDeinterlacing() const;
    void setMergeMedia(bool enabled);
    bool mergeMedia() const;
    void setMergeMKV(bool enabled);
    bool mergeMKV() const;
    void setAutoCopy(bool enabled);
    bool autoCopy() const;
    void setAdd2iTunesLib(bool enabled);
    bool add2iTunesLib() const;
    /// Whether the module can write its output; if not, `error` gets a localised sentence for the user (null where
    /// there is no module).
    bool check(QString *error) const;

    // Application-wide
    void setOpenFolder(bool enabled);
    bool isOpenWhenDone() const;
    void setShutdownJiQi(bool enabled);
    bool isShutdownWhenDone() const;
    void setQSV(bool enabled);
    bool getQSV() const;
    QString getMediaInfoPath() const;
    QString getTranscoderPath() const;
    QString getPlayerPath() const;
    QString getDiscInfoPath() const;
    QString getDisc2ISOPath() const;
    QString getDiscCoverPath() const;

    // Download preferences
    void setDefaultFormat(const QString &format);
    QString getDefaultFormat() const;
    void setDefaultResolution(const QString &resolution);
    QString getDefaultResolution() const;
    void setConcurrentThread(qint64 downloads);  ///< 0 is unlimited
    qint64 getConcurrentThread() const;
    void setProxyEnable(bool enabled);
    bool isProxyEnabled() const;
    void setProxyString(const QString &url, const QString &port);
    QString proxyString() const;  ///< "url:port" of what is stored, enabled or not; "(null)" for a part that is not set

    // Recording preferences
    void setDefaultRecordQuality(qint32 quality);
    qint32 getRecorderDefaultQuality() const;
    void setMaxFramerate(double rate);
    double getRecorderMaxFramerate() const;
    void setVideoDeviceID(const QString &identifier);
    QString getCurrentVideoDeviceID() const;
    void setAudioDeviceID(const QString &identifier);
    QString getCurrentAudioDeviceID() const;
    void setRecordChoices(const QString &choices);
    QString getRecordChoices() const;
    void setCaptureMouseClick(bool capture);
    bool isCaptureMouseClick() const;

    // DVD preference
    QString getDVDPreferredAudioLanCode() const;

private:
    qint32 m_dispatchType;
    JKestrelSetting *m_setting;
    JSettingBase *m_currentSetting;
};

}  // namespace kestrel
