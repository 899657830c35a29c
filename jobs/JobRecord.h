#pragma once

#include "PlacedPart.h"

#include "tarnwell/TextKey.h"

#include <QDateTime>
#include <QJsonObject>
#include <QList>

#include <optional>

/// What is known of a job, as values: what is stored and what the list shows. What runs is a `Job`.
namespace kestrel {

using JobId = qint64;  ///< above 0 and never used twice

enum class JobState {
    Checking,  ///< its source is being looked at
    Unusable,  ///< the source is none; `outcome.sentence` says why
    Ready,     ///< waits for the user
    Waiting,   ///< for a place in its lane; for disk space or a network where `blocked` says so
    Running,
    Paused,
    Stopping,          ///< ends with what there is
    Done,              ///< the output was looked at and has its name
    DoneWithProblems,  ///< the same, but not all of the source is in it
    Failed,
    Cancelled,    ///< by the user
    Interrupted,  ///< the program ended while it ran; is offered again
};

bool isBeforeStart(JobState state);  ///< Checking, Unusable, Ready
bool isEnded(JobState state);        ///< from Done on
bool isActive(JobState state);       ///< has a `Job`: Running, Paused, Stopping

/// The name in files and for programs: "done-with-problems".
QString jobStateName(JobState state);
std::optional<JobState> jobStateNamed(const QString &name);

/// What jobs share and must not fight over. Each lane runs so many of its jobs at once.
enum class Lane { Encode, Copy, Sound, Net, Disc, Capture };
inline constexpr int laneCount = 6;

/// How a job ended. Sentences are for the user; `details` is what the tools said, as it is.
struct JobOutcome {
    JobState state = JobState::Failed;  ///< one of the ended
    tarnwell::Sentence sentence = {};   ///< "35 of 60 s could be read, 10 faults"; none for a plain Done
    QString details = {};
    QStringList outputs = {};                 ///< absolute paths of what was made
    QList<tarnwell::Sentence> problems = {};  ///< of a job that is done with problems
    QList<tarnwell::Sentence> leftOut = {};   ///< tracks and the like that the target cannot hold
    QJsonObject facts = {};                   ///< further members of the result that programs read, such as "dropped"

    bool operator==(const JobOutcome &) const = default;
};

/// Of a job whose outputs are not where they were made.
extern const tarnwell::TextKey outputIsGone;

struct JobProgress {
    std::optional<double> fraction = {};  ///< 0 to 1; only grows; nothing where the end is not known
    double seconds = 0;                   ///< of the film that are done
    qint64 bytes = 0;                     ///< so far, where that is the measure
    double bytesPerSecond = 0;
    std::optional<double> remainingSeconds = {};
    tarnwell::Sentence stage = {};  ///< "Finishing…"; none for the work itself
};

struct JobRecord {
    JobId id = 0;         ///< given by the queue
    QString module = {};  ///< "marlin", "heron", "petrel", "plover": whose recipe reads `plan`
    JobState state = JobState::Ready;
    QString title = {};       ///< what the row is called: a file's name
    QString source = {};      ///< absolute path or address
    QJsonObject plan = {};    ///< the module's own values, with their "version"
    QString folder = {};      ///< absolute; where the output goes
    JobOutcome outcome = {};  ///< since it ended, or became unusable
    QDateTime added = {}, started = {}, ended = {};
    /// While its output gets its name; `outcome` is then what it will be, but for the name.
    std::optional<PlacedPart> placing = {};
    tarnwell::Sentence note = {};  ///< what the user should know of the run: "Encoding in software"

    // Not stored
    JobProgress progress = {};
    tarnwell::Sentence blocked = {};  ///< why it waits, where that is not its turn
};

/// What is stored of a record besides its id, module and state.
QJsonObject jobRecordToJson(const JobRecord &record);
/// Puts it back; members of a wrong type read as absent. False where it is no job: it needs a title and a plan.
bool readJobRecord(const QJsonObject &json, JobRecord &record);

}  // namespace kestrel
