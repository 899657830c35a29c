#include "MediaInformation.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr qsizetype maximumTracks = 256;
constexpr double longestDuration = 1000.0 * 3600;

QString textOf(const QJsonObject &track, const QString &key)
{
    constexpr qsizetype maximumTextLength = 80;
    return track.value(key).toString().left(maximumTextLength).simplified();
}

/// The tool writes numbers as text; its older versions append further values after a slash.
std::optional<double> positiveNumberOf(const QJsonObject &track, const QString &key)
{
    bool isNumber = false;
    const double number = textOf(track, key).section(u'/', 0, 0).trimmed().toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number) || number <= 0)
        return std::nullopt;
    return number;
}

QString codecOf(const QJsonObject &track)
{
    const QString format = textOf(track, u"Format"_s);
    // MP3 and its predecessors share a name and differ in the layer only.
    return format == "MPEG Audio"_L1 ? QString(format + u' ' + textOf(track, u"Format_Profile"_s)).trimmed() : format;
}

bool isPlain(const QJsonObject &track)
{
    const QString chroma = textOf(track, u"ChromaSubsampling"_s);
    return positiveNumberOf(track, u"BitDepth"_s).value_or(8) <= 8 &&
           (chroma.isEmpty() || chroma.startsWith("4:2:0"_L1));
}

void readTrack(const QJsonObject &track, MediaInformation &information)
{
    const QString kind = textOf(track, u"@type"_s);
    if (kind == "General"_L1) {
        information.format = textOf(track, u"Format"_s);
    } else if (kind == "Video"_L1 && !information.hasVideo) {
        information.hasVideo = true;
        information.videoCodec = codecOf(track);
        information.isPlainVideo = isPlain(track);
    } else if (kind == "Audio"_L1 && !information.hasAudio) {
        information.hasAudio = true;
        information.audioCodec = codecOf(track);
    } else {
        return;
    }
    if (const auto duration = positiveNumberOf(track, u"Duration"_s); duration && *duration <= longestDuration)
        information.duration = std::max(information.duration.value_or(0), *duration);
}

}  // namespace

QString MediaInformation::summary() const
{
    QStringList parts{format, videoCodec, audioCodec};
    if (videoCodec.isEmpty() && audioCodec.startsWith(format))
        parts.removeFirst();
    parts.removeAll(QString());
    parts.removeDuplicates();
    return parts.join(u" · "_s);
}

std::optional<MediaInformation> parseMediaInformation(const QByteArray &json)
{
    if (json.size() > maximumReportBytes)
        return std::nullopt;
    const QJsonArray tracks = QJsonDocument::fromJson(json).object()["media"_L1].toObject()["track"_L1].toArray();
    MediaInformation information;
    for (qsizetype index = 0; index < std::min(tracks.size(), maximumTracks); ++index)
        readTrack(tracks.at(index).toObject(), information);
    if (information.format.isEmpty() && !information.canBeConverted())
        return std::nullopt;
    return information;
}

}  // namespace kestrel
