#include "MediaInformation.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

struct NamedThing {
    QLatin1StringView id;
    QLatin1StringView name;
};

constexpr NamedThing formatNames[] = {
    {"matroska"_L1, "Matroska"_L1},
    {"avi"_L1, "AVI"_L1},
    {"mpegts"_L1, "MPEG-TS"_L1},
    {"mpeg"_L1, "MPEG"_L1},
    {"asf"_L1, "Windows Media"_L1},
    {"flv"_L1, "Flash Video"_L1},
    {"ogg"_L1, "Ogg"_L1},
    {"wav"_L1, "WAV"_L1},
    {"mp3"_L1, "MP3"_L1},
    {"flac"_L1, "FLAC"_L1},
    {"aac"_L1, "AAC"_L1},
    {"ac3"_L1, "AC-3"_L1},
    {"gif"_L1, "GIF"_L1},
    {"apng"_L1, "Animated PNG"_L1},
    {"mxf"_L1, "MXF"_L1},
    {"aiff"_L1, "AIFF"_L1},
    {"dv"_L1, "DV"_L1},
    {"rm"_L1, "RealMedia"_L1},
    {"mpegvideo"_L1, "MPEG"_L1},
};

constexpr NamedThing codecNames[] = {
    {"h264"_L1, "H.264"_L1},        {"hevc"_L1, "H.265"_L1},        {"mpeg4"_L1, "MPEG-4"_L1},
    {"mpeg2video"_L1, "MPEG-2"_L1}, {"mpeg1video"_L1, "MPEG-1"_L1}, {"prores"_L1, "ProRes"_L1},
    {"dnxhd"_L1, "DNxHD"_L1},       {"theora"_L1, "Theora"_L1},     {"mjpeg"_L1, "Motion JPEG"_L1},
    {"dvvideo"_L1, "DV"_L1},        {"ac3"_L1, "AC-3"_L1},          {"eac3"_L1, "E-AC-3"_L1},
    {"opus"_L1, "Opus"_L1},         {"vorbis"_L1, "Vorbis"_L1},     {"truehd"_L1, "TrueHD"_L1},
    {"wmav2"_L1, "WMA"_L1},         {"apng"_L1, "Animated PNG"_L1}, {"rawvideo"_L1, "Uncompressed"_L1},
};

template <size_t Count>
QString nameIn(const NamedThing (&table)[Count], const QString &id)
{
    const auto *thing = std::find_if(std::begin(table), std::end(table),
                                     [&id](const NamedThing &candidate) { return candidate.id == id; });
    return thing == std::end(table) ? QString() : QString(thing->name);
}

QString codecName(const QString &codec)
{
    if (codec.startsWith("pcm_"_L1))
        return u"PCM"_s;
    const QString name = nameIn(codecNames, codec);
    return name.isNull() ? codec.toUpper() : name;
}

QString formatName(const MediaInformation &information)
{
    const QString first = information.format.section(u',', 0, 0);
    if (first == "mov"_L1)
        return information.tags.value(u"major_brand"_s).trimmed() == "qt"_L1 ? u"QuickTime"_s : u"MPEG-4"_s;
    const QString name = nameIn(formatNames, first);
    return name.isNull() ? first.toUpper() : name;
}

}  // namespace

bool MediaTrack::isHdr() const
{
    return colorTransfer == "smpte2084"_L1 || colorTransfer == "arib-std-b67"_L1;
}

bool MediaTrack::isInterlaced() const
{
    return fieldOrder == FieldOrder::TopFirst || fieldOrder == FieldOrder::BottomFirst;
}

const MediaTrack *MediaInformation::firstOf(MediaTrack::Kind kind) const
{
    const MediaTrack *first = nullptr;
    for (const MediaTrack &track : tracks) {
        if (track.kind != kind)
            continue;
        if (track.isDefault)
            return &track;
        if (!first)
            first = &track;
    }
    return first;
}

QList<MediaTrack> MediaInformation::tracksOf(MediaTrack::Kind kind) const
{
    QList<MediaTrack> result;
    std::copy_if(tracks.begin(), tracks.end(), std::back_inserter(result),
                 [kind](const MediaTrack &track) { return track.kind == kind; });
    return result;
}

bool MediaInformation::headerTellsDuration() const
{
    // Elsewhere ffprobe takes the last time stamp that it finds, or guesses by the bit rate.
    constexpr QLatin1StringView telling[] = {"mov"_L1, "matroska"_L1, "asf"_L1,  "flv"_L1, "wav"_L1,
                                             "w64"_L1, "aiff"_L1,     "flac"_L1, "caf"_L1, "mxf"_L1,
                                             "ape"_L1, "tta"_L1,      "wv"_L1};
    const QString first = format.section(u',', 0, 0);
    return duration && std::find(std::begin(telling), std::end(telling), first) != std::end(telling);
}

QString MediaInformation::summary() const
{
    QStringList parts{formatName(*this)};
    for (const auto kind : {MediaTrack::Kind::Video, MediaTrack::Kind::Audio}) {
        if (const MediaTrack *track = firstOf(kind))
            parts.append(codecName(track->codec));
    }
    parts.removeAll(QString());
    parts.removeDuplicates();
    return parts.join(u" · "_s);
}

}  // namespace kestrel
