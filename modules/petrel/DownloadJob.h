#pragma once

#include "AnswerStore.h"
#include "Attempts.h"
#include "DownloadCheck.h"
#include "EngineCommand.h"
#include "EngineFailure.h"
#include "EngineProgress.h"

#include "jobs/ToolJob.h"
#include "media/TranscodeJob.h"

namespace kestrel {

class OutputFile;
class PartFolder;
class Placing;

struct DownloadTools {
    EngineTools engine;
    TranscodeTools transcode;
    QString answers;  ///< folder of the AnswerStore
};

/// How one fails whose address turns out to be of a list.
extern const tarnwell::TextKey addressIsOfList;

/// A download: asks what is there where that is not known freshly, downloads on from where an earlier run has ended,
/// looks at what has come, converts it where another form was asked for, and gives it its name. What has come is kept
/// when it ends otherwise, also where it is cancelled: `PartFolder::removeLeft` removes it. Passing failures are waited
/// out, an address that has expired is asked for again, once.
class DownloadJob : public ToolJob {
    Q_OBJECT
public:
    DownloadJob(DownloadPlan plan, QString folder, DownloadTools tools, QObject *parent = nullptr);
    ~DownloadJob() override;

    void start() override;
    void stop() override { cancel(); }
    void setPaused(bool paused) override;

protected:
    void discard() override;

private:
    /// Hands to `taker`, unless the job is over by then, what `reader` brings from the background: some answers are
    /// megabytes.
    template <typename Reader, typename Taker>
    void read(Reader reader, Taker taker);
    void analyse();
    void analysed(const ToolEnding &ending);
    void download();
    void readLine(ToolProcess &tool, const QByteArray &line);
    void downloaded(const ToolEnding &ending);
    void engineFailed(const ToolEnding &ending);
    EngineFailure failureOf(const ToolEnding &ending) const;
    void waitAndTryAgain(const EngineFailure &failure, const QString &details);
    void waitOn(int seconds, EngineFailure::Kind kind);
    void look();
    void looked(const ToolEnding &ending, const QString &path);
    void convert(const QString &path, const DownloadCheck &check);
    void converted(const JobOutcome &outcome);
    void place(const QString &path);
    JobOutcome goodOutcome() const;
    void finishGood(const QStringList &outputs);
    void fail(const tarnwell::Sentence &sentence, const QString &details = {});
    void tellStage(const tarnwell::Sentence &stage);
    QString title() const;

    DownloadPlan m_plan;
    QString m_folder;
    DownloadTools m_tools;
    AnswerStore m_answers;
    EngineAnswer m_answer;
    QString m_answerPath;
    std::unique_ptr<PartFolder> m_part;
    std::unique_ptr<TranscodeJob> m_conversion;
    std::shared_ptr<Placing> m_placing;
    EngineProgress m_progress;
    JobProgress m_told;
    DownloadCheck m_check;
    JobOutcome m_converted{.state = JobState::Done};  ///< where it had to be
    QString m_companionWords;  ///< what the engine said when it could not add what goes with the film
    qint64 m_resumed = 0;      ///< bytes that were there when the job began
    qint64 m_bytesAtTry = 0;   ///< when the present attempt began
    Attempts m_attempts;       ///< since something last came
    int m_retryAfter = 0;      ///< seconds, as the server asked last; 0 where it did not
    int m_waitNumber = 0;      ///< tells waits apart
    bool m_hasAskedAgain = false;
    bool m_isReplaced = false;  ///< what has come is of another film than what comes
    bool m_hasBegunAnew = false;
    bool m_isOver = false;
};

}  // namespace kestrel
