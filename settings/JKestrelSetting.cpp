#include "JKestrelSetting.h"

#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/SystemInformation.h"

#include <QCryptographicHash>
#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

const QString settingKey = u"setting"_s;
constexpr quint32 avc1 = 0x61766331;

/// Reads the object under `key` where `root` has one of that class, else makes a new one.
template <class Setting>
std::unique_ptr<Setting> makeSetting(const std::optional<foundation::KeyedDecoder> &root, const QString &className,
                                     const QString &key)
{
    if (const auto coder = root ? root->decodeObjectOfClass(className, key) : std::nullopt)
        return std::make_unique<Setting>(&*coder);
    return std::make_unique<Setting>();
}

}  // namespace

JKestrelSetting::JKestrelSetting(foundation::UserDefaults &defaults, bool canEncodeInHardware)
    : JKestrelSetting(defaults)
{
    m_canEncodeInHardware = canEncodeInHardware;
}

JKestrelSetting::JKestrelSetting(foundation::UserDefaults &defaults) : m_defaults(defaults)
{
    load();
    const QString transcoderTools = getFFmpegBundlePath() + "/Contents/Resources/"_L1;
    const QString discTools = getRipperBundlePath() + "/Contents/Resources/"_L1;
    m_mediaInfoPath = transcoderTools + "mediainfo"_L1;
    m_transcoderPath = transcoderTools + "ffmpeg"_L1;
    m_playerPath = transcoderTools + "ffplay"_L1;
    m_discInfoPath = discTools + "discinfo"_L1;
    m_disc2isoPath = discTools + "disc2iso"_L1;
    m_discCoverPath = discTools + "disccover"_L1;
}

JKestrelSetting::~JKestrelSetting() = default;

JKestrelSetting &JKestrelSetting::ShareInst()
{
    static JKestrelSetting shared(foundation::UserDefaults::standardUserDefaults());
    return shared;
}

void JKestrelSetting::load()
{
    const QByteArray archive = m_defaults.dataForKey(settingKey);
    const auto root = foundation::KeyedDecoder::unarchive(archive);
    m_isStoredUnreadable = !archive.isEmpty() && !root;
    m_video = makeSetting<JVideoSetting>(root, u"JVideoSetting"_s, moduleKey(ModuleSettingVideo));
    m_dvd = makeSetting<JDVDSetting>(root, u"JDVDSetting"_s, moduleKey(ModuleSettingDVD));
    m_downloader = makeSetting<JDownloaderSetting>(root, u"JDownloaderSetting"_s, moduleKey(ModuleSettingDownload));
    m_recorder = makeSetting<JRecorderSetting>(root, u"JRecorderSetting"_s, moduleKey(ModuleSettingRecord));
    if (const auto switches = root ? root->decodeObject(u"vars"_s) : std::nullopt) {
        m_openFolderWhenDone = switches->decodeBool(u"openFolder"_s);
        m_shutdownWhenDone = switches->decodeBool(u"shutdown"_s);
        m_notifyWhenAvailable = switches->decodeBool(u"notify"_s);
    }
}

JSettingBase *JKestrelSetting::ofModule(qint32 kind) const
{
    JSettingBase *const settings[] = {m_video.get(), m_dvd.get(), m_downloader.get(), m_recorder.get()};
    return kind >= 0 && kind < qint32(std::size(settings)) ? settings[kind] : nullptr;
}

bool JKestrelSetting::canEncodeInHardware() const
{
    if (!m_canEncodeInHardware)
        m_canEncodeInHardware = tarnwell::HWECanEncodeVideoInSize(avc1, 1280, 720);
    return *m_canEncodeInHardware;
}

void JKestrelSetting::setHardwareChoice(HardwareChoice choice)
{
    m_hardwareChoice = choice;
    m_intelQSV = encodesInHardware(choice, canEncodeInHardware());
}

bool JKestrelSetting::sync()
{
    foundation::KeyedArchiver archiver;
    archiver.setObject(moduleKey(ModuleSettingVideo), *m_video);
    archiver.setObject(moduleKey(ModuleSettingDVD), *m_dvd);
    archiver.setObject(moduleKey(ModuleSettingDownload), *m_downloader);
    archiver.setObject(moduleKey(ModuleSettingRecord), *m_recorder);
    archiver.setNumbers(u"vars"_s, {{u"openFolder"_s, m_openFolderWhenDone},
                                    {u"shutdown"_s, m_shutdownWhenDone},
                                    {u"notify"_s, m_notifyWhenAvailable}});
    const QByteArray archive = archiver.archivedData();
    if (archive.isEmpty()) {
        tarnwell::DNFootLog(u"The settings could not be archived"_s);
        return false;
    }
    if (m_isStoredUnreadable && !m_defaults.keepAside(settingKey))
        return false;
    m_isStoredUnreadable = false;
    m_defaults.setObject(archive, settingKey);
    return m_defaults.synchronize();
}

QString JKestrelSetting::getFFmpegBundlePath() const
{
    return tarnwell::productBundle().resource(u"transcoder.bundle"_s);
}

QString JKestrelSetting::getRipperBundlePath() const
{
    return tarnwell::productBundle().resource(u"heron.bundle"_s);
}

QString JKestrelSetting::traceFlags2019(const QString &tag) const
{
    const bool isFourK = tarnwell::GetApplicationName() == "Kestrel Converter 4K"_L1;
    QString suffix = "?ttsoft="_L1 + (isFourK ? u"kt4kmac"_s : u"ktmac"_s) + u'-' + tarnwell::GetAppCurrentVersion();
    for (const QString &part : {tag, tarnwell::SpecialMakeIdentifier()}) {
        if (!part.isNull())
            suffix += u'-' + part;
    }
    return suffix;
}

QString JKestrelSetting::makePHPParams(const QString &fui, const QString &jump) const
{
    // Another name than the trace suffix tests: the redirect service knows the products so.
    const bool isFourK = tarnwell::GetApplicationName() == "Kestrel 4K"_L1;
    const QStringList languages = m_defaults.stringArrayForKey(u"AppleLanguages"_s);
    const QByteArray escapedJump = jump.isValidUtf16() ? QUrl::toPercentEncoding(jump) : QByteArray();
    const std::pair<QString, QString> pairs[] = {
        {u"an"_s, isFourK ? u"kt4kmac"_s : u"ktmac"_s},
        {u"cvs"_s, tarnwell::GetAppCurrentVersion()},
        {u"pvs"_s, m_previousVersion},
        {u"cb"_s, tarnwell::SpecialMakeIdentifier()},
        {u"ev"_s, m_firstRun ? u"ins"_s : QString()},
        {u"fui"_s, fui},
        {u"lang"_s, languages.isEmpty() ? u"en"_s : languages.first()},
        {u"jump"_s, QString::fromLatin1(escapedJump)},
    };
    QStringList parts;
    for (const auto &[name, value] : pairs)
        parts.append(name + u'=' + value);
    const QString query = parts.join(u'&');
    const QByteArray digest = QCryptographicHash::hash(query.toUtf8(), QCryptographicHash::Md5).toHex().toUpper();
    return tarnwell::PHPRedirectLink() + u'?' + query + "&h="_L1 + QString::fromLatin1(digest);
}

}  // namespace kestrel
