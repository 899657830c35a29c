#pragma once

#include "DiscFailure.h"
#include "DiscPlan.h"
#include "DiscTools.h"
#include "FilmStreams.h"

#include "jobs/ToolJob.h"

namespace kestrel {

class OutputFile;
class Placing;

struct DiscRequest {
    DiscPlan plan;
    QString folder;  ///< that the output goes to
    DiscTools tools;
};

/// What every way to keep a disc has in common: looks at the disc first, for what it holds now and whether it may be
/// read at all, and gives the output its name in the end.
class DiscJob : public ToolJob {
    Q_OBJECT
public:
    explicit DiscJob(DiscRequest request, QObject *parent = nullptr);
    ~DiscJob() override;

    void start() override;
    /// Half a film is nothing to end with.
    void stop() final { cancel(); }

protected:
    /// The disc was looked at, is not protected, and has the title.
    virtual void carryOut() = 0;
    void discard() override;

    const DiscRequest &request() const { return m_request; }
    const disc::DiscContents &contents() const { return m_contents; }
    const disc::DiscTitle &title() const { return *titleOf(m_contents, m_request.plan); }
    QString outputName() const { return discOutputName(m_request.plan, m_contents); }

    /// Runs a tool that tells of itself in JSON, on either stream, as does its feeder; what it says is in `lines` from
    /// then on. Its progress is `share` of the whole work, behind what was done before.
    ToolProcess &runDiscTool(const ToolCommand &command, double share, Continuation then);
    const DiscToolLines &lines() const { return m_lines; }
    /// Asks the title's film what tracks it has; `then` is not called where it has none, which fails the job.
    void lookAtFilm(std::function<void(const QList<FilmStream> &streams)> then);
    /// How much of the film had to be looked at until its tracks were known.
    qint64 look() const { return m_look; }
    /// disctitle for the plan's title and its wanted tracks, followed by what else it is told.
    std::shared_ptr<ToolCommand> titleReader(const QStringList &options) const;

    void tellStage(const tarnwell::Sentence &stage);
    /// Of the step of the moment, 0 to 1.
    void tellProgress(double fraction, double seconds, qint64 bytes);
    void beginShare(double share);

    /// Ends the job where the step has not ended well. True where it has.
    bool isGoodStep(const ToolEnding &ending);
    void fail(const tarnwell::Sentence &sentence, const QString &details = {});
    void addProblem(const tarnwell::Sentence &problem);
    void addLeftOut(const tarnwell::Sentence &leftOut);
    void setFact(const QString &name, const QJsonValue &value);
    QList<tarnwell::Sentence> problems() const { return m_outcome.problems; }
    QList<tarnwell::Sentence> leftOut() const { return m_outcome.leftOut; }
    /// Gives the output its name; the job is done then, or done with problems.
    void place(std::shared_ptr<OutputFile> output);
    void giveName();
    /// What is to happen once it has its name, before the job is done.
    virtual void placed(const QString &path) { Q_UNUSED(path); }

    std::shared_ptr<OutputFile> m_output;
    std::unique_ptr<OutputFile> m_workFolder;  ///< hidden, beside the output; goes with the job

private:
    void lookedAt(const ToolEnding &ending);
    void lookAtFilm(qint64 look, std::function<void(const QList<FilmStream> &streams)> then);

    DiscRequest m_request;
    disc::DiscContents m_contents;
    DiscToolLines m_lines;
    QList<FilmStream> m_streams;
    qint64 m_look = usualLook;
    bool m_isFed = false;  ///< the tool of the moment makes something of what a reader tells it
    JobProgress m_told;
    double m_doneShare = 0, m_share = 0;
    JobOutcome m_outcome;
    std::shared_ptr<Placing> m_placing;
};

/// The job that carries the plan out.
std::unique_ptr<DiscJob> makeDiscJob(DiscRequest request);

}  // namespace kestrel
