#include "TitleRipJob.h"

#include "jobs/OutputFile.h"
#include "jobs/PortableNames.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// Whether the rate at which film was taken may be asked for: what stays as it is would no longer do so.
bool mayAskForRate(const TranscodePlan &plan)
{
    const QString &codec = plan.preset.videoCodec;
    const bool mayStay = plan.copies && (codec == "copy"_L1 || codec == "mpeg2video"_L1);
    const bool isUsual =
        plan.deinterlace == TranscodePlan::Deinterlace::Auto || plan.deinterlace == TranscodePlan::Deinterlace::Off;
    return plan.preset.takesVideo() && plan.frameRate == 0 && isUsual && !mayStay;
}

}  // namespace

TitleRipJob::~TitleRipJob()
{
    m_converting.reset();
}

bool TitleRipJob::takesVideo() const
{
    return request().plan.transcode.preset.takesVideo();
}

/// Named as the output is to be: the converter takes the name from its source.
QString TitleRipJob::openTarget()
{
    m_film = m_workFolder->partPath() + u'/' + fittingName(portableName(outputName()), u".mkv"_s, 143);
    return m_film;
}

TranscodePlan TitleRipJob::transcodePlan() const
{
    const DiscPlan &plan = request().plan;
    TranscodePlan result = plan.transcode;
    result.sources = {m_film};
    result.besideSource = false;
    result.keepsDate = false;
    if (m_isPulledDown)
        result.frameRate = 24000.0 / 1001;
    const qsizetype burned = subtitles().places.indexOf(plan.burnedSubtitle - 1);
    if (plan.burnedSubtitle > 0 && burned >= 0)
        result.subtitles.insert(int(film().video.size() + film().sound.size() + burned),
                                TranscodePlan::SubtitleUse::Burn);
    return result;
}

/// The film in its file no longer tells which of its pictures are shown for three fields.
void TitleRipJob::fileIsGood()
{
    if (title().standard != "NTSC"_L1 || !mayAskForRate(request().plan.transcode))
        return convert();
    ToolCommand command = *titleReader({u"--streams"_s});
    command.timeLimit = std::chrono::minutes(3);
    command.outputLimit = maximumReportBytes;
    command.collectsOutput = true;
    run(command, [this](const ToolEnding &ending) {
        const QJsonObject facts = QJsonDocument::fromJson(ending.output).object();
        m_isPulledDown = facts["pulldown"_L1].toBool() && facts["progressive"_L1].toBool();
        convert();
    });
}

void TitleRipJob::convert()
{
    beginShare(1 - shareOfFile());
    m_converting = std::make_unique<TranscodeJob>(TranscodeRequest{
        .plan = transcodePlan(), .information = {}, .folder = request().folder, .tools = request().tools.transcode});
    m_converting->setNotary([this](const JobOutcome &outcome, const QString &partPath, std::function<void()> then) {
        beforePlacing(withOwnProblems(outcome), partPath, std::move(then));
    });
    connect(m_converting.get(), &Job::noted, this, &Job::noted);
    connect(m_converting.get(), &Job::finished, this, &TitleRipJob::converted);
    connect(m_converting.get(), &Job::progressed, this, [this](const JobProgress &progress) {
        tellStage(progress.stage);
        tellProgress(progress.fraction.value_or(0), progress.seconds, progress.bytes);
    });
    m_converting->start();
    if (isPaused())
        m_converting->setPaused(true);
}

JobOutcome TitleRipJob::withOwnProblems(const JobOutcome &outcome) const
{
    JobOutcome whole = outcome;
    whole.problems = problems() + outcome.problems;
    whole.leftOut = leftOut() + outcome.leftOut;
    if (outcome.state == JobState::Done && !whole.problems.isEmpty())
        whole.state = JobState::DoneWithProblems;
    if (whole.state == JobState::DoneWithProblems)
        whole.sentence = whole.problems.value(0);
    return whole;
}

void TitleRipJob::converted(const JobOutcome &outcome)
{
    m_workFolder.reset();
    finish(withOwnProblems(outcome));
}

void TitleRipJob::cancel()
{
    if (m_converting)
        m_converting->cancel();
    else
        TitleFileJob::cancel();
}

void TitleRipJob::setPaused(bool paused)
{
    TitleFileJob::setPaused(paused);
    if (m_converting)
        m_converting->setPaused(paused);
}

}  // namespace kestrel
