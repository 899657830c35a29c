#include "EngineCommand.h"

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

constexpr auto analysisLimit = 3min;
constexpr auto silenceLimit = 5min;  ///< longer than the engine's own attempts at a silent server take
constexpr auto versionLimit = 30s;

/// Only what comes over http and https, be it in pieces: "https", "m3u8_native", "http_dash_segments".
constexpr QLatin1StringView onlyWeb("[protocol~='^(http|m3u8|ism)']");

/// What a server leads on to goes the same way, and to no FTP server beside it: an option of the engine's would hold
/// for the web alone.
void setProxy(QProcessEnvironment &environment, const QString &proxy)
{
    environment.insert(u"ftp_proxy"_s, proxy.startsWith("http"_L1) ? proxy : deadProxy.toString());
    if (proxy.isEmpty())
        return;
    for (const auto &name : {"no_proxy"_L1, "NO_PROXY"_L1, "HTTP_PROXY"_L1, "HTTPS_PROXY"_L1, "ALL_PROXY"_L1})
        environment.remove(name);
    // The engine leaves the names to the proxy, but knows that way under the shorter name alone.
    const QString known = proxy.startsWith("socks5h:"_L1) ? QString(proxy).remove(6, 1) : proxy;
    for (const auto &name : {u"http_proxy"_s, u"https_proxy"_s, u"all_proxy"_s})
        environment.insert(name, known);
}

/// The engine sees no settings, plug-ins, cookies or caches of the user's, and leaves none.
QProcessEnvironment environmentFor(const DownloadPlan &plan, const EngineTools &tools)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto &name : {"PYTHONPATH"_L1, "PYTHONSTARTUP"_L1, "PYTHONHOME"_L1})
        environment.remove(name);
    if (!tools.python.isEmpty())
        environment.insert(u"PYTHONPATH"_s, tools.python);
    environment.insert(u"PYTHONNOUSERSITE"_s, u"1"_s);
    environment.insert(u"PYTHONDONTWRITEBYTECODE"_s, u"1"_s);
    environment.insert(u"PYTHONUNBUFFERED"_s, u"1"_s);  // what it prints by two ways keeps its order
    environment.insert(u"PYTHONUTF8"_s, u"1"_s);
    environment.insert(u"YTDLP_NO_PLUGINS"_s, u"1"_s);
    environment.insert(u"HOME"_s, tools.home);
    environment.insert(u"XDG_CONFIG_HOME"_s, tools.home + "/config"_L1);
    environment.insert(u"XDG_CACHE_HOME"_s, tools.home + "/cache"_L1);
    environment.insert(u"XDG_DATA_HOME"_s, tools.home + "/data"_L1);
    setProxy(environment, plan.proxy);
    return environment;
}

QStringList commonArguments(const DownloadPlan &plan, const EngineTools &tools)
{
    QStringList arguments{u"--ignore-config"_s,   u"--no-exec"_s,        u"--no-colors"_s,
                          u"--no-update"_s,       u"--no-cache-dir"_s,   u"--no-mark-watched"_s,
                          u"--print-traffic"_s,   u"--socket-timeout"_s, u"20"_s,
                          u"--ffmpeg-location"_s, tools.transcoderFolder};
    if (plan.item > 0)
        arguments << u"--yes-playlist"_s << u"--playlist-items"_s << QString::number(plan.item);
    return arguments;
}

/// What is to be chosen among the forms that are there.
QStringList choiceArguments(const DownloadPlan &plan)
{
    if (plan.soundOnly)
        return {u"--format"_s, "ba"_L1 + onlyWeb + "/b"_L1 + onlyWeb, u"--format-sort"_s,
                plan.extension == "m4a"_L1 ? u"acodec:aac,abr"_s : u"abr"_s};
    const QString lines = plan.height > 0 ? u"res:%1"_s.arg(plan.height) : u"res"_s;
    const QString codecs = plan.extension == "mkv"_L1    ? u"fps"_s
                           : plan.extension == "webm"_L1 ? u"fps,vcodec:vp9,acodec:opus"_s
                                                         : u"fps,vcodec:h264,acodec:aac"_s;
    QStringList arguments{u"--format"_s,
                          "bv*"_L1 + onlyWeb + "+ba"_L1 + onlyWeb + "/b"_L1 + onlyWeb + "/bv*"_L1 + onlyWeb,
                          u"--format-sort"_s, lines + u',' + codecs};
    const QString container = plan.extension == "webm"_L1  ? u"webm/mkv"_s
                              : plan.extension == "mkv"_L1 ? u"mkv"_s
                                                           : u"mp4/mkv"_s;
    return arguments << u"--merge-output-format"_s << container;
}

