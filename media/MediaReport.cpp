// Reads ffprobe's report.
#include "MediaInformation.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr qsizetype maximumTracks = 256;
constexpr qsizetype maximumChapters = 10'000;
constexpr qsizetype maximumTags = 256;
constexpr qsizetype maximumTextLength = 200;
constexpr double longestDuration = 1000.0 * 3600;
constexpr int largestSide = 65'536;

QString reportText(const QJsonValue &value)
{
    return value.toString().left(maximumTextLength).simplified();
}

/// ffprobe's word for what it does not know.
QString knownText(const QJsonObject &object, QLatin1StringView key)
{
    const QString text = reportText(object[key]);
    return text.isEmpty() || text == "unknown"_L1 || text == "reserved"_L1 ? QString() : text;
}

/// Numbers come as numbers and as texts.
std::optional<double> reportNumber(const QJsonValue &value)
{
    if (value.isDouble())
        return value.toDouble();
    bool isNumber = false;
    const double number = reportText(value).toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

int reportInteger(const QJsonValue &value, int largest)
{
    const double number = reportNumber(value).value_or(0);
    return number >= 0 && number <= largest ? int(number) : 0;
}

qint64 reportCount(const QJsonValue &value)
{
    constexpr double largest = 9e15;
    const double number = reportNumber(value).value_or(0);
    return number >= 0 && number <= largest ? qint64(number) : 0;
}

std::optional<double> durationIn(std::optional<double> seconds)
{
    return seconds && *seconds > 0 && *seconds <= longestDuration ? seconds : std::nullopt;
}

/// "30000/1001", "16:15"; nothing for "0/0".
std::optional<double> reportRatio(const QJsonValue &value)
{
    const QString text = reportText(value);
    const qsizetype split = text.indexOf(text.contains(u':') ? u':' : u'/');
    bool hasNumerator = false, hasDenominator = false;
    const double numerator = QStringView(text).left(split).toDouble(&hasNumerator);
    const double denominator = QStringView(text).mid(split + 1).toDouble(&hasDenominator);
    if (split < 0 || !hasNumerator || !hasDenominator || denominator <= 0 || numerator < 0)
        return std::nullopt;
    return numerator / denominator;
}

/// By lower-case names.
QHash<QString, QString> tagsIn(const QJsonObject &object)
{
    QHash<QString, QString> tags;
    const QJsonObject json = object["tags"_L1].toObject();
    for (auto tag = json.begin(); tag != json.end() && tags.size() < maximumTags; ++tag) {
        if (const QString text = reportText(tag.value()); !text.isEmpty())
            tags.insert(tag.key().left(maximumTextLength).toLower(), text);
    }
    return tags;
}

/// Matroska's statistics may carry a language: "bps-eng".
QString statisticIn(const QHash<QString, QString> &tags, const QString &name)
{
    return tags.value(name, tags.value(name + "-eng"_L1));
}

/// "00:01:23.500000000"
std::optional<double> clockTime(const QString &text)
{
    const QStringList parts = text.split(u':');
    double seconds = 0;
    for (const QString &part : parts) {
        bool isNumber = false;
        seconds = seconds * 60 + part.toDouble(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    return parts.size() == 3 ? durationIn(seconds) : std::nullopt;
}

/// What programs write into MP4 where nobody gave a title.
QString titleIn(const QHash<QString, QString> &tags)
{
    if (const QString title = tags.value(u"title"_s); !title.isEmpty())
        return title;
    const QString handler = tags.value(u"handler_name"_s);
    for (const auto word : {"handle"_L1, "Core Media"_L1, "ISO Media"_L1, "GPAC"_L1, "Apple "_L1}) {
        if (handler.contains(word, Qt::CaseInsensitive))
            return {};
    }
    return handler;
}

QString languageIn(const QHash<QString, QString> &tags)
{
    constexpr qsizetype longestLanguage = 35;
    const QString language = tags.value(u"language"_s);
    return language == "und"_L1 || language.size() > longestLanguage ? QString() : language;
}

int bitDepthIn(const QJsonObject &stream, const QString &pixelFormat)
{
    if (const int told = bitDepthOf(pixelFormat); told > 0)
        return told;
    const int depth = reportInteger(stream["bits_per_raw_sample"_L1], 16);
    return pixelFormat.isEmpty() && depth > 8 ? depth : 8;
}

MediaTrack::FieldOrder fieldOrderIn(const QJsonObject &stream)
{
    using enum MediaTrack::FieldOrder;
    // The first letter tells which field comes first in time: so ffmpeg itself writes and reads them.
    const QString order = reportText(stream["field_order"_L1]);
    if (order == "tt"_L1 || order == "tb"_L1)
        return TopFirst;
    if (order == "bb"_L1 || order == "bt"_L1)
        return BottomFirst;
    return order == "progressive"_L1 ? Progressive : Unknown;
}

/// To the nearest quarter turn, clockwise, from 0.
int quarterTurns(double degrees)
{
    return ((int(std::lround(std::fmod(degrees, 360) / 90)) % 4) + 4) % 4 * 90;
}

/// As x265 takes it: coordinates in 1/50,000, luminance in 1/10,000 candela a square metre.
QString masteringDisplayIn(const QJsonObject &sideData)
{
    const auto value = [&sideData](QLatin1StringView key, double unit) {
        return QString::number(std::lround(std::min(reportRatio(sideData[key]).value_or(0), 1e5) * unit));
    };
    const auto point = [&value](QLatin1StringView x, QLatin1StringView y) {
        return u'(' + value(x, 50'000) + u',' + value(y, 50'000) + u')';
    };
    if (!reportRatio(sideData["red_x"_L1]) || !reportRatio(sideData["max_luminance"_L1]))
        return {};
    return u'G' + point("green_x"_L1, "green_y"_L1) + u'B' + point("blue_x"_L1, "blue_y"_L1) + u'R' +
           point("red_x"_L1, "red_y"_L1) + "WP"_L1 + point("white_point_x"_L1, "white_point_y"_L1) + "L("_L1 +
           value("max_luminance"_L1, 10'000) + u',' + value("min_luminance"_L1, 10'000) + u')';
}

void readSideData(const QJsonArray &list, MediaTrack &track)
{
    for (const QJsonValue &value : list) {
        const QJsonObject sideData = value.toObject();
        const QString type = reportText(sideData["side_data_type"_L1]);
        if (type == "Display Matrix"_L1) {
            track.rotation = quarterTurns(-reportNumber(sideData["rotation"_L1]).value_or(0));  // counter-clockwise
        } else if (type == "Mastering display metadata"_L1) {
            if (const QString display = masteringDisplayIn(sideData); !display.isNull())
                track.masteringDisplay = display;
        } else if (type == "Content light level metadata"_L1) {
            track.lightLevel = u"%1,%2"_s.arg(reportInteger(sideData["max_content"_L1], 65'535))
                                   .arg(reportInteger(sideData["max_average"_L1], 65'535));
        }
    }
}

void readRates(const QJsonObject &stream, MediaTrack &track)
{
    constexpr double absurdRate = 1000;  // 90000/1: the clock of the container
    const double average = reportRatio(stream["avg_frame_rate"_L1]).value_or(0);
    const double base = reportRatio(stream["r_frame_rate"_L1]).value_or(0);
    track.frameRate = average > 0 && average < absurdRate ? average : base < absurdRate ? base : 0;
    if (average <= 0 || base <= 0)
        return;
    track.baseRate = base;
    // Fields that are coded apart count twice in the base rate. Rounded time stamps shift the average a little.
    constexpr double tolerance = 0.002;
    const double ratio = base / average;
    track.isVariableRate = std::abs(ratio - 1) > tolerance && std::abs(ratio - 2) > 2 * tolerance;
}

void readPicture(const QJsonObject &stream, const QHash<QString, QString> &tags, MediaTrack &track)
{
    track.isReordered = reportInteger(stream["has_b_frames"_L1], 64) > 0;
    track.width = reportInteger(stream["width"_L1], largestSide);
    track.height = reportInteger(stream["height"_L1], largestSide);
    const double aspect = reportRatio(stream["sample_aspect_ratio"_L1]).value_or(0);
    track.sampleAspect = aspect >= 0.01 && aspect <= 100 ? aspect : 1;
    readRates(stream, track);
    track.pixelFormat = knownText(stream, "pix_fmt"_L1);
    track.bitDepth = bitDepthIn(stream, track.pixelFormat);
    track.fieldOrder = fieldOrderIn(stream);
    track.colorPrimaries = knownText(stream, "color_primaries"_L1);
    track.colorTransfer = knownText(stream, "color_transfer"_L1);
    track.colorSpace = knownText(stream, "color_space"_L1);
    track.colorRange = knownText(stream, "color_range"_L1);
    track.rotation = quarterTurns(reportNumber(tags.value(u"rotate"_s)).value_or(0));  // clockwise
    readSideData(stream["side_data_list"_L1].toArray(), track);
}

MediaTrack::Kind kindOf(const QJsonObject &stream, bool isStillPicture)
{
    using enum MediaTrack::Kind;
    const QString type = reportText(stream["codec_type"_L1]);
    if (type == "video"_L1) {
        const bool isCover = stream["disposition"_L1].toObject()["attached_pic"_L1].toInt() != 0;
        return isCover || isStillPicture ? Cover : Video;
    }
    return type == "audio"_L1 ? Audio : type == "subtitle"_L1 ? Subtitle : type == "attachment"_L1 ? Attachment : Data;
}

MediaTrack trackIn(const QJsonObject &stream, bool isStillPicture)
{
    constexpr QLatin1StringView bitmapCodecs[] = {"hdmv_pgs_subtitle"_L1, "dvd_subtitle"_L1, "dvb_subtitle"_L1,
                                                  "xsub"_L1, "dvb_teletext"_L1};
    constexpr QLatin1StringView roles[] = {
        "dub"_L1,      "original"_L1,         "comment"_L1,         "lyrics"_L1,
        "karaoke"_L1,  "hearing_impaired"_L1, "visual_impaired"_L1, "clean_effects"_L1,
        "captions"_L1, "descriptions"_L1};
    constexpr int largestIndex = 100'000;
    const QHash<QString, QString> tags = tagsIn(stream);
    MediaTrack track;
    track.index = reportInteger(stream["index"_L1], largestIndex);
    track.kind = kindOf(stream, isStillPicture);
    track.codec = knownText(stream, "codec_name"_L1);
    track.profile = knownText(stream, "profile"_L1);
    track.language = languageIn(tags);
    track.title = titleIn(tags);
    const QJsonObject disposition = stream["disposition"_L1].toObject();
    track.isDefault = disposition["default"_L1].toInt() != 0;
    track.isForced = disposition["forced"_L1].toInt() != 0;
    for (const auto role : roles) {
        if (disposition[role].toInt() != 0)
            track.roles.append(role);
    }
    track.duration = durationIn(reportNumber(stream["duration"_L1]));
    if (!track.duration)
        track.duration = clockTime(statisticIn(tags, u"duration"_s));
    track.start = reportNumber(stream["start_time"_L1]).value_or(0);
    track.bitRate = reportCount(stream["bit_rate"_L1]);
    if (track.bitRate == 0)
        track.bitRate = reportCount(statisticIn(tags, u"bps"_s));
    if (track.kind == MediaTrack::Kind::Video || track.kind == MediaTrack::Kind::Cover)
        readPicture(stream, tags, track);
    track.channels = reportInteger(stream["channels"_L1], 64);
    track.channelLayout = knownText(stream, "channel_layout"_L1);
    if (track.kind == MediaTrack::Kind::Audio)
        track.bitDepth = std::max(reportInteger(stream["bits_per_sample"_L1], 64),
                                  reportInteger(stream["bits_per_raw_sample"_L1], 64));
    track.sampleRate = reportInteger(stream["sample_rate"_L1], 10'000'000);
    track.isBitmap = track.kind == MediaTrack::Kind::Subtitle &&
                     std::find(std::begin(bitmapCodecs), std::end(bitmapCodecs), track.codec) != std::end(bitmapCodecs);
    track.fileName = tags.value(u"filename"_s);
    track.mimeType = tags.value(u"mimetype"_s);
    return track;
}

MediaChapter chapterIn(const QJsonObject &json)
{
    return {.start = reportNumber(json["start_time"_L1]).value_or(0),
            .end = reportNumber(json["end_time"_L1]).value_or(0),
            .title = tagsIn(json).value(u"title"_s)};
}

/// Text files too are films to ffprobe: it draws their letters.
bool isFormatOfPictures(const QString &format)
{
    return format.endsWith("_pipe"_L1) || format == "image2"_L1 || format == "tty"_L1;
}

}  // namespace

int bitDepthOf(const QString &pixelFormat)
{
    // "yuv420p10le", "p010le", "rgb48be", "y210le": the digits before the byte order
    static const QRegularExpression pattern(u"(\\d+)(?:le|be)$"_s);
    const int digits = pattern.match(pixelFormat).captured(1).toInt();
    if (digits == 48 || digits == 64)
        return 16;
    return digits % 100 >= 9 && digits % 100 <= 16 ? digits % 100 : 0;
}

std::optional<MediaInformation> parseMediaInformation(const QByteArray &json)
{
    if (json.size() > maximumReportBytes)
        return std::nullopt;
    const QJsonObject report = QJsonDocument::fromJson(json).object();
    const QJsonObject format = report["format"_L1].toObject();
    MediaInformation information;
    information.format = reportText(format["format_name"_L1]);
    if (information.format.isEmpty())
        return std::nullopt;
    information.duration = durationIn(reportNumber(format["duration"_L1]));
    information.start = reportNumber(format["start_time"_L1]).value_or(0);
    // This one tells what its clock shows at the end.
    if (information.format.startsWith("matroska"_L1) && information.duration > std::max(0.0, information.start))
        *information.duration -= std::max(0.0, information.start);
    information.bytes = reportCount(format["size"_L1]);
    information.bitRate = reportCount(format["bit_rate"_L1]);
    information.tags = tagsIn(format);
    const QJsonArray streams = report["streams"_L1].toArray();
    const bool isStillPicture = isFormatOfPictures(information.format);
    for (qsizetype index = 0; index < std::min(streams.size(), maximumTracks); ++index)
        information.tracks.append(trackIn(streams.at(index).toObject(), isStillPicture));
    if (!information.duration) {
        for (const MediaTrack &track : std::as_const(information.tracks))
            information.duration = std::max(information.duration, track.duration);  // none is less than any
    }
    // Ogg has its tags with the track.
    const bool isOgg = information.format == "ogg"_L1 && !streams.isEmpty();
    if (information.tags.isEmpty() && (isOgg || information.tracks.size() == 1))
        information.tags = tagsIn(streams.at(0).toObject());
    const QJsonArray chapters = report["chapters"_L1].toArray();
    for (qsizetype index = 0; index < std::min(chapters.size(), maximumChapters); ++index)
        information.chapters.append(chapterIn(chapters.at(index).toObject()));
    return information;
}

void addPictureData(const QByteArray &json, MediaInformation &information)
{
    const MediaTrack *video = information.firstOf(MediaTrack::Kind::Video);
    if (json.size() > maximumReportBytes || !video)
        return;
    MediaTrack &track = information.tracks[video - information.tracks.constData()];
    const QJsonArray frames = QJsonDocument::fromJson(json).object()["frames"_L1].toArray();
    const int rotation = track.rotation;
    readSideData(frames.at(0).toObject()["side_data_list"_L1].toArray(), track);
    track.rotation = rotation;
}

}  // namespace kestrel
