#pragma once

#include "KeyPictures.h"
#include "OutputCheck.h"
#include "PictureScan.h"
#include "ToolMessages.h"
#include "ToolPath.h"
#include "TranscodeCommand.h"
#include "TranscodeProgress.h"

#include "jobs/ToolJob.h"
#include "jobs/WorkFolder.h"

#include <vector>

namespace kestrel {

class OutputFile;
class Placing;

/// The tools of ffmpeg and the machine that they run on.
struct TranscodeTools {
    QString transcoder;  ///< absolute path of ffmpeg
    QString prober;      ///< of ffprobe
    TranscodeMachine machine;
    /// `ToolCommand::silenceLimit` of a conversion from files: ffmpeg that comes on nowhere for twice as long is hung.
    std::chrono::milliseconds stallLimit = std::chrono::minutes(1);
    /// That of one that is fed from a disc, whose damaged places take their time.
    std::chrono::milliseconds silenceLimit = std::chrono::minutes(15);
};

struct TranscodeRequest {
    TranscodePlan plan;
    QList<MediaInformation> information;  ///< of the plan's sources; those that are not told are looked at first
    QString folder;                       ///< that the output goes to
    TranscodeTools tools;
    QString name = {};  ///< of the output, without its ending; null for what the plan's pattern gives
};

/// A conversion: looks at the sources, carries out the plan step by step, looks at the output, and gives it its name.
/// Where hardware or copied tracks lead to nothing it is tried once more without them, which `noted` tells. Nothing is
/// done before the output was read back; what was saved from a damaged source is kept as DoneWithProblems.
class TranscodeJob : public ToolJob {
    Q_OBJECT
public:
    explicit TranscodeJob(TranscodeRequest request, QObject *parent = nullptr);
    ~TranscodeJob() override;

    void start() override;

protected:
    void discard() override;

private:
    void lookAtSource();
    void lookAtPicture(MediaInformation information);
    void scanPicture();
    void findKeyPictures(qsizetype number);
    void prepare();
    void carryOut();
    void runStep();
    void stepEnded(const ToolEnding &ending);
    void writeTagOf(const CoverTag &tag);
    void takeTag(std::optional<bool> isTaken);
    void runNextStep();
    void checkOutput(const ToolEnding &ending);
    Decoding neededDecoding() const;
    void decodeOutput(const ToolEnding &ending, const OutputFindings &findings);
    void judge(const ToolEnding &ending, const std::optional<OutputFindings> &findings);
    bool aimsAgain(const OutputFindings &findings, qint64 bytes);
    void tryWithoutShortcuts();
    void place(const JobOutcome &outcome);
    void giveName(JobOutcome outcome);
    void fail(const tarnwell::Sentence &sentence);
    void finishStopped();
    void tellProgress();
    void tellStage(const tarnwell::Sentence &stage);
    foundation::Result<TranscodePlan, tarnwell::Sentence> planWithToolPaths();

    TranscodeRequest m_request;
    std::vector<ToolPath> m_sources;
    std::shared_ptr<OutputFile> m_output;
    std::optional<ToolPath> m_outputPath;  ///< its part, for tools
    std::unique_ptr<WorkFolder> m_workFolder;
    std::shared_ptr<Placing> m_placing;
    std::vector<ToolPath> m_companions;
    TranscodeSteps m_steps;
    qsizetype m_step = 0;
    double m_doneShare = 0;
    JobProgress m_told;
    TranscodeProgress m_progress;
    ToolMessages m_messages;
    ToolMessages m_reading;  ///< of the output
    PictureScan m_scan;
    QList<TranscodePlan::Piece> m_wantedPieces;  ///< before they were moved to key pictures
    bool m_isSecondAttempt = false;
    int m_corrections = 0;
    qint64 m_correction = 0;  ///< bytes by which the last attempts at a size were too large
    qint64 m_lastBytes = 0;   ///< of the attempt before
};

}  // namespace kestrel
