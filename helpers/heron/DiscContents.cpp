#include "DiscContents.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

constexpr int maximumTitles = 99;
constexpr int maximumChapters = 999;
constexpr int maximumStills = 9999;
constexpr int maximumAudio = 8;
constexpr int maximumSubtitles = 32;

QString hexColor(quint32 color)
{
    return u"%1"_s.arg(color, 6, 16, QLatin1Char('0'));
}

int boundedInt(const QJsonValue &value, int low, int high, int otherwise)
{
    const double number = value.toDouble(low - 1.0);
    return number >= low && number <= high ? static_cast<int>(number) : otherwise;
}

double positiveNumber(const QJsonValue &value)
{
    const double number = value.toDouble();
    return number > 0 && number < 1e15 ? number : 0;
}

QJsonObject toJson(const DiscAudio &track)
{
    return {{u"language"_s, track.language},
            {u"codec"_s, track.codec},
            {u"channels"_s, track.channels},
            {u"purpose"_s, track.purpose},
            {u"id"_s, track.streamId}};
}

QJsonObject toJson(const DiscSubtitle &track)
{
    QJsonArray palette;
    for (const quint32 color : track.palette)
        palette.append(hexColor(color));
    return {{u"language"_s, track.language},
            {u"purpose"_s, track.purpose},
            {u"palette"_s, palette},
            {u"id"_s, track.streamId}};
}

DiscAudio audioFromJson(const QJsonObject &object)
{
    return {object[u"language"].toString(), object[u"codec"].toString(), boundedInt(object[u"channels"], 0, 8, 0),
            object[u"purpose"].toString(), boundedInt(object[u"id"], 0, 0x1ff, 0)};
}

DiscSubtitle subtitleFromJson(const QJsonObject &object)
{
    DiscSubtitle track;
    track.language = object[u"language"].toString();
    track.purpose = object[u"purpose"].toString();
    track.streamId = boundedInt(object[u"id"], 0, 0xff, 0);
    const QJsonArray palette = object[u"palette"].toArray();
    for (qsizetype i = 0; i < std::min<qsizetype>(palette.size(), 16); ++i)
        track.palette[i] = palette[i].toString().toUInt(nullptr, 16) & 0xffffff;
    return track;
}

DiscTitle titleFromJson(const QJsonObject &object)
{
    DiscTitle title;
    title.number = boundedInt(object[u"title"], 1, maximumTitles, 0);
    title.isMain = object[u"main"].toBool();
    title.seconds = positiveNumber(object[u"seconds"]);
    title.aspect = object[u"aspect"].toString();
    title.standard = object[u"standard"].toString();
    title.width = boundedInt(object[u"width"], 0, 4096, 0);
    title.height = boundedInt(object[u"height"], 0, 4096, 0);
    title.angles = boundedInt(object[u"angles"], 1, 9, 1);
    title.duplicateOf = boundedInt(object[u"duplicateOf"], 0, maximumTitles, 0);
    title.bytes = static_cast<qint64>(positiveNumber(object[u"bytes"]));
    for (const QJsonValue &start : object[u"chapters"].toArray())
        if (title.chapters.size() < maximumChapters)
            title.chapters.append(positiveNumber(start));
    for (const QJsonValue &still : object[u"stills"].toArray())
        if (title.stills.size() < maximumStills)
            title.stills.append({positiveNumber(still[u"start"]), boundedInt(still[u"seconds"], 0, 254, 0)});
    for (const QJsonValue &track : object[u"audio"].toArray())
        if (title.audio.size() < maximumAudio)
            title.audio.append(audioFromJson(track.toObject()));
    for (const QJsonValue &track : object[u"subtitles"].toArray())
        if (title.subtitles.size() < maximumSubtitles)
            title.subtitles.append(subtitleFromJson(track.toObject()));
    return title;
}

}  // namespace

QString DiscSubtitle::codecData(int width, int height) const
{
    QStringList colors;
    for (const quint32 color : palette)
        colors.append(hexColor(color));
    return u"size: %1x%2\npalette: %3\n"_s.arg(width).arg(height).arg(colors.join(u", "_s));
}

const DiscTitle *DiscContents::mainTitle() const
{
    const auto found = std::find_if(titles.begin(), titles.end(), [](const DiscTitle &title) { return title.isMain; });
    if (found != titles.end())
        return &*found;
    return titles.isEmpty() ? nullptr : &titles.first();
}

QJsonObject toJson(const DiscTitle &title)
{
    QJsonArray chapters, audio, subtitles;
    for (const double start : title.chapters)
        chapters.append(start);
    for (const DiscAudio &track : title.audio)
        audio.append(toJson(track));
    for (const DiscSubtitle &track : title.subtitles)
        subtitles.append(toJson(track));
    QJsonObject object{{u"title"_s, title.number},  {u"main"_s, title.isMain},       {u"seconds"_s, title.seconds},
                       {u"aspect"_s, title.aspect}, {u"standard"_s, title.standard}, {u"width"_s, title.width},
                       {u"height"_s, title.height}, {u"chapters"_s, chapters},       {u"angles"_s, title.angles},
                       {u"audio"_s, audio},         {u"subtitles"_s, subtitles},     {u"bytes"_s, title.bytes}};
    QJsonArray stills;
    for (const DiscStill &still : title.stills)
        stills.append(QJsonObject{{u"start"_s, still.start}, {u"seconds"_s, still.seconds}});
    if (!stills.isEmpty())
        object.insert(u"stills"_s, stills);
    if (title.duplicateOf)
        object.insert(u"duplicateOf"_s, title.duplicateOf);
    return object;
}

QJsonObject toJson(const DiscContents &contents)
{
    QJsonArray titles;
    for (const DiscTitle &title : contents.titles)
        titles.append(toJson(title));
    QJsonObject object{{u"volume"_s, contents.volume},
                       {u"bytes"_s, contents.bytes},
                       {u"protected"_s, contents.isProtected},
                       {u"titles"_s, titles}};
    if (contents.isTruncated)
        object.insert(u"truncated"_s, true);
    return object;
}

std::optional<DiscContents> discContentsFromJson(const QJsonObject &object)
{
    if (!object[u"titles"].isArray())
        return std::nullopt;
    DiscContents contents;
    contents.volume = object[u"volume"].toString();
    contents.bytes = static_cast<qint64>(positiveNumber(object[u"bytes"]));
    contents.isProtected = object[u"protected"].toBool();
    contents.isTruncated = object[u"truncated"].toBool();
    for (const QJsonValue &value : object[u"titles"].toArray()) {
        const DiscTitle title = titleFromJson(value.toObject());
        if (title.number && contents.titles.size() < maximumTitles)
            contents.titles.append(title);
    }
    return contents;
}

}  // namespace kestrel::disc
