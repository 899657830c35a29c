#include "DiscPlan.h"

#include "tarnwell/TextKey.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr int planVersion = 1;
constexpr const char *wayNames[] = {"image", "folder", "main", "mkv", "mpeg", "sound", "rip"};

QJsonValue trackList(const std::optional<QList<int>> &tracks)
{
    if (!tracks)
        return {};
    QJsonArray array;
    for (const int track : *tracks)
        array.append(track);
    return array;
}

std::optional<QList<int>> readTrackList(const QJsonValue &value)
{
    if (!value.isArray())
        return std::nullopt;
    QList<int> tracks;
    for (const QJsonValue &track : value.toArray())
        tracks.append(track.toInt());
    return tracks;
}

int numberIn(const QJsonValue &value, int low, int high, int otherwise)
{
    const int number = value.toInt(otherwise);
    return number >= low && number <= high ? number : otherwise;
}

/// Places in a list of `count`, of what is wanted and there.
QList<int> placesOf(const std::optional<QList<int>> &tracks, qsizetype count)
{
    QList<int> places;
    if (tracks) {
        for (const int track : *tracks) {
            if (track >= 1 && track <= count && !places.contains(track - 1))
                places.append(track - 1);
        }
        return places;
    }
    for (int place = 0; place < count; ++place)
        places.append(place);
    return places;
}

int lastChapterOf(const DiscPlan &plan, const disc::DiscTitle &title)
{
    const int chapters = int(title.chapters.size());
    return plan.lastChapter == 0 ? chapters : std::min(plan.lastChapter, chapters);
}

double startOfChapter(const DiscPlan &plan, const disc::DiscTitle &title)
{
    return plan.firstChapter > 1 ? title.chapters.value(plan.firstChapter - 1, title.seconds) : 0;
}

}  // namespace

bool takesWholeDisc(DiscWay way)
{
    return way == DiscWay::Image || way == DiscWay::Folder;
}

QString discWayName(DiscWay way)
{
    return QString::fromLatin1(wayNames[int(way)]);
}

std::optional<DiscWay> discWayNamed(const QString &name)
{
    const auto found = std::find_if(std::begin(wayNames), std::end(wayNames),
                                    [&](const char *way) { return name == QLatin1StringView(way); });
    return found == std::end(wayNames) ? std::nullopt : std::optional(DiscWay(found - std::begin(wayNames)));
}

QJsonObject DiscPlan::toJson() const
{
    QJsonObject json{{u"version"_s, planVersion},
                     {u"source"_s, source},
                     {u"way"_s, discWayName(way)},
                     {u"title"_s, title},
                     {u"angle"_s, angle},
                     {u"firstChapter"_s, firstChapter},
                     {u"lastChapter"_s, lastChapter},
                     {u"sound"_s, trackList(soundTracks)},
                     {u"subtitles"_s, trackList(subtitleTracks)},
                     {u"burned"_s, burnedSubtitle},
                     {u"language"_s, language},
                     {u"volume"_s, volume},
                     {u"bytes"_s, bytes},
                     {u"seconds"_s, seconds}};
    if (way == DiscWay::Rip) {
        TranscodePlan stored = transcode;
        stored.sources = {source};  // a plan without any is none
        json[u"transcode"_s] = stored.toJson();
    }
    return json;
}

std::optional<DiscPlan> DiscPlan::fromJson(const QJsonObject &json)
{
    const auto way = discWayNamed(json[u"way"_s].toString());
    const int version = json[u"version"_s].toInt();
    if (!way || version < 1 || version > planVersion || json[u"source"_s].toString().isEmpty())
        return std::nullopt;
    DiscPlan plan;
    plan.source = json[u"source"_s].toString();
    plan.way = *way;
    plan.title = numberIn(json[u"title"_s], 0, 99, 0);
    plan.angle = numberIn(json[u"angle"_s], 1, 9, 1);
    plan.firstChapter = numberIn(json[u"firstChapter"_s], 1, 999, 1);
    plan.lastChapter = numberIn(json[u"lastChapter"_s], 0, 999, 0);
    plan.soundTracks = readTrackList(json[u"sound"_s]);
    plan.subtitleTracks = readTrackList(json[u"subtitles"_s]);
    plan.burnedSubtitle = numberIn(json[u"burned"_s], 0, 32, 0);
    plan.language = json[u"language"_s].toString().left(64);
    plan.volume = json[u"volume"_s].toString().left(256);
    plan.bytes = std::max<qint64>(0, json[u"bytes"_s].toInteger());
    plan.seconds = std::max(0.0, json[u"seconds"_s].toDouble());
    if (plan.way == DiscWay::Rip) {
        auto transcode = TranscodePlan::fromJson(json[u"transcode"_s].toObject());
        if (!transcode)
            return std::nullopt;
        plan.transcode = *std::move(transcode);
    }
    return plan;
}

