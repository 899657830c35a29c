#include "JKestrelSettingDispatcher.h"

#include "JKestrelSetting.h"

using namespace Qt::StringLiterals;

namespace kestrel {

std::shared_ptr<JKestrelSettingDispatcher> JKestrelSettingDispatcher::SettingDispatcherWithType(qint32 kind)
{
    return std::make_shared<JKestrelSettingDispatcher>(kind, JKestrelSetting::ShareInst());
}

JKestrelSettingDispatcher::JKestrelSettingDispatcher(qint32 kind, JKestrelSetting &setting)
    : m_dispatchType(kind),
      m_setting(&setting),
      m_currentSetting(setting.ofModule(kind))
{
}

void JKestrelSettingDispatcher::setVideoDir(const QString &path)
{
    if (m_currentSetting)
        m_currentSetting->setVideoOutputPath(path);
}

QString JKestrelSettingDispatcher::getVideoDir() const
{
    return m_currentSetting ? m_currentSetting->videoOutputPath() : QString();
}

QString JKestrelSettingDispatcher::getMusicDir() const
{
    return m_currentSetting ? m_currentSetting->musicOutputPath() : QString();
}

QString JKestrelSettingDispatcher::getSnapshotDir() const
{
    return m_currentSetting ? m_currentSetting->snapshotOutputPath() : QString();
}

void JKestrelSettingDispatcher::setSafeMode(bool enabled)
{
    if (m_currentSetting)
        m_currentSetting->setSafeMode(enabled);
}

bool JKestrelSettingDispatcher::getSafeMode() const
{
    return m_currentSetting && m_currentSetting->safeMode();
}

void JKestrelSettingDispatcher::setCpuCore(qint64 cores)
{
    if (m_currentSetting)
        m_currentSetting->setCpuCore(cores);
}

qint64 JKestrelSettingDispatcher::getCpuCore() const
{
    return m_currentSetting ? m_currentSetting->cpuCore() : 0;
}

void JKestrelSettingDispatcher::setHQE(bool enabled)
{
    if (m_currentSetting)
        m_currentSetting->setHighQualityEngine(enabled);
}

bool JKestrelSettingDispatcher::getHQE() const
{
    return m_currentSetting && m_currentSetting->highQualityEngine();
}

void JKestrelSettingDispatcher::setDeinterlacing(bool enabled)
{
    if (m_currentSetting)
        m_currentSetting->setDeinterlacing(enabled);
}

bool JKestrelSettingDispatcher::getDeinterlacing() const
{
    return m_currentSetting && m_currentSetting->deinterlacing();
}

void JKestrelSettingDispatcher::setMergeMedia(bool enabled)
{
    if (m_currentSetting)
        m_currentSetting->setMergeMedia(enabled);
}

bool JKestrelSettingDispatcher::mergeMedia() const
{
    return m_currentSetting && m_currentSetting->mergeMedia();
}

void JKestrelSettingDispatcher::setMergeMKV(bool enabled)
{
    if (m_currentSetting)
        m_currentSetting->setMerge2MKV(enabled);
}

bool JKestrelSettingDispatcher::mergeMKV() const
{
    return m_currentSetting && m_currentSetting->merge2MKV();
}

void JKestrelSettingDispatcher::setAutoCopy(bool enabled)
{
    if (m_currentSetting)
        m_currentSetting->setAutoCopy(enabled);
}

bool JKestrelSettingDispatcher::autoCopy() const
{
    return m_currentSetting && m_currentSetting->autoCopy();
}

void JKestrelSettingDispatcher::setAdd2iTunesLib(bool enabled)
{
    if (m_currentSetting)
        m_currentSetting->setAdd2iTunesLib(enabled);
}

bool JKestrelSettingDispatcher::add2iTunesLib() const
{
    return m_currentSetting && m_currentSetting->isAdd2iTunesLib();
}

bool JKestrelSettingDispatcher::check(QString *error) const
{
    return m_currentSetting && m_currentSetting->checkSetting(error);
}

void JKestrelSettingDispatcher::setOpenFolder(bool enabled)
{
    m_setting->setOpenFolderWhenDone(enabled);
}

bool JKestrelSettingDispatcher::isOpenWhenDone() const
{
    return m_setting->openFolderWhenDone();
}

void JKestrelSettingDispatcher::setShutdownJiQi(bool enabled)
{
    m_setting->setShutdownWhenDone(enabled);
}

bool JKestrelSettingDispatcher::isShutdownWhenDone() const
{
    return m_setting->shutdownWhenDone();
}

void JKestrelSettingDispatcher::setQSV(bool enabled)
{
    m_setting->setIntelQSV(enabled);
}

bool JKestrelSettingDispatcher::getQSV() const
{
    return m_setting->intelQSV();
}

QString JKestrelSettingDispatcher::getMediaInfoPath() const
{
    return m_setting->mediaInfoPath();
}

QString JKestrelSettingDispatcher::getTranscoderPath() const
{
    return m_setting->transcoderPath();
}

QString JKestrelSettingDispatcher::getPlayerPath() const
{
    return m_setting->playerPath();
}

QString JKestrelSettingDispatcher::getDiscInfoPath() const
{
    return m_setting->discInfoPath();
}

QString JKestrelSettingDispatcher::getDisc2ISOPath() const
{
    return m_setting->disc2isoPath();
}

QString JKestrelSettingDispatcher::getDiscCoverPath() const
{
    return m_setting->discCoverPath();
}

void JKestrelSettingDispatcher::setDefaultFormat(const QString &format)
{
    m_setting->downloader()->setPreferedFormat(format);
}

QString JKestrelSettingDispatcher::getDefaultFormat() const
{
    return m_setting->downloader()->preferedFormat();
}

void JKestrelSettingDispatcher::setDefaultResolution(const QString &resolution)
{
    m_setting->downloader()->setPreferedResolution(resolution);
}

QString JKestrelSettingDispatcher::getDefaultResolution() const
{
    return m_setting->downloader()->preferedResolution();
}

void JKestrelSettingDispatcher::setConcurrentThread(qint64 downloads)
{
    m_setting->downloader()->setPreferedConcurrent(downloads);
}

qint64 JKestrelSettingDispatcher::getConcurrentThread() const
{
    return m_setting->downloader()->preferedConcurrent();
}

void JKestrelSettingDispatcher::setProxyEnable(bool enabled)
{
    m_setting->downloader()->setProxyEnabled(enabled);
}

bool JKestrelSettingDispatcher::isProxyEnabled() const
{
    return m_setting->downloader()->proxyEnabled();
}

void JKestrelSettingDispatcher::setProxyString(const QString &url, const QString &port)
{
    m_setting->downloader()->setProxyURL(url);
    m_setting->downloader()->setProxyPort(port);
}

QString JKestrelSettingDispatcher::proxyString() const
{
    const auto part = [](const QString &text) { return text.isNull() ? u"(null)"_s : text; };
    return part(m_setting->downloader()->proxyURL()) + u':' + part(m_setting->downloader()->proxyPort());
}

void JKestrelSettingDispatcher::setDefaultRecordQuality(qint32 quality)
{
    m_setting->recorder()->setRecordQuality(quality);
}

qint32 JKestrelSettingDispatcher::getRecorderDefaultQuality() const
{
    return m_setting->recorder()->recordQuality();
}

void JKestrelSettingDispatcher::setMaxFramerate(double rate)
{
    m_setting->recorder()->setMaxFrameRate(rate);
}

double JKestrelSettingDispatcher::getRecorderMaxFramerate() const
{
    return m_setting->recorder()->maxFrameRate();
}

void JKestrelSettingDispatcher::setVideoDeviceID(const QString &identifier)
{
    m_setting->recorder()->setRecordVideoDeviceID(identifier);
}

QString JKestrelSettingDispatcher::getCurrentVideoDeviceID() const
{
    return m_setting->recorder()->recordVideoDeviceID();
}

void JKestrelSettingDispatcher::setAudioDeviceID(const QString &identifier)
{
    m_setting->recorder()->setRecordAudioDeviceID(identifier);
}

QString JKestrelSettingDispatcher::getCurrentAudioDeviceID() const
{
    return m_setting->recorder()->recordAudioDeviceID();
}

void JKestrelSettingDispatcher::setRecordChoices(const QString &choices)
{
    m_setting->recorder()->setRecordChoices(choices);
}

QString JKestrelSettingDispatcher::getRecordChoices() const
{
    return m_setting->recorder()->recordChoices();
}

void JKestrelSettingDispatcher::setCaptureMouseClick(bool capture)
{
    m_setting->recorder()->setCaptureMouseClick(capture);
}

bool JKestrelSettingDispatcher::isCaptureMouseClick() const
{
    return m_setting->recorder()->captureMouseClick();
}

QString JKestrelSettingDispatcher::getDVDPreferredAudioLanCode() const
{
    return m_setting->dvd()->prefferLanguage();
}

}  // namespace kestrel
