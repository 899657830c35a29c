#include "Preset.h"

#include "Containers.h"
#include "Encoders.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr int presetVersion = 1;
constexpr qsizetype longestPresetText = 200;
constexpr int largestPicture = 16384;
constexpr double mostPictures = 1000;

using tarnwell::operator""_key;
using Refused = foundation::Failure<tarnwell::Sentence>;

/// A whole number of the range; 0 where it is none.
int boundedInteger(const QJsonValue &json, int most)
{
    const double number = json.toDouble();
    return number >= 1 && number <= most && number == std::floor(number) ? int(number) : 0;
}

double boundedNumber(const QJsonValue &json, double most)
{
    const double number = json.toDouble();
    return number > 0 && number <= most ? number : 0;
}

QString boundedText(const QJsonValue &json)
{
    QString text = json.toString().left(longestPresetText);
    text.removeIf([](QChar letter) { return !letter.isPrint(); });
    return text.trimmed();
}

/// Null for none; what is no text is no codec either, but must not read as none.
QString codecText(const QJsonValue &json)
{
    if (json.isUndefined() || json.isNull())
        return {};
    return json.isString() ? boundedText(json) : u"?"_s;
}

bool isPossible(const Container &container, const Preset &preset)
{
    const bool video = !preset.takesVideo() || preset.videoCodec == "copy"_L1 ||
                       tableWords(container.video).contains(preset.videoCodec);
    const bool sound = !preset.takesAudio() || preset.audioCodec == "copy"_L1 ||
                       tableWords(container.sound).contains(preset.audioCodec);
    return video && sound && (container.video || !preset.takesVideo()) && (container.sound || !preset.takesAudio());
}

}  // namespace

QJsonObject Preset::toJson() const
{
    QJsonObject json{{u"version"_s, presetVersion},
                     {u"id"_s, id},
                     {u"name"_s, name},
                     {u"group"_s, group},
                     {u"extension"_s, extension},
                     {u"container"_s, container}};
    if (takesVideo())
        json.insert(u"video"_s, videoCodec);
    if (takesAudio())
        json.insert(u"audio"_s, audioCodec);
    const auto insertNumber = [&](const QString &key, double number) {
        if (number != 0)
            json.insert(key, number);
    };
    insertNumber(u"maximumWidth"_s, maximumWidth);
    insertNumber(u"maximumHeight"_s, maximumHeight);
    insertNumber(u"maximumFrameRate"_s, maximumFrameRate);
    insertNumber(u"audioChannels"_s, audioChannels);
    insertNumber(u"quality"_s, quality);
    insertNumber(u"bestQuality"_s, bestQuality);
    if (plainVideo)
        json.insert(u"plainVideo"_s, true);
    return json;
}

foundation::Result<Preset, tarnwell::Sentence> Preset::fromJson(const QJsonObject &json)
{
    const int version = boundedInteger(json[u"version"_s], 1'000'000);
    if (version == 0)
        return Refused{"This is no preset."_key};
    if (version > presetVersion)
        return Refused{"This preset was made by a newer version of Kestrel."_key};

    Preset preset;
    preset.id = boundedText(json[u"id"_s]);
    preset.name = boundedText(json[u"name"_s]);
    preset.group = boundedText(json[u"group"_s]);
    preset.extension = boundedText(json[u"extension"_s]);
    preset.container = boundedText(json[u"container"_s]);
    preset.videoCodec = codecText(json[u"video"_s]);
    preset.audioCodec = codecText(json[u"audio"_s]);
    preset.maximumWidth = boundedInteger(json[u"maximumWidth"_s], largestPicture);
    preset.maximumHeight = boundedInteger(json[u"maximumHeight"_s], largestPicture);
    preset.maximumFrameRate = boundedNumber(json[u"maximumFrameRate"_s], mostPictures);
    preset.audioChannels = boundedInteger(json[u"audioChannels"_s], 8);
    preset.plainVideo = json[u"plainVideo"_s].toBool();

    if (preset.id.isEmpty() || preset.name.isEmpty())
        return Refused{"This preset has no name."_key};
    const Container *container = containerOf(preset);
    if (!container)
        return Refused{{"Kestrel does not know the kind of file “%1” of this preset."_key, {preset.container}}};
    if (!preset.takesVideo() && !preset.takesAudio())
        return Refused{"This preset keeps neither picture nor sound."_key};
    if (!isPossible(*container, preset))
        return Refused{
            {"A file of the kind %1 cannot hold what this preset asks for: %2."_key,
             {QString::fromLatin1(container->name),
              (QStringList{preset.videoCodec, preset.audioCodec}.filter(QRegularExpression(u"."_s))).join(u", "_s)}}};
    if (const VideoEncoder *encoder = videoEncoderOf(preset.videoCodec)) {
        const auto [lowest, highest] = std::minmax(encoder->finest, encoder->least);
        const auto inRange = [&](const QJsonValue &value) {
            const double number = boundedNumber(value, highest);
            return number < lowest ? 0 : number;
        };
        preset.quality = inRange(json[u"quality"_s]);
        preset.bestQuality = inRange(json[u"bestQuality"_s]);
    }
    return preset;
}

const Preset *presetOfId(const QString &id)
{
    const auto &presets = allPresets();
    const auto found = std::ranges::find(presets, id, &Preset::id);
    return found == presets.end() ? nullptr : &*found;
}

QString presetGroupName(const QString &group)
{
    struct GroupName {
        const char *group;
        tarnwell::TextKey name;
    };
    static constexpr GroupName names[] = {
        {"everywhere", "Plays Everywhere"_key},
        {"small", "Small Files"_key},
        {"archive", "Archive"_key},
        {"web", "Web"_key},
        {"editing", "Editing"_key},
        {"devices", "Devices"_key},
        {"sound", "Sound"_key},
        {"all", "All Formats"_key},
        {"own", "My Presets"_key},
    };
    for (const GroupName &row : names) {
        if (group == QLatin1StringView(row.group))
            return row.name.localized();
    }
    return group;
}

}  // namespace kestrel