bool describeDisc(const disc::DiscContents &contents, DiscPlan &plan)
{
    plan.volume = contents.volume;
    plan.bytes = contents.bytes;
    if (takesWholeDisc(plan.way))
        return true;
    const disc::DiscTitle *title = titleOf(contents, plan);
    if (!title)
        return false;
    const disc::DiscTitle part = chosenPart(plan, *title);
    plan.bytes = part.bytes;
    plan.seconds = part.seconds;
    return true;
}

const disc::DiscTitle *titleOf(const disc::DiscContents &contents, const DiscPlan &plan)
{
    if (plan.title == 0)
        return contents.mainTitle();
    const auto found = std::find_if(contents.titles.begin(), contents.titles.end(),
                                    [&](const disc::DiscTitle &title) { return title.number == plan.title; });
    return found == contents.titles.end() ? nullptr : &*found;
}

QString discOutputName(const DiscPlan &plan, const disc::DiscContents &contents)
{
    const QString volume = contents.volume.isEmpty() ? u"DVD"_s : contents.volume;
    const disc::DiscTitle *title = titleOf(contents, plan);
    const bool namesNone = takesWholeDisc(plan.way) || !title || (plan.way == DiscWay::Main && title->isMain);
    return namesNone ? volume : Sentence("%1 - Title %2"_key, {volume, QString::number(title->number)}).localized();
}

QList<int> chosenSound(const DiscPlan &plan, const disc::DiscTitle &title)
{
    QList<int> places = placesOf(plan.soundTracks, title.audio.size());
    const QString language = plan.language.section(u'-', 0, 0);
    const auto isPreferred = [&](int place) {
        const disc::DiscAudio &track = title.audio[place];
        const bool isCommentary = track.purpose.endsWith("ommentary"_L1);
        return !language.isEmpty() && track.language == language && !isCommentary;
    };
    std::stable_partition(places.begin(), places.end(), isPreferred);
    return places;
}

QList<int> chosenSubtitles(const DiscPlan &plan, const disc::DiscTitle &title)
{
    QList<int> places = placesOf(plan.subtitleTracks, title.subtitles.size());
    const int burned = plan.burnedSubtitle - 1;
    if (burned >= 0 && burned < title.subtitles.size() && !places.contains(burned))
        places.append(burned);
    std::sort(places.begin(), places.end());
    return places;
}

double chosenSeconds(const DiscPlan &plan, const disc::DiscTitle &title)
{
    const int last = lastChapterOf(plan, title);
    const double end = last < title.chapters.size() ? title.chapters[last] : title.seconds;
    return std::max(0.0, end - startOfChapter(plan, title));
}

double filmSeconds(const DiscPlan &plan, const disc::DiscTitle &title)
{
    constexpr double rounding = 0.002;
    const double seconds = chosenSeconds(plan, title), end = startOfChapter(plan, title) + seconds;
    const auto last = std::find_if(title.stills.begin(), title.stills.end(), [&](const disc::DiscStill &still) {
        return std::abs(still.start + still.seconds - end) < rounding;
    });
    return last == title.stills.end() ? seconds : std::max(0.0, seconds - last->seconds);
}

disc::DiscTitle chosenPart(const DiscPlan &plan, disc::DiscTitle title)
{
    const double seconds = chosenSeconds(plan, title);
    if (title.seconds > 0)
        title.bytes = qint64(double(title.bytes) * seconds / title.seconds);
    title.seconds = seconds;
    return title;
}

QList<double> chosenChapters(const DiscPlan &plan, const disc::DiscTitle &title)
{
    QList<double> starts;
    for (int chapter = plan.firstChapter; chapter <= lastChapterOf(plan, title); ++chapter)
        starts.append(title.chapters[chapter - 1] - startOfChapter(plan, title));
    return starts;
}

qint64 expectedBytesOf(const DiscPlan &plan)
{
    // Of the disc's own bytes; titles to files take a step between, beside the result.
    const auto share = [&] {
        switch (plan.way) {
            case DiscWay::Image:
            case DiscWay::Folder:
            case DiscWay::Mpeg:
                return 1.0;
            case DiscWay::Main:
                return 1.02;
            case DiscWay::Sound:
                return 0.5;
            case DiscWay::Mkv:
                return 2.05;
            case DiscWay::Rip:
                break;
        }
        return plan.transcode.preset.takesVideo() ? 2.5 : 1.0;
    }();
    return qint64(double(plan.bytes) * share);
}

}  // namespace kestrel
