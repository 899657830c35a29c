#include "RecordPlan.h"

#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/TextKey.h"

#include <QDateTime>
#include <QJsonArray>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr int planVersion = 1;

// In the order of their enumerations
constexpr std::array whatNames = {"screen"_L1, "window"_L1, "area"_L1, "camera"_L1, "portal"_L1};
constexpr std::array soundNames = {"none"_L1, "system"_L1, "microphone"_L1, "both"_L1};
constexpr std::array qualityNames = {"small"_L1, "good"_L1, "best"_L1};
constexpr std::array containerNames = {"mov"_L1, "mp4"_L1};

template <typename Choice, typename Names>
void readName(const QJsonValue &value, const Names &names, Choice &choice)
{
    const auto found = std::find(names.begin(), names.end(), value.toString());
    if (found != names.end())
        choice = Choice(found - names.begin());
}

template <typename Choice, typename Names>
QString nameOf(const Names &names, Choice choice)
{
    return names.at(size_t(choice));
}

QRect rectangle(const QJsonArray &numbers)
{
    return numbers.size() == 4 ? QRect(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt())
                               : QRect();
}

std::optional<RecordPlan::Inset> readInset(const QJsonArray &numbers)
{
    if (numbers.size() != 3)
        return std::nullopt;
    return RecordPlan::Inset{numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble()}.bounded();
}

}  // namespace

RecordPlan::Inset RecordPlan::Inset::bounded() const
{
    constexpr double smallest = 0.08;
    const double wide = std::clamp(width, smallest, 1.0);
    return {std::clamp(x, 0.0, 1 - wide), std::clamp(y, 0.0, 1 - smallest), wide};
}

QJsonObject RecordPlan::toJson() const
{
    return {{u"version"_s, planVersion},
            {u"inset"_s, inset ? QJsonArray{inset->x, inset->y, inset->width} : QJsonValue()},
            {u"what"_s, nameOf(whatNames, what)},
            {u"screen"_s, screen},
            {u"window"_s, qint64(window)},
            {u"area"_s, QJsonArray{area.x(), area.y(), area.width(), area.height()}},
            {u"camera"_s, camera},
            {u"again"_s, again},
            {u"sound"_s, nameOf(soundNames, sound)},
            {u"microphone"_s, microphone},
            {u"separate_tracks"_s, separateTracks},
            {u"quality"_s, nameOf(qualityNames, quality)},
            {u"rate"_s, rate},
            {u"container"_s, nameOf(containerNames, container)},
            {u"pointer"_s, pointer},
            {u"seconds"_s, seconds},
            {u"name"_s, name}};
}

std::optional<RecordPlan> RecordPlan::fromJson(const QJsonObject &json)
{
    const int version = json["version"_L1].toInt();
    if (version < 1 || version > planVersion)
        return std::nullopt;
    RecordPlan plan;
    readName(json["what"_L1], whatNames, plan.what);
    plan.screen = json["screen"_L1].toString();
    plan.window = quint32(json["window"_L1].toInteger());
    plan.area = rectangle(json["area"_L1].toArray());
    plan.camera = json["camera"_L1].toString();
    plan.again = json["again"_L1].toBool();
    plan.inset = readInset(json["inset"_L1].toArray());
    readName(json["sound"_L1], soundNames, plan.sound);
    plan.microphone = json["microphone"_L1].toString();
    plan.separateTracks = json["separate_tracks"_L1].toBool();
    readName(json["quality"_L1], qualityNames, plan.quality);
    plan.rate = std::clamp(json["rate"_L1].toDouble(plan.rate), minimumRate, maximumRate);
    readName(json["container"_L1], containerNames, plan.container);
    plan.pointer = json["pointer"_L1].toBool(true);
    plan.seconds = std::max(json["seconds"_L1].toDouble(), 0.0);
    plan.name = json["name"_L1].toString();
    return plan;
}

RecordPlan recordPlan(const JKestrelSettingDispatcher &settings)
{
    RecordPlan plan;
    plan.quality = RecordPlan::Quality(std::clamp(settings.getRecorderDefaultQuality(), 0, 2));
    if (const double rate = settings.getRecorderMaxFramerate(); rate > 0)
        plan.rate = std::clamp(rate, RecordPlan::minimumRate, RecordPlan::maximumRate);
    plan.camera = settings.getCurrentVideoDeviceID();
    plan.microphone = settings.getCurrentAudioDeviceID();
    return plan;
}

QString newRecordingName()
{
    using tarnwell::operator""_key;
    const QString time = QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH.mm.ss"_s);
    return tarnwell::Sentence("Recording %1"_key, {time}).localized();
}

}  // namespace kestrel
