#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <span>

namespace kestrel {

/// One way to make a video codec: a row of plain data. Arguments and lists are separated by blanks; a null list is
/// empty.
struct VideoEncoder {
    const char *codec;             ///< ffprobe's name
    const char *name;              ///< as people write it: "H.264"
    const char *encoder;           ///< ffmpeg's
    const char *arguments = {};    ///< that it always needs
    const char *quality = {};      ///< the option of its constant quality; null where it has none
    double usual = 0, best = 0;    ///< values of that
    double finest = 0, least = 0;  ///< the ends of its range
    const char *speeds[5] = {};    ///< slowest first; the third is usual
    const char *pixelFormats = "yuv420p";
    double bitsPerPixel = 0.1;     ///< a guess at usual quality, for the size of the result
    const char *hardware = {};     ///< encoder of the same codec in hardware
    bool twoPasses = false;        ///< keeps to a size by looking twice
    bool holdsHdr = false;         ///< in ten bits, with its tags
    bool writesMastering = false;  ///< and mastering display and light level with it
    bool isLossless = false;
    bool isSteady = false;    ///< takes no picture at a time of its own
    int multiple = 2;         ///< of which width and height are
    const char *sizes = {};   ///< the only ones that it takes, "176x144"; smallest first
    double sampleAspect = 0;  ///< that those have; 0 for what makes 4:3 or 16:9 of them
    const char *rates = {};   ///< the only pictures a second that it takes; smallest first
    int maximumWidth = 0, maximumHeight = 0;

    /// Whether it is ffmpeg's encoder of that name.
    bool is(QLatin1StringView other) const { return other == QLatin1StringView(encoder); }
};

struct SoundEncoder {
    const char *codec;
    const char *name;
    const char *encoder;
    const char *arguments = {};
    int usual = 0, best = 0;        ///< kilobits a second and channel; 0 where there is nothing to choose
    const char *usualQuality = {};  ///< in place of a bit rate where none is asked for; null where it has none
    const char *bestQuality = {};
    const char *layouts = "mono stereo 5.1 7.1";  ///< by number of channels, that others read as well
    const char *bitRates = {};                    ///< the only ones, kilobits a second; smallest first
    const char *sampleRates = {};                 ///< the only ones; smallest first
    int most = 0;                                 ///< kilobits a second of a track; 0 for no limit
};

std::span<const VideoEncoder> videoEncoders();
std::span<const SoundEncoder> soundEncoders();

/// What makes `codec`: the first of the table that is not among `missing`. Null where there is none.
const VideoEncoder *videoEncoderOf(QStringView codec, const QStringList &missing = {});
const SoundEncoder *soundEncoderOf(QStringView codec, const QStringList &missing = {});

/// Encoders of the tables that are not among those of an ffmpeg.
QStringList missingEncoders(const QStringList &there);

/// The name that people know a codec by; the codec itself where it is unknown.
QString codecLabel(const QString &codec);

/// The words of a list or of arguments as they stand in the tables.
QStringList tableWords(const char *words);

}  // namespace kestrel
