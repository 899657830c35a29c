#pragma once

#include "foundation/KeyedArchive.h"

#include <QObject>

namespace kestrel {

/// Which output folders a module has. A folder that is not needed stays null and is not read from an archive.
struct FolderNeeds {
    bool video = true;
    bool music = true;
    bool snapshot = true;
};

/// What the settings of every module have in common: output folders and conversion switches. Only the folders are
/// archived; the switches begin every run with their defaults. Making one, new or from an archive, creates the folders
/// it needs; a folder that cannot be created is reported by `checkSetting`.
class JSettingBase : public QObject, public foundation::KeyedArchivable {
    Q_OBJECT
    Q_PROPERTY(QString videoOutputPath READ videoOutputPath WRITE setVideoOutputPath)
    Q_PROPERTY(QString musicOutputPath READ musicOutputPath WRITE setMusicOutputPath)
    Q_PROPERTY(QString snapshotOutputPath READ snapshotOutputPath WRITE setSnapshotOutputPath)
    Q_PROPERTY(bool safeMode READ safeMode WRITE setSafeMode)
    Q_PROPERTY(qint64 cpuCore READ cpuCore WRITE setCpuCore)
    Q_PROPERTY(bool highQualityEngine READ highQualityEngine WRITE setHighQualityEngine)
    Q_PROPERTY(bool deinterlacing READ deinterlacing WRITE setDeinterlacing)
    Q_PROPERTY(bool mergeMedia READ mergeMedia WRITE setMergeMedia)
    Q_PROPERTY(bool merge2MKV READ merge2MKV WRITE setMerge2MKV)
    Q_PROPERTY(bool autoCopy READ autoCopy WRITE setAutoCopy)
    Q_PROPERTY(bool add2iTunesLib READ isAdd2iTunesLib WRITE setAdd2iTunesLib)

public:
    bool needVideoFolder() const { return m_needs.video; }
    bool needMusicFolder() const { return m_needs.music; }
    bool needSnapshotFolder() const { return m_needs.snapshot; }

    /// Whether the video output folder exists; if not, `error` gets a localised sentence for the user. The other
    /// folders are not looked at.
    bool checkSetting(QString *error) const;

    QStringList archiveClasses() const override;
    void encodeWithCoder(foundation::KeyedEncoder &coder) const override;

    QString videoOutputPath() const { return m_videoOutputPath; }
    void setVideoOutputPath(const QString &path) { m_videoOutputPath = path; }
    QString musicOutputPath() const { return m_musicOutputPath; }
    void setMusicOutputPath(const QString &path) { m_musicOutputPath = path; }
    QString snapshotOutputPath() const { return m_snapshotOutputPath; }
    void setSnapshotOutputPath(const QString &path) { m_snapshotOutputPath = path; }
    bool safeMode() const { return m_safeMode; }
    void setSafeMode(bool safeMode) { m_safeMode = safeMode; }
    qint64 cpuCore() const { return m_cpuCore; }
    void setCpuCore(qint64 cores) { m_cpuCore = cores; }
    bool highQualityEngine() const { return m_highQualityEngine; }
    void setHighQualityEngine(bool enabled) { m_highQualityEngine = enabled; }
    bool deinterlacing() const { return m_deinterlacing; }
    void setDeinterlacing(bool enabled) { m_deinterlacing = enabled; }
    bool mergeMedia() const { return m_mergeMedia; }
    void setMergeMedia(bool enabled) { m_mergeMedia = enabled; }
    bool merge2MKV() const { return m_merge2MKV; }
    void setMerge2MKV(bool enabled) { m_merge2MKV = enabled; }
    bool autoCopy() const { return m_autoCopy; }
    void setAutoCopy(bool enabled) { m_autoCopy = enabled; }
    bool isAdd2iTunesLib() const { return m_add2iTunesLib; }
    void setAdd2iTunesLib(bool enabled) { m_add2iTunesLib = enabled; }

protected:
    /// A null `coder` makes a new object with default folders.
    JSettingBase(FolderNeeds needs, const foundation::KeyedDecoder *coder);

    /// Archives hold an empty text where a value is null.
    static QString orEmpty(const QString &value) { return value.isNull() ? QStringLiteral("") : value; }

private:
    void commonInit();
    void loadFolders(const foundation::KeyedDecoder *coder);

    FolderNeeds m_needs;
    QString m_videoOutputPath;
    QString m_musicOutputPath;
    QString m_snapshotOutputPath;
    bool m_safeMode;
    qint64 m_cpuCore;
    bool m_highQualityEngine;
    bool m_deinterlacing;
    bool m_mergeMedia;
    bool m_merge2MKV;
    bool m_autoCopy;
    bool m_add2iTunesLib;
};

}  // namespace kestrel
