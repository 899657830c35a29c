#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

#include <array>
#include <optional>

namespace kestrel::disc {

/// One sound track of a title.
struct DiscAudio {
    QString language;  ///< ISO 639-1, "en"; empty where the disc does not tell
    QString codec;     ///< "ac3", "mp2", "lpcm", "dts"
    int channels = 0;
    QString purpose;   ///< "normal", "visuallyImpaired", "commentary", "alternateCommentary"; empty where not told
    int streamId = 0;  ///< in the program stream, as ffmpeg counts: 0x80, 0xa0, 0x1c0
};

/// One subtitle track of a title: pictures of four colours out of sixteen.
struct DiscSubtitle {
    QString language;
    QString purpose;  ///< "normal", "large", "children", "captions", "largeCaptions", "childrenCaptions", "forced",
                      ///< "commentary", "largeCommentary", "childrenCommentary"; empty where not told
    std::array<quint32, 16> palette = {};  ///< 0xRRGGBB
    int streamId = 0;                      ///< 0x20 to 0x3f

    /// What a file of subtitles keeps beside them so that they have their size and colours: two lines of text.
    QString codecData(int width, int height) const;
};

/// A picture that stands still in a title.
struct DiscStill {
    double start = 0;  ///< in the title
    int seconds = 0;
};

struct DiscTitle {
    int number = 0;  ///< from 1
    bool isMain = false;
    double seconds = 0;
    QString aspect;    ///< "4:3", "16:9"
    QString standard;  ///< "PAL", "NTSC"
    int width = 0, height = 0;
    QList<double> chapters;  ///< starts, in seconds
    QList<DiscStill> stills;
    int angles = 1;
    QList<DiscAudio> audio;
    QList<DiscSubtitle> subtitles;
    int duplicateOf = 0;  ///< the number of an earlier title that plays the same cells; 0 for none
    qint64 bytes = 0;     ///< of its film, one angle
};

/// What a film disc holds, as `discinfo` prints it.
struct DiscContents {
    QString volume;
    qint64 bytes = 0;
    bool isProtected = false;
    bool isTruncated = false;  ///< the image ends before its files do
    QList<DiscTitle> titles;

    const DiscTitle *mainTitle() const;  ///< null where there are no titles
};

QJsonObject toJson(const DiscTitle &title);
QJsonObject toJson(const DiscContents &contents);

/// Nothing where it is no such object. Its fields may be any: nonsense reads as absent.
std::optional<DiscContents> discContentsFromJson(const QJsonObject &object);

}  // namespace kestrel::disc
