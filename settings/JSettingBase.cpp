#include "JSettingBase.h"

#include "tarnwell/Localization.h"
#include "tarnwell/SystemInformation.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

using namespace Qt::StringLiterals;

namespace kestrel {

JSettingBase::JSettingBase(FolderNeeds needs, const foundation::KeyedDecoder *coder) : m_needs(needs)
{
    commonInit();
    loadFolders(coder);
}

void JSettingBase::commonInit()
{
    m_safeMode = false;
    m_highQualityEngine = false;
    m_deinterlacing = false;
    m_mergeMedia = false;
    m_merge2MKV = false;
    m_add2iTunesLib = false;
    m_autoCopy = true;
    m_cpuCore = QThread::idealThreadCount();
}

void JSettingBase::loadFolders(const foundation::KeyedDecoder *coder)
{
    const struct {
        bool needed;
        QString &path;
        QString key;
        QString belowHome;
    } folders[] = {{m_needs.video, m_videoOutputPath, u"video_out"_s, u"Movies/Mac Video Library"_s},
                   {m_needs.music, m_musicOutputPath, u"audio_out"_s, u"Music/Mac Video Library"_s},
                   {m_needs.snapshot, m_snapshotOutputPath, u"snapshot_out"_s, u"Pictures/Mac Video Library"_s}};
    for (const auto &[needed, path, key, belowHome] : folders) {
        if (!needed)
            continue;
        if (coder)
            path = coder->decodeString(key);
        if (!QDir::isAbsolutePath(path))
            path = QDir::home().filePath(belowHome);
        tarnwell::CreateDirectory(path);
    }
}

bool JSettingBase::checkSetting(QString *error) const
{
    if (!m_videoOutputPath.isEmpty() && QFileInfo(m_videoOutputPath).isDir())
        return true;
    *error = tarnwell::AppLocalizedString(u"The output directory does not exist. Please check the setting."_s);
    return false;
}

QStringList JSettingBase::archiveClasses() const
{
    return {u"JSettingBase"_s, u"NSObject"_s};
}

void JSettingBase::encodeWithCoder(foundation::KeyedEncoder &coder) const
{
    // All three, needed or not: an empty text stands for none.
    coder.encodeString(orEmpty(m_videoOutputPath), u"video_out"_s);
    coder.encodeString(orEmpty(m_musicOutputPath), u"audio_out"_s);
    coder.encodeString(orEmpty(m_snapshotOutputPath), u"snapshot_out"_s);
}

}  // namespace kestrel