/// What goes into the file beside picture and sound, where the form that is wanted holds it.
QStringList companionArguments(const DownloadPlan &plan)
{
    static const QStringList holdingCovers{u"mp4"_s, u"mkv"_s, u"m4a"_s, u"mp3"_s};
    const bool hasCover = !plan.picture.isEmpty() && holdingCovers.contains(plan.extension);
    const bool hasSubtitles = !plan.subtitles.isEmpty() && !plan.soundOnly;
    QStringList arguments;
    if (plan.chapters)
        arguments << u"--embed-chapters"_s;
    if (hasSubtitles)
        arguments << u"--write-subs"_s << u"--sub-langs"_s << plan.subtitles.join(u',') << u"--embed-subs"_s;
    if (hasCover)
        arguments << u"--embed-thumbnail"_s << u"--output"_s << u"thumbnail:cover.%(ext)s"_s;
    // What cannot hold them is moved to what can; the conversion takes them over from there.
    if (hasCover || (hasSubtitles && plan.extension != "webm"_L1))
        arguments << u"--remux-video"_s << u"mp4>mp4/m4a>m4a/mp3>mp3/mkv"_s;
    return arguments;
}

}  // namespace

bool takeOtherEngine(EngineTools &tools, EngineFailure::Kind failure)
{
    const auto other = mayBeTheEngine(failure) && tools.tried ? tools.tried(tools, failure) : std::nullopt;
    if (!other)
        return false;
    const bool isKnownToFail = *other == std::exchange(tools.failed, std::exchange(tools.engine, *other));
    if (isKnownToFail)
        tools.tried(tools, failure);
    return !isKnownToFail;
}

ToolCommand analysisCommand(const DownloadPlan &plan, const EngineTools &tools)
{
    QStringList arguments = commonArguments(plan, tools) + choiceArguments(plan);
    arguments << u"--flat-playlist"_s << u"--dump-single-json"_s << u"--"_s << plan.address;
    return {.program = tools.engine,
            .arguments = arguments,
            .environment = environmentFor(plan, tools),
            .timeLimit = analysisLimit,
            .outputLimit = maximumAnswerBytes,
            .collectsOutput = true};
}

ToolCommand downloadCommand(const DownloadPlan &plan, const EngineTools &tools, const QString &folder,
                            const QString &answer)
{
    QStringList arguments = commonArguments(plan, tools) + choiceArguments(plan) + companionArguments(plan);
    arguments
        << u"--newline"_s << u"--progress"_s << u"--progress-template"_s
        << u"download:%1[%(info.format_id)j,%(progress.{status,downloaded_bytes,total_bytes,total_bytes_estimate,speed,eta,fragment_index,fragment_count,filename})j]"_s
               .arg(QLatin1StringView(progressMark))
        << u"--ignore-errors"_s  // of what goes with the film: it tells them, and goes on
        << u"--continue"_s << u"--no-mtime"_s << u"--retries"_s << u"5"_s << u"--fragment-retries"_s << u"5"_s
        << u"--retry-sleep"_s << u"exp=1:10"_s << u"--abort-on-unavailable-fragment"_s << u"--output"_s
        << downloadedName.toString() + u".%(ext)s"_s;
    if (plan.bytesPerSecond > 0)
        arguments << u"--limit-rate"_s << QString::number(plan.bytesPerSecond);
    if (answer.isNull())
        arguments << u"--"_s << plan.address;
    else
        arguments << u"--load-info-json"_s << answer;
    return {.program = tools.engine,
            .arguments = arguments,
            .environment = environmentFor(plan, tools),
            .workingFolder = folder,
            .silenceLimit = silenceLimit};
}

ToolCommand versionCommand(const EngineTools &tools)
{
    return {.program = tools.engine,
            .arguments = {u"--ignore-config"_s, u"--version"_s},
            .environment = environmentFor({}, tools),
            .timeLimit = versionLimit,
            .outputLimit = 64 * 1024,
            .collectsOutput = true};
}

}  // namespace kestrel
