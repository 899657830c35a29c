#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace kestrel {

/// One track of a media file, in the words of ffprobe.
struct MediaTrack {
    enum class Kind { Video, Cover, Audio, Subtitle, Attachment, Data };
    enum class FieldOrder { Unknown, Progressive, TopFirst, BottomFirst };

    int index = 0;  ///< in the file, over all kinds: "0:index"
    Kind kind = Kind::Data;
    QString codec;     ///< "h264", "aac", "mov_text"; null where it is not known
    QString profile;   ///< "High 4:2:2"
    QString language;  ///< as the file has it, ISO 639-2 or BCP 47; null where it has none or "und"
    QString title;
    bool isDefault = false;
    bool isForced = false;
    QStringList roles;               ///< further dispositions in ffmpeg's words: "comment", "visual_impaired"
    std::optional<double> duration;  ///< seconds; many containers tell none for a track
    double start = 0;                ///< seconds
    qint64 bitRate = 0;              ///< bits a second; 0 where it is not known

    // Video and cover
    int width = 0;  ///< of the coded picture, before it is turned
    int height = 0;
    double sampleAspect = 1;  ///< width of a sample to its height
    double frameRate = 0;     ///< average, pictures a second; 0 where it is not known
    double baseRate = 0;      ///< at which no two pictures fall on one; 0 where it is not known
    bool isVariableRate = false;
    bool isReordered = false;  ///< pictures are stored before others that are seen earlier
    QString pixelFormat;       ///< "yuv420p10le"
    int bitDepth = 8;          ///< of a sample; of sound too, where its codec has such
    FieldOrder fieldOrder = FieldOrder::Unknown;
    bool fieldsAreSeen = false;  ///< by looking: the pictures' own flags do not tell
    int rotation = 0;  ///< degrees clockwise that the picture is to be turned by to stand upright: 0, 90, 180, 270
    QString colorPrimaries, colorTransfer, colorSpace,
        colorRange;            ///< "bt2020", "smpte2084", "bt2020nc", "tv"; null where not told
    QString masteringDisplay;  ///< as x265 takes it, "G(…)B(…)R(…)WP(…)L(…)"; null where there is none
    QString lightLevel;        ///< "max,average" in candela a square metre; null where there is none

    // Audio
    int channels = 0;
    QString channelLayout;  ///< "5.1(side)"; null where not told
    int sampleRate = 0;     ///< Hz

    // Subtitles: pictures (discs, broadcasts) instead of text
    bool isBitmap = false;

    // Attachments
    QString fileName, mimeType;

    bool isHdr() const;         ///< PQ or HLG
    bool isInterlaced() const;  ///< by its flag
};

struct MediaChapter {
    double start = 0;  ///< seconds
    double end = 0;
    QString title;
};

/// What a media file holds, as ffprobe tells.
struct MediaInformation {
    QString format;                  ///< ffprobe's short names: "mov,mp4,m4a,3gp,3g2,mj2"
    std::optional<double> duration;  ///< seconds, above 0; nothing where the file does not tell
    double start = 0;                ///< seconds that its clock shows at the beginning
    qint64 bytes = 0;
    qint64 bitRate = 0;
    QList<MediaTrack> tracks;
    QList<MediaChapter> chapters;
    QHash<QString, QString> tags;  ///< lower-case names: "title", "creation_time", "location"

    const MediaTrack *firstOf(
        MediaTrack::Kind kind) const;  ///< the default one, or the first; null where there is none
    QList<MediaTrack> tracksOf(MediaTrack::Kind kind) const;
    bool hasVideo() const { return firstOf(MediaTrack::Kind::Video); }  ///< moving pictures: a cover does not count
    bool hasAudio() const { return firstOf(MediaTrack::Kind::Audio); }
    bool canBeConverted() const { return hasVideo() || hasAudio(); }
    /// Whether a header tells the duration, so that a file that was cut off shows: not for MPEG streams, AVI and the
    /// like.
    bool headerTellsDuration() const;
    /// One line for the user: "MPEG-4 · H.264 · AAC".
    QString summary() const;
};

/// A longer report is none.
inline constexpr qint64 maximumReportBytes = 4 * 1024 * 1024;

/// Reads `ffprobe -show_format -show_streams -show_chapters -of json`. Nothing where it is none. The report may be any
/// bytes: nonsense in a field reads as absent.
std::optional<MediaInformation> parseMediaInformation(const QByteArray &json);

/// Adds what only pictures carry (mastering display, light level) from `ffprobe -show_frames` of the film's first
/// one.
void addPictureData(const QByteArray &json, MediaInformation &information);

/// Bits of each colour, by the name that ffmpeg gives a format of pixels: 10 of "yuv420p10le". 0 where the name tells
/// none, which are 8.
int bitDepthOf(const QString &pixelFormat);

}  // namespace kestrel
