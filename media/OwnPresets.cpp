#include "OwnPresets.h"

#include "foundation/UserDefaults.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QUuid>

#include <algorithm>
#include <map>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr int collectionVersion = 1;
constexpr qsizetype mostPresets = 500;

using tarnwell::operator""_key;
using Refused = foundation::Failure<tarnwell::Sentence>;

const QString optionsKey = u"options"_s;
const QString presetsKey = u"presets"_s;
const QString versionKey = u"kestrelPresets"_s;

/// What belongs to one file, or names one of this machine.
constexpr QLatin1StringView keysOfFiles[] = {
    "sources"_L1,   "preset"_L1,    "crop"_L1,        "watermark"_L1,         "pieces"_L1,
    "subtitles"_L1, "exactCuts"_L1, "audioTracks"_L1, "externalSubtitles"_L1, "turn"_L1,
    "mirrored"_L1,  "fadeIn"_L1,    "fadeOut"_L1};

QJsonObject withoutFileMembers(QJsonObject plan)
{
    for (const QLatin1StringView key : keysOfFiles)
        plan.remove(key);
    return plan;
}

/// The options as the plan's own reader understands them, all others dropped.
QJsonObject readOptions(const QJsonObject &json, const Preset &preset)
{
    QJsonObject whole = withoutFileMembers(json);
    whole[u"sources"_s] = QJsonArray{u"/"_s};
    whole[u"preset"_s] = preset.toJson();
    const auto plan = TranscodePlan::fromJson(whole);
    return plan ? withoutFileMembers(plan->toJson()) : QJsonObject();
}

/// What belongs to the plan's file stays.
void putOptions(QJsonObject whole, const Preset &preset, TranscodePlan &plan)
{
    const QJsonObject former = plan.toJson();
    for (const QLatin1StringView key : keysOfFiles) {
        if (former.contains(key))
            whole[key] = former[key];
    }
    whole[u"preset"_s] = preset.toJson();
    if (plan.sources.isEmpty())
        whole[u"sources"_s] = QJsonArray{u"/"_s};
    const QStringList sources = plan.sources;
    if (auto changed = TranscodePlan::fromJson(whole)) {
        plan = *changed;
        plan.sources = sources;
    }
}

struct ReadPreset {
    Preset preset;
    QJsonObject options;
};

struct Collection {
    QList<ReadPreset> presets;
    tarnwell::Sentence refused;  ///< why some are left out; none where all were read
};

foundation::Result<Collection, tarnwell::Sentence> readCollection(const QByteArray &bytes)
{
    const QJsonObject root = QJsonDocument::fromJson(bytes).object();
    const int version = root[versionKey].toInt();
    if (version < 1)
        return Refused{"This file holds no presets of Kestrel."_key};
    if (version > collectionVersion)
        return Refused{"This preset was made by a newer version of Kestrel."_key};
    Collection collection;
    for (const QJsonValue &value : root[presetsKey].toArray()) {
        const QJsonObject json = value.toObject();
        auto preset = Preset::fromJson(json);
        if (preset)
            collection.presets.append({*preset, readOptions(json[optionsKey].toObject(), *preset)});
        else
            collection.refused = preset.reason();
    }
    if (collection.presets.isEmpty() && collection.refused.isEmpty())
        return Refused{"This file holds no presets of Kestrel."_key};
    return collection;
}

/// One from outside is taken whole or not at all.
foundation::Result<Collection, tarnwell::Sentence> readPresetFile(const QByteArray &file)
{
    auto read = readCollection(file.size() > maximumPresetFileBytes ? QByteArray() : file);
    if (read && !read->refused.isEmpty())
        return Refused{read->refused};
    return read;
}

QByteArray writtenCollection(const QJsonArray &presets)
{
    return QJsonDocument(QJsonObject{{versionKey, collectionVersion}, {presetsKey, presets}}).toJson();
}

QString cleanName(const QString &name)
{
    constexpr qsizetype longestName = 100;
    return name.simplified().left(longestName);
}

}  // namespace

QJsonObject optionsOf(const TranscodePlan &plan)
{
    return withoutFileMembers(plan.toJson());
}

void setOptions(const QJsonObject &options, TranscodePlan &plan)
{
    putOptions(withoutFileMembers(options), plan.preset, plan);
}

bool applyPresetFile(const QByteArray &file, TranscodePlan &plan)
{
    const auto read = readPresetFile(file);
    if (!read)
        return false;
    putOptions(read->presets.first().options, read->presets.first().preset, plan);
    return true;
}

