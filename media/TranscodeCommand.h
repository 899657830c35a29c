#pragma once

#include "MediaInformation.h"
#include "TranscodePlan.h"

#include "foundation/Result.h"
#include "tarnwell/TextKey.h"

namespace kestrel {

/// What ffmpeg of this machine can do beyond the usual.
struct TranscodeMachine {
    QString hardwareDevice = {};  ///< that encodes H.264 in hardware; empty where there is none
    QString hevcDevice = {};      ///< that encodes H.265
    int processors = 1;
    QStringList missingEncoders = {};         ///< that this ffmpeg lacks of those that are usually there: "libsvtav1"
    QString language = QStringLiteral("en");  ///< that the names of languages are written in

    /// Asks the system for the devices, once.
    void findHardware();
    bool hasHardware() const { return !hardwareDevice.isEmpty() || !hevcDevice.isEmpty(); }
};

/// What the output must show before it may be called done.
struct OutputExpectation {
    struct Track {
        MediaTrack::Kind kind;
        QString codec;       ///< ffprobe's name
        qint64 packets = 0;  ///< of subtitles: at least
    };
    QList<Track> tracks;
    std::optional<double> seconds;  ///< nothing where the source does not tell
    bool secondsAreTold = false;    ///< by the headers of all sources: what is shorter shows that one is damaged
    bool mayBeLonger = false;       ///< `seconds` is the least: cuts at keyframes keep what stands before
    qint64 maximumBytes = 0;        ///< 0 for no limit
    int rotation = 0;               ///< as MediaTrack has it
    qsizetype chapters = 0;
    /// Decode it all: where packets of a source without a length in its header were copied, or in safe mode.
    bool decodesAll = false;
};

/// A picture that a run leaves behind, and the file that it is to be written into as a tag.
struct CoverTag {
    QString picturePath, tagPath;
    QString mimeType;
    int width = 0, height = 0;  ///< pixels
};

/// One run of ffmpeg.
struct TranscodeRun {
    QStringList arguments;
    tarnwell::Sentence stage;  ///< "First pass"; none for the only one
    double share = 1;          ///< of the whole work; the shares of all runs come to 1
    double seconds = 0;        ///< of output that are the whole of this run's progress; 0 where not known
    std::optional<CoverTag> coverTag = {};
};

struct TranscodeSteps {
    enum class Work { Copy, Sound, Encode };

    QList<TranscodeRun> runs;
    /// Files that the runs read, by absolute path in the work folder: to be written before the first run.
    QHash<QString, QByteArray> files;
    OutputExpectation expected;
    QList<tarnwell::Sentence> leftOut;  ///< what the target cannot hold, named
    QList<tarnwell::Sentence> notes;    ///< what the user should know before: "cut at the keyframe at 3.2 s"
    Work work = Work::Encode;
    qint64 expectedBytes = 0;    ///< an upper guess; 0 where nothing is known
    bool takesShortcut = false;  ///< relies on hardware or copied tracks: where it fails, one without may not
};

struct TranscodePaths {
    QString output;      ///< the part that the last run writes
    QString workFolder;  ///< an empty folder of the job's own for pass logs, lists and extracted covers
};

/// The runs of ffmpeg that carry out the plan, or why it cannot be done ("This file has no sound to convert."). Pure:
/// the same values give the same arguments. `sources` are what the plan's sources hold, in its order. All paths are
/// absolute.
foundation::Result<TranscodeSteps, tarnwell::Sentence> transcodeSteps(const TranscodePlan &plan,
                                                                      const QList<MediaInformation> &sources,
                                                                      const TranscodeMachine &machine,
                                                                      const TranscodePaths &paths);

/// Whether the plan cuts the film without encoding its pictures, which it can do at key pictures alone.
bool cutsAtKeyPictures(const TranscodePlan &plan, const QList<MediaInformation> &sources,
                       const TranscodeMachine &machine);

/// The same plan without hardware and copied tracks, for a second attempt.
TranscodePlan withoutShortcuts(TranscodePlan plan);

}  // namespace kestrel
