#pragma once

#include "Containers.h"
#include "Encoders.h"
#include "TranscodeCommand.h"

#include <QSize>

namespace kestrel {

/// What of a source goes into the result, in the order of the result.
struct SourcePiece {
    int source = 0;                 ///< in the plan's order
    std::optional<double> start;    ///< seconds; nothing for the beginning
    std::optional<double> end;      ///< nothing for the end
    std::optional<double> seconds;  ///< nothing where the source does not tell
};

struct VideoTrackPlan {
    const MediaTrack *source = nullptr;
    const VideoEncoder *encoder = nullptr;  ///< null where it is copied
    QString codec;                          ///< of the result
    bool isHardware = false;
    bool keepsHdr = false, mapsTones = false;
    bool deinterlaces = false;
    QString pixelFormat;
    QSize uprightSize;     ///< of the source's picture as it stands upright; empty where it is not known
    QSize size;            ///< of the result
    double frameRate = 0;  ///< that is asked for; 0 for as the source
    double mostRate = 0;   ///< where each picture keeps its time: no more of them a second; 0 for no limit
    bool isVariableRate = false;
};

struct SoundTrackPlan {
    const MediaTrack *source = nullptr;
    const SoundEncoder *encoder = nullptr;  ///< null where it is copied
    QString codec;
    int channels = 0;
    QString layout;      ///< to be made; null for as the source
    qint64 bitRate = 0;  ///< bits a second; 0 for constant quality or none
    int sampleRate = 0;  ///< 0 for as the source
    QList<int> joined;   ///< of a join: index of the track in each of the files, -1 for silence
};

struct SubtitleTrackPlan {
    const MediaTrack *source = nullptr;  ///< null where it is a file of its own
    int file = -1;                       ///< in the plan's list
    int made = -1;                       ///< in the file of those that are made before they are cut
    QString encoder;                     ///< ffmpeg's name; "copy"
    QString codec;                       ///< of the result
};

/// What becomes of each track of the sources. Tracks point into `sources`; for a join they are those of the first, for
/// sound of the first that has any.
struct TrackPlan {
    const Container *container = nullptr;
    std::optional<VideoTrackPlan> video;
    QList<SoundTrackPlan> sounds;
    QList<SubtitleTrackPlan> subtitles;
    std::optional<SubtitleTrackPlan> burned;
    int burnedNumber = 0;    ///< of the burned track among the tracks of subtitles of its source
    double burnedStart = 0;  ///< seconds that the clock of its cues shows where its source begins
    QList<const MediaTrack *> covers, attachments;
    bool keepsChapters = false;
    QList<tarnwell::Sentence> leftOut, notes;

    bool copiesAll() const;
    bool copiesAny() const;
};

/// The pieces that the plan keeps, none of them empty.
QList<SourcePiece> sourcePieces(const TranscodePlan &plan, const QList<MediaInformation> &sources);
/// Of the result, before it is known to be slowed or hastened by the plan; nothing where a source does not tell.
std::optional<double> secondsOf(const QList<SourcePiece> &pieces);

foundation::Result<TrackPlan, tarnwell::Sentence> planTracks(const TranscodePlan &plan,
                                                             const QList<MediaInformation> &sources,
                                                             const TranscodeMachine &machine);

/// Whether the plan changes each picture, or each sample, so that none can be kept as it is.
bool changesPictures(const TranscodePlan &plan);
bool changesSound(const TranscodePlan &plan);
bool cutsExactly(const TranscodePlan &plan);

// Parts of planTracks

std::optional<VideoTrackPlan> planVideo(const TranscodePlan &plan, const MediaTrack &track, const Container &container,
                                        const TranscodeMachine &machine, bool isBurnt);
/// By its flag, or by those of its pictures, where its container tells nothing and the filter heeds them.
bool mayHaveFields(const MediaTrack &track);
QList<SoundTrackPlan> planSounds(const TranscodePlan &plan, const QList<const MediaTrack *> &tracks,
                                 const Container &container, const TranscodeMachine &machine);
/// Whether sound of that codec is, sample by sample, what it was made of.
bool isLosslessSound(const QString &codec);
/// Subtitles, covers, attachments and chapters, with what stays behind.
void planCompanions(TrackPlan &tracks, const TranscodePlan &plan, const QList<MediaInformation> &sources,
                    const TranscodeMachine &machine);
/// What a format of pixels, in ffmpeg's words, can tell apart. `depth` is what is known of it beside its name.
struct PixelKind {
    int chroma = 0;  ///< 0 for 4:2:0 and less, 1 for 4:2:2, 2 for 4:4:4
    int depth = 8;
    bool isRgb = false;
    bool hasAlpha = false;
};
PixelKind pixelKind(const QString &format, int depth);
/// Names in `leftOut` what is lost of a source beside whole tracks.
void tellLosses(TrackPlan &tracks, const TranscodePlan &plan, const MediaInformation &source,
                const TranscodeMachine &machine);
/// The tracks of sound that the plan keeps of a file, before it is known what the target holds, and what becomes of one
/// of its subtitles.
QList<int> wantedSoundIndexes(const TranscodePlan &plan, const MediaInformation &source);
TranscodePlan::SubtitleUse useOfSubtitle(const TranscodePlan &plan, const MediaTrack &track);
/// Whether the track is in one of these languages, each as a tag or code of any length: "en,ger".
bool isInLanguages(const MediaTrack &track, const QString &languages);
/// "Japanese", or what else tells one track from another.
QString trackName(const MediaTrack &track, const TranscodeMachine &machine);

}  // namespace kestrel
