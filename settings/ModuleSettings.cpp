#include "ModuleSettings.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString valueOr(const QString &value, const QString &fallback)
{
    return value.isEmpty() ? fallback : value;
}

const QString defaultLanguage = u"Default"_s;
const QString defaultFormat = u"mp4"_s;
const QString defaultResolution = u"Highest Resolution"_s;

}  // namespace

JVideoSetting::JVideoSetting(const foundation::KeyedDecoder *coder) : JSettingBase({.music = false}, coder) {}

QStringList JVideoSetting::archiveClasses() const
{
    return QStringList(u"JVideoSetting"_s) + JSettingBase::archiveClasses();
}

JDVDSetting::JDVDSetting(const foundation::KeyedDecoder *coder)
    : JSettingBase({.music = false}, coder),
      m_prefferLanguage(valueOr(coder ? coder->decodeString(u"DVDAudioLanCode"_s) : QString(), defaultLanguage))
{
}

QStringList JDVDSetting::archiveClasses() const
{
    return QStringList(u"JDVDSetting"_s) + JSettingBase::archiveClasses();
}

void JDVDSetting::encodeWithCoder(foundation::KeyedEncoder &coder) const
{
    JSettingBase::encodeWithCoder(coder);
    coder.encodeString(orEmpty(m_prefferLanguage), u"DVDAudioLanCode"_s);
}

JDownloaderSetting::JDownloaderSetting(const foundation::KeyedDecoder *coder)
    : JSettingBase({.snapshot = false}, coder),
      m_preferedFormat(defaultFormat),
      m_preferedResolution(defaultResolution)
{
    if (!coder)
        return;
    m_preferedResolution = valueOr(coder->decodeString(u"rso"_s), defaultResolution);
    m_preferedConcurrent = coder->decodeInteger(u"concurrent"_s);
    m_preferedFormat = valueOr(coder->decodeString(u"format"_s), defaultFormat);
    m_proxyEnabled = coder->decodeBool(u"proxyEnable"_s);
    m_proxyURL = coder->decodeString(u"proxyURL"_s);
    m_proxyPort = coder->decodeString(u"proxyPort"_s);
}

QStringList JDownloaderSetting::archiveClasses() const
{
    return QStringList(u"JDownloaderSetting"_s) + JSettingBase::archiveClasses();
}

void JDownloaderSetting::encodeWithCoder(foundation::KeyedEncoder &coder) const
{
    JSettingBase::encodeWithCoder(coder);
    coder.encodeString(orEmpty(m_preferedResolution), u"rso"_s);
    coder.encodeInteger(m_preferedConcurrent, u"concurrent"_s);
    coder.encodeString(orEmpty(m_preferedFormat), u"format"_s);
    coder.encodeBool(m_proxyEnabled, u"proxyEnable"_s);
    if (!m_proxyURL.isNull())
        coder.encodeString(m_proxyURL, u"proxyURL"_s);
    if (!m_proxyPort.isNull())
        coder.encodeString(m_proxyPort, u"proxyPort"_s);
}

JRecorderSetting::JRecorderSetting(const foundation::KeyedDecoder *coder)
    : JSettingBase({.music = false, .snapshot = false}, coder)
{
    if (!coder)
        return;
    m_recordQuality = qint32(coder->decodeInteger(u"quality"_s));
    const double frameRate = coder->decodeDouble(u"maxFramerate"_s);
    m_maxFrameRate = std::isfinite(frameRate) ? frameRate : 0;
    m_recordVideoDeviceID = coder->decodeString(u"videoDevice"_s);
    m_recordAudioDeviceID = coder->decodeString(u"audioDevice"_s);
    m_captureMouseClick = coder->decodeBool(u"captureMouse"_s);
    m_recordChoices = coder->decodeString(u"recordChoices"_s);
}

QStringList JRecorderSetting::archiveClasses() const
{
    return QStringList(u"JRecorderSetting"_s) + JSettingBase::archiveClasses();
}

void JRecorderSetting::encodeWithCoder(foundation::KeyedEncoder &coder) const
{
    JSettingBase::encodeWithCoder(coder);
    coder.encodeNumber(m_recordQuality, u"quality"_s);
    coder.encodeNumber(m_maxFrameRate, u"maxFramerate"_s);
    coder.encodeString(orEmpty(m_recordVideoDeviceID), u"videoDevice"_s);
    coder.encodeString(orEmpty(m_recordAudioDeviceID), u"audioDevice"_s);
    coder.encodeNumber(m_captureMouseClick, u"captureMouse"_s);
    if (!m_recordChoices.isNull())
        coder.encodeString(m_recordChoices, u"recordChoices"_s);
}

}  // namespace kestrel
