#pragma once

#include "CaptureTarget.h"
#include "RecordPlan.h"

#include "media/TranscodeCommand.h"

#include <QStringList>

#include <chrono>

namespace kestrel {

/// One stretch of a recording, from a start or a pause to the next.
struct RecordStretch {
    CaptureTarget target = {};
    /// The size of the picture, where it is that of an earlier stretch; else the target's.
    QSize size = {};
    std::chrono::microseconds begin{0};  ///< by the clock since 1970; what comes before it is left out
    double seconds = 0;                  ///< of this stretch at the most; 0 for no limit
    bool isSilent = false;               ///< the sound server is away: the track goes on without a sound
    QString hardwareDevice = {};         ///< that encodes the pictures; empty for software
    QString output = {};                 ///< a file that is there already
};

/// What ffmpeg is run with for a stretch. Pure. Pictures and sound carry the time at which they were taken, so that
/// they are in step whenever each of them begins; both begin at `begin`. The file is Matroska that is whole up to the
/// last half second at any moment.
QStringList recordArguments(const RecordPlan &plan, const RecordStretch &stretch);

/// What shows a camera before it is recorded: writes its picture to a JPEG file, again and again.
QStringList cameraPictureArguments(const CaptureTarget &camera, const QString &output);

/// What screenFrames is run with to feed that: the pictures of a node, by an open connection to PipeWire, in the
/// stretch's size where it has one. `snapshot` is the file that it writes where it gets SIGUSR1.
QStringList framesArguments(const RecordPlan &plan, QSize size, int connection, quint32 node, const QString &snapshot);

/// The sources of the plan's sound, as the sound server names them.
QStringList soundSources(const RecordPlan &plan);

struct Microphone {
    QString name;   ///< as the sound server has it
    QString title;  ///< "Built-in Audio Analog Stereo"
};
/// Those that `ffmpeg -sources pulse` tells.
QList<Microphone> microphonesIn(const QByteArray &told);

/// What tells the usual one of those devices that the plan's sound comes from; none where that does not matter.
QStringList usualDeviceArguments(const RecordPlan &plan);
QString usualDeviceIn(const QByteArray &told);  ///< by its name; empty where none is told

/// What ffmpeg is run with to hear the plan's sound: one input for each of its sources.
QStringList soundInputArguments(const RecordPlan &plan);

/// What tells by its success whether they can be recorded.
QStringList soundProbeArguments(const RecordPlan &plan);

/// Where a stretch's tracks begin and end, in seconds of its file; 0 where that is not known.
struct StretchSpan {
    double begin = 0;  ///< of the pictures; what stands before is the sound encoder's own
    double picturesEnd = 0;
    double soundEnd = 0;  ///< of the shortest; 0 also where there is none
};
QStringList stretchSpanArguments(const QString &stretch);  ///< of ffprobe
StretchSpan stretchSpan(const QByteArray &told);

/// Where the stretch is cut for the next one to follow without a gap: at the end of a packet of sound that is nearly
/// that of a picture. 0 where its end is not known.
double joiningEnd(const StretchSpan &span, double rate);

/// What joins the stretches, without encoding, into the file that was asked for. `list` is for `joinList`'s text.
QStringList finishArguments(const QString &list, const QString &output);
/// `spans` has all of them, or none where nothing is to be cut.
QByteArray joinList(const QStringList &stretches, const QList<StretchSpan> &spans, double rate);

/// The tracks that the finished file must hold.
QList<OutputExpectation::Track> recordedTracks(const RecordPlan &plan);

}  // namespace kestrel