OwnPresets::OwnPresets(foundation::UserDefaults &defaults, QString key, QObject *parent)
    : QObject(parent),
      m_defaults(defaults),
      m_key(std::move(key))
{
    const QByteArray bytes = m_defaults.dataForKey(m_key);
    const auto stored = readCollection(bytes);
    m_isStoredUnreadable = !bytes.isEmpty() && (!stored || !stored->refused.isEmpty());
    if (!stored)
        return;
    for (const ReadPreset &row : stored->presets.mid(0, mostPresets)) {
        if (presetOfId(row.preset.id) || kestrel::presetOfId(row.preset.id))
            continue;
        m_presets.append(row.preset);
        m_presets.last().group = u"own"_s;
        m_options.insert(row.preset.id, row.options);
    }
}

const Preset *OwnPresets::presetOfId(const QString &id) const
{
    const auto found = std::ranges::find(m_presets, id, &Preset::id);
    return found == m_presets.end() ? nullptr : &*found;
}

void OwnPresets::apply(const QString &id, TranscodePlan &plan) const
{
    const Preset *preset = presetOfId(id);
    if (!preset)
        return;
    putOptions(m_options.value(id), *preset, plan);
}

foundation::Result<QString, tarnwell::Sentence> OwnPresets::save(const QString &name, const TranscodePlan &plan)
{
    if (cleanName(name).isEmpty())
        return Refused{"A preset needs a name."_key};
    if (m_presets.size() >= mostPresets)
        return Refused{"There are too many presets. Delete some first."_key};
    Preset preset = plan.preset;
    preset.name = name;
    const QString id = add(preset, optionsOf(plan));
    keep();
    return id;
}

QString OwnPresets::add(Preset preset, const QJsonObject &options)
{
    preset.id = u"own-"_s + QUuid::createUuid().toString(QUuid::Id128).left(12);
    preset.group = u"own"_s;
    preset.name = cleanName(preset.name);
    m_presets.append(preset);
    m_options.insert(preset.id, options);
    return preset.id;
}

bool OwnPresets::rename(const QString &id, const QString &name)
{
    const auto found = std::ranges::find(m_presets, id, &Preset::id);
    if (found == m_presets.end() || cleanName(name).isEmpty())
        return false;
    found->name = cleanName(name);
    keep();
    return true;
}

void OwnPresets::remove(const QString &id)
{
    if (m_presets.removeIf([&](const Preset &preset) { return preset.id == id; }) > 0) {
        m_options.remove(id);
        keep();
    }
}

void OwnPresets::removeAll()
{
    m_presets.clear();
    m_options.clear();
    keep();
}

QByteArray OwnPresets::exported(const QString &id) const
{
    const Preset *preset = presetOfId(id);
    if (!preset)
        return {};
    QJsonObject json = preset->toJson();
    json[optionsKey] = m_options.value(id);
    return writtenCollection({json});
}

foundation::Result<QString, tarnwell::Sentence> OwnPresets::import(const QByteArray &file)
{
    const auto read = readPresetFile(file);
    if (!read)
        return Refused{read.reason()};
    if (m_presets.size() + read->presets.size() > mostPresets)
        return Refused{"There are too many presets. Delete some first."_key};
    QString first;
    for (const ReadPreset &row : read->presets) {
        const QString id = add(row.preset, row.options);
        first = first.isNull() ? id : first;
    }
    keep();
    return first;
}

void OwnPresets::keep()
{
    QJsonArray all;
    for (const Preset &preset : std::as_const(m_presets)) {
        QJsonObject json = preset.toJson();
        json[optionsKey] = m_options.value(preset.id);
        all.append(json);
    }
    if (std::exchange(m_isStoredUnreadable, false))
        m_defaults.keepAside(m_key);
    if (all.isEmpty())
        m_defaults.removeObjectForKey(m_key);
    else
        m_defaults.setObject(writtenCollection(all), m_key);
    emit changed();
}

std::shared_ptr<OwnPresets> ownPresetsIn(foundation::UserDefaults &defaults)
{
    static std::map<foundation::UserDefaults *, std::weak_ptr<OwnPresets>> all;
    std::weak_ptr<OwnPresets> &known = all[&defaults];
    std::shared_ptr<OwnPresets> presets = known.lock();
    if (!presets) {
        presets = std::make_shared<OwnPresets>(defaults, ownPresetsKey.toString());
        known = presets;
    }
    return presets;
}

}  // namespace kestrel
