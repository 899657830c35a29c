#include "Download.h"

#include "foundation/Bundle.h"
#include "foundation/StandardFolders.h"
#include "media/MediaProber.h"
#include "settings/JKestrelSetting.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "settings/ModuleSettings.h"
#include "tarnwell/ProductInformation.h"

#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kestrel {

DownloadPlan downloadPlan(const JKestrelSettingDispatcher &settings, const QString &address)
{
    const QString format = settings.getDefaultFormat();
    DownloadPlan plan;
    plan.address = address;
    plan.height = heightOfResolution(settings.getDefaultResolution());
    plan.extension = downloadFormats().contains(format) ? format : downloadFormats().first();
    plan.proxy = downloadProxy(settings);
    return plan;
}

QString downloadFolder(const JKestrelSettingDispatcher &settings, const DownloadPlan &plan)
{
    const QString music = settings.getMusicDir();
    return plan.soundOnly && !music.isEmpty() ? music : settings.getVideoDir();
}

QString proxyAddress(QString address, const QString &port)
{
    static const QStringList schemes{u"http"_s, u"https"_s, u"socks4"_s, u"socks4a"_s, u"socks5"_s, u"socks5h"_s};
    address = address.trimmed();
    if (!address.contains("://"_L1))
        address.prepend("http://"_L1);
    QUrl url(address);
    if (url.scheme() == "socks"_L1)
        url.setScheme(u"socks5"_s);
    bool isNumber = false;
    const int number = port.trimmed().toInt(&isNumber);
    if (isNumber && number > 0 && number < 65536)
        url.setPort(number);
    return url.isValid() && !url.host().isEmpty() && schemes.contains(url.scheme()) ? url.toString(QUrl::FullyEncoded)
                                                                                    : QString();
}

QString downloadProxy(const JKestrelSettingDispatcher &settings)
{
    const JDownloaderSetting &setting = *settings.setting()->downloader();
    if (!setting.proxyEnabled())
        return {};
    // What was to go by a proxy goes no other way.
    const QString proxy = proxyAddress(setting.proxyURL(), setting.proxyPort());
    return proxy.isNull() ? deadProxy.toString() : proxy;
}

int downloadsAtOnce(const JKestrelSettingDispatcher &settings)
{
    constexpr int unlimited = 1000;
    const qint64 downloads = settings.getConcurrentThread();
    return downloads < 1 ? unlimited : int(std::min<qint64>(downloads, unlimited));
}

QString downloadDataFolder()
{
    return foundation::dataDirectory() + u'/' + tarnwell::GetApplicationName() + "/downloads"_L1;
}

EngineStore engineStore()
{
    return {downloadDataFolder() + "/engine"_L1,
            tarnwell::productBundle().resource(u"petrel.bundle/Contents/Resources/yt-dlp"_s)};
}

EngineTools engineTools(const JKestrelSettingDispatcher &settings)
{
    return {
        .engine = engineStore().engine(),
        .transcoderFolder = QFileInfo(settings.getTranscoderPath()).absolutePath(),
        .home = downloadDataFolder() + "/home"_L1,
        .python = tarnwell::productBundle().resource(u"petrel.bundle/Contents/Resources/python"_s),
        .tried = [](const EngineTools &tools, std::optional<EngineFailure::Kind> failure) -> std::optional<QString> {
            using enum EngineStore::Damage;
            const EngineStore store = engineStore();
            if (failure)
                return store.fallBack(tools.engine,
                                      *failure == EngineFailure::Kind::EngineBroken ? Broken : OneAddress);
            store.prove(tools.engine, tools.failed);
            return std::nullopt;
        }};
}

DownloadTools downloadTools(const JKestrelSettingDispatcher &settings, int processors)
{
    DownloadTools tools;
    tools.engine = engineTools(settings);
    tools.transcode.transcoder = settings.getTranscoderPath();
    tools.transcode.prober = proberBeside(tools.transcode.transcoder);
    tools.transcode.machine.processors = processors;
    if (settings.getQSV())
        tools.transcode.machine.findHardware();
    tools.answers = downloadDataFolder() + "/answers"_L1;
    return tools;
}

JobRecord downloadJob(const DownloadPlan &plan, const QString &folder)
{
    JobRecord record;
    record.module = petrelJobs.toString();
    record.state = JobState::Ready;
    record.source = plan.address;
    record.title = plan.title.isEmpty() ? plan.address : plan.title;
    record.plan = plan.toJson();
    record.folder = folder;
    return record;
}

QList<JobRecord> downloadJobs(const DownloadPlan &plan, const EngineAnswer &answer, const QString &folder,
                              const QList<int> &items)
{
    DownloadPlan one = plan;
    if (answer.entries.isEmpty()) {
        one.title = answer.title;
        one.seconds = answer.seconds;
        one.bytes = answer.bytes;
        one.picture = answer.picture;
        return {downloadJob(one, folder)};
    }
    QList<JobRecord> records;
    for (const EngineAnswer::Entry &entry : answer.entries) {
        if (!items.isEmpty() && !items.contains(entry.item))
            continue;
        one.address = entry.address;
        one.item = entry.isOfPage ? entry.item : 0;
        one.title = entry.title;
        one.seconds = entry.seconds;
        one.picture = entry.picture;
        records.append(downloadJob(one, folder));
    }
    return records;
}

}  // namespace kestrel
